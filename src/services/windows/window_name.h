#pragma once

#include <cstdint>

namespace tavmoor {

/// All windows of the program by their names; what has no window of its own yet is named as well.
enum class WindowName : std::uint8_t {
    Form1,  ///< main window
    Form2,  ///< picture preview
    Form3,  ///< program settings
    Form4,  ///< descriptions of the fixed commands
    Form5,  ///< program splash
    Form6,  ///< back window
    Form7,  ///< templates
    Form8,  ///< final step
    Form9,  ///< fonts
    Form10, ///< additional commands
    Form11, ///< menu titles
    Form12, ///< effects
    Form13, ///< autorun check
    Form14, ///< start messages
    Form15, ///< expiry date and shortcuts
    Form16, ///< canvas
    Form17, ///< design panel
    frmAbout,
    menu1, ///< drop-down of the main window
    menu2, ///< colour menu
    PicPrev,
    ButtonPropertiesWindow,
};

} // namespace tavmoor
