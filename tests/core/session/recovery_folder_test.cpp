#include "core/session/recovery_folder.h"

#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
#include "core/files/document_path.h"
#include "core/files/profile_file.h"
#include "core/session/run_marker.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <memory>
#include <regex>

// The user's data folder can be put elsewhere by the environment only off Windows.
#ifndef _WIN32

#include <sys/wait.h>
#include <unistd.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

class RecoveryFolderTest : public testing::Test {
protected:
    RecoveryFolderTest() { setenv("XDG_DATA_HOME", folder_.Native().c_str(), 1); }
    ~RecoveryFolderTest() override { unsetenv("XDG_DATA_HOME"); }

    std::string& Title() { return document_->OsnovniPodaci.Tasknaslov; }
    static std::size_t Copies() {
        std::error_code none;
        return static_cast<std::size_t>(std::distance(
            fs::directory_iterator(RecoveryFolder(), none), fs::directory_iterator()));
    }
    static std::string TitleIn(const std::string& path) {
        return ReadProfileValue(path, "Osnovni podaci", "Tasknaslov");
    }

    test::TemporaryFolder folder_;
    std::unique_ptr<ProjectDocument> document_ =
        std::make_unique<ProjectDocument>(NewProjectDocument());
};

} // namespace

TEST_F(RecoveryFolderTest, TheNewestTwentyStayUnderDateTimeAndName) {
    document_->Working.ProjectPath = folder_.Document("My disc.tavp");
    std::string last;
    for (int i = 1; i <= 23; ++i) {
        Title() = std::to_string(i);
        last = WriteRecoveryCopy(*document_);
        EXPECT_TRUE(std::regex_search(
            last, std::regex(R"(\\recovery\\\d{4}-\d\d-\d\d \d\d-\d\d-\d\d My disc\.tavp$)")))
            << last;
    }
    EXPECT_EQ(Copies(), 20U);
    std::string titles;
    for (const auto& entry : fs::directory_iterator(RecoveryFolder())) {
        titles += " " + TitleIn(DocumentPath(entry.path())) + " ";
    }
    EXPECT_EQ(titles.find(" 3 "), std::string::npos) << "the oldest go";
    EXPECT_NE(titles.find(" 4 "), std::string::npos);
    folder_.Write("tavmoor/recovery/the user's own.tavp", "");
    EXPECT_EQ(NewestRecoveryCopy(fs::file_time_type::min()), last);
    EXPECT_TRUE(IsInRecoveryFolder(last));
    EXPECT_FALSE(IsInRecoveryFolder(folder_.Document("My disc.tavp")));
    EXPECT_EQ(NewestRecoveryCopy(fs::last_write_time(NativePath(last)) + std::chrono::hours(1)),
              std::nullopt);
}

TEST_F(RecoveryFolderTest, ButtonsThatNoCanvasStoredAreNotLost) {
    auto& buttons = document_->NapredniSabloni.Dugme;
    buttons[2].DugmeX = 600;
    const std::string asRead = WriteRecoveryCopy(*document_);
    EXPECT_EQ(ReadProfileValue(asRead, "Napredni sabloni", "DugmeX(2)"), "600");
    EXPECT_EQ(ReadProfileValue(asRead, "Napredni sabloni", "DugmeX(1)"), "");
    EXPECT_FALSE(buttons[2].DugmeExists);
    buttons[0].DugmeExists = true; // stored: what is not live was deleted
    EXPECT_EQ(ReadProfileValue(WriteRecoveryCopy(*document_), "Napredni sabloni", "DugmeX(2)"), "");
}

TEST_F(RecoveryFolderTest, AProjectHasOneCopyWhileItDiffersFromItsFile) {
    RecoveryCopy recovery(*document_);
    EXPECT_EQ(recovery.Keep(*document_), "");
    Title() = "one";
    const std::string first = recovery.Keep(*document_);
    EXPECT_EQ(recovery.Keep(*document_), first) << "nothing changed since";
    Title() = "two";
    EXPECT_EQ(TitleIn(recovery.Keep(*document_)), "two");
    EXPECT_EQ(Copies(), 1U);
    recovery.Rest(*document_);
    EXPECT_EQ(Copies(), 0U) << "a save leaves nothing to offer";
    Title() = "three";
    recovery.Keep(*document_);
    Title() = "two";
    EXPECT_EQ(recovery.Keep(*document_), "") << "as saved again";
    EXPECT_EQ(Copies(), 0U);

    Title() = "four";
    const std::string left = recovery.KeepAndLeave(*document_);
    *document_ = NewProjectDocument();
    EXPECT_EQ(recovery.Keep(*document_), "") << "in between there is no project";
    recovery.Rest(*document_);
    EXPECT_EQ(TitleIn(left), "four") << "the dropped project's copy stays";

    fs::last_write_time(NativePath(left), fs::file_time_type::min() + std::chrono::hours(24));
    const auto before = fs::file_time_type::clock::now();
    recovery.Adopt(left, *document_);
    EXPECT_EQ(NewestRecoveryCopy(before), left) << "a second crash offers it again";
    EXPECT_EQ(recovery.KeepAndLeave(*document_), left) << "it was never saved";

    recovery.Adopt(left, *document_);
    document_->Working.ProjectPath = left;
    recovery.Rest(*document_);
    EXPECT_TRUE(fs::exists(NativePath(left))) << "the user saved over it";
}

TEST_F(RecoveryFolderTest, TheMarkerTellsACrashFromAnEndAndFromAnotherRun) {
    EXPECT_FALSE(RunMarker().CrashedSince());
    EXPECT_FALSE(RunMarker().CrashedSince()) << "that was a regular end";
    const auto before = fs::file_time_type::clock::now() - std::chrono::seconds(5);
    const pid_t child = fork();
    if (child == 0) {
        const RunMarker marker;
        _exit(0); // no destructor runs
    }
    waitpid(child, nullptr, 0);
    {
        const RunMarker marker;
        ASSERT_TRUE(marker.CrashedSince());
        EXPECT_GT(*marker.CrashedSince(), before);
        EXPECT_FALSE(RunMarker().CrashedSince()) << "the first one still runs";
    }
    EXPECT_FALSE(RunMarker().CrashedSince());
    EXPECT_TRUE(fs::is_empty(folder_.Native("tavmoor")));
}

} // namespace tavmoor

#endif
