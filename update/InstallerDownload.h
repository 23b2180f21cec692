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

/// Fetches one installer. A broken connection is taken up again where it broke, if the server says that it is still
/// the same file, and else from the start. What is refused or given up is removed from the disk before it is told; so
/// is everything when this goes. Main thread.
class InstallerDownload : public QObject {
public:
    class Listener {
    public:
        virtual ~Listener() = default;
        virtual void downloadProgressed(qint64 receivedBytes, qint64 totalBytes) = 0;
        virtual void downloadInterrupted() = 0;
        /// None: the whole file is there, and has the digest that was told. Not to be deleted in here.
        virtual void downloadEnded(std::optional<UpdateFailure> failure) = 0;
    };

    InstallerDownload(QNetworkAccessManager& network, const UpdateEnvironment& environment, Manifest manifest,
                      Listener& listener);
    ~InstallerDownload() override { dropReply(); }

    /// Once.
    void begin();
    /// After the end without a failure.
    InstallerFile& file() { return *file_; }

private:
    void request();
    void receive();
    void replyFinished();
    void timedOut();
    /// False: this is not the answer that was asked for, and what follows from that is done.
    bool acceptAnswer();
    bool acceptWhole();
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
    QTimer timer_;  ///< with a reply, until it is given up; without, until it is tried again
    bool accepted_ = false;
    qint64 total_ = 0;
    qint64 resumedFrom_ = 0;  ///< by the present reply; 0: it was asked for the whole
    QByteArray validator_;    ///< by which the server knows the file again; empty: it gave none
    qint64 furthest_ = 0;
    int attempts_ = 0;  ///< since there was more than ever before
};

}  // namespace fieldcal
