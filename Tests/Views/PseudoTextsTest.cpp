#include "PseudoTexts.hpp"
#include "KelCommon/KelLocalized.hpp"
#include "Resources/ModuleBundle.hpp"
#include "Views/TextKeys.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet::testing {

namespace {

struct PseudoTexts : ::testing::Test {
    PseudoTexts() { demo::usePseudoTexts(); }
    ~PseudoTexts() override {
        kel::setHostTexts({});
        kel::setLanguage("es");
    }

    // The host's tables are asked first whichever library asks.
    static QString textOf(const TextKey& key, const char* language, quint64 count) {
        kel::setLanguage(language);
        return key.isCounted ? kel::localizedCount(key.key, moduleBundle())(count)
                             : kel::localized(key.key, moduleBundle());
    }

    // Of each text, the one of English and the one of the other language.
    static std::vector<std::pair<QString, QString>> pairsWith(const char* language) {
        std::vector<std::pair<QString, QString>> pairs;
        for (const auto& [path, keys] : textFamilies()) {
            for (const TextKey& key : keys) {
                for (const quint64 count : {1, 2}) {
                    pairs.emplace_back(textOf(key, "en", count), textOf(key, language, count));
                }
            }
        }
        return pairs;
    }

    static bool isAscii(QChar character) { return character.unicode() < 128; }
    static QString withoutPlaceholder(QString text) { return text.remove("%n"); }
};

} // namespace

TEST_F(PseudoTexts, AreLongAccentedAndBracketed) {
    for (const auto& [english, text] : pairsWith("xa")) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_TRUE(text.startsWith(u'⟦') && text.endsWith(u'⟧'));
        EXPECT_GE(text.size() - 2, english.size() * 14 / 10);
        EXPECT_EQ(text.contains("%n"), english.contains("%n"));
        EXPECT_TRUE(std::ranges::none_of(withoutPlaceholder(text),
                                         [](QChar c) { return isAscii(c) && c.isLetter(); }));
    }
}

TEST_F(PseudoTexts, RunFromRightToLeft) {
    for (const auto& [english, text] : pairsWith("xb")) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_TRUE(text.isRightToLeft());
        EXPECT_EQ(text.size(), english.size());
        EXPECT_EQ(text.contains("%n"), english.contains("%n"));
        EXPECT_TRUE(std::ranges::all_of(
            withoutPlaceholder(text), [](QChar c) { return !c.isLetter() || c.direction() == QChar::DirR; }));
    }
}

TEST_F(PseudoTexts, KeepTheNumberOfEachPluralForm) {
    const struct {
        quint64 count;
        const char *xa, *xb;
    } cases[] = {
        {0, "⟦0 þóíñţš óñé⟧", "0 ןמטםףע"},
        {1, "⟦1 þóíñţ óñé⟧", "1 ןמטםף"},
        {2, "⟦2 þóíñţš óñé⟧", "2 ןמטםףע"},
        {5, "⟦5 þóíñţš óñé⟧", "5 ןמטםףע"},
    };
    for (const auto& [count, xa, xb] : cases) {
        kel::setLanguage("xa");
        EXPECT_EQ(kel::localizedCount("points count", moduleBundle())(count), xa);
        kel::setLanguage("xb");
        EXPECT_EQ(kel::localizedCount("points count", moduleBundle())(count), xb);
    }
}

} // namespace quillet::testing
