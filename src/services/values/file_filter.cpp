#include "services/values/file_filter.h"

#include <QDir>

#include <algorithm>

namespace tavmoor {

namespace {

/// Takes names without a dot, too.
constexpr QLatin1String AllFiles("*.*");

QStringList PatternsOf(QStringView text) {
    QStringList patterns;
    for (const QStringView pattern : text.split(u';')) {
        if (const QStringView trimmed = pattern.trimmed(); !trimmed.isEmpty()) {
            patterns << trimmed.toString();
        }
    }
    return patterns.isEmpty() ? QStringList(AllFiles) : patterns;
}

#ifdef Q_OS_WIN
QString PlatformPattern(const QString& pattern) {
    return pattern;
}
#else
/// Some of the dialogs behind Qt tell upper from lower case, so each letter stands as a set of
/// both.
QString PlatformPattern(const QString& pattern) {
    if (pattern == AllFiles) {
        return QStringLiteral("*");
    }
    QString both;
    for (const QChar character : pattern) {
        if (character.toLower() == character.toUpper()) {
            both += character;
        } else {
            both += u'[' + QString(character.toLower()) + character.toUpper() + u']';
        }
    }
    return both;
}
#endif

} // namespace

std::vector<FileFilter> ParseFilter(QStringView filter) {
    std::vector<FileFilter> filters;
    if (filter.isEmpty()) {
        return filters;
    }
    const auto parts = filter.split(u'|');
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        const QStringView patterns = i + 1 < parts.size() ? parts[i + 1] : QStringView();
        filters.push_back({parts[i].toString(), PatternsOf(patterns)});
    }
    return filters;
}

bool PassesFilters(const std::vector<FileFilter>& filters, const QString& fileName) {
    return filters.empty() || std::ranges::any_of(filters, [&](const FileFilter& filter) {
               return filter.patterns.contains(AllFiles) || QDir::match(filter.patterns, fileName);
           });
}

QStringList QtNameFilters(const std::vector<FileFilter>& filters) {
    QStringList names;
    for (const FileFilter& filter : filters) {
        QStringList patterns;
        for (const QString& pattern : filter.patterns) {
            patterns << PlatformPattern(pattern);
        }
        names << QStringLiteral("%1 (%2)").arg(filter.name, patterns.join(u' '));
    }
    return names;
}

} // namespace tavmoor
