#include "services/controls/color_box.h"
#include "services/controls/value_label.h"
#include "services/values/qt_text.h"
#include "settings/main/main_window.h"
#include "support/color_answers.h"
#include "support/program_windows.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>

namespace tavmoor {

/// The controls of one of the two panels.
struct ScreenControls {
    PanelName panel;
    ScreenSpec ProjectDocument::*screen;
    const char *show, *click, *text, *font, *size, *bold, *italic, *underline;
    const char *picture, *browse, *remove, *pictureTitle;
    std::array<const char*, 3> options;
    const char *color, *colorButton, *time, *unit, *fontButton;
    const char *height, *heightLabel, *width, *widthLabel, *textPosition, *picturePosition;
};

const ScreenControls Splash{PanelName::Frame9,
                            &ProjectDocument::Uvod,
                            "Check1",
                            "Check18",
                            "Text6",
                            "Label61",
                            "Label60",
                            "Check2",
                            "Check3",
                            "Check8",
                            "Label38",
                            "Command18",
                            "Command54",
                            "Choose splash screen picture...",
                            {"Option3", "Option4", "Option5"},
                            "Frame11",
                            "Command19",
                            "Text7",
                            "Label47",
                            "Command20",
                            "VScroll1",
                            "Label42",
                            "HScroll3",
                            "Label57",
                            "Combo9",
                            "Combo10"};
const ScreenControls Exit{PanelName::Frame12,
                          &ProjectDocument::Izlaz,
                          "Check4",
                          "Check17",
                          "Text8",
                          "Label58",
                          "Label59",
                          "Check5",
                          "Check6",
                          "Check7",
                          "Label51",
                          "Command23",
                          "Command53",
                          "Choose exit screen picture...",
                          {"Option6", "Option7", "Option8"},
                          "Label53",
                          "Command24",
                          "Text9",
                          "Label55",
                          "Command22",
                          "VScroll2",
                          "Label94",
                          "HScroll4",
                          "Label92",
                          "Combo7",
                          "Combo8"};

class ScreenPanels : public test::ProgramWindows,
                     public testing::WithParamInterface<const ScreenControls*> {
protected:
    Panel& Open() { return static_cast<Form1&>(Main()).ShowPanel(Names().panel); }
    static const ScreenControls& Names() { return *GetParam(); }
    ScreenSpec& Screen() { return Document().*Names().screen; }
    QString TypedTime(Panel& panel, const char* typed) {
        Type(panel, Names().time, QString::fromLatin1(typed));
        return Find<QLineEdit>(panel, Names().time).text();
    }
};

INSTANTIATE_TEST_SUITE_P(Both, ScreenPanels, testing::Values(&Splash, &Exit),
                         [](const auto& tested) {
                             return tested.param == &Splash ? "Splash" : "Exit";
                         });

TEST_P(ScreenPanels, InputReachesTheFieldsOfItsOwnScreen) {
    auto& panel = Open();
    Click(panel, Names().show);
    Click(panel, Names().click);
    Type(panel, Names().text, QStringLiteral("Hello & welcome"));
    Click(panel, Names().underline);
    Find<QComboBox>(panel, Names().textPosition).setCurrentIndex(3);
    Find<QComboBox>(panel, Names().picturePosition).setCurrentIndex(6);
    EXPECT_TRUE(Screen().Prikazi && Screen().ClickThrough && Screen().Underline);
    EXPECT_FALSE(Screen().Bold || Screen().Italic);
    EXPECT_EQ(Screen().Tekst, "Hello & welcome");
    EXPECT_EQ(Screen().Polozajteksta, "Botton left");
    EXPECT_EQ(Screen().Polozajslike, "Centered on window!");
    for (int option : {2, 3, 1}) {
        Click(panel, Names().options.at(static_cast<std::size_t>(option) - 1));
        EXPECT_EQ(Screen().Opcija, option);
    }
    const ScreenSpec& other =
        Names().screen == &ProjectDocument::Uvod ? Document().Izlaz : Document().Uvod;
    EXPECT_TRUE(other.Tekst.empty() && other.Polozajteksta.empty() && !other.Prikazi);
}

TEST_P(ScreenPanels, TheTimeIsCheckedAsItIsTyped) {
    auto& panel = Open();
    auto& unit = Find<QLabel>(panel, Names().unit);
    EXPECT_EQ(TypedTime(panel, "60"), QStringLiteral("60"));
    EXPECT_EQ(TypedTime(panel, "abc"), QStringLiteral("5"));
    EXPECT_EQ(unit.text(), QStringLiteral("seconds"));
    EXPECT_EQ(TypedTime(panel, "61"), QStringLiteral("5"));
    EXPECT_EQ(Screen().Vreme, "5");
    EXPECT_EQ(TypedTime(panel, "30"), QStringLiteral("30"));
    EXPECT_EQ(unit.text(), QStringLiteral("seconds(60 is maximum)"));
    EXPECT_EQ(Screen().Vreme, "30");
    auto& box = Find<QLineEdit>(panel, Names().time);
    PressKey(box, Qt::Key_Backspace);
    EXPECT_EQ(Screen().Vreme, "3");
    PressKey(box, Qt::Key_Backspace);
    PressKey(box, Qt::Key_Delete);
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(Screen().Vreme, "");
    EXPECT_EQ(TypedTime(panel, "61"), QStringLiteral("5"));
    PressKey(box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), QString()) << "deleting goes on behind the number";
}

