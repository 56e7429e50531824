#include "menu/sound_plan.h"

#include "menu/unpacked_file.h"
#include "package/package_reader.h"
#include "runtime/menu_fixture.h"
#include "support/package_bytes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

BackgroundSound SoundOf(const std::string& lines) {
    return MakeBackgroundSound(test::DocumentOf("[Zvuk]\nFajl=a.mp3\n" + lines).Zvuk);
}

std::string Chunk(const std::string& name, std::size_t size) {
    return name + static_cast<char>(size) + std::string(3, '\0');
}

std::string Wave(const std::string& chunks) {
    return Chunk("RIFF", chunks.size() + 4) + "WAVE" + chunks;
}

const std::string Format = Chunk("fmt ", 16) + std::string(16, 'f');
const std::string Data = Chunk("data", 4) + "wave";

bool Never() {
    return false;
}

} // namespace

TEST(Sound, IsPlayedAsOftenAsTheProjectSays) {
    const BackgroundSound sound = SoundOf("Ponovi=3\nPauza=7\nAkcija=0\n");
    EXPECT_TRUE(sound.startsByItself);
    SoundRounds rounds(sound);
    EXPECT_FALSE(rounds.IsOn());
    rounds.Start();
    EXPECT_EQ(rounds.EndRound(), std::chrono::seconds(7));
    EXPECT_EQ(rounds.EndRound(), std::chrono::seconds(7));
    EXPECT_TRUE(rounds.IsOn());
    EXPECT_EQ(rounds.EndRound(), std::nullopt);
    EXPECT_FALSE(rounds.IsOn());
    EXPECT_EQ(rounds.EndRound(), std::nullopt); // told late, after the stop
    rounds.Start();
    EXPECT_TRUE(rounds.EndRound());
    rounds.Stop();
    EXPECT_FALSE(rounds.IsOn());
}

TEST(Sound, BoundsRoundsAndPauses) {
    const BackgroundSound least = SoundOf("Ponovi=-5\nAkcija=1\n");
    EXPECT_EQ(least.rounds, 1);
    EXPECT_EQ(least.pause, std::chrono::seconds(1));
    EXPECT_FALSE(least.startsByItself);
    EXPECT_EQ(SoundOf("Ponovi=5000\nPauza=5000\n").rounds, 1000);
    EXPECT_EQ(SoundOf("Ponovi=5000\nPauza=5000\n").pause, std::chrono::seconds(60));
    const auto click = [](const std::string& lines) {
        return ClickSoundFile(test::DocumentOf("[Zvuk]\nSignalFajl=c.wav\n" + lines).Zvuk);
    };
    EXPECT_EQ(click("Signal=1\n"), "c.wav");
    EXPECT_EQ(click("Signal=0\n"), "");
}

TEST(Sound, TakesOnlyWholeWaves) {
    const std::string whole = Wave(Format + Chunk("LIST", 3) + "odd" + '\0' + Data);
    EXPECT_TRUE(IsWholeWave(whole));
    EXPECT_TRUE(IsWholeWave(whole + "what follows"));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(IsWholeWave(whole.substr(0, length))) << length;
    }
    EXPECT_FALSE(IsWholeWave(Wave(Data)));
    EXPECT_FALSE(IsWholeWave(Wave(Format)));
    EXPECT_FALSE(IsWholeWave(Wave(Format + Chunk("data", 5) + "wave")));
    EXPECT_FALSE(IsWholeWave(Wave(Format + Chunk("LIST", 255) + Data)));
    EXPECT_FALSE(IsWholeWave(Wave(Format + "data\xFF\xFF\xFF\xFFwave")));
}

TEST(UnpackedFile, LiesInTheTemporaryFolderForAsLongAsItIsUsed) {
    const test::TemporaryFolder folder;
    const std::string bytes(200'000, 's');
    folder.Write("a.arn", test::PackageBytes({{"other.txt", "o"}, {"Tune.MP3", bytes}}));
    std::filesystem::path path;
    {
        const UnpackedFile file(folder.Native("a.arn"), "tune.mp3", Never);
        const UnpackedFile again(folder.Native("a.arn"), "tune.mp3", Never);
        path = file.Path();
        EXPECT_NE(path, again.Path());
        EXPECT_EQ(path.extension(), ".mp3");
        EXPECT_EQ(std::filesystem::file_size(path), bytes.size());
    }
    EXPECT_FALSE(std::filesystem::exists(path.parent_path()));
    EXPECT_THROW(UnpackedFile(folder.Native("a.arn"), "none.mp3", Never), PackageError);
    EXPECT_THROW(UnpackedFile(folder.Native("a.arn"), "tune.mp3", [] { return true; }),
                 std::filesystem::filesystem_error);
}

} // namespace tavmoor
