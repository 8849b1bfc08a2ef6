#include "Gallery/GalleryStage.hpp"
#include "Kept.hpp"
#include "Language.hpp"
#include "Looks.hpp"
#include "Named.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <ostream>

namespace demo::testing {

namespace {

/// A screen in a look. It is so high that nothing scrolls, so that what is in view does not depend on fonts.
struct Described {
    const char* screen;
    const char* theme = "light";
    int width = 390;

    [[nodiscard]] QString name() const {
        return QStringLiteral("%1.%2.%3").arg(QLatin1String(screen), QLatin1String(theme)).arg(width);
    }
    friend void PrintTo(const Described& one, std::ostream* stream) { *stream << one.name().toStdString(); }
};

constexpr int height = 1500;

const Described described[] = {
    {"loading"},
    {"loading-long"},
    {"order-registered"},
    {"other-consultant"},
    {"already-submitted"},
    {"summary"},
    {"no-connection"},
    {"time-out"},
    {"generic-error"},
    {"checkout-error"},
    {"all-sent"},
    {"some-sent"},
    {"none-sent"},
    {"section-closed"},
    {"loading", "dark"},
    {"other-consultant", "dark"},
    {"already-submitted", "dark"},
    {"summary", "dark"},
    {"no-connection", "dark"},
    {"generic-error", "dark"},
    {"some-sent", "dark"},
    {"order-registered", "contrast"},
    {"summary", "contrast"},
    {"none-sent", "contrast"},
    {"summary", "light", 320},
    {"some-sent", "light", 320},
    {"some-sent", "light", 1280},
};

/// The screens with texts that follow the language; all others' are Spanish in each.
struct Translated {
    const char* screen;
    const char* language;

    friend void PrintTo(const Translated& one, std::ostream* stream) {
        *stream << one.screen << '.' << one.language;
    }
};

std::vector<Translated> translated() {
    std::vector<Translated> all;
    for (const char* screen : {"loading-long", "other-consultant", "already-submitted", "summary",
                               "generic-error", "checkout-error", "none-sent"}) {
        for (const char* language : {"pt", "en"}) {
            all.push_back({screen, language});
        }
    }
    // From right to left, as all texts of that language.
    all.push_back({"summary", "xb"});
    return all;
}

template <typename Param>
std::string testName(const ::testing::TestParamInfo<Param>& instance) {
    QString name = QString::fromStdString(::testing::PrintToString(instance.param));
    return name.replace(u'.', u'_').remove(u'-').toStdString();
}

struct Descriptions : ::testing::TestWithParam<Described> {};
struct Translations : ::testing::TestWithParam<Translated> {};

} // namespace

TEST_P(Descriptions, SayWhatIsSeenAndHeard) {
    GalleryStage stage;
    const auto opened = stage.open(galleryScreen(GetParam().screen), {GetParam().width, height});
    ASSERT_TRUE(opened) << opened.error().toStdString();
    const auto picture = stage.picture(galleryTheme(GetParam().theme), {100, false});
    ASSERT_TRUE(picture) << picture.error().toStdString();
    expectKept(GetParam().name(), QStringList("seen:") + looksOf(*stage.host().phone()) +
                                      QStringList("heard:") + heardOf(*stage.host().window()));
}

INSTANTIATE_TEST_SUITE_P(All, Descriptions, ::testing::ValuesIn(described), testName<Described>);

TEST_P(Translations, SayWhatIsHeard) {
    const auto describe = [] {
        const auto& [screen, language] = GetParam();
        useLanguage(language);
        GalleryStage stage;
        if (stage.open(galleryScreen(screen), {390, height}) &&
            stage.picture(galleryTheme("light"), {100, false})) {
            expectKept(QStringLiteral("%1.%2").arg(screen, language), heardOf(*stage.host().window()));
            std::fflush(nullptr);
            // The window is still there, which a check for leaks would take for many.
            std::_Exit(HasFailure() ? 1 : 0);
        }
    };
    // Texts are looked up once a process, so each language has its own.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(describe(), ::testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(All, Translations, ::testing::ValuesIn(translated()), testName<Translated>);

} // namespace demo::testing
