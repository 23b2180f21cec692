#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace fieldcal {

enum class Cue { Photo, LightLost, Found, Failed, Stored };
constexpr int kCueCount = 5;

/// The names are those that the interface uses: "photo", "lightLost", "found", "failed", "stored".
std::optional<Cue> cueNamed(const QString& name);

/// Returns a cue as a WAV file: mono, 16 bit, 44100 samples per second, shorter than a second. Rising notes mean
/// progress, falling ones a fault. Any thread.
QByteArray cueWave(Cue cue);

}  // namespace fieldcal
