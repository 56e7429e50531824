#include "core/document/project_writer.h"
#include "core/files/profile_file.h"
#include "services/values/native_path_text.h"
#include "settings/main/main_window.h"
#include "settings/pages.h"
#include "support/program_windows.h"

#include <QTimer>

namespace tavmoor {

class ProjectCommandsTest : public test::ProgramWindows {
protected:
    Form1& Hub() { return static_cast<Form1&>(Main()); }
    test::MainWindowPage Page() { return test::MainWindowPage(Main()); }
    void Serve(MenuAction action) { Hub().Serve(action); }

    /// A project file whose program title is `text`.
    std::string ProjectFile(const std::string& name, const std::string& text) const {
        auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
        document->OsnovniPodaci.Tasknaslov = text;
        return folder.Write(name, ProjectText(*document));
    }
    [[nodiscard]] QString NativeText(const std::string& name) const {
        return NativePathText(folder.Native(name));
    }
    /// The titles of the projects in the recovery folder, oldest first.
    [[nodiscard]] static std::string Recovered() {
        std::string titles;
        std::set<std::filesystem::path> files;
        std::error_code none;
        for (const auto& entry : std::filesystem::directory_iterator(RecoveryFolder(), none)) {
            files.insert(entry.path());
        }
        for (const auto& file : files) {
            titles += ReadProfileValue(DocumentPath(file), "Osnovni podaci", "Tasknaslov") + ";";
        }
        return titles;
    }
    static void CheckRequest(const FileRequest& request, const char* title,
                             const QString& startFolder, const QString& startFile = {}) {
        EXPECT_EQ(request.title, QString::fromLatin1(title));
        EXPECT_EQ(request.filter, QStringLiteral("Tavmoor project (.tavp)| *.tavp"));
        EXPECT_EQ(request.filterIndex, 1);
        EXPECT_EQ(request.folder, startFolder);
        EXPECT_EQ(request.file, startFile);
    }

    std::string& title = session.document.OsnovniPodaci.Tasknaslov;
    WorkingValues& working = session.document.Working;
    test::ScriptedDialogs dialogs;
};

TEST_F(ProjectCommandsTest, NewAsksAlwaysAndKeepsWhatWasNotSaved) {
    Main();
    title = "lost";
    working.ProjectPath = folder.Document("a.tavp");
    session.VisualEditorOpened = true;
    test::ScriptedBoxes boxes({BoxAnswer::No, BoxAnswer::Yes, BoxAnswer::Yes});
    Serve(MenuAction::NewProject);
    EXPECT_EQ(boxes.One(), "New project|If not saved, all changes made in current project will be "
                           "lost!\nDo you want to start new project?");
    EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::YesNo);
    EXPECT_EQ(title, "lost");
    Hub().TakeStep(NavigationStep::Sound);
    Serve(MenuAction::NewProject);
    EXPECT_EQ(title + working.ProjectPath, "");
    EXPECT_FALSE(session.VisualEditorOpened);
    EXPECT_TRUE(Page().mainSettingsPanel.IsVisible());
    EXPECT_FALSE(Page().soundPanel.IsVisible());
    EXPECT_EQ(Recovered(), "lost;");
    Serve(MenuAction::NewProject);
    EXPECT_EQ(Recovered(), "lost;") << "there was nothing to keep";
}

TEST_F(ProjectCommandsTest, OpenBeginsWhereTheLastProjectIsAndReadsIt) {
    const std::string path = ProjectFile("projects/a.tavp", "first");
    working.LastProjectFolder = folder.Document("program");
    Serve(MenuAction::OpenProject);
    CheckRequest(dialogs.opened.at(0), "Open Tavmoor project ...", NativeText("program"));
    EXPECT_EQ(working.LastProjectFolder, "") << "a cancel clears it";

    dialogs.AnswerFile(path);
    Serve(MenuAction::OpenProject);
    EXPECT_EQ(title, "first");
    EXPECT_EQ(working.ProjectPath, path);
    EXPECT_EQ(working.LastProjectFolder, path);
    EXPECT_EQ(session.settings.recentProject, path);
    EXPECT_EQ(Page().project.Tooltip(), path);

    title = "changed";
    Serve(MenuAction::OpenProject);
    CheckRequest(dialogs.opened.at(2), "Open Tavmoor project ...", NativeText("projects"),
                 QStringLiteral("a.tavp"));
    EXPECT_EQ(title, "changed");

    dialogs.AnswerFile(ProjectFile("b.tavp", "second"));
    Serve(MenuAction::Examples);
    CheckRequest(dialogs.opened.at(3), "Open Example", NativeText("program"));
    EXPECT_EQ(title, "second");
    EXPECT_EQ(Recovered(), "changed;");
    EXPECT_EQ(working.LastProjectFolder, "") << "of the cancelled dialog before";
}

TEST_F(ProjectCommandsTest, MessagesOfTheReaderComeUp) {
    dialogs.AnswerFile(folder.Write(
        "a.tavp", "[Napredni sabloni]\r\nDugmePictureFile(3)=Z:\\gone\\button.png\r\n"));
    test::ScriptedBoxes boxes;
    Serve(MenuAction::OpenProject);
    EXPECT_EQ(boxes.One(), "Warning...|The file Z:\\gone\\button.png used in this project could "
                           "not be found!");
}

