#include "Quillet/Platform/MainQueue.hpp"

#include <gmock/gmock.h>

#include <vector>

namespace quillet {

using ::testing::ElementsAre;

TEST(MainQueue, RunsBlocksInOrderAndLeavesLaterOnesForTheNextDrain) {
    platform::MainQueue queue;
    std::vector<int> ran;
    queue.async([&] {
        // An event loop of the block's own runs those that wait already.
        EXPECT_EQ(queue.drain(), 2u);
        queue.async([&] { ran.push_back(4); });
        ran.push_back(3);
    });
    queue.async([&] { ran.push_back(1); });
    queue.async([&] { ran.push_back(2); });
    queue.drain();
    EXPECT_THAT(ran, ElementsAre(1, 2, 3));
    EXPECT_EQ(queue.drain(), 1u);
    EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(queue.drain(), 0u);
}

TEST(MainQueue, WakesTheEventLoopForEveryBlock) {
    platform::MainQueue queue;
    int wakeUps = 0;
    queue.async([] {});
    queue.setWakeUp([&] { ++wakeUps; });
    EXPECT_EQ(wakeUps, 1);
    queue.async([&] { queue.async([] {}); });
    EXPECT_EQ(wakeUps, 2);
    queue.drain();
    EXPECT_EQ(wakeUps, 3);
    queue.setWakeUp(nullptr);
    queue.async([] {});
    EXPECT_EQ(wakeUps, 3);
}

TEST(MainQueue, DropsABlockThatItCannotWakeAnybodyFor) {
    platform::MainQueue queue;
    bool ran = false;
    queue.setWakeUp([] { throw std::bad_alloc(); });
    EXPECT_THROW(queue.async([&] { ran = true; }), std::bad_alloc);
    queue.setWakeUp(nullptr);
    EXPECT_EQ(queue.drain(), 0u);
    EXPECT_FALSE(ran);
}

} // namespace quillet
