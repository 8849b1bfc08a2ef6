#include "Gallery/GalleryStage.hpp"
#include "KelDS/KelDS.hpp"
#include "PhoneSize.hpp"
#include "Screens/Named.hpp"

#include <QPainter>
#include <QRawFont>

namespace demo::testing {

namespace {

/// What counts are the averages of squares: of small ones, so that an icon that is missing is not lost in a
/// large picture, and of large ones, in which letters that are drawn otherwise are lost but a tone is not.
constexpr struct {
    int side;
    int tolerance;
} scales[] = {{8, 34}, {16, 17}, {32, 10}};

int distance(QColor one, QColor other) {
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
}

/// Where two pictures differ as a person would see it; empty if they do not. Another version of Qt draws the
/// edges of letters differently, which counts as no difference.
QRect difference(const QImage& expected, const QImage& actual) {
    QRect place = expected.size() == actual.size() ? QRect() : actual.rect();
    for (const auto& [side, tolerance] : scales) {
        const auto averages = [side](const QImage& picture) {
            return picture.scaled(picture.size() / side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        };
        const QImage before = averages(expected);
        const QImage after = averages(actual);
        for (int y = 0; y < before.height(); ++y) {
            for (int x = 0; x < before.width(); ++x) {
                if (distance(before.pixelColor(x, y), after.pixelColor(x, y)) > tolerance) {
                    place |= QRect(x * side, y * side, side, side);
                }
            }
        }
    }
    return place;
}

bool write(const QImage& picture, const QString& file) {
    // Of a PNG the last is not the quality: it takes the time to make it as small as can be.
    return picture.convertToFormat(QImage::Format_RGB888).save(file, "png", 0);
}

QString fileOf(const QString& name) {
    return QStringLiteral(QUILLET_KEPT_PICTURES "/%1.png").arg(name);
}

/// Compares a picture with the one kept in Expected under this name, and fails where they differ. The actual
/// picture and what differs are then left in the build folder. With QUILLET_RENEW_PICTURES set it keeps the
/// picture instead, and the test counts as skipped.
void expectKept(const QString& name, const QImage& picture) {
    if (qEnvironmentVariableIsSet("QUILLET_RENEW_PICTURES")) {
        ASSERT_TRUE(write(picture, fileOf(name)));
        GTEST_SKIP() << "renewed";
    }
    const QImage expected(fileOf(name));
    const QRect place = difference(expected, picture);
    if (place.isEmpty()) {
        return;
    }
    QImage marked = picture.copy();
    QPainter painter(&marked);
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    painter.drawImage(0, 0, expected);
    painter.end();
    const QString left = QStringLiteral(QUILLET_PICTURE_DIFFERENCES "/") + name;
    EXPECT_TRUE(QDir().mkpath(QUILLET_PICTURE_DIFFERENCES) && write(picture, left + ".actual.png") &&
                write(marked, left + ".difference.png"));
    QString message;
    QDebug(&message) << "It differs within" << place << "from" << fileOf(name) << "as shown by"
                     << left + ".*.png";
    ADD_FAILURE() << message.toStdString();
}

/// A screen, its theme, the percentage of its texts, its size, and the seconds since the progress indicator
/// began to move if it has one.
struct Pictures : ::testing::TestWithParam<std::string> {};

} // namespace

TEST_P(Pictures, LookAsTheyAreKept) {
    // Another version of the font has other widths, with which words move and lines break elsewhere.
    const auto font = kel::KelFonts::font(kel::KelFonts::Body1, kel::KelFonts::Regular);
    if (QRawFont::fromFont(font).fontTable("head").mid(4, 4).toHex() != "000304dd") {
        GTEST_SKIP() << "The pictures were made with version 3.019 of Inter.";
    }
    const QString name = QString::fromStdString(GetParam());
    const QStringList words = name.split(u'.');
    GalleryStage stage;
    const auto opened = stage.open(galleryScreen(words[0]), *parsePhoneSize(words[3]));
    ASSERT_TRUE(opened) << opened.error().toStdString();
    const auto picture = stage.picture(galleryTheme(words[1]), {words[2].toInt(), false},
                                       name.section(u'.', 4).remove(u's').toDouble());
    ASSERT_TRUE(picture) << picture.error().toStdString();
    expectKept(name, *picture);
}

INSTANTIATE_TEST_SUITE_P(All, Pictures, ::testing::ValuesIn(keptNames(QUILLET_KEPT_PICTURES, "*.png")),
                         testName);

TEST(Comparison, SeesALostIconAndAnotherTone) {
    const QImage picture(fileOf("summary.light.100.390x844"));
    const std::tuple<QRect, QColor, QRect> changes[] = {
        {{20, 500, 7, 7}, "#6b6862", {16, 496, 16, 16}},
        {{64, 640, 64, 64}, "#e6e4df", {64, 640, 64, 64}},
    };
    for (const auto& [place, color, seen] : changes) {
        QImage other = picture;
        QPainter(&other).fillRect(place, color);
        EXPECT_EQ(difference(picture, other), seen);
    }
}

} // namespace demo::testing
