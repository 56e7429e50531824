#include "services/dialogs/common_dialog.h"

#include "core/files/program_folder.h"
#include "core/files/runtime_error.h"
#include "services/dialogs/dialog_answers.h"
#include "services/dialogs/project_save_dialog.h"
#include "support/scripted_answers.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

#include <QDir>

namespace tavmoor {

using test::ScriptedBoxes;
using test::ScriptedDialogs;

class CommonDialogTest : public testing::Test {
protected:
    QString NativeText(const std::string& name = "") const {
        return NativePathText(folder_.Native(name));
    }
    template <typename Action>
    static void ExpectCancelError(Action action) {
        try {
            action();
            ADD_FAILURE() << "no error";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(static_cast<int>(error.Number()), 5);
        }
    }

    test::TemporaryFolder folder_;
    ScriptedDialogs dialogs_;
    CommonDialog dialog_;
};

TEST_F(CommonDialogTest, HandsEverythingToTheOpenDialogAndTakesTheFile) {
    const std::string file = folder_.Write("art/Blue.ico", "");
    dialog_.DialogTitle = "Choose icon...";
    dialog_.Filter = "Icons (*.ico)| *.ico|All files (*.*)| *.*";
    dialog_.FilterIndex = 2;
    dialog_.flags = 0x10E4;
    dialog_.InitDir = folder_.Document("art");
    dialog_.DefaultExt = ".ico";
    dialog_.SidebarFolders = {folder_.Native()};
    dialogs_.AnswerFile(file, 1);
    dialog_.SetAction(0);

    ASSERT_EQ(dialogs_.opened.size(), 1U);
    const FileRequest& request = dialogs_.opened.front();
    EXPECT_EQ(request.title, QStringLiteral("Choose icon..."));
    EXPECT_EQ(request.filter, QStringLiteral("Icons (*.ico)| *.ico|All files (*.*)| *.*"));
    EXPECT_EQ(request.filterIndex, 2);
    EXPECT_EQ(request.flags, 0x1004U);
    EXPECT_EQ(request.folder, NativeText("art"));
    EXPECT_EQ(request.file, QString());
    EXPECT_EQ(request.defaultExtension, QStringLiteral("ico"));
    EXPECT_EQ(request.sidebarFolders, QStringList(NativeText()));
    EXPECT_EQ(dialog_.FileName, file);
    EXPECT_EQ(dialog_.FileTitle, "Blue.ico");
    EXPECT_EQ(dialog_.FilterIndex, 1);
}

TEST_F(CommonDialogTest, BeginsWhereAFolderOrAFilePathSaysElseBesideTheProgram) {
    struct Case {
        std::string initDir, fileName;
        QString folder, file;
    };
    const QString program = NativePathText(NativePath(ProgramFolder()));
    const std::string project = folder_.Write("discs/trip.tavp", "");
    for (const Case& c :
         {Case{"", "", program, QString()},
          {folder_.Document("discs") + "\\", "", NativeText("discs"), QString()},
          {project, "", NativeText("discs"), QStringLiteral("trip.tavp")},
          {folder_.Document("discs/new.tavp"), "", NativeText("discs"), QStringLiteral("new.tavp")},
          {folder_.Document("gone/trip.tavp"), "", program, QString()},
          {"Q:\\discs", "", program, QString()},
          {folder_.Document("discs"), "a.tavp", NativeText("discs"), QStringLiteral("a.tavp")},
          {"", project, NativeText("discs"), QStringLiteral("trip.tavp")}}) {
        dialog_.InitDir = c.initDir;
        dialog_.FileName = c.fileName;
        dialog_.ShowSave();
        const FileRequest& request = dialogs_.saved.back();
        EXPECT_EQ(QDir(request.folder).absolutePath(), QDir(c.folder).absolutePath()) << c.initDir;
        EXPECT_EQ(request.file, c.file) << c.initDir << c.fileName;
    }
}

TEST_F(CommonDialogTest, OnlySaveColorAndFontTurnACancelIntoAnError) {
    dialog_.CancelError = true;
    dialog_.FileName = "old.txt";
    dialog_.FileTitle = "old.txt";
    dialog_.RGBResult = 7;
    dialog_.FontName = "Arial";
    EXPECT_NO_THROW(dialog_.ShowOpen());
    EXPECT_EQ(dialog_.FileName + dialog_.FileTitle, "");
    EXPECT_NO_THROW(dialog_.ShowFolder());
    ExpectCancelError([this] { dialog_.ShowSave(); });
    ExpectCancelError([this] { dialog_.ShowColor(); });
    ExpectCancelError([this] { dialog_.ShowFont(); });
    EXPECT_EQ(dialog_.RGBResult, 7);
    EXPECT_EQ(dialog_.FontName, "Arial");
    for (const bool isError : {true, false}) {
        dialog_.CancelError = isError;
        EXPECT_FALSE(AskForFile(dialog_) || AskForNewFile(dialog_) || AskForFolder(dialog_) ||
                     AskForColor(dialog_) || AskForFont(dialog_));
        EXPECT_EQ(dialog_.CancelError, isError);
    }
    EXPECT_NO_THROW((dialog_.ShowSave(), dialog_.ShowColor(), dialog_.ShowFont()));
}

TEST_F(CommonDialogTest, RefusesPathsThatTheDocumentCannotHold) {
    ScriptedBoxes boxes;
    dialogs_.AnswerNativeFile(NativeText(std::string("\xE6\x97\xA5.png"))); // not in code page 1252
    dialog_.ShowOpen();
    EXPECT_EQ(dialog_.FileName, "");
    dialogs_.AnswerFile("Z:\\" + std::string(251, 'a'));
    dialog_.ShowOpen();
    EXPECT_EQ(dialog_.FileName.size(), 254U);
    dialog_.CancelError = true;
    dialogs_.AnswerFile("Z:\\" + std::string(252, 'a'));
    ExpectCancelError([this] { dialog_.ShowSave(); });
    EXPECT_EQ(dialog_.FileName, "");
    dialogs_.AnswerFolder("Z:\\" + std::string(257, 'a'));
    dialog_.ShowFolder();
    EXPECT_EQ(CommonDialog::LastFolder(), "");
    ASSERT_EQ(boxes.shown.size(), 3U);
    EXPECT_TRUE(boxes.shown[0].text.contains(QStringLiteral("\"日\" cannot be used")));
    EXPECT_TRUE(boxes.shown[1].text.contains(QStringLiteral("254")));
    EXPECT_TRUE(boxes.shown[2].text.contains(QStringLiteral("259")));
}

TEST_F(CommonDialogTest, GivesTheFolderThroughTheSharedValueAlone) {
    dialog_.InitDir = folder_.Document();
    dialog_.DialogTitle = "CD ROM files folder";
    dialogs_.AnswerFolder(folder_.Document("disc"));
    dialog_.ShowFolder();
    EXPECT_EQ(dialogs_.folders[0].title, QStringLiteral("CD ROM files folder"));
    EXPECT_EQ(dialogs_.folders[0].folder, NativeText());
    EXPECT_EQ(CommonDialog::LastFolder(), folder_.Document("disc"));
    EXPECT_EQ(dialog_.InitDir + dialog_.DialogTitle, "");
    CommonDialog().ShowFolder();
    EXPECT_EQ(CommonDialog::LastFolder(), "");
}

TEST_F(CommonDialogTest, ColorGoesInAndOutWithItsFlags) {
    dialog_.RGBResult = 0x0000CCFF; // blue, green, red
    dialog_.flags = 0xF2;
    dialogs_.colors = {QColor(1, 2, 3)};
    dialog_.ShowColor();
    EXPECT_EQ(dialogs_.colorRequests[0].color, QColor(255, 204, 0));
    EXPECT_EQ(dialogs_.colorRequests[0].customColors[15], QColor(255, 255, 255));
    EXPECT_EQ(dialogs_.colorRequests[0].flags, 2U);
    EXPECT_EQ(dialog_.RGBResult, 0x030201);
}

TEST_F(CommonDialogTest, FontGoesInAndOutAndKeepsAnUntouchedSystemColor) {
    ScriptedBoxes boxes;
    const auto systemText = static_cast<ColorValue>(0x80000012);
    dialog_.FontName = "Arial";
    dialog_.FontSize = 8.25;
    dialog_.Underline = true;
    dialog_.RGBResult = systemText;
    const FontChoice begin{QStringLiteral("Arial"), 8.25, false, false, true, false,
                           QColor(0, 0, 0)};
    FontChoice chosen{QStringLiteral("Tahoma"), 12, true, true, false, true, QColor(0, 0, 0)};
    dialogs_.fonts.emplace_back(chosen);
    dialog_.ShowFont();
    EXPECT_EQ(dialogs_.fontRequests[0].font, begin);
    EXPECT_EQ(dialogs_.fontRequests[0].flags, 0x100U);
    EXPECT_EQ(dialog_.RGBResult, systemText);
    EXPECT_TRUE(dialog_.Bold && dialog_.Italic && dialog_.StrikeThru && !dialog_.Underline);

    chosen.color = QColor(255, 0, 0);
    chosen.family = QStringLiteral("日本");
    dialogs_.fonts.emplace_back(chosen); // a name that cannot be stored
    dialog_.ShowFont();
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(dialog_.FontName, "Tahoma");
    EXPECT_EQ(dialog_.FontSize, 12);
    EXPECT_EQ(dialog_.RGBResult, systemText);
}

TEST_F(CommonDialogTest, ShellDialogsAreCalledByNumberAndSayWhenThereIsNone) {
    ScriptedBoxes boxes;
    dialog_.HelpFile = folder_.Document("a.hlp");
    dialog_.HelpCommand = 257;
    dialog_.HelpKey = "key";
    for (const std::int16_t number :
         std::initializer_list<std::int16_t>{5, 8, 10, 11, 12, 13, 14, -1}) {
        dialog_.SetAction(number);
    }
    dialog_.ShowFindFiles();
    std::vector<ShellDialog> kinds;
    for (const ShellRequest& request : dialogs_.shells) {
        kinds.push_back(request.dialog);
    }
    EXPECT_EQ(kinds,
              (std::vector{ShellDialog::Help, ShellDialog::Format, ShellDialog::ObjectProperties,
                           ShellDialog::Restart, ShellDialog::Run, ShellDialog::ShutDown,
                           ShellDialog::FindFiles}));
    EXPECT_EQ(dialogs_.shells[0].path, folder_.Native("a.hlp"));
    EXPECT_EQ(dialogs_.shells[0].command, 257U);
    EXPECT_EQ(dialogs_.shells[0].key, L"key");
    ASSERT_EQ(boxes.shown.size(), 7U);
    EXPECT_EQ(boxes.shown[1].text,
              QStringLiteral("The \"format\" dialog is not available on this system."));
    dialogs_.hasShell = true;
    dialog_.ShowRun();
    EXPECT_EQ(boxes.shown.size(), 7U);
}

TEST_F(CommonDialogTest, IconSizeIsSixteenOrThirtyTwo) {
    for (const auto& [set, got] : {std::pair{16, 16}, {48, 32}, {16, 16}, {0, 32}}) {
        dialog_.SetIconSize(set);
        EXPECT_EQ(dialog_.IconSize(), got);
    }
    dialog_.FileName = folder_.Document("a.ico");
    dialog_.SetAction(9);
    EXPECT_EQ(dialogs_.iconRequests[0], std::pair(NativeText("a.ico"), 32));
}

TEST_F(CommonDialogTest, SavesAProjectAndAsksForTheNameThatIsReallyWritten) {
    folder_.Write("trip.tavp", "older");
    ScriptedBoxes boxes({BoxAnswer::No, BoxAnswer::Yes});
    CommonProjectSaveDialog save(dialog_);
    dialog_.FileName = "picture.jpg";
    dialogs_.AnswerFile(folder_.Document("trip"));
    dialogs_.AnswerFile(folder_.Document("trip"));
    const std::string filter = "Tavmoor project (.tavp)| *.tavp";
    EXPECT_EQ(save.Show(folder_.Document(), "Save autorun project ...", filter),
              folder_.Document("trip"));
    EXPECT_EQ(save.CurrentFileName(), folder_.Document("trip"));
    ASSERT_EQ(dialogs_.saved.size(), 2U);
    EXPECT_EQ(dialogs_.saved[1].file, QString());
    EXPECT_EQ(dialogs_.saved[1].folder, NativeText());
    EXPECT_EQ(save.Show(folder_.Document(), "Save autorun project ...", filter), "");
}

} // namespace tavmoor
