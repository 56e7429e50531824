#include "settings/steps/main_settings_panel.h"

#include "core/document/project_reset.h"
#include "services/controls/color_box.h"
#include "services/controls/value_label.h"
#include "support/color_answers.h"
#include "support/plain_window.h"
#include "support/program_windows.h"

#include <QLabel>
#include <QLineEdit>

namespace tavmoor {

class MainSettingsPanel : public test::ProgramWindows {
protected:
    MainSettingsPanel() { test::PlainWindow::Register(Context(), WindowName::Form15); }

    QString Shown(const char* label) { return Find<ValueLabel>(Main(), label).FullText(); }

    /// A picture of one colour, in a file.
    std::string WritePicture(const std::string& name, QSize size = {16, 16}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(QString::fromStdString(folder.Native(name).string()), "PNG"));
        return folder.Document(name);
    }
};

TEST_F(MainSettingsPanel, TheFolderIsBrowsedTypedAndDropped) {
    test::ScriptedDialogs dialogs;
    auto& form = Main();
    const std::string& stored = Document().CdFolder();
    auto& box = Find<QLineEdit>(form, "Text23");

    dialogs.AnswerFolder(folder.Document());
    Click(form, "Command32");
    ASSERT_EQ(dialogs.folders.size(), 1U);
    EXPECT_EQ(dialogs.folders[0].title, QStringLiteral("CD ROM files folder"));
    EXPECT_EQ(stored, folder.Document());
    EXPECT_EQ(box.text().toStdString(), folder.Document());

    dialogs.AnswerFolder("");
    Click(form, "Command32");
    EXPECT_EQ(stored, folder.Document()) << "a cancelled dialog changes nothing";

    Type(form, "Text23", QStringLiteral("D:\\disc"));
    EXPECT_EQ(stored, "D:\\disc");
    EXPECT_TRUE(Drop(box, folder.Native("program")));
    EXPECT_EQ(stored, folder.Document("program"));
    EXPECT_FALSE(Drop(box, folder.Native("none.txt")));
}

TEST_F(MainSettingsPanel, TheBackgroundIsChosenDroppedAndRemoved) {
    test::ScriptedDialogs dialogs;
    test::ScriptedBoxes boxes;
    auto& form = Main();
    const std::string& stored = Document().OsnovnaPodesavanja.PozadinskaSlika;
    session.settings.lastPictureFolder = folder.Document() + "\\";

    const std::string first = WritePicture("first.png");
    dialogs.AnswerFile(first);
    Click(form, "Command1");
    EXPECT_EQ(dialogs.opened.at(0).title, QStringLiteral("Choose autorun background picture..."));
    EXPECT_EQ(stored, first);
    EXPECT_EQ(Shown("Label11").toStdString(), first);

    WritePicture("a,b.bmp");
    EXPECT_TRUE(Drop(Find(form, "Label11"), folder.Native("a,b.bmp")));
    EXPECT_EQ(boxes.shown.size(), 1U) << "the name check";
    EXPECT_EQ(stored, first);

    const std::string second = WritePicture("second.bmp");
    EXPECT_TRUE(Drop(Find(form, "Label11"), folder.Native("second.bmp")));
    EXPECT_EQ(stored, second);
    Click(form, "Command51");
    EXPECT_EQ(stored, "");
    EXPECT_EQ(Shown("Label11"), QString());
}

TEST_F(MainSettingsPanel, TheIconBeginsInItsFolderAndLoadErrorsAreIgnored) {
    test::ScriptedDialogs dialogs;
    std::filesystem::create_directories(folder.Native("program/Icons"));
    auto& form = Main();
    const std::string& stored = Document().OsnovniPodaci.Ikona;
    const auto hasImage = [&form] { return !Find<QLabel>(form, "Image1").pixmap().isNull(); };

    const std::string icon = WritePicture("icon.ico");
    dialogs.AnswerFile(icon);
    Click(form, "Command17");
    EXPECT_EQ(dialogs.opened.at(0).title, QStringLiteral("Choose icon..."));
    EXPECT_TRUE(dialogs.opened.at(0).folder.endsWith(QStringLiteral("Icons")))
        << dialogs.opened.at(0).folder.toStdString();
    EXPECT_EQ(stored, icon);
    EXPECT_TRUE(hasImage());

    Click(form, "Command17");
    EXPECT_EQ(stored, icon) << "cancelled";
    EXPECT_EQ(dialogs.opened.at(1).folder.toStdString(), folder.Native().string());

    WritePicture("picture.png");
    EXPECT_FALSE(Drop(Find(form, "Label35"), folder.Native("picture.png")));
    folder.Write("broken.ico", "no icon");
    EXPECT_TRUE(Drop(Find(form, "Label35"), folder.Native("broken.ico")));
    EXPECT_EQ(stored, folder.Document("broken.ico"));
    EXPECT_FALSE(hasImage());
    Click(form, "Command52");
    EXPECT_EQ(Shown("Label35"), QString());
}

