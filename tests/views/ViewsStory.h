#pragma once

#include "tests/views/ViewsStage.h"

#include <functional>
#include <vector>

namespace fieldcal::testing {

/// A page in a typical situation.
struct Scene {
    const char* name;
    std::function<void(ViewsStage&)> enter;
};

/// Every page once, in the order of the workflow, each entered from the previous one as in the application.
std::vector<Scene> story();
/// The pages of errors. No page follows them, so each needs a new stage.
std::vector<Scene> endings();

}  // namespace fieldcal::testing
