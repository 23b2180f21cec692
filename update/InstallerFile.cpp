#include "update/InstallerFile.h"

#include "files/PrivateFolder.h"
#include "files/SafeFile.h"

#include <string>

namespace fieldcal {
namespace {

constexpr const char* kFolder = "field-calibrator-update-";  // the stem of its name
constexpr const char* kFile = "FieldCalibratorSetup.exe";

}  // namespace

InstallerFile::InstallerFile(const QString& temporaryFolder) {
    std::string folder, why;
    if (!makePrivateFolder(temporaryFolder.toStdString(), kFolder, &folder, &why)) qWarning("%s", why.c_str());
    folder_ = QString::fromStdString(folder);
    file_.setFileName(folder_ + '/' + kFile);
}

InstallerFile::~InstallerFile() {
    file_.close();
    if (!left_ && !folder_.isEmpty()) removePrivateFolder(folder_.toStdString(), kFile);
}

bool InstallerFile::begin() {
    hash_.reset();
    size_ = 0;
    file_.close();
    return !folder_.isEmpty() && file_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
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
                       syncFiles(folder_.toStdString(), {kFile}, &why);
    if (!why.empty()) qWarning("%s", why.c_str());
    return whole;
}

void InstallerFile::removeLeftovers(const QString& temporaryFolder) {
    removePrivateFolders(temporaryFolder.toStdString(), kFolder, kFile);
}

}  // namespace fieldcal
