#pragma once

#include <functional>
#include <string>
#include <string_view>

class QWidget;

namespace tavmoor {

/// The form that tries a picture: it loads the file as a window would.
class PictureFormatChecker {
public:
    /// Opens a file of the program, given by its document path, in the program that shows it.
    using Opener = std::function<void(const std::string& documentPath)>;

    /// @param owner the window that the box belongs to; may be null
    /// @param programFolder document form, without a backslash at its end
    PictureFormatChecker(QWidget* owner, std::string programFolder, Opener openWorkaround);

    /// Tries a picture before it reaches a field or a window. A refused one brings up a box; Yes
    /// opens the page that tells a way around.
    /// @return -1 when the picture loads, else 0: the caller leaves its field as it was
    [[nodiscard]] int PictureFormatCheck(std::string_view documentPath) const;

private:
    QWidget* owner_;
    std::string programFolder_;
    Opener openWorkaround_;
};

} // namespace tavmoor
