#include "Views/Loading/LoadingView.hpp"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace quillet {
namespace {

constexpr double turn = 2 * std::numbers::pi;

struct Moment {
    double time;
    double start;
    double end;
};

/// The arc at moments of the first round, and where the second begins. At a quarter of its way the cubic
/// Bézier (0.42, 0, 0.58, 1) has come to 0.1292.
const Moment moments[] = {{0, 0, 0},    {0.25, 0.0194, 0.1292}, {0.5, 0.075, 0.5}, {0.75, 0.1306, 0.8708},
                          {1, 0.15, 1}, {1.25, 0.575, 1},       {1.5, 0, 0},       {1.75, 0.0194, 0.1292}};

constexpr QSizeF item(56, 56);

TEST(ProgressIndicator, DrawsTheArcWhereTheFormulaHasItUntilItStops) {
    LoadingView loading;
    ProgressIndicatorCircular& indicator = *loading.progressIndicator();
    for (const auto& [time, start, end] : moments) {
        SCOPED_TRACE(time);
        loading.startLoading();
        EXPECT_TRUE(indicator.layer().sublayers().empty()) << "shown before it was drawn";
        indicator.draw(item);
        indicator.draw(item);
        EXPECT_EQ(indicator.layer().sublayers().size(), 1u);
        QImage image(item.toSize() * 4, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(4, 4);
        indicator.layer().draw(painter, time);
        painter.end();
        for (int step = 0; step < 72; ++step) {
            const double part = (step + 0.5) / 72;
            // Near its ends the arc is only a few pixels long.
            if (std::abs(part - start) < 0.01 || std::abs(part - end) < 0.01) {
                continue;
            }
            const double angle = turn * part + turn * time / 4;
            const QPoint ring(int(4 * (28 + 24 * std::cos(angle))), int(4 * (28 + 24 * std::sin(angle))));
            EXPECT_EQ(qAlpha(image.pixel(ring)) > 128, part > start && part < end) << part;
        }
        loading.stopLoading();
        EXPECT_FALSE(indicator.isVisible());
        EXPECT_TRUE(indicator.layer().sublayers().empty());
        EXPECT_TRUE(indicator.semiCircleLayer()->animations().empty());
    }
}

} // namespace
} // namespace quillet
