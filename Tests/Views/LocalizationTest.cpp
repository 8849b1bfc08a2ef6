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
        QString points;
        QString code;
    } cases[] = {
        {0, "0 puntos", "Code: 0"},
        {1, "1 punto", "Code: 1"},
        {2, "2 puntos", "Code: 2"},
        {(quint64{1} << 32) + 1, "4294967297 puntos", "Code: 4294967297"},
        {largest, "18446744073709551615 puntos", "Code: 18446744073709551615"},
    };
    for (const auto& [count, points, code] : cases) {
        EXPECT_EQ(Localization::pointsCount(count), points);
        EXPECT_EQ(Localization::code(count), code);
    }
}

TEST(Localization, FallsBackToSpanishAndThenToTheKey) {
    kel::setLanguage("fi");
    EXPECT_EQ(kel::localized("Update", moduleBundle()), "Actualizar");
    EXPECT_EQ(kel::localized("no such key", moduleBundle()), "no such key");
    kel::setLanguage("es");
}

TEST(Resources, HoldTheImagesThatTheScreensName) {
    for (const char* name : {"other_consultant", "cart_already_submitted", "surprise_face", "sad_face"}) {
        EXPECT_TRUE(QFile::exists(u':' + moduleImage(name).path())) << name;
    }
}

} // namespace quillet::testing
