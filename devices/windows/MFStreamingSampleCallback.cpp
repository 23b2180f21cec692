#include "devices/windows/MFStreamingSampleCallback.h"

#include "devices/windows/ComResult.h"

#include <cstdio>
#include <mfobjects.h>
#include <utility>
#include <wrl/client.h>

namespace fieldcal {
namespace {

using Microsoft::WRL::ComPtr;

const HRESULT kInvalidHandle = HRESULT_FROM_WIN32(ERROR_INVALID_HANDLE);
constexpr double kTicksPerSecond = 1e7;
/// MFSampleExtension_DeviceTimestamp, which this compiler's headers lack.
const GUID kDeviceTimestamp = {0x8f3e35e7, 0x2dcd, 0x4887, {0x86, 0x22, 0x2a, 0x58, 0xba, 0xa6, 0x52, 0xb0}};

double deviceSeconds(IMFSample& sample) {
    UINT64 ticks = 0;
    LONGLONG presented = 0;
    if (FAILED(sample.GetUINT64(kDeviceTimestamp, &ticks)) && SUCCEEDED(sample.GetSampleTime(&presented))) {
        ticks = static_cast<UINT64>(presented);
    }
    return static_cast<double>(ticks) / kTicksPerSecond;
}

}  // namespace

void ImageOutlet::set(RearCameraSink* sink) {
    const std::lock_guard lock(mutex_);
    sink_ = sink;
}

void ImageOutlet::deliver(const std::uint8_t* nv12, std::int32_t width, std::int32_t height, double timeSeconds) {
    const std::lock_guard lock(mutex_);
    if (sink_ != nullptr) sink_->onImage(nv12, width, height, timeSeconds);
}

MFStreamingSampleCallback::MFStreamingSampleCallback(std::shared_ptr<ImageOutlet> outlet, std::int32_t width,
                                                     std::int32_t height)
    : outlet_(std::move(outlet)), width_(width), height_(height) {}

HRESULT MFStreamingSampleCallback::OnSample(IMFSample* sample) {
    if (sample == nullptr) return kInvalidHandle;
    ComPtr<IMFMediaBuffer> buffer;
    const HRESULT result = sample->ConvertToContiguousBuffer(buffer.GetAddressOf());
    if (FAILED(result)) {
        std::printf("Failed to get the media buffer %d\n", frameCounter_);
        return result;
    }
    ++frameCounter_;
    deliver(*buffer.Get(), deviceSeconds(*sample));
    return S_OK;
}

/// A locked buffer has no gaps between its rows, whatever the memory layout behind it.
void MFStreamingSampleCallback::deliver(IMFMediaBuffer& buffer, double timeSeconds) {
    BYTE* bytes = nullptr;
    DWORD length = 0;
    if (!succeeded(buffer.Lock(&bytes, nullptr, &length), "IMFMediaBuffer::Lock")) return;
    const auto pixels = static_cast<DWORD>(width_) * static_cast<DWORD>(height_);
    if (length >= pixels + pixels / 2) outlet_->deliver(bytes, width_, height_, timeSeconds);
    buffer.Unlock();
}

}  // namespace fieldcal