TEST_P(ScreenPanels, TheUpperArrowRaisesASize) {
    auto& panel = Open();
    auto& bar = Find<QScrollBar>(panel, Names().height);
    PressKey(bar, Qt::Key_Up);
    EXPECT_EQ(Screen().Visina, 1);
    PressKey(bar, Qt::Key_PageUp);
    EXPECT_EQ(Screen().Visina, 11);
    PressKey(bar, Qt::Key_Down);
    EXPECT_EQ(Find<ValueLabel>(panel, Names().heightLabel).FullText(), QStringLiteral("10"));
    ClickAt(bar, {bar.width() / 2, 3});
    EXPECT_EQ(Screen().Visina, 11);
    ClickAt(bar, {bar.width() / 2, bar.height() - 3});
    EXPECT_EQ(Screen().Visina, 10);
    const QPointF middle = bar.rect().center();
    QWheelEvent away(middle, bar.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&bar, &away);
    EXPECT_GT(Screen().Visina, 10);
    PressKey(bar, Qt::Key_Home);
    EXPECT_EQ(Screen().Visina, 768);
    PressKey(bar, Qt::Key_End);
    EXPECT_EQ(Screen().Visina, 0);
    bar.setValue(5000);
    EXPECT_EQ(Screen().Visina, 768);
    Find<QScrollBar>(panel, Names().width).setValue(5000);
    EXPECT_EQ(Screen().Sirina, 1024);
    EXPECT_EQ(Find<ValueLabel>(panel, Names().widthLabel).FullText(), QStringLiteral("1024"));
}

TEST_P(ScreenPanels, TheFontDialogReplacesAllSix) {
    test::ScriptedDialogs dialogs;
    Screen().Font = "Georgia";
    Screen().Fontvelicina = "14";
    Screen().Italic = true;
    Screen().Bojateksta = 255;
    auto& panel = Open();
    dialogs.fonts = {FontChoice{QString(), 11.5, true, false, true, false, Qt::blue},
                     FontChoice{QStringLiteral("Arial"), 9, false, false, false, false, Qt::green}};
    Click(panel, Names().fontButton);
    EXPECT_EQ(dialogs.fontRequests[0].title, QStringLiteral("Choose font..."));
    EXPECT_EQ(dialogs.fontRequests[0].font,
              (FontChoice{QStringLiteral("Georgia"), 14, false, true, false, false, Qt::red}));
    EXPECT_EQ(Screen().Font, "Georgia") << "an empty name leaves the old one";
    EXPECT_EQ(Screen().Fontvelicina, "12");
    EXPECT_TRUE(Screen().Bold && !Screen().Italic && Screen().Underline);
    EXPECT_EQ(Screen().Bojateksta, 0xFF0000);
    Click(panel, Names().fontButton);
    const auto& label = Find<ValueLabel>(panel, Names().font);
    EXPECT_EQ(label.FullText(), QStringLiteral("Arial"));
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::green));
    EXPECT_EQ(Find<ValueLabel>(panel, Names().size).FullText(), QStringLiteral("9"));
}

TEST_P(ScreenPanels, ColorsOfTextAndWindow) {
    test::AnswerColorChoices(Context(), {255, 65280, 65535, MenuCancelled{}});
    auto& panel = Open();
    DoubleClick(panel, Names().text);
    EXPECT_EQ(Screen().Bojateksta, 255);
    Click(panel, Names().color);
    EXPECT_EQ(Screen().Bojaprozora, 65280);
    Click(panel, Names().colorButton);
    Click(panel, Names().colorButton);
    EXPECT_EQ(Screen().Bojaprozora, 65535);
    EXPECT_EQ(Find<ColorBox>(panel, Names().color).Color(), 65535);
}

TEST_P(ScreenPanels, ThePictureIsChosenDroppedAndRemoved) {
    test::ScriptedDialogs dialogs;
    const std::string first = folder.Write("first.wmf", "any");
    const std::string second = folder.Write("second.bmp", "any");
    dialogs.AnswerFile(first);
    auto& panel = Open();
    Click(panel, Names().browse);
    EXPECT_EQ(dialogs.opened[0].title, QLatin1String(Names().pictureTitle));
    EXPECT_EQ(Screen().Slika, first);
    EXPECT_TRUE(Drop(Find(panel, Names().picture), folder.Native("second.bmp")));
    EXPECT_EQ(Find<ValueLabel>(panel, Names().picture).FullText(), ToQString(second));
    Click(panel, Names().remove);
    EXPECT_EQ(Screen().Slika, "");
}

} // namespace tavmoor
