#include "Options.hpp"
#include "PhoneArea.hpp"
#include "Play/PlayScript.hpp"

#include <gtest/gtest.h>

namespace demo::testing {

namespace {

/// What is wrong with the arguments, or the appearance and the server that they ask for.
std::string told(const QString& arguments) {
    const auto options = parseOptions(QString("quillet-host " + arguments).trimmed().split(' '));
    if (!options) {
        return options.error().toStdString();
    }
    QStringList words = optionsFor(options->appearance);
    if (options->gatewayHost) {
        words << *options->gatewayHost << QString::number(options->gatewayPort);
    }
    return words.join(' ').toStdString();
}

} // namespace

TEST(Options, AreUnderstoodOrSayWhatIsWrong) {
    const QString authorities = "/etc/ssl/certs/ca-certificates.crt";
    const std::pair<QString, std::string> cases[] = {
        {"", "--theme light --text-scale 100"},
        {"--dark --text-scale 200", "--theme dark --text-scale 200"},
        {"--theme contrast --rtl", "--theme contrast --text-scale 100 --rtl"},
        {"--language xb", "--theme light --text-scale 100 --rtl"},
        {"--reduced-motion", "--theme light --text-scale 100 --reduced-motion"},
        {"--play a --out d --gateway [::1]:8443 --ca " + authorities,
         "--theme light --text-scale 100 ::1 8443"},
        {"--play a --out d --gateway gateway.test:1 --ca " + authorities,
         "--theme light --text-scale 100 gateway.test 1"},
        {"--play a.play", "--play needs --out DIR"},
        {"--tour d --play a", "--tour, --play, --controls and --gallery do not go together"},
        {"--gallery g --size 320x568", "--size does not go with --gallery"},
        {"--controls c --rtl", "--rtl does not go with --controls"},
        {"--play a --out d --gateway h:65536 --ca /", "--gateway is HOST:PORT, not h:65536"},
        {"--language fi", "--language is es, pt, en, xa or xb, not fi"},
        {"--size 4294967616x568", "--size is WxH, each from 320 to 1280, not 4294967616x568"},
        {"--theme contrast --dark", "--dark and --theme do not go together"},
        {"--text-scale 99", "--text-scale is a whole number of percent, from 100 to 200, not 99"},
        {"stray", "not understood: stray"},
    };
    for (const auto& [arguments, expected] : cases) {
        EXPECT_EQ(told(arguments), expected);
    }
}

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

TEST(PhoneArea, HasLiveBesideItWhereTheDesktopHasRoom) {
    const std::tuple<QSize, QSize, QSize> cases[] = {
        {{768, 1024}, {1920, 1080}, {1558, 1024}},
        {{320, 320}, {1366, 768}, {1110, 768}},
        {{846, 390}, {1366, 768}, {1366, 768}},
        {{847, 390}, {1366, 768}, {}},
        {{390, 844}, {}, {}},
    };
    for (const auto& [phone, desktop, window] : cases) {
        const WindowLayout layout = windowBesideLive(phone, usualLiveSize, desktop);
        EXPECT_EQ(layout.live, window.isValid());
        EXPECT_EQ(layout.window, window) << phone.width() << " on " << desktop.width();
    }
}

TEST(PhoneArea, SizesItsWindowAndFollowsIt) {
    QWindow window;
    PhoneArea area({390, 844}, true);
    area.arrange(window);
    EXPECT_EQ(window.size(), QSize(390, 844 + sizeStripHeight));
    EXPECT_EQ(area.choice(), 1);

    area.choose(3);
    EXPECT_EQ(window.size(), QSize(768, 1024 + sizeStripHeight));

    window.resize(500, 700);
    EXPECT_EQ(area.size(), QSize(500, 700 - sizeStripHeight));
    EXPECT_EQ(area.choice(), -1);
    EXPECT_EQ(window.minimumSize(), QSize(320, 320 + sizeStripHeight));
    EXPECT_EQ(window.maximumSize(), QSize(1280, 1280 + sizeStripHeight));
}

} // namespace demo::testing
