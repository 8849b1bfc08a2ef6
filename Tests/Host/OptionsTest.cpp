#include "Options.hpp"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace demo::testing {

namespace {

QString fileWith(QTemporaryFile& file, const QByteArray& content) {
    EXPECT_TRUE(file.open());
    file.write(content);
    file.close();
    return file.fileName();
}

} // namespace

TEST(Options, RefuseEachWrongCombinationInOneLine) {
    QTemporaryFile noCertificate;
    const QString ca = fileWith(noCertificate, "not a certificate");
    const auto against = [&](const QString& gateway, const QString& authorities) {
        return QStringList{"--play", "a", "--out", "d", "--gateway", gateway, "--ca", authorities};
    };
    const std::pair<QStringList, QString> cases[] = {
        {{"--play", "a.play"}, "--play needs --out DIR"},
        {{"--tour", ""}, "--tour needs a folder"},
        {{"--gallery", ""}, "--gallery needs a folder"},
        {{"--controls", ""}, "--controls needs a file"},
        {{"--tour", "d", "--play", "a"}, "--tour, --play, --controls and --gallery do not go together"},
        {{"--gallery", "g", "--size", "320x568"}, "--size does not go with --gallery"},
        {{"--controls", "c", "--rtl"}, "--rtl does not go with --controls"},
        {{"--tour", "d", "--quick"}, "--quick goes with --gallery"},
        {{"--out", "d"}, "--out goes with --play"},
        {{"--gateway", "h:1", "--ca", ca}, "--gateway and --ca go together, and with --play"},
        {against("h:65536", ca), "--gateway is HOST:PORT, not h:65536"},
        {against("h:1", "/"), "cannot read the CA file /"},
        {against("h:1", ca), "no certificate in the CA file " + ca},
        {{"--port", "65536"}, "not a port: 65536"},
        {{"--language", "fi"}, "--language is es, pt, en, xa or xb, not fi"},
        {{"--size", "319x568"}, "--size is WxH, each from 320 to 1280, not 319x568"},
        {{"--size", "4294967616x568"}, "--size is WxH, each from 320 to 1280, not 4294967616x568"},
        {{"--theme", "sepia"}, "--theme is light, dark or contrast, not sepia"},
        {{"--theme", "contrast", "--dark"}, "--dark and --theme do not go together"},
        {{"--text-scale", "99"}, "--text-scale is a whole number of percent, from 100 to 200, not 99"},
        {{"stray"}, "not understood: stray"},
    };
    for (const auto& [arguments, complaint] : cases) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const auto options = parseOptions(QStringList{"quillet-host"} + arguments);
        ASSERT_FALSE(options);
        EXPECT_EQ(options.error(), complaint) << options.error().toStdString();
    }
}

TEST(Options, TakeAServerByNameOrAddress) {
    QTemporaryFile certificate;
    const QString ca = fileWith(certificate, "-----BEGIN CERTIFICATE-----\n");
    const std::pair<QString, QString> servers[] = {
        {"127.0.0.1:8443", "127.0.0.1"}, {"[::1]:8443", "::1"}, {"gateway.test:8443", "gateway.test"}};
    for (const auto& [typed, host] : servers) {
        const auto options =
            parseOptions({"quillet-host", "--play", "a", "--out", "d", "--gateway", typed, "--ca", ca});
        ASSERT_TRUE(options) << options.error().toStdString();
        EXPECT_EQ(options->mode, Options::Mode::play);
        EXPECT_EQ(options->gatewayHost, host);
        EXPECT_EQ(options->gatewayPort, 8443);
        EXPECT_EQ(options->caFile, ca);
    }
    EXPECT_EQ(parseOptions({"quillet-host"})->mode, Options::Mode::window);
    EXPECT_EQ(parseOptions({"quillet-host"})->size, QSize(390, 844));
    EXPECT_EQ(parseOptions({"quillet-host", "--tour", "d", "--size", "320x1280"})->size, QSize(320, 1280));
    EXPECT_EQ(parseOptions({"quillet-host", "--tour", "d"})->outFolder, "d");
    EXPECT_EQ(parseOptions({"quillet-host", "--controls", "c", "--dark"})->controlsFile, "c");
    EXPECT_EQ(parseOptions({"quillet-host", "--gallery", "g", "--quick"})->outFolder, "g");
}

TEST(Options, TakeAnAppearanceAndNameItAgain) {
    const struct {
        QStringList arguments;
        kel::KelTheme theme = kel::KelTheme::light;
        int textScale = 100;
        bool reducedMotion = false;
        Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
    } cases[] = {
        {.arguments = {}},
        {.arguments = {"--theme", "light"}},
        {.arguments = {"--theme", "dark"}, .theme = kel::KelTheme::dark},
        {.arguments = {"--dark"}, .theme = kel::KelTheme::dark},
        {.arguments = {"--controls", "c", "--theme", "contrast"}, .theme = kel::KelTheme::contrast},
        {.arguments = {"--text-scale", "200"}, .textScale = 200},
        {.arguments = {"--rtl", "--reduced-motion"}, .reducedMotion = true, .direction = Qt::RightToLeft},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.arguments.join(' ').toStdString());
        const auto typed = parseOptions(QStringList{"quillet-host"} + expected.arguments);
        ASSERT_TRUE(typed) << typed.error().toStdString();
        const auto again = parseOptions(QStringList{"quillet-host"} + optionsFor(typed->appearance));
        ASSERT_TRUE(again) << again.error().toStdString();
        for (const Appearance& appearance : {typed->appearance, again->appearance}) {
            EXPECT_EQ(appearance.theme, expected.theme);
            EXPECT_EQ(appearance.textScale, expected.textScale);
            EXPECT_EQ(appearance.reducedMotion, expected.reducedMotion);
            EXPECT_EQ(appearance.direction, expected.direction);
        }
    }
}

} // namespace demo::testing
