#include "report/Overlay.h"

#include <QBuffer>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace fieldcal {
namespace {

constexpr int kWindowStep = 16;
/// Distances are interpolated on a coarse grid from the matches, weighted by their proximity.
constexpr int kDistanceStep = 16;
constexpr double kDistanceReachPx = 24;
constexpr double kEdgeBlurPx = 0.9;
constexpr double kContrastReachPx = 14;
/// The strength of an edge that is drawn at full intensity, relative to the mean strength around it; and the lower
/// bound of that mean.
constexpr double kFullEdge = 2.6;
constexpr double kWeakestContrast = 6;

/// Interpolates inverse depths, 1/m, over the whole infrared image.
cv::Mat interpolatedInverseDepth(const vq::SolutionEvidence& evidence) {
    const cv::Size size = evidence.infrared.size();
    cv::Mat coarse((size.height + kDistanceStep - 1) / kDistanceStep, (size.width + kDistanceStep - 1) / kDistanceStep,
                   CV_32F);
    for (int row = 0; row < coarse.rows; ++row) {
        for (int column = 0; column < coarse.cols; ++column) {
            double sum = 0, weights = 1e-12;
            for (const vq::EvidenceMatch& match : evidence.matches) {
                if (match.still != evidence.shownStill) continue;
                const double dx = match.infrared.x - static_cast<float>((column + 0.5) * kDistanceStep);
                const double dy = match.infrared.y - static_cast<float>((row + 0.5) * kDistanceStep);
                const double weight =
                    1 / (1 + std::pow((dx * dx + dy * dy) / (kDistanceReachPx * kDistanceReachPx), 2));
                sum += weight * static_cast<double>(match.inverseDepth);
                weights += weight;
            }
            coarse.at<float>(row, column) = static_cast<float>(sum / weights);
        }
    }
    cv::Mat fine;
    cv::resize(coarse, fine, {coarse.cols * kDistanceStep, coarse.rows * kDistanceStep}, 0, 0, cv::INTER_LINEAR);
    return fine(cv::Rect({0, 0}, size));
}

/// Projects the colour image into the view of the infrared camera.
cv::Mat colourInWindow(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation, const cv::Rect& window) {
    const cv::Mat inverseDepth = interpolatedInverseDepth(evidence);
    cv::Mat places(window.size(), CV_32FC2);
    for (int row = 0; row < window.height; ++row) {
        for (int column = 0; column < window.width; ++column) {
            const cv::Point at = window.tl() + cv::Point(column, row);
            const Eigen::Vector2d model = evidence.projection.colourPoint(
                rotation, cv::Point2f(at), static_cast<double>(inverseDepth.at<float>(at)));
            places.at<cv::Point2f>(row, column) = evidence.projection.cameras.deliveredColourPoint(
                {static_cast<float>(model.x()), static_cast<float>(model.y())});
        }
    }
    cv::Mat seen;
    cv::remap(evidence.grey, seen, places, cv::noArray(), cv::INTER_LINEAR, cv::BORDER_REPLICATE);
    return seen;
}

/// Returns the strength of edges, 0 to 255, normalised by the contrast around them.
cv::Mat edgesOf(const cv::Mat& image) {
    cv::Mat smooth, dx, dy, strength, around;
    cv::GaussianBlur(image, smooth, {0, 0}, kEdgeBlurPx);
    cv::Sobel(smooth, dx, CV_32F, 1, 0);
    cv::Sobel(smooth, dy, CV_32F, 0, 1);
    cv::magnitude(dx, dy, strength);
    cv::GaussianBlur(strength, around, {0, 0}, kContrastReachPx);
    cv::Mat drawn;
    cv::divide(strength, kFullEdge * (around + kWeakestContrast), drawn);
    // Squaring suppresses noise.
    cv::multiply(drawn, drawn, drawn);
    drawn.convertTo(drawn, CV_8U, 255);
    return drawn;
}

}  // namespace

cv::Rect mostDetailedWindow(const vq::SolutionEvidence& evidence, const cv::Size& size) {
    const cv::Size whole = evidence.infrared.size();
    const cv::Size part(std::min(size.width, whole.width), std::min(size.height, whole.height));
    cv::Rect best({0, 0}, part);
    int most = -1;
    for (int y = 0; y + part.height <= whole.height; y += kWindowStep) {
        for (int x = 0; x + part.width <= whole.width; x += kWindowStep) {
            const cv::Rect window({x, y}, part);
            const auto inside = [&](const vq::EvidenceMatch& match) {
                return match.still == evidence.shownStill && window.contains(cv::Point(match.infrared));
            };
            const auto count =
                static_cast<int>(std::count_if(evidence.matches.begin(), evidence.matches.end(), inside));
            if (count > most) best = window;
            most = std::max(most, count);
        }
    }
    return best;
}

QImage edgeOverlay(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation, const cv::Rect& window) {
    const cv::Mat infrared = edgesOf(evidence.infrared(window));
    const cv::Mat colour = edgesOf(colourInWindow(evidence, rotation, window));
    QImage image(window.width, window.height, QImage::Format_RGB888);
    for (int row = 0; row < window.height; ++row) {
        uchar* out = image.scanLine(row);
        for (int column = 0; column < window.width; ++column, out += 3) {
            out[0] = static_cast<uchar>(255 - colour.at<std::uint8_t>(row, column));
            out[1] = out[2] = static_cast<uchar>(255 - infrared.at<std::uint8_t>(row, column));
        }
    }
    return image;
}

QImage smallInfrared(const vq::SolutionEvidence& evidence, int width) {
    cv::Mat small = evidence.infrared;
    if (small.cols > width)
        cv::resize(evidence.infrared, small, {width, small.rows * width / small.cols}, 0, 0, cv::INTER_AREA);
    return QImage(small.data, small.cols, small.rows, static_cast<int>(small.step), QImage::Format_Grayscale8).copy();
}

QString dataUri(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return "data:image/png;base64," + QString::fromLatin1(bytes.toBase64());
}

}  // namespace fieldcal
