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

/// Statistics of one stream.
struct StreamStatistics {
    int width = 0, height = 0;    ///< of the last image
    int delivered = 0;            ///< number of frame sets with an image
    int changes = 0;              ///< images that differ from the previous one
    int largest = 0;              ///< largest value of an infrared image
    double newPerSecond = 0;      ///< new images per second while timing was on
    double jitterMs = 0;          ///< standard deviation of the time between these images
    double oldestMs = 0;          ///< longest time from one new image to the next
    bool showsSomething = false;  ///< whether any image was not uniform
};

/// Observes the images of all streams over frame sets: sizes, rates, ages, whether rows are packed, and whether the
/// streams show the same moment. One thread.
class StreamWatch {
public:
    using Clock = std::chrono::steady_clock;

    explicit StreamWatch(bool hasRearCamera) : hasRearCamera_(hasRearCamera) {}

    /// Starts or ends timing. While it is on, frame sets have to be grabbed as fast as the module delivers them.
    void setTiming(bool on);
    /// Evaluates a frame set that was grabbed at `now`. A stream without an image in this set is empty.
    void take(const session::FrameImages& images, Clock::time_point now);

    /// Returns the number of frame sets so far.
    int sets() const { return sets_; }
    StreamStatistics statistics(std::size_t stream) const;
    /// Returns one line for each stream, then the lines about rows and moments.
    CheckLines lines() const;

    static const char* nameOf(std::size_t stream);

private:
    struct Followed {
        StreamStatistics seen;
        cv::Mat last;
        std::vector<float> motion;     ///< mean absolute change of the pixel values, for each frame set
        std::vector<double> timedMs;   ///< arrival of new images since timing began
        std::vector<double> rowCosts;  ///< for each shift between one row and the next
        int rowImages = 0;
        bool equalsLeft = true;
    };

    void follow(std::size_t stream, const cv::Mat& image, Clock::time_point now);
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
