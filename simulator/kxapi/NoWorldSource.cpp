#include "simulator/kxapi/WorldSource.h"

namespace kxsim {

const bool kCanRenderWorlds = false;

std::unique_ptr<FrameSource> openWorld(const Settings&, std::string* why) {
    *why = "this build renders no worlds";
    return nullptr;
}

}  // namespace kxsim
