#include "tools/CommandLine.h"
#include "tools/Verbs.h"

#include <cstdio>

namespace fieldcal {

int refuseUsage(const QString& why) {
    std::fprintf(stderr, "fieldcal-session: %s\n%s", qPrintable(why), qPrintable(usageText()));
    return kUsage;
}

}  // namespace fieldcal
