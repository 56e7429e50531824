#pragma once

#include "core/document/project_fields.h"

#include <string>
#include <string_view>

namespace tavmoor {

/// Appends the stored form of a field's value.
/// @param file the file it is written to: in the runtime configuration paths of package files are
///        reduced to their names, and a few forms differ
void AppendFieldText(std::string& text, const ProjectDocument& document, const FieldPlace& place,
                     FieldFile file);

/// The stored form in the project file, as AppendFieldText gives it.
std::string FieldText(const ProjectDocument& document, const FieldPlace& place);

/// Sets a field from its stored form, by the rules of the reader for empty and unusable values: a
/// number that cannot be converted leaves the field as it was.
void AssignFieldText(ProjectDocument& document, const FieldPlace& place, std::string_view text,
                     FieldFile file);

/// Gives a field its new-project value; one that has none stays.
void ResetField(ProjectDocument& document, const FieldPlace& place);

/// True for "", the number 0 and a flag that is off.
bool IsUnset(ConstValueRef value);

} // namespace tavmoor
