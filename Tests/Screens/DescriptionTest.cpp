#include "Gallery/GalleryStage.hpp"
#include "Kept.hpp"
#include "Language.hpp"
#include "Looks.hpp"
#include "Named.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace demo::testing {

namespace {

/// So high that nothing scrolls, so that what is in view does not depend on fonts.
constexpr int height = 1500;

/// A screen in a theme and a width.
struct Descriptions : ::testing::TestWithParam<const char*> {};
/// A screen with texts that follow the language, and the language; all others' are Spanish in each.
struct Translations : ::testing::TestWithParam<const char*> {};

} // namespace

TEST_P(Descriptions, SayWhatIsSeenAndHeard) {
    const QStringList words = QString(GetParam()).split('.');
    GalleryStage stage;
    const auto opened = stage.open(galleryScreen(words[0]), {words[2].toInt(), height});
    ASSERT_TRUE(opened) << opened.error().toStdString();
    const auto picture = stage.picture(galleryTheme(words[1]), {100, false});
    ASSERT_TRUE(picture) << picture.error().toStdString();
    expectKept(GetParam(), QStringList("seen:") + looksOf(*stage.host().phone()) + QStringList("heard:") +
                               heardOf(*stage.host().window()));
}

INSTANTIATE_TEST_SUITE_P(
    All, Descriptions,
    ::testing::Values("loading.light.390", "loading-long.light.390", "order-registered.light.390",
                      "other-consultant.light.390", "already-submitted.light.390", "summary.light.390",
                      "no-connection.light.390", "time-out.light.390", "generic-error.light.390",
                      "checkout-error.light.390", "all-sent.light.390", "some-sent.light.390",
                      "none-sent.light.390", "section-closed.light.390", "loading.dark.390",
                      "other-consultant.dark.390", "already-submitted.dark.390", "summary.dark.390",
                      "no-connection.dark.390", "generic-error.dark.390", "some-sent.dark.390",
                      "order-registered.contrast.390", "summary.contrast.390", "none-sent.contrast.390",
                      "summary.light.320", "some-sent.light.320", "some-sent.light.1280"),
    testName);

TEST_P(Translations, SayWhatIsHeard) {
    const auto describe = [] {
        const QStringList words = QString(GetParam()).split('.');
        useLanguage(words[1]);
        GalleryStage stage;
        if (stage.open(galleryScreen(words[0]), {390, height}) &&
            stage.picture(galleryTheme("light"), {100, false})) {
            expectKept(GetParam(), heardOf(*stage.host().window()));
            std::fflush(nullptr);
            // The window is still there, which a check for leaks would take for many.
            std::_Exit(HasFailure() ? 1 : 0);
        }
    };
    // Texts are looked up once a process, so each language has its own.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(describe(), ::testing::ExitedWithCode(0), "");
}

// "xb" goes from right to left, as all texts of that language.
INSTANTIATE_TEST_SUITE_P(All, Translations,
                         ::testing::Values("loading-long.pt", "loading-long.en", "other-consultant.pt",
                                           "other-consultant.en", "already-submitted.pt",
                                           "already-submitted.en", "summary.pt", "summary.en", "summary.xb",
                                           "generic-error.pt", "generic-error.en", "checkout-error.pt",
                                           "checkout-error.en", "none-sent.pt", "none-sent.en"),
                         testName);

} // namespace demo::testing
