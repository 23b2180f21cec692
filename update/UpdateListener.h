#pragma once

#include "update/UpdateFailure.h"

#include <QString>

namespace fieldcal {

/// What the user is told of an update. Main thread.
class UpdateListener {
public:
    virtual ~UpdateListener() = default;

    virtual void updateOffered(const QString& version) = 0;
    virtual void updateProgressed(qint64 receivedBytes, qint64 totalBytes) = 0;
    /// The connection is broken, and is tried again in a moment.
    virtual void updateInterrupted() = 0;
    /// Everything is there and is checked now, which takes a while.
    virtual void updateReceived() = 0;
    /// Nothing is left of it on the disk. It may be asked for again.
    virtual void updateFailed(UpdateFailure failure) = 0;
    /// The installer runs and waits for the program to end.
    virtual void installerStarted() = 0;
};

}  // namespace fieldcal
