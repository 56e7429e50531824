#pragma once

#include "services/windows/window_registry.h"

#include <array>
#include <cstdint>

class QAbstractButton;

namespace tavmoor {

struct ProjectDocument;
class ChromeStrip;

enum class ChromeAction : std::uint8_t { None, Minimise, Close };

/// What the left, the middle and the right third of the chrome do.
using ChromeThirds = std::array<ChromeAction, 3>;

inline constexpr ChromeThirds UsualChrome{ChromeAction::Minimise, ChromeAction::None,
                                          ChromeAction::Close};
inline constexpr ChromeThirds NoChrome{};

/// How a skinned window looks and behaves; a constant for each window.
struct WindowLook {
    WindowName name = WindowName::Form1;
    const char* objectName = "";
    const char16_t* title = u"";     ///< title strip and task bar
    const char* dragArea = "Image2"; ///< object name of the title strip; "" for a window without
    ChromeThirds chrome = UsualChrome;
    bool keptOnTop = false;      ///< but not over dialogs and message boxes, which it could hide
    bool closesWhenLeft = false; ///< closes when another window becomes active
    bool escapeCloses = true;
};

/// The base of every window: borderless, with the frame `Shape1`, a title strip that drags it and
/// the chrome `Image113` at the strip's right end.
///
/// Its life: constructed, Load (once, before it is seen), Present (shown and brought to the front,
/// any number of times), Unload. Unloading asks MayUnload, calls OnUnload, brings the main window
/// back when the window was opened in its place, and deletes the window once control is back in the
/// event loop.
class SkinnedWindow : public ProgramWindow {
    Q_OBJECT

public:
    SkinnedWindow(ProgramContext context, const WindowLook& look);
    ~SkinnedWindow() override;

    void Load() final;
    void Present() final;
    bool Unload() final;
    [[nodiscard]] bool IsUnloaded() const final { return unloaded_; }
    void SetBringsMainBack(bool brings) final { bringsMainBack_ = brings; }

    /// A window that is hidden by its close command and keeps its fields, instead of unloading.
    void SetHidesOnClose(bool hides) { hidesOnClose_ = hides; }

    [[nodiscard]] const WindowLook& Look() const { return look_; }
    /// Does what the chrome does in one of its thirds (0 to 2).
    void RunChrome(int third);
    /// Lets the platform drag the window by the mouse button that is down.
    void Drag();

protected:
    /// The area below the title strip, where the window's own layout goes.
    [[nodiscard]] QWidget* Body() const { return body_; }
    [[nodiscard]] ProgramSession& Session() const { return context_.session; }
    [[nodiscard]] ProjectDocument& Document() const;
    [[nodiscard]] WindowRegistry& Windows() const { return context_.windows; }
    [[nodiscard]] ProgramContext Context() const { return context_; }

    /// Fills the fields; the window is not visible yet.
    virtual void OnLoad() {}
    /// The window became the active one.
    virtual void OnActivate() {}
    /// False keeps the window open.
    virtual bool MayUnload() { return true; }
    virtual void OnUnload() {}

    /// Enter presses the first button from anywhere in the window that does not need Enter itself,
    /// Esc the second; either may be null.
    void SetKeyButtons(QAbstractButton* enter, QAbstractButton* escape);

    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void KeepOnTop(bool kept);
    void BringMainBackWhenDue();
    void PlaceChrome();

    ProgramContext context_;
    WindowLook look_;
    ChromeStrip* chrome_ = nullptr;
    QWidget* body_ = nullptr;
    QAbstractButton* enterButton_ = nullptr;
    QAbstractButton* escapeButton_ = nullptr;
    bool loaded_ = false;
    bool unloaded_ = false;
    bool bringsMainBack_ = false;
    bool hidesOnClose_ = false;
};

} // namespace tavmoor
