#pragma once

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace fieldcal::testing {

/// A rendered recording: the one of this name in the folder FIELDCAL_RECORDINGS (`tests/render-recordings`) if there is
/// one; otherwise created on first use and removed when the program ends.
inline QString renderedRecording(const QString& name, const QStringList& options) {
    const QString prepared = qEnvironmentVariable("FIELDCAL_RECORDINGS");
    if (!prepared.isEmpty() && QDir(prepared).exists(name)) return prepared + '/' + name;
    static const QTemporaryDir folder;
    QString path = folder.filePath(name);
    if (!QDir(path).exists()) {
        EXPECT_EQ(QProcess::execute(TOOL, QStringList{"synthesize", path} + options), 0) << name.toStdString();
    }
    return path;
}

/// Six stills of the mountains, where nothing is near, with the rear camera.
inline QString mountainRecording() {
    return renderedRecording("mountains", {"--world", "mountains", "--seed", "10", "--stills", "6", "--platform"});
}
/// Three stills of the square from the same module; depth covers some of the objects.
inline QString squareRecording() {
    return renderedRecording("square", {"--world", "square", "--seed", "10", "--stills", "3"});
}
/// Two stills of the world `night`.
inline QString nightRecording() {
    return renderedRecording("night", {"--world", "night", "--stills", "2"});
}

}  // namespace fieldcal::testing
