#pragma once

#include "menu/autorun_disc.h"

namespace tavmoor {

/// The short sound of pointing and clicking, played from memory. Without one, or on a machine
/// without a sound device, it is silent.
class ClickSound {
public:
    explicit ClickSound(AutorunDisc& disc);
    ClickSound(const ClickSound&) = delete;
    ClickSound& operator=(const ClickSound&) = delete;
    ~ClickSound();

    /// Plays from the beginning and returns at once.
    void Play() const;

private:
    std::string wave_; ///< "" for none
};

} // namespace tavmoor
