#include "package/package_reader.h"

#include "support/package_bytes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

namespace tavmoor {
namespace {

namespace fs = std::filesystem;
using test::PackageBytes;
using test::PackageHead;
using test::PackedFile;
using test::TemporaryFolder;

std::vector<PackageEntry> ReadHeadOf(const std::string& package) {
    return ReadPackageHead(package, package.size());
}

/// The message of the PackageError that an action ends with, "" when it ends well.
template <typename Action>
std::string ErrorOf(Action action) {
    try {
        action();
    } catch (const PackageError& error) {
        return error.what();
    }
    return "";
}

bool Refuses(const std::string& head, std::uint64_t packageSize) {
    return !ErrorOf([&] { (void)ReadPackageHead(head, packageSize); }).empty();
}

bool Refuses(const std::string& package) {
    return Refuses(package, package.size());
}

TEST(PackageHead, ReadsTheBytesOfThePackage) {
    const std::string package = "TAVMOOR PACKAGE\r\n\r\n\r\n"
                                "[Pocetak]\r\n\r\n\r\n"
                                "\xE1\x80\xFF\xAE\x81\x82\xE2\xE3\xE4\r\n\r\n\r\n" // "a.b"
                                "\xB3\xB3\xB3\r\n\r\n\r\n"                         // "3"
                                "\xC3\xC3\xC3\r\n\r\n\r\n"                         // "C"
                                "\xB0\x99\x99\r\n\r\n\r\n"                         // "0"
                                "[Kraj]\r\n\r\n"
                                "\r\nx";
    const auto entries = ReadHeadOf(package);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].name, "a.b");
    EXPECT_EQ(entries[0].size, 3U);
    EXPECT_EQ(package.substr(entries[0].offset), "\r\nx");
    EXPECT_EQ(entries[1].name, "C");
    EXPECT_EQ(entries[1].size, 0U);
    EXPECT_EQ(entries[1].offset, package.size());
}

TEST(PackageHead, TakesTheRestOfALineEndForFewDataBytes) {
    const std::string none = PackageHead({{"a", ""}});
    const std::string one = PackageHead({{"a", ""}, {"b", "x"}}) + "x";
    const std::string two = PackageHead({{"a", "x"}, {"b", "y"}}) + "xy";
    struct Case {
        std::string package;
        bool sound;
    };
    const std::vector<Case> cases{{none, true},
                                  {none + "\r\n", true},
                                  {none + "\r", false},
                                  {none + "\n\r", false},
                                  {none + "\r\n\r", false},
                                  {one, true},
                                  {one + "\n", true},
                                  {one + "\r", false},
                                  {one + "\r\n", false},
                                  {two, true},
                                  {two + "\n", false},
                                  {two + "\r\n", false},
                                  {PackageHead({}), true},
                                  {PackageHead({}) + "\r\n", true}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(Refuses(cases[i].package), !cases[i].sound) << "case " << i;
    }
}

TEST(PackageHead, RefusesEveryTruncatedPackage) {
    const std::string package = PackageBytes({{"tavmoor.cfg", "[Zvuk]\r\n"}, {"b", "12345"}});
    const std::size_t headSize = PackageHead({{"tavmoor.cfg", "12345678"}, {"b", "1"}}).size();
    for (std::size_t size = 0; size < package.size(); ++size) {
        EXPECT_TRUE(Refuses(package.substr(0, size))) << size << " bytes";
        // The whole package is there, of which only a part was read.
        EXPECT_EQ(Refuses(package.substr(0, size), package.size()), size < headSize)
            << size << " bytes";
    }
    EXPECT_FALSE(Refuses(package));
}

TEST(PackageHead, RefusesDamagedLines) {
    const std::string sound = PackageBytes({{"ab", "xyz"}});
    for (const std::string line : {"TAVMOOR PACKAGE", "[Pocetak]", "[Kraj]"}) {
        std::string damaged = sound;
        damaged[sound.find(line)] = 'x';
        EXPECT_TRUE(Refuses(damaged)) << line;
    }
    const std::size_t name = sound.find("[Pocetak]") + 15;
    for (std::size_t i = 0; i < 6; ++i) {
        std::string damaged = sound;
        damaged[name + i] = 'a';
        EXPECT_TRUE(Refuses(damaged)) << "byte " << i << " of the name";
    }
    std::string shifted = sound;
    EXPECT_TRUE(Refuses(shifted.erase(name, 1)));
}

