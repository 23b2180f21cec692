#include "devices/windows/CaptureFormat.h"

#include "devices/windows/ComResult.h"

#include <QtGlobal>

#include <cmath>
#include <cstring>
#include <limits>
#include <mfapi.h>
#include <utility>

namespace fieldcal {
namespace {

using Microsoft::WRL::ComPtr;

constexpr DWORD kMaxTypes = 10000;  // limit for a device that never reports the end of its list

bool subtypeOf(const std::string& name, GUID* out) {
    if (name.size() != sizeof out->Data1) return false;
    *out = MFVideoFormat_Base;
    std::memcpy(&out->Data1, name.data(), sizeof out->Data1);
    return true;
}

/// Rates a media type. Lower is better; infinite means unusable.
double costOf(IMFMediaType& type, const CaptureFormat& wanted, const GUID& subtype) {
    constexpr double kUseless = std::numeric_limits<double>::infinity();
    UINT32 width = 0;
    UINT32 height = 0;
    if (FAILED(MFGetAttributeSize(&type, MF_MT_FRAME_SIZE, &width, &height))) return kUseless;
    if (width != static_cast<UINT32>(wanted.width) || height != static_cast<UINT32>(wanted.height)) return kUseless;
    double cost = 0;
    UINT32 frames = 0;
    UINT32 seconds = 0;
    if (wanted.framesPerSecond > 0 && SUCCEEDED(MFGetAttributeRatio(&type, MF_MT_FRAME_RATE, &frames, &seconds))) {
        // Rounding makes 29.97 as good as 30.
        cost += std::round(std::abs(frames / std::fmax(seconds, 1.0) - wanted.framesPerSecond));
    }
    GUID own{};
    if (FAILED(type.GetGUID(MF_MT_SUBTYPE, &own)) || own != subtype) cost += 0.5;
    return cost;
}

HRESULT describe(IMFMediaType& type, const CaptureFormat& wanted, const GUID& subtype) {
    const auto width = static_cast<UINT32>(wanted.width);
    const auto height = static_cast<UINT32>(wanted.height);
    const auto rate = static_cast<UINT32>(wanted.framesPerSecond);
    HRESULT result = type.SetGUID(MF_MT_MAJOR_TYPE, MFMediaType_Video);
    if (SUCCEEDED(result)) result = type.SetGUID(MF_MT_SUBTYPE, subtype);
    if (SUCCEEDED(result)) result = MFSetAttributeSize(&type, MF_MT_FRAME_SIZE, width, height);
    if (SUCCEEDED(result)) result = MFSetAttributeRatio(&type, MF_MT_PIXEL_ASPECT_RATIO, 1, 1);
    if (SUCCEEDED(result)) result = type.SetUINT32(MF_MT_INTERLACE_MODE, MFVideoInterlace_Progressive);
    if (SUCCEEDED(result)) result = type.SetUINT32(MF_MT_ALL_SAMPLES_INDEPENDENT, TRUE);
    if (SUCCEEDED(result) && rate > 0) result = MFSetAttributeRatio(&type, MF_MT_FRAME_RATE, rate, 1);
    return result;
}

}  // namespace

ComPtr<IMFMediaType> chooseDeviceType(IMFCaptureSource& source, DWORD stream, const CaptureFormat& wanted) {
    GUID subtype{};
    ComPtr<IMFMediaType> best;
    double bestCost = std::numeric_limits<double>::infinity();
    for (DWORD i = 0; subtypeOf(wanted.subtype, &subtype) && i < kMaxTypes; ++i) {
        ComPtr<IMFMediaType> type;
        if (FAILED(source.GetAvailableDeviceMediaType(stream, i, type.GetAddressOf())) || !type) break;
        const double cost = costOf(*type.Get(), wanted, subtype);
        if (cost >= bestCost) continue;
        bestCost = cost;
        best = std::move(type);
    }
    if (!best) qInfo("Rear camera: it has no pictures of %d x %d", wanted.width, wanted.height);
    return best;
}

ComPtr<IMFMediaType> sinkType(MediaSystem& system, const CaptureFormat& wanted) {
    GUID subtype{};
    ComPtr<IMFMediaType> type;
    if (!subtypeOf(wanted.subtype, &subtype) ||
        !succeeded(system.createMediaType(type.GetAddressOf()), "MFCreateMediaType") ||
        !succeeded(describe(*type.Get(), wanted, subtype), "describing a media type")) {
        return nullptr;
    }
    return type;
}

}  // namespace fieldcal
