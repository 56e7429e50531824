#include "services/child_work_posix.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

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

} // namespace tavmoor
