#include "services/values/color_value.h"
#include "services/values/twips.h"
#include "settings/pages.h"
#include "support/plain_window.h"
#include "support/program_windows.h"

#include <QComboBox>

namespace tavmoor {

class CommandsPanel : public test::ProgramWindows {
protected:
    QWidget& Start() {
        test::PlainWindow::Register(Context(), WindowName::Form10);
        base.GlavniDirektorijum = disc;
        return ShowPanel(PanelName::Frame4);
    }
    FixedCommand& Command(std::size_t number) {
        return Document().IzvrsneKomande.Komande.at(number);
    }
    [[nodiscard]] ColorValue FolderColor() const {
        return ToColorValue(page.folder.Color(QPalette::WindowText));
    }

    std::string disc = folder.Document("disc");
    BaseSettings& base = session.document.OsnovnaPodesavanja;
    QWidget& panel = Start();
    test::CommandsPage page{panel};
};

TEST_F(CommandsPanel, EachRowEditsItsOwnCommandAndClearsIt) {
    page.secondTitle.Type("Read & go");
    page.secondTarget.Type("www.example.com");
    page.secondParameter.Type("/s");
    auto& type = page.secondType.As<QComboBox>();
    EXPECT_EQ(type.currentIndex(), -1);
    type.setCurrentText(QStringLiteral("Visit web page"));
    EXPECT_EQ(type.currentIndex(), 1);
    page.secondCloses.Click();
    const auto second = [this] {
        const FixedCommand& command = Command(2);
        return command.Opis + "|" + command.Fajl + "|" + command.Parametar + "|" + command.Vrsta +
               "|" + std::to_string(command.Zatvara);
    };
    EXPECT_EQ(second(), "Read & go|www.example.com|/s|Visit web page|1");

    Document().OpisKomandi[2].C = "kept";
    page.lastTitle.Type("last");
    page.clearLast.Click();
    EXPECT_EQ(Command(6).Opis, "");
    EXPECT_EQ(Command(2).Opis, "Read & go");
    page.clearSecond.Click();
    EXPECT_EQ(second(), "||||0");
    EXPECT_EQ(type.currentIndex(), -1);
    EXPECT_FALSE(page.secondCloses.IsTicked());
    EXPECT_EQ(page.secondTarget.Text(), "");
    EXPECT_EQ(Document().OpisKomandi[2].C, "kept");
}

TEST_F(CommandsPanel, ChosenFilesOfTheDiscAreStoredRelativeToIt) {
    test::ScriptedDialogs dialogs;
    const auto browse = [&](const std::string& path) {
        dialogs.AnswerFile(path);
        page.browseLast.Click();
        return Command(6).Fajl;
    };
    const std::string inside = folder.Write("disc/run/a.exe", "x");
    const std::string beside = folder.Write("disc2/a.exe", "x");
    EXPECT_EQ(browse(inside), "\\run\\a.exe");
    EXPECT_EQ(dialogs.opened[0].title, QStringLiteral("Choose files to run/open..."));
    EXPECT_EQ(browse(beside), beside);
    EXPECT_EQ(browse(""), beside);
    EXPECT_TRUE(page.firstTarget.Drop(folder.Native("disc/run/a.exe")));
    EXPECT_EQ(Command(1).Fajl, "\\run\\a.exe");

    base.GlavniDirektorijum.back() = 'C';
    EXPECT_EQ(browse(inside), inside);
    base.GlavniDirektorijum = disc + "\\";
    EXPECT_EQ(browse(inside), "run\\a.exe");
}

TEST_F(CommandsPanel, ShowsTheFolderAndTheMenuTitlesOfTheTemplate) {
    const auto& note = page.menuTitlesNote.As();
    Document().Working.TemplateName = "Nexus";
    windows.Main()->ShowDocument();
    EXPECT_EQ(page.folder.Text(), "CD-ROM files folder: " + disc);
    EXPECT_EQ(FolderColor(), 6382708);
    EXPECT_TRUE(page.menuTitles.IsVisible());
    EXPECT_EQ(note.mapTo(&panel, QPoint()).x(), PixelsOf(4830));

    Document().Working.TemplateName = "Blue";
    base.GlavniDirektorijum.clear();
    windows.Main()->ShowDocument();
    EXPECT_EQ(page.folder.Text(), "CD-ROM files folder: NOT SELECTED");
    EXPECT_EQ(FolderColor(), 255);
    EXPECT_FALSE(page.menuTitles.IsVisible());
    EXPECT_EQ(note.x(), page.menuTitles.As().x());
}

TEST_F(CommandsPanel, MoreCommandsNeedATemplate) {
    test::ScriptedBoxes boxes;
    page.more.Click();
    EXPECT_EQ(boxes.One(), "|Please select template!");
    EXPECT_EQ(windows.Find(WindowName::Form10), nullptr);
    EXPECT_TRUE(Find(Main(), "Frame2").isVisible());
}

} // namespace tavmoor
