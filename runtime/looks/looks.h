#pragma once

#include "menu/look.h"

namespace tavmoor {

// The looks of the templates, one for each program; they are matched to the pictures that show the
// templates when one is chosen.

/// Dark: title on top, commands in groups at the left, what they do at the right.
Look NexusLook();

/// Light: logo and title top left, buttons at the right, picture and description beside them.
Look HarborLook();

/// The picture is the window; wide buttons in rows along the bottom.
Look MarqueeLook();

/// Neutral, for projects of the visual editor: the project's colours as they are.
Look EditorLook();

} // namespace tavmoor
