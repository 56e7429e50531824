#pragma once

#include "core/document/project_document.h"

namespace tavmoor {

/// Gives every field that has a new-project value that value, empties the list of package files and
/// clears `ProjectPath`. Fields without one (back window, shadow, shortcuts, fonts, click-through,
/// menu titles, a few positions) keep what the project before held.
void ResetProjectSettings(ProjectDocument& document);

/// Clears the canvas: its size, every button and text slot, the looks of the four fixed texts, and
/// the descriptions of the exit and the sound button.
void ResetObjects(ProjectDocument& document);

/// A document as it is at program start, after both resets.
ProjectDocument NewProjectDocument();

} // namespace tavmoor
