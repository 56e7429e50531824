#pragma once

#include <array>
#include <cstdint>
#include <string_view>

// The words that a project holds, as its files have them; windows offer them and autorun programs
// compare them. All are plain ASCII, the same in every code page.
namespace tavmoor::words {

// The kind of a command.
inline constexpr std::string_view OpenFile = "Open file";
inline constexpr std::string_view RunProgram = "Run program";
inline constexpr std::string_view VisitWebPage = "Visit web page";
inline constexpr std::string_view SendMail = "Send mail";

/// The kinds in the order in which windows offer them.
inline constexpr std::array CommandKinds{SendMail, VisitWebPage, RunProgram, OpenFile};

// The place of a picture or a text on a screen, and of the picture in the window behind the menu.
inline constexpr std::string_view TopLeft = "Top left";
inline constexpr std::string_view TopRight = "Top right";
inline constexpr std::string_view TopCenter = "Top center";
/// Misspelt in every project that there is, and so for good.
inline constexpr std::string_view BottomLeft = "Botton left";
inline constexpr std::string_view BottomRight = "Bottom right";
inline constexpr std::string_view BottomCenter = "Bottom center";
/// As the screens offer it; who reads a place takes it without its mark, too.
inline constexpr std::string_view CenteredOnWindowEntry = "Centered on window!";
inline constexpr std::string_view CenteredOnWindow =
    CenteredOnWindowEntry.substr(0, CenteredOnWindowEntry.size() - 1);

/// The places on a screen in the order in which windows offer them.
inline constexpr std::array ScreenPlaces{
    TopLeft, TopRight, TopCenter, BottomLeft, BottomRight, BottomCenter, CenteredOnWindowEntry};

// Style and effects of the logo text. Both effects stand with ", " between them.
inline constexpr std::string_view Bold = "Bold";
inline constexpr std::string_view Italic = "Italic";
inline constexpr std::string_view StrikeThru = "StrikeThru";
inline constexpr std::string_view Underline = "Underline";
/// Effects that begin so strike the text out.
inline constexpr std::string_view StrikeThruStart = StrikeThru.substr(0, 6);
/// Effects that end so underline the text.
inline constexpr std::string_view UnderlineEnd = Underline.substr(5);

/// A caption that is blank on purpose; looks blank and is not "".
inline constexpr std::string_view BlankCaption = "  ";
/// The same caption in a file, where blanks at the end of a line are lost.
inline constexpr std::string_view BlankCaptionToken = "#Empty#";
/// The title of a free slot of the additional commands, beside "".
inline constexpr std::string_view FreeSlot = " ";
/// The caption of the exit command where the project has none.
inline constexpr std::string_view ExitCaption = "Exit";

/// The ending of a project file's name.
inline constexpr std::string_view ProjectEnding = ".tavp";
/// What the dialogs that open and save projects list.
inline constexpr std::string_view ProjectFilter = "Tavmoor project (.tavp)| *.tavp";

/// The identities of the six fixed commands on the canvas, in slots 1 to 6: a button whose
/// `DugmeID` equals FixedButtonId[n] is fixed command n.
inline constexpr std::array<std::int32_t, 7> FixedButtonId{0,       1093303, 4399733, 2133823,
                                                           5093223, 7093523, 9493723};

} // namespace tavmoor::words
