#pragma once

#include "services/values/file_filter.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

class QMimeData;

namespace tavmoor {

// Paths as the user gives them: typed, pasted or dropped, and how the document says them.

/// What a field takes when something is dropped on it.
enum class PathKind : std::uint8_t { File, Folder };

/// The document form of a native path; nothing for one that the document cannot say.
std::optional<QString> DocumentFormOfFile(const QString& native);

/// Why such a path is refused.
QString PathObjection(const QString& native);

/// The native path in a text that was typed: an absolute path of this system, or the path of an
/// address "file://". Nothing for other texts, which the document takes as they are.
std::optional<QString> NativePathIn(const QString& text);

/// The native path of the first local file or folder of a drop that is of the kind and that the
/// filters let through.
std::optional<QString> DroppedFile(const QMimeData& data, PathKind kind,
                                   const std::vector<FileFilter>& filters = {});

/// The native path of the first file or folder on a clipboard, as file managers or as text name it.
std::optional<QString> PastedFile(const QMimeData& data);

} // namespace tavmoor
