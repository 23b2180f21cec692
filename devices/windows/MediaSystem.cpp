#include "devices/windows/MediaSystem.h"

#include "devices/windows/ComResult.h"

#include <mfapi.h>
#include <wrl/client.h>

namespace fieldcal {
namespace {

using Microsoft::WRL::ComPtr;

constexpr UINT32 kLongestFriendlyName = 260;
const HRESULT kFunctionMissing = HRESULT_FROM_WIN32(ERROR_PROC_NOT_FOUND);

/// A library loaded from the system folder only; it stays loaded.
class SystemLibrary {
public:
    explicit SystemLibrary(const wchar_t* name)
        : module_(LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}

    template <typename Function>
    void find(const char* name, Function* out) const {
        if (module_ == nullptr) return;
        *out = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

private:
    HMODULE module_;
};

/// Releases the array that MFEnumDeviceSources returned.
class Activations {
public:
    ~Activations() {
        for (UINT32 i = 0; i < count; ++i)
            list[i]->Release();
        CoTaskMemFree(list);
    }

    IMFActivate** list = nullptr;
    UINT32 count = 0;
};

HRESULT readText(IMFActivate& device, REFGUID key, std::wstring* out) {
    WCHAR* text = nullptr;
    UINT32 length = 0;
    const HRESULT result = device.GetAllocatedString(key, &text, &length);
    if (SUCCEEDED(result)) out->assign(text, length);
    CoTaskMemFree(text);
    return result;
}

HRESULT describe(IMFActivate& device, VideoDevice* out) {
    HRESULT result = readText(device, MF_DEVSOURCE_ATTRIBUTE_FRIENDLY_NAME, &out->friendlyName);
    if (out->friendlyName.size() > kLongestFriendlyName) out->friendlyName.resize(kLongestFriendlyName);
    if (SUCCEEDED(result)) {
        result = readText(device, MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE_VIDCAP_SYMBOLIC_LINK, &out->symbolicLink);
    }
    return result;
}

class WindowsMediaSystem final : public MediaSystem {
public:
    WindowsMediaSystem() {
        const SystemLibrary platform(L"mfplat.dll");
        const SystemLibrary foundation(L"mf.dll");
        platform.find("MFStartup", &startup_);
        platform.find("MFShutdown", &shutdown_);
        platform.find("MFCreateAttributes", &createAttributes_);
        platform.find("MFCreateMediaType", &createMediaType_);
        foundation.find("MFEnumDeviceSources", &enumDeviceSources_);
        foundation.find("MFCreateDeviceSourceActivate", &createDeviceSourceActivate_);
    }

    HRESULT startUp() override {
        const bool complete = startup_ != nullptr && shutdown_ != nullptr && createAttributes_ != nullptr &&
                              createMediaType_ != nullptr && enumDeviceSources_ != nullptr &&
                              createDeviceSourceActivate_ != nullptr;
        return complete ? startup_(MF_VERSION, MFSTARTUP_FULL) : kFunctionMissing;
    }

    void shutDown() override { shutdown_(); }

    HRESULT enumerate(std::vector<VideoDevice>* devices) override {
        ComPtr<IMFAttributes> wanted;
        HRESULT result = videoCapture(1, &wanted);
        Activations found;
        if (SUCCEEDED(result)) result = enumDeviceSources_(wanted.Get(), &found.list, &found.count);
        for (UINT32 i = 0; SUCCEEDED(result) && i < found.count; ++i) {
            VideoDevice device;
            result = describe(*found.list[i], &device);
            devices->push_back(device);
        }
        return result;
    }

    HRESULT createSource(const std::wstring& symbolicLink, IMFMediaSource** source) override {
        ComPtr<IMFAttributes> wanted;
        ComPtr<IMFActivate> activation;
        HRESULT result = videoCapture(2, &wanted);
        if (SUCCEEDED(result)) {
            result = wanted->SetString(MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE_VIDCAP_SYMBOLIC_LINK, symbolicLink.c_str());
        }
        if (SUCCEEDED(result)) result = createDeviceSourceActivate_(wanted.Get(), activation.GetAddressOf());
        if (SUCCEEDED(result)) result = activation->ActivateObject(__uuidof(IMFMediaSource), asVoid(source));
        return result;
    }

    HRESULT createCaptureEngine(IMFCaptureEngine** engine) override {
        ComPtr<IMFCaptureEngineClassFactory> factory;
        HRESULT result = CoCreateInstance(CLSID_MFCaptureEngineClassFactory, nullptr, CLSCTX_INPROC_SERVER,
                                          __uuidof(IMFCaptureEngineClassFactory), asVoid(factory.GetAddressOf()));
        if (SUCCEEDED(result)) {
            result = factory->CreateInstance(CLSID_MFCaptureEngine, __uuidof(IMFCaptureEngine), asVoid(engine));
        }
        return result;
    }

    HRESULT createAttributes(UINT32 entries, IMFAttributes** attributes) override {
        return createAttributes_(attributes, entries);
    }

    HRESULT createMediaType(IMFMediaType** type) override { return createMediaType_(type); }

private:
    template <typename Interface>
    static void** asVoid(Interface** object) {
        return reinterpret_cast<void**>(object);
    }

    HRESULT videoCapture(UINT32 entries, ComPtr<IMFAttributes>* out) {
        HRESULT result = createAttributes_(out->GetAddressOf(), entries);
        if (SUCCEEDED(result)) {
            result =
                (*out)->SetGUID(MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE, MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE_VIDCAP_GUID);
        }
        return result;
    }

    decltype(&MFStartup) startup_ = nullptr;
    decltype(&MFShutdown) shutdown_ = nullptr;
    decltype(&MFCreateAttributes) createAttributes_ = nullptr;
    decltype(&MFCreateMediaType) createMediaType_ = nullptr;
    decltype(&MFEnumDeviceSources) enumDeviceSources_ = nullptr;
    /// MFCreateDeviceSourceActivate, which this compiler's headers lack.
    HRESULT(STDAPICALLTYPE* createDeviceSourceActivate_)(IMFAttributes*, IMFActivate**) = nullptr;
};

}  // namespace

std::unique_ptr<MediaSystem> windowsMediaSystem() {
    return std::make_unique<WindowsMediaSystem>();
}

}  // namespace fieldcal
