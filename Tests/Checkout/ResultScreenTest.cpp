#include "Checkout/Inputs/ResultFactories.hpp"
#include "KelDS/KelDS.hpp"
#include "Platform/Screens/NavigationController.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Support/Stage.hpp"
#include "Views/QuilletViews.hpp"

#include <QQuickItem>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::Not;

struct ResultScreen : ::testing::Test {
    ResultScreen() { useQuilletViews(*qmlEngine(&stage.stack())); }
    ~ResultScreen() override { EXPECT_THAT(stage.complaints(), IsEmpty()); }

    /// Shows a partial result with this number of products, half of them sent.
    void show(std::size_t count) {
        const auto products = std::make_shared<std::vector<Product>>(count);
        for (std::size_t i = 0; i < count; ++i) {
            products->at(i).productCode = i;
            products->at(i).status = i % 2 ? ProductErrorStatus::none : ProductErrorStatus::unavailable;
        }
        const auto screen = std::make_shared<ProductsCheckoutStatusViewController>(
            std::make_unique<LoadingDisplayer>(std::make_unique<LoadingView>()),
            std::make_shared<RecordingAnalytics>(makeLog()));
        screen->setView(ProductsPartiallyAddedFactory({}).view({"05", 1, 1, 1, products, products}, *screen));
        ASSERT_TRUE(platform::NavigationController::of(stage.stack()).push(screen));
        ASSERT_TRUE(turnUntil([&] { return !stage.stack().property("busy").toBool(); }));
    }

    /// How far the list is scrolled.
    [[nodiscard]] double offset() const {
        const QQuickItem& list = *stage.item("result");
        return list.property("contentY").toDouble() - list.property("originY").toDouble();
    }
    [[nodiscard]] bool hasRows(int rows) const {
        return turnUntil([&] { return stage.item("result")->property("count").toInt() == rows; });
    }

    Stage stage;
};

} // namespace

TEST_F(ResultScreen, BeginsAtItsTopFromTheFirstFrameOn) {
    std::vector<double> offsets;
    const QObject frames;
    QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &frames, [&] {
        if (stage.item("result")) {
            offsets.push_back(offset());
        }
    });
    const auto drawUntil = [&](const std::function<bool(std::size_t)>& condition) {
        return turnUntil([&, seen = offsets.size()] {
            stage.window().update();
            return condition(offsets.size() - seen);
        });
    };
    show(10);
    EXPECT_THAT(offsets, AllOf(Not(IsEmpty()), Each(0)));
    // Its header has other heights at other widths, and in two columns another place. Where the list begins
    // is an estimate of its own until the rows are laid out.
    for (const QSize size : {QSize(1280, 800), QSize(320, 568), QSize(844, 390), QSize(390, 844)}) {
        stage.window().resize(size);
        ASSERT_TRUE(turnUntil([&] { return stage.stack().width() == size.width(); }));
        ASSERT_TRUE(drawUntil([](std::size_t drawn) { return drawn > 2; }));
    }
    EXPECT_THAT(offsets, Each(::testing::Lt(4)));
    for (const double scale : {2.0, 1.0}) {
        kel::KelAppearance::current().setTextScale(scale);
        ASSERT_TRUE(drawUntil([&](std::size_t drawn) { return drawn > 30 && offsets.back() < 4; }));
    }
}

TEST_F(ResultScreen, KeepsToItsPageAndPlaceWhileSectionsOpenAndCloseAndTheWindowChanges) {
    show(40);
    QQuickItem* list = stage.item("result");
    const auto bar = [&] { return stage.window().grabWindow().copy(0, 0, 390, 64); };
    const QImage clear = bar();
    list->setProperty("contentY", list->property("originY").toDouble() + 200);
    EXPECT_EQ(bar(), clear);
    const QPointF head = stage.middle("Productos enviados");
    stage.click("Productos enviados");
    ASSERT_TRUE(hasRows(22));
    EXPECT_EQ(offset(), 200);
    EXPECT_EQ(stage.middle("Productos enviados"), head);
    stage.click("Productos enviados");
    ASSERT_TRUE(hasRows(42));
    EXPECT_EQ(offset(), 200);
    stage.stack().window()->resize(320, 700);
    ASSERT_TRUE(turnUntil([&] { return list->width() == 320; }));
    EXPECT_NEAR(offset(), 200, 60);
}

TEST_F(ResultScreen, OpensASectionFromItsTop) {
    show(4);
    stage.click("Productos enviados");
    ASSERT_TRUE(hasRows(4));
    const auto height = [&](const QString& code) {
        const QQuickItem* row = stage.item(code);
        while (row &&
               row->parentItem() != stage.item("result")->property("contentItem").value<QQuickItem*>()) {
            row = row->parentItem();
        }
        return row ? row->height() : 0;
    };
    stage.click("Productos enviados");
    // The last row includes the distance to the next section.
    constexpr double distance = 16;
    ASSERT_TRUE(turnUntil([&] {
        stage.window().grabWindow();
        EXPECT_TRUE(height("Code: 3") <= distance || height("Code: 1") > 60);
        return height("Code: 3") > 60;
    }));
}

TEST_F(ResultScreen, BringsIntoViewWhatTheKeysGoTo) {
    show(40);
    const QString sent = "Productos enviados";
    // The list has not made the second head yet when the keys go there.
    const QString notSent = "Productos no enviados";
    for (const auto& [key, text] : {std::pair(Qt::Key_Tab, sent),
                                    {Qt::Key_Tab, notSent},
                                    {Qt::Key_Backtab, sent},
                                    {Qt::Key_Tab, notSent},
                                    {Qt::Key_Tab, QString("Ir al carrito")}}) {
        stage.key(key);
        EXPECT_EQ(stage.focus()->property("text"), text);
    }
    EXPECT_TRUE(turnUntil([&] { return stage.middle("Botón ir al carrito").y() < 844; }));
    const double before = offset();
    stage.key(Qt::Key_Up);
    EXPECT_LT(offset(), before);
    EXPECT_EQ(stage.focus()->objectName(), "Botón ir al carrito");
}

TEST_F(ResultScreen, MakesTheRowsInViewOnlyHoweverManyProductsThereAre) {
    show(10'000);
    EXPECT_TRUE(stage.shows("Code: 1"));
    const auto* const rows = stage.item("result")->property("contentItem").value<QQuickItem*>();
    EXPECT_LT(rows->childItems().size(), 60);
}

} // namespace quillet::testing
