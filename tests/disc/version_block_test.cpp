#include "core/text/maker.h"
#include "disc/version_block.h"

#include "support/pe_image.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {
namespace {

using namespace test;

/// Reads from memory and counts.
struct Reading {
    std::optional<std::string> name;
    std::size_t reads = 0;
    std::size_t bytes = 0;
};

Reading Read(const std::string& image) {
    Reading reading;
    reading.name = ReadCompanyName([&](std::uint64_t offset, std::span<unsigned char> buffer) {
        ++reading.reads;
        reading.bytes += buffer.size();
        if (offset > image.size() || buffer.size() > image.size() - offset) {
            return false;
        }
        std::copy_n(image.begin() + static_cast<std::ptrdiff_t>(offset), buffer.size(),
                    buffer.begin());
        return true;
    });
    return reading;
}

std::optional<std::string> NameIn(const std::string& versionResource) {
    return Read(MakePeImage(versionResource).bytes).name;
}

/// The two parts of a version resource, each with its one entry.
std::string Strings(std::u16string_view table, const std::string& entry) {
    return VersionNode(u"StringFileInfo", "", true, {VersionNode(table, "", true, {entry})});
}

std::string Company(std::u16string_view name) {
    return VersionNode(u"CompanyName", Utf16Bytes(name), true);
}

std::string Translation(const std::string& value) {
    return VersionNode(u"VarFileInfo", "", true, {VersionNode(u"Translation", value, false)});
}

const std::string UsEnglish = Words({0x0409, 0x04B0});

TEST(CompanyName, IsUtf8UpToItsNul) {
    const std::vector<std::pair<std::u16string_view, std::string>> cases{
        {u"", ""},
        {u"Čačak", "Čačak"},
        {u"\u20AC\uFFFF", "\xE2\x82\xAC\xEF\xBF\xBF"},
        {u"\xD83D\xDCBF!", "\xF0\x9F\x92\xBF!"},
        {u"\xD83D", "\xEF\xBF\xBD"},
        {u"\xDCBF\xD83Dx", "\xEF\xBF\xBD\xEF\xBF\xBDx"},
        {u"\xD83D\xD83D\xDCBF", "\xEF\xBF\xBD\xF0\x9F\x92\xBF"},
        {std::u16string_view(u"one\0two", 7), "one"},
    };
    for (const auto& [stored, utf8] : cases) {
        EXPECT_EQ(NameIn(VersionResourceOf(stored)), utf8);
    }
}

TEST(CompanyName, IsThatOfTheFirstTranslation) {
    const std::string german = VersionNode(u"040704E4", "", true, {Company(u"German")});
    const std::string english = VersionNode(u"040904b0", "", true, {Company(u"English")});
    const auto inOrder = [](const std::string& first, const std::string& second) {
        return VersionNode(u"StringFileInfo", "", true, {first, second});
    };
    const std::string both = Words({0x0407, 0x04E4}) + UsEnglish;
    EXPECT_EQ(NameIn(VersionResource({inOrder(english, german), Translation(both)})), "German");
    EXPECT_EQ(NameIn(VersionResource({Translation(UsEnglish), inOrder(german, english)})),
              "English");
    const std::string third = Words({0x041A, 0x04E2});
    EXPECT_EQ(NameIn(VersionResource({inOrder(german, english), Translation(third)})),
              std::nullopt);
}

TEST(CompanyName, IsFoundInLooselyWrittenBlocks) {
    const std::string name = Utf16Bytes(u"Orlenta");
    // A length counted in bytes, a value said to be binary, and a key in another case.
    std::string bytesCounted = VersionNode(u"CompanyName", name, true);
    bytesCounted[2] = static_cast<char>(name.size());
    const std::string binary = VersionNode(u"CompanyName", name, false);
    const std::string lower = VersionNode(u"companyname", name, true);
    for (const std::string& entry : {bytesCounted, binary, lower}) {
        EXPECT_EQ(NameIn(VersionResource({Strings(u"040904B0", entry), Translation(UsEnglish)})),
                  "Orlenta");
    }
    // A text without its NUL, said to be longer than its block, and another one right behind it.
    std::string open = VersionNode(u"CompanyName", Utf16Bytes(u"Orlenta!").substr(0, 16), true);
    open[2] = 0x40;
    const std::string next = VersionNode(u"ProductName", Utf16Bytes(u"x"), true);
    const std::string strings = VersionNode(u"StringFileInfo", "", true,
                                            {VersionNode(u"040904b0", "", true, {open, next})});
    EXPECT_EQ(NameIn(VersionResource({Translation(UsEnglish), strings})), "Orlenta!");

    PeImage image = MakePeImage(VersionResourceOf(u"Orlenta"));
    image.Put16(image.resource, 0xFFFF);
    EXPECT_EQ(Read(image.bytes).name, "Orlenta");
}

TEST(CompanyName, IsMissingWhereTheBlockLacksAPart) {
    const std::string strings = Strings(u"040904b0", Company(u"Orlenta"));
    const std::vector<std::vector<std::string>> trees{
        {},
        {strings},
        {strings, Translation("")},
        {strings, Translation(UsEnglish.substr(0, 3))},
        {strings, VersionNode(u"VarFileInfo", "", true)},
        {Translation(UsEnglish)},
        {VersionNode(u"StringFileInfo", "", true), Translation(UsEnglish)},
        {Strings(u"040904b", Company(u"Orlenta")), Translation(UsEnglish)},
        {Strings(u"040904b0", VersionNode(u"ProductName", Utf16Bytes(u"x"), true)),
         Translation(UsEnglish)},
        {Strings(u"040904b0", VersionNode(u"CompanyNames", Utf16Bytes(u"x"), true)),
         Translation(UsEnglish)},
        {Strings(u"040904b0", VersionNode(u"\u0143ompanyName", Utf16Bytes(u"x"), true)),
         Translation(UsEnglish)},
    };
    for (std::size_t i = 0; i < trees.size(); ++i) {
        EXPECT_EQ(NameIn(VersionResource(trees[i])), std::nullopt) << "tree " << i;
    }
    EXPECT_EQ(NameIn(""), std::nullopt);
}

/// A change that makes a program unreadable.
struct Damage {
    const char* what;
    void (*apply)(PeImage& image);
};

constexpr std::uint32_t Folder = 0x80000000U;

const std::vector<Damage> HeaderDamages{
    {"no DOS program", [](PeImage& i) { i.bytes[1] = 'z'; }},
    {"new header behind the file", [](PeImage& i) { i.Put32(i.newHeaderOffset, 0xFFFFFFF0); }},
    {"new header at the very end",
     [](PeImage& i) { i.Put32(i.newHeaderOffset, i.bytes.size() - 4); }},
    {"16-bit program", [](PeImage& i) { i.bytes[i.signature] = 'N'; }},
    {"signature without zeros", [](PeImage& i) { i.bytes[i.signature + 3] = 1; }},
    {"unknown magic", [](PeImage& i) { i.Put16(i.magic, 0x107); }},
    {"no optional header", [](PeImage& i) { i.Put16(i.optionalSize, 0); }},
    {"optional header too large", [](PeImage& i) { i.Put16(i.optionalSize, 0xFFFF); }},
    {"two directories", [](PeImage& i) { i.Put32(i.directoryCount, 2); }},
    {"no resources", [](PeImage& i) { i.Put32(i.directoryCount + 20, 0); }},
    {"resources in no section", [](PeImage& i) { i.Put32(i.directoryCount + 20, 0xFFFFFFFF); }},
    {"no sections", [](PeImage& i) { i.Put16(i.sectionCount, 0); }},
    {"endless sections", [](PeImage& i) { i.Put16(i.sectionCount, 0xFFFF); }},
    {"section behind the file", [](PeImage& i) { i.Put32(i.sectionTable + 40 + 20, 0xFFFFFFFF); }},
    {"section without bytes", [](PeImage& i) { i.Put32(i.sectionTable + 40 + 16, 0); }},
    {"section elsewhere", [](PeImage& i) { i.Put32(i.sectionTable + 40 + 12, 0xFFFFFFFF); }},
};

const std::vector<Damage> ResourceDamages{
    {"another type", [](PeImage& i) { i.Put32(i.typeFolder + 16, 15); }},
    {"empty folder", [](PeImage& i) { i.Put16(i.nameFolder + 14, 0); }},
    {"endless folder", [](PeImage& i) { i.Put16(i.typeFolder + 14, 0xFFFF); }},
    {"two endless counts", [](PeImage& i) { i.Put32(i.languageFolder + 12, 0xFFFFFFFF); }},
    {"type leads to itself", [](PeImage& i) { i.Put32(i.typeFolder + 20, Folder); }},
    {"name leads to itself", [](PeImage& i) { i.Put32(i.nameFolder + 20, Folder | 24); }},
    {"name leads back", [](PeImage& i) { i.Put32(i.nameFolder + 20, Folder); }},
    {"language leads to itself", [](PeImage& i) { i.Put32(i.languageFolder + 20, Folder | 48); }},
    {"data where a folder belongs", [](PeImage& i) { i.Put32(i.typeFolder + 20, 24); }},
    {"folder behind the section",
     [](PeImage& i) { i.Put32(i.nameFolder + 20, Folder | 0x7FFFFFFF); }},
    {"entry behind the section", [](PeImage& i) { i.Put32(i.languageFolder + 20, 0x7FFFFFFF); }},
    {"data in no section", [](PeImage& i) { i.Put32(i.dataEntry, 0xFFFFFFFF); }},
    {"data in the headers", [](PeImage& i) { i.Put32(i.dataEntry, 0); }},
    {"endless data", [](PeImage& i) { i.Put32(i.dataEntry + 4, 0xFFFFFFFF); }},
    {"one byte too many",
     [](PeImage& i) { i.Put32(i.dataEntry + 4, i.bytes.size() - i.resource + 1); }},
    {"no data", [](PeImage& i) { i.Put32(i.dataEntry + 4, 0); }},
    {"more data than a version block can have",
     [](PeImage& i) {
         constexpr std::uint32_t large = 3'000'000;
         i.bytes.resize(i.bytes.size() + large);
         i.Put32(i.sectionTable + 40 + 16, large);
         i.Put32(i.dataEntry + 4, large - 200);
     }},
    {"block of no length", [](PeImage& i) { i.Put16(i.resource, 0); }},
    {"block shorter than its header", [](PeImage& i) { i.Put16(i.resource, 5); }},
    {"value longer than the block", [](PeImage& i) { i.Put16(i.resource + 2, 0xFFFF); }},
    {"child of no length", [](PeImage& i) { i.Put16(i.resource + 92, 0); }},
};

TEST(CompanyName, IsReadFromBothKindsOfProgramsUnlessDamaged) {
    for (const PeKind kind : {PeKind::Pe32, PeKind::Pe32Plus}) {
        EXPECT_EQ(Read(MakePeImage(VersionResourceOf(u"Orlenta"), kind).bytes).name, "Orlenta");
        for (const auto& damages : {HeaderDamages, ResourceDamages}) {
            for (const auto& [what, apply] : damages) {
                PeImage image = MakePeImage(VersionResourceOf(u"Orlenta"), kind);
                apply(image);
                const Reading reading = Read(image.bytes);
                EXPECT_EQ(reading.name, std::nullopt) << what;
                EXPECT_LE(reading.bytes, 100'000U) << what;
            }
        }
    }
}

TEST(CompanyName, SurvivesEveryCutAndEveryDamagedByte) {
    const std::string whole = MakePeImage(VersionResourceOf(u"Orlenta"), PeKind::Pe32Plus).bytes;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        EXPECT_EQ(Read(whole.substr(0, i)).name, std::nullopt) << i << " bytes";
        for (const char value : {'\x00', '\x01', '\x05', '\x7F', '\x80', '\xFF'}) {
            std::string damaged = whole;
            damaged[i] = value;
            const Reading reading = Read(damaged);
            EXPECT_LE(reading.reads, 16U) << "byte " << i;
            EXPECT_LE(reading.bytes, 2'000'000U) << "byte " << i;
        }
    }
}

TEST(CompanyName, IsReadFromFiles) {
    const TemporaryFolder folder;
    folder.Write("a.exe", MakePeImage(VersionResourceOf(u"Orlenta")).bytes);
    folder.Write("cut.exe", "MZ");
    EXPECT_EQ(ReadCompanyName(folder.Native("a.exe")), MakerMarker);
    EXPECT_EQ(ReadCompanyName(folder.Native("cut.exe")), std::nullopt);
    EXPECT_EQ(ReadCompanyName(folder.Native("missing.exe")), std::nullopt);
    EXPECT_EQ(ReadCompanyName(folder.Native()), std::nullopt);
}

} // namespace
} // namespace tavmoor
