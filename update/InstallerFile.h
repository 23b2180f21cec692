#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QString>

namespace fieldcal {

/// An installer during its download, in a private folder (`files/PrivateFolder.h`) that it never leaves: the file that
/// is checked and started is the one that was downloaded. The destructor removes it from the disk, unless the installer
/// runs.
class InstallerFile {
public:
    /// Creates its folder below `temporaryFolder`.
    explicit InstallerFile(const QString& temporaryFolder);
    ~InstallerFile();
    InstallerFile(const InstallerFile&) = delete;
    InstallerFile& operator=(const InstallerFile&) = delete;

    /// Opens an empty file. Returns false on a failure.
    bool begin();
    /// Returns false when the data could not be written completely; the file is then unusable.
    bool append(const QByteArray& bytes);
    /// Makes sure that everything is on the disk. Returns false on a failure.
    bool close();
    /// The system locks a program's file while it runs; a later run then removes it.
    void leaveToInstaller() { left_ = true; }

    qint64 size() const { return size_; }
    QByteArray sha256() const { return hash_.result(); }
    QString path() const { return file_.fileName(); }

    /// Removes the files that earlier runs could not remove.
    static void removeLeftovers(const QString& temporaryFolder);

private:
    QString folder_;  ///< empty when it could not be created
    QFile file_;
    QCryptographicHash hash_{QCryptographicHash::Sha256};
    qint64 size_ = 0;
    bool left_ = false;
};

}  // namespace fieldcal
