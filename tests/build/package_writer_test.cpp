#include "build/package_writer.h"

#include "core/runtime_error.h"
#include "support/recording_build_events.h"
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

class PackageWriterTest : public testing::Test {
protected:
    std::string Add(const std::string& name, std::size_t size) {
        list_.push_back(folder_.Write(name, Content(size)));
        return list_.back();
    }

    std::uint64_t Write() { return WritePackage(list_, folder_.Document(), events_); }
    [[nodiscard]] std::string Package() const { return folder_.Read("autorun.arn"); }

    int ErrorOfWrite() {
        try {
            Write();
        } catch (const RuntimeError& error) {
            errorText_ = error.what();
            return static_cast<int>(error.Number());
        }
        return 0;
    }

    /// Checks the head byte for byte, the noise apart, and takes it off the package.
    static std::string TakeHead(const std::string& package, const std::vector<std::string>& texts) {
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

    test::TemporaryFolder folder_;
    std::vector<std::string> list_;
    test::RecordingBuildEvents events_;
    std::string errorText_;
};

} // namespace

TEST_F(PackageWriterTest, HoldsNamesSizesAndBytesOfFilesOfEverySize) {
    for (const std::size_t size : {0, 1, 2, 65499, 65500, 65501, 131000, 131072}) {
        list_.clear();
        Add("a", size);
        Add("folder/b c.txt", 3);
        const std::uint64_t length = Write();
        EXPECT_EQ(Package().size(), length) << size;
        EXPECT_EQ(TakeHead(Package(), {"a", std::to_string(size), "b c.txt", "3"}),
                  Content(size) + Content(3))
            << size;
    }
}

TEST_F(PackageWriterTest, TheFirstTwoBytesReplaceTheHeadsLastLineEnd) {
    Add("a", 0);
    Add("b", 0);
    Write();
    EXPECT_EQ(TakeHead(Package(), {"a", "0", "b", "0"}), "\r\n");
    folder_.Write("b", "x");
    Write();
    EXPECT_EQ(TakeHead(Package(), {"a", "0", "b", "1"}), "x\n");
    folder_.Write("b", "xy");
    Write();
    EXPECT_EQ(TakeHead(Package(), {"a", "0", "b", "2"}), "xy");
}

TEST_F(PackageWriterTest, TwoPackagesDifferOnlyInTheNoise) {
    const std::string name = "a name that is long enough to tell the noise apart.txt";
    Add(name, 100);
    Write();
    const std::string first = Package();
    Write();
    const std::string second = Package();
    EXPECT_NE(first, second);
    EXPECT_EQ(TakeHead(first, {name, "100"}), TakeHead(second, {name, "100"}));
}

TEST_F(PackageWriterTest, EventsRunAfterEachBlock) {
    const std::string a = Add("a", 131000);
    const std::string b = Add("b", 65501);
    Write();
    EXPECT_EQ(events_.log,
              (std::vector<std::string>{"pack " + a, "packed 65500/196501", "events",
                                        "packed 131000/196501", "events", "packed 131000/196501",
                                        "events", "pack " + b, "packed 196500/196501", "events",
                                        "packed 196501/196501", "events"}));
}

TEST_F(PackageWriterTest, AFileThatChangesMeanwhileIsAnError) {
    const std::string a = Add("a", 100);
    const std::string b = Add("b", 70000);
    struct Case {
        std::string entry;
        std::function<void()> change;
        int error;
    };
    const auto resize = [this](std::size_t size) {
        return [this, size] { fs::resize_file(folder_.Native("b"), size); };
    };
    const Case cases[] = {
        {"pack " + a, resize(69999), 57},
        {"packed 65600/70100", resize(65500), 57},
        {"pack " + a, resize(70001), 57},
        {"pack " + a, [this] { fs::remove(folder_.Native("b")); }, 53},
    };
    for (const Case& wanted : cases) {
        folder_.Write("b", Content(70000));
        events_.onEntry = [&wanted](const std::string& entry) {
            if (entry == wanted.entry) {
                wanted.change();
            }
        };
        EXPECT_EQ(ErrorOfWrite(), wanted.error);
        EXPECT_TRUE(errorText_.ends_with(b)) << errorText_;
    }
}

TEST_F(PackageWriterTest, RefusesWhatNoPackageCanHold) {
    for (int i = 0; i < 20; ++i) {
        Add(std::to_string(i), 1);
    }
    EXPECT_EQ(ErrorOfWrite(), 0);
    const std::string last = Add("one too many", 1);
    EXPECT_EQ(ErrorOfWrite(), 9);
    EXPECT_TRUE(errorText_.ends_with(last)) << errorText_;
    list_ = {folder_.Document() + "\\caf\xE9"};
    std::ofstream(NativePath(list_.front())) << "x";
    EXPECT_EQ(ErrorOfWrite(), 5);
    list_ = {folder_.Document("gone")};
    EXPECT_EQ(ErrorOfWrite(), 53);
}

TEST_F(PackageWriterTest, ATargetThatCannotBeWrittenIsAnError) {
    Add("a", 100);
    fs::create_directory(folder_.Native("autorun.arn"));
    EXPECT_NE(ErrorOfWrite(), 0);
    EXPECT_TRUE(errorText_.ends_with("autorun.arn")) << errorText_;
#ifdef __linux__
    fs::remove(folder_.Native("autorun.arn"));
    fs::create_symlink("/dev/full", folder_.Native("autorun.arn"));
    EXPECT_EQ(ErrorOfWrite(), 61) << "found when the rest is written at the end";
    folder_.Write("a", Content(500000));
    EXPECT_EQ(ErrorOfWrite(), 61) << "found on the way";
#endif
}

} // namespace tavmoor
