#pragma once

#include <QPushButton>
#include <QString>

#include <cstdint>

namespace tavmoor {

/// How a picture button looks; the theme's style sheet knows these.
enum class ButtonLook : std::uint8_t {
    Plain,      ///< picture and text in a frame
    Icon,       ///< picture alone, small
    Primary,    ///< the one that moves on
    Navigation, ///< a step of the main window
    Link,       ///< picture and text without a frame
};

/// What makes a picture button.
struct ButtonDescription {
    const char* objectName = "";
    const char* artwork = "";      ///< a drawing's name; "" for none
    const char16_t* text = u"";    ///< with its mnemonic; the system's own texts as they stand
    const char16_t* tooltip = u""; ///< also the accessible name of a button without text
    ButtonLook look = ButtonLook::Plain;
};

/// The button of all windows: a drawing and a text, with a hand cursor.
class PictureButton : public QPushButton {
    Q_OBJECT

public:
    explicit PictureButton(const ButtonDescription& description, QWidget* parent = nullptr);
};

} // namespace tavmoor
