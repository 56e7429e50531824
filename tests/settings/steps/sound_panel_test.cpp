#include "support/program_windows.h"

#include "services/controls/value_label.h"
#include "services/sound/media_device.h"
#include "settings/main/main_window.h"
#include "support/user_input.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QLabel>

namespace tavmoor {

namespace {

/// Keeps what it is asked for.
class LoggingDevice final : public MediaDevice {
public:
    QString Open(const std::filesystem::path& file) override {
        log += "open " + file.filename().string() + ";";
        return {};
    }
    void Play() override { log += "play;"; }
    void Pause() override { log += "pause;"; }
    void Stop() override { log += "stop;"; }
    void Close() override { log += "close;"; }
    void Seek(std::int64_t /*to*/) override {}
    [[nodiscard]] bool IsPlaying() const override { return false; }
    [[nodiscard]] std::int64_t Position() const override { return 0; }
    [[nodiscard]] std::int64_t Length() const override { return 0; }

    std::string log;

private:
    ScopedService<MediaDevice> slot_{*this};
};

} // namespace

class SoundPanel : public test::ProgramWindows {
protected:
    QWidget& Panel() { return static_cast<Form1&>(Main()).ShowPanel(PanelName::Frame5); }
    SoundSpec& Sound() { return Document().Zvuk; }
};

TEST_F(SoundPanel, EditsRepeatPauseStartAndCaption) {
    auto& panel = Panel();
    const auto text = [&](const char* label) {
        return Find<QLabel>(panel, label).text().toStdString();
    };
    const auto set = [&](const char* bar, int value) {
        Find<QAbstractSlider>(panel, bar).setValue(value);
    };
    EXPECT_EQ(text("Label31"), "once");
    EXPECT_EQ(text("Label33"), "1 second");
    set("HScroll1", 2);
    set("HScroll2", 2);
    EXPECT_EQ(text("Label31"), "2 times");
    EXPECT_EQ(text("Label33"), "2 seconds");
    set("HScroll1", 5000);
    set("HScroll2", 0);
    EXPECT_EQ(Sound().Ponovi, 1000);
    EXPECT_EQ(Sound().Pauza, 1);
    PressKey(Find(panel, "HScroll1"), Qt::Key_Left);
    EXPECT_EQ(text("Label31"), "999 times");
    PressKey(Find(panel, "HScroll2"), Qt::Key_Right);
    EXPECT_EQ(Sound().Pauza, 2);
    Click(panel, "Option2");
    EXPECT_TRUE(Sound().Akcija);
    Click(panel, "Option1");
    EXPECT_FALSE(Sound().Akcija);
    Type(panel, "Text10", QStringLiteral("Music"));
    EXPECT_EQ(Sound().Komanda, "Music");
}

TEST_F(SoundPanel, TellsNumbersThatTheBarsCannotShow) {
    Sound().Ponovi = 5000;
    Sound().Pauza = 90;
    auto& panel = Panel();
    EXPECT_EQ(Find<QLabel>(panel, "Label31").text(), QStringLiteral("5000 times"));
    EXPECT_EQ(Find<QLabel>(panel, "Label33").text(), QStringLiteral("90 seconds"));
    EXPECT_EQ(Sound().Ponovi, 5000);
}

TEST_F(SoundPanel, ChoosesTheBackgroundSound) {
    auto& panel = Panel();
    session.settings.lastSoundFolder = folder.Document("last");
    test::ScriptedDialogs dialogs;
    test::ScriptedBoxes boxes;
    const std::string bad = folder.Write("a/so$ng.mp3", "x");
    dialogs.AnswerFile(bad);
    Click(panel, "Command14");
    EXPECT_EQ(boxes.shown.size(), 1U) << "the name is refused";
    EXPECT_EQ(Sound().Fajl, "");
    EXPECT_EQ(session.settings.lastSoundFolder, folder.Document("last"));

    const std::string song = folder.Write("a/song.mp3", "x");
    dialogs.AnswerFile(song);
    Click(panel, "Command14");
    EXPECT_EQ(Sound().Fajl, song);
    EXPECT_EQ(Find<ValueLabel>(panel, "Label34").FullText().toStdString(), song);
    EXPECT_EQ(session.settings.lastSoundFolder, folder.Document("a") + "\\");
    auto& label = Find<ValueLabel>(panel, "Label34");
    EXPECT_TRUE(test::DropPath(label, folder.Native("a/so$ng.mp3")));
    EXPECT_EQ(boxes.shown.size(), 1U) << "a box within the drop would hold its source";
    Settle();
    EXPECT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(Sound().Fajl, song);
    folder.Write("song.exe", "x");
    EXPECT_FALSE(Drop(label, folder.Native("song.exe")));
#ifndef _WIN32
    std::filesystem::copy_file(folder.Native("a/song.mp3"), folder.Native("so\\ng.MP3"));
    EXPECT_TRUE(Drop(label, folder.Native("so\\ng.MP3")));
    EXPECT_TRUE(label.property("refused").toBool());
    EXPECT_EQ(Sound().Fajl, song);
#endif
    EXPECT_TRUE(Drop(label, folder.Native("a/song.mp3")));
    EXPECT_FALSE(label.property("refused").toBool());
    EXPECT_EQ(label.toolTip().toStdString(), song);
    Click(panel, "Command45");
    EXPECT_EQ(Sound().Fajl, "");
}

TEST_F(SoundPanel, TheClickSoundSwitchesItsFlag) {
    auto& panel = Panel();
    auto& flag = Find<QCheckBox>(panel, "Check15");
    folder.Write("click.wav", "x");
    EXPECT_TRUE(Drop(Find(panel, "Label78"), folder.Native("click.wav")));
    EXPECT_TRUE(flag.isChecked());
    EXPECT_TRUE(Sound().Signal);
    Click(panel, "Command46");
    EXPECT_FALSE(flag.isChecked());
    EXPECT_FALSE(Sound().Signal);
    EXPECT_EQ(Sound().SignalFajl, "");
}

TEST_F(SoundPanel, HearingAgainBeginsAfresh) {
    LoggingDevice device;
    auto& panel = Panel();
    Sound().Fajl = folder.Write("song.mp3", "x");
    Click(panel, "Command15");
    Click(panel, "Command15");
    const std::string once = "stop;close;open song.mp3;play;";
    EXPECT_EQ(device.log, once + once);
    device.log.clear();
    Click(panel, "Command16");
    EXPECT_EQ(device.log, "stop;close;stop;close;");
    device.log.clear();
    Click(panel, "Command35");
    EXPECT_EQ(device.log, "stop;close;");
    Document().Zvuk.Fajl.clear();
    device.log.clear();
    Click(panel, "Command15");
    EXPECT_EQ(device.log, "stop;close;");
}

} // namespace tavmoor
