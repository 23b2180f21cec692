#include "tools/StreamWatch.h"

#include <QStringList>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <optional>

namespace fieldcal {
namespace {

constexpr const char* kNames[] = {"left infrared", "right infrared", "depth", "third colour", "rear camera"};
constexpr const char* kIds[] = {"stream-left", "stream-right", "stream-depth", "stream-third", "stream-rear"};
/// The number of new images per second that the program needs of each stream. For infrared and colour this is a tenth
/// less than requested; depth may be delivered with every other infrared image, and the rear camera may expose twice as
/// long.
constexpr double kMinRates[] = {54, 54, 27, 27, 13};
/// An image older than this is not matched with another one.
constexpr double kOldestMs = 100;
constexpr double kTolerableOldShare = 0.02;
constexpr double kMinDeliveredShare = 0.9;
constexpr double kMovingShare = 0.4;  ///< share of new images below which the scene is static
constexpr double kBlankDeviation = 2.0;
constexpr int kLargestInfrared = 1023;

constexpr int kLargestShift = 48;
constexpr int kRowStep = 8;
constexpr int kMaxRowImages = 6;
constexpr double kTexturedShare = 0.8;  ///< lowest cost over mean cost above which rows show no texture

constexpr int kMinTimedSets = 60;

constexpr int kMotionStep = 8;
constexpr int kMaxLag = 14;
constexpr int kTolerableLag = 2;
constexpr double kMinCorrelation = 0.6;
constexpr int kMinMovingSets = 4;

/// Returns a matrix that shares the memory of the image.
cv::Mat matOf(const ImageFrame& image, int type) {
    if (image.empty()) return {};
    return {static_cast<int>(image.height()), static_cast<int>(image.width()), type,
            const_cast<std::uint8_t*>(image.bytes())};
}

bool same(const cv::Mat& a, const cv::Mat& b) {
    return a.size() == b.size() && a.type() == b.type() && std::memcmp(a.data, b.data, a.total() * a.elemSize()) == 0;
}

/// Returns one channel of every `step`-th pixel of an infrared, depth, colour (green) or luma image.
cv::Mat sparse(const cv::Mat& image, int step) {
    cv::Mat out(image.rows / step, image.cols / step, CV_32FC1);
    for (int y = 0; y < out.rows; ++y) {
        for (int x = 0; x < out.cols; ++x) {
            const int row = y * step, column = x * step;
            out.at<float>(y, x) = image.type() == CV_16UC1  ? image.at<std::uint16_t>(row, column)
                                  : image.type() == CV_8UC4 ? image.at<cv::Vec4b>(row, column)[1]
                                                            : image.at<std::uint8_t>(row, column);
        }
    }
    return out;
}

double meanDifference(const cv::Mat& a, const cv::Mat& b) {
    return a.size() == b.size() ? cv::norm(a, b, cv::NORM_L1) / static_cast<double>(a.total()) : 0;
}

/// Adds, for each shift, the difference between every eighth row and the following row moved by that shift.
void addRowCosts(const cv::Mat& image, std::vector<double>* costs) {
    const cv::Mat values = sparse(image, 1);
    costs->resize(2 * kLargestShift + 1, 0);
    const cv::Rect inside(kLargestShift, 0, values.cols - 2 * kLargestShift, 1);
    if (inside.width <= 0) return;
    for (int y = 0; y + 1 < values.rows; y += kRowStep) {
        const cv::Mat row = values.row(y)(inside);
        for (int shift = -kLargestShift; shift <= kLargestShift; ++shift) {
            const cv::Mat moved = values.row(y + 1)(inside + cv::Point(shift, 0));
            (*costs)[static_cast<std::size_t>(shift + kLargestShift)] += cv::norm(row, moved, cv::NORM_L1);
        }
    }
}

/// Returns the square root of the motion over three frame sets, so that streams with half the rate can be compared with
/// the others.
std::vector<double> smoothed(const std::vector<float>& motion) {
    std::vector<double> out(motion.size(), 0);
    for (std::size_t i = 1; i + 1 < motion.size(); ++i)
        out[i] = std::sqrt(static_cast<double>(motion[i - 1] + motion[i] + motion[i + 1]));
    return out;
}

double correlation(const std::vector<double>& a, const std::vector<double>& b, int lag) {
    double sumA = 0, sumB = 0, squaresA = 0, squaresB = 0, product = 0, count = 0;
    for (std::size_t i = kMaxLag; i + kMaxLag < a.size(); ++i) {
        const double x = a[i], y = b[static_cast<std::size_t>(static_cast<std::ptrdiff_t>(i) + lag)];
        sumA += x;
        sumB += y;
        squaresA += x * x;
        squaresB += y * y;
        product += x * y;
        ++count;
    }
    const double varianceA = squaresA - sumA * sumA / count, varianceB = squaresB - sumB * sumB / count;
    return varianceA > 0 && varianceB > 0 ? (product - sumA * sumB / count) / std::sqrt(varianceA * varianceB) : 0;
}

bool movesEnough(const std::vector<double>& motion) {
    if (motion.size() < 4 * kMaxLag) return false;
    const double largest = *std::max_element(motion.begin(), motion.end());
    const auto moving =
        std::count_if(motion.begin(), motion.end(), [largest](double value) { return value > 0.3 * largest; });
    const double mean = std::accumulate(motion.begin(), motion.end(), 0.0) / static_cast<double>(motion.size());
    return moving >= kMinMovingSets && largest > 2 * mean;
}

/// Returns the number of frame sets by which the second stream lags behind the first; none when the motion does not
/// determine it.
std::optional<int> lagBetween(const std::vector<double>& first, const std::vector<double>& second) {
    if (first.size() != second.size() || !movesEnough(first) || !movesEnough(second)) return std::nullopt;
    int best = 0;
    double highest = -1;
    for (int lag = -kMaxLag; lag <= kMaxLag; ++lag) {
        const double value = correlation(first, second, lag);
        if (value > highest) {
            highest = value;
            best = lag;
        }
    }
    if (highest < kMinCorrelation) return std::nullopt;
    return best;
}

}  // namespace

const char* StreamWatch::nameOf(std::size_t stream) {
    return kNames[stream];
}

void StreamWatch::setTiming(bool on) {
    timing_ = on;
    if (on) timedFrom_ = Clock::now();
}

void StreamWatch::take(const session::FrameImages& images, Clock::time_point now) {
    ++sets_;
    if (timing_) {
        ++timedSets_;
        timedTo_ = now;
    }
    follow(kLeft, matOf(images.infrared, CV_16UC1), now);
    follow(kRight, matOf(images.right, CV_16UC1), now);
    follow(kDepth, matOf(images.depth, CV_16UC1), now);
    follow(kThird, matOf(images.third, CV_8UC4), now);
    cv::Mat luma;
    if (!images.platform.empty()) {
        luma = cv::Mat(session::kPlatformHeight, session::kPlatformWidth, CV_8UC1,
                       const_cast<std::uint8_t*>(images.platform.data()));
    }
    follow(kRear, luma, now);
    if (!same(streams_[kLeft].last, streams_[kRight].last)) streams_[kRight].equalsLeft = false;
}

void StreamWatch::follow(std::size_t stream, const cv::Mat& image, Clock::time_point now) {
    Followed& followed = streams_[stream];
    followed.motion.push_back(0);
    if (image.empty()) return;
    StreamStatistics& seen = followed.seen;
    ++seen.delivered;
    seen.width = image.cols;
    seen.height = image.rows;
    if (!followed.last.empty() && same(image, followed.last)) return;
    const cv::Mat before = followed.last.empty() ? cv::Mat() : sparse(followed.last, kMotionStep);
    image.copyTo(followed.last);
    if (timing_) followed.timedMs.push_back(std::chrono::duration<double, std::milli>(now - timedFrom_).count());
    const cv::Mat present = sparse(image, kMotionStep);
    if (!before.empty()) {
        ++seen.changes;
        followed.motion.back() = static_cast<float>(meanDifference(before, present));
    }
    cv::Scalar mean, deviation;
    cv::meanStdDev(present, mean, deviation);
    seen.showsSomething = seen.showsSomething || deviation[0] >= kBlankDeviation;
    if (stream == kLeft || stream == kRight) {
        double largest = 0;
        cv::minMaxLoc(image, nullptr, &largest);
        seen.largest = std::max(seen.largest, static_cast<int>(largest));
    }
    if (followed.rowImages < kMaxRowImages && !timing_) {
        ++followed.rowImages;
        addRowCosts(image, &followed.rowCosts);
    }
}

StreamStatistics StreamWatch::statistics(std::size_t stream) const {
    const Followed& followed = streams_[stream];
    StreamStatistics seen = followed.seen;
    const std::vector<double>& times = followed.timedMs;
    if (times.size() < 2) return seen;
    const double count = static_cast<double>(times.size() - 1), mean = (times.back() - times.front()) / count;
    double squares = 0;
    for (std::size_t i = 1; i < times.size(); ++i) {
        squares += std::pow(times[i] - times[i - 1] - mean, 2);
        seen.oldestMs = std::max(seen.oldestMs, times[i] - times[i - 1]);
    }
    seen.newPerSecond = 1000 / mean;
    seen.jitterMs = std::sqrt(squares / count);
    return seen;
}

CheckLines StreamWatch::lines() const {
    CheckLines all;
    for (std::size_t stream = 0; stream < kStreamCount; ++stream) {
        if (stream != kRear || hasRearCamera_) all.push_back(streamLine(stream));
    }
    all.push_back(levelLine());
    all.push_back(rowLine());
    all.push_back(momentLine());
    return all;
}

CheckLine StreamWatch::streamLine(std::size_t stream) const {
    const StreamStatistics seen = statistics(stream);
    const Followed& followed = streams_[stream];
    const auto line = [&](Verdict verdict, const QString& text) {
        return CheckLine{kIds[stream], QString("images of the %1 stream").arg(kNames[stream]), verdict, text};
    };
    if (timedSets_ < kMinTimedSets) return line(Verdict::CannotTell, "too few frame sets were grabbed");
    const QString size = QString("%1 x %2").arg(seen.width).arg(seen.height);
    const double share = static_cast<double>(seen.delivered) / sets_;
    const double leastShare = stream == kRear ? kMinDeliveredShare / 4 : kMinDeliveredShare;
    if (seen.delivered == 0) return line(Verdict::DoesNotFit, "the stream delivers no images");
    if (share < leastShare) {
        return line(Verdict::DoesNotFit,
                    QString("only %1 % of the frame sets contain an image").arg(100 * share, 0, 'f', 0));
    }
    if (stream != kDepth && !seen.showsSomething) return line(Verdict::DoesNotFit, "the images are blank");
    if (stream == kRight && followed.equalsLeft)
        return line(Verdict::DoesNotFit, "the images are identical to the left ones");
    const int others = std::max(streams_[kLeft].seen.changes, streams_[kThird].seen.changes);
    const bool isFrozen = seen.changes == 0 && others > 0 && (stream != kDepth || seen.showsSomething);
    if (isFrozen) return line(Verdict::DoesNotFit, "the image is frozen while other streams change");

    const double timed = static_cast<double>(followed.timedMs.size());
    if (timed < kMovingShare * kMinRates[stream] / kMinRates[kLeft] * timedSets_) {
        return line(Verdict::CannotTell, size + ", but the images repeat, so the frame rate cannot be measured");
    }
    int old = 0;
    for (std::size_t i = 1; i < followed.timedMs.size(); ++i)
        old += followed.timedMs[i] - followed.timedMs[i - 1] > kOldestMs ? 1 : 0;
    const bool isOld = old > kTolerableOldShare * timed;
    const QString text = QString("%1, %2 new images per second, jitter %3 ms, longest interval %4 ms")
                             .arg(size)
                             .arg(seen.newPerSecond, 0, 'f', 1)
                             .arg(seen.jitterMs, 0, 'f', 1)
                             .arg(seen.oldestMs, 0, 'f', 0);
    return line(verdictOf(seen.newPerSecond >= kMinRates[stream] && !isOld), text);
}

CheckLine StreamWatch::levelLine() const {
    CheckLine line{"infrared-levels", "infrared values have ten bits", Verdict::CannotTell,
                   "there is no infrared image"};
    const int largest = std::max(streams_[kLeft].seen.largest, streams_[kRight].seen.largest);
    if (largest == 0) return line;
    line.verdict = verdictOf(largest <= kLargestInfrared);
    line.text = QString("the largest value is %1").arg(largest);
    return line;
}

/// Returns the number of pixels by which each row is shifted to the right of the previous one; the largest integer when
/// it cannot be determined.
int StreamWatch::rowShift(const Followed& stream) const {
    const std::vector<double>& costs = stream.rowCosts;
    if (costs.empty()) return std::numeric_limits<int>::max();
    const auto best = std::min_element(costs.begin(), costs.end());
    const double mean = std::accumulate(costs.begin(), costs.end(), 0.0) / static_cast<double>(costs.size());
    if (!(*best < kTexturedShare * mean)) return std::numeric_limits<int>::max();
    return static_cast<int>(best - costs.begin()) - kLargestShift;
}

CheckLine StreamWatch::rowLine() const {
    CheckLine line{"packed-rows", "rows are stored without gaps", Verdict::CannotTell, "no image has enough texture"};
    QStringList packed, shifted;
    for (std::size_t stream = 0; stream < kStreamCount; ++stream) {
        const int shift = rowShift(streams_[stream]);
        if (shift == std::numeric_limits<int>::max()) continue;
        if (shift == 0) packed << kNames[stream];
        if (shift != 0) shifted << QString("%1 (by %2 pixels per row)").arg(kNames[stream]).arg(std::abs(shift));
    }
    if (!shifted.isEmpty()) {
        line.verdict = Verdict::DoesNotFit;
        line.text = "rows have gaps: " + shifted.join(", ");
    } else if (packed.contains(kNames[kLeft]) && packed.contains(kNames[kThird])) {
        line.verdict = Verdict::Fits;
        line.text = "rows are packed: " + packed.join(", ");
    }
    return line;
}

CheckLine StreamWatch::momentLine() const {
    CheckLine line{"same-moment", "the streams are synchronous", Verdict::CannotTell, "there is too little motion"};
    const std::vector<double> left = smoothed(streams_[kLeft].motion);
    QStringList lags;
    bool late = false;
    for (const std::size_t stream : {kRight, kDepth, kThird, kRear}) {
        const std::optional<int> lag = lagBetween(left, smoothed(streams_[stream].motion));
        if (!lag) continue;
        lags << QString("%1 %2").arg(kNames[stream]).arg(*lag);
        late = late || std::abs(*lag) > kTolerableLag;
    }
    if (lags.isEmpty()) return line;
    line.verdict = verdictOf(!late);
    line.text = "delay behind the left infrared stream, in frame sets: " + lags.join(", ");
    return line;
}

}  // namespace fieldcal
