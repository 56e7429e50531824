#pragma once

#include <QString>

namespace tavmoor {

/// Why no sound can be played on this computer, in words for the user; "" when it can. To be asked
/// before anything of Qt Multimedia is used: without a backend that ends the program.
QString SoundOutputObjection();

} // namespace tavmoor
