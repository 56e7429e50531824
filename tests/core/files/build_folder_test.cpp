#include "core/files/build_folder.h"

#include "core/files/runtime_error.h"
#include "core/text/path_text.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <cstdlib>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tavmoor {

namespace {

int ErrorOfUse(const std::string& folder) {
    try {
        RequireOwnFolder(folder);
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.Number());
    }
    return 0;
}

} // namespace

TEST(BuildFolder, LiesInTheTemporaryFolder) {
    EXPECT_EQ(BuildFolder(), WithBackslash(TemporaryPath()) + "TAVMOORbuild\\");
    EXPECT_EQ(ErrorOfUse(test::TemporaryFolder().Document("gone") + "\\"), 76);
}

#ifdef _WIN32

TEST(BuildFolder, IsMadeWhenItIsMissing) {
    EnsureBuildFolder();
    EXPECT_EQ(ErrorOfUse(BuildFolder()), 0);
}

#else

namespace {

class BuildFolderTest : public testing::Test {
protected:
    void SetUp() override {
        if (const char* old = std::getenv("TMPDIR")) {
            old_ = old;
        }
        setenv("TMPDIR", folder_.Native().c_str(), 1);
    }
    void TearDown() override { old_ ? setenv("TMPDIR", old_->c_str(), 1) : unsetenv("TMPDIR"); }

    test::TemporaryFolder folder_;
    std::optional<std::string> old_;
};

} // namespace

TEST_F(BuildFolderTest, IsMadeForTheUserAlone) {
    EnsureBuildFolder();
    EnsureBuildFolder();
    EXPECT_EQ(folder_.Names(), std::set<std::string>{"TAVMOORBuild"});
    struct stat entry {};
    stat(folder_.Native("TAVMOORBuild").c_str(), &entry);
    EXPECT_EQ(entry.st_mode & 07777U, 0700U);
    EXPECT_EQ(ErrorOfUse(BuildFolder()), 0);
    chmod(folder_.Native("TAVMOORBuild").c_str(), 0770);
    EXPECT_EQ(ErrorOfUse(BuildFolder()), 0);
    chmod(folder_.Native("TAVMOORBuild").c_str(), 0707);
    EXPECT_EQ(ErrorOfUse(BuildFolder()), 70);
}

TEST_F(BuildFolderTest, OfSomebodyElseIsRefused) {
    std::filesystem::create_directory(folder_.Native("elsewhere"));
    std::filesystem::create_directory_symlink("elsewhere", folder_.Native("TAVMOORbuild"));
    EnsureBuildFolder();
    EXPECT_EQ(ErrorOfUse(BuildFolder()), 70);
    std::filesystem::remove(folder_.Native("TAVMOORbuild"));
    folder_.Write("TAVMOORbuild", "a file");
    EXPECT_EQ(ErrorOfUse(BuildFolder()), 70);
    // Whoever runs the tests: root's own folder is another user's, and root can give one away.
    const bool given = chown(folder_.Native("elsewhere").c_str(), 12345, 12345) == 0;
    EXPECT_EQ(ErrorOfUse(given ? folder_.Document("elsewhere") : "Z:\\"), 70);
}

TEST_F(BuildFolderTest, TroubleWithTheTemporaryFolderShowsAtTheBuildAlone) {
    setenv("TMPDIR", folder_.Native("gone").c_str(), 1);
    EXPECT_NO_THROW(EnsureBuildFolder());
    EXPECT_EQ(ErrorOfUse(BuildFolder()), 76);
}

#endif

} // namespace tavmoor
