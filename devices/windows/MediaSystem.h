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

/// Creates the objects of Media Foundation. To be used on one thread in COM's multithreaded apartment. The caller owns
/// the returned objects.
class MediaSystem {
public:
    virtual ~MediaSystem() = default;

    virtual HRESULT startUp() = 0;
    /// To be called once for every successful `startUp`.
    virtual void shutDown() = 0;
    /// The video capture devices, in the system's order.
    virtual HRESULT enumerate(std::vector<VideoDevice>* devices) = 0;
    virtual HRESULT createSource(const std::wstring& symbolicLink, IMFMediaSource** source) = 0;
    virtual HRESULT createCaptureEngine(IMFCaptureEngine** engine) = 0;
    virtual HRESULT createAttributes(UINT32 entries, IMFAttributes** attributes) = 0;
    virtual HRESULT createMediaType(IMFMediaType** type) = 0;
};

/// Returns the Media Foundation of this Windows. Its functions are resolved at `startUp`, because some editions of
/// Windows do not have it.
std::unique_ptr<MediaSystem> windowsMediaSystem();

}  // namespace fieldcal
