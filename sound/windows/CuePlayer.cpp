#include "sound/CuePlayer.h"

#include <array>
#include <windows.h>

namespace fieldcal {

void playCue(Cue cue) {
    // The system reads the memory while it plays.
    static const std::array<QByteArray, kCueCount> waves{
        cueWave(Cue::Photo), cueWave(Cue::LightLost), cueWave(Cue::Found), cueWave(Cue::Failed), cueWave(Cue::Stored)};
    const QByteArray& wave = waves.at(static_cast<std::size_t>(cue));
    PlaySoundA(wave.constData(), nullptr, SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
}

}  // namespace fieldcal
