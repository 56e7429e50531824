#include "services/values/given_path.h"

#include "core/files/document_path.h"
#include "services/values/native_path_text.h"
#include "services/values/qt_text.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace tavmoor {

namespace {

QString LocalFileOf(const QUrl& url) {
    // Some sources end the address of a folder in a slash.
    return QDir::cleanPath(url.toLocalFile());
}

} // namespace

std::optional<QString> DocumentFormOfFile(const QString& native) {
    const auto document = FindDocumentPath(NativePathOf(native));
    return document ? std::optional(ToQString(*document)) : std::nullopt;
}

QString PathObjection(const QString& native) {
    return QStringLiteral("\"%1\" cannot be used: its name has a character that a disc's texts "
                          "cannot hold, or a backslash.")
        .arg(native);
}

std::optional<QString> NativePathIn(const QString& text) {
    if (text.startsWith(QLatin1String("file:///"), Qt::CaseInsensitive)) {
        return LocalFileOf(QUrl(text));
    }
    // On Windows the two forms are one; elsewhere a native path begins with a slash.
    return text.startsWith(QLatin1Char('/')) ? std::optional(text) : std::nullopt;
}

std::optional<QString> DroppedFile(const QMimeData& data, PathKind kind,
                                   const std::vector<FileFilter>& filters) {
    for (const QUrl& url : data.urls()) {
        const QString native = LocalFileOf(url);
        if (url.isLocalFile() && QFileInfo(native).isDir() == (kind == PathKind::Folder) &&
            PassesFilters(filters, QFileInfo(native).fileName())) {
            return native;
        }
    }
    return std::nullopt;
}

std::optional<QString> PastedFile(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            return LocalFileOf(url);
        }
    }
    return NativePathIn(data.text().section(QLatin1Char('\n'), 0, 0).trimmed());
}

} // namespace tavmoor
