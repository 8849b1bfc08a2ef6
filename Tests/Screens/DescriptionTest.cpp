#include "Gallery/GalleryStage.hpp"
#include "Kept.hpp"
#include "Language.hpp"
#include "Looks.hpp"
#include "Named.hpp"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

namespace demo::testing {

namespace {

/// So high that nothing scrolls, so that what is in view does not depend on fonts.
constexpr int height = 1500;

/// A screen in a theme and a width.
struct Descriptions : ::testing::TestWithParam<std::string> {};
/// A screen with texts that follow the language, and the language; all others' are Spanish in each.
struct Translations : ::testing::TestWithParam<std::string> {};

} // namespace

TEST_P(Descriptions, SayWhatIsSeenAndHeard) {
    const QStringList words = QString::fromStdString(GetParam()).split('.');
    GalleryStage stage;
    const auto opened = stage.open(galleryScreen(words[0]), {words[2].toInt(), height});
    ASSERT_TRUE(opened) << opened.error().toStdString();
    const auto picture = stage.picture(galleryTheme(words[1]), {100, false});
    ASSERT_TRUE(picture) << picture.error().toStdString();
    expectKept(words.join(u'.'), QStringList("seen:") + looksOf(*stage.host().phone()) +
                                     QStringList("heard:") + heardOf(*stage.host().window()));
}

INSTANTIATE_TEST_SUITE_P(All, Descriptions,
                         ::testing::ValuesIn(keptNames(QUILLET_KEPT_DESCRIPTIONS, "*.*.*.txt")), testName);

TEST_P(Translations, SayWhatIsHeard) {
    const auto describe = [] {
        const QStringList words = QString::fromStdString(GetParam()).split('.');
        useLanguage(words[1]);
        GalleryStage stage;
        if (stage.open(galleryScreen(words[0]), {390, height}) &&
            stage.picture(galleryTheme("light"), {100, false})) {
            const auto* const direction =
                QGuiApplication::isRightToLeft() ? "from right to left:" : "from left to right:";
            expectKept(words.join(u'.'), QStringList(direction) + heardOf(*stage.host().window()));
            std::fflush(nullptr);
            // The window is still there, which a check for leaks would take for many.
            std::_Exit(HasFailure() ? 1 : 0);
        }
    };
    // Texts are looked up once a process, so each language has its own.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(describe(), ::testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(All, Translations,
                         ::testing::ValuesIn(keptNames(QUILLET_KEPT_DESCRIPTIONS, "*.??.txt")), testName);

} // namespace demo::testing
