#include "support/program_windows.h"

#include "services/controls/value_label.h"
#include "services/values/color_value.h"
#include "services/values/twips.h"
#include "settings/main/main_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace tavmoor {

class CommandsPanel : public test::ProgramWindows {
protected:
    CommandsPanel() { Document().OsnovnaPodesavanja.GlavniDirektorijum = disc; }

    QWidget& Panel() { return static_cast<Form1&>(Main()).ShowPanel(PanelName::Frame4); }
    FixedCommand& Command(std::size_t number) {
        return Document().IzvrsneKomande.Komande.at(number);
    }

    std::string disc = folder.Document("disc");
};

TEST_F(CommandsPanel, EachRowEditsItsOwnCommandAndClearsIt) {
    auto& panel = Panel();
    Type(panel, "Text25", QStringLiteral("Read & go"));
    Type(panel, "Text13", QStringLiteral("www.example.com"));
    Type(panel, "Text14", QStringLiteral("/s"));
    auto& type = Find<QComboBox>(panel, "Combo1");
    EXPECT_EQ(type.currentIndex(), -1);
    type.setCurrentText(QStringLiteral("Visit web page"));
    EXPECT_EQ(type.currentIndex(), 1);
    Click(panel, "Check10");
    EXPECT_EQ(Command(2).Opis, "Read & go");
    EXPECT_EQ(Command(2).Fajl, "www.example.com");
    EXPECT_EQ(Command(2).Parametar, "/s");
    EXPECT_EQ(Command(2).Vrsta, "Visit web page");
    EXPECT_EQ(Command(2).Zatvara, 1);

    Document().OpisKomandi[2].C = "kept";
    Type(panel, "Text29", QStringLiteral("last"));
    Click(panel, "Command41");
    EXPECT_EQ(Command(6).Opis, "");
    EXPECT_EQ(Command(2).Opis, "Read & go");
    Click(panel, "Command37");
    EXPECT_EQ(Command(2).Vrsta + Command(2).Fajl + Command(2).Parametar + Command(2).Opis, "");
    EXPECT_EQ(Command(2).Zatvara, 0);
    EXPECT_EQ(type.currentIndex(), -1);
    EXPECT_FALSE(Find<QCheckBox>(panel, "Check10").isChecked());
    EXPECT_EQ(Find<QLineEdit>(panel, "Text13").text(), QString());
    EXPECT_EQ(Document().OpisKomandi[2].C, "kept");
}

TEST_F(CommandsPanel, ChosenFilesOfTheDiscAreStoredRelativeToIt) {
    auto& panel = Panel();
    test::ScriptedDialogs dialogs;
    const auto browse = [&](const std::string& path) {
        dialogs.AnswerFile(path);
        Click(panel, "Command30");
        return Command(6).Fajl;
    };
    const std::string inside = folder.Write("disc/run/a.exe", "x");
    const std::string beside = folder.Write("disc2/a.exe", "x");
    EXPECT_EQ(browse(inside), "\\run\\a.exe");
    EXPECT_EQ(dialogs.opened[0].title, QStringLiteral("Choose files to run/open..."));
    EXPECT_EQ(browse(beside), beside);
    EXPECT_EQ(browse(""), beside);
    EXPECT_TRUE(Drop(Find(panel, "Text11"), folder.Native("disc/run/a.exe")));
    EXPECT_EQ(Command(1).Fajl, "\\run\\a.exe");

    std::string upper = disc;
    upper.back() = 'C';
    Document().OsnovnaPodesavanja.GlavniDirektorijum = upper;
    EXPECT_EQ(browse(inside), inside);
    Document().OsnovnaPodesavanja.GlavniDirektorijum = disc + "\\";
    EXPECT_EQ(browse(inside), "run\\a.exe");
}

TEST_F(CommandsPanel, ShowsTheFolderAndTheMenuTitlesOfTheTemplate) {
    Document().Working.TemplateName = "Nexus";
    auto& panel = Panel();
    const auto& line = Find<ValueLabel>(panel, "Label68");
    const auto lineColor = [&] {
        line.ensurePolished();
        return ToColorValue(line.palette().color(QPalette::WindowText));
    };
    EXPECT_EQ(line.FullText().toStdString(), "CD-ROM files folder: " + disc);
    EXPECT_EQ(lineColor(), 6382708);
    const auto& note = Find<QLabel>(panel, "Label22");
    EXPECT_TRUE(Find(panel, "Command57").isVisible());
    EXPECT_EQ(note.mapTo(&panel, QPoint()).x(), PixelsOf(4830));

    Document().Working.TemplateName = "Blue";
    Document().OsnovnaPodesavanja.GlavniDirektorijum.clear();
    Panel();
    EXPECT_EQ(line.FullText(), QStringLiteral("CD-ROM files folder: NOT SELECTED"));
    EXPECT_EQ(lineColor(), 255);
    EXPECT_FALSE(Find(panel, "Command57").isVisible());
    EXPECT_EQ(note.x(), Find(panel, "Command57").x());
}

TEST_F(CommandsPanel, MoreCommandsNeedATemplate) {
    windows.Register(WindowName::Form10, [this]() -> SkinnedWindow* {
        ADD_FAILURE() << "opened";
        return new SkinnedWindow(Context(), {});
    });
    auto& panel = Panel();
    const test::ScriptedBoxes boxes;
    Click(panel, "Command56");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, QStringLiteral("Please select template!"));
    EXPECT_TRUE(Find(Main(), "Frame2").isVisible());
}

} // namespace tavmoor
