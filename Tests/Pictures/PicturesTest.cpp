#include "Gallery/GalleryStage.hpp"
#include "KeptPictures.hpp"
#include "Screens/Named.hpp"

#include <gtest/gtest.h>

#include <ostream>

namespace demo::testing {

namespace {

constexpr QSize phone{390, 844};

struct Shot {
    const char* screen;
    const char* theme = "light";
    QSize size = phone;
    int percent = 100;
    /// Seconds since the progress indicator began to move.
    const char* ringTime = nullptr;

    friend void PrintTo(const Shot& shot, std::ostream* stream) {
        *stream << shot.screen << '.' << shot.theme << '.' << shot.percent << '.' << shot.size.width() << 'x'
                << shot.size.height();
        if (shot.ringTime) {
            *stream << '.' << shot.ringTime << 's';
        }
    }
};

const Shot shots[] = {
    {"summary"},
    {"summary", "dark"},
    {"summary", "contrast"},
    {"summary", "light", phone, 200},
    {"summary", "light", {844, 390}},
    {"summary", "light", {320, 568}},
    {"loading", "light", {320, 568}, 100, "0.75"},
    {"loading", "light", {320, 568}, 100, "2.75"},
    {"order-registered"},
    {"other-consultant", "dark"},
    {"no-connection"},
    {"all-sent"},
    {"some-sent"},
    {"some-sent", "dark"},
    {"some-sent", "light", {1280, 800}},
    {"none-sent"},
};

struct Pictures : ::testing::TestWithParam<Shot> {};

} // namespace

TEST_P(Pictures, LookAsTheyAreKept) {
    const Shot& shot = GetParam();
    GalleryStage stage;
    const auto opened = stage.open(galleryScreen(shot.screen), shot.size);
    ASSERT_TRUE(opened) << opened.error().toStdString();
    const auto picture =
        stage.picture(galleryTheme(shot.theme), {shot.percent, false}, QByteArray(shot.ringTime).toDouble());
    ASSERT_TRUE(picture) << picture.error().toStdString();
    expectKept(QString::fromStdString(::testing::PrintToString(shot)), *picture);
}

INSTANTIATE_TEST_SUITE_P(All, Pictures, ::testing::ValuesIn(shots), [](const auto& instance) {
    QString name = QString::fromStdString(::testing::PrintToString(instance.param));
    return name.replace(u'.', u'_').remove(u'-').toStdString();
});

} // namespace demo::testing
