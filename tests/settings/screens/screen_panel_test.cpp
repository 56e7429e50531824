#include "services/controls/color_box.h"
#include "settings/pages.h"
#include "support/color_answers.h"
#include "support/program_windows.h"

#include <QComboBox>
#include <QScrollBar>
#include <QWheelEvent>

namespace tavmoor {

class ScreenPanels : public test::ProgramWindows, public testing::WithParamInterface<bool> {
protected:
    ScreenSpec& Screen(bool exit = GetParam()) { return exit ? Document().Izlaz : Document().Uvod; }
    std::string TypedTime(const char* typed) {
        page.time.Type(typed);
        return page.time.Text();
    }

    test::ScreenPage page{ShowPanel(GetParam() ? PanelName::Frame12 : PanelName::Frame9),
                          GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Both, ScreenPanels, testing::Bool(),
                         [](const auto& tested) { return tested.param ? "Exit" : "Splash"; });

TEST_P(ScreenPanels, InputReachesTheFieldsOfItsOwnScreen) {
    page.show.Click();
    page.click.Click();
    page.text.Type("Hello & welcome");
    page.underline.Click();
    page.textPlace.As<QComboBox>().setCurrentIndex(3);
    page.picturePlace.As<QComboBox>().setCurrentIndex(6);
    EXPECT_TRUE(Screen().Prikazi && Screen().ClickThrough && Screen().Underline);
    EXPECT_FALSE(Screen().Bold || Screen().Italic);
    EXPECT_EQ(Screen().Tekst, "Hello & welcome");
    EXPECT_EQ(Screen().Polozajteksta, "Botton left");
    EXPECT_EQ(Screen().Polozajslike, "Centered on window!");
    const test::Control* const options[] = {&page.both, &page.second, &page.third};
    for (const int option : {2, 3, 1}) {
        options[option - 1]->Click();
        EXPECT_EQ(Screen().Opcija, option);
    }
    const ScreenSpec& other = Screen(!GetParam());
    EXPECT_TRUE(other.Tekst.empty() && other.Polozajteksta.empty() && !other.Prikazi);
}

TEST_P(ScreenPanels, TheTimeIsCheckedAsItIsTyped) {
    EXPECT_EQ(TypedTime("60"), "60");
    EXPECT_EQ(TypedTime("abc"), "5");
    EXPECT_EQ(page.unit.Text(), "seconds");
    EXPECT_EQ(TypedTime("61"), "5");
    EXPECT_EQ(Screen().Vreme, "5");
    EXPECT_EQ(TypedTime("30"), "30");
    EXPECT_EQ(page.unit.Text(), "seconds(60 is maximum)");
    EXPECT_EQ(Screen().Vreme, "30");
    page.time.Press(Qt::Key_Backspace);
    EXPECT_EQ(Screen().Vreme, "3");
    page.time.Press(Qt::Key_Backspace);
    page.time.Press(Qt::Key_Delete);
    EXPECT_EQ(page.time.Text() + Screen().Vreme, "");
    EXPECT_EQ(TypedTime("61"), "5");
    page.time.Press(Qt::Key_Backspace);
    EXPECT_EQ(page.time.Text(), "") << "deleting goes on behind the number";
}

TEST_P(ScreenPanels, TheUpperArrowRaisesASize) {
    auto& bar = page.height.As<QScrollBar>();
    const auto heightAfter = [&](auto act) {
        act();
        return Screen().Visina;
    };
    const auto key = [&](Qt::Key pressed) {
        return heightAfter([&] { page.height.Press(pressed); });
    };
    const auto click = [&](int y) {
        return heightAfter([&] { page.height.ClickAt({bar.width() / 2, y}); });
    };
    EXPECT_EQ(key(Qt::Key_Up), 1);
    EXPECT_EQ(key(Qt::Key_PageUp), 11);
    EXPECT_EQ(key(Qt::Key_Down), 10);
    EXPECT_EQ(page.heightText.Text(), "10");
    EXPECT_EQ(click(3), 11);
    EXPECT_EQ(click(bar.height() - 3), 10);
    const QPointF middle = bar.rect().center();
    QWheelEvent away(middle, bar.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    EXPECT_GT(heightAfter([&] { QApplication::sendEvent(&bar, &away); }), 10);
    EXPECT_EQ(key(Qt::Key_Home), 768);
    EXPECT_EQ(key(Qt::Key_End), 0);
    EXPECT_EQ(heightAfter([&] { page.height.Slide(5000); }), 768);
    page.width.Slide(5000);
    EXPECT_EQ(Screen().Sirina, 1024);
    EXPECT_EQ(page.widthText.Text(), "1024");
}

TEST_P(ScreenPanels, TheFontDialogReplacesAllSix) {
    test::ScriptedDialogs dialogs;
    Screen().Font = "Georgia";
    Screen().Fontvelicina = "14";
    Screen().Italic = true;
    Screen().Bojateksta = 255;
    dialogs.fonts = {FontChoice{QString(), 11.5, true, false, true, false, Qt::blue},
                     FontChoice{QStringLiteral("Arial"), 9, false, false, false, false, Qt::green}};
    page.chooseFont.Click();
    EXPECT_EQ(dialogs.fontRequests[0].title, QStringLiteral("Choose font..."));
    EXPECT_EQ(dialogs.fontRequests[0].font,
              (FontChoice{QStringLiteral("Georgia"), 14, false, true, false, false, Qt::red}));
    EXPECT_EQ(Screen().Font, "Georgia") << "an empty name leaves the old one";
    EXPECT_EQ(Screen().Fontvelicina, "12");
    EXPECT_TRUE(Screen().Bold && !Screen().Italic && Screen().Underline);
    EXPECT_EQ(Screen().Bojateksta, 0xFF0000);
    page.chooseFont.Click();
    EXPECT_EQ(page.font.Text() + page.size.Text(), "Arial9");
    EXPECT_EQ(page.font.Color(QPalette::WindowText), QColor(Qt::green));
}

TEST_P(ScreenPanels, ColorsOfTextAndWindow) {
    test::AnswerColorChoices(Context(), {255, 65280, 65535, MenuCancelled{}});
    page.text.DoubleClick();
    EXPECT_EQ(Screen().Bojateksta, 255);
    page.color.Click();
    EXPECT_EQ(Screen().Bojaprozora, 65280);
    page.chooseColor.Click();
    page.chooseColor.Click();
    EXPECT_EQ(Screen().Bojaprozora, 65535);
    EXPECT_EQ(page.color.As<ColorBox>().Color(), 65535);
}

TEST_P(ScreenPanels, ThePictureIsChosenDroppedAndRemoved) {
    test::ScriptedDialogs dialogs;
    const std::string first = folder.Write("first.wmf", "any");
    const std::string second = folder.Write("second.bmp", "any");
    dialogs.AnswerFile(first);
    page.browse.Click();
    EXPECT_EQ(dialogs.opened[0].title, GetParam()
                                           ? QStringLiteral("Choose exit screen picture...")
                                           : QStringLiteral("Choose splash screen picture..."));
    EXPECT_EQ(Screen().Slika, first);
    EXPECT_TRUE(page.picture.Drop(folder.Native("second.bmp")));
    EXPECT_EQ(page.picture.Text(), second);
    page.remove.Click();
    EXPECT_EQ(Screen().Slika, "");
}

} // namespace tavmoor
