#pragma once

#include "session/RecordedSession.h"
#include "tools/CheckLine.h"

#include <opencv2/core.hpp>

#include <array>
#include <chrono>
#include <cstddef>
#include <vector>

namespace fieldcal {

enum StreamIndex : std::size_t { kLeft, kRight, kDepth, kThird, kRear, kStreamCount };

/// What was seen of one stream.
struct StreamStatistics {
    int width = 0, height = 0;  ///< of its last picture
    int delivered = 0;          ///< frame sets with a picture
    int changes = 0;            ///< pictures that differ from the one before
    int largest = 0;            ///< the largest value of an infrared picture
    double newPerSecond = 0;    ///< pictures that differ from the one before, while the time was taken
    double jitterMs = 0;        ///< one deviation of the time between them
    double oldestMs = 0;        ///< how old a picture was at most when the next one came
    bool showsSomething = false;
};

/// Follows the pictures of all streams over frame sets: sizes, rates, ages, whether rows are packed, and whether the
/// streams show the same moment. One thread.
class StreamWatch {
public:
    using Clock = std::chrono::steady_clock;

    explicit StreamWatch(bool hasRearCamera) : hasRearCamera_(hasRearCamera) {}

    /// From here on frame sets come as fast as the module delivers them, or no longer.
    void setTiming(bool on);
    void take(const session::FramePictures& pictures, Clock::time_point now);

    int sets() const { return sets_; }
    StreamStatistics statistics(std::size_t stream) const;
    /// One for each stream, then those about rows and moments.
    CheckLines lines() const;

    static const char* nameOf(std::size_t stream);

private:
    struct Followed {
        StreamStatistics seen;
        cv::Mat last;
        std::vector<float> motion;  ///< by frame set
        std::vector<double> timedMs;
        std::vector<double> rowCosts;  ///< by shift between one row and the next
        int rowPictures = 0;
        bool equalsLeft = true;
    };

    void follow(std::size_t stream, const cv::Mat& picture, Clock::time_point now);
    CheckLine streamLine(std::size_t stream) const;
    CheckLine rowLine() const;
    CheckLine levelLine() const;
    CheckLine momentLine() const;
    int rowShift(const Followed& stream) const;

    const bool hasRearCamera_;
    std::array<Followed, kStreamCount> streams_;
    int sets_ = 0;
    int timedSets_ = 0;
    bool timing_ = false;
    Clock::time_point timedFrom_, timedTo_;
};

}  // namespace fieldcal
