#pragma once

#include "camera/ImageFrame.h"
#include "devices/PlatformCalibration.h"
#include "devices/PlatformCameraControl.h"
#include "kxapi/KXAPI.h"

#include <opencv2/core.hpp>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace fieldcal {

/// The rear camera's way from its newest NV12 picture into the colour record: conversion, rectification, scaling.
/// Each picture goes that way once; without a new one the record stays as it is. It turns black when there never was
/// a picture, or none came during a second of grabbing.
class PlatformPicture {
public:
    using Clock = std::chrono::steady_clock;

    /// Takes the newest picture, if any, and rectifies it. `now` never goes back.
    void fetch(CPlatformCameraControl& camera, const PlatformCalibration& calibration,
               KXRectifyBGRA8ToBGRA8Function rectify, Clock::time_point now);

    /// The picture that the last `fetch` took, as the camera delivered it; null when it took none. The bytes belong to
    /// the camera and stay until the next `fetch`.
    const std::uint8_t* nv12() const { return nv12_; }

    /// Whether the last `fetch` brought another picture than the one before: with another time stamp and other bytes.
    bool changed() const { return changed_; }
    /// When the newest picture reached this program.
    Clock::time_point arrived() const { return arrived_; }

    /// The camera delivered once, and then nothing during some seconds of grabbing.
    bool hasDied() const;

    /// Scales what `fetch` left, when that is new, into the record. Nothing happens for an implausible size.
    void deliver(std::int32_t width, std::int32_t height, ImageFrame32* record);

private:
    bool take(CPlatformCameraControl& camera);
    void countSilence(Clock::time_point now);
    void blacken();

    const std::uint8_t* nv12_ = nullptr;
    std::vector<std::uint8_t> lastNv12_;
    double lastTimeSeconds_ = 0;
    Clock::time_point arrived_;
    bool changed_ = false;
    cv::Mat raw_;
    cv::Mat working_;
    cv::Mat scaled_;
    bool isNew_ = false;  ///< `working_` holds what the record does not hold yet
    bool black_ = false;
    bool everTaken_ = false;
    std::optional<Clock::time_point> lastFetch_;
    Clock::duration silence_{};
};

}  // namespace fieldcal
