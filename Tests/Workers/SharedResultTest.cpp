#include "Workers/SharedResult.hpp"

#include <gtest/gtest.h>

#include <future>

namespace quillet::testing {

namespace {

/// A result that tells when it is freed.
struct Sized {
    std::size_t size = 0;
    std::shared_ptr<void> last;
};

std::size_t records(const Sized& result) {
    return result.size;
}

} // namespace

TEST(SharedResult, IsFreedOnAThreadOfItsOwnIfItIsLarge) {
    for (const std::size_t size : {0, 999, 1000}) {
        const auto freed = std::make_shared<std::promise<std::thread::id>>();
        const auto tell = [freed](void*) { freed->set_value(std::this_thread::get_id()); };
        sharedResult(Sized{size, {nullptr, tell}}).reset();
        EXPECT_EQ(freed->get_future().get() == std::this_thread::get_id(), size < 1000) << size;
    }
}

} // namespace quillet::testing
