#include "services/colors/color_pick.h"

#include "services/colors/color_picture_view.h"
#include "services/system/wait_loop.h"
#include "services/values/native_path_text.h"
#include "support/service_windows.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QTimer>
#include <QtTest/QTest>

namespace tavmoor {

class ColorTools : public test::ServiceWindows {
protected:
    /// Begins a colour choice, and does something while it waits.
    std::optional<ColorValue> PickWhile(const std::function<void()>& act) {
        QTimer::singleShot(0, &asking_, act);
        return PickColor(Context(), {20, 20}, asking_);
    }
    void TakeWay(const char* entry) { Click(*Shown(WindowName::menu2), entry); }

    /// A picture of 40 by 20 pixels, red at its left, blue at its right; its document path.
    std::string WritePicture() {
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        for (int x = 20; x < 40; ++x) {
            for (int y = 0; y < 20; ++y) {
                image.setPixelColor(x, y, Qt::blue);
            }
        }
        EXPECT_TRUE(image.save(NativePathText(folder.Native("two.bmp"))));
        return folder.Document("two.bmp");
    }
    SkinnedWindow& OpenPicture() {
        TakeWay("Label1");
        return *Shown(WindowName::PicPrev);
    }

    static constexpr ColorValue Red = 0x0000FF;
    static constexpr ColorValue Blue = 0xFF0000;
    test::ScriptedDialogs dialogs;
    QWidget asking_;
};

TEST_F(ColorTools, ThePaletteGivesAColorOrNone) {
    dialogs.colors = {QColor(1, 2, 3), std::nullopt};
    EXPECT_EQ(PickWhile([this] { TakeWay("Label2"); }), 0x030201);
    EXPECT_EQ(PickWhile([this] { TakeWay("Label2"); }), std::nullopt);
    EXPECT_EQ(Shown(WindowName::menu2), nullptr);
    EXPECT_EQ(dialogs.colorRequests.size(), 2U);
}

TEST_F(ColorTools, AMenuThatIsLeftEndsTheWaiting) {
    EXPECT_EQ(PickWhile([this] { PressKey(*Shown(WindowName::menu2), Qt::Key_Escape); }),
              std::nullopt);
    EXPECT_EQ(PickWhile([this] {
                  QEvent left(QEvent::WindowDeactivate);
                  QApplication::sendEvent(Shown(WindowName::menu2), &left);
              }),
              std::nullopt);
    EXPECT_EQ(Shown(WindowName::menu2), nullptr);
    EXPECT_TRUE(session.MenuResult.empty());
}

TEST_F(ColorTools, TheMenuGoesByKeys) {
    dialogs.colors = {QColor(Qt::red)};
    EXPECT_EQ(PickWhile([this] {
                  auto& menu = *Shown(WindowName::menu2);
                  EXPECT_TRUE(QTest::qWaitForWindowActive(&menu));
                  EXPECT_TRUE(Find(menu, "Label2").hasFocus());
                  PressKey(Find(menu, "Label2"), Qt::Key_Down);
                  EXPECT_TRUE(Find(menu, "Label1").hasFocus());
                  PressKey(Find(menu, "Label1"), Qt::Key_Up);
                  PressKey(Find(menu, "Label2"), Qt::Key_Return);
              }),
              Red);
}

TEST_F(ColorTools, ASecondChoiceEndsTheFirst) {
    dialogs.colors = {QColor(Qt::blue)};
    std::optional<ColorValue> second;
    const auto first = PickWhile([&] { second = PickWhile([this] { TakeWay("Label2"); }); });
    EXPECT_EQ(first, std::nullopt);
    EXPECT_EQ(second, Blue);
}

TEST_F(ColorTools, ToolsGoWithTheWindowThatAsked) {
    dialogs.AnswerFile(WritePicture());
    QWidget asking;
    QTimer::singleShot(0, &asking, [&] {
        OpenPicture();
        asking.setProperty(UnloadedProperty, true);
    });
    EXPECT_EQ(PickColor(Context(), {20, 20}, asking), std::nullopt);
    EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);
}

