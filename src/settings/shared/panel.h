#pragma once

#include "services/fields/field_binding.h"
#include "services/windows/window_registry.h"

#include <QFrame>

#include <cstdint>

namespace tavmoor {

struct ProgramSession;

/// The panels of the main window; exactly one is visible.
enum class PanelName : std::uint8_t {
    Frame2,  ///< main settings
    Frame3,  ///< autorun info
    Frame4,  ///< fixed commands
    Frame5,  ///< sound
    Frame9,  ///< splash screen
    Frame12, ///< exit screen
};
inline constexpr std::size_t PanelCount = 6;

/// The base of the panels: a heading, a body for the panel's own layout, and the binder that ties
/// its controls to the document. The document is the truth; a panel shows it and changes it.
class Panel : public QFrame {
    Q_OBJECT

public:
    Panel(ProgramContext context, const char* objectName, const char16_t* heading, QWidget* parent);

    /// Shows the document's values afresh.
    virtual void ShowDocument();

protected:
    [[nodiscard]] ProgramSession& Session() const { return context_.session; }
    [[nodiscard]] ProjectDocument& Document() const;
    [[nodiscard]] WindowRegistry& Windows() const { return context_.windows; }
    [[nodiscard]] ProgramContext Context() const { return context_; }
    [[nodiscard]] QWidget* Body() const { return body_; }

    /// Ties the panel's controls to their fields; input is stored at once.
    [[nodiscard]] FieldBinder& Binder() const { return *binder_; }

private:
    ProgramContext context_;
    QWidget* body_;
    FieldBinder* binder_;
};

} // namespace tavmoor
