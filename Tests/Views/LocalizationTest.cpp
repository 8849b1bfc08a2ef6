#include "Resources/Localization.hpp"
#include "KelCommon/KelLocalized.hpp"
#include "Resources/ModuleBundle.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace quillet::testing {

namespace {

constexpr auto largest = std::numeric_limits<quint64>::max();

struct LocalizationTest : ::testing::Test {
    ~LocalizationTest() override {
        kel::setHostTexts({});
        kel::setLanguage("es");
    }

    static QString in(const char* language, const char* key, const kel::KelBundle& bundle = moduleBundle()) {
        kel::setLanguage(language);
        return kel::localized(key, bundle);
    }
    static QString countedIn(const char* language, quint64 number) {
        kel::setLanguage(language);
        return kel::localizedCount("points count", moduleBundle())(number);
    }
};

} // namespace

TEST_F(LocalizationTest, KeepsTheLanguageOfTheFirstLook) {
    ASSERT_EQ(Localization::update(), "Actualizar");
    ASSERT_EQ(Localization::pointsCount(1), "1 punto");
    kel::setLanguage("pt");
    EXPECT_EQ(Localization::update(), "Actualizar");
    EXPECT_EQ(Localization::pointsCount(2), "2 puntos");
}

TEST_F(LocalizationTest, TakesTheLanguageOfARegionOrOfTheSystemThenSpanishAndThenTheKey) {
    EXPECT_EQ(in("pt-BR", "Update"), "Atualizar");
    EXPECT_EQ(in("fi", "Update"), "Actualizar");
    EXPECT_EQ(in("fi", "no such key"), "no such key");
    EXPECT_EQ(countedIn("es", (quint64{1} << 32) + 1), "4294967297 puntos");
    // Not those of its numbers and dates; of several, the first that has the text.
    const QByteArray languages = qgetenv("LANGUAGE");
    qputenv("LANGUAGE", "de:pt_BR:en");
    EXPECT_EQ(in("", "Update"), "Atualizar");
    EXPECT_EQ(countedIn("", largest), "18446744073709551615 pontos");
    qputenv("LANGUAGE", languages);
    const kel::KelBundle missing{":/no/such/folder", "none"};
    EXPECT_EQ(in("es", "Update", missing), "Update");
    EXPECT_EQ(kel::localizedCount("points count", missing)(2), "2");
}

TEST_F(LocalizationTest, PrefersTheHostsTextsAndAddsTheirLanguages) {
    // begin: host-code
    kel::setHostTexts({":/host/texts", "host"});
    // end: host-code
    EXPECT_EQ(in("es", "Update"), "Cargar de nuevo");
    EXPECT_EQ(in("es", "Go to cart"), "Ir al carrito");
    // This text of the host has no place for the number.
    EXPECT_EQ(Localization::code(largest), "Código 18446744073709551615");
    EXPECT_EQ(in("fr", "Update"), "Actualiser");
    EXPECT_EQ(countedIn("fr", 2), "2 points");
    // What the host has not translated is Spanish: its own text first.
    EXPECT_EQ(in("fr", "Share Magazine"), "Comparte tu revista");
    EXPECT_EQ(in("fr", "Go to cart"), "Ir al carrito");
}

} // namespace quillet::testing
