#pragma once

#include "core/document/project_fields.h"

#include <string>

namespace tavmoor {

/// The whole text of the project file or of the runtime configuration, as the document stands:
/// sections in order, each line ended by CR LF. Of tables only the rows in use are written.
///
/// The table of additional commands is walked with two counters: one looks at the slots, the other
/// counts the lines written and names both the record that is written and its number. They agree
/// as long as the slots have no hole.
std::string FieldFileText(const ProjectDocument& document, FieldFile file);

} // namespace tavmoor
