#include "core/text/maker.h"
#include "services/system/registry_store.h"
#include "settings/pages.h"
#include "support/program_windows.h"
#include "support/recording_shell.h"

#include <QTimer>

namespace tavmoor {

namespace {

/// A registry in which every value reads the same.
class SameRegistry final : public RegistryStore {
public:
    bool CreateKey(const RegistryKey&) override { return true; }
    bool SetNumber(const RegistryKey&, std::string_view, std::uint32_t) override {
        ++written;
        return true;
    }
    std::optional<std::string> Read(const RegistryKey&, std::string_view name) override {
        return inOrder ? std::optional<std::string>(name == "Autorun" ? "1" : "0") : std::nullopt;
    }

    bool inOrder = true;
    int written = 0;

private:
    ScopedService<RegistryStore> slot_{*this};
};

} // namespace

class SmallWindows : public test::ProgramWindows {
protected:
    test::ProgramSettingsPage Settings() {
        return test::ProgramSettingsPage(windows.Open(WindowName::Form3));
    }
    test::AutorunCheckPage Check() {
        return test::AutorunCheckPage(windows.Open(WindowName::Form13));
    }
    static void Send(QWidget& window, QEvent::Type type) {
        QEvent event(type);
        QApplication::sendEvent(&window, &event);
    }

