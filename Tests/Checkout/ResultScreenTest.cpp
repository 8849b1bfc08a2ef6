#include "Checkout/Inputs/ResultFactories.hpp"
#include "KelCommon/KelAnalyticsManager.hpp"
#include "Support/FakeHost.hpp"
#include "Support/Stage.hpp"
#include "Views/QuilletViews.hpp"
#include "Views/Screen/NavigationController.hpp"

#include <QQuickItem>

#include <gmock/gmock.h>

extern void qml_register_types_Quillet_Checkout();
static void initCheckoutResources() {
    Q_INIT_RESOURCE(qmake_Quillet_Checkout);
}

namespace quillet::testing {

namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

int itemsBelow(const QQuickItem& item) {
    int count = 1;
    for (const QQuickItem* child : item.childItems()) {
        count += itemsBelow(*child);
    }
    return count;
}

/// Shows the overlay and writes down when.
class LoggingDisplayer final : public LoadingDisplayable {
public:
    explicit LoggingDisplayer(Log log) : log_(std::move(log)) {}
    void showLoading() override {
        log_->push_back("overlay");
        loadingView_.startLoading();
    }
    [[nodiscard]] LoadingView& loadingView() override { return loadingView_; }

private:
    Log log_;
    LoadingView loadingView_;
};

struct ResultScreen : ::testing::Test {
    ResultScreen() {
        initCheckoutResources();
        qml_register_types_Quillet_Checkout();
        useQuilletViews(*qmlEngine(&stage.stack()));
    }
    ~ResultScreen() override { EXPECT_THAT(stage.complaints(), IsEmpty()); }

    /// Shows a partial result of so many products, half of them sent.
    void show(std::size_t count) {
        std::vector<Product> products(count);
        for (std::size_t i = 0; i < count; ++i) {
            products[i].productCode = i;
            products[i].status = i % 2 ? ProductErrorStatus::none : ProductErrorStatus::unavailable;
        }
        const auto screen = std::make_shared<ProductsCheckoutStatusViewController>(
            std::make_unique<LoggingDisplayer>(log), std::make_shared<FakeAnalytics>(log));
        screen->setView(ProductsPartiallyAddedFactory({}).view({"05", 1, 1, 1, products, products}, *screen));
        screen->setNavigationDelegate(host);
        ASSERT_TRUE(NavigationController::of(stage.stack()).push(screen));
        ASSERT_TRUE(turnUntil([&] { return !stage.stack().property("busy").toBool(); }));
    }

    Log log = makeLog();
    std::shared_ptr<FakeNavigation> host = std::make_shared<FakeNavigation>(log);
    Stage stage;
};

} // namespace

TEST_F(ResultScreen, TracksItselfOnceAndEachTapOnASection) {
    show(2);
    EXPECT_THAT(taken(log), ElementsAre("screen Feedback de produtos"));
    ASSERT_TRUE(stage.shows("Code: 1"));
    stage.click("Productos enviados");
    EXPECT_TRUE(turnUntil([&] { return !stage.shows("Code: 1"); }));
    stage.click("Productos enviados");
    EXPECT_TRUE(turnUntil([&] { return stage.shows("Code: 1"); }));
    stage.click("Productos no enviados");
    EXPECT_THAT(taken(log), ElementsAre(event("My Clients Orders", "Products Sent - Hide"),
                                        event("My Clients Orders", "Products Sent - Expand"),
                                        event("My Clients Orders", "Products Not Sent - Hide")));
}

TEST_F(ResultScreen, CoversItselfForGoodWhenItAsksTheHostForTheCart) {
    show(0);
    log->clear();
    stage.click("Ir al carrito");
    EXPECT_THAT(taken(log),
                ElementsAre(event("My Clients Orders", "Go to Cart"), "overlay", "navigateToCart"));
    stage.click("Ir al carrito");
    stage.clickBar();
    EXPECT_THAT(taken(log), IsEmpty());
    EXPECT_EQ(stage.barClicks(), 0);
}

TEST_F(ResultScreen, BeginsAtItsTopFromTheFirstFrameOn) {
    std::vector<double> offsets;
    const auto look = QObject::connect(stage.stack().window(), &QQuickWindow::frameSwapped, [&] {
        if (const QQuickItem* list = stage.item("result")) {
            offsets.push_back(list->property("contentY").toDouble() - list->property("originY").toDouble());
        }
    });
    show(10);
    QObject::disconnect(look);
    EXPECT_THAT(offsets, AllOf(Not(IsEmpty()), Each(0)));
}

TEST_F(ResultScreen, MakesTheRowsInViewOnlyHoweverManyProductsThereAre) {
    show(10'000);
    EXPECT_TRUE(stage.shows("Code: 1"));
    EXPECT_LT(itemsBelow(stage.stack()), 1'500);
}

} // namespace quillet::testing
