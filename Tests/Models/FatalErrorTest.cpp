#include "Quillet/FatalErrorWrapper.hpp"
#include "Quillet/Orders.hpp"

#include <gmock/gmock.h>

namespace quillet::tests {

TEST(CycleTest, ShowsTheLastTwoDigitsOfTheCode) {
    EXPECT_EQ(Cycle::onlyCode({202405, {}, {}}), "05");
    EXPECT_EQ(Cycle::onlyCode({17, {}, {}}), "17");
    EXPECT_EQ(Cycle::onlyCode({18446744073709551615U, {}, {}}), "15");
}

TEST(CycleTest, CallsTheFatalErrorHookForACodeOfOneDigitAndSurvivesAHookThatReturns) {
    std::string seen;
    const auto original = std::exchange(FatalErrorWrapper::fatalErrorClosure,
                                        [&](std::string_view, const char* file, unsigned line) {
                                            seen = file + (line > 0 ? std::string(":") : "");
                                        });
    EXPECT_EQ(Cycle::onlyCode({5, {}, {}}), "5");
    FatalErrorWrapper::fatalErrorClosure = original;
    EXPECT_EQ(seen, "Cycle.cpp:");
}

TEST(FatalErrorWrapperDeathTest, StopsTheProgramWithMessageFileAndLineUntilReplaced) {
    EXPECT_DEATH(FatalErrorWrapper::fatalErrorClosure("no way", "Here.cpp", 7),
                 "Fatal error: no way: file Here.cpp, line 7");
}

} // namespace quillet::tests
