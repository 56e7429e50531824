#include "core/text/code_page.h"
#include "services/dialogs/message_box.h"
#include "services/dialogs/qt_dialogs.h"
#include "services/system/wait_loop.h"
#include "services/windows/design_panel_place.h"
#include "services/windows/program_session.h"
#include "services/windows/skinned_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <QtTest/QTest>

namespace tavmoor {

namespace {

constexpr WindowLook PlainLook{.name = WindowName::Form9, .objectName = "Form9"};
constexpr WindowLook TemplateLook{
    .name = WindowName::Form7,
    .objectName = "Form7",
    .chrome = {ChromeAction::None, ChromeAction::Minimise, ChromeAction::Close}};

class PlainWindow : public SkinnedWindow {
public:
    explicit PlainWindow(ProgramContext context, const WindowLook& look = PlainLook)
        : SkinnedWindow(context, look) {
        resize(400, 300);
    }
    bool mayUnload = true;
    int unloads = 0;

protected:
    bool MayUnload() override { return mayUnload; }
    void OnUnload() override { ++unloads; }
};

class WindowGround : public testing::Test {
protected:
    WindowGround() {
        windows.Register(WindowName::Form9, [this] { return new PlainWindow({session, windows}); });
    }
    ~WindowGround() override {
        windows.UnloadAll();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    ProgramSession session;
    WindowRegistry windows;
};

} // namespace

TEST_F(WindowGround, AWindowIsLoadedOnceAndUnloadsWhenItMay) {
    auto& window = static_cast<PlainWindow&>(windows.Open(WindowName::Form9));
    EXPECT_EQ(&windows.Open(WindowName::Form9), &window);
    window.mayUnload = false;
    window.close();
    EXPECT_TRUE(window.isVisible());
    window.mayUnload = true;
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(window.unloads, 1);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(windows.Find(WindowName::Form9), nullptr);
    EXPECT_NE(&windows.Open(WindowName::Form9), &window);
}

TEST_F(WindowGround, TheChromeIsToldApartByThirds) {
    auto& window = windows.Open(WindowName::Form9);
    auto* chrome = window.findChild<QWidget*>(QStringLiteral("Image113"));
    const int third = chrome->width() / 3;
    QTest::mouseClick(chrome, Qt::LeftButton, {}, {third + third / 2, 5});
    EXPECT_TRUE(window.isVisible() && !window.isMinimized());
    QTest::mouseClick(chrome, Qt::LeftButton, {}, {2, 5});
    EXPECT_TRUE(window.isMinimized());
    QTest::mouseClick(chrome, Qt::LeftButton, {}, {2 * third + 2, 5});
    EXPECT_EQ(windows.Find(WindowName::Form9), nullptr);

    PlainWindow other({session, windows}, TemplateLook);
    other.show();
    other.RunChrome(0);
    EXPECT_FALSE(other.isMinimized());
    other.RunChrome(1);
    EXPECT_TRUE(other.isMinimized());
}

TEST_F(WindowGround, EnterAndEscapePressTheirButtons) {
    struct KeyWindow : PlainWindow {
        explicit KeyWindow(ProgramContext context) : PlainWindow(context) {
            SetKeyButtons(&ok, &cancel);
        }
        QPushButton ok{this};
        QPushButton cancel{this};
    } window({session, windows});
    int oks = 0;
    int cancels = 0;
    QObject::connect(&window.ok, &QPushButton::clicked, [&] { ++oks; });
    QObject::connect(&window.cancel, &QPushButton::clicked, [&] { ++cancels; });
    window.show();
    QTest::keyClick(&window, Qt::Key_Return);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(oks, 1);
    EXPECT_EQ(cancels, 1);
    window.cancel.setFocus();
    QTest::keyClick(&window.cancel, Qt::Key_Return);
    EXPECT_EQ(cancels, 2) << "Enter presses the button that has the focus";
}

TEST_F(WindowGround, AWindowOutlivesTheHandlerThatLetsEventsRun) {
    const auto twice = [](void (*letRun)()) {
        return [letRun](QWidget&) {
            letRun();
            letRun();
        };
    };
    const std::pair<const char*, std::function<void(QWidget&)>> waits[] = {
        {"time", [](QWidget&) { WaitFor(std::chrono::milliseconds(20)); }},
        {"events", twice(&LetEventsRun)},
        {"events but input", twice(&LetEventsRunWithoutInput)},
        {"box",
         [](QWidget& window) {
             ShowMessageBox(&window, {QStringLiteral("text"), {}});
         }},
        {"dialog", [](QWidget& window) {
             QtDialogs().About({&window, {}, {}, {}});
         }}};
    for (const auto& [name, wait] : waits) {
        const QPointer<ProgramWindow> window(&windows.Open(WindowName::Form9));
        bool outlivedTheWait = false;
        QTimer::singleShot(0, window, [&, &wait = wait] {
            QTimer::singleShot(0, window, [&] {
                window->Unload();
                // What is open stays so until a deletion would have taken place.
                QTimer::singleShot(20, qApp, [] {
                    if (QWidget* dialog = QApplication::activeModalWidget()) {
                        dialog->close();
                    }
                });
            });
            wait(*window);
            outlivedTheWait = !window.isNull();
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); })) << name;
        EXPECT_TRUE(outlivedTheWait) << name;
    }
}

