#include "devices/windows/CaptureStreams.h"

#include "devices/windows/ComResult.h"

#include <QtGlobal>

#include <utility>

namespace fieldcal {
namespace {

using Microsoft::WRL::ComPtr;

constexpr auto kPreviewStream = static_cast<DWORD>(MF_CAPTURE_ENGINE_PREFERRED_SOURCE_STREAM_FOR_VIDEO_PREVIEW);
constexpr auto kRecordStream = static_cast<DWORD>(MF_CAPTURE_ENGINE_PREFERRED_SOURCE_STREAM_FOR_VIDEO_RECORD);
constexpr auto kPhotoStream = static_cast<DWORD>(MF_CAPTURE_ENGINE_PREFERRED_SOURCE_STREAM_FOR_PHOTO);

}  // namespace

CaptureStreams::CaptureStreams(MediaSystem& system, IMFCaptureEngine& engine) : system_(system), engine_(&engine) {}

template <typename Sink>
ComPtr<Sink> CaptureStreams::openSink(MF_CAPTURE_ENGINE_SINK_TYPE kind) {
    if (!source_ && !succeeded(engine_->GetSource(source_.GetAddressOf()), "IMFCaptureEngine::GetSource")) {
        return nullptr;
    }
    ComPtr<IMFCaptureSink> sink;
    ComPtr<Sink> wanted;
    if (!succeeded(engine_->GetSink(kind, sink.GetAddressOf()), "IMFCaptureEngine::GetSink") ||
        !succeeded(sink.As(&wanted), "IMFCaptureSink::QueryInterface") ||
        !succeeded(wanted->RemoveAllStreams(), "IMFCaptureSink::RemoveAllStreams")) {
        return nullptr;
    }
    return wanted;
}

bool CaptureStreams::setUpPreview(const CaptureFormat& format) {
    const auto sink = openSink<IMFCapturePreviewSink>(MF_CAPTURE_ENGINE_SINK_TYPE_PREVIEW);
    DWORD sinkStream = 0;
    return sink && setDeviceType(kPreviewStream, format) &&
           addStream(*sink.Get(), kPreviewStream, format, &sinkStream) &&
           succeeded(sink->SetSampleCallback(sinkStream, callbackFor(format, nullptr).Get()),
                     "IMFCapturePreviewSink::SetSampleCallback");
}

bool CaptureStreams::setUpRecord(const CaptureFormat& format, std::shared_ptr<ImageOutlet> outlet) {
    const auto sink = openSink<IMFCaptureRecordSink>(MF_CAPTURE_ENGINE_SINK_TYPE_RECORD);
    DWORD sinkStream = 0;
    return sink && setDeviceType(kRecordStream, format) && addStream(*sink.Get(), kRecordStream, format, &sinkStream) &&
           succeeded(sink->SetSampleCallback(sinkStream, callbackFor(format, std::move(outlet)).Get()),
                     "IMFCaptureRecordSink::SetSampleCallback");
}

bool CaptureStreams::setUpPhoto(const CaptureFormat& format) {
    const auto sink = openSink<IMFCapturePhotoSink>(MF_CAPTURE_ENGINE_SINK_TYPE_PHOTO);
    if (!sink) return false;
    if (sharesRecordStream(kPhotoStream)) {
        qInfo("Rear camera: it has no stream of its own for photos");
        return true;
    }
    DWORD sinkStream = 0;
    return setDeviceType(kPhotoStream, format) && addStream(*sink.Get(), kPhotoStream, format, &sinkStream) &&
           succeeded(sink->SetSampleCallback(callbackFor(format, nullptr).Get()),
                     "IMFCapturePhotoSink::SetSampleCallback");
}

bool CaptureStreams::setDeviceType(DWORD stream, const CaptureFormat& format) {
    const ComPtr<IMFMediaType> type = chooseDeviceType(*source_.Get(), stream, format);
    return type && succeeded(source_->SetCurrentDeviceMediaType(stream, type.Get()),
                             "IMFCaptureSource::SetCurrentDeviceMediaType");
}

bool CaptureStreams::sharesRecordStream(DWORD stream) {
    DWORD own = 0;
    DWORD record = 0;
    return SUCCEEDED(source_->GetStreamIndexFromFriendlyName(stream, &own)) &&
           SUCCEEDED(source_->GetStreamIndexFromFriendlyName(kRecordStream, &record)) && own == record;
}

bool CaptureStreams::addStream(IMFCaptureSink& sink, DWORD stream, const CaptureFormat& format, DWORD* sinkStream) {
    const ComPtr<IMFMediaType> type = sinkType(system_, format);
    return type && succeeded(sink.AddStream(stream, type.Get(), nullptr, sinkStream), "IMFCaptureSink::AddStream");
}

CaptureStreams::SampleCallback CaptureStreams::callbackFor(const CaptureFormat& format,
                                                           std::shared_ptr<ImageOutlet> outlet) {
    if (outlet == nullptr) outlet = std::make_shared<ImageOutlet>();
    return makeCom<MFStreamingSampleCallback>(std::move(outlet), format.width, format.height);
}

bool CaptureStreams::start() {
    if (!started_) started_ = succeeded(engine_->StartRecord(), "IMFCaptureEngine::StartRecord");
    return started_;
}

void CaptureStreams::stop() {
    if (std::exchange(started_, false)) succeeded(engine_->StopRecord(FALSE, TRUE), "IMFCaptureEngine::StopRecord");
}

}  // namespace fieldcal
