#include "Options.hpp"

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
        words << *options->gatewayHost << QString::number(options->gatewayPort) << options->caFile;
    }
    return words.join(' ').toStdString();
}

} // namespace

TEST(Options, AreUnderstoodOrSayWhatIsWrong) {
    const std::pair<QString, std::string> cases[] = {
        {"", "--theme light --text-scale 100"},
        {"--dark --text-scale 200", "--theme dark --text-scale 200"},
        {"--theme contrast --rtl", "--theme contrast --text-scale 100 --rtl"},
        {"--reduced-motion", "--theme light --text-scale 100 --reduced-motion"},
        {"--play a --out d --gateway [::1]:8443 --ca /etc/ssl/certs/ca-certificates.crt",
         "--theme light --text-scale 100 ::1 8443 /etc/ssl/certs/ca-certificates.crt"},
        {"--play a --out d --gateway gateway.test:1 --ca /etc/ssl/certs/ca-certificates.crt",
         "--theme light --text-scale 100 gateway.test 1 /etc/ssl/certs/ca-certificates.crt"},
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

} // namespace demo::testing
