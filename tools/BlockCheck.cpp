#include "tools/BlockCheck.h"

#include "devices/BlockFields.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace fieldcal {
namespace {

using Block = KXCalibRectParameters;

/// Composing a rotation again changes its entries by 32-bit rounding.
constexpr double kRounding = 1e-5;

/// Returns the numbers stored in the bytes of a rotation: nine of 64 or 32 bits. Empty for any other size.
std::vector<double> numbersIn(const Block& block, const BlockBytes& fields) {
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i]) bytes.push_back(reinterpret_cast<const std::uint8_t*>(&block)[i]);
    }
    std::vector<double> numbers(9);
    if (bytes.size() == sizeof(double) * numbers.size()) {
        std::memcpy(numbers.data(), bytes.data(), bytes.size());
    } else if (bytes.size() == sizeof(float) * numbers.size()) {
        std::vector<float> narrow(numbers.size());
        std::memcpy(narrow.data(), bytes.data(), bytes.size());
        std::copy(narrow.begin(), narrow.end(), numbers.begin());
    } else {
        numbers.clear();
    }
    return numbers;
}

struct Entered {
    double change = 0;   ///< the largest change of an entry of the rotation
    BlockBytes outside;  ///< changed bytes that do not belong to the rotation
    bool isReadable = false;
};

/// Enters a rotation into a block that should hold it already, and returns the changes.
std::optional<Entered> enter(ModuleLink& link, KXUpdateRotationFunction function, const Block& block,
                             const Matrix3& raw) {
    const auto fields = rotationFields(link, function, block);
    const auto out = fields ? turned(link, function, raw, block) : std::nullopt;
    if (!out) return std::nullopt;
    Entered entered;
    entered.outside = differences(block, *out) & ~*fields;
    const std::vector<double> before = numbersIn(block, *fields), after = numbersIn(*out, *fields);
    entered.isReadable = !before.empty();
    for (std::size_t i = 0; i < before.size(); ++i)
        entered.change = std::max(entered.change, std::abs(after[i] - before[i]));
    return entered;
}

/// A colour camera with its function in the companion library, the rotation that the module reports (depth to colour),
/// and the camera's rectification matrix in the block.
struct CompanionCamera {
    const char* name;
    KXUpdateRotationFunction function;
    Rotation rotation;
    const float* rectification;
};

void followCompanion(ModuleLink& link, const Block& block, const CompanionCamera& camera, QStringList* texts,
                     BlockFindings* out) {
    const Rotation& r = camera.rotation;
    const Rotation across{r[0], r[3], r[6], r[1], r[4], r[7], r[2], r[5], r[8]};
    const float* infrared = block.rectificationInfrared;
    const auto asReported = enter(link, camera.function, block, rawRotation(r, camera.rectification, infrared));
    const auto transposed = enter(link, camera.function, block, rawRotation(across, camera.rectification, infrared));
    if (!asReported || !transposed) {
        out->companionAnswers = false;
        return;
    }
    *texts << QString("%1: %2 as reported, %3 transposed")
                  .arg(camera.name)
                  .arg(asReported->change, 0, 'g', 2)
                  .arg(transposed->change, 0, 'g', 2);
    if (asReported->outside.any()) {
        *texts << QString("%1: %2 bytes outside the rotation change, the first one at %3")
                      .arg(camera.name)
                      .arg(asReported->outside.count())
                      .arg(asReported->outside._Find_first());
        out->companionAnswers = false;
    }
    if (!asReported->isReadable) *texts << QString("%1: the rotation is not stored as nine numbers").arg(camera.name);
    const bool fits = asReported->isReadable && asReported->change <= kRounding;
    const bool fitsAcross = transposed->isReadable && transposed->change <= kRounding;
    if (!fits && !fitsAcross) out->companionAnswers = false;
    if (fits) out->companion = Direction::AsReported;
    if (fitsAcross && !fits) out->companion = Direction::Transposed;
}

