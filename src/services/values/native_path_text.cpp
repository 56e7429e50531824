#include "services/values/native_path_text.h"

#include <QDir>
#include <QFileInfo>

namespace tavmoor {

QString NativePathText(const std::filesystem::path& path) {
    return QDir::toNativeSeparators(QFileInfo(path).filePath());
}

std::filesystem::path NativePathOf(const QString& text) {
    return QFileInfo(text).filesystemFilePath().make_preferred();
}

} // namespace tavmoor
