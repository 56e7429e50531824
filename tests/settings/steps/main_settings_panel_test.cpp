#include "core/document/project_reset.h"
#include "services/controls/color_box.h"
#include "settings/pages.h"
#include "support/color_answers.h"
#include "support/picture_file.h"
#include "support/plain_window.h"
#include "support/program_windows.h"

#include <QLabel>

namespace tavmoor {

class MainSettingsPanel : public test::ProgramWindows {
protected:
    SkinnedWindow& Start() {
        test::PlainWindow::Register(Context(), WindowName::Form15);
        return Main();
    }
    QImage IconImage() { return page.iconImage.As<QLabel>().pixmap().toImage(); }

    BaseSettings& base = session.document.OsnovnaPodesavanja;
    SkinnedWindow& form = Start();
    test::MainSettingsPage page{ShowPanel(PanelName::Frame2)};
    test::ScriptedDialogs dialogs;
};

TEST_F(MainSettingsPanel, TheFolderIsBrowsedTypedAndDropped) {
    const std::string& stored = Document().CdFolder();
    dialogs.AnswerFolder(folder.Document());
    page.browseFolder.Click();
    ASSERT_EQ(dialogs.folders.size(), 1U);
    EXPECT_EQ(dialogs.folders[0].title, QStringLiteral("CD ROM files folder"));
    EXPECT_EQ(stored, folder.Document());
    EXPECT_EQ(page.folder.Text(), folder.Document());
    page.browseFolder.Click();
    EXPECT_EQ(stored, folder.Document()) << "a cancelled dialog changes nothing";

    page.folder.Type("D:\\disc");
    EXPECT_EQ(stored, "D:\\disc");
    EXPECT_TRUE(page.folder.Drop(folder.Native("program")));
    EXPECT_EQ(stored, folder.Document("program"));
    EXPECT_FALSE(page.folder.Drop(folder.Native("none.txt")));
}

TEST_F(MainSettingsPanel, TheBackgroundIsChosenDroppedAndRemoved) {
    test::ScriptedBoxes boxes;
    const std::string first = folder.Write("first.png", "any");
    dialogs.AnswerFile(first);
    page.browsePicture.Click();
    EXPECT_EQ(dialogs.opened.at(0).title, QStringLiteral("Choose autorun background picture..."));
    EXPECT_EQ(base.PozadinskaSlika, first);
    EXPECT_EQ(page.picture.Text(), first);
    folder.Write("a,b.bmp", "any");
    EXPECT_TRUE(page.picture.Drop(folder.Native("a,b.bmp")));
    EXPECT_EQ(boxes.shown.size(), 1U) << "the name check";
    EXPECT_EQ(base.PozadinskaSlika, first);

    const std::string second = folder.Write("second.bmp", "any");
    EXPECT_TRUE(page.picture.Drop(folder.Native("second.bmp")));
    EXPECT_EQ(base.PozadinskaSlika, second);
    page.removePicture.Click();
    EXPECT_EQ(base.PozadinskaSlika + page.picture.Text(), "");
}

TEST_F(MainSettingsPanel, TheIconBeginsInItsFolderAndLoadErrorsAreIgnored) {
    std::filesystem::create_directories(folder.Native("program/Icons"));
    const std::string& stored = Document().OsnovniPodaci.Ikona;
    const std::string icon = test::WritePicture(folder, "icon.ico");
    dialogs.AnswerFile(icon);
    page.browseIcon.Click();
    EXPECT_EQ(dialogs.opened.at(0).title, QStringLiteral("Choose icon..."));
    EXPECT_TRUE(dialogs.opened.at(0).folder.endsWith(QStringLiteral("Icons")))
        << dialogs.opened.at(0).folder.toStdString();
    EXPECT_EQ(stored, icon);
    EXPECT_FALSE(IconImage().isNull());
    page.browseIcon.Click();
    EXPECT_EQ(stored, icon) << "cancelled";
    EXPECT_EQ(dialogs.opened.at(1).folder.toStdString(), folder.Native().string());

    test::WritePicture(folder, "picture.png");
    EXPECT_FALSE(page.icon.Drop(folder.Native("picture.png")));
    folder.Write("broken.ico", "no icon");
    EXPECT_TRUE(page.icon.Drop(folder.Native("broken.ico")));
    EXPECT_EQ(stored, folder.Document("broken.ico"));
    EXPECT_TRUE(IconImage().isNull());
    page.removeIcon.Click();
    EXPECT_EQ(page.icon.Text(), "");
}

TEST_F(MainSettingsPanel, TheIconIsLoadedAgainOnlyWhenItsFileChanged) {
    const auto corner = [&](const std::string& file) {
        Document().OsnovniPodaci.Ikona = folder.Document(file);
        windows.Main()->ShowDocument();
        return IconImage().pixelColor(0, 0);
    };
    const std::filesystem::path file = folder.Native("icon.ico");
    test::WritePicture(folder, "icon.ico", Qt::red);
    EXPECT_EQ(corner("icon.ico"), QColor(Qt::red));
    const auto time = std::filesystem::last_write_time(file);
    test::WritePicture(folder, "icon.ico", Qt::blue);
    std::filesystem::last_write_time(file, time);
    EXPECT_EQ(corner("icon.ico"), QColor(Qt::red)) << "it was read again";
    std::filesystem::last_write_time(file, time + std::chrono::seconds(1));
    EXPECT_EQ(corner("icon.ico"), QColor(Qt::blue));
    test::WritePicture(folder, "red.png", Qt::red);
    EXPECT_EQ(corner("red.png"), QColor(Qt::red));
}

TEST_F(MainSettingsPanel, TheBackColorIsPickedByButtonAndLabel) {
    test::AnswerColorChoices(Context(), {255, 65280, MenuCancelled{}});
    page.chooseColor.Click();
    EXPECT_EQ(base.BojaProzora, 255);
    page.color.Click();
    EXPECT_EQ(base.BojaProzora, 65280);
    EXPECT_EQ(page.color.As<ColorBox>().Color(), 65280);
    page.color.Click();
    EXPECT_EQ(base.BojaProzora, 65280);
}

TEST_F(MainSettingsPanel, TheTemplateRowShowsTheNameThatTheUserKnows) {
    base.Sablon = "C:\\t\\a.Atavt";
    const auto shown = [this](std::string_view name) {
        Document().Working.TemplateName = name;
        windows.Main()->ShowDocument();
        return page.templateName.Text() + "|" + page.templatePath.Text();
    };
    EXPECT_EQ(shown(EditorTemplateName), "Advanced Visual editor|C:\\t\\a.Atavt");
    EXPECT_EQ(shown("Nexus"), "Nexus|C:\\t\\a.Atavt");
}

TEST_F(MainSettingsPanel, ExpiryAsksForTheFolderFirstAndOpensWhereTheMainWindowStands) {
    test::ScriptedBoxes boxes({BoxAnswer::No, BoxAnswer::No});
    page.expiry.Click();
    EXPECT_EQ(boxes.One(), "|CD-ROM files folder must be selected! Do you want to do it now?");
    base.GlavniDirektorijum = folder.Document();
    page.expiry.Click();
    EXPECT_EQ(boxes.shown.at(1).title, QStringLiteral("Warning..."));
    EXPECT_EQ(windows.Find(WindowName::Form15), nullptr);
    base.Sablon = "C:\\t\\a.tavt";
    form.move(40, 30);
    page.expiry.Click();
    SkinnedWindow* expiry = Shown(WindowName::Form15);
    ASSERT_NE(expiry, nullptr);
    EXPECT_EQ(expiry->pos(), QPoint(40, 30));
    EXPECT_FALSE(form.isVisible());
}

} // namespace tavmoor
