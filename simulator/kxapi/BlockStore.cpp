#include "simulator/kxapi/BlockStore.h"

#include "files/SafeFile.h"
#include "session/Files.h"
#include "simulator/kxapi/BlockLayout.h"
#include "simulator/kxapi/ParameterBlock.h"

#include <QFileInfo>

#include <utility>

namespace kxsim {
namespace {

constexpr qint64 kBlockBytes = sizeof(Block);
constexpr qint64 kLargestFile = qint64{1} << 20;

BlockResult failure(const std::string& file, const std::string& reason) {
    return {KX_STATUS_DEVICE_ERROR, file + ": " + reason};
}

}  // namespace

BlockResult BlockStore::open(const Block& factory, Block* out) {
    const bool isThere = file_.empty() ? memory_.has_value() : QFileInfo::exists(QString::fromStdString(file_));
    if (BlockResult made = isThere ? BlockResult{} : put(factory); !made.ok()) return made;
    return load(out);
}

BlockResult BlockStore::read(Block* out) const {
    if (file_.empty()) {
        *out = *memory_;
        return {};
    }
    QFile file;
    std::string why;
    if (!fieldcal::session::openInput(file_, {}, kLargestFile, &file, &why)) return {KX_STATUS_DEVICE_ERROR, why};
    if (file.size() != kBlockBytes) return failure(file_, "not the size of a parameter block");
    Block block;
    if (file.read(reinterpret_cast<char*>(&block), kBlockBytes) != kBlockBytes) {
        return failure(file_, file.errorString().toStdString());
    }
    *out = block;
    return {};
}

BlockResult BlockStore::readPrevious(Block* out) const {
    if (!previous_) return read(out);
    *out = *previous_;
    return {};
}

BlockResult BlockStore::load(Block* out) const {
    Block block;
    if (BlockResult result = read(&block); !result.ok()) return result;
    std::string why;
    if (!isValidBlock(block, &why)) return {KX_STATUS_NOT_CALIBRATED, name() + ": " + why};
    *out = block;
    return {};
}

BlockResult BlockStore::commit(bool living) {
    if (!written_) return {KX_STATUS_FAILED, {}};
    Block block = *std::exchange(written_, std::nullopt);
    Block present;
    if (BlockResult result = read(&present); !result.ok()) return result;
    if (living) updateLivingBytes(present, &block);
    if (BlockResult result = put(block); !result.ok()) return result;
    previous_ = present;
    return {};
}

BlockResult BlockStore::put(const Block& block) {
    if (file_.empty()) {
        memory_ = block;
        return {};
    }
    std::string why;
    if (fieldcal::writeFile(file_, &block, sizeof(block), &why)) return {};
    return {KX_STATUS_DEVICE_ERROR, why};
}

}  // namespace kxsim
