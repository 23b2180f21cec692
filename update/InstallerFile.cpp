#include "update/InstallerFile.h"

#include "files/SafeFile.h"

#include <QDir>

#include <string>

namespace fieldcal {
namespace {

constexpr const char* kFolder = "field-calibrator-update-";
constexpr const char* kFile = "FieldCalibratorSetup.exe";

}  // namespace

InstallerFile::InstallerFile(const QString& temporaryFolder)
    : folder_(temporaryFolder + '/' + kFolder + "XXXXXX"), file_(folder_.filePath(kFile)) {}

bool InstallerFile::begin() {
    hash_.reset();
    size_ = 0;
    file_.close();
    return folder_.isValid() && file_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
}

bool InstallerFile::append(const QByteArray& bytes) {
    if (file_.write(bytes) != bytes.size()) return false;
    hash_.addData(bytes);
    size_ += bytes.size();
    return true;
}

bool InstallerFile::close() {
    file_.close();
    std::string why;
    const bool whole = file_.error() == QFileDevice::NoError && QFile(path()).size() == size_ &&
                       syncFiles(folder_.path().toStdString(), {kFile}, &why);
    if (!why.empty()) qWarning("%s", why.c_str());
    return whole;
}

void InstallerFile::leaveToInstaller() {
    folder_.setAutoRemove(false);
}

void InstallerFile::removeLeftovers(const QString& temporaryFolder) {
    const QDir folder(temporaryFolder);
    for (const QString& name : folder.entryList({QString(kFolder) + '*'}, QDir::Dirs | QDir::NoSymLinks))
        QDir(folder.filePath(name)).removeRecursively();
}

}  // namespace fieldcal
