#include "services/pictures/child_work_posix.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tavmoor {

TEST(ChildWork, HandsOverWhatTheWorkReturns) {
    const ChildLimits limits{100'000'000, 1'000'000, std::chrono::seconds(5)};
    EXPECT_EQ(DoInChild([] { return std::string(); }, limits), "");
    const std::string large(1'000'000, 'x');
    EXPECT_EQ(DoInChild([&] { return large; }, limits), large);
    EXPECT_EQ(DoInChild([&] { return large + 'x'; }, limits), std::nullopt);
}

TEST(ChildWork, OutlivesWorkThatCrashesThrowsHangsOrEatsMemory) {
    const ChildLimits limits{50'000'000, 1000, std::chrono::seconds(1)};
    EXPECT_EQ(DoInChild([]() -> std::string { std::abort(); }, limits), std::nullopt);
    EXPECT_EQ(DoInChild([]() -> std::string { throw std::runtime_error("x"); }, limits),
              std::nullopt);
    EXPECT_EQ(DoInChild(
                  []() -> std::string {
                      std::this_thread::sleep_for(std::chrono::seconds(60));
                      return "late";
                  },
                  limits),
              std::nullopt);
    EXPECT_EQ(DoInChild(
                  [] {
                      const std::vector<char> much(500'000'000, 'x');
                      return std::string(much.data(), 10);
                  },
                  limits),
              std::nullopt);
}

TEST(ChildWork, HoldsNoFileOfTheProgram) {
    std::array<int, 2> program{};
    ASSERT_EQ(pipe(program.data()), 0);
    const auto openFiles = DoInChild(
        [&] {
            std::string open;
            for (int file = STDERR_FILENO + 1; file < program[1] + 10; ++file) {
                open += fcntl(file, F_GETFD) < 0 ? "" : std::to_string(file) + ' ';
            }
            return open;
        },
        {100'000'000, 1000, std::chrono::seconds(5)});
    EXPECT_EQ(openFiles, "3 ") << "its own way out only";
    EXPECT_EQ(fcntl(program[1], F_GETFD), 0);
    close(program[0]);
    close(program[1]);
}

TEST(ChildWork, EndsWithTheProgram) {
    prctl(PR_SET_CHILD_SUBREAPER, 1); // the work becomes this process's child
    const pid_t program = fork();
    if (program == 0) {
        const pid_t self = getpid();
        DoInChild(
            [self]() -> std::string {
                kill(self, SIGKILL);
                std::this_thread::sleep_for(std::chrono::seconds(60));
                return "late";
            },
            {100'000'000, 1000, std::chrono::seconds(60)});
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(program, &status, 0), program);
    EXPECT_TRUE(WIFSIGNALED(status));
    alarm(20);
    ASSERT_GT(waitpid(-1, &status, 0), 0);
    alarm(0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    prctl(PR_SET_CHILD_SUBREAPER, 0);
}

} // namespace tavmoor
