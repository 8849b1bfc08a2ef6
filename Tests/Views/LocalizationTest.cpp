#include "Resources/Localization.hpp"
#include "KelCommon/KelLocalized.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QFile>

#include <gtest/gtest.h>

#include <limits>

namespace quillet::testing {

TEST(Localization, ChoosesThePluralByTheCountAndWritesAllItsDigits) {
    constexpr auto largest = std::numeric_limits<quint64>::max();
    const struct {
        quint64 count;
        QString es, pt, en;
    } cases[] = {
        {0, "0 puntos", "0 ponto", "0 points"},
        {1, "1 punto", "1 ponto", "1 point"},
        {2, "2 puntos", "2 pontos", "2 points"},
        {5, "5 puntos", "5 pontos", "5 points"},
        {(quint64{1} << 32) + 1, "4294967297 puntos", "4294967297 pontos", "4294967297 points"},
        {largest, "18446744073709551615 puntos", "18446744073709551615 pontos",
         "18446744073709551615 points"},
    };
    const auto in = [](const char* language) {
        kel::setLanguage(language);
        return kel::localizedCount("points count", moduleBundle());
    };
    const auto es = in("es");
    const auto pt = in("pt");
    const auto en = in("en");
    kel::setLanguage("es");
    for (const auto& expected : cases) {
        EXPECT_EQ(es(expected.count), expected.es);
        EXPECT_EQ(pt(expected.count), expected.pt);
        EXPECT_EQ(en(expected.count), expected.en);
    }
    EXPECT_EQ(Localization::code(largest), "Code: 18446744073709551615");
}

TEST(Localization, KeepsTheLanguageOfTheFirstLook) {
    ASSERT_EQ(Localization::update(), "Actualizar");
    ASSERT_EQ(Localization::pointsCount(1), "1 punto");
    kel::setLanguage("pt");
    EXPECT_EQ(Localization::update(), "Actualizar");
    EXPECT_EQ(Localization::pointsCount(2), "2 puntos");
    kel::setLanguage("es");
}

TEST(Localization, FallsBackToSpanishAndThenToTheKey) {
    kel::setLanguage("fi");
    EXPECT_EQ(kel::localized("Update", moduleBundle()), "Actualizar");
    EXPECT_EQ(kel::localized("no such key", moduleBundle()), "no such key");
    const kel::KelBundle missing{":/no/such/folder", "none"};
    EXPECT_EQ(kel::localized("Update", missing), "Update");
    EXPECT_EQ(kel::localizedCount("points count", missing)(2), "2");
    kel::setLanguage("es");
}

TEST(Localization, FollowsTheLanguagesOfTheSystemsInterface) {
    // Not those of its numbers and dates; of several, the first that has the text.
    const QByteArray languages = qgetenv("LANGUAGE");
    qputenv("LANGUAGE", "de:pt_BR:en");
    kel::setLanguage({});
    EXPECT_EQ(kel::localized("Update", moduleBundle()), "Atualizar");
    EXPECT_EQ(kel::localizedCount("points count", moduleBundle())(2), "2 pontos");
    qputenv("LANGUAGE", languages);
    kel::setLanguage("es");
}

TEST(Localization, PrefersTheHostsTextsAndAddsTheirLanguages) {
    const auto count = [](quint64 number) {
        return kel::localizedCount("points count", moduleBundle())(number);
    };
    // begin: host-code
    kel::setHostTexts({":/host/texts", "host"});
    // end: host-code
    EXPECT_EQ(kel::localized("Update", moduleBundle()), "Cargar de nuevo");
    EXPECT_EQ(kel::localized("Go to cart", moduleBundle()), "Ir al carrito");
    kel::setLanguage("fr");
    EXPECT_EQ(kel::localized("Update", moduleBundle()), "Actualiser");
    EXPECT_EQ(count(2), "2 points");
    // What the host has not translated is Spanish: its own text first.
    EXPECT_EQ(kel::localized("Share Magazine", moduleBundle()), "Comparte tu revista");
    EXPECT_EQ(kel::localized("Go to cart", moduleBundle()), "Ir al carrito");
    kel::setHostTexts({});
    kel::setLanguage("es");
    EXPECT_EQ(kel::localized("Update", moduleBundle()), "Actualizar");
}

TEST(Resources, HoldTheImagesThatTheScreensName) {
    for (const char* name : {"other_consultant", "cart_already_submitted", "surprise_face", "sad_face"}) {
        EXPECT_TRUE(QFile::exists(u':' + moduleImage(name).path())) << name;
    }
}

} // namespace quillet::testing
