#pragma once

#include "devices/windows/ComObject.h"

#include <condition_variable>
#include <mfcaptureengine.h>
#include <mutex>

namespace fieldcal {

/// Receives the events of the capture engine, on one of the engine's threads.
class CaptureEngineEvents final : public ComObject<IMFCaptureEngineOnEventCallback> {
public:
    HRESULT STDMETHODCALLTYPE OnEvent(IMFMediaEvent* event) override;

    /// Waits, without a limit, until the engine is initialised, has failed, or `giveUp` was called. Returns true when
    /// it is initialised.
    bool awaitInitialised();
    void giveUp();

private:
    enum class Engine { Starting, Initialised, Failed };

    void become(Engine what);

    std::mutex mutex_;
    std::condition_variable changed_;
    Engine engine_ = Engine::Starting;
};

}  // namespace fieldcal
