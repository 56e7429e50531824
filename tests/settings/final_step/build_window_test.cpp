#include "support/build_project.h"
#include "support/program_windows.h"
#include "support/recording_shell.h"

#include "core/files/runtime_error.h"
#include "services/controls/status_label.h"
#include "settings/final_step/build_window.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTimer>

namespace tavmoor {

class BuildWindow : public test::ProgramWindows {
protected:
    BuildWindow() {
        qputenv("TMPDIR", QByteArray::fromStdString(folder.Native().string()));
        Document() = *project_.document;
    }
    ~BuildWindow() override { qunsetenv("TMPDIR"); }

    Form8& Open() {
        Main();
        return static_cast<Form8&>(windows.OpenFromMain(WindowName::Form8));
    }
    static QString Status(QWidget& form) { return Find<StatusLabel>(form, "Label1").Text(); }
    static QString NameStyle(QWidget& form) { return Find(form, "Text1").styleSheet(); }

    test::BuildProject project_;
};

TEST_F(BuildWindow, ShowsFolderNameAndWishAndNeedsAFolder) {
    session.settings.testAfterBuild = true;
    {
        auto& form = Open();
        EXPECT_EQ(Find<QLabel>(form, "Label2").toolTip().toStdString(), Document().CdFolder());
        EXPECT_EQ(Find<QLineEdit>(form, "Text1").text(), QStringLiteral("Holiday"));
        EXPECT_TRUE(Find<QCheckBox>(form, "Check1").isChecked());
        form.Unload();
    }
    Settle();
    EXPECT_NE(Shown(WindowName::Form1), nullptr);
    Document().OsnovnaPodesavanja.GlavniDirektorijum.clear();
    auto& form = Open();
    EXPECT_EQ(Find<QLabel>(form, "Label2").text(),
              QStringLiteral("CD-ROM FILES FOLDER NOT SELECTED! GO BACK TO MAIN AUTORUN SETTINGS."))
        << "all of it is seen";
    EXPECT_FALSE(Find(form, "Command1").isEnabled());
}

TEST_F(BuildWindow, ACompressFolderThatCannotBeUsedIsToldAndNothingIsTouched) {
    auto& form = Open();
    const std::string old = "an earlier package";
    project_.folder.Write("disc/autorun.arn", old);
    folder.Write("file", "in the way");
    for (const std::string& unusable :
         {Document().CdFolder(), folder.Document("gone"), folder.Document("file")}) {
        session.settings.buildFolder = unusable;
        test::ScriptedBoxes boxes({BoxAnswer::Ok});
        Click(form, "Command1");
        ASSERT_EQ(boxes.shown.size(), 1U) << unusable;
        EXPECT_TRUE(boxes.shown[0].text.startsWith(
            QStringLiteral("The temporary compress folder cannot be used.")));
        EXPECT_EQ(project_.folder.Read("disc/autorun.arn"), old);
        EXPECT_TRUE(Find(form, "Command1").isEnabled());
    }
}

TEST_F(BuildWindow, NamesAreRefusedUntilTheyAreGood) {
    auto& form = Open();
    Type(form, "Text1", QStringLiteral("my app"));
    test::ScriptedBoxes boxes;
    Click(form, "Command1");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, QString());
    EXPECT_TRUE(boxes.shown[0].text.contains(QStringLiteral("\\''?*<':>+[]/\r\n\r\nYou want")));
    EXPECT_EQ(Find<QLineEdit>(form, "Text1").text(), QStringLiteral("my_app"));
    EXPECT_EQ(NameStyle(form), QStringLiteral("background: #ffff00"));
    EXPECT_EQ(test::Listing(project_.folder.Native("disc")), "");

    Type(form, "Text1", QString());
    Click(form, "Command1");
    ASSERT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(boxes.shown[1].text, QStringLiteral("Filename cannot be blank!"));
    EXPECT_TRUE(form.Unload()) << "nothing runs";
}

