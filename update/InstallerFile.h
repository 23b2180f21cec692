#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace fieldcal {

/// An installer during its download, in a folder that only this user can access. The destructor removes it from the
/// disk, unless the installer runs.
class InstallerFile {
public:
    /// Creates it below `temporaryFolder`, and removes the files left there by earlier runs.
    explicit InstallerFile(const QString& temporaryFolder);
    InstallerFile(const InstallerFile&) = delete;
    InstallerFile& operator=(const InstallerFile&) = delete;

    /// Opens an empty file. Returns false on a failure.
    bool begin();
    /// Returns false when the data could not be written completely; the file is then unusable.
    bool append(const QByteArray& bytes);
    /// Makes sure that everything is on the disk. Returns false on a failure.
    bool close();
    /// The system locks a program's file while it runs; a later run then removes it.
    void leaveToInstaller();

    qint64 size() const { return size_; }
    QByteArray sha256() const { return hash_.result(); }
    QString path() const { return file_.fileName(); }

    /// Removes the files that earlier runs could not remove.
    static void removeLeftovers(const QString& temporaryFolder);

private:
    QTemporaryDir folder_;
    QFile file_;
    QCryptographicHash hash_{QCryptographicHash::Sha256};
    qint64 size_ = 0;
};

}  // namespace fieldcal
