#pragma once

#include "core/document/field_access.h"
#include "services/windows/window_registry.h"

#include <QWidget>

#include <string>
#include <string_view>

namespace tavmoor {

class FieldBinder;

/// What makes a field for a picture.
struct PictureFieldDescription {
    const char* label;       ///< object name of the ValueLabel with the path
    const char16_t* meaning; ///< of the path, its accessible name
    const char* browse;      ///< object names of the two buttons
    const char* remove;
    const char16_t* browseTooltip;
    const char16_t* removeTooltip;
    std::string_view title;  ///< of the file dialog
    std::string_view filter; ///< see field_pickers.h
};

/// A field for a picture's path: a label, on which a file can be dropped as well, and the buttons
/// that choose and remove it.
class PictureField final : public QWidget {
    Q_OBJECT

public:
    /// @param binder shows the path in the label
    /// @param path in document form
    PictureField(const PictureFieldDescription& description, ProgramContext context,
                 FieldBinder& binder, FieldOf<std::string> path, QWidget* parent);

Q_SIGNALS:
    /// The picture was chosen or removed; the field has it already.
    void Changed();

private:
    void Browse();
    void Store(const std::string& path);

    const PictureFieldDescription& description_;
    ProgramContext context_;
    std::string& path_;
};

} // namespace tavmoor
