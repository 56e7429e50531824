#include "services/colors/color_pick.h"

#include "services/colors/color_picture_view.h"
#include "services/values/native_path_text.h"
#include "support/plain_window.h"
#include "support/service_windows.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QtTest/QTest>

namespace tavmoor {

class ColorTools : public test::ServiceWindows {
protected:
    using Results = std::vector<MenuResult>;

    /// Begins a colour choice; its result is added to the others.
    void Pick() {
        PickColor(Context(), {20, 20}, *asking,
                  [this](const MenuResult& result) { results.push_back(result); });
        Settle();
    }
    void PickBy(const char* entry) {
        Pick();
        Click(*Shown(WindowName::menu2), entry);
    }

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
        dialogs.AnswerFile(WritePicture());
        PickBy("Label1");
        return *Shown(WindowName::PicPrev);
    }

    static constexpr MenuCancelled Cancelled{};
    static constexpr ColorValue Red = 0x0000FF;
    static constexpr ColorValue Blue = 0xFF0000;
    test::ScriptedDialogs dialogs;
    std::vector<MenuResult> results;
    std::unique_ptr<QWidget> asking = std::make_unique<QWidget>();
};

TEST_F(ColorTools, ThePaletteGivesAColorOrNone) {
    dialogs.colors = {QColor(1, 2, 3), std::nullopt};
    PickBy("Label2");
    EXPECT_EQ(Shown(WindowName::menu2), nullptr);
    PickBy("Label2");
    EXPECT_EQ(results, (Results{0x030201, Cancelled}));
    EXPECT_EQ(dialogs.colorRequests.at(1).owner, asking.get());
}

TEST_F(ColorTools, AMenuThatIsLeftCancels) {
    Pick();
    EXPECT_EQ(results, Results{});
    PressKey(*Shown(WindowName::menu2), Qt::Key_Escape);
    EXPECT_EQ(results, Results{Cancelled});
    Pick();
    QEvent left(QEvent::WindowDeactivate);
    QApplication::sendEvent(Shown(WindowName::menu2), &left);
    EXPECT_EQ(results, Results(2, Cancelled));
    EXPECT_EQ(Shown(WindowName::menu2), nullptr);
}

TEST_F(ColorTools, TheMenuGoesByKeys) {
    dialogs.colors = {QColor(Qt::red)};
    Pick();
    auto& menu = *Shown(WindowName::menu2);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&menu));
    EXPECT_TRUE(Find(menu, "Label2").hasFocus());
    PressKey(Find(menu, "Label2"), Qt::Key_Down);
    EXPECT_TRUE(Find(menu, "Label1").hasFocus());
    PressKey(Find(menu, "Label1"), Qt::Key_Up);
    PressKey(Find(menu, "Label2"), Qt::Key_Return);
    EXPECT_EQ(results, Results{Red});
}

TEST_F(ColorTools, ASecondChoiceEndsTheFirstWhereverItStands) {
    Pick();
    Pick();
    EXPECT_EQ(results, Results{Cancelled}) << "in the menu";
    OpenPicture();
    Pick();
    EXPECT_EQ(results, Results(3, Cancelled)) << "in the picture";
    EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);

    results.clear();
    dialogs.colors = {QColor(Qt::blue), QColor(Qt::red)};
    dialogs.whileOpen = [this] { PickBy("Label2"); };
    PickBy("Label2");
    EXPECT_EQ(results, (Results{Cancelled, Cancelled, Blue})) << "in the palette";

    results.clear();
    dialogs.AnswerFile(WritePicture());
    dialogs.whileOpen = [this] { Pick(); };
    PickBy("Label1");
    EXPECT_EQ(results, Results{Cancelled}) << "in the file dialog";
    EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);
    EXPECT_NE(Shown(WindowName::menu2), nullptr);
}

TEST_F(ColorTools, ToolsGoWithTheWindowThatAsked) {
    test::PlainWindow::Register(Context(), WindowName::Form9);
    auto& window = windows.Open(WindowName::Form9);
    asking->setParent(&window);
    Pick();
    window.Unload();
    EXPECT_EQ(Shown(WindowName::menu2), nullptr);
    EXPECT_EQ(results, Results{Cancelled});

    asking = std::make_unique<QWidget>();
    OpenPicture();
    asking.reset();
    EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);
    asking = std::make_unique<QWidget>();
    dialogs.colors = {QColor(Qt::blue)};
    dialogs.whileOpen = [this] { asking.reset(); };
    PickBy("Label2");
    EXPECT_EQ(results.size(), 1U) << "nobody is left to take a result";
}

TEST_F(ColorTools, APictureGivesTheColorUnderTheMouse) {
    session.settings.lastPictureFolder = folder.Document("program");
    auto& window = OpenPicture();
    ClickAt(Find(window, "Image1"), {2, 2});
    ClickAt(Find(window, "Image1"), {30, 10});
    Click(window, "Command1");
    EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);
    EXPECT_EQ(results, Results{Blue});
    ASSERT_EQ(dialogs.opened.size(), 1U);
    EXPECT_EQ(dialogs.opened[0].title, QStringLiteral("Load picture to select color from..."));
    EXPECT_EQ(dialogs.opened[0].filter,
              QStringLiteral("Picture file(jpg, bmp, gif)|*.jpg;*.bmp;*.gif"));
    EXPECT_EQ(dialogs.opened[0].folder, NativePathText(folder.Native("program")));
}

TEST_F(ColorTools, KeysMoveTheCrossAndConfirm) {
    auto& view = Find(OpenPicture(), "Picture1");
    // From the middle of the area, which is blue, ten pixels to the left.
    PressKey(view, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    PressKey(view, Qt::Key_Return);
    EXPECT_EQ(results, Results{Red});
}

TEST_F(ColorTools, APictureThatIsNotTakenCancels) {
    PickBy("Label1");
    EXPECT_EQ(results, Results{Cancelled}) << "no file";
    PressKey(OpenPicture(), Qt::Key_Escape);
    EXPECT_EQ(results, Results(2, Cancelled));
    EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);

    dialogs.AnswerFile(folder.Write("text.jpg", "no picture"));
    test::ScriptedBoxes boxes({BoxAnswer::No});
    PickBy("Label1");
    EXPECT_EQ(Shown(WindowName::PicPrev), nullptr);
    EXPECT_EQ(results, Results(3, Cancelled));
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(ColorTools, ButtonsStepWhenPressedAndWhenReleased) {
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
}

TEST_F(ColorTools, TheTooltipSaysTheColorUnderTheMouse) {
    auto& image = Find(OpenPicture(), "Image1");
    const auto tooltipAt = [&](QPointF place) {
        QMouseEvent move(QEvent::MouseMove, place, image.mapToGlobal(place), Qt::NoButton, {}, {});
        QApplication::sendEvent(&image, &move);
        return image.toolTip();
    };
    EXPECT_EQ(tooltipAt({5, 5}), QStringLiteral("RGB(255, 0, 0)"));
    EXPECT_EQ(tooltipAt({25, 5}), QStringLiteral("RGB(0, 0, 255)"));
    // With a button held down the mouse goes on being followed outside the area.
    EXPECT_EQ(tooltipAt({-500, 5}), QStringLiteral("RGB(255, 255, 255)"));
}

} // namespace tavmoor
