#include "Language.hpp"
#include "KelCommon/KelLocalized.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace demo::testing {

TEST(Language, BringsItsTextsAndItsDirection) {
    const struct {
        const char *code, *text;
        Qt::LayoutDirection direction;
    } cases[] = {
        {"xb", "גכמעה", Qt::RightToLeft},
        {"es", "Cerrar", Qt::LeftToRight},
        {"xa", "⟦Çĺóšé óñé⟧", Qt::LeftToRight},
    };
    for (const auto& [code, text, direction] : cases) {
        SCOPED_TRACE(code);
        ASSERT_TRUE(isLanguage(code));
        useLanguage(code);
        EXPECT_EQ(kel::localized("Close", quillet::moduleBundle()), text);
        EXPECT_EQ(QGuiApplication::layoutDirection(), direction);
    }
    kel::setHostTexts({});
    useLanguage("es");
}

} // namespace demo::testing
