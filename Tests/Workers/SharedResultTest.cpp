#include "Workers/SharedResult.hpp"

#include <gtest/gtest.h>

#include <future>

namespace quillet::testing {

namespace {

/// Tells the thread that frees it.
struct Spy {
    std::size_t size = 0;
    std::unique_ptr<std::promise<std::thread::id>> freed = std::make_unique<std::promise<std::thread::id>>();

    Spy() = default;
    Spy(Spy&&) = default;
    ~Spy() {
        if (freed) {
            freed->set_value(std::this_thread::get_id());
        }
    }
};

std::size_t records(const Spy& spy) {
    return spy.size;
}

bool isFreedElsewhere(std::size_t size) {
    Spy spy;
    spy.size = size;
    auto freed = spy.freed->get_future();
    sharedResult(std::move(spy)).reset();
    return freed.get() != std::this_thread::get_id();
}

} // namespace

TEST(SharedResult, IsFreedOnAThreadOfItsOwnIfItIsLarge) {
    EXPECT_FALSE(isFreedElsewhere(0));
    EXPECT_FALSE(isFreedElsewhere(999));
    EXPECT_TRUE(isFreedElsewhere(1000));
}

} // namespace quillet::testing
