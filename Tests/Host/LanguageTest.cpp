#include "Language.hpp"
#include "KelCommon/KelLocalized.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace demo::testing {

TEST(Language, BringsItsTextsAndItsDirection) {
    const std::tuple<const char*, const char*, Qt::LayoutDirection> cases[] = {
        {"xb", "גכמעה", Qt::RightToLeft},
        {"es", "Cerrar", Qt::LeftToRight},
        {"xa", "⟦Çĺóšé óñé⟧", Qt::LeftToRight},
    };
    for (const auto& [code, text, direction] : cases) {
        useLanguage(code);
        EXPECT_EQ(kel::localized("Close", quillet::moduleBundle()), text);
        EXPECT_EQ(QGuiApplication::layoutDirection(), direction) << code;
    }
    kel::setHostTexts({});
    useLanguage("es");
}

} // namespace demo::testing