std::optional<Rotation> reportedRotation(const std::optional<KXCalibExtrinsics>& pose) {
    if (!pose) return std::nullopt;
    Rotation rotation{};
    std::copy(std::begin(pose->rotation), std::end(pose->rotation), rotation.begin());
    return rotation;
}

void askCompanion(Sensor& sensor, const Block& block, BlockFindings* out) {
    ModuleLink& link = sensor.link();
    const auto third = reportedRotation(link.read(sensor.thirdCamera(), &KXThirdCamera::zToThirdExtrinsics));
    if (!third) return;
    QStringList texts;
    out->companionAnswers = true;
    const KXRotationUpdater& updater = *link.rotationUpdater();
    followCompanion(link, block, {"third", updater.updateThirdCamera, *third, block.rectificationThird}, &texts, out);
    KXPlatformCamera* camera = sensor.device()->platformCamera();
    if (camera != nullptr) {
        const auto rear = reportedRotation(link.read(camera, &KXPlatformCamera::zToPlatformExtrinsics));
        if (rear) {
            followCompanion(link, block, {"rear", updater.updatePlatformCamera, *rear, block.rectificationPlatform},
                            &texts, out);
        }
    }
    out->companionText = "largest change of an entry, " + texts.join("; ");
}

}  // namespace

BlockFindings checkBlock(ConnectedModule& module) {
    BlockFindings found;
    CheckLine line{"block-twice", "the block is the same when it is read again", Verdict::CannotTell, ""};
    ParameterBackup first, second;
    if (!module.readBlock(&first, &line.text) || !module.readBlock(&second, &line.text)) {
        found.lines.push_back(line);
        return found;
    }
    found.block = first;
    const BlockBytes differing = differences(first.block, second.block);
    line.verdict = verdictOf(differing.none());
    line.text =
        differing.none()
            ? QString("%1 bytes").arg(differing.size())
            : QString("%1 bytes differ, the first one at %2").arg(differing.count()).arg(differing._Find_first());
    found.lines.push_back(line);
    CheckLine matrices{"block-matrices", "the block's matrices are rotations", Verdict::Fits, ""};
    const bool platform = module.sensor().device()->platformCamera() != nullptr;
    if (const char* wrong = matrixThatIsNoRotation(first.block, true, platform); wrong != nullptr) {
        matrices.verdict = Verdict::DoesNotFit;
        matrices.text = QString("%1 is not a rotation").arg(wrong);
    }
    found.lines.push_back(matrices);
    if (matrices.verdict == Verdict::Fits && differing.none()) askCompanion(module.sensor(), first.block, &found);
    return found;
}

CheckLine companionLine(const BlockFindings& findings, Direction shown) {
    CheckLine line{"companion", "an unchanged rotation keeps the block", Verdict::CannotTell, findings.companionText};
    if (findings.companionText.isEmpty()) {
        line.text = "the block or a rotation could not be read";
        return line;
    }
    // If the scene shows that rotations are reported transposed, the module that reports them is at fault, not the
    // companion library.
    const Direction expected = shown == Direction::Transposed ? Direction::Transposed : Direction::AsReported;
    line.verdict = verdictOf(findings.companionAnswers && findings.companion == expected);
    return line;
}

CheckLine writeBackUnchanged(ConnectedModule& module, const ParameterBackup& before) {
    CheckLine line{"write-back", "the block is the same after it was written", Verdict::DoesNotFit, ""};
    Sensor& sensor = module.sensor();
    const bool written = sensor.rewriteParameters();
    const WriteBackReport& report = sensor.writeBack();
    line.text = flashText(report);
    if (!written) {
        line.text = report.reason + ' ' + line.text;
        return line;
    }
    ParameterBackup after;
    QString why;
    if (!module.readBlock(&after, &why)) {
        line.text = why;
        return line;
    }
    const BlockBytes differing = differences(before.block, after.block);
    line.verdict = Verdict::Fits;
    line.text = differing.none() ? QString("written, committed, resumed and read: no byte differs")
                                 : QString("the module changed %1 bytes of its own, the first one at %2")
                                       .arg(differing.count())
                                       .arg(differing._Find_first());
    return line;
}

}  // namespace fieldcal
