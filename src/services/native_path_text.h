#pragma once

#include <QFileInfo>
#include <QString>

#include <filesystem>

namespace tavmoor {

/// A native path as Qt's own file functions take it.
inline QString NativePathText(const std::filesystem::path& path) {
    return QFileInfo(path).filePath();
}

} // namespace tavmoor
