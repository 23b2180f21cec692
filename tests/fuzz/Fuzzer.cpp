// The entry points of libFuzzer. FIELDCAL_FUZZ_TARGET names the target.

#include "diagnostics/Logger.h"
#include "tests/fuzz/Target.h"

#include <algorithm>
#include <cstring>

namespace {

fieldcal::fuzz::Target chosen{};

}  // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    const QByteArray name = qgetenv("FIELDCAL_FUZZ_TARGET");
    for (const auto& target : fieldcal::fuzz::allTargets())
        if (target.name == name) chosen = target;
    fieldcal::fuzz::require(chosen.run != nullptr, "FIELDCAL_FUZZ_TARGET names a target");
    // Refusals are logged, which would take longer than the parsing.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    fieldcal::setLogLevel(-1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    chosen.run(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    return 0;
}

/// Three of four inputs get correct checksums, so that their changes reach what is behind the checksums.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
    size = LLVMFuzzerMutate(data, size, maxSize);
    if (chosen.repaired == nullptr || seed % 4 == 0) return size;
    const QByteArray bytes = chosen.repaired(QByteArray(reinterpret_cast<char*>(data), static_cast<int>(size)));
    size = std::min(maxSize, static_cast<std::size_t>(bytes.size()));
    std::memcpy(data, bytes.constData(), size);
    return size;
}
