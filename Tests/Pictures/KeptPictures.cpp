#include "KeptPictures.hpp"

#include <QDir>
#include <QPainter>

#include <gtest/gtest.h>

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

bool write(const QImage& picture, const QString& file) {
    // Of a PNG the last is not the quality: it takes the time to make it as small as can be.
    return picture.convertToFormat(QImage::Format_RGB888).save(file, "png", 0);
}

} // namespace

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

void expectKept(const QString& name, const QImage& picture) {
    const QString file = QStringLiteral(QUILLET_KEPT_PICTURES "/%1.png").arg(name);
    if (qEnvironmentVariableIsSet("QUILLET_RENEW_PICTURES")) {
        ASSERT_TRUE(write(picture, file)) << file.toStdString();
        GTEST_SKIP() << "renewed";
    }
    const QImage expected(file);
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
    QDebug(&message) << "It differs within" << place << "from" << file << "as shown by" << left + ".*.png";
    ADD_FAILURE() << message.toStdString();
}

} // namespace demo::testing
