#pragma once

#include "update/UpdateListener.h"

namespace fieldcal {

class GlobalManager;
class QmlFunctions;

/// Reports an update to the interface in the user's language, and ends the program when an installer waits for that.
class UpdateBridge : public UpdateListener {
public:
    UpdateBridge(GlobalManager& manager, QmlFunctions& functions) : manager_(manager), functions_(functions) {}

    void updateOffered(const QString& version) override;
    void updateProgressed(qint64 receivedBytes, qint64 totalBytes) override;
    void updateInterrupted() override;
    void updateReceived() override;
    void updateFailed(UpdateFailure failure) override;
    void installerStarted() override;

private:
    GlobalManager& manager_;
    QmlFunctions& functions_;
};

}  // namespace fieldcal
