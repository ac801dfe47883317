#include "platform/Chance.h"
#include "platform/Locations.h"
#include "platform/ThreadPool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <latch>
#include <utility>
#include <vector>

namespace tintra {
namespace {

TEST(Uuids, TextGoesThereAndBackAndNothingElseIsTaken) {
    // The example of version 4 in RFC 9562, appendix A.3.
    constexpr std::string_view kText = "919108F7-52D1-4320-9BAC-F847DB4148A8";
    const auto id = Uuid::fromText("919108f7-52d1-4320-9bac-f847db4148A8");
    ASSERT_TRUE(id);
    EXPECT_EQ(id->bytes[0], 0x91);
    EXPECT_EQ(id->text(), kText);
    for (std::size_t i = 0; i < kText.size(); ++i) {
        std::string wrong(kText);
        wrong[i] = wrong[i] == '-' ? '0' : 'g';
        EXPECT_FALSE(Uuid::fromText(wrong)) << wrong;
    }
    EXPECT_FALSE(Uuid::fromText(kText.substr(1)));
}

TEST(Chances, IdentifiersAreOfVersionFourAndNumbersFallEvenly) {
    struct Given final : Chance {
        Given(std::uint64_t once, std::uint64_t then) : next(once), after(then) {}
        std::uint64_t bits() override { return std::exchange(next, after); }
        std::uint64_t next, after;
    };
    EXPECT_EQ(Given(0, 0).uuid().text(), "00000000-0000-4000-8000-000000000000");
    EXPECT_EQ(Given(~0ULL, ~0ULL).uuid().text(), "FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
    EXPECT_EQ(Given(0, 5).below(3), 2U); // 2^64 mod 3 is 1: one value has to be drawn again
    EXPECT_EQ(Given(~0ULL, 1).below(3), 0U);
    EXPECT_NE(SystemChance().uuid(), SystemChance().uuid());
}

TEST(Locations, FollowTheVariablesUnlessTheyAreRelative) {
    ::setenv("HOME", "/home/x", 1);
    ::setenv("XDG_STATE_HOME", "/else", 1);
    ::setenv("XDG_CONFIG_HOME", "relative", 1);
    EXPECT_EQ(stateFolder(), "/else/tintra");
    EXPECT_EQ(configFolder(), "/home/x/.config/tintra");
    ::unsetenv("HOME");
    EXPECT_EQ(configFolder(), "");
}

TEST(ThreadPools, WorkRunsSideBySideInOrderAndIsFinishedAtTheEnd) {
    std::atomic<int> begun = 0, finished = 0;
    {
        std::latch both(2);
        ThreadPool pool(2);
        for (int i = 0; i < 2; ++i)
            pool.run([&] { both.arrive_and_wait(); }); // passes only with two threads at once
        both.wait();
        for (int i = 0; i < 10000; ++i)
            pool.run([&] { ++begun, ++finished; });
    }
    EXPECT_EQ(begun, finished);
    std::vector<int> order;
    std::latch done(100);
    ThreadPool one(0);
    for (int i = 0; i < 100; ++i)
        one.run([&, i] { order.push_back(i), done.count_down(); });
    done.wait();
    EXPECT_TRUE(std::ranges::is_sorted(order));
}

} // namespace
} // namespace tintra
