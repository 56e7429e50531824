#include "services/sound/mp3_play.h"

#include "services/sound/click_sound.h"
#include "services/sound/sound_output.h"
#include "support/fake_media_device.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>

namespace tavmoor {

namespace {

/// A wav file with a tenth of a second of silence.
std::string Wav() {
    constexpr unsigned char samples = 160;
    std::string bytes("RIFF\xC4\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x40\x06\0\0\x40\x06\0\0\1\0\x08\0"
                      "data\xA0\0\0\0",
                      44);
    return bytes.append(samples, '\x80');
}

} // namespace

TEST(MP3Play, PlaysOneFileAtATimeAndTellsWhyNot) {
    const test::TemporaryFolder folder;
    const std::string song = folder.Write("My Song.mp3", "x");
    test::FakeMediaDevice device;
    {
        MP3Play player;
        EXPECT_EQ(player.mmPlay(), QStringLiteral("Error with input file"));
        player.SetFileName(folder.Document());
        EXPECT_EQ(player.mmPlay(), QStringLiteral("Error with input file"));
        player.SetFileName(song + "x");
        EXPECT_EQ(player.mmPlay(), QStringLiteral("Error with input file"));
        EXPECT_FALSE(device.isOpen);

        player.SetFileName(song);
        EXPECT_EQ(player.mmPlay(), QStringLiteral("Success"));
        EXPECT_EQ(device.opened, folder.Native("My Song.mp3"));
        EXPECT_TRUE(player.IsPlaying());

        MP3Play other;
        other.SetFileName(song);
        EXPECT_EQ(other.mmPlay(), QStringLiteral("in use"));
        other.mmPause();
        EXPECT_FALSE(player.IsPlaying());
        player.mmStop();
        EXPECT_EQ(other.mmPlay(), QStringLiteral("Success"));
    }
    EXPECT_FALSE(device.isOpen);

    MP3Play refused;
    refused.SetFileName(song);
    device.refusal = QStringLiteral("no codec");
    EXPECT_EQ(refused.mmPlay(), QStringLiteral("no codec"));
    EXPECT_FALSE(refused.IsPlaying());
}

TEST(MP3Play, TellsTimesInSecondsAndGoesOnPlayingAfterASeek) {
    test::FakeMediaDevice device;
    MP3Play player;
    EXPECT_EQ(player.PositionInSec(), QStringLiteral("0:00"));
    const struct {
        std::int64_t milliseconds;
        int seconds;
        const char* text;
    } cases[] = {{2500, 2, "0:02"},      {3500, 4, "0:04"},       {59499, 59, "0:59"},
                 {59501, 60, "1:00"},    {65000, 65, "1:05"},     {599000, 599, "9:59"},
                 {610000, 610, "10:10"}, {3661000, 3661, "61:01"}};
    for (const auto& expected : cases) {
        device.position = device.length = expected.milliseconds;
        EXPECT_EQ(player.Position(), expected.seconds);
        EXPECT_EQ(player.Length(), expected.seconds);
        EXPECT_EQ(player.PositionInSec(), QLatin1String(expected.text));
        EXPECT_EQ(player.LengthInSec(), QLatin1String(expected.text));
    }

    player.SeekTo(1500);
    EXPECT_EQ(device.position, 1500);
    EXPECT_FALSE(player.IsPlaying());
    device.isOpen = device.isPlaying = true;
    player.SeekTo(2500);
    EXPECT_EQ(device.position, 2500);
    EXPECT_TRUE(player.IsPlaying());
}

/// With or without a sound device, with good files or bad ones, the true device answers in time.
TEST(MP3Play, AnswersInTimeOnTheTrueDevice) {
    const test::TemporaryFolder folder;
    const QDeadlineTimer limit(20000);
    const QString objection = SoundOutputObjection();
    MP3Play player;
    for (const std::string& content : {Wav(), std::string(5000, 'x'), std::string()}) {
        player.SetFileName(folder.Write("sound.wav", content));
        const QString result = player.mmPlay();
        if (objection.isEmpty()) {
            EXPECT_EQ(result == QStringLiteral("Success"), content == Wav());
            EXPECT_FALSE(result.isEmpty());
        } else {
            EXPECT_EQ(result, objection);
        }
        EXPECT_EQ(player.Length(), 0);
        player.SeekTo(0);
        player.mmPause();
        player.mmStop();
        EXPECT_FALSE(player.IsPlaying());
        EXPECT_EQ(player.Position(), 0);
    }
    PlayClickSoundIgnoringErrors(folder.Write("click.wav", Wav()));
    PlayClickSoundIgnoringErrors(folder.Document("missing.wav"));
    EXPECT_FALSE(limit.hasExpired());
}

} // namespace tavmoor
