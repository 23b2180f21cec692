#pragma once

#include "tests/views/ViewsStage.h"

#include <functional>
#include <vector>

namespace fieldcal::testing {

/// A page as it looks in the middle of things.
struct Scene {
    const char* name;
    std::function<void(ViewsStage&)> enter;
};

/// Every page once, in the order of the workflow, each entered from the one before, as the application does it.
std::vector<Scene> story();
/// When something is wrong. No page follows these, so they need a stage of their own.
std::vector<Scene> endings();

}  // namespace fieldcal::testing