TEST_F(WindowGround, WhatIsKeptOnTopMakesWayForDialogs) {
    PlainWindow window({session, windows}, {.name = WindowName::Form2, .keptOnTop = true});
    window.show();
    const auto isOnTop = [&] {
        return window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    EXPECT_TRUE(isOnTop());
    QTimer::singleShot(0, &window, [&] {
        EXPECT_FALSE(isOnTop());
        QApplication::activeModalWidget()->close();
    });
    ShowMessageBox(nullptr, {QStringLiteral("text"), {}});
    EXPECT_TRUE(isOnTop());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(WindowGround, ButtonsOfWindowsThatDoNotStandSaySo) {
    QPushButton button;
    button.setToolTip(QStringLiteral("Set exit screen"));
    EXPECT_TRUE(EnableWhenStanding(button, windows, WindowName::Form9));
    EXPECT_EQ(button.toolTip(), QStringLiteral("Set exit screen"));
    EXPECT_FALSE(EnableWhenStanding(button, windows, WindowName::Form16));
    EXPECT_FALSE(button.isEnabled());
    EXPECT_EQ(button.toolTip(), QStringLiteral("Set exit screen\nThis window is not part of this "
                                               "version yet."));
}

TEST_F(WindowGround, AnActiveWindowLeavesTheDesignPanelFree) {
    constexpr WindowLook PanelLook{.name = WindowName::Form17, .objectName = "Form17"};
    windows.Register(WindowName::Form17, [&] {
        return new PlainWindow({session, windows}, PanelLook);
    });
    auto& panel = windows.Open(WindowName::Form17);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    const QRect place = panel.frameGeometry();
    auto& window = windows.Open(WindowName::Form9);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_FALSE(window.frameGeometry().intersects(panel.frameGeometry()));
    EXPECT_EQ(panel.frameGeometry(), place);
}

TEST(DesignPanelPlace, KeepsOutFromUnderTheDesignPanel) {
    const QRect screen(0, 0, 1280, 900);
    const QRect panel(900, 100, 300, 600);
    EXPECT_EQ(PlaceBesidePanel({0, 0, 400, 300}, panel, screen), std::nullopt);
    EXPECT_EQ(PlaceBesidePanel({700, 120, 400, 300}, panel, screen), QPoint(500, 120));
    EXPECT_EQ(PlaceBesidePanel({100, 120, 1000, 300}, panel, screen), QPoint(139, 120));
}

} // namespace tavmoor
