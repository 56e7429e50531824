#include "services/windows/skinned_window.h"

#include "services/look/artwork.h"
#include "services/look/theme.h"
#include "services/system/wait_loop.h"
#include "services/values/twips.h"
#include "services/windows/design_panel_place.h"
#include "services/windows/program_session.h"
#include "services/windows/window_strips.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QWindow>

namespace tavmoor {

namespace {

Qt::WindowFlags FlagsOf(const WindowLook& look) {
    Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint;
    if (look.keptOnTop) {
        flags |= Qt::WindowStaysOnTopHint;
    }
    return flags;
}

bool HasStrip(const WindowLook& look) {
    return look.dragArea[0] != '\0';
}

bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Ticks and options are set by Space; Enter goes on from them.
bool TakesEnter(const QAbstractButton* button) {
    return button != nullptr && qobject_cast<const QCheckBox*>(button) == nullptr &&
           qobject_cast<const QRadioButton*>(button) == nullptr;
}

} // namespace

SkinnedWindow::SkinnedWindow(ProgramContext context, const WindowLook& look)
    : ProgramWindow(nullptr, FlagsOf(look)), context_(context), look_(look) {
    setObjectName(QString::fromLatin1(look.objectName));
    setAttribute(Qt::WA_QuitOnClose, look.name == WindowName::Form1);
    const QString title = QString::fromUtf16(look.title);
    setWindowTitle(title);
    auto* layout = new QVBoxLayout(this);
    // The frame is painted on the window's own outermost pixels.
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    if (HasStrip(look)) {
        layout->addWidget(new TitleStrip(*this, title));
    }
    body_ = new QWidget(this);
    layout->addWidget(body_, 1);
    if (look.chrome != NoChrome) {
        chrome_ = new ChromeStrip(*this, look.chrome);
    }
}

SkinnedWindow::~SkinnedWindow() = default;

ProjectDocument& SkinnedWindow::Document() const {
    return context_.session.document;
}

void SkinnedWindow::Load() {
    if (loaded_) {
        return;
    }
    loaded_ = true;
    OnLoad();
    PlaceChrome();
}

void SkinnedWindow::Present() {
    show();
    if (isMinimized()) {
        showNormal();
    }
    raise();
    activateWindow();
}

bool SkinnedWindow::Unload() {
    if (unloaded_) {
        return true;
    }
    if (!MayUnload()) {
        return false;
    }
    unloaded_ = true;
    OnUnload();
    hide();
    BringMainBackWhenDue();
    Q_EMIT Unloaded();
    DeleteAfterWaits(*this);
    return true;
}

void SkinnedWindow::BringMainBackWhenDue() {
    if (bringsMainBack_ && Windows().Main() != nullptr) {
        Windows().Main()->SetVisible(true);
    }
}

void SkinnedWindow::RunChrome(int third) {
    switch (look_.chrome.at(static_cast<std::size_t>(third))) {
    case ChromeAction::Minimise:
        showMinimized();
        break;
    case ChromeAction::Close:
        close();
        break;
    case ChromeAction::None:
        break;
    }
}

void SkinnedWindow::Drag() {
    // A platform without a window manager of its own has nothing to drag with.
    if (windowHandle() != nullptr) {
        windowHandle()->startSystemMove();
    }
}

void SkinnedWindow::SetKeyButtons(QAbstractButton* enter, QAbstractButton* escape) {
    enterButton_ = enter;
    escapeButton_ = escape;
}

bool SkinnedWindow::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate && !unloaded_) {
        KeepOutFromUnderDesignPanel(*this, look_.name, Windows());
        OnActivate();
    } else if (event->type() == QEvent::WindowDeactivate && look_.closesWhenLeft) {
        Unload();
    } else if (event->type() == QEvent::WindowBlocked && look_.keptOnTop) {
        KeepOnTop(false);
    } else if (event->type() == QEvent::WindowUnblocked && look_.keptOnTop) {
        KeepOnTop(true);
    }
    return handled;
}

void SkinnedWindow::KeepOnTop(bool kept) {
    // The widget's own flags would hide the window first.
    if (windowHandle() != nullptr) {
        windowHandle()->setFlag(Qt::WindowStaysOnTopHint, kept);
    }
}

void SkinnedWindow::closeEvent(QCloseEvent* event) {
    if (unloaded_) {
        event->accept();
        return;
    }
    // Unloading hides and deletes; Qt has nothing left to do.
    event->ignore();
    if (hidesOnClose_) {
        hide();
        BringMainBackWhenDue();
    } else {
        Unload();
    }
}

void SkinnedWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        if (escapeButton_ != nullptr) {
            escapeButton_->click();
        } else if (look_.escapeCloses) {
            close();
        }
        return;
    }
    if (IsEnter(event->key())) {
        auto* focused = qobject_cast<QAbstractButton*>(focusWidget());
        auto* button = TakesEnter(focused) ? focused : enterButton_;
        if (button != nullptr && button->isEnabled()) {
            button->click();
        }
        return;
    }
    QWidget::keyPressEvent(event);
}

void SkinnedWindow::paintEvent(QPaintEvent* /*event*/) {
    // The frame `Shape1`.
    QPainter painter(this);
    painter.setPen(theme::FrameBorder);
    painter.setBrush(theme::WindowBack);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void SkinnedWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceChrome();
}

void SkinnedWindow::PlaceChrome() {
    if (chrome_ == nullptr) {
        return;
    }
    constexpr int RightGap = 100; // twips
    chrome_->move(width() - chrome_->width() - PixelsOf(RightGap),
                  1 + (theme::TitleHeight - chrome_->height()) / 2);
    chrome_->raise();
}

} // namespace tavmoor
