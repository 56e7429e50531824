#include "support/program_windows.h"

#include "core/text/maker.h"
#include "services/system/registry_store.h"
#include "services/system/service_slot.h"
#include "support/recording_shell.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTimer>
#include <QtTest/QTest>

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
    SkinnedWindow& Settings() { return windows.Open(WindowName::Form3); }
    static bool IsTicked(QWidget& window, const char* name) {
        return Find<QAbstractButton>(window, name).isChecked();
    }
    static void Tick(QWidget& window, const char* name, bool ticked) {
        Find<QAbstractButton>(window, name).setChecked(ticked);
    }
};

TEST_F(SmallWindows, SettingsAreStoredOnlyWhenConfirmed) {
    struct Flag {
        const char* control;
        bool ProgramSettings::*flag;
    };
    const Flag flags[] = {{"Check1", &ProgramSettings::previewPictures},
                          {"Check2", &ProgramSettings::programSplash},
                          {"Check3", &ProgramSettings::testAfterBuild},
                          {"Check4", &ProgramSettings::autoplayCheck}};
    for (const Flag& flag : flags) {
        const bool before = session.settings.*flag.flag;
        for (const char* command : {"Command1", "Command2"}) {
            auto& form = Settings();
            EXPECT_EQ(IsTicked(form, flag.control), before) << flag.control;
            Tick(form, flag.control, !before);
            Click(form, command);
            EXPECT_EQ(Shown(WindowName::Form3), nullptr);
            const bool stored = std::string_view(command) == "Command2";
            EXPECT_EQ(session.settings.*flag.flag, before != stored) << flag.control << command;
        }
    }
}

TEST_F(SmallWindows, TheCompressFolderIsTheChosenOneOrTheDefault) {
    const auto storedFolder = [this](const std::function<void(SkinnedWindow&)>& act) {
        auto& form = Settings();
        act(form);
        Click(form, "Command2");
        return session.settings.buildFolder;
    };
    EXPECT_EQ(storedFolder([this](SkinnedWindow& form) {
                  EXPECT_TRUE(IsTicked(form, "Option1"));
                  EXPECT_EQ(Find(form, "Option1").toolTip().toStdString(),
                            "Use default (" + session.programFolder + "\\build\\)");
              }),
              "default");
    EXPECT_EQ(storedFolder([](SkinnedWindow& form) { Tick(form, "Option2", true); }), "default");
    EXPECT_EQ(
        storedFolder([](SkinnedWindow& form) { Type(form, "Text1", QStringLiteral("Z:\\work")); }),
        "Z:\\work");
    EXPECT_EQ(storedFolder([](SkinnedWindow& form) {
                  EXPECT_TRUE(IsTicked(form, "Option2"));
                  EXPECT_EQ(Find<QLineEdit>(form, "Text1").text(), QStringLiteral("Z:\\work"));
                  Tick(form, "Option1", true);
              }),
              "default");

    test::ScriptedDialogs dialogs;
    dialogs.AnswerFolder(session.programFolder);
    EXPECT_EQ(storedFolder([](SkinnedWindow& form) { Click(form, "Command3"); }),
              session.programFolder);
    // A cancelled browse changes nothing.
    EXPECT_EQ(storedFolder([](SkinnedWindow& form) { Click(form, "Command3"); }),
              session.programFolder);
    EXPECT_EQ(dialogs.folders.at(0).title, QStringLiteral("Choose temporary compress folder..."));
}

#ifndef _WIN32
TEST_F(SmallWindows, ACompressFolderThatCannotBeStoredKeepsTheSettingsOpen) {
    auto& form = Settings();
    Type(form, "Text1", QStringLiteral("/a\\b"));
    PressKey(Find(form, "Text1"), Qt::Key_Return);
    ASSERT_NE(Shown(WindowName::Form3), nullptr);
    EXPECT_TRUE(Find(form, "Text1").property("refused").toBool());
    Tick(form, "Option1", true);
    Click(form, "Command2");
    EXPECT_EQ(Shown(WindowName::Form3), nullptr) << "the default folder can be stored";
}
#endif

TEST_F(SmallWindows, AnOpenCheckTakesOverTheTickOfTheSettings) {
    session.settings.autoplayCheck = false;
    auto& check = windows.Open(WindowName::Form13);
    auto& form = Settings();
    Tick(form, "Check4", true);
    Click(form, "Command4");
    EXPECT_TRUE(IsTicked(check, "Check1"));
    Click(check, "Command1");
    EXPECT_TRUE(session.settings.autoplayCheck);
    EXPECT_TRUE(IsTicked(form, "Check4"));
}

