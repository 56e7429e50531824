#include "package/package_writer.h"

#include "core/files/runtime_error.h"
#include "support/recording_package_events.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

/// Bytes that differ from block to block, so that one that is lost or doubled shows.
std::string Content(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(i * 7 + i / 251);
    }
    return bytes;
}

/// Checks the head byte for byte, the noise apart, and takes it off the package.
std::string TakeHead(const std::string& package, const std::vector<std::string>& texts) {
    const std::string end = "\r\n\r\n\r\n";
    const std::string start = "TAVMOOR PACKAGE" + end + "[Pocetak]" + end;
    EXPECT_TRUE(package.starts_with(start));
    std::size_t at = std::min(start.size(), package.size());
    for (const std::string& text : texts) {
        for (const char character : text) {
            const std::string three = package.substr(at, 3);
            EXPECT_EQ(three.front(), static_cast<char>(character + 128)) << text;
            EXPECT_TRUE(std::all_of(three.begin(), three.end(), [](char c) { return c < 0; }));
            at += 3;
        }
        EXPECT_EQ(package.substr(at, end.size()), end) << text;
        at += end.size();
    }
    const std::string last = "[Kraj]\r\n\r\n";
    EXPECT_EQ(package.substr(at, last.size()), last);
    return package.substr(std::min(at + last.size(), package.size()));
}

class PackageWriterTest : public testing::Test {
protected:
    /// Packs files "a" and "b c" of these sizes.
    std::string Write(std::size_t first, std::size_t second) {
        list_ = {folder_.Write("a", Content(first)), folder_.Write("x/b c", Content(second))};
        const BuiltPackage built = WritePackage(list_, folder_.Document(), events_);
        std::string package = folder_.Read("autorun.arn");
        EXPECT_EQ(package.size(), built.length);
        EXPECT_TRUE(package.starts_with(built.head) && built.head.ends_with("[Kraj]\r\n\r\n"));
        return package;
    }

    int ErrorOfWrite() {
        try {
            WritePackage(list_, folder_.Document() + "\\", events_);
        } catch (const RuntimeError& error) {
            return static_cast<int>(error.Number());
        }
        return 0;
    }

    test::TemporaryFolder folder_;
    std::vector<std::string> list_;
    test::RecordingPackageEvents<> events_;
};

} // namespace

TEST_F(PackageWriterTest, HoldsNamesSizesAndBytesOfFilesOfEverySize) {
    for (const std::size_t size : {0, 1, 2, 65499, 65500, 65501, 131000, 131072}) {
        EXPECT_EQ(TakeHead(Write(size, 3), {"a", std::to_string(size), "b c", "3"}),
                  Content(size) + Content(3))
            << size;
    }
    const std::string noise = Write(100, 3);
    EXPECT_NE(noise, Write(100, 3)) << "in two packages alike, one in 128 to the 26th";
}

TEST_F(PackageWriterTest, TheFirstTwoBytesReplaceTheHeadsLastLineEnd) {
    EXPECT_EQ(TakeHead(Write(0, 0), {"a", "0", "b c", "0"}), "\r\n");
    EXPECT_EQ(TakeHead(Write(0, 1), {"a", "0", "b c", "1"}), Content(1) + "\n");
    EXPECT_EQ(TakeHead(Write(1, 1), {"a", "1", "b c", "1"}), Content(1) + Content(1));
}

TEST_F(PackageWriterTest, EventsRunAfterEachBlock) {
    Write(131000, 65501);
    EXPECT_EQ(events_.log, "pack " + list_[0] +
                               "\npacked 65500/196501\nevents\npacked 131000/196501\nevents\n"
                               "packed 131000/196501\nevents\npack " +
                               list_[1] +
                               "\npacked 196500/196501\nevents\npacked 196501/196501\nevents\n");
}

TEST_F(PackageWriterTest, AFileThatChangesMeanwhileIsAnError) {
    Write(100, 70000);
    struct Case {
        std::string line;
        std::function<void()> change;
        int error;
    };
    const fs::path file = folder_.Native("x/b c");
    const Case cases[] = {
        {"pack " + list_[0], [&] { fs::resize_file(file, 69999); }, 57},
        {"packed 65600/70100", [&] { fs::resize_file(file, 65500); }, 57},
        {"pack " + list_[0], [&] { fs::resize_file(file, 70001); }, 57},
        {"pack " + list_[0], [&] { fs::remove(file); }, 53},
    };
    for (const Case& wanted : cases) {
        folder_.Write("x/b c", Content(70000));
        events_.onLine = [&wanted](std::string line) {
            if (line == wanted.line) {
                wanted.change();
            }
            return line;
        };
        EXPECT_EQ(ErrorOfWrite(), wanted.error);
    }
}

TEST_F(PackageWriterTest, ATargetThatCannotBeWrittenIsAnError) {
    list_ = {folder_.Write("a", "small")};
    fs::create_directory(folder_.Native("autorun.arn"));
    EXPECT_NE(ErrorOfWrite(), 0);
#ifdef __linux__
    fs::remove(folder_.Native("autorun.arn"));
    fs::create_symlink("/dev/full", folder_.Native("autorun.arn"));
    EXPECT_EQ(ErrorOfWrite(), 61) << "found when the rest is written at the end";
    folder_.Write("a", Content(500000));
    EXPECT_EQ(ErrorOfWrite(), 61) << "found on the way";
#endif
}

} // namespace tavmoor
