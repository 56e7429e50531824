#include "core/files/document_path.h"

#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/text/code_page.h"
#include "core/text/path_text.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

class DocumentPathTest : public testing::Test {
protected:
    void SetUp() override { SetSystemCodePage(1250); }
    void TearDown() override { SetSystemCodePage(number_); }

    test::TemporaryFolder folder_;
    const std::string start_ = folder_.Document() + "\\";

private:
    int number_ = SystemCodePage().Number();
};

} // namespace

TEST_F(DocumentPathTest, FilesAreFoundInAnyCase) {
    const std::string written = folder_.Write("Sub Folder/File.TXT", "x");
    EXPECT_EQ(DocumentPath(NativePath(written)), written);
    EXPECT_TRUE(IsAbsoluteDocumentPath(written));
    EXPECT_FALSE(IsAbsoluteDocumentPath("a\\b"));
    EXPECT_TRUE(FileExists(start_ + "sub folder\\FILE.txt"));
    EXPECT_TRUE(FolderExists(start_ + "SUB FOLDER\\"));
    EXPECT_FALSE(FolderExists(written) || FolderExists("") || FileExists(FolderOf(written)));
    EXPECT_EQ(FileNamesIn(start_ + "sub folder", ".txt"), std::vector<std::string>{"File.TXT"});
    EXPECT_TRUE(FileNamesIn(start_ + "gone", ".txt").empty());
    EXPECT_TRUE(SamePath("Z:\\\x8A\\a", "z:\\\x9A\\A"));
    EXPECT_FALSE(SamePath("Z:\\a", "Z:\\a\\"));
}

TEST_F(DocumentPathTest, NamesBeyondAsciiPassThroughTheCodePage) {
    WriteWholeFile(start_ + "\x8A.txt", "x");
    EXPECT_TRUE(std::filesystem::exists(folder_.Native() / u8"\u0160.txt"));
    EXPECT_EQ(ReadWholeFile(start_ + "\x9A.TXT"), "x");
    EXPECT_EQ(FileNamesIn(folder_.Document(), ".txt").front(), "\x8A.txt");
    EXPECT_EQ(FindDocumentPath(u8"\u4E2D.txt"), std::nullopt);
    EXPECT_EQ(FindNativePath(std::string_view("Z:\\a\0b", 6)), std::nullopt);
#ifdef _WIN32
    EXPECT_EQ(FindDocumentPath(std::filesystem::path(L"a\xD800.txt")), std::nullopt);
#else
    EXPECT_EQ(FindDocumentPath("/a/b\\c"), std::nullopt);
#endif
}

#ifndef _WIN32

TEST_F(DocumentPathTest, DriveZIsTheRootAndOtherDrivesLeadNowhere) {
    EXPECT_EQ(NativePath("Z:\\"), "/");
    EXPECT_EQ(NativePath("z:\\no such\\Name"), "/no such/Name");
    EXPECT_EQ(NativePath("\\no such/x\\.\\\\y"), "/no such/x/y");
    EXPECT_EQ(NativePath("not here\\x"), "not here/x");
    EXPECT_EQ(DocumentPath("/home/ana"), "Z:\\home\\ana");
    EXPECT_EQ(DocumentPath("a/b"), "a\\b");
    EXPECT_EQ(FindNativePath("\\\\server\\share"), std::nullopt);
    try {
        NativePath("C:\\a");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::PathNotFound);
    }
}

TEST_F(DocumentPathTest, AnExactNameWinsOverOneOfAnotherCase) {
    folder_.Write("Readme", "first");
    folder_.Write("README", "second");
    EXPECT_EQ(ReadWholeFile(start_ + "Readme"), "first");
    EXPECT_EQ(ReadWholeFile(start_ + "README"), "second");
    EXPECT_EQ(ReadWholeFile(start_ + "readme"), "second"); // first in byte order
    std::filesystem::create_symlink("nowhere", folder_.Native("readme"));
    EXPECT_EQ(NativePath(start_ + "readme"), folder_.Native("readme")) << "a link is a name, too";
}

#endif

} // namespace tavmoor
