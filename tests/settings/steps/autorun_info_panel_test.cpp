#include "settings/pages.h"
#include "support/color_answers.h"
#include "support/program_windows.h"

namespace tavmoor {

class AutorunInfoPanel : public test::ProgramWindows {
protected:
    MainTexts& texts = session.document.OsnovniPodaci;
    QWidget& panel = ShowPanel(PanelName::Frame3);
    test::AutorunInfoPage page{panel};
    test::ScriptedDialogs dialogs;
};

TEST_F(AutorunInfoPanel, TextsAreKeptAsTheyAreTyped) {
    page.taskBarTitle.Type("Task");
    page.logo.Type("Logo");
    page.title.Type("Main & more");
    page.heading.Type("About");
    page.description.Type("replaced as a whole");
    page.description.Type("one");
    page.description.Press(Qt::Key_Return);
    page.vertical.Type("Down");
    page.transparent.Click();
    EXPECT_EQ(texts.Tasknaslov + "," + texts.Logotekst + "," + texts.Glavninaslov + "," +
                  texts.GlavniOpisnaslov + "," + texts.GlavniOpis + "," + texts.Vertekst,
              "Task,Logo,Main & more,About,one\r\n,Down");
    EXPECT_TRUE(texts.Opisprovidan);
}

TEST_F(AutorunInfoPanel, ADoubleClickOrThePaletteButtonChangesAColor) {
    test::AnswerColorChoices(Context(), {255, 65280, MenuCancelled{}, 16711680, 65535, 128});
    page.logo.DoubleClick();
    EXPECT_EQ(texts.Logotekstboja, 255);
    page.title.DoubleClick();
    EXPECT_EQ(texts.GlnaslovBoja, 65280);
    page.title.DoubleClick();
    EXPECT_EQ(texts.GlnaslovBoja, 65280) << "cancelled";
    page.headingColor.Click();
    EXPECT_EQ(texts.GlavniOpisnaslovBoja, 16711680);
    page.description.DoubleClick();
    EXPECT_EQ(Document().IzvrsneKomande.Bojapozadine, 65535);
    EXPECT_EQ(texts.GlavniOpisBoja, 0);
    page.verticalColor.Press(Qt::Key_Space);
    EXPECT_EQ(texts.Vertfontboja, 128);
    EXPECT_EQ(page.logo.Color(QPalette::Text), QColor(Qt::red));
    EXPECT_EQ(page.description.Color(QPalette::Base), QColor(Qt::yellow));
}

TEST_F(AutorunInfoPanel, TheLogoTextKeepsItsStyleInWords) {
    struct Case {
        bool bold, italic, underline, strikeOut;
        const char *style, *effects;
    };
    for (const Case& c : {Case{true, false, false, true, "Bold", "StrikeThru"},
                          Case{true, true, true, true, "Italic", "StrikeThru, Underline"},
                          Case{false, false, true, false, "", "Underline"},
                          Case{false, false, false, false, "", ""}}) {
        FontChoice chosen{
            QStringLiteral("Georgia"), 10.5, c.bold, c.italic, c.underline, c.strikeOut, Qt::red};
        dialogs.fonts = {chosen, std::nullopt};
        page.logoFont.Click();
        EXPECT_EQ(texts.Font + texts.Velicina, "Georgia10");
        EXPECT_EQ(texts.Stil, c.style);
        EXPECT_EQ(texts.Efekti, c.effects);
        EXPECT_EQ(page.logoStyle.Text(), c.style);
        EXPECT_EQ(page.logoEffects.Text(), c.effects);
        page.logoFont.Click(); // shows what was stored
        chosen.bold = c.bold && !c.italic;
        chosen.points = 10;
        chosen.color = dialogs.fontRequests.back().font.color;
        EXPECT_EQ(dialogs.fontRequests.back().font, chosen);
    }
    EXPECT_EQ(texts.Logotekstboja, 0) << "its colour is not the font dialog's";
}

TEST_F(AutorunInfoPanel, FontsOfTheOtherTexts) {
    texts.GlavniOpisFont = "Courier";
    texts.GlavniOpisVel = "8";
    texts.GlavniOpisBoja = 255;
    windows.Main()->ShowDocument();
    const FontChoice chosen{QStringLiteral("Arial"), 12, true, true, true, true, Qt::blue};
    dialogs.fonts = {chosen, chosen, chosen, chosen, std::nullopt};
    page.titleFont.Click();
    EXPECT_EQ(page.titleFontName.Text(), "Arial");
    EXPECT_EQ(texts.GlnaslovVel, "12");
    EXPECT_EQ(dialogs.fontRequests[0].font.family, QString());
    page.headingFont.Click();
    EXPECT_EQ(texts.GlavniOpisnaslovFont, "Arial");
    EXPECT_TRUE(texts.GlavniOpisnaslovBold && texts.GlavniOpisnaslovItalic);
    const QFont& heading = page.heading.As().font();
    EXPECT_TRUE(heading.bold() && heading.italic());
    EXPECT_EQ(texts.GlavniOpisnaslovBoja, 0);
    page.descriptionFont.Click();
    const FontChoice& shown = dialogs.fontRequests[2].font;
    EXPECT_EQ(shown.family, QStringLiteral("Courier"));
    EXPECT_EQ(shown.points, 8);
    EXPECT_EQ(shown.color, QColor(Qt::red));
    EXPECT_EQ(texts.GlavniOpisBoja, 0xFF0000);
    EXPECT_TRUE(page.description.As().font().bold());
    page.verticalFont.Click();
    EXPECT_EQ(page.verticalFontName.Text() + page.verticalFontSize.Text(), "Arial12");
    page.descriptionFont.Click();
    EXPECT_EQ(texts.GlavniOpisFont, "Arial") << "cancelled";
}

TEST_F(AutorunInfoPanel, TheLogoPictureIsChosenDroppedAndRemoved) {
    const std::string logo = folder.Write("logo.png", "any");
    dialogs.AnswerFile(logo);
    Settle(); // keys of mnemonics go to the active window
    PressKey(panel, Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(panel.window()->focusWidget(), &page.browsePicture.As());
    page.browsePicture.Click();
    EXPECT_EQ(dialogs.opened[0].title, QStringLiteral("Choose picture..."));
    EXPECT_EQ(dialogs.opened[0].filter,
              QStringLiteral("Picture file(jpg, bmp, gif)|*.jpg;*.bmp;*.gif;*.wmf;*.emf;"
                             "*.ico;*.cur"));
    EXPECT_EQ(texts.Logoslika, logo);
    EXPECT_EQ(session.settings.lastPictureFolder, folder.Document() + "\\");
    page.browsePicture.Click();
    EXPECT_EQ(page.picture.Text(), logo) << "cancelled";
    folder.Write("second.bmp", "any");
    EXPECT_TRUE(page.picture.Drop(folder.Native("second.bmp")));
    EXPECT_EQ(page.picture.Text(), folder.Document("second.bmp"));
    page.removePicture.Click();
    EXPECT_EQ(texts.Logoslika + page.picture.Text(), "");
}

} // namespace tavmoor
