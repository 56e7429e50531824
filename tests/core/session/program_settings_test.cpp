#include "core/session/program_settings.h"

#include "core/files/runtime_error.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(ProgramSettings, AreWrittenLineByLine) {
    const test::TemporaryFolder folder;
    const std::string path = folder.Document("new/tavmoor.ini");
    WriteProgramSettings({}, path);
    EXPECT_EQ(folder.Read("new/tavmoor.ini"),
              "[Settings]\r\nPreview=0\r\nSplashscreen=1\r\nCompressfolder=\r\n"
              "Preview Created=False\r\nAutoplay Check=1\r\nLastPictureFolder=\r\n"
              "LastSoundFolder=\r\nShowWelcomeScren=False\r\n");
    const ProgramSettings other{true,  false,   "Z:\\tmp\\", true, "Z:\\a.tavp",
                                false, "Z:\\p", "Z:\\s",     true};
    WriteProgramSettings(other, path);
    const std::string text =
        "[Settings]\r\nPreview=1\r\nSplashscreen=0\r\nCompressfolder=Z:\\tmp\\\r\n"
        "Preview Created=True\r\nRecent=Z:\\a.tavp\r\nAutoplay Check=0\r\n"
        "LastPictureFolder=Z:\\p\r\nLastSoundFolder=Z:\\s\r\nShowWelcomeScren=True\r\n";
    EXPECT_EQ(folder.Read("new/tavmoor.ini"), text);
    ProgramSettings back = ReadProgramSettings(path);
    EXPECT_EQ(back.buildFolder, "") << "never read back";
    back.buildFolder = other.buildFolder;
    WriteProgramSettings(back, path);
    EXPECT_EQ(folder.Read("new/tavmoor.ini"), text);
    DeleteProgramSettingsFile(path);
    DeleteProgramSettingsFile(path);
    EXPECT_TRUE(ReadProgramSettings(path).programSplash);
    folder.Write("file", "x");
    EXPECT_THROW(WriteProgramSettings({}, folder.Document("file/tavmoor.ini")), RuntimeError);
}

TEST(ProgramSettings, EachFlagHasItsOwnTest) {
    using S = ProgramSettings;
    const test::TemporaryFolder folder;
    const std::tuple<const char*, bool S::*, std::set<std::string>> cases[] = {
        {"Preview", &S::previewPictures, {"1"}},
        {"Splashscreen", &S::programSplash, {"none", "", "1", "2", "True", "False", "true"}},
        {"Preview Created", &S::testAfterBuild, {"True"}},
        {"Autoplay Check", &S::autoplayCheck, {"none", "", "1"}},
        {"ShowWelcomeScren", &S::welcomeWindow, {"True"}}};
    for (const auto& [key, flag, trueFor] : cases) {
        for (const std::string value : {"none", "", "0", "1", "2", "True", "False", "true"}) {
            const std::string line = value == "none" ? "" : std::string(key) + "=" + value + "\r\n";
            const S settings = ReadProgramSettings(folder.Write("a", "[Settings]\r\n" + line));
            EXPECT_EQ(settings.*flag, trueFor.contains(value)) << key << "=" << value;
        }
    }
}

} // namespace tavmoor