TEST_F(BuildWindow, AMissingFolderLeadsBackToItsField) {
    std::filesystem::remove(project_.folder.Native("disc"));
    auto& form = Open();
    test::ScriptedBoxes boxes;
    Click(form, "Command1");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("Error..."));
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(boxes.shown[0].text.toStdString(),
              Document().CdFolder() + " does not exist!\r\nYou have to select CD-ROM files folder "
                                      "on your local disk.");
    EXPECT_EQ(windows.Find(WindowName::Form8), nullptr);
    ASSERT_NE(Shown(WindowName::Form1), nullptr);
    EXPECT_TRUE(Find(*Shown(WindowName::Form1), "Frame2").isVisible());
}

TEST_F(BuildWindow, BuildsStaysOpenMeanwhileAndTellsThatTheStartFailed) {
    auto& form = Open();
    Find<QCheckBox>(form, "Check1").setChecked(true);
    test::RecordingShell shell;
    shell.objection = "Wine is missing";
    test::ScriptedBoxes boxes;
    QString meanwhile;
    bool refused = false;
    bool disabled = false;
    QTimer::singleShot(50, &form, [&] {
        meanwhile = Status(form);
        refused = !form.Unload();
        disabled = !Find(form, "Command1").isEnabled() && !Find(form, "Check1").isEnabled();
        form.Build(); // a second build does not begin
    });
    Click(form, "Command1");
    EXPECT_EQ(meanwhile, QStringLiteral("Checking files..."));
    EXPECT_TRUE(refused);
    EXPECT_TRUE(disabled);
    EXPECT_EQ(test::Listing(project_.folder.Native("disc")),
              "Autorun.arn Autorun.ico Autorun.inf Holiday.exe");
    EXPECT_EQ(Status(form), QStringLiteral("Completed..."));
    EXPECT_TRUE(Find<QProgressBar>(form, "Progress").format().endsWith(QStringLiteral(", 100 %")));
    EXPECT_EQ(Find<StatusLabel>(form, "Note").Text(), QString()) << "all was placed";
    EXPECT_EQ(shell.calls,
              std::vector<std::string>{"program " + project_.folder.Document("disc/Holiday.exe")});
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, QStringLiteral("Wine is missing"));
    EXPECT_TRUE(Find(form, "Command1").isEnabled());
    EXPECT_TRUE(form.Unload());
}

TEST_F(BuildWindow, ProgressIsToldInBytesAndPercent) {
    QProgressBar bar;
    BuildControls controls;
    controls.progress = &bar;
    WindowBuildEvents events(controls);
    events.ResetProgress();
    EXPECT_EQ(bar.format(), QString());
    events.PackageProgress(12'897'485, 50'331'648);
    EXPECT_EQ(bar.format(), QStringLiteral("12.3 MB of 48.0 MB, 25 %"));
    EXPECT_EQ(bar.value() * 1000 / bar.maximum(), 256);
    const std::uint64_t large = 5'000'000'000;
    events.PackageProgress(large, large);
    EXPECT_EQ(bar.value(), bar.maximum());
    events.PackageProgress(0, 0);
    EXPECT_EQ(bar.format(), QStringLiteral("0.0 KB of 0.0 KB, 100 %"));
}

TEST_F(BuildWindow, AfterAFailureTheNextBuildCanBegin) {
    auto& form = Open();
    Document().OsnovnaPodesavanja.PozadinskaSlika = "Z:\\gone\\back.bmp";
    test::ScriptedBoxes boxes;
    Click(form, "Command1");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("Error in file"));
    EXPECT_TRUE(Status(form).startsWith(QStringLiteral("Aborted\r\nThere was an error")));
    EXPECT_TRUE(Find(form, "Command1").isEnabled());

    project_.AddFilms(25); // more than a package holds
    Document() = *project_.document;
    EXPECT_THROW(form.Build(), RuntimeError);
    EXPECT_TRUE(Find(form, "Command1").isEnabled());
    EXPECT_TRUE(form.Unload());
}

} // namespace tavmoor
