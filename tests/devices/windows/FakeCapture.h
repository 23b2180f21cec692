#pragma once

#include "devices/windows/ComObject.h"
#include "devices/windows/MediaSystem.h"

#include <atomic>
#include <cstdio>
#include <map>
#include <memory>
#include <mfapi.h>
#include <mferror.h>
#include <string>
#include <strmif.h>
#include <thread>
#include <vector>
#include <wrl/client.h>

namespace fieldcal::testing {

using Microsoft::WRL::ComPtr;

/// A scripted camera with a record of the calls. It outlives all objects created from it.
struct FakeCapture {
    enum class Answer { Initialised, InitialisedWithFailure, Error };
    struct Type {
        GUID subtype;
        UINT32 width;
        UINT32 height;
        UINT32 framesPerSecond;
    };

    /// Records the call, and fails if it is the selected one.
    HRESULT call(const std::string& name, const std::string& detail = {}) {
        calls.push_back(detail.empty() ? name : name + ' ' + detail);
        threads.push_back(std::this_thread::get_id());
        return name == failing ? E_FAIL : S_OK;
    }

    std::string failing;
    Answer answer = Answer::Initialised;
    bool oneStreamForAll = false;
    std::map<DWORD, std::vector<Type>> types;  ///< what the device offers, by preferred stream
    LONG focus = 1234;

    std::vector<std::string> calls;
    std::vector<std::thread::id> threads;
    std::atomic<int> alive{0};  ///< number of objects with an owner
    ComPtr<IMFCaptureEngineOnSampleCallback> recordCallback;
};

template <typename Interface>
class FakeObject : public ComObject<Interface> {
public:
    explicit FakeObject(FakeCapture& camera) : camera_(camera) { ++camera_.alive; }

protected:
    ~FakeObject() override { --camera_.alive; }
    FakeCapture& camera_;
};

inline std::string describe(IMFMediaType* type) {
    GUID subtype{};
    UINT32 width = 0;
    UINT32 height = 0;
    UINT32 frames = 0;
    UINT32 seconds = 1;
    type->GetGUID(MF_MT_SUBTYPE, &subtype);
    MFGetAttributeSize(type, MF_MT_FRAME_SIZE, &width, &height);
    MFGetAttributeRatio(type, MF_MT_FRAME_RATE, &frames, &seconds);
    char text[80];
    std::snprintf(text, sizeof text, "%.4s %ux%u@%u", reinterpret_cast<const char*>(&subtype.Data1),
                  static_cast<unsigned>(width), static_cast<unsigned>(height), static_cast<unsigned>(frames / seconds));
    return text;
}

/// IAMCameraControl and IAMVideoProcAmp have the same operations.
template <typename Interface>
class FakeControl final : public FakeObject<Interface> {
public:
    FakeControl(FakeCapture& camera, const char* name) : FakeObject<Interface>(camera), name_(name) {}
    HRESULT STDMETHODCALLTYPE GetRange(LONG, LONG*, LONG*, LONG*, LONG*, LONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Set(LONG property, LONG value, LONG flags) override {
        this->camera_.focus = value;
        return this->camera_.call(name_ + ".Set", numbers({property, value, flags}));
    }
    HRESULT STDMETHODCALLTYPE Get(LONG property, LONG* value, LONG* flags) override {
        *value = this->camera_.focus;
        *flags = 1;
        return this->camera_.call(name_ + ".Get", numbers({property}));
    }

private:
    static std::string numbers(const std::vector<LONG>& all) {
        std::string text;
        for (const LONG number : all)
            text += (text.empty() ? "" : " ") + std::to_string(number);
        return text;
    }
    const std::string name_;
};

class FakeMediaSource final : public FakeObject<IMFMediaSource> {
public:
    explicit FakeMediaSource(FakeCapture& camera) : FakeObject(camera) {
        control_ = makeCom<FakeControl<IAMCameraControl>>(camera, "focus");
        amplifier_ = makeCom<FakeControl<IAMVideoProcAmp>>(camera, "brightness");
    }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** out) override {
        if (wanted == __uuidof(IAMCameraControl)) return hand(control_.Get(), "QueryInterface control", out);
        if (wanted == __uuidof(IAMVideoProcAmp)) return hand(amplifier_.Get(), "QueryInterface amplifier", out);
        return FakeObject::QueryInterface(wanted, out);
    }
    HRESULT STDMETHODCALLTYPE Shutdown() override { return camera_.call("Shutdown"); }

