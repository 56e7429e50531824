#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tavmoor {

/// One kind of files in a file dialog.
struct FileFilter {
    QString name;         ///< as the dialog shows it, such as "Icons (*.ico)"
    QStringList patterns; ///< such as "*.ico"; the blanks around them are gone
};

/// The pairs "name|patterns|name|patterns" of a dialog's `Filter`. Patterns are parted by ';'. A
/// name without patterns shows all files.
std::vector<FileFilter> ParseFilter(QStringView filter);

/// True when one of the filters shows a file of that name, and when there are none.
bool PassesFilters(const std::vector<FileFilter>& filters, const QString& fileName);

/// The filters as Qt's file dialogs take them. File names count without regard to case on every
/// system, and "*.*" takes names without a dot, too.
QStringList QtNameFilters(const std::vector<FileFilter>& filters);

} // namespace tavmoor
