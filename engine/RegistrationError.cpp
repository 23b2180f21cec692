#include "engine/RegistrationError.h"

#include <algorithm>
#include <vector>

namespace vq {
namespace {

constexpr int kStepPx = 16;

}  // namespace

double registrationErrorPx(const Projection& projection, const Eigen::Matrix3d& estimated, const Eigen::Matrix3d& truth,
                           double ownInverseDepth, double trueInverseDepth) {
    const fieldcal::CameraModel& infrared = projection.cameras.infrared;
    std::vector<double> errors;
    for (int y = kStepPx / 2; y < infrared.height; y += kStepPx) {
        for (int x = kStepPx / 2; x < infrared.width; x += kStepPx) {
            const cv::Point2f place(static_cast<float>(x), static_cast<float>(y));
            errors.push_back((projection.colourPoint(estimated, place, ownInverseDepth) -
                              projection.colourPoint(truth, place, trueInverseDepth))
                                 .norm());
        }
    }
    if (errors.empty()) return 0;
    const auto middle = errors.begin() + static_cast<std::ptrdiff_t>(errors.size() / 2);
    std::nth_element(errors.begin(), middle, errors.end());
    return *middle;
}

}  // namespace vq