    SameRegistry registry;
    test::RecordingShell shell;
    test::ScriptedBoxes boxes;
};

TEST_F(SmallWindows, SettingsAreStoredOnlyWhenConfirmed) {
    const std::pair<test::Control test::ProgramSettingsPage::*, bool ProgramSettings::*> flags[] = {
        {&test::ProgramSettingsPage::previews, &ProgramSettings::previewPictures},
        {&test::ProgramSettingsPage::splash, &ProgramSettings::programSplash},
        {&test::ProgramSettingsPage::testsAfter, &ProgramSettings::testAfterBuild},
        {&test::ProgramSettingsPage::checksAutorun, &ProgramSettings::autoplayCheck}};
    for (const auto& [control, flag] : flags) {
        const bool before = session.settings.*flag;
        for (const bool stored : {false, true}) {
            const test::ProgramSettingsPage page = Settings();
            EXPECT_EQ((page.*control).IsTicked(), before);
            (page.*control).Tick(!before);
            (stored ? page.store : page.cancel).Click();
            EXPECT_EQ(Shown(WindowName::Form3), nullptr);
            EXPECT_EQ(session.settings.*flag, before != stored);
        }
    }
}

TEST_F(SmallWindows, TheCompressFolderIsTheChosenOneOrTheDefault) {
    const auto storedFolder = [this](auto act) {
        const test::ProgramSettingsPage page = Settings();
        act(page);
        page.store.Click();
        return session.settings.buildFolder;
    };
    const auto browse = [](auto& page) { page.browseFolder.Click(); };
    EXPECT_EQ(storedFolder([this](auto& page) {
                  EXPECT_TRUE(page.usualFolder.IsTicked());
                  EXPECT_EQ(page.usualFolder.Tooltip(),
                            "Use default (" + session.programFolder + "\\build\\)");
              }),
              "default");
    EXPECT_EQ(storedFolder([](auto& page) { page.chosenFolder.Tick(); }), "default");
    EXPECT_EQ(storedFolder([](auto& page) { page.folder.Type("Z:\\work"); }), "Z:\\work");
    EXPECT_EQ(storedFolder([](auto& page) {
                  EXPECT_TRUE(page.chosenFolder.IsTicked());
                  EXPECT_EQ(page.folder.Text(), "Z:\\work");
                  page.usualFolder.Tick();
              }),
              "default");
    test::ScriptedDialogs dialogs;
    dialogs.AnswerFolder(session.programFolder);
    EXPECT_EQ(storedFolder(browse), session.programFolder);
    EXPECT_EQ(storedFolder(browse), session.programFolder) << "cancelled";
    EXPECT_EQ(dialogs.folders.at(0).title, QStringLiteral("Choose temporary compress folder..."));
}

#ifndef _WIN32
TEST_F(SmallWindows, ACompressFolderThatCannotBeStoredKeepsTheSettingsOpen) {
    const test::ProgramSettingsPage page = Settings();
    page.folder.Type("/a\\b");
    page.folder.Press(Qt::Key_Return);
    ASSERT_NE(Shown(WindowName::Form3), nullptr);
    EXPECT_TRUE(page.folder.IsRefused());
    page.usualFolder.Tick();
    page.store.Click();
    EXPECT_EQ(Shown(WindowName::Form3), nullptr) << "the default folder can be stored";
}
#endif

TEST_F(SmallWindows, AnOpenCheckTakesOverTheTickOfTheSettings) {
    session.settings.autoplayCheck = false;
    const test::AutorunCheckPage check = Check();
    const test::ProgramSettingsPage page = Settings();
    page.checksAutorun.Tick();
    page.checkNow.Click();
    EXPECT_TRUE(check.always.IsTicked());
    check.leave.Click();
    EXPECT_TRUE(session.settings.autoplayCheck);
    EXPECT_TRUE(page.checksAutorun.IsTicked());
}

TEST_F(SmallWindows, ACheckThatFindsAllInOrderEndsTheChecks) {
    const test::ProgramSettingsPage page = Settings();
    page.checksAutorun.Tick();
    page.checkNow.Click();
    const test::AutorunCheckPage check(*Shown(WindowName::Form13));
    EXPECT_TRUE(check.always.IsTicked());
    check.check.Click();
    EXPECT_EQ(Shown(WindowName::Form13), nullptr);
    EXPECT_TRUE(boxes.One().starts_with("|No changes were made!\n"));
    EXPECT_FALSE(session.settings.autoplayCheck);
    EXPECT_EQ(registry.written, 1);
    EXPECT_FALSE(page.checksAutorun.IsTicked());
}

TEST_F(SmallWindows, ACheckThatMendsGoesOnBeingMade) {
    registry.inOrder = false;
    Check().always.Press(Qt::Key_Return); // which makes the check, also from the tick
    EXPECT_TRUE(boxes.One().starts_with("|Autorun has been successfully"));
    EXPECT_TRUE(session.settings.autoplayCheck);
}

TEST_F(SmallWindows, LeavingTheCheckKeepsItsTickAlone) {
    const test::AutorunCheckPage check = Check();
    check.always.Tick(false);
    check.leave.Click();
    EXPECT_FALSE(session.settings.autoplayCheck);
    EXPECT_EQ(registry.written, 0);
}

TEST_F(SmallWindows, TickedButNotStoredSettingsSurviveALookElsewhere) {
    const test::ProgramSettingsPage page = Settings();
    page.checksAutorun.Tick(false);
    Send(*Shown(WindowName::Form3), QEvent::WindowActivate);
    EXPECT_FALSE(page.checksAutorun.IsTicked());
}

TEST_F(SmallWindows, AboutLeadsToTheMaker) {
    const std::string mail(MakerMailAddress);
    const std::string site(MakerWebPage);
    const test::AboutPage page(windows.Open(WindowName::frmAbout));
    EXPECT_EQ(page.contact.Text(), "Contact\nE-mail address: " + mail + "\nWebsite:" + site);
    page.web.Click();
    page.mail.Click();
    ASSERT_NE(Shown(WindowName::frmAbout), nullptr);
    page.update.Click();
    EXPECT_EQ(Shown(WindowName::frmAbout), nullptr);
    EXPECT_EQ(shell.calls, (std::vector<std::string>{"address " + site,
                                                     "address mailto:" + mail + "?subject=Tavmoor",
                                                     "address " + std::string(UpdateAddress)}));
}

TEST_F(SmallWindows, AboutTellsFailuresWhenItIsGone) {
    shell.objection = "no browser";
    for (const auto command :
         {&test::AboutPage::update, &test::AboutPage::web, &test::AboutPage::mail}) {
        (test::AboutPage(windows.Open(WindowName::frmAbout)).*command).Click();
        EXPECT_EQ(Shown(WindowName::frmAbout), nullptr);
        EXPECT_EQ(boxes.One(), "|no browser");
    }
}

TEST_F(SmallWindows, AboutGoesWhenItIsLeftAndBringsTheMainWindowBack) {
    auto& main = Main();
    auto& form = windows.OpenFromMain(WindowName::frmAbout);
    EXPECT_FALSE(main.isVisible());
    Send(form, QEvent::WindowDeactivate);
    EXPECT_EQ(Shown(WindowName::frmAbout), nullptr);
    EXPECT_TRUE(main.isVisible());
}

TEST_F(SmallWindows, TheSplashGivesWayToTheMainWindow) {
    const std::pair<const char*, std::function<void(QWidget&)>> ends[] = {
        {"its time is over",
         [](QWidget& splash) {
             auto& timer = *splash.findChild<QTimer*>(QStringLiteral("Timer1"));
             EXPECT_EQ(timer.interval(), 3000);
             timer.start(1);
             QTest::qWait(50);
         }},
        {"a click", [](QWidget& splash) { Click(splash); }},
        {"a key", [](QWidget& splash) { PressKey(splash, Qt::Key_Escape); }},
        {"closed by the system", [](QWidget& splash) { splash.close(); }},
    };
    for (const auto& [name, end] : ends) {
        auto& splash = windows.Open(WindowName::Form5);
        EXPECT_EQ(Shown(WindowName::Form1), nullptr);
        end(splash);
        Settle();
        EXPECT_NE(Shown(WindowName::Form1), nullptr) << name;
        EXPECT_EQ(Shown(WindowName::Form5), nullptr) << name;
        windows.Unload(WindowName::Form1);
        Settle();
    }
}

} // namespace tavmoor
