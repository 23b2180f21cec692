#pragma once

#include "update/UpdateFailure.h"

#include <QString>

namespace fieldcal {

/// Receives the progress of an update for the user. Main thread.
class UpdateListener {
public:
    virtual ~UpdateListener() = default;

    virtual void updateOffered(const QString& version) = 0;
    virtual void updateProgressed(qint64 receivedBytes, qint64 totalBytes) = 0;
    /// The connection broke, and will be tried again after a pause.
    virtual void updateInterrupted() = 0;
    /// The download is complete and is being checked, which takes a while.
    virtual void updateReceived() = 0;
    /// The files have been removed from the disk. The update may be requested again.
    virtual void updateFailed(UpdateFailure failure) = 0;
    /// The installer runs and waits for this program to end.
    virtual void installerStarted() = 0;
};

}  // namespace fieldcal
