#pragma once

#include <QString>

#include <filesystem>

namespace tavmoor {

/// A native path as Qt's classes take it, with the separators of this system.
QString NativePathText(const std::filesystem::path& path);

/// The native path that a text of Qt's classes says.
std::filesystem::path NativePathOf(const QString& text);

} // namespace tavmoor
