#include "support/program_windows.h"

#include "core/document/project_writer.h"
#include "core/files/profile_file.h"
#include "services/values/native_path_text.h"
#include "settings/main/main_window.h"

#include <QTimer>

namespace tavmoor {

namespace {

constexpr auto Quiet = "the current project stays";

} // namespace

class ProjectCommandsTest : public test::ProgramWindows {
protected:
    Form1& Hub() { return static_cast<Form1&>(Main()); }
    WorkingValues& Working() { return Document().Working; }
    std::string& Title() { return Document().OsnovniPodaci.Tasknaslov; }

    /// A project file whose program title is `title`.
    std::string ProjectFile(const std::string& name, const std::string& title) const {
        auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
        document->OsnovniPodaci.Tasknaslov = title;
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
                             const QString& startFolder, const QString& startFile) {
        EXPECT_EQ(request.title, QString::fromLatin1(title));
        EXPECT_EQ(request.filter, QStringLiteral("Tavmoor project (.tavp)| *.tavp"));
        EXPECT_EQ(request.filterIndex, 1);
        EXPECT_EQ(request.folder, startFolder);
        EXPECT_EQ(request.file, startFile);
    }
};

TEST_F(ProjectCommandsTest, NewAsksAlwaysAndKeepsWhatWasNotSaved) {
    auto& hub = Hub();
    Title() = "lost";
    Working().ProjectPath = folder.Document("a.tavp");
    session.VisualEditorOpened = true;
    test::ScriptedBoxes boxes({BoxAnswer::No, BoxAnswer::Yes, BoxAnswer::Yes});
    hub.Serve(MenuAction::NewProject);
    EXPECT_EQ(Title(), "lost") << Quiet;
    hub.TakeStep(NavigationStep::Sound);
    hub.Serve(MenuAction::NewProject);
    EXPECT_EQ(boxes.shown[1].title, QStringLiteral("New project"));
    EXPECT_EQ(boxes.shown[1].text,
              QStringLiteral("If not saved, all changes made in current project will be lost!\nDo "
                             "you want to start new project?"));
    EXPECT_EQ(boxes.shown[1].buttons, BoxButtons::YesNo);
    EXPECT_EQ(Title() + Working().ProjectPath, "");
    EXPECT_FALSE(session.VisualEditorOpened);
    EXPECT_TRUE(Find(hub, "Frame2").isVisible());
    EXPECT_FALSE(Find(hub, "Frame5").isVisible());
    EXPECT_EQ(Recovered(), "lost;");
    hub.Serve(MenuAction::NewProject);
    EXPECT_EQ(Recovered(), "lost;") << "there was nothing to keep";
}

TEST_F(ProjectCommandsTest, OpenBeginsWhereTheLastProjectIsAndReadsIt) {
    auto& hub = Hub();
    const std::string path = ProjectFile("projects/a.tavp", "first");
    test::ScriptedDialogs dialogs;
    Working().LastProjectFolder = folder.Document("program");
    hub.Serve(MenuAction::OpenProject);
    CheckRequest(dialogs.opened.at(0), "Open Tavmoor project ...", NativeText("program"), {});
    EXPECT_EQ(Working().LastProjectFolder, "") << "a cancel clears it";

    dialogs.AnswerFile(path);
    hub.Serve(MenuAction::OpenProject);
    EXPECT_EQ(Title(), "first");
    EXPECT_EQ(Working().ProjectPath, path);
    EXPECT_EQ(Working().LastProjectFolder, path);
    EXPECT_EQ(session.settings.recentProject, path);
    EXPECT_EQ(Find(hub, "ProjectTitle").toolTip().toStdString(), path);

    Title() = "changed";
    hub.Serve(MenuAction::OpenProject);
    CheckRequest(dialogs.opened.at(2), "Open Tavmoor project ...", NativeText("projects"),
                 QStringLiteral("a.tavp"));
    EXPECT_EQ(Title(), "changed") << Quiet;

    dialogs.AnswerFile(ProjectFile("b.tavp", "second"));
    hub.Serve(MenuAction::Examples);
    CheckRequest(dialogs.opened.at(3), "Open Example", NativeText("program"), {});
    EXPECT_EQ(Title(), "second");
    EXPECT_EQ(Recovered(), "changed;");
    EXPECT_EQ(Working().LastProjectFolder, "") << "of the cancelled dialog before";
}

TEST_F(ProjectCommandsTest, MessagesOfTheReaderComeUp) {
    const std::string path = folder.Write(
        "a.tavp", "[Napredni sabloni]\r\nDugmePictureFile(3)=Z:\\gone\\button.png\r\n");
    test::ScriptedDialogs dialogs;
    dialogs.AnswerFile(path);
    test::ScriptedBoxes boxes;
    Hub().Serve(MenuAction::OpenProject);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("Warning..."));
    EXPECT_EQ(
        boxes.shown[0].text,
        QStringLiteral("The file Z:\\gone\\button.png used in this project could not be found!"));
}

