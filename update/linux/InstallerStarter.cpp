#include "update/InstallerStarter.h"

namespace fieldcal {
namespace {

class NoInstallers : public InstallerStarter {
public:
    std::optional<UpdateFailure> obstacle() override {
        qInfo("There are no installers for this system.");
        return UpdateFailure::NoInstallers;
    }
    std::optional<UpdateFailure> start(const QString& /*installer*/, const QString& /*arguments*/,
                                       const ExpectedInstaller& /*expected*/) override {
        return obstacle();
    }
};

}  // namespace

std::unique_ptr<InstallerStarter> systemInstallerStarter() {
    return std::make_unique<NoInstallers>();
}

}  // namespace fieldcal
