#include "services/look/theme.h"
#include "services/values/color_value.h"
#include "settings/pages.h"
#include "support/color_answers.h"
#include "support/program_windows.h"

namespace tavmoor {

class CommandDescriptions : public test::ProgramWindows {
protected:
    CommandDescriptions() { theme::Apply(*qApp); }

    SkinnedWindow& Open() {
        test::CommandsPage(ShowPanel(PanelName::Frame4)).descriptions.Click();
        return *Shown(WindowName::Form4);
    }
    /// The stored look: the colours of text and ground, the font and its size.
    [[nodiscard]] std::string Look() const {
        return stored.Bojaslova + "|" + stored.Bojapozadinekomandi + "|" + stored.Font + "|" +
               stored.Velicina;
    }
    static ColorValue TextColor(const test::CommandDescriptionsPage& page) {
        return ToColorValue(page.sample.Color(QPalette::WindowText));
    }

    CommandLook& stored = session.document.IzvrsneKomande;
};

TEST_F(CommandDescriptions, StoresTextsAndLook) {
    stored.Komande[1].Opis = "Install";
    stored.Komande[6].Opis = "Mail";
    stored.Velicina = "11.5";
    auto& window = Open();
    const test::CommandDescriptionsPage page(window);
    EXPECT_FALSE(windows.Main()->IsVisible());
    EXPECT_EQ(page.firstCommand.Text(), "Install");
    EXPECT_EQ(page.secondCommand.Text(), "");
    EXPECT_EQ(page.lastCommand.Text(), "Mail");

    page.lastTitle.Type("Write to us");
    page.fifthText.Press(Qt::Key_X);
    EXPECT_EQ(Document().OpisKomandi[6].C, "Write to us");
    EXPECT_EQ(Document().OpisKomandi[5].O, "x");

    test::AnswerColorChoices(Context(), {255, 65280, MenuCancelled{}});
    page.textColor.Click();
    page.backColor.Click();
    page.backColor.Click();
    EXPECT_EQ(TextColor(page), 255);
    EXPECT_EQ(ToColorValue(page.sample.Color(QPalette::Window)), 65280);
    EXPECT_EQ(page.sample.As().font().pointSize(), 12);
    page.close.Click();
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(windows.Main()->IsVisible());
    EXPECT_EQ(Look(), "255|65280|Arial|12");
}

TEST_F(CommandDescriptions, OpensAgainWithTheDocumentThatIsOpenNow) {
    auto& window = Open();
    const test::CommandDescriptionsPage page(window);
    page.firstTitle.Type("old");
    window.close();
    session.document = NewProjectDocument();
    stored = {};
    stored.Komande[2].Opis = "New title";
    EXPECT_EQ(&Open(), &window);
    EXPECT_EQ(page.firstTitle.Text(), "");
    EXPECT_EQ(page.secondCommand.Text(), "New title");
    EXPECT_EQ(TextColor(page), 52479);
    window.close();
    EXPECT_EQ(Look(), "52479|-2147483633|Ms Sans Serif|10");
}

TEST_F(CommandDescriptions, AFontKeepsTheSamplesBottom) {
    test::ScriptedDialogs dialogs;
    auto& window = Open();
    const test::CommandDescriptionsPage page(window);
    const QWidget& sample = page.sample;
    const QRect before = sample.geometry();
    dialogs.fonts = {
        FontChoice{QStringLiteral("Courier New"), 20.5, false, false, true, true, Qt::red},
        std::nullopt};
    page.font.Click();
    EXPECT_GT(sample.height(), before.height());
    EXPECT_EQ(sample.geometry().bottom(), before.bottom());
    EXPECT_TRUE(sample.font().underline());
    EXPECT_FALSE(sample.font().strikeOut());
    page.font.Click(); // cancelled
    window.close();
    EXPECT_EQ(stored.Font + stored.Velicina, "Courier New20");
}

} // namespace tavmoor
