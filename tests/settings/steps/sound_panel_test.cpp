#include "settings/pages.h"
#include "support/fake_media_device.h"
#include "support/program_windows.h"

namespace tavmoor {

class SoundPanel : public test::ProgramWindows {
protected:
    SoundSpec& Sound() { return Document().Zvuk; }

    test::SoundPage page{ShowPanel(PanelName::Frame5)};
};

TEST_F(SoundPanel, EditsRepeatPauseStartAndCaption) {
    const auto shown = [this] { return page.repeatText.Text() + ", " + page.pauseText.Text(); };
    EXPECT_EQ(shown(), "once, 1 second");
    page.repeat.Slide(2);
    page.pause.Slide(2);
    EXPECT_EQ(shown(), "2 times, 2 seconds");
    page.repeat.Slide(5000);
    page.pause.Slide(0);
    EXPECT_EQ(Sound().Ponovi, 1000);
    EXPECT_EQ(Sound().Pauza, 1);
    page.repeat.Press(Qt::Key_Left);
    page.pause.Press(Qt::Key_Right);
    EXPECT_EQ(shown(), "999 times, 2 seconds");
    EXPECT_EQ(Sound().Pauza, 2);
    page.onDemand.Click();
    EXPECT_TRUE(Sound().Akcija);
    page.atStart.Click();
    EXPECT_FALSE(Sound().Akcija);
    page.caption.Type("Music");
    EXPECT_EQ(Sound().Komanda, "Music");

    // What a file has is shown, also when the bars cannot.
    Sound().Ponovi = 5000;
    Sound().Pauza = 90;
    windows.Main()->ShowDocument();
    EXPECT_EQ(shown(), "5000 times, 90 seconds");
    EXPECT_EQ(Sound().Ponovi, 5000);
}

TEST_F(SoundPanel, ChoosesTheBackgroundSound) {
    session.settings.lastSoundFolder = folder.Document("last");
    test::ScriptedDialogs dialogs;
    test::ScriptedBoxes boxes;
    dialogs.AnswerFile(folder.Write("a/so$ng.mp3", "x"));
    page.browseMusic.Click();
    EXPECT_EQ(boxes.shown.size(), 1U) << "the name is refused";
    EXPECT_EQ(Sound().Fajl, "");
    EXPECT_EQ(session.settings.lastSoundFolder, folder.Document("last"));

    const std::string song = folder.Write("a/song.mp3", "x");
    dialogs.AnswerFile(song);
    page.browseMusic.Click();
    EXPECT_EQ(Sound().Fajl, song);
    EXPECT_EQ(page.music.Text(), song);
    EXPECT_EQ(session.settings.lastSoundFolder, folder.Document("a") + "\\");
    EXPECT_TRUE(test::DropPath(page.music, folder.Native("a/so$ng.mp3")));
    EXPECT_EQ(boxes.shown.size(), 1U) << "a box within the drop would hold its source";
    Settle();
    EXPECT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(Sound().Fajl, song);
    folder.Write("song.exe", "x");
    EXPECT_FALSE(page.music.Drop(folder.Native("song.exe")));
#ifndef _WIN32
    std::filesystem::copy_file(folder.Native("a/song.mp3"), folder.Native("so\\ng.MP3"));
    EXPECT_TRUE(page.music.Drop(folder.Native("so\\ng.MP3")));
    EXPECT_TRUE(page.music.IsRefused());
    EXPECT_EQ(Sound().Fajl, song);
#endif
    EXPECT_TRUE(page.music.Drop(folder.Native("a/song.mp3")));
    EXPECT_FALSE(page.music.IsRefused());
    EXPECT_EQ(page.music.Tooltip(), song);
    page.removeMusic.Click();
    EXPECT_EQ(Sound().Fajl, "");
}

TEST_F(SoundPanel, TheClickSoundSwitchesItsFlag) {
    folder.Write("click.wav", "x");
    EXPECT_TRUE(page.clickSound.Drop(folder.Native("click.wav")));
    EXPECT_TRUE(page.clicks.IsTicked() && Sound().Signal);
    page.removeClick.Click();
    EXPECT_FALSE(page.clicks.IsTicked() || Sound().Signal);
    EXPECT_EQ(Sound().SignalFajl, "");
}

TEST_F(SoundPanel, HearingAgainBeginsAfresh) {
    test::FakeMediaDevice device;
    const auto logged = [&device](const test::Control& button) {
        device.log.clear();
        button.Click();
        return device.log;
    };
    Sound().Fajl = folder.Write("song.mp3", "x");
    EXPECT_EQ(logged(page.hear), "stop;close;open song.mp3;play;");
    EXPECT_EQ(logged(page.hear), "stop;close;open song.mp3;play;");
    EXPECT_EQ(logged(page.stop), "stop;close;stop;close;");
    EXPECT_EQ(logged(page.stopClick), "stop;close;");
    Sound().Fajl.clear();
    EXPECT_EQ(logged(page.hear), "stop;close;");
}

} // namespace tavmoor
