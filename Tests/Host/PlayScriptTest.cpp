#include "Play/PlayScript.hpp"

#include <gtest/gtest.h>

namespace demo::testing {

namespace {} // namespace

TEST(PlayScript, ReadsEachKindOfStep) {
    using namespace steps;
    using namespace std::chrono_literals;
    using enum Device;
    const auto open = [](const char* cart, std::uint64_t consultant, const char* country, const char* token,
                         const char* provider, quillet::Environment environment) {
        return Open{{{cart, consultant, country}, token, provider, environment}};
    };
    const std::pair<QString, Step> lines[] = {
        {"open cart=a=b consultant=18446744073709551615 country=CL",
         open("a=b", 18446744073709551615u, "CL", "sample-access-token", "sample-idp",
              quillet::Environment::dev)},
        {R"(open country=CL cart="a b" consultant=1 token="" provider=p environment=prd)",
         open("a b", 1, "CL", "", "p", quillet::Environment::prd)},
        {"handmade ERROR_CART_ALREADY_SUBMITTED", Handmade{"ERROR_CART_ALREADY_SUBMITTED"}},
        {"language xb", Language{"xb"}},
        {"close", Close{}},
        {R"(tap "Ver Pedidos")", Tap{"Ver Pedidos"}},
        {R"(tap "Ver Pedidos" by=touch)", Tap{"Ver Pedidos", touch}},
        {"tap by=key by=key", Tap{"by=key", key}},
        {R"(tap "say \"yes\" \\ no")", Tap{R"(say "yes" \ no)"}},
        {R"(expect "# 1")", Expect{"# 1", 10s}},
        {R"(expect "" within=0.5)", Expect{"", 500ms}},
        {"absent x", Absent{"x", 10s}},
        {R"(title "" within=1)", Title{"", 1s}},
        {"background by=touch", Background{touch}},
        {"  close-icon\t", CloseIcon{}},
        {"close-icon by=key", CloseIcon{key}},
        {"scroll end", Scroll{true}},
        {"back\r", Back{}},
        {"shot 01-a.b_c", Shot{"01-a.b_c"}},
        {"network off", Network{false}},
        {"size 1280x568", Size{{1280, 568}}},
        {"theme contrast", Theme{kel::KelTheme::contrast}},
        {"text-scale 200", TextScale{200}},
        {"motion reduced", Motion{true}},
        {"direction rtl", Direction{Qt::RightToLeft}},
        {"insets 44 0 34  200", Insets{{200, 44, 0, 34}}},
        {"press Backtab", Press{Qt::Key_Backtab}},
        {"focused x within=0", Focused{"x", 0s}},
    };
    for (const auto& [line, expected] : lines) {
        SCOPED_TRACE(line.toStdString());
        const auto play = parsePlay("p", "# a comment\n\n" + line + "\n");
        ASSERT_TRUE(play) << play.error().toStdString();
        ASSERT_EQ(play->lines.size(), 1u);
        EXPECT_TRUE(play->lines[0].step == expected);
        EXPECT_EQ(play->lines[0].text, line.trimmed());
    }
}

TEST(PlayScript, NamesTheLineAndWhatIsWrongWithIt) {
    const std::pair<QString, QString> lines[] = {
        {"dance", "unknown step \"dance\""},
        {R"(tap "Ver Pedidos)", "a quotation mark is left open"},
        {"tap Ver Pedidos", "tap takes one text, and by=touch or by=key if wanted"},
        {"tap x by=key by=touch", "tap takes one text, and by=touch or by=key if wanted"},
        {"expect a b", "this step takes a text, and within=SECONDS if wanted"},
        {"expect a within=nan", "within takes seconds, from 0 to 3600"},
        {"title a b", "this step takes a text, and within=SECONDS if wanted"},
        {"back now", "this step takes nothing"},
        {"background by=key", "background takes nothing but by=touch"},
        {"close-icon now", "close-icon takes nothing but by=touch or by=key"},
        {"scroll up", "scroll takes end or start"},
        {"shot ../a", "shot takes a name of letters, digits, points and dashes"},
        {"network maybe", "network takes on or off"},
        {"size 1281x800", "size takes WxH, each from 320 to 1280"},
        {"size 320 568", "size takes WxH, each from 320 to 1280"},
        {"theme Dark", "theme takes light, dark or contrast"},
        {"text-scale 150%", "text-scale takes a whole number of percent, from 100 to 200"},
        {"motion slow", "motion takes reduced or full"},
        {"direction up", "direction takes ltr or rtl"},
        {"insets 0 0 0 201", "insets takes top, right, bottom and left, each from 0 to 200"},
        {"press Tab Tab", "press takes Tab, Backtab, Enter, Return, Space, Escape, Up, Down, PageUp, "
                          "PageDown, Home or End"},
        {"handmade 422", "handmade takes ERROR_CART_OTHER_CONSULTANT or ERROR_CART_ALREADY_SUBMITTED"},
        {"language fi", "language takes es, pt, en, xa or xb"},
        {"open cart=a cart=b consultant=1 country=CL",
         "open takes cart=UUID consultant=N country=CC, and token=, provider= and environment= if wanted"},
        {"open cart=a consultant=-1 country=CL", "not a consultant's number: -1"},
        {"open cart=a consultant=1 country=CL environment=test", "environment is dev, hml or prd, not test"},
    };
    for (const auto& [line, complaint] : lines) {
        SCOPED_TRACE(line.toStdString());
        const auto play = parsePlay("p", "close\n" + line);
        ASSERT_FALSE(play);
        EXPECT_EQ(play.error(), "p, line 2: " + complaint) << play.error().toStdString();
    }
    EXPECT_TRUE(parsePlay("p", "close\nlanguage pt")->hasLanguage);
    EXPECT_FALSE(parsePlay("p", "close\n# language pt")->hasLanguage);
    EXPECT_EQ(parsePlay("p", "# nothing but a comment\n").error(), "p has no steps");
}

} // namespace demo::testing
