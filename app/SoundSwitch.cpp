#include "app/SoundSwitch.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace fieldcal {

SoundSwitch::SoundSwitch(const QString& dataFolder)
    : offFile_(dataFolder + "/sounds-off"), on_(!QFile::exists(offFile_)) {}

void SoundSwitch::set(bool on) {
    on_ = on;
    QFile file(offFile_);
    const bool kept = on ? !file.exists() || file.remove()
                         : QDir().mkpath(QFileInfo(offFile_).path()) && file.open(QIODevice::WriteOnly);
    if (!kept) qWarning("The choice of sounds cannot be kept: %s", qUtf8Printable(file.errorString()));
}

}  // namespace fieldcal
