#pragma once

#include "services/windows/skinned_window.h"

#include <QPointer>

namespace tavmoor {

/// `menu2`, the colour menu: a colour comes from the palette or from a picture. Its result goes to
/// the session's MenuResult; a menu that is left without a choice gives CancelledResult, so that
/// who waits for it goes on. PickColor opens it.
class menu2 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit menu2(ProgramContext context);

    /// The window that asks for the colour: the dialogs that follow are modal to it.
    void SetAsking(QWidget* asking) { asking_ = asking; }

protected:
    void OnUnload() override;

private:
    /// A way to choose: it outlives the menu and leaves a result, or a window that will.
    using Way = void (*)(ProgramContext context, QWidget* asking);
    void AddEntry(const char* objectName, const char16_t* text, const char* artwork, Way way);
    void Take(Way way);

    QPointer<QWidget> asking_;
    bool wayTaken_ = false;
};

} // namespace tavmoor
