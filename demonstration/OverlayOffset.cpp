#include "demonstration/OverlayOffset.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace fieldcal::demonstration {
namespace {

constexpr float kPictureShare = 0.4F;  ///< share of the camera image where there is depth
constexpr int kReach = 100;            ///< pixels, in either direction
constexpr double kMinDifference = 12;
constexpr double kEdgeScale = 1.5;
constexpr double kFaintEdge = 30;

/// The part between the upper and lower panels, where the page shows only the camera image.
cv::Rect clearPart(const cv::Size& screen) {
    return {0, screen.height * 20 / 100, screen.width, screen.height * 58 / 100};
}

cv::Mat toMat(const QImage& image) {
    const QImage rgb = image.convertToFormat(QImage::Format_BGR888);
    return cv::Mat(rgb.height(), rgb.width(), CV_8UC3, const_cast<uchar*>(rgb.constBits()),
                   static_cast<std::size_t>(rgb.bytesPerLine()))
        .clone();
}

/// The image as the page shows it: as wide as the screen, cut to the middle of its height.
cv::Mat asShown(const cv::Mat& picture, const cv::Size& screen) {
    cv::Mat wide;
    const int height = screen.width * picture.rows / picture.cols;
    cv::resize(picture, wide, {screen.width, height}, 0, 0, cv::INTER_LINEAR);
    return wide(cv::Rect(0, (height - screen.height) / 2, screen.width, screen.height));
}

cv::Mat texture(const cv::Mat& colours) {
    cv::Mat grey, smooth, fine;
    cv::cvtColor(colours, grey, cv::COLOR_BGR2GRAY);
    grey.convertTo(fine, CV_32F);
    cv::GaussianBlur(fine, smooth, {}, 3);
    return fine - smooth;
}

/// Edges independent of their contrast, as vectors with twice their direction: edges of opposite contrast are equal,
/// and perpendicular edges are opposite.
cv::Mat edges(const cv::Mat& colours) {
    cv::Mat grey, dx, dy;
    cv::cvtColor(colours, grey, cv::COLOR_BGR2GRAY);
    grey.convertTo(grey, CV_32F);
    cv::GaussianBlur(grey, grey, {}, kEdgeScale);
    cv::Sobel(grey, dx, CV_32F, 1, 0);
    cv::Sobel(grey, dy, CV_32F, 0, 1);
    const cv::Mat squares = dx.mul(dx) + dy.mul(dy) + kFaintEdge * kFaintEdge;
    cv::Mat vectors;
    cv::merge(std::vector<cv::Mat>{(dx.mul(dx) - dy.mul(dy)) / squares, 2 * dx.mul(dy) / squares}, vectors);
    return vectors;
}

/// The colours of the depth alone, grey where there is none: the screen without the share of the camera image.
cv::Mat depthAlone(const cv::Mat& seen, const cv::Mat& picture) {
    cv::Mat difference, mask, largest;
    cv::absdiff(seen, picture, difference);
    std::vector<cv::Mat> channels;
    cv::split(difference, channels);
    largest = cv::max(cv::max(channels[0], channels[1]), channels[2]);
    cv::medianBlur(largest, largest, 5);
    mask = largest < kMinDifference;
    cv::Mat colours, share;
    seen.convertTo(colours, CV_32F);
    picture.convertTo(share, CV_32F, kPictureShare);
    colours = (colours - share) / (1 - kPictureShare);
    colours.convertTo(colours, CV_8U);
    colours.setTo(cv::Scalar::all(128), mask);
    cv::medianBlur(colours, colours, 5);
    return colours;
}

double agreement(const cv::Mat& a, const cv::Mat& b) {
    return a.dot(b) / (cv::norm(a) * cv::norm(b));
}

/// Position of the vertex of the parabola through three neighbours, relative to the middle one.
double vertex(double before, double at, double after) {
    const double bend = before - 2 * at + after;
    return bend < 0 ? (before - after) / (2 * bend) : 0;
}

}  // namespace

OverlayOffset measureOverlayOffset(const QImage& screen, const std::vector<cv::Mat>& pictures) {
    const cv::Mat whole = toMat(screen);
    const cv::Rect part = clearPart(whole.size());
    const cv::Mat seen = whole(part);
    cv::Mat picture;
    double best = -1;
    for (const cv::Mat& candidate : pictures) {
        const cv::Mat shown = asShown(candidate, whole.size())(part);
        const double alike = agreement(texture(seen), texture(shown));
        if (alike > best) picture = shown;
        best = std::max(best, alike);
    }
    const cv::Rect inner(kReach, kReach, seen.cols - 2 * kReach, seen.rows - 2 * kReach);
    cv::Mat found;
    cv::matchTemplate(edges(picture), edges(depthAlone(seen, picture))(inner), found, cv::TM_CCORR_NORMED);
    OverlayOffset offset;
    cv::Point at;
    cv::minMaxLoc(found, nullptr, &offset.correlation, nullptr, &at);
    at.x = std::clamp(at.x, 1, found.cols - 2);
    at.y = std::clamp(at.y, 1, found.rows - 2);
    const auto value = [&](int x, int y) -> double { return found.at<float>(at.y + y, at.x + x); };
    // Offset from the drawn edges to their correct position.
    offset.pixels = {kReach - at.x - vertex(value(-1, 0), value(0, 0), value(1, 0)),
                     kReach - at.y - vertex(value(0, -1), value(0, 0), value(0, 1))};
    return offset;
}

}  // namespace fieldcal::demonstration
