#pragma once

#include "tests/views/ViewsStage.h"

#include <QColor>

#include <cmath>
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

/// The relative luminance of sRGB, 0 to 1.
inline double luminance(const QColor& colour) {
    const auto linear = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace fieldcal::testing
