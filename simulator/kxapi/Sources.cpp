#include "simulator/kxapi/Sources.h"

#include "simulator/kxapi/SessionPlayer.h"
#include "simulator/kxapi/WorldSource.h"

#include <QDir>
#include <QStandardPaths>

namespace kxsim {

bool hasSource(const Settings& settings) {
    return !settings.session.empty() || canRenderWorlds;
}

std::unique_ptr<FrameSource> openSource(const Settings& settings, std::string* why) {
    if (!settings.session.empty()) return SessionPlayer::open(settings.session, why);
    return openWorld(settings, why);
}

std::string blockFile(const Settings& settings, std::uint32_t serial) {
    if (!settings.flash.empty() || !settings.session.empty()) return settings.flash;
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/simulated-deepvane";
    QDir().mkpath(folder);
    return QString("%1/module-%2.block").arg(folder).arg(serial).toStdString();
}

}  // namespace kxsim