TEST_F(MainSettingsPanel, TheIconIsLoadedAgainOnlyWhenItsFileChanged) {
    auto& form = Main();
    const auto corner = [&] {
        windows.Main()->ShowDocument();
        return Find<QLabel>(form, "Image1").pixmap().toImage().pixelColor(0, 0);
    };
    const std::filesystem::path file = folder.Native("icon.ico");
    const auto write = [&](QColor color) {
        QImage image({16, 16}, QImage::Format_RGB32);
        image.fill(color);
        ASSERT_TRUE(image.save(QString::fromStdString(file.string()), "BMP"));
    };
    write(Qt::red);
    Document().OsnovniPodaci.Ikona = folder.Document("icon.ico");
    EXPECT_EQ(corner(), QColor(Qt::red));
    const auto time = std::filesystem::last_write_time(file);
    write(Qt::blue);
    std::filesystem::last_write_time(file, time);
    EXPECT_EQ(corner(), QColor(Qt::red)) << "it was read again";
    std::filesystem::last_write_time(file, time + std::chrono::seconds(1));
    EXPECT_EQ(corner(), QColor(Qt::blue));
    Document().OsnovniPodaci.Ikona = WritePicture("red.png");
    EXPECT_EQ(corner(), QColor(Qt::red));
}

TEST_F(MainSettingsPanel, TheBackColorIsPickedByButtonAndLabel) {
    test::AnswerColorChoices(Context(), {255, 65280, MenuCancelled{}});
    auto& form = Main();
    const ColorValue& stored = Document().OsnovnaPodesavanja.BojaProzora;
    Click(form, "Command2");
    EXPECT_EQ(stored, 255);
    Click(form, "Label19");
    EXPECT_EQ(stored, 65280);
    EXPECT_EQ(Find<ColorBox>(form, "Label19").Color(), 65280);
    Click(form, "Label19");
    EXPECT_EQ(stored, 65280);
}

TEST_F(MainSettingsPanel, TheTemplateRowShowsTheNameThatTheUserKnows) {
    Document().OsnovnaPodesavanja.Sablon = "C:\\t\\a.Atavt";
    Document().Working.TemplateName = EditorTemplateName;
    Main();
    EXPECT_EQ(Shown("Label89"), QStringLiteral("Advanced Visual editor"));
    EXPECT_EQ(Shown("Label27"), QStringLiteral("C:\\t\\a.Atavt"));
    Document().Working.TemplateName = "Nexus";
    windows.Main()->ShowDocument();
    EXPECT_EQ(Shown("Label89"), QStringLiteral("Nexus"));
}

TEST_F(MainSettingsPanel, ExpiryAsksForTheFolderFirstAndOpensWhereTheMainWindowStands) {
    auto& form = Main();
    {
        test::ScriptedBoxes boxes({BoxAnswer::No});
        Click(form, "Command60");
        EXPECT_EQ(
            boxes.shown.at(0).text,
            QStringLiteral("CD-ROM files folder must be selected! Do you want to do it now?"));
    }
    Document().OsnovnaPodesavanja.GlavniDirektorijum = folder.Document();
    {
        test::ScriptedBoxes boxes({BoxAnswer::No});
        Click(form, "Command60");
        EXPECT_EQ(boxes.shown.at(0).title, QStringLiteral("Warning..."));
    }
    EXPECT_EQ(windows.Find(WindowName::Form15), nullptr);
    Document().OsnovnaPodesavanja.Sablon = "C:\\t\\a.tavt";
    form.move(40, 30);
    Click(form, "Command60");
    SkinnedWindow* expiry = ProgramWindows::Shown(WindowName::Form15);
    ASSERT_NE(expiry, nullptr);
    EXPECT_EQ(expiry->pos(), QPoint(40, 30));
    EXPECT_FALSE(form.isVisible());
}

} // namespace tavmoor