TEST_F(ProjectCommandsTest, SaveAsksForANameOnceOnly) {
    auto& hub = Hub();
    Title() = "mine";
    test::ScriptedDialogs dialogs;
    hub.Serve(MenuAction::SaveProject);
    CheckRequest(dialogs.saved.at(0), "Save autorun project ...", NativeText("program"), {});
    EXPECT_EQ(Working().ProjectPath, "");

    dialogs.AnswerFile(folder.Document("disc"));
    hub.Serve(MenuAction::SaveProject);
    EXPECT_EQ(folder.Read("disc.tavp"), ProjectText(Document()));
    EXPECT_EQ(session.settings.recentProject, folder.Document("disc.tavp"));
    EXPECT_EQ(Find(hub, "ProjectTitle").toolTip().toStdString(), folder.Document("disc.tavp"));

    Title() = "mine again";
    hub.Serve(MenuAction::SaveProject);
    EXPECT_EQ(folder.Read("disc.tavp"), ProjectText(Document()));
    EXPECT_EQ(dialogs.saved.size(), 2U);
    hub.Serve(MenuAction::SaveProjectAs);
    EXPECT_EQ(dialogs.saved.size(), 3U);
    EXPECT_EQ(Recovered(), "");
}

TEST_F(ProjectCommandsTest, AFailedSaveIsToldAndChangesNothing) {
    auto& hub = Hub();
    const std::string path = ProjectFile("a.tavp", "first");
    test::ScriptedDialogs dialogs;
    dialogs.AnswerFile(path);
    hub.Serve(MenuAction::OpenProject);
    Title() = "mine";
    std::filesystem::create_directories(folder.Native("b.tavp/in the way"));
    dialogs.AnswerFile(folder.Document("b.tavp"));
    test::ScriptedBoxes boxes;
    hub.Serve(MenuAction::SaveProjectAs);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_TRUE(boxes.shown[0].text.startsWith(QStringLiteral("The project was not saved.\n")));
    EXPECT_TRUE(boxes.shown[0].text.contains(QStringLiteral("b.tavp")));
    EXPECT_EQ(Title(), "mine");
    hub.Serve(MenuAction::SaveProject);
    EXPECT_EQ(folder.Read("a.tavp"), ProjectText(Document())) << "the project's own file";
    EXPECT_EQ(Working().ProjectPath, path);
}

TEST_F(ProjectCommandsTest, WhatCannotBeReadDoesNotTakeThePlaceOfTheProject) {
    auto& hub = Hub();
    Title() = "mine";
    std::filesystem::create_directory(folder.Native("folder.tavp"));
    test::ScriptedDialogs dialogs;
    dialogs.AnswerFile(folder.Document("folder.tavp"));
    test::ScriptedBoxes boxes({BoxAnswer::Ok});
    hub.Serve(MenuAction::OpenProject);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.startsWith(QStringLiteral("The project was not opened.\n")));
    EXPECT_EQ(Title(), "mine") << Quiet;
    EXPECT_EQ(Working().ProjectPath, "");
    EXPECT_EQ(Recovered(), "") << "nothing was dropped";
}

TEST_F(ProjectCommandsTest, ASaveKeepsTheButtonsOfTheCanvas) {
    auto& hub = Hub();
    auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
    document->NapredniSabloni.Dugme[3].DugmeX = 120;
    document->NapredniSabloni.Dugme[3].DugmeExists = true;
    const std::string path = folder.Write("canvas.tavp", ProjectText(*document));
    test::ScriptedDialogs dialogs;
    dialogs.AnswerFile(path);
    hub.Serve(MenuAction::OpenProject);
    hub.Serve(MenuAction::SaveProject);
    EXPECT_EQ(ReadProfileValue(path, "Napredni sabloni", "DugmeX(3)"), "120");
}

TEST_F(ProjectCommandsTest, ACopyIsOfferedOpenedAsUnsavedAndGoneOnceSaved) {
    Document().OsnovniPodaci.Tasknaslov = "rescued";
    session.recoveredProject = WriteRecoveryCopy(Document());
    const std::string copy = session.recoveredProject;
    Document() = NewProjectDocument();
    Working().Recent = "Z:\\recent.tavp";
    test::ScriptedBoxes boxes({BoxAnswer::Yes});
    auto& hub = Hub();
    Settle();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("Recovery of unsaved projects"));
    EXPECT_TRUE(boxes.shown[0].text.contains(QString::fromStdString(copy)));
    EXPECT_EQ(Title(), "rescued");
    EXPECT_EQ(Working().ProjectPath, "");
    EXPECT_EQ(Working().Recent, "Z:\\recent.tavp");

    test::ScriptedDialogs dialogs;
    dialogs.AnswerFile(copy);
    hub.Serve(MenuAction::OpenProject);
    ASSERT_EQ(dialogs.opened.at(0).sidebarFolders, QStringList{NativePathText(RecoveryFolder())});
    EXPECT_EQ(Title(), "rescued");
    EXPECT_EQ(Working().ProjectPath, "") << "never saved over the copy";
    dialogs.AnswerFile(folder.Document("kept.tavp"));
    hub.Serve(MenuAction::SaveProject);
    EXPECT_EQ(dialogs.saved.at(0).folder, NativeText("program"));
    EXPECT_EQ(folder.Read("kept.tavp"), ProjectText(Document()));
    EXPECT_EQ(Recovered(), "");
}

TEST_F(ProjectCommandsTest, WhatIsNotSavedIsKeptEachMinuteAndAtTheEnd) {
    auto& hub = Hub();
    auto* timer = hub.findChild<QTimer*>(QStringLiteral("RecoveryTimer"));
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->intervalAsDuration(), std::chrono::minutes(1));
    Title() = "in work";
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_EQ(Recovered(), "in work;");
    Title() = "lost";
    hub.Unload();
    EXPECT_EQ(Recovered(), "lost;");
}

} // namespace tavmoor
