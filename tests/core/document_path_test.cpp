#include "core/document_path.h"

#include "core/code_page.h"
#include "core/file_store.h"
#include "core/runtime_error.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

class DocumentPathTest : public testing::Test {
protected:
    void SetUp() override { SetSystemCodePage(1250); }
    void TearDown() override { SetSystemCodePage(number_); }

    test::TemporaryFolder folder_;

private:
    int number_ = SystemCodePage().Number();
};

} // namespace

TEST_F(DocumentPathTest, PartsOfAPathAreFoundInItsText) {
    EXPECT_EQ(WithBackslash("Z:\\a"), "Z:\\a\\");
    EXPECT_EQ(WithBackslash("Z:\\a\\"), "Z:\\a\\");
    EXPECT_EQ(WithBackslash(""), "\\");
    EXPECT_EQ(FolderOf("Z:\\a\\b.txt"), "Z:\\a");
    EXPECT_EQ(FolderOf("b.txt"), "");
    EXPECT_TRUE(IsAbsoluteDocumentPath("Z:\\a"));
    EXPECT_TRUE(IsAbsoluteDocumentPath("\\a"));
    EXPECT_FALSE(IsAbsoluteDocumentPath("a\\b"));
    EXPECT_FALSE(IsAbsoluteDocumentPath(""));
}

TEST_F(DocumentPathTest, NativePathsComeBackAndAreFoundInAnyCase) {
    const std::string written = folder_.Write("Sub Folder/File.TXT", "x");
    EXPECT_EQ(DocumentPath(NativePath(written)), written);
    EXPECT_TRUE(IsAbsoluteDocumentPath(written));
    EXPECT_TRUE(FileExists(folder_.Document() + "\\sub folder\\FILE.txt"));
    EXPECT_TRUE(FolderExists(folder_.Document() + "\\SUB FOLDER\\"));
    EXPECT_FALSE(FolderExists(written));
    EXPECT_FALSE(FolderExists(""));
    EXPECT_FALSE(FileExists(folder_.Document() + "\\Sub Folder"));
    const std::vector<std::string> names{"File.TXT"};
    EXPECT_EQ(FileNamesIn(folder_.Document("Sub Folder"), ".txt"), names);
    EXPECT_TRUE(FileNamesIn(folder_.Document("gone"), ".txt").empty());
}

TEST_F(DocumentPathTest, NamesBeyondAsciiPassThroughTheCodePage) {
    WriteWholeFile(folder_.Document() + "\\\x8A" "ume.txt", "x");
    EXPECT_TRUE(std::filesystem::exists(folder_.Native() / u8"\u0160ume.txt"));
    EXPECT_EQ(ReadWholeFile(folder_.Document() + "\\\x9AUME.txt"), "x");
    EXPECT_EQ(FileNamesIn(folder_.Document(), ".txt").front(), "\x8A" "ume.txt");
    EXPECT_EQ(FindDocumentPath(u8"\u20AC\u4E2D.txt"), std::nullopt);
    EXPECT_EQ(FindNativePath(std::string_view("Z:\\a\0b", 6)), std::nullopt);
}

#ifdef _WIN32

TEST_F(DocumentPathTest, ANameThatIsNoUnicodeCannotBeSaid) {
    EXPECT_EQ(FindDocumentPath(std::filesystem::path(L"a\xD800.txt")), std::nullopt);
}

#else

TEST_F(DocumentPathTest, DriveZIsTheRootAndOtherDrivesLeadNowhere) {
    EXPECT_EQ(NativePath("Z:\\"), "/");
    EXPECT_EQ(NativePath("z:\\no such\\Name"), "/no such/Name");
    EXPECT_EQ(NativePath("\\no such/x\\.\\\\y"), "/no such/x/y");
    EXPECT_EQ(NativePath("not here\\x"), "not here/x");
    EXPECT_EQ(DocumentPath("/home/ana"), "Z:\\home\\ana");
    EXPECT_EQ(DocumentPath("a/b"), "a\\b");
    for (const char* path : {"C:\\a", "\\\\server\\share"}) {
        EXPECT_EQ(FindNativePath(path), std::nullopt) << path;
        EXPECT_FALSE(FileExists(path));
        try {
            NativePath(path);
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::PathNotFound);
        }
    }
    try {
        DocumentPath("/a/b\\c");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::BadFileName);
    }
}

TEST_F(DocumentPathTest, AnExactNameWinsOverOneOfAnotherCase) {
    folder_.Write("Readme", "first");
    folder_.Write("README", "second");
    EXPECT_EQ(ReadWholeFile(folder_.Document() + "\\Readme"), "first");
    EXPECT_EQ(ReadWholeFile(folder_.Document() + "\\README"), "second");
    EXPECT_EQ(ReadWholeFile(folder_.Document() + "\\readme"), "second"); // first in byte order
    EXPECT_EQ(NativePath(folder_.Document() + "\\ReadMe2"), folder_.Native("ReadMe2"));
    // A link that leads nowhere is an exact name, too.
    std::filesystem::create_symlink("nowhere", folder_.Native("readme"));
    EXPECT_EQ(NativePath(folder_.Document() + "\\readme"), folder_.Native("readme"));
}

#endif

} // namespace tavmoor
