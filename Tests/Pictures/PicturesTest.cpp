#include "Gallery/GalleryStage.hpp"
#include "KeptPictures.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

namespace demo::testing {

namespace {

struct Shot {
    const char* screen;
    const char* theme;
    int percent;
    QSize size;
    /// Seconds since the progress indicator began to move.
    double ringTime = 0.75;

    [[nodiscard]] QString name() const {
        const QString ring = QLatin1String(screen) == QLatin1String("loading")
                                 ? QStringLiteral(".%1s").arg(ringTime)
                                 : QString();
        return QStringLiteral("%1.%2.%3.%4x%5%6")
            .arg(QLatin1String(screen), QLatin1String(theme))
            .arg(percent)
            .arg(size.width())
            .arg(size.height())
            .arg(ring);
    }
    friend void PrintTo(const Shot& shot, std::ostream* stream) { *stream << shot.name().toStdString(); }
};

constexpr QSize phone{390, 844};

const Shot shots[] = {
    {"summary", "light", 100, phone},
    {"summary", "dark", 100, phone},
    {"summary", "contrast", 100, phone},
    {"summary", "light", 200, phone},
    {"summary", "light", 100, {844, 390}},
    {"summary", "light", 100, {320, 568}},
    {"loading", "light", 100, {320, 568}, 0.75},
    {"loading", "light", 100, {320, 568}, 1.25},
    {"order-registered", "light", 100, phone},
    {"other-consultant", "dark", 100, phone},
    {"no-connection", "light", 100, phone},
    {"all-sent", "light", 100, phone},
    {"some-sent", "light", 100, phone},
    {"some-sent", "dark", 100, phone},
    {"some-sent", "light", 100, {1280, 800}},
    {"none-sent", "light", 100, phone},
};

GalleryScreen screenCalled(const char* name) {
    const auto screens = galleryScreens(false);
    return *std::ranges::find(screens, QLatin1String(name), &GalleryScreen::name);
}

GalleryTheme themeCalled(const char* name) {
    const auto themes = galleryAxes(false).themes;
    return *std::ranges::find(themes, QLatin1String(name),
                              [](const GalleryTheme& theme) { return QLatin1String(theme.name); });
}

struct Pictures : ::testing::TestWithParam<Shot> {};

} // namespace

TEST_P(Pictures, LookAsTheyAreKept) {
    const Shot& shot = GetParam();
    GalleryStage stage;
    const auto opened = stage.open(screenCalled(shot.screen), shot.size);
    ASSERT_TRUE(opened) << opened.error().toStdString();
    const auto picture = stage.picture(themeCalled(shot.theme), {shot.percent, false}, shot.ringTime);
    ASSERT_TRUE(picture) << picture.error().toStdString();
    if (renewsPictures()) {
        ASSERT_TRUE(keepPicture(shot.name(), *picture)) << shot.name().toStdString();
        GTEST_SKIP() << "renewed";
    }
    EXPECT_EQ(differenceFromKept(shot.name(), *picture), "");
}

INSTANTIATE_TEST_SUITE_P(All, Pictures, ::testing::ValuesIn(shots), [](const auto& instance) {
    QString name = instance.param.name();
    return name.replace(QLatin1Char('.'), QLatin1Char('_')).remove(QLatin1Char('-')).toStdString();
});

} // namespace demo::testing
