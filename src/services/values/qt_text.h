#pragma once

#include <QString>
#include <QStringView>

#include <string>
#include <string_view>

namespace tavmoor {

/// The text of the core (bytes in the system's code page) as the windows show it.
QString ToQString(std::string_view codePageText);

/// A text of a window in the system's code page. Characters that have no place there become '?';
/// fields of the project refuse them before that, see CodePageObjection.
std::string FromQString(QStringView text);

/// True when every character of the text has a place in the system's code page.
bool FitsCodePage(QStringView text);

/// Why a text is refused, naming the first character that has no place in the system's code page;
/// "" for a text that fits. For tooltips of marked fields.
QString CodePageObjection(QStringView text);

} // namespace tavmoor
