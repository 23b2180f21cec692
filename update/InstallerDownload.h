#pragma once

#include "update/InstallerFile.h"
#include "update/Manifest.h"
#include "update/UpdateFailure.h"

#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

class QNetworkAccessManager;

namespace fieldcal {

struct UpdateEnvironment;

/// Downloads one installer. A broken connection is resumed where it broke, if the server confirms that the file is the
/// same, otherwise from the start. A refused or abandoned file is removed from the disk before that is reported, and
/// all files are removed by the destructor. Main thread.
class InstallerDownload : public QObject {
public:
    class Listener {
    public:
        virtual ~Listener() = default;
        virtual void downloadProgressed(qint64 receivedBytes, qint64 totalBytes) = 0;
        virtual void downloadInterrupted() = 0;
        /// Without a failure, the whole file is on the disk and has the expected digest. This object must not be
        /// deleted during the call.
        virtual void downloadEnded(std::optional<UpdateFailure> failure) = 0;
    };

    InstallerDownload(QNetworkAccessManager& network, const UpdateEnvironment& environment, Manifest manifest,
                      Listener& listener);
    ~InstallerDownload() override { dropReply(); }

    /// To be called once.
    void begin();
    /// Available after an end without a failure.
    InstallerFile& file() { return *file_; }

private:
    void request();
    void receive();
    void replyFinished();
    void timedOut();
    /// Returns false when the answer does not fit the request; the consequences have then been handled.
    bool acceptAnswer();
    bool acceptDownload();
    bool acceptRest();
    bool append(const QByteArray& bytes);
    void tryAgain(const QString& why);
    void complete();
    void fail(UpdateFailure failure, const QString& why);
    void dropReply();

    QNetworkAccessManager& network_;
    const UpdateEnvironment& environment_;
    const Manifest manifest_;
    Listener& listener_;
    QPointer<QNetworkReply> reply_;
    std::unique_ptr<InstallerFile> file_;
    QTimer timer_;  ///< runs during a request as its time limit, and between requests as the pause before the next
                    ///< attempt
    bool accepted_ = false;
    qint64 total_ = 0;
    qint64 resumedFrom_ = 0;  ///< by the present reply; 0 when it was asked for the whole file
    QByteArray validator_;    ///< identifies the file on the server; empty when the server gave none
    qint64 largestSize_ = 0;
    int retries_ = 0;  ///< since the last progress
};

}  // namespace fieldcal
