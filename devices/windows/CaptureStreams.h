#pragma once

#include "devices/windows/CaptureFormat.h"
#include "devices/windows/MFStreamingSampleCallback.h"

#include <memory>

namespace fieldcal {

/// The streams of an initialised capture engine. Only the record stream is ever started. The sinks of the preview and
/// photo streams are set up but not used. Where a camera has one stream for several purposes, the stream gets the size
/// of the record stream.
class CaptureStreams {
public:
    CaptureStreams(MediaSystem& system, IMFCaptureEngine& engine);

    bool setUpPreview(const CaptureFormat& format);
    /// Its images are sent to `outlet`.
    bool setUpRecord(const CaptureFormat& format, std::shared_ptr<ImageOutlet> outlet);
    bool setUpPhoto(const CaptureFormat& format);

    bool start();
    /// Has no effect unless the stream was started.
    void stop();

private:
    using SampleCallback = Microsoft::WRL::ComPtr<IMFCaptureEngineOnSampleCallback>;

    template <typename Sink>
    Microsoft::WRL::ComPtr<Sink> openSink(MF_CAPTURE_ENGINE_SINK_TYPE kind);
    bool setDeviceType(DWORD stream, const CaptureFormat& format);
    bool sharesRecordStream(DWORD stream);
    bool addStream(IMFCaptureSink& sink, DWORD stream, const CaptureFormat& format, DWORD* sinkStream);
    static SampleCallback callbackFor(const CaptureFormat& format, std::shared_ptr<ImageOutlet> outlet);

    MediaSystem& system_;
    Microsoft::WRL::ComPtr<IMFCaptureEngine> engine_;
    Microsoft::WRL::ComPtr<IMFCaptureSource> source_;
    bool started_ = false;
};

}  // namespace fieldcal
