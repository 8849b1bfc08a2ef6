#include "Options.hpp"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace demo::testing {

namespace {

auto parsed(const QString& arguments) {
    return parseOptions(QString("quillet-host " + arguments).trimmed().split(' '));
}

} // namespace

TEST(Options, SayWhatIsWrong) {
    const std::pair<QString, std::string> cases[] = {
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
    for (const auto& [arguments, complaint] : cases) {
        const auto options = parsed(arguments);
        EXPECT_EQ((options ? QString() : options.error()).toStdString(), complaint);
    }
}

TEST(Options, TakeAServerByNameOrAddress) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("-----BEGIN CERTIFICATE-----\n");
    file.flush();
    const QString ca = file.fileName();
    for (const auto& [typed, host] :
         {std::pair("[::1]:8443", "::1"), {"gateway.test:8443", "gateway.test"}}) {
        const auto options = parsed(QStringLiteral("--play a --out d --gateway %1 --ca %2").arg(typed, ca));
        ASSERT_TRUE(options) << options.error().toStdString();
        EXPECT_EQ(options->gatewayHost, host);
        EXPECT_EQ(options->gatewayPort, 8443);
        EXPECT_EQ(options->caFile, ca);
    }
    EXPECT_EQ(parsed("")->mode, Options::Mode::window);
    EXPECT_EQ(parsed("")->size, QSize(390, 844));
}

TEST(Options, TakeAnAppearanceAndNameItAgain) {
    const std::pair<QString, std::string> cases[] = {
        {"", "--theme light --text-scale 100"},
        {"--dark --text-scale 200", "--theme dark --text-scale 200"},
        {"--theme contrast --rtl", "--theme contrast --text-scale 100 --rtl"},
        {"--reduced-motion", "--theme light --text-scale 100 --reduced-motion"},
    };
    for (const auto& [arguments, named] : cases) {
        EXPECT_EQ(optionsFor(parsed(arguments)->appearance).join(' ').toStdString(), named);
    }
}

} // namespace demo::testing
