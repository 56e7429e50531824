#include "core/file_store.h"

#include "core/runtime_error.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tavmoor {

namespace {

using test::TemporaryFolder;
using Names = std::set<std::string>;

template <typename Action> int ErrorOf(Action action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.Number());
    }
    return 0;
}

} // namespace

TEST(FileStore, ASaveReplacesTheWholeFileAndLeavesNothingElse) {
    const TemporaryFolder folder;
    const std::string path = folder.Document("a.tavp");
    WriteWholeFile(path, std::string(200000, 'x'));
    WriteWholeFile(path, std::string_view("b\0\r\n\x1A", 5));
    EXPECT_EQ(folder.Read("a.tavp"), std::string("b\0\r\n\x1A", 5));
    EXPECT_EQ(ReadWholeFile(path), folder.Read("a.tavp"));
    WriteWholeFile(path, "");
    EXPECT_EQ(FileLength(path), 0U);
    EXPECT_EQ(folder.Names(), Names{"a.tavp"});
}

TEST(FileStore, AFailedSaveChangesNothing) {
    const TemporaryFolder folder;
    EXPECT_NE(ErrorOf([&] { WriteWholeFile(folder.Document("gone/a.tavp"), "x"); }), 0);
    std::filesystem::create_directory(folder.Native("taken"));
    folder.Write("taken/inside", "x");
    EXPECT_NE(ErrorOf([&] { WriteWholeFile(folder.Document("taken"), "x"); }), 0);
    EXPECT_EQ(folder.Names(), Names{"taken"});
    EXPECT_EQ(folder.Read("taken/inside"), "x");
}

TEST(FileStore, MissingFilesAndFoldersHaveTheirErrors) {
    const TemporaryFolder folder;
    const std::string gone = folder.Document("gone");
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(gone); }), 53);
    EXPECT_EQ(ErrorOf([&] { FileLength(gone); }), 53);
    EXPECT_EQ(ErrorOf([&] { FileLength(""); }), 53);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder.Document()); }), 75);
    EXPECT_EQ(ErrorOf([&] { FileLength(folder.Document()); }), 75);
    EXPECT_EQ(FileLengthOrZero(gone), 0U);
    EXPECT_EQ(FileLengthOrZero(folder.Write("five", "12345")), 5U);
}

TEST(FileStore, DeletingCopyingAndMovingSwallowTheirErrors) {
    const TemporaryFolder folder;
    const std::string gone = folder.Document("gone/file");
    DeleteFileIgnoringErrors(gone);
    DeleteFileIgnoringErrors(folder.Document());
    const std::string from = folder.Write("from", "new");
    EXPECT_FALSE(CopyFileIgnoringErrors(gone, from));
    EXPECT_FALSE(CopyFileIgnoringErrors(from, gone));
    EXPECT_FALSE(MoveFileIgnoringErrors(gone, from));
    EXPECT_EQ(folder.Read("from"), "new");
    EXPECT_TRUE(CopyFileIgnoringErrors(from, folder.Write("to", "older and longer")));
    EXPECT_EQ(folder.Read("to"), "new");
    EXPECT_TRUE(MoveFileIgnoringErrors(from, folder.Document("moved")));
    EXPECT_EQ(folder.Names(), (Names{"moved", "to"}));
    WriteFreshFile(folder.Document("to"), "fresh");
    EXPECT_EQ(folder.Read("to"), "fresh");
    DeleteFileIgnoringErrors(folder.Document("to"));
    EXPECT_EQ(folder.Names(), Names{"moved"});
}

#ifndef _WIN32

TEST(FileStore, ASaveKeepsThePermissions) {
    const TemporaryFolder folder;
    const auto mode = [&folder](const char* name) {
        struct stat entry {};
        stat(folder.Native(name).c_str(), &entry);
        return entry.st_mode & 07777U;
    };
    chmod(NativePath(folder.Write("old", "x")).c_str(), 0640);
    const mode_t mask = umask(0027);
    WriteWholeFile(folder.Document("old"), "y");
    WriteWholeFile(folder.Document("new"), "y");
    umask(mask);
    EXPECT_EQ(mode("old"), 0640U);
    EXPECT_EQ(mode("new"), 0640U);
    EXPECT_EQ(folder.Read("old"), "y");
}

TEST(FileStore, ASaveGoesThroughALink) {
    const TemporaryFolder folder;
    folder.Write("real/project", "x");
    for (const char* target : {"real/project", "real/not there yet"}) {
        std::filesystem::create_symlink(target, folder.Native("link"));
        WriteWholeFile(folder.Document("link"), "y");
        EXPECT_TRUE(std::filesystem::is_symlink(folder.Native("link"))) << target;
        EXPECT_EQ(folder.Read(target), "y");
        std::filesystem::remove(folder.Native("link"));
    }
}

TEST(FileStore, ASaveWorksForTheLongestName) {
    const TemporaryFolder folder;
    const std::string name = std::string(250, 'n') + ".tavp";
    EXPECT_EQ(ErrorOf([&] { WriteWholeFile(folder.Document(name), "x"); }), 0);
    EXPECT_EQ(folder.Names(), Names{name});
}

TEST(FileStore, TheOldFileStaysInAFolderThatCannotBeWritten) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "permissions do not bind this user";
    }
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.tavp", "old");
    chmod(folder.Native().c_str(), 0500);
    EXPECT_EQ(ErrorOf([&] { WriteWholeFile(path, "new"); }), 70);
    EXPECT_EQ(folder.Read("a.tavp"), "old");
    EXPECT_EQ(folder.Names(), Names{"a.tavp"});
}

#endif

} // namespace tavmoor
