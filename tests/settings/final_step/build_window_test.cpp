#include "core/files/runtime_error.h"
#include "settings/final_step/build_window.h"
#include "settings/pages.h"
#include "support/build_project.h"
#include "support/program_windows.h"
#include "support/recording_shell.h"

#include <QLabel>
#include <QProgressBar>
#include <QTimer>

namespace tavmoor {

class BuildWindow : public test::ProgramWindows {
protected:
    BuildWindow() {
        qputenv("TMPDIR", QByteArray::fromStdString(folder.Native().string()));
        Document() = *project.document;
    }
    ~BuildWindow() override { qunsetenv("TMPDIR"); }

    Form8& Open() {
        Main();
        return static_cast<Form8&>(windows.OpenFromMain(WindowName::Form8));
    }
    /// What lies in the disc's folder.
    [[nodiscard]] std::string Disc() const { return test::Listing(project.folder.Native("disc")); }

    test::BuildProject project;
    test::ScriptedBoxes boxes;
};

TEST_F(BuildWindow, ShowsFolderNameAndWishAndNeedsAFolder) {
    session.settings.testAfterBuild = true;
    {
        auto& form = Open();
        const test::BuildPage page(form);
        EXPECT_EQ(page.folder.Tooltip(), Document().CdFolder());
        EXPECT_EQ(page.name.Text(), "Holiday");
        EXPECT_TRUE(page.startsAfter.IsTicked());
        form.Unload();
    }
    Settle();
    EXPECT_NE(Shown(WindowName::Form1), nullptr);
    Document().OsnovnaPodesavanja.GlavniDirektorijum.clear();
    const test::BuildPage page(Open());
    EXPECT_EQ(page.folder.As<QLabel>().text(),
              QStringLiteral("CD-ROM FILES FOLDER NOT SELECTED! GO BACK TO MAIN AUTORUN SETTINGS."))
        << "all of it is seen";
    EXPECT_FALSE(page.build.IsEnabled());
}

TEST_F(BuildWindow, ACompressFolderThatCannotBeUsedIsToldAndNothingIsTouched) {
    const test::BuildPage page(Open());
    project.folder.Write("disc/autorun.arn", "an earlier package");
    for (const std::string& unusable :
         {Document().CdFolder(), folder.Document("gone"), folder.Write("file", "in the way")}) {
        session.settings.buildFolder = unusable;
        page.build.Click();
        EXPECT_TRUE(boxes.One().starts_with("Error...|The temporary compress folder ")) << unusable;
        EXPECT_EQ(project.folder.Read("disc/autorun.arn"), "an earlier package");
        EXPECT_TRUE(page.build.IsEnabled());
    }
}

TEST_F(BuildWindow, NamesAreRefusedUntilTheyAreGood) {
    auto& form = Open();
    const test::BuildPage page(form);
    page.name.Type("my app");
    page.build.Click();
    const std::string objection = boxes.One();
    EXPECT_TRUE(objection.starts_with("|"));
    EXPECT_NE(objection.find("\\''?*<':>+[]/\r\n\r\nYou want"), std::string::npos);
    EXPECT_EQ(page.name.Text(), "my_app");
    EXPECT_EQ(page.name.As().styleSheet(), QStringLiteral("background: #ffff00"));
    EXPECT_EQ(Disc(), "");

    page.name.Type("");
    page.build.Click();
    EXPECT_EQ(boxes.One(), "|Filename cannot be blank!");
    EXPECT_TRUE(form.Unload()) << "nothing runs";
}

TEST_F(BuildWindow, AMissingFolderLeadsBackToItsField) {
    std::filesystem::remove(project.folder.Native("disc"));
    test::BuildPage(Open()).build.Click();
    EXPECT_EQ(boxes.One(), "Error...|" + Document().CdFolder() +
                               " does not exist!\r\nYou have to select CD-ROM files folder on "
                               "your local disk.");
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(windows.Find(WindowName::Form8), nullptr);
    ASSERT_NE(Shown(WindowName::Form1), nullptr);
    EXPECT_TRUE(test::MainWindowPage(Main()).mainSettingsPanel.IsVisible());
}

TEST_F(BuildWindow, BuildsStaysOpenMeanwhileAndTellsThatTheStartFailed) {
    auto& form = Open();
    const test::BuildPage page(form);
    page.startsAfter.Tick();
    test::RecordingShell shell;
    shell.objection = "Wine is missing";
    bool seen = false;
    QTimer::singleShot(50, &form, [&] {
        seen = true;
        EXPECT_EQ(page.status.Text(), "Checking files...");
        EXPECT_FALSE(form.Unload());
        EXPECT_FALSE(page.build.IsEnabled() || page.startsAfter.IsEnabled());
        form.Build(); // a second build does not begin
    });
    page.build.Click();
    EXPECT_TRUE(seen);
    EXPECT_EQ(Disc(), "Autorun.arn Autorun.ico Autorun.inf Holiday.exe");
    EXPECT_EQ(page.status.Text(), "Completed...");
    EXPECT_TRUE(page.progress.As<QProgressBar>().format().endsWith(QStringLiteral(", 100 %")));
    EXPECT_EQ(page.note.Text(), "") << "all was placed";
    EXPECT_EQ(shell.calls,
              std::vector<std::string>{"program " + project.folder.Document("disc/Holiday.exe")});
    EXPECT_EQ(boxes.One(), "|Wine is missing");
    EXPECT_TRUE(page.build.IsEnabled());
    shell.objection = "";
    page.openFolder.Click();
    EXPECT_EQ(shell.calls.back(), "document " + Document().CdFolder());
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
    const test::BuildPage page(form);
    Document().OsnovnaPodesavanja.PozadinskaSlika = "Z:\\gone\\back.bmp";
    page.build.Click();
    EXPECT_TRUE(boxes.One().starts_with("Error in file|"));
    EXPECT_TRUE(page.status.Text().starts_with("Aborted\r\nThere was an error"));
    EXPECT_TRUE(page.build.IsEnabled());

    project.AddFilms(25); // more than a package holds
    Document() = *project.document;
    EXPECT_THROW(form.Build(), RuntimeError);
    EXPECT_TRUE(page.build.IsEnabled());
    EXPECT_TRUE(form.Unload());
}

} // namespace tavmoor
