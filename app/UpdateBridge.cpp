#include "app/UpdateBridge.h"

#include "app/GlobalManager.h"
#include "app/InterfaceTexts.h"
#include "app/QmlFunctions.h"

namespace fieldcal {
namespace {

const char* textOf(UpdateFailure failure) {
    switch (failure) {
        case UpdateFailure::Connection:
            return texts::kUpdateConnection;
        case UpdateFailure::Server:
            return texts::kUpdateServer;
        case UpdateFailure::Disk:
            return texts::kUpdateDisk;
        case UpdateFailure::Damaged:
            return texts::kUpdateDamaged;
        case UpdateFailure::Unsigned:
            return texts::kUpdateUnsigned;
        case UpdateFailure::NotTrusted:
            return texts::kUpdateNotTrusted;
        case UpdateFailure::NoInstallers:
            return texts::kUpdateNoInstallers;
        case UpdateFailure::NotStarted:
            return texts::kUpdateNotStarted;
    }
    return "";
}

}  // namespace

void UpdateBridge::updateOffered(const QString& version) {
    functions_.showUpdateOffer(version);
}

void UpdateBridge::updateProgressed(qint64 receivedBytes, qint64 totalBytes) {
    functions_.showUpdateProgress(receivedBytes, totalBytes);
}

void UpdateBridge::updateInterrupted() {
    functions_.showUpdateInterrupted();
}

void UpdateBridge::updateReceived() {
    functions_.showUpdateStarting();
}

void UpdateBridge::updateFailed(UpdateFailure failure) {
    const bool always = failure == UpdateFailure::Unsigned || failure == UpdateFailure::NoInstallers;
    functions_.showUpdateFailed(interfaceText(textOf(failure)), !always);
}

void UpdateBridge::installerStarted() {
    manager_.slot_userAskedToExit();
}

}  // namespace fieldcal
