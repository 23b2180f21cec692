#include "devices/windows/CaptureEngineEvents.h"

#include "devices/windows/ComResult.h"

namespace fieldcal {

HRESULT CaptureEngineEvents::OnEvent(IMFMediaEvent* event) {
    GUID type{};
    HRESULT status = S_OK;
    if (event == nullptr || FAILED(event->GetExtendedType(&type)) || FAILED(event->GetStatus(&status))) {
        return E_INVALIDARG;
    }
    if (type == MF_CAPTURE_ENGINE_ERROR) {
        succeeded(FAILED(status) ? status : E_FAIL, "the capture engine");
        become(Engine::Failed);
    } else if (type == MF_CAPTURE_ENGINE_INITIALIZED) {
        become(succeeded(status, "the capture engine's start") ? Engine::Initialised : Engine::Failed);
    }
    return S_OK;
}

bool CaptureEngineEvents::awaitInitialised() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return engine_ != Engine::Starting; });
    return engine_ == Engine::Initialised;
}

void CaptureEngineEvents::giveUp() {
    become(Engine::Failed);
}

void CaptureEngineEvents::become(Engine what) {
    {
        const std::lock_guard lock(mutex_);
        engine_ = what;
    }
    changed_.notify_all();
}

}  // namespace fieldcal
