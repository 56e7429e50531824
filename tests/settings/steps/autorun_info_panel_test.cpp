#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/values/qt_text.h"
#include "settings/main/main_window.h"
#include "support/color_answers.h"
#include "support/program_windows.h"

#include <QCheckBox>

namespace tavmoor {

class AutorunInfoPanel : public test::ProgramWindows {
protected:
    Panel& Open() { return static_cast<Form1&>(Main()).ShowPanel(PanelName::Frame3); }
    MainTexts& Texts() { return Document().OsnovniPodaci; }
    QString Value(Panel& panel, const char* label) {
        return Find<ValueLabel>(panel, label).FullText();
    }
};

TEST_F(AutorunInfoPanel, TextsAreKeptAsTheyAreTyped) {
    auto& panel = Open();
    Type(panel, "Text1", QStringLiteral("Task"));
    Type(panel, "Text2", QStringLiteral("Logo"));
    Type(panel, "Text3", QStringLiteral("Main & more"));
    Type(panel, "Text4", QStringLiteral("About"));
    Type(panel, "Text5", QStringLiteral("replaced as a whole"));
    Type(panel, "Text5", QStringLiteral("one"));
    PressKey(Find(panel, "Text5"), Qt::Key_Return);
    Type(panel, "Text31", QStringLiteral("Down"));
    Click(panel, "Check16");
    EXPECT_EQ(Texts().Tasknaslov, "Task");
    EXPECT_EQ(Texts().Logotekst, "Logo");
    EXPECT_EQ(Texts().Glavninaslov, "Main & more");
    EXPECT_EQ(Texts().GlavniOpisnaslov, "About");
    EXPECT_EQ(Texts().GlavniOpis, "one\r\n");
    EXPECT_EQ(Texts().Vertekst, "Down");
    EXPECT_TRUE(Texts().Opisprovidan);
}

TEST_F(AutorunInfoPanel, ADoubleClickOrThePaletteButtonChangesAColor) {
    test::AnswerColorChoices(Context(), {255, 65280, MenuCancelled{}, 16711680, 65535, 128});
    auto& panel = Open();
    const auto& texts = Texts();
    DoubleClick(panel, "Text2");
    EXPECT_EQ(texts.Logotekstboja, 255);
    DoubleClick(panel, "Text3");
    EXPECT_EQ(texts.GlnaslovBoja, 65280);
    DoubleClick(panel, "Text3");
    EXPECT_EQ(texts.GlnaslovBoja, 65280) << "cancelled";
    Click(panel, "Text4Color");
    EXPECT_EQ(texts.GlavniOpisnaslovBoja, 16711680);
    DoubleClick(panel, "Text5");
    EXPECT_EQ(Document().IzvrsneKomande.Bojapozadine, 65535);
    EXPECT_EQ(texts.GlavniOpisBoja, 0);
    PressKey(Find(panel, "Text31Color"), Qt::Key_Space);
    EXPECT_EQ(texts.Vertfontboja, 128);
    EXPECT_EQ(Find(panel, "Text2").palette().color(QPalette::Text), QColor(Qt::red));
    EXPECT_EQ(Find(panel, "Text5").palette().color(QPalette::Base), QColor(Qt::yellow));
}

TEST_F(AutorunInfoPanel, TheLogoTextKeepsItsStyleInWords) {
    test::ScriptedDialogs dialogs;
    struct Case {
        bool bold, italic, underline, strikeOut;
        const char *style, *effects;
    };
    auto& panel = Open();
    for (const Case& c : {Case{true, false, false, true, "Bold", "StrikeThru"},
                          Case{true, true, true, true, "Italic", "StrikeThru, Underline"},
                          Case{false, false, true, false, "", "Underline"},
                          Case{false, false, false, false, "", ""}}) {
        const FontChoice chosen{
            QStringLiteral("Georgia"), 10.5, c.bold, c.italic, c.underline, c.strikeOut, Qt::red};
        dialogs.fonts = {chosen, std::nullopt};
        Click(panel, "Command13");
        EXPECT_EQ(Texts().Font, "Georgia");
        EXPECT_EQ(Texts().Velicina, "10");
        EXPECT_EQ(Texts().Stil, c.style);
        EXPECT_EQ(Texts().Efekti, c.effects);
        EXPECT_EQ(Value(panel, "Label23"), QLatin1String(c.style));
        EXPECT_EQ(Value(panel, "Label25"), QLatin1String(c.effects));
        Click(panel, "Command13");
        FontChoice again = dialogs.fontRequests.back().font;
        EXPECT_EQ(again.bold, QLatin1String(c.style) == QLatin1String("Bold"));
        EXPECT_EQ(again.italic, c.italic);
        EXPECT_EQ(again.underline, c.underline);
        EXPECT_EQ(again.strikeOut, c.strikeOut);
    }
    EXPECT_EQ(Texts().Logotekstboja, 0) << "its colour is not the font dialog's";
}

TEST_F(AutorunInfoPanel, FontsOfTheOtherTexts) {
    test::ScriptedDialogs dialogs;
    Texts().GlavniOpisFont = "Courier";
    Texts().GlavniOpisVel = "8";
    Texts().GlavniOpisBoja = 255;
    auto& panel = Open();
    const FontChoice chosen{QStringLiteral("Arial"), 12, true, true, true, true, Qt::blue};
    dialogs.fonts = {chosen, chosen, chosen, chosen, std::nullopt};
    Click(panel, "Command47");
    EXPECT_EQ(Value(panel, "Label6"), QStringLiteral("Arial"));
    EXPECT_EQ(Texts().GlnaslovVel, "12");
    EXPECT_EQ(dialogs.fontRequests[0].font.family, QString());
    Click(panel, "Command48");
    EXPECT_EQ(Texts().GlavniOpisnaslovFont, "Arial");
    EXPECT_TRUE(Texts().GlavniOpisnaslovBold && Texts().GlavniOpisnaslovItalic);
    EXPECT_TRUE(Find(panel, "Text4").font().bold() && Find(panel, "Text4").font().italic());
    EXPECT_EQ(Texts().GlavniOpisnaslovBoja, 0);
    Click(panel, "Command49");
    EXPECT_EQ(dialogs.fontRequests[2].font.family, QStringLiteral("Courier"));
    EXPECT_EQ(dialogs.fontRequests[2].font.points, 8);
    EXPECT_EQ(dialogs.fontRequests[2].font.color, QColor(Qt::red));
    EXPECT_EQ(Texts().GlavniOpisBoja, 0xFF0000);
    EXPECT_TRUE(Find(panel, "Text5").font().bold());
    Click(panel, "Command25");
    EXPECT_EQ(Value(panel, "Label77"), QStringLiteral("Arial"));
    EXPECT_EQ(Value(panel, "Label86"), QStringLiteral("12"));
    Click(panel, "Command49");
    EXPECT_EQ(Texts().GlavniOpisFont, "Arial") << "cancelled";
}

TEST_F(AutorunInfoPanel, TheLogoPictureIsChosenDroppedAndRemoved) {
    test::ScriptedDialogs dialogs;
    test::ScriptedBoxes boxes;
    session.settings.previewPictures = false;
    folder.Write("logo.png", "any");
    folder.Write("second.bmp", "any");
    dialogs.AnswerFile(folder.Document("logo.png"));
    dialogs.AnswerFile("");
    auto& panel = Open();
    Settle(); // keys of mnemonics go to the active window
    PressKey(panel, Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(panel.window()->focusWidget(), &Find(panel, "Command12"));
    Click(panel, "Command12");
    EXPECT_EQ(dialogs.opened[0].title, QStringLiteral("Choose picture..."));
    EXPECT_EQ(dialogs.opened[0].filter,
              QStringLiteral("Picture file(jpg, bmp, gif)|*.jpg;*.bmp;*.gif;*.wmf;*.emf;"
                             "*.ico;*.cur"));
    EXPECT_EQ(Texts().Logoslika, folder.Document("logo.png"));
    EXPECT_EQ(session.settings.lastPictureFolder, folder.Document() + "\\");
    Click(panel, "Command12");
    EXPECT_EQ(Value(panel, "Label16"), ToQString(folder.Document("logo.png"))) << "cancelled";
    EXPECT_TRUE(Drop(Find(panel, "Label16"), folder.Native("second.bmp")));
    EXPECT_EQ(Value(panel, "Label16"), ToQString(folder.Document("second.bmp")));
    Click(panel, "Command55");
    EXPECT_EQ(Texts().Logoslika, "");
    EXPECT_EQ(Value(panel, "Label16"), QString());
}

} // namespace tavmoor
