#include "sound/CuePlayer.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <array>

namespace fieldcal {
namespace {

/// The desktop's player, or that of the sound driver; empty where there is neither.
QString findPlayer() {
    for (const char* name : {"pw-play", "paplay", "aplay"}) {
        QString path = QStandardPaths::findExecutable(name);
        if (!path.isEmpty()) return path;
    }
    return {};
}

/// The cues as files, because not every player reads its standard input.
class CueFiles {
public:
    QString fileOf(Cue cue) {
        QString& name = names_.at(static_cast<std::size_t>(cue));
        if (!name.isEmpty() || !folder_.isValid()) return name;
        QFile file(folder_.filePath(QString("%1.wav").arg(static_cast<int>(cue))));
        const QByteArray wave = cueWave(cue);
        if (file.open(QIODevice::WriteOnly) && file.write(wave) == wave.size()) name = file.fileName();
        return name;
    }

private:
    QTemporaryDir folder_;
    std::array<QString, kCueCount> names_;
};

}  // namespace

void playCue(Cue cue) {
    static const QString player = findPlayer();
    if (player.isEmpty()) return;
    static CueFiles files;
    const QString file = files.fileOf(cue);
    if (file.isEmpty()) return;
    QProcess process;
    process.setProgram(player);
    process.setArguments({file});
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

}  // namespace fieldcal
