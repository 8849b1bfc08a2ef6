#include "Play/PlayScript.hpp"

#include <gtest/gtest.h>

namespace demo::testing {

// The plays themselves show that steps are understood, and the fuzzer that a step's own line reads as that
// step.
TEST(PlayScript, ReadsWhatThePlaysDoNotNeed) {
    using namespace steps;
    using namespace std::chrono_literals;
    const std::pair<QString, Step> lines[] = {
        {R"(open country=CL cart="a b" consultant=18446744073709551615 token="" provider=p environment=prd)",
         Open{{{"a b", 18446744073709551615u, "CL"}, "", "p", quillet::Environment::prd}}},
        {"tap by=key by=key", Tap{"by=key", Device::key}},
        {R"(  expect "# say \"yes\" \\ no" within=0.5)", Expect{R"(# say "yes" \ no)", 500ms}},
    };
    for (const auto& [line, expected] : lines) {
        const auto play = parsePlay("p", "# a comment\n\n" + line + "\r\n");
        ASSERT_TRUE(play) << play.error().toStdString();
        EXPECT_TRUE(play->lines.at(0).step == expected) << line.toStdString();
    }
    EXPECT_FALSE(parsePlay("p", "close\n# language pt")->hasLanguage);
}

TEST(PlayScript, NamesTheLineAndWhatIsWrongWithIt) {
    const std::pair<QString, std::string> lines[] = {
        {"dance", "unknown step \"dance\""},
        {R"(tap "Ver Pedidos)", "a quotation mark is left open"},
        {"expect a within=nan", "within takes seconds, from 0 to 3600"},
        {"shot ../a", "shot takes a name of letters, digits, points and dashes"},
        {"insets 0 0 0 201", "insets takes top, right, bottom and left, each from 0 to 200"},
        {"open cart=a cart=b consultant=1 country=CL",
         "open takes cart=UUID consultant=N country=CC, and token=, provider= and environment= if wanted"},
    };
    for (const auto& [line, complaint] : lines) {
        const auto play = parsePlay("p", "close\n" + line);
        ASSERT_FALSE(play) << complaint;
        EXPECT_EQ(play.error().toStdString(), "p, line 2: " + complaint);
    }
    EXPECT_EQ(parsePlay("p", "# nothing but a comment\n").error(), "p has no steps");
}

} // namespace demo::testing