TEST_F(SmallWindows, ACheckThatFindsAllInOrderEndsTheChecks) {
    SameRegistry registry;
    test::ScriptedBoxes boxes;
    auto& form = Settings();
    Tick(form, "Check4", true);
    Click(form, "Command4");
    auto& check = *Shown(WindowName::Form13);
    EXPECT_TRUE(IsTicked(check, "Check1"));
    Click(check, "Command2");
    EXPECT_EQ(Shown(WindowName::Form13), nullptr);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.startsWith(QStringLiteral("No changes were made!\n")));
    EXPECT_FALSE(session.settings.autoplayCheck);
    EXPECT_EQ(registry.written, 1);
    EXPECT_FALSE(IsTicked(form, "Check4"));
}

TEST_F(SmallWindows, ACheckThatMendsGoesOnBeingMade) {
    SameRegistry registry;
    registry.inOrder = false;
    test::ScriptedBoxes boxes;
    // Enter makes the check, also from the tick.
    PressKey(Find(windows.Open(WindowName::Form13), "Check1"), Qt::Key_Return);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.startsWith(QStringLiteral("Autorun has been successfully")));
    EXPECT_TRUE(session.settings.autoplayCheck);
}

TEST_F(SmallWindows, LeavingTheCheckKeepsItsTickAlone) {
    SameRegistry registry;
    auto& check = windows.Open(WindowName::Form13);
    Tick(check, "Check1", false);
    Click(check, "Command1");
    EXPECT_FALSE(session.settings.autoplayCheck);
    EXPECT_EQ(registry.written, 0);
}

TEST_F(SmallWindows, TickedButNotStoredSettingsSurviveALookElsewhere) {
    auto& form = Settings();
    Tick(form, "Check4", false);
    QEvent back(QEvent::WindowActivate);
    QApplication::sendEvent(&form, &back);
    EXPECT_FALSE(IsTicked(form, "Check4"));
}

TEST_F(SmallWindows, AboutLeadsToTheMaker) {
    test::RecordingShell shell;
    auto& form = windows.Open(WindowName::frmAbout);
    EXPECT_EQ(Find<QPlainTextEdit>(form, "Label2").toPlainText().toStdString(),
              "Contact\nE-mail address: " + std::string(MakerMailAddress) +
                  "\nWebsite:" + std::string(MakerWebPage));
    Click(form, "Command2");
    Click(form, "Command3");
    ASSERT_NE(Shown(WindowName::frmAbout), nullptr);
    Click(form, "Command1");
    EXPECT_EQ(Shown(WindowName::frmAbout), nullptr);
    EXPECT_EQ(shell.calls,
              (std::vector<std::string>{"address " + std::string(MakerWebPage),
                                        "address mailto:" + std::string(MakerMailAddress) +
                                            "?subject=Tavmoor",
                                        "address " + std::string(UpdateAddress)}));
}

TEST_F(SmallWindows, AboutTellsFailuresWhenItIsGone) {
    test::RecordingShell shell;
    shell.objection = "no browser";
    for (const char* command : {"Command1", "Command2", "Command3"}) {
        test::ScriptedBoxes boxes;
        Click(windows.Open(WindowName::frmAbout), command);
        EXPECT_EQ(Shown(WindowName::frmAbout), nullptr) << command;
        ASSERT_EQ(boxes.shown.size(), 1U) << command;
        EXPECT_EQ(boxes.shown[0].text, QStringLiteral("no browser"));
    }
}

TEST_F(SmallWindows, AboutGoesWhenItIsLeftAndBringsTheMainWindowBack) {
    auto& main = Main();
    auto& form = windows.OpenFromMain(WindowName::frmAbout);
    EXPECT_FALSE(main.isVisible());
    QEvent left(QEvent::WindowDeactivate);
    QApplication::sendEvent(&form, &left);
    EXPECT_EQ(Shown(WindowName::frmAbout), nullptr);
    EXPECT_TRUE(main.isVisible());
}

TEST_F(SmallWindows, TheSplashGivesWayToTheMainWindow) {
    const std::pair<const char*, std::function<void(SkinnedWindow&)>> ends[] = {
        {"its time is over",
         [](SkinnedWindow& splash) {
             auto& timer = Find<QTimer>(splash, "Timer1");
             EXPECT_EQ(timer.interval(), 3000);
             timer.start(1);
             QTest::qWait(50);
         }},
        {"a click", [](SkinnedWindow& splash) { Click(splash); }},
        {"a key", [](SkinnedWindow& splash) { PressKey(splash, Qt::Key_Escape); }},
        {"closed by the system", [](SkinnedWindow& splash) { splash.close(); }},
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
