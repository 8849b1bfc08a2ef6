#include "Quillet/Platform/MainQueue.hpp"

#include <gmock/gmock.h>

#include <vector>

namespace quillet {

using ::testing::ElementsAre;

TEST(MainQueue, RunsBlocksInOrderAndLeavesLaterOnesForTheNextDrain) {
    platform::MainQueue queue;
    std::vector<int> ran;
    const auto add = [&](int number) { queue.async([&ran, number] { ran.push_back(number); }); };
    queue.async([&] { add(2); });
    add(1);
    EXPECT_EQ(queue.drain(), 2u);
    EXPECT_THAT(ran, ElementsAre(1));
    EXPECT_EQ(queue.drain(), 1u);
    // A block's own event loop runs those that wait.
    queue.async([&] {
        queue.drain();
        ran.push_back(5);
    });
    add(3);
    add(4);
    queue.drain();
    EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4, 5));
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
