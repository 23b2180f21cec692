#include "simulator/kxapi/FlashMemory.h"

#include "simulator/kxapi/ParameterBlock.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace kxsim {
namespace {

constexpr const char* kFlash = "flash";
constexpr std::size_t kStepBytes = 64;
/// Set in the first letter of a bank's header, and in the low bits of a number that begins a step.
constexpr std::uint8_t kWrongBit = 0x40;
/// The exit code of a killed process.
constexpr int kKilled = 137;
static_assert(kBlockBytes % kStepBytes == 0);

}  // namespace

FlashResult FlashMemory::open(const KXCalibRectParameters& factory, KXCalibRectParameters* out) {
    if (FlashResult made = cells_.createOnce(newImage(serial_, factory)); !made.ok()) return made;
    return load(out);
}

FlashResult FlashMemory::find(ValidBank* out, FlashBytes* image) const {
    if (FlashResult result = cells_.read(image); !result.ok()) return result;
    FlashResult result = findValidBank(*image, serial_, out);
    if (!result.ok()) result.why = cells_.name() + ": " + result.why;
    return result;
}

FlashResult FlashMemory::read(KXCalibRectParameters* out) const {
    ValidBank valid;
    FlashBytes image;
    FlashResult result = find(&valid, &image);
    if (result.ok()) *out = valid.block;
    return result;
}

FlashResult FlashMemory::load(KXCalibRectParameters* out) const {
    KXCalibRectParameters block;
    if (FlashResult result = read(&block); !result.ok()) return result;
    std::string why;
    if (!makesSense(block, &why)) return {KX_STATUS_NOT_CALIBRATED, cells_.name() + ": " + why};
    *out = block;
    return {};
}

FlashResult FlashMemory::write(const KXCalibRectParameters& block) {
    written_.reset();
    ValidBank valid;
    FlashBytes image;
    if (FlashResult result = find(&valid, &image); !result.ok()) return result;
    if (valid.sequence == kLastSequence) return {KX_STATUS_DEVICE_ERROR, cells_.name() + ": worn out"};
    Written target{1 - valid.bank, valid.sequence + 1, block};
    if (FlashResult result = step(bankOffset(target.bank), FlashBytes(kBankBytes, 0xFF), faults_.strike(kFlash));
        !result.ok())
        return result;
    if (FlashResult result = programBlock(&target); !result.ok()) return result;
    written_ = target;
    return {};
}

FlashResult FlashMemory::programBlock(Written* target) {
    auto* bytes = reinterpret_cast<std::uint8_t*>(&target->block);
    const std::size_t start = bankOffset(target->bank) + kBankHeaderBytes;
    for (std::size_t at = 0; at < kBlockBytes; at += kStepBytes) {
        std::optional<Fault> fault = faults_.strike(kFlash);
        if (fault && fault->kind == FaultKind::garble) {
            bytes[at + std::min(fault->bytes, kStepBytes - 1)] ^= kWrongBit;
            fault.reset();
        }
        FlashResult result = program(start + at, FlashBytes(bytes + at, bytes + at + kStepBytes), fault);
        if (!result.ok()) return result;
    }
    return {};
}

FlashResult FlashMemory::commit() {
    if (!written_) return {KX_STATUS_FAILED, {}};
    const Written written = *std::exchange(written_, std::nullopt);
    return program(bankOffset(written.bank), bankHeader(written.sequence, written.block), faults_.strike(kFlash));
}

FlashResult FlashMemory::program(std::size_t offset, FlashBytes bytes, const std::optional<Fault>& fault) {
    FlashBytes cells;
    if (FlashResult result = cells_.read(&cells); !result.ok()) return result;
    cells.resize(kImageBytes);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] &= cells[offset + i];
    return step(offset, std::move(bytes), fault);
}

FlashResult FlashMemory::step(std::size_t offset, FlashBytes bytes, const std::optional<Fault>& fault) {
    if (!fault) return cells_.write(offset, bytes);
    const bool dies = fault->kind == FaultKind::die;
    const bool cut = fault->kind == FaultKind::powercut;
    if (dies || cut) {
        bytes.resize(std::min(dies ? bytes.size() / 2 : fault->bytes, bytes.size()));
    } else {
        bytes[0] ^= kWrongBit;
    }
    FlashResult result = cells_.write(offset, bytes);
    if (dies) std::_Exit(kKilled);
    return cut && result.ok() ? FlashResult{KX_STATUS_NO_DEVICE, {}} : result;
}

}  // namespace kxsim
