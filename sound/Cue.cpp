#include "sound/Cue.h"

#include <QDataStream>
#include <QHash>

#include <algorithm>
#include <cmath>
#include <vector>

namespace fieldcal {
namespace {

constexpr int kRate = 44100;
constexpr double kLoudness = 0.5;  ///< of full scale
constexpr double kAttackS = 0.008;
constexpr double kTwoPi = 6.283185307179586;
constexpr quint32 kHeaderBytes = 36;  ///< of a WAV file after its first chunk's length
constexpr quint16 kPcm = 1;
constexpr quint16 kBytesPerSample = 2;

struct Note {
    double hertz;
    double seconds;
};

std::vector<Note> notesOf(Cue cue) {
    switch (cue) {
        case Cue::Photo:
            return {{1568, 0.09}};
        case Cue::LightLost:
            return {{740, 0.14}, {523, 0.2}};
        case Cue::Found:
            return {{784, 0.11}, {988, 0.11}, {1175, 0.22}};
        case Cue::Failed:
            return {{440, 0.2}, {330, 0.2}, {262, 0.3}};
        case Cue::Stored:
            return {{784, 0.13}, {1175, 0.13}, {1568, 0.4}};
    }
    return {};
}

/// A note with its octave, which fades in quickly and out slowly, so that its ends do not click.
void append(const Note& note, std::vector<qint16>* samples) {
    const int count = static_cast<int>(note.seconds * kRate);
    for (int i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / kRate;
        const double left = 1 - t / note.seconds;
        const double envelope = std::min(1.0, t / kAttackS) * left * left;
        const double tone = 0.75 * std::sin(kTwoPi * note.hertz * t) + 0.25 * std::sin(2 * kTwoPi * note.hertz * t);
        samples->push_back(static_cast<qint16>(std::lround(32767 * kLoudness * envelope * tone)));
    }
}

}  // namespace

std::optional<Cue> cueNamed(const QString& name) {
    static const QHash<QString, Cue> cues{{"photo", Cue::Photo},
                                          {"lightLost", Cue::LightLost},
                                          {"found", Cue::Found},
                                          {"failed", Cue::Failed},
                                          {"stored", Cue::Stored}};
    const auto at = cues.find(name);
    return at != cues.end() ? std::optional<Cue>(*at) : std::nullopt;
}

QByteArray cueWave(Cue cue) {
    std::vector<qint16> samples;
    for (const Note& note : notesOf(cue))
        append(note, &samples);
    const auto bytes = static_cast<quint32>(samples.size() * kBytesPerSample);
    QByteArray wave;
    QDataStream out(&wave, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << kHeaderBytes + bytes;
    out.writeRawData("WAVEfmt ", 8);
    out << quint32{16} << kPcm << quint16{1} << quint32{kRate} << quint32{kRate * kBytesPerSample} << kBytesPerSample
        << quint16{8 * kBytesPerSample};
    out.writeRawData("data", 4);
    out << bytes;
    for (const qint16 sample : samples)
        out << sample;
    return wave;
}

}  // namespace fieldcal
