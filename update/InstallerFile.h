#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace fieldcal {

/// An installer while it arrives, in a folder of its own that only this user can enter. Gone from the disk when this
/// goes, unless the installer runs.
class InstallerFile {
public:
    /// Below `temporaryFolder`; what an earlier run had to leave there is removed.
    explicit InstallerFile(const QString& temporaryFolder);
    InstallerFile(const InstallerFile&) = delete;
    InstallerFile& operator=(const InstallerFile&) = delete;

    /// Empty, and open. False: it cannot be.
    bool begin();
    /// False: not all of it could be written; the file is of no use any more.
    bool append(const QByteArray& bytes);
    /// Everything is on the disk. False: it is not.
    bool close();
    /// The system keeps a program's file for as long as it runs; then a later run removes it.
    void leaveToInstaller();

    qint64 size() const { return size_; }
    QByteArray sha256() const { return hash_.result(); }
    QString path() const { return file_.fileName(); }

    /// Removes what earlier runs had to leave.
    static void removeLeftovers(const QString& temporaryFolder);

private:
    QTemporaryDir folder_;
    QFile file_;
    QCryptographicHash hash_{QCryptographicHash::Sha256};
    qint64 size_ = 0;
};

}  // namespace fieldcal
