#pragma once

#include <QColor>
#include <QFont>

class QApplication;
class QWidget;

namespace tavmoor::theme {

// All colours, fonts and distances of the program's windows; distances in logical pixels.

inline constexpr QColor WindowBack{0xF5, 0xF7, 0xFA};
inline constexpr QColor Surface{0xFF, 0xFF, 0xFF};
inline constexpr QColor TitleBack{0x22, 0x32, 0x4A};
inline constexpr QColor TitleText{0xFF, 0xFF, 0xFF};
inline constexpr QColor Text{0x1F, 0x29, 0x37};
inline constexpr QColor QuietText{0x55, 0x61, 0x73};
inline constexpr QColor DisabledText{0x8A, 0x94, 0xA3};
inline constexpr QColor Border{0xC7, 0xCF, 0xDA};
inline constexpr QColor FrameBorder{0x22, 0x32, 0x4A};
inline constexpr QColor Accent{0x2F, 0x6D, 0xB5};
inline constexpr QColor AccentDark{0x24, 0x57, 0x93};
inline constexpr QColor AccentPale{0xE3, 0xEE, 0xFA};
inline constexpr QColor Hover{0xEA, 0xEF, 0xF6};
inline constexpr QColor Refused{0xC0, 0x2B, 0x2B};
inline constexpr QColor RefusedName{0xFF, 0xFF, 0x00}; ///< back of an autorun name
inline constexpr QColor AcceptedName{0xFF, 0xFF, 0xFF};
inline constexpr QColor ChromeHover{0x3A, 0x4F, 0x70};

inline constexpr int TitleHeight = 36;
inline constexpr int Margin = 14;
inline constexpr int Gap = 8;
inline constexpr int Radius = 5;
inline constexpr int IconSize = 20;
inline constexpr int ControlHeight = 26;

/// The font of all controls.
QFont BaseFont();
/// Headings of windows and panels.
QFont HeadingFont();
/// Notes below a control.
QFont NoteFont();

/// Gives the application its style, palette, font and style sheet.
void Apply(QApplication& application);

/// Shows a control as refusing its input (red border) or as fine again.
void MarkRefused(QWidget& control, bool refused);

} // namespace tavmoor::theme
