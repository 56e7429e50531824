#include "services/controls/value_label.h"
#include "services/look/theme.h"
#include "services/values/color_value.h"
#include "settings/main/main_window.h"
#include "support/color_answers.h"
#include "support/program_windows.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

namespace tavmoor {

class CommandDescriptions : public test::ProgramWindows {
protected:
    CommandDescriptions() { theme::Apply(*qApp); }

    SkinnedWindow& Open() {
        Click(static_cast<Form1&>(Main()).ShowPanel(PanelName::Frame4), "Command42");
        return *Shown(WindowName::Form4);
    }
    static ColorValue Color(QLabel& label, QPalette::ColorRole role) {
        label.ensurePolished();
        return ToColorValue(label.palette().color(role));
    }
    CommandLook& Stored() { return Document().IzvrsneKomande; }
};

TEST_F(CommandDescriptions, StoresTextsAndLook) {
    Stored().Komande[1].Opis = "Install";
    Stored().Komande[6].Opis = "Mail";
    Stored().Velicina = "11.5";
    auto& window = Open();
    EXPECT_EQ(windows.Main()->IsVisible(), false);
    EXPECT_EQ(Find<ValueLabel>(window, "Label93").FullText(), QStringLiteral("Install"));
    EXPECT_EQ(Find<ValueLabel>(window, "Label1").FullText(), QString());
    EXPECT_EQ(Find<ValueLabel>(window, "Label5").FullText(), QStringLiteral("Mail"));

    Type(window, "Text7", QStringLiteral("Write to us"));
    PressKey(Find(window, "Text1"), Qt::Key_X);
    EXPECT_EQ(Document().OpisKomandi[6].C, "Write to us");
    EXPECT_EQ(Document().OpisKomandi[5].O, "x");

    test::AnswerColorChoices(Context(), {255, 65280, MenuCancelled{}});
    Click(window, "Command2");
    Click(window, "Command3");
    Click(window, "Command3");
    auto& sample = Find<QLabel>(window, "Label11");
    EXPECT_EQ(Color(sample, QPalette::WindowText), 255);
    EXPECT_EQ(Color(sample, QPalette::Window), 65280);
    EXPECT_EQ(sample.font().pointSize(), 12);
    Click(window, "Command43");
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(windows.Main()->IsVisible());
    EXPECT_EQ(Stored().Bojaslova, "255");
    EXPECT_EQ(Stored().Bojapozadinekomandi, "65280");
    EXPECT_EQ(Stored().Font, "Arial");
    EXPECT_EQ(Stored().Velicina, "12");
}

TEST_F(CommandDescriptions, OpensAgainWithTheDocumentThatIsOpenNow) {
    auto& first = Open();
    Type(first, "Text30", QStringLiteral("old"));
    first.close();
    session.document = NewProjectDocument();
    Stored().Komande[2].Opis = "New title";
    Stored().Bojaslova.clear();
    Stored().Bojapozadinekomandi.clear();
    Stored().Font.clear();
    Stored().Velicina.clear();
    auto& window = Open();
    EXPECT_EQ(&window, &first);
    EXPECT_EQ(Find<QLineEdit>(window, "Text30").text(), QString());
    EXPECT_EQ(Find<ValueLabel>(window, "Label1").FullText(), QStringLiteral("New title"));
    EXPECT_EQ(Color(Find<QLabel>(window, "Label11"), QPalette::WindowText), 52479);
    window.close();
    EXPECT_EQ(Stored().Bojaslova, "52479");
    EXPECT_EQ(Stored().Bojapozadinekomandi, "-2147483633");
    EXPECT_EQ(Stored().Font, "Ms Sans Serif");
    EXPECT_EQ(Stored().Velicina, "10");
}

TEST_F(CommandDescriptions, AFontKeepsTheSamplesBottom) {
    test::ScriptedDialogs dialogs;
    auto& window = Open();
    auto& sample = Find<QLabel>(window, "Label11");
    const int bottom = sample.geometry().bottom();
    const int height = sample.height();
    dialogs.fonts.push_back(FontChoice{.family = QStringLiteral("Courier New"),
                                       .points = 20.5,
                                       .underline = true,
                                       .strikeOut = true,
                                       .color = QColor(Qt::red)});
    Click(window, "Command4");
    EXPECT_GT(sample.height(), height);
    EXPECT_EQ(sample.geometry().bottom(), bottom);
    EXPECT_TRUE(sample.font().underline());
    EXPECT_FALSE(sample.font().strikeOut());
    Click(window, "Command4"); // cancelled
    window.close();
    EXPECT_EQ(Stored().Font, "Courier New");
    EXPECT_EQ(Stored().Velicina, "20");
}

} // namespace tavmoor
