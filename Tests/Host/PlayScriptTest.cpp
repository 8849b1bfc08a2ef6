#include "Play/PlayScript.hpp"

#include <gtest/gtest.h>

namespace demo::testing {

TEST(PlayScript, ReadsTheWordsOfAStep) {
    using namespace steps;
    using namespace std::chrono_literals;
    using enum quillet::Environment;
    const std::pair<QString, Step> lines[] = {
        {"open cart=a=b consultant=18446744073709551615 country=CL",
         Open{{{"a=b", 18446744073709551615u, "CL"}, "sample-access-token", "sample-idp", dev}}},
        {R"(open country=CL cart="a b" consultant=1 token="" provider=p environment=prd)",
         Open{{{"a b", 1, "CL"}, "", "p", prd}}},
        {"tap by=key by=key", Tap{"by=key", Device::key}},
        {R"(tap "say \"yes\" \\ no" by=touch)", Tap{R"(say "yes" \ no)", Device::touch}},
        {R"(  expect "# 1")", Expect{"# 1", 10s}},
        {"expect \"\" within=0.5\r", Expect{"", 500ms}},
        {"insets 44 0 34  200", Insets{{200, 44, 0, 34}}},
    };
    for (const auto& [line, expected] : lines) {
        SCOPED_TRACE(line.toStdString());
        const auto play = parsePlay("p", "# a comment\n\n" + line + "\n");
        ASSERT_TRUE(play) << play.error().toStdString();
        ASSERT_EQ(play->lines.size(), 1u);
        EXPECT_TRUE(play->lines[0].step == expected);
        EXPECT_EQ(play->lines[0].text, line.trimmed());
    }
    EXPECT_TRUE(parsePlay("p", "close\nlanguage pt")->hasLanguage);
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