    HRESULT STDMETHODCALLTYPE GetEvent(DWORD, IMFMediaEvent**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE BeginGetEvent(IMFAsyncCallback*, IUnknown*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EndGetEvent(IMFAsyncResult*, IMFMediaEvent**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueueEvent(MediaEventType, REFGUID, HRESULT, const PROPVARIANT*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetCharacteristics(DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreatePresentationDescriptor(IMFPresentationDescriptor**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Start(IMFPresentationDescriptor*, const GUID*, const PROPVARIANT*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Stop() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Pause() override { return E_NOTIMPL; }

private:
    HRESULT hand(IUnknown* object, const char* name, void** out) {
        const HRESULT result = camera_.call(name);
        *out = FAILED(result) ? nullptr : object;
        if (*out != nullptr) object->AddRef();
        return result;
    }
    ComPtr<IAMCameraControl> control_;
    ComPtr<IAMVideoProcAmp> amplifier_;
};

/// The operations that the three kinds of sinks share.
template <typename Interface>
class FakeSink : public FakeObject<Interface> {
public:
    FakeSink(FakeCapture& camera, const char* name) : FakeObject<Interface>(camera), name_(name) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** out) override {
        return FakeObject<Interface>::QueryInterface(wanted, out);
    }
    HRESULT STDMETHODCALLTYPE AddStream(DWORD, IMFMediaType* type, IMFAttributes*, DWORD* index) override {
        *index = 7;
        return this->camera_.call(name_ + ".AddStream", describe(type));
    }
    HRESULT STDMETHODCALLTYPE RemoveAllStreams() override { return this->camera_.call(name_ + ".RemoveAllStreams"); }
    HRESULT STDMETHODCALLTYPE GetOutputMediaType(DWORD, IMFMediaType**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetService(DWORD, REFGUID, REFIID, IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Prepare() override { return E_NOTIMPL; }

protected:
    const std::string name_;
};

class FakeRecordSink final : public FakeSink<IMFCaptureRecordSink> {
public:
    using FakeSink::FakeSink;
    HRESULT STDMETHODCALLTYPE SetSampleCallback(DWORD index, IMFCaptureEngineOnSampleCallback* callback) override {
        camera_.recordCallback = callback;
        return camera_.call("record.SetSampleCallback", std::to_string(index));
    }
    HRESULT STDMETHODCALLTYPE SetOutputByteStream(IMFByteStream*, REFGUID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetOutputFileName(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCustomSink(IMFMediaSink*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetRotation(DWORD, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetRotation(DWORD, DWORD) override { return E_NOTIMPL; }
};

class FakePreviewSink final : public FakeSink<IMFCapturePreviewSink> {
public:
    using FakeSink::FakeSink;
    HRESULT STDMETHODCALLTYPE SetSampleCallback(DWORD, IMFCaptureEngineOnSampleCallback*) override {
        return camera_.call("preview.SetSampleCallback");
    }
    HRESULT STDMETHODCALLTYPE SetRenderHandle(HANDLE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetRenderSurface(IUnknown*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UpdateVideo(const MFVideoNormalizedRect*, const RECT*, const COLORREF*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetMirrorState(WINBOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMirrorState(WINBOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetRotation(DWORD, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetRotation(DWORD, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetCustomSink(IMFMediaSink*) override { return E_NOTIMPL; }
};

class FakePhotoSink final : public FakeSink<IMFCapturePhotoSink> {
public:
    using FakeSink::FakeSink;
    HRESULT STDMETHODCALLTYPE SetSampleCallback(IMFCaptureEngineOnSampleCallback*) override {
        return camera_.call("photo.SetSampleCallback");
    }
    HRESULT STDMETHODCALLTYPE SetOutputFileName(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetOutputByteStream(IMFByteStream*) override { return E_NOTIMPL; }
};

class FakeCaptureSource final : public FakeObject<IMFCaptureSource> {
public:
    using FakeObject::FakeObject;
    HRESULT STDMETHODCALLTYPE GetAvailableDeviceMediaType(DWORD stream, DWORD index, IMFMediaType** out) override {
        const std::vector<FakeCapture::Type>& offered = camera_.types[stream];
        if (index >= offered.size()) return MF_E_NO_MORE_TYPES;
        const FakeCapture::Type& type = offered[index];
        MFCreateMediaType(out);
        (*out)->SetGUID(MF_MT_SUBTYPE, type.subtype);
        MFSetAttributeSize(*out, MF_MT_FRAME_SIZE, type.width, type.height);
        return MFSetAttributeRatio(*out, MF_MT_FRAME_RATE, type.framesPerSecond, 1);
    }
    HRESULT STDMETHODCALLTYPE SetCurrentDeviceMediaType(DWORD, IMFMediaType* type) override {
        return camera_.call("SetCurrentDeviceMediaType", describe(type));
    }
    HRESULT STDMETHODCALLTYPE GetStreamIndexFromFriendlyName(UINT32 name, DWORD* index) override {
        *index = camera_.oneStreamForAll ? 0 : name & 0xF;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetCaptureDeviceSource(MF_CAPTURE_ENGINE_DEVICE_TYPE, IMFMediaSource**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetCaptureDeviceActivate(MF_CAPTURE_ENGINE_DEVICE_TYPE, IMFActivate**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetService(REFIID, REFIID, IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddEffect(DWORD, IUnknown*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RemoveEffect(DWORD, IUnknown*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RemoveAllEffects(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCurrentDeviceMediaType(DWORD, IMFMediaType**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDeviceStreamCount(DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDeviceStreamCategory(DWORD, MF_CAPTURE_ENGINE_STREAM_CATEGORY*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetMirrorState(DWORD, WINBOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMirrorState(DWORD, WINBOOL) override { return E_NOTIMPL; }
};

class FakeCaptureEngine final : public FakeObject<IMFCaptureEngine> {
public:
    using FakeObject::FakeObject;
    HRESULT STDMETHODCALLTYPE Initialize(IMFCaptureEngineOnEventCallback* events, IMFAttributes* options,
                                         IUnknown* audio, IUnknown* video) override {
        UINT32 count = 0;
        options->GetCount(&count);
        if (audio != nullptr || video == nullptr || count != 2) return E_INVALIDARG;
        const HRESULT result = camera_.call("Initialize");
        if (FAILED(result)) return result;
        // The engine answers asynchronously, on its own thread.
        answer_ = std::thread([answer = camera_.answer, callback = ComPtr<IMFCaptureEngineOnEventCallback>(events)] {
            const bool error = answer == FakeCapture::Answer::Error;
            send(callback.Get(), MF_CAPTURE_ENGINE_PREVIEW_STOPPED, S_OK);
            send(callback.Get(), error ? MF_CAPTURE_ENGINE_ERROR : MF_CAPTURE_ENGINE_INITIALIZED,
                 answer == FakeCapture::Answer::Initialised ? S_OK : E_ACCESSDENIED);
        });
        return result;
    }
    HRESULT STDMETHODCALLTYPE StartRecord() override { return camera_.call("StartRecord"); }
    HRESULT STDMETHODCALLTYPE StopRecord(WINBOOL, WINBOOL) override { return camera_.call("StopRecord"); }
    HRESULT STDMETHODCALLTYPE GetSink(MF_CAPTURE_ENGINE_SINK_TYPE kind, IMFCaptureSink** out) override {
        if (kind == MF_CAPTURE_ENGINE_SINK_TYPE_RECORD) *out = new FakeRecordSink(camera_, "record");
        if (kind == MF_CAPTURE_ENGINE_SINK_TYPE_PREVIEW) *out = new FakePreviewSink(camera_, "preview");
        if (kind == MF_CAPTURE_ENGINE_SINK_TYPE_PHOTO) *out = new FakePhotoSink(camera_, "photo");
        return camera_.call("GetSink");
    }
    HRESULT STDMETHODCALLTYPE GetSource(IMFCaptureSource** out) override {
        *out = new FakeCaptureSource(camera_);
        return camera_.call("GetSource");
    }
    HRESULT STDMETHODCALLTYPE StartPreview() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE StopPreview() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TakePhoto() override { return E_NOTIMPL; }

private:
    ~FakeCaptureEngine() override {
        if (answer_.joinable()) answer_.join();
    }
    static void send(IMFCaptureEngineOnEventCallback* callback, REFGUID type, HRESULT status) {
        ComPtr<IMFMediaEvent> event;
        MFCreateMediaEvent(MEExtendedType, type, status, nullptr, event.GetAddressOf());
        callback->OnEvent(event.Get());
    }
    std::thread answer_;
};

/// Media types and attributes are those of Windows.
class FakeMediaSystem final : public MediaSystem {
public:
    explicit FakeMediaSystem(FakeCapture& camera) : camera_(camera) { ++camera_.alive; }
    ~FakeMediaSystem() override { --camera_.alive; }
    HRESULT startUp() override { return camera_.call("startUp"); }
    void shutDown() override { camera_.call("shutDown"); }
    HRESULT enumerate(std::vector<VideoDevice>* devices) override {
        *devices = {
            {L"Front", L"link 0"}, {L"HP Truevision 8MP Rear", L"link 1"}, {L"HP Truevision 8MP Rear", L"link 2"}};
        return camera_.call("enumerate");
    }
    HRESULT createSource(const std::wstring& symbolicLink, IMFMediaSource** source) override {
        const HRESULT result = camera_.call("createSource", {symbolicLink.begin(), symbolicLink.end()});
        if (SUCCEEDED(result)) *source = new FakeMediaSource(camera_);
        return result;
    }
    HRESULT createCaptureEngine(IMFCaptureEngine** engine) override {
        const HRESULT result = camera_.call("createCaptureEngine");
        if (SUCCEEDED(result)) *engine = new FakeCaptureEngine(camera_);
        return result;
    }
    HRESULT createAttributes(UINT32 entries, IMFAttributes** attributes) override {
        const HRESULT result = camera_.call("createAttributes");
        return SUCCEEDED(result) ? MFCreateAttributes(attributes, entries) : result;
    }
    HRESULT createMediaType(IMFMediaType** type) override {
        const HRESULT result = camera_.call("createMediaType");
        return SUCCEEDED(result) ? MFCreateMediaType(type) : result;
    }

private:
    FakeCapture& camera_;
};

}  // namespace fieldcal::testing
