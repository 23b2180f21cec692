#pragma once

#include "engine/AttemptRecord.h"
#include "engine/CrossModalMatcher.h"
#include "engine/DistanceMeter.h"
#include "engine/ImagePairRecord.h"
#include "engine/MatchGrid.h"
#include "engine/RegistrationContext.h"
#include "engine/RotationEstimator.h"
#include "engine/SensorCalibratorParameters.h"

#include <opencv2/core.hpp>

#include <atomic>
#include <mutex>
#include <optional>
#include <vector>

namespace vq {

/// Point lists of one pair; element i of one list matches element i of the other. Pixels of the delivered images.
struct MatchLists {
    std::vector<cv::Point2f> colour;
    std::vector<cv::Point2f> infrared;
    std::vector<cv::Point2f> exactInfrared;  ///< after verification, without the quantisation error of `infrared`
};

/// The images of a selected pair. Infrared, right infrared and depth have 2 bytes per pixel, colour has 4. The last two
/// are empty where the module has none.
struct SelectedImages {
    ImagePairRecord infrared, colour, right, depth;
    float motionPx = 0;  ///< motion of the infrared image to the next frame
};

/// The core of the engine: turns prepared pairs into correspondences and decides when the estimated rotation is stable.
///
/// Locks are taken in this order: the calibrator's own, the grid's, the registration's. The calibrator's lock is held
/// for a whole decision; `goodSolution` and `outOfRange` may be read meanwhile from any thread.
class SensorCalibrator {
public:
    SensorCalibrator(RegistrationContext& context, const SensorCalibratorParameters& parameters);

    /// Sets up the search areas and the estimation about the registration's current angles. The grid keeps its matches.
    void setup();
    /// The stereo baseline found by an earlier calibration of the module, metres; 0 for none. Takes effect with the
    /// next `setup`.
    void setRememberedBaseline(double metres) { rememberedBaselineM_ = metres; }
    /// Converts the selected pair. Returns false when the infrared or colour image does not have the size of its
    /// camera.
    bool prepare(const SelectedImages& images);
    /// Matches and verifies the prepared pair and adds it to the grid. The lists of the pair are replaced; with `keep`
    /// set, the lists before and after verification are copied to the given pointers, which may be null.
    void generateMatches(bool keep = false, MatchLists* beforeVerification = nullptr,
                         MatchLists* afterVerification = nullptr);
    /// Returns whether enough cells are filled for an estimation.
    bool hasEnoughFilledCells() const;
    /// Makes one stability decision, whose result is read with `goodSolution`.
    void tryDetermineStableSolution();
    /// Discards all correspondences, candidates and counters. Camera parameters and registration stay.
    void reset();

    void setStopFlag(const std::atomic<bool>* stop) { estimator_.setStopFlag(stop); }
    const MatchLists& matches() const { return matches_; }
    const MatchGrid& grid() const { return grid_; }
    const PairStatistics& statistics() const { return matcher_.statistics(); }
    const SensorCalibratorParameters& parameters() const { return parameters_; }
    bool frameUsable() const { return frameUsable_; }
    bool goodSolution() const { return goodSolution_; }
    bool outOfRange() const { return outOfRange_; }
    bool busy() const { return recordingBusy_ || decisionBusy_; }
    int attemptCount() const { return attemptCount_; }
    /// Quality of the recorded solution; none unless the solution comes from the final fit.
    std::optional<SolutionQuality> quality() const { return quality_; }
    ParallaxReport parallax() const { return record_.report(); }
    /// The evidence for the recorded solution; none where `quality` is none, or when the pairs have been discarded
    /// since.
    std::optional<SolutionEvidence> evidence() const { return quality_ ? record_.evidence() : std::nullopt; }

private:
    Projection projection() const;
    std::vector<ParallaxShift> possibleShifts(const std::vector<cv::Point2f>& infraredCorners) const;
    void measureDistances(std::vector<MeasuredPlace>* matches, std::vector<MeasuredPlace>* texturedPlaces);
    bool isFarAway(const MeasuredPlace& place) const;
    void appendToAttempt();
    void decide();
    bool isAcceptable(const Eigen::Vector3d& anglesRad) const;
    void recordSolution();
    void countFailure();

    RegistrationContext& context_;
    const SensorCalibratorParameters parameters_;
    CrossModalMatcher matcher_;
    MatchGrid grid_;
    RotationEstimator estimator_;
    Projection projection_;
    Eigen::Matrix3d initialRotation_ = Eigen::Matrix3d::Identity();  ///< with which the attempt started
    double rememberedBaselineM_ = 0;
    DistanceMeter meter_;
    AttemptRecord record_{meter_};
    float motionPx_ = 0;  ///< motion of the prepared pair
    MatchLists matches_;
    bool frameUsable_ = false;

    std::mutex lock_;
    int attemptCount_ = 0;
    int failureStreak_ = 0;
    std::atomic<bool> goodSolution_{false};
    std::atomic<bool> outOfRange_{false};
    std::atomic<bool> recordingBusy_{false};
    std::atomic<bool> decisionBusy_{false};
    std::optional<SolutionQuality> quality_;
};

}  // namespace vq