TEST_F(ColorTools, APictureGivesTheColorUnderTheMouse) {
    session.settings.lastPictureFolder = folder.Document("program");
    dialogs.AnswerFile(WritePicture());
    EXPECT_EQ(PickWhile([this] {
                  auto& window = OpenPicture();
                  ClickAt(Find(window, "Image1"), {2, 2});
                  ClickAt(Find(window, "Image1"), {30, 10});
                  Click(window, "Command1");
              }),
              Blue);
    ASSERT_EQ(dialogs.opened.size(), 1U);
    EXPECT_EQ(dialogs.opened[0].title, QStringLiteral("Load picture to select color from..."));
    EXPECT_EQ(dialogs.opened[0].filter,
              QStringLiteral("Picture file(jpg, bmp, gif)|*.jpg;*.bmp;*.gif"));
    EXPECT_EQ(dialogs.opened[0].folder, NativePathText(folder.Native("program")));
}

TEST_F(ColorTools, KeysMoveTheCrossAndConfirm) {
    dialogs.AnswerFile(WritePicture());
    EXPECT_EQ(PickWhile([this] {
                  auto& view = Find(OpenPicture(), "Picture1");
                  // From the middle of the area, which is blue, ten pixels to the left.
                  PressKey(view, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
                  PressKey(view, Qt::Key_Return);
              }),
              Red);
}

TEST_F(ColorTools, APictureThatIsNotTakenGivesNone) {
    const std::string picture = WritePicture();
    EXPECT_EQ(PickWhile([this] { TakeWay("Label1"); }), std::nullopt) << "no file";

    dialogs.AnswerFile(picture);
    EXPECT_EQ(PickWhile([this] { PressKey(OpenPicture(), Qt::Key_Escape); }), std::nullopt);
    EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);

    dialogs.AnswerFile(folder.Write("text.jpg", "no picture"));
    test::ScriptedBoxes boxes({BoxAnswer::No});
    EXPECT_EQ(PickWhile([this] {
                  TakeWay("Label1");
                  EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);
              }),
              std::nullopt);
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(ColorTools, ButtonsStepWhenPressedAndWhenReleased) {
    dialogs.AnswerFile(WritePicture());
    PickWhile([this] {
        auto& window = OpenPicture();
        const auto& fit = Find<ColorPictureView>(window, "Picture1").Fit();
        EXPECT_DOUBLE_EQ(fit.left, 1950);
        EXPECT_DOUBLE_EQ(fit.top, 1200);
        Click(window, "Image4");
        EXPECT_DOUBLE_EQ(fit.left, 1950 - 2 * 400);
        Click(window, "Image7");
        EXPECT_DOUBLE_EQ(fit.top, 1200 + 2 * 400);
        Click(window, "Image2");
        EXPECT_DOUBLE_EQ(fit.width, 600 * 1.2 * 1.2);
        Click(window, "Image3");
        EXPECT_DOUBLE_EQ(fit.height, 300 * 1.2 * 1.2 * 0.8 * 0.8);
        Click(window, "Command2");
        Click(window, "Image5");
        EXPECT_DOUBLE_EQ(fit.left, 1950 + 2 * 400);
        Click(window, "Image6");
        EXPECT_DOUBLE_EQ(fit.top, 1200 - 2 * 400);
        EXPECT_DOUBLE_EQ(fit.width, 600);
        window.Unload();
    });
}

TEST_F(ColorTools, TheTooltipSaysTheColorUnderTheMouse) {
    dialogs.AnswerFile(WritePicture());
    PickWhile([this] {
        auto& window = OpenPicture();
        auto& image = Find(window, "Image1");
        const auto tooltipAt = [&](QPointF place) {
            QMouseEvent move(QEvent::MouseMove, place, image.mapToGlobal(place), Qt::NoButton, {},
                             {});
            QApplication::sendEvent(&image, &move);
            return image.toolTip();
        };
        EXPECT_EQ(tooltipAt({5, 5}), QStringLiteral("RGB(255, 0, 0)"));
        EXPECT_EQ(tooltipAt({25, 5}), QStringLiteral("RGB(0, 0, 255)"));
        // With a button held down the mouse goes on being followed outside the area.
        EXPECT_EQ(tooltipAt({-500, 5}), QStringLiteral("RGB(255, 255, 255)"));
        window.Unload();
    });
}

} // namespace tavmoor
