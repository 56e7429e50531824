#include "window/click_sound.h"

#include "menu/sound_plan.h"

#include <windows.h>

#include <mmsystem.h>

namespace tavmoor {

ClickSound::ClickSound(AutorunDisc& disc)
    : wave_(disc.ReadFile(ClickSoundFile(disc.Document().Zvuk)).value_or("")) {
    if (!IsWholeWave(wave_)) {
        wave_.clear();
    }
}

ClickSound::~ClickSound() {
    if (!wave_.empty()) {
        PlaySoundW(nullptr, nullptr, 0); // it still reads from the bytes
    }
}

void ClickSound::Play() const {
    if (!wave_.empty()) {
        PlaySoundW(reinterpret_cast<LPCWSTR>(wave_.data()), nullptr,
                   SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
    }
}

} // namespace tavmoor
