#include "core/files/file_store.h"

#include "core/files/runtime_error.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

namespace tavmoor {

namespace {

using Names = std::set<std::string>;

class FileStoreTest : public testing::Test {
protected:
    template <typename Action>
    int ErrorOf(Action action) {
        try {
            action();
        } catch (const RuntimeError& error) {
            return static_cast<int>(error.Number());
        }
        return 0;
    }

    test::TemporaryFolder folder_;
};

} // namespace

TEST_F(FileStoreTest, ASaveReplacesTheWholeFileAndLeavesNothingElse) {
    const std::string path = folder_.Document("a.tavp");
    WriteWholeFile(path, std::string(200000, 'x'));
    WriteWholeFile(path, std::string_view("b\0\r\n\x1A", 5));
    EXPECT_EQ(folder_.Read("a.tavp"), std::string("b\0\r\n\x1A", 5));
    EXPECT_EQ(ReadWholeFile(path), folder_.Read("a.tavp"));
    EXPECT_EQ(folder_.Names(), Names{"a.tavp"});
}

TEST_F(FileStoreTest, AFailedSaveChangesNothing) {
    folder_.Write("taken/inside", "x");
    EXPECT_NE(ErrorOf([&] { WriteWholeFile(folder_.Document("gone/a.tavp"), "x"); }), 0);
    EXPECT_NE(ErrorOf([&] { WriteWholeFile(folder_.Document("taken"), "x"); }), 0);
    EXPECT_EQ(folder_.Names(), Names{"taken"});
    EXPECT_EQ(folder_.Read("taken/inside"), "x");
}

TEST_F(FileStoreTest, MissingFilesAndFoldersHaveTheirErrors) {
    const std::string gone = folder_.Document("gone");
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(gone); }), 53);
    EXPECT_EQ(ErrorOf([&] { FileLength(gone); }), 53);
    EXPECT_EQ(ErrorOf([&] { FileLength(""); }), 53);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder_.Document()); }), 75);
    EXPECT_EQ(ErrorOf([&] { FileLength(folder_.Document()); }), 75);
    EXPECT_EQ(FileLengthOrZero(gone), 0U);
    EXPECT_EQ(FileLengthOrZero(folder_.Write("five", "12345")), 5U);
}

TEST_F(FileStoreTest, CopyingAndMovingSwallowTheirErrors) {
    const std::string gone = folder_.Document("gone/file");
    const std::string from = folder_.Write("from", "new");
    const std::string to = folder_.Write("to", "older and longer");
    EXPECT_FALSE(CopyFileIgnoringErrors(gone, from) || CopyFileIgnoringErrors(from, gone) ||
                 MoveFileIgnoringErrors(gone, from));
    EXPECT_TRUE(CopyFileIgnoringErrors(from, to));
    EXPECT_EQ(folder_.Read("to"), "new");
    EXPECT_TRUE(MoveFileIgnoringErrors(from, folder_.Document("moved")));
    EXPECT_EQ(folder_.Names(), (Names{"moved", "to"}));
}

#ifndef _WIN32

TEST_F(FileStoreTest, PipesAndDevicesAreNotRead) {
    ASSERT_EQ(mkfifo(folder_.Native("pipe").c_str(), 0600), 0);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder_.Document("pipe")); }), 75);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile("Z:\\dev\\zero"); }), 75);
}

TEST_F(FileStoreTest, ASaveKeepsPermissionsAndLinks) {
    const auto mode = [this](const char* name) {
        return static_cast<unsigned>(std::filesystem::status(folder_.Native(name)).permissions());
    };
    const mode_t mask = umask(0027);
    for (const char* target : {"real", "not there yet"}) {
        const std::string old = folder_.Write("real", "old");
        chmod(folder_.Native("real").c_str(), 0604);
        std::filesystem::create_symlink(target, folder_.Native("link"));
        WriteWholeFile(folder_.Document("link"), "new");
        EXPECT_TRUE(std::filesystem::is_symlink(folder_.Native("link"))) << target;
        EXPECT_EQ(folder_.Read(target), "new");
        std::filesystem::remove(folder_.Native("link"));
    }
    umask(mask);
    EXPECT_EQ(mode("real"), 0604U);
    EXPECT_EQ(mode("not there yet"), 0640U);
    const std::string longest = std::string(250, 'n') + ".tavp";
    EXPECT_EQ(ErrorOf([&] { WriteWholeFile(folder_.Document(longest), "x"); }), 0);
}

TEST_F(FileStoreTest, TheOldFileStaysWhenTheDiskIsFull) {
    const std::string path = folder_.Write("a.tavp", "old");
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit small{1000, old.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(ErrorOf([&] { WriteWholeFile(path, std::string(2000, 'x')); }), 61);
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(folder_.Read("a.tavp"), "old");
    EXPECT_EQ(folder_.Names(), Names{"a.tavp"});
}

#endif

} // namespace tavmoor