TEST_F(ProjectCommandsTest, SaveAsksForANameOnceOnly) {
    Main();
    title = "mine";
    Serve(MenuAction::SaveProject);
    CheckRequest(dialogs.saved.at(0), "Save autorun project ...", NativeText("program"));
    EXPECT_EQ(working.ProjectPath, "");

    dialogs.AnswerFile(folder.Document("disc"));
    Serve(MenuAction::SaveProject);
    EXPECT_EQ(folder.Read("disc.tavp"), ProjectText(Document()));
    EXPECT_EQ(session.settings.recentProject, folder.Document("disc.tavp"));
    EXPECT_EQ(Page().project.Tooltip(), folder.Document("disc.tavp"));

    title = "mine again";
    Serve(MenuAction::SaveProject);
    EXPECT_EQ(folder.Read("disc.tavp"), ProjectText(Document()));
    EXPECT_EQ(dialogs.saved.size(), 2U);
    Serve(MenuAction::SaveProjectAs);
    EXPECT_EQ(dialogs.saved.size(), 3U);
    EXPECT_EQ(Recovered(), "");
}

TEST_F(ProjectCommandsTest, AFailedSaveIsToldAndChangesNothing) {
    const std::string path = ProjectFile("a.tavp", "first");
    dialogs.AnswerFile(path);
    Serve(MenuAction::OpenProject);
    title = "mine";
    std::filesystem::create_directories(folder.Native("b.tavp/in the way"));
    dialogs.AnswerFile(folder.Document("b.tavp"));
    test::ScriptedBoxes boxes;
    Serve(MenuAction::SaveProjectAs);
    const std::string report = boxes.One();
    EXPECT_TRUE(report.starts_with("Save project|The project was not saved.\n"));
    EXPECT_NE(report.find("b.tavp"), std::string::npos);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(title, "mine");
    Serve(MenuAction::SaveProject);
    EXPECT_EQ(folder.Read("a.tavp"), ProjectText(Document())) << "the project's own file";
    EXPECT_EQ(working.ProjectPath, path);
}

TEST_F(ProjectCommandsTest, WhatCannotBeReadDoesNotTakeThePlaceOfTheProject) {
    Main();
    title = "mine";
    std::filesystem::create_directory(folder.Native("folder.tavp"));
    dialogs.AnswerFile(folder.Document("folder.tavp"));
    test::ScriptedBoxes boxes;
    Serve(MenuAction::OpenProject);
    EXPECT_TRUE(boxes.One().starts_with("Open project|The project was not opened.\n"));
    EXPECT_EQ(title, "mine");
    EXPECT_EQ(working.ProjectPath, "");
    EXPECT_EQ(Recovered(), "") << "nothing was dropped";
}

TEST_F(ProjectCommandsTest, ASaveKeepsTheButtonsOfTheCanvas) {
    auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
    document->NapredniSabloni.Dugme[3].DugmeX = 120;
    document->NapredniSabloni.Dugme[3].DugmeExists = true;
    const std::string path = folder.Write("canvas.tavp", ProjectText(*document));
    dialogs.AnswerFile(path);
    Serve(MenuAction::OpenProject);
    Serve(MenuAction::SaveProject);
    EXPECT_EQ(ReadProfileValue(path, "Napredni sabloni", "DugmeX(3)"), "120");
}

TEST_F(ProjectCommandsTest, ACopyIsOfferedOpenedAsUnsavedAndGoneOnceSaved) {
    title = "rescued";
    const std::string copy = WriteRecoveryCopy(Document());
    session.recoveredProject = copy;
    Document() = NewProjectDocument();
    working.Recent = "Z:\\recent.tavp";
    test::ScriptedBoxes boxes({BoxAnswer::Yes});
    Main();
    Settle();
    const std::string question = boxes.One();
    EXPECT_TRUE(question.starts_with("Recovery of unsaved projects|"));
    EXPECT_NE(question.find(copy), std::string::npos);
    EXPECT_EQ(title, "rescued");
    EXPECT_EQ(working.ProjectPath, "");
    EXPECT_EQ(working.Recent, "Z:\\recent.tavp");

    dialogs.AnswerFile(copy);
    Serve(MenuAction::OpenProject);
    ASSERT_EQ(dialogs.opened.at(0).sidebarFolders, QStringList{NativePathText(RecoveryFolder())});
    EXPECT_EQ(title, "rescued");
    EXPECT_EQ(working.ProjectPath, "") << "never saved over the copy";
    dialogs.AnswerFile(folder.Document("kept.tavp"));
    Serve(MenuAction::SaveProject);
    EXPECT_EQ(dialogs.saved.at(0).folder, NativeText("program"));
    EXPECT_EQ(folder.Read("kept.tavp"), ProjectText(Document()));
    EXPECT_EQ(Recovered(), "");
}

TEST_F(ProjectCommandsTest, WhatIsNotSavedIsKeptEachMinuteAndAtTheEnd) {
    auto* timer = Main().findChild<QTimer*>(QStringLiteral("RecoveryTimer"));
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->intervalAsDuration(), std::chrono::minutes(1));
    title = "in work";
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_EQ(Recovered(), "in work;");
    title = "lost";
    Main().Unload();
    EXPECT_EQ(Recovered(), "lost;");
}

} // namespace tavmoor
