#include "core/program_settings.h"

#include "core/runtime_error.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

class ProgramSettingsTest : public testing::Test {
protected:
    ProgramSettings Read(const std::string& lines) {
        return ReadProgramSettings(folder_.Write("tavmoor.ini", "[Settings]\r\n" + lines));
    }

    test::TemporaryFolder folder_;
};

} // namespace

TEST_F(ProgramSettingsTest, AreWrittenLineByLine) {
    const std::string path = folder_.Document("new/tavmoor.ini");
    WriteProgramSettings(ProgramSettings(), path);
    EXPECT_EQ(folder_.Read("new/tavmoor.ini"),
              "[Settings]\r\nPreview=0\r\nSplashscreen=1\r\nCompressfolder=\r\n"
              "Preview Created=False\r\nAutoplay Check=1\r\nLastPictureFolder=\r\n"
              "LastSoundFolder=\r\nShowWelcomeScren=False\r\n");
    const ProgramSettings other{true,  false,    "Z:\\tmp\\", true, "Z:\\a.tavp",
                                false, "Z:\\p", "Z:\\s",     true};
    WriteProgramSettings(other, path);
    EXPECT_EQ(folder_.Read("new/tavmoor.ini"),
              "[Settings]\r\nPreview=1\r\nSplashscreen=0\r\nCompressfolder=Z:\\tmp\\\r\n"
              "Preview Created=True\r\nRecent=Z:\\a.tavp\r\nAutoplay Check=0\r\n"
              "LastPictureFolder=Z:\\p\r\nLastSoundFolder=Z:\\s\r\nShowWelcomeScren=True\r\n");
    const ProgramSettings back = ReadProgramSettings(path);
    EXPECT_TRUE(back.previewPictures && back.testAfterBuild && back.welcomeWindow);
    EXPECT_FALSE(back.programSplash || back.autoplayCheck);
    EXPECT_EQ(back.buildFolder, "") << "never read back";
    EXPECT_EQ(back.recentProject, "Z:\\a.tavp");
    EXPECT_EQ(back.lastPictureFolder, "Z:\\p");
    EXPECT_EQ(back.lastSoundFolder, "Z:\\s");
    DeleteProgramSettingsFile(path);
    DeleteProgramSettingsFile(path);
    EXPECT_TRUE(ReadProgramSettings(path).programSplash);
}

TEST_F(ProgramSettingsTest, EachFlagHasItsOwnTest) {
    struct Case {
        const char* key;
        bool ProgramSettings::*flag;
        std::set<std::string> trueFor;
    };
    const Case cases[] = {
        {"Preview", &ProgramSettings::previewPictures, {"1"}},
        {"Splashscreen", &ProgramSettings::programSplash, {"", "1", "2", "True", "False", "true"}},
        {"Preview Created", &ProgramSettings::testAfterBuild, {"True"}},
        {"Autoplay Check", &ProgramSettings::autoplayCheck, {"", "1"}},
        {"ShowWelcomeScren", &ProgramSettings::welcomeWindow, {"True"}},
    };
    for (const Case& setting : cases) {
        EXPECT_EQ(Read("").*setting.flag, setting.trueFor.contains("")) << setting.key;
        for (const char* value : {"", "0", "1", "2", "True", "False", "true"}) {
            const bool read = Read(std::string(setting.key) + "=" + value + "\r\n").*setting.flag;
            EXPECT_EQ(read, setting.trueFor.contains(value)) << setting.key << "=" << value;
        }
    }
}

TEST_F(ProgramSettingsTest, AFolderThatCannotBeMadeIsARuntimeError) {
    folder_.Write("file", "x");
    EXPECT_THROW(WriteProgramSettings({}, folder_.Document("file/tavmoor.ini")), RuntimeError);
}

} // namespace tavmoor
