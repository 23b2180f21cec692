#include "simulator/kxapi/FlashCells.h"

#include "session/Files.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace kxsim {
namespace {

constexpr qint64 kLargestFile = qint64{1} << 20;

FlashResult failure(const std::string& name, const QFileDevice& file) {
    return {KX_STATUS_DEVICE_ERROR, name + ": " + file.errorString().toStdString()};
}

bool put(QFileDevice* file, const FlashBytes& bytes) {
    const auto count = static_cast<qint64>(bytes.size());
    return file->write(reinterpret_cast<const char*>(bytes.data()), count) == count && file->flush();
}

}  // namespace

FlashResult FlashCells::createOnce(const FlashBytes& image) {
    if (inMemory()) {
        if (memory_.empty()) memory_ = image;
        return {};
    }
    if (QFileInfo::exists(QString::fromStdString(file_))) return {};
    QSaveFile file(QString::fromStdString(file_));
    if (file.open(QIODevice::WriteOnly) && put(&file, image) && file.commit()) return {};
    return failure(file_, file);
}

FlashResult FlashCells::read(FlashBytes* out) const {
    if (inMemory()) {
        *out = memory_;
        return {};
    }
    QFile file;
    std::string why;
    if (!fieldcal::session::openInput(file_, {}, kLargestFile, &file, &why)) return {KX_STATUS_DEVICE_ERROR, why};
    out->resize(kImageBytes + 1);
    const qint64 count = file.read(reinterpret_cast<char*>(out->data()), static_cast<qint64>(out->size()));
    if (count < 0) return failure(file_, file);
    out->resize(static_cast<std::size_t>(count));
    return {};
}

FlashResult FlashCells::write(std::size_t offset, const FlashBytes& bytes) {
    if (inMemory()) {
        std::copy(bytes.begin(), bytes.end(), memory_.begin() + static_cast<std::ptrdiff_t>(offset));
        return {};
    }
    QFile file(QString::fromStdString(file_));
    const bool written = file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) &&
                         file.seek(static_cast<qint64>(offset)) && put(&file, bytes);
    return written ? FlashResult{} : failure(file_, file);
}

}  // namespace kxsim
