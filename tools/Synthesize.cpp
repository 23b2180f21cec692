#include "simulator/handheld/Synthesis.h"
#include "simulator/world/Worlds.h"
#include "tools/CommandLine.h"

#include <algorithm>
#include <cstdio>

namespace fieldcal {

int run(const SynthesizeOptions& options) {
    const auto& worlds = world::worldNames();
    if (std::find(worlds.begin(), worlds.end(), options.world) == worlds.end()) {
        QString names;
        for (const std::string& name : worlds)
            names += ' ' + QString::fromStdString(name);
        return refuseUsage(QString("unknown world '%1'; there are:%2").arg(options.world.c_str(), names));
    }
    handheld::SynthesisOptions request;
    request.world = options.world;
    request.seed = options.seed;
    request.stills = options.stills;
    request.platform = options.platform;
    request.baselines = options.baselines;
    const auto progress = [](int done, int total) {
        std::printf("still %d of %d\n", done, total);
        std::fflush(stdout);
    };
    std::string why;
    if (!handheld::synthesize(options.folder, request, progress, &why)) {
        std::fprintf(stderr, "%s\n", why.c_str());
        return kFailed;
    }
    return kSolved;
}

}  // namespace fieldcal