TEST(PackageHead, RefusesSizesThatAreNoPlainNumber) {
    struct Case {
        std::string text;
        std::uint64_t number; ///< what a careless reader could take it for
        bool sound;
    };
    const std::vector<Case> cases{{"5", 5, true},
                                  {"0000000000000000005", 5, true},
                                  {"9999999999999999999", 9'999'999'999'999'999'999U, true},
                                  {"00000000000000000005", 5, false},
                                  {"10000000000000000000", 10'000'000'000'000'000'000U, false},
                                  {"18446744073709551621", 5, false},
                                  {"", 0, false},
                                  {"-5", 5, false},
                                  {"+5", 5, false},
                                  {" 5", 5, false},
                                  {"5 ", 5, false},
                                  {"5\r", 5, false},
                                  {"0x5", 5, false},
                                  {"0x5", 0, false},
                                  {"5e0", 5, false},
                                  {"5.0", 5, false}};
    for (const auto& [text, number, sound] : cases) {
        const std::string head = PackageHead({PackedFile("a", text, "")});
        EXPECT_EQ(Refuses(head, head.size() + number), !sound) << text;
    }
}

TEST(PackageHead, RefusesSizesThatDoNotAddUpToThePackage) {
    const std::string head = PackageHead({PackedFile("a", "6", "")});
    EXPECT_TRUE(Refuses(head + "12345"));
    EXPECT_FALSE(Refuses(head + "123456"));
    EXPECT_TRUE(Refuses(head + "1234567"));
    EXPECT_FALSE(Refuses(head, head.size() + 6));

    // The sum passes 64 bits with the second size and comes out right with the third.
    constexpr std::uint64_t first = 9'999'999'999'999'999'999U;
    constexpr std::uint64_t second = 0 - first + 1000;
    constexpr std::uint64_t third = first - 1000;
    const std::string wrapping = PackageHead({PackedFile("a", std::to_string(first), ""),
                                              PackedFile("b", std::to_string(second), ""),
                                              PackedFile("c", std::to_string(third), "")});
    EXPECT_TRUE(Refuses(wrapping, wrapping.size() + first));
}

