#include <gtest/gtest.h>
#include <simdjson.h>

#include <cstdio>
#include <cstdlib>

namespace quillet::tests {

namespace {

const char* forced() {
    return std::getenv("SIMDJSON_FORCE_IMPLEMENTATION");
}

/// simdjson uses the forced kernel even if the processor lacks its instructions, and the program would crash.
class ForcedKernel : public testing::Environment {
public:
    void SetUp() override {
        const auto* const kernel = forced() ? simdjson::get_available_implementations()[forced()] : nullptr;
        if (kernel && !kernel->supported_by_runtime_system()) {
            std::printf("This processor cannot run simdjson's kernel %s.\n", forced());
            std::fflush(stdout);
            constexpr int skipped = 77;
            std::_Exit(skipped);
        }
    }
};

[[maybe_unused]] const auto* const forcedKernel = testing::AddGlobalTestEnvironment(new ForcedKernel);

} // namespace

TEST(KernelTest, IsTheOneAskedForOrElseTheBest) {
    const auto* const best = simdjson::get_available_implementations().detect_best_supported();
    EXPECT_EQ(simdjson::get_active_implementation()->name(), forced() ? forced() : best->name());
}

} // namespace quillet::tests
