#include "update/ProgramIdentity.h"

namespace fieldcal {
namespace {

constexpr const char* kProduct = "Field Calibrator";

}  // namespace

QString reasonToRefuse(const std::optional<ProgramIdentity>& stated, const ExpectedInstaller& expected) {
    if (!stated) return QStringLiteral("it states neither product nor version");
    if (stated->product != kProduct) return QStringLiteral("it is one of the product \"%1\"").arg(stated->product);
    if (!(stated->version == expected.offered)) {
        return QStringLiteral("it is version %1, not %2").arg(stated->version.text(), expected.offered.text());
    }
    if (expected.running < stated->version) return {};
    return QStringLiteral("version %1 is no newer than this one").arg(stated->version.text());
}

}  // namespace fieldcal