TEST(PackageHead, RefusesHeadsBeyondTheLimits) {
    const std::vector<PackedFile> most(4096, {"n", ""});
    EXPECT_EQ(ReadHeadOf(PackageBytes(most)).size(), 4096U);
    std::vector<PackedFile> tooMany = most;
    tooMany.emplace_back("n", "");
    EXPECT_TRUE(Refuses(PackageBytes(tooMany)));

    EXPECT_FALSE(Refuses(PackageBytes({{std::string(349'000, 'n'), ""}})));
    EXPECT_TRUE(Refuses(PackageBytes({{std::string(350'000, 'n'), ""}})));
}

TEST(PackageEntryNames, AreSafeOnEverySystem) {
    for (const std::string name : {"a", "tavmoor.cfg", "Back picture (2).jpg", ".hidden", "a..b",
                                   "console.txt", "com.txt", "com10", "lpt", "~$a", "nul-1.wav"}) {
        EXPECT_TRUE(IsSafeEntryName(name)) << name;
    }
    for (const std::string name :
         {"",        ".",    "..",      "...",   "../a",     "..\\a",    "/etc/a",  "\\a",
          "a/b",     "a\\b", "C:a",     "C:\\a", "a:stream", "a.",       "a ",      "a. ",
          "a\n",     "\x7F", "*",       "a?",    "a|b",      "<a>",      "\"a\"",   "nul",
          "NUL.txt", "Con",  "aux.a.b", "com1",  "LPT9.log", "nul .txt", "CONOUT$", "\xE1"}) {
        EXPECT_FALSE(IsSafeEntryName(name)) << name;
    }
    EXPECT_FALSE(IsSafeEntryName(std::string("a\0b", 3)));
}

class PackageFileTest : public testing::Test {
protected:
    PackageFile Open(const std::vector<PackedFile>& files) {
        folder_.Write("package", PackageBytes(files));
        return PackageFile(folder_.Native("package"));
    }
    [[nodiscard]] fs::path Target() const { return folder_.Native("target"); }
    /// Extracts and gives the error's message.
    std::string ExtractError(const std::vector<PackedFile>& files) {
        PackageFile package = Open(files);
        return ErrorOf([&] { package.ExtractTo(Target()); });
    }
    [[nodiscard]] std::size_t FilesInTarget() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(Target()), fs::directory_iterator()));
    }

    TemporaryFolder folder_;
};

TEST_F(PackageFileTest, FindsAndReadsEntries) {
    PackageFile package = Open({{"a.txt", "one"}, {"empty", ""}, {"A.TXT", "two"}});
    ASSERT_NE(package.Find("A.tXt"), nullptr);
    EXPECT_EQ(package.Read(*package.Find("A.tXt")), "one");
    EXPECT_EQ(package.Read(package.Entries()[2]), "two");
    EXPECT_EQ(package.Read(*package.Find("EMPTY")), "");
    EXPECT_EQ(package.Find("a"), nullptr);
}

TEST_F(PackageFileTest, HandsBlocksOver) {
    struct Case {
        std::size_t size;
        std::vector<std::size_t> blocks;
    };
    for (const auto& [size, blocks] : std::vector<Case>{{0, {}},
                                                        {65499, {65499}},
                                                        {65500, {65500}},
                                                        {65501, {65500, 1}},
                                                        {131000, {65500, 65500}}}) {
        std::string bytes(size, '.');
        for (std::size_t i = 0; i < size; i += 997) {
            bytes[i] = static_cast<char>(i);
        }
        PackageFile package = Open({{"before", "xyz"}, {"a", bytes}, {"after", "xyz"}});
        std::vector<std::size_t> seen;
        std::string read;
        package.ReadBlocks(*package.Find("a"), [&](std::span<const char> block) {
            seen.push_back(block.size());
            read.append(block.data(), block.size());
        });
        EXPECT_EQ(seen, blocks);
        EXPECT_TRUE(read == bytes) << size;
    }
}

TEST_F(PackageFileTest, ReadsBehindFourGigabytes) {
    constexpr std::uint64_t large = 5'000'000'000;
    const std::string head =
        PackageHead({PackedFile("film", std::to_string(large), ""), PackedFile("tail", "3", "")});
    folder_.Write("package", head);
    const fs::path path = folder_.Native("package");
    std::error_code error;
    fs::resize_file(path, head.size() + large, error);
    if (error) {
        GTEST_SKIP() << "no file of that size here";
    }
    std::ofstream(path, std::ios::binary | std::ios::app) << "end";
    PackageFile package(path);
    EXPECT_EQ(package.Read(*package.Find("tail")), "end");
    EXPECT_EQ(package.Find("film")->size, large);
}

TEST_F(PackageFileTest, SaysWhatCannotBeRead) {
    for (const auto& path : {folder_.Native("missing"), folder_.Native()}) {
        EXPECT_NE(ErrorOf([&] { const PackageFile package(path); }), "");
    }
    PackageFile package = Open({{"first", "one"}, {"large", std::string(200'000, 'x')}});
    fs::resize_file(folder_.Native("package"), 100'000);
    const std::string error = ErrorOf([&] { (void)package.Read(*package.Find("large")); });
    EXPECT_NE(error.find("\"large\""), std::string::npos) << error;
    EXPECT_EQ(package.Read(*package.Find("first")), "one");
}

TEST_F(PackageFileTest, ExtractsIntoTheFolder) {
    folder_.Write("target/a.txt", "an older and longer text");
    folder_.Write("target/other", "stays");
    EXPECT_EQ(ExtractError({{"a.txt", "new"}, {"empty", ""}, {"b", std::string(70'000, 'b')}}), "");
    EXPECT_EQ(folder_.Read("target/a.txt"), "new");
    EXPECT_EQ(folder_.Read("target/other"), "stays");
    EXPECT_EQ(folder_.Read("target/b"), std::string(70'000, 'b'));
    EXPECT_EQ(fs::file_size(folder_.Native("target/empty")), 0U);
    EXPECT_EQ(FilesInTarget(), 4U);

    PackageFile package(folder_.Native("package"));
    package.ExtractTo(folder_.Native("new/deep"));
    EXPECT_EQ(folder_.Read("new/deep/a.txt"), "new");
}

TEST_F(PackageFileTest, ExtractsNothingWhenANameIsUnsafe) {
    const std::string escape = "..\\" + std::string("out");
    struct Case {
        std::string name;
        std::string shown;
    };
    for (const auto& [name, shown] : std::vector<Case>{{escape, "\"..\\out\""},
                                                       {"../out", "\"../out\""},
                                                       {"a.TXT", "\"a.TXT\""},
                                                       {"a\x1B[2J", "\"a?[2J\""},
                                                       {std::string(300, ':'), "...\""}}) {
        const std::string error = ExtractError({{"A.txt", "first"}, {name, "second"}});
        EXPECT_NE(error.find(shown), std::string::npos) << error;
        EXPECT_FALSE(fs::exists(Target()));
        EXPECT_EQ(folder_.Names(), std::set<std::string>{"package"});
    }
}

TEST_F(PackageFileTest, ReplacesLinksInsteadOfFollowingThem) {
    folder_.Write("secret", "untouched");
    fs::create_directory(Target());
    std::error_code error;
    fs::create_symlink(folder_.Native("secret"), Target() / "a", error);
    fs::create_symlink(folder_.Native("nowhere"), Target() / "b", error);
    if (error) {
        GTEST_SKIP() << "no links here";
    }
    EXPECT_EQ(ExtractError({{"a", "new"}, {"b", "new"}}), "");
    EXPECT_EQ(folder_.Read("secret"), "untouched");
    EXPECT_FALSE(fs::exists(folder_.Native("nowhere")));
    EXPECT_FALSE(fs::is_symlink(Target() / "a"));
    EXPECT_EQ(folder_.Read("target/b"), "new");
}

TEST_F(PackageFileTest, LeavesTheFolderWhenAFileCannotBePlaced) {
    folder_.Write("target/a", "old");
    fs::create_directory(Target() / "b");
    const std::string error = ExtractError({{"a", "new"}, {"b", "new"}});
    EXPECT_NE(error.find("\"b\""), std::string::npos) << error;
    EXPECT_EQ(folder_.Read("target/a"), "old");
    EXPECT_EQ(FilesInTarget(), 2U);

    folder_.Write("file", "");
    PackageFile package(folder_.Native("package"));
    EXPECT_NE(ErrorOf([&] { package.ExtractTo(folder_.Native("file")); }), "");
}

#ifndef _WIN32
TEST_F(PackageFileTest, LeavesTheFolderWhenTheDiskIsFull) {
    folder_.Write("target/a", "old");
    // The smaller file only meets the end of the disk when it is closed.
    for (const std::size_t size : {300'000U, 900U}) {
        PackageFile package = Open({{"a", "new"}, {"large", std::string(size, 'x')}});
        // A limit on the length of files stands in for a full disk.
        rlimit old{};
        getrlimit(RLIMIT_FSIZE, &old);
        const rlimit small{500, old.rlim_max};
        auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &small);
        const std::string error = ErrorOf([&] { package.ExtractTo(Target()); });
        setrlimit(RLIMIT_FSIZE, &old);
        (void)std::signal(SIGXFSZ, handler);
        EXPECT_NE(error.find("\"large\""), std::string::npos) << error;
        EXPECT_NE(error.find("Disk full"), std::string::npos) << error;
        EXPECT_EQ(folder_.Read("target/a"), "old");
        EXPECT_EQ(FilesInTarget(), 1U);
    }
}
#endif

} // namespace
} // namespace tavmoor
