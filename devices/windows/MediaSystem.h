#pragma once

#include <memory>
#include <mfcaptureengine.h>
#include <mfidl.h>
#include <string>
#include <vector>

namespace fieldcal {

struct VideoDevice {
    std::wstring friendlyName;
    std::wstring symbolicLink;
};

/// Where the objects of Media Foundation come from. Everything on one thread, in COM's multithreaded apartment.
/// What is handed out belongs to the caller.
class MediaSystem {
public:
    virtual ~MediaSystem() = default;

    virtual HRESULT startUp() = 0;
    /// Once for every `startUp` that succeeded.
    virtual void shutDown() = 0;
    /// The video capture devices, in the system's order.
    virtual HRESULT enumerate(std::vector<VideoDevice>* devices) = 0;
    virtual HRESULT createSource(const std::wstring& symbolicLink, IMFMediaSource** source) = 0;
    virtual HRESULT createCaptureEngine(IMFCaptureEngine** engine) = 0;
    virtual HRESULT createAttributes(UINT32 entries, IMFAttributes** attributes) = 0;
    virtual HRESULT createMediaType(IMFMediaType** type) = 0;
};

/// The one of this Windows. Its functions are looked up when it starts: some editions have no Media Foundation.
std::unique_ptr<MediaSystem> windowsMediaSystem();

}  // namespace fieldcal
