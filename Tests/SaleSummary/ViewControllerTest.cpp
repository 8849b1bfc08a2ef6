#include "SaleSummary/Fakes.hpp"
#include "SaleSummary/Screen/SaleSummaryViewController.hpp"

#include <QVariant>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;

class FakeRouter final : public SaleSummaryRoutering {
public:
    FakeRouter(Log log, std::shared_ptr<platform::QuickViewController>& origin)
        : log_(std::move(log)), origin_(origin) {}
    void showCheckout(const ViewController* from) override {
        log_->push_back("showCheckout");
        origin_ = from->originViewController();
    }

private:
    Log log_;
    std::shared_ptr<platform::QuickViewController>& origin_;
};

struct SaleSummaryViewControllerTest : ::testing::Test {
    Log log = makeLog();
    std::shared_ptr<platform::QuickViewController> origin;
    std::shared_ptr<SaleSummaryViewController> screen = std::make_shared<SaleSummaryViewController>(
        std::make_shared<FakeSaleSummaryViewModel>(log), std::make_unique<Colors>(),
        std::make_unique<FakeRouter>(log, origin), std::make_unique<ViewControllerWrapperFactory>(),
        std::make_unique<SaleSummaryViewFactory>(), std::weak_ptr<QuilletNavigationDelegate>(),
        std::make_unique<DialogFactory>(), std::make_unique<TryAgainFactory>());
};

} // namespace

TEST_F(SaleSummaryViewControllerTest, StartsACheckoutFromItselfForEachTapOnTheSummary) {
    screen->viewDidLoad();
    const auto content = SaleSummaryViewFactory().create(
        {{PointsInProgressPresenter(0), {}}, {OrderPointsPresenter(0), {}, {}, 0}});
    auto& view = dynamic_cast<SaleSummaryView&>(*content);
    view.setDelegate(screen->viewDelegate());
    view.tapSendProducts();
    view.tapSendProducts();
    EXPECT_THAT(taken(log), ElementsAre("trackAnalyticsScreen", "doRequests", "trackSendOrdersToCart",
                                        "showCheckout", "trackSendOrdersToCart", "showCheckout"));
    EXPECT_EQ(std::exchange(origin, nullptr), screen);
    screen.reset();
    view.tapSendProducts();
    EXPECT_THAT(taken(log), ElementsAre());
}

TEST_F(SaleSummaryViewControllerTest, ShowsTheNewestViewOfEachSlot) {
    screen->addContentView();
    screen->addTryAgainView();
    EXPECT_EQ(screen->shownContentView(), nullptr);
    EXPECT_EQ(screen->shownTryAgainView(), nullptr);

    for (const char* message : {"first", "second"}) {
        screen->setTryAgainView(screen->tryAgainFactory().create({{}, message, {}, {}}, [] {}));
        screen->addTryAgainView();
        EXPECT_EQ(screen->shownTryAgainView()->property("message").toString(), message);
        screen->showDialog(DialogPresenter{message, {}, {}}, {});
        EXPECT_EQ(screen->dialogMessage()->property("title").toString(), message);
    }
    screen->removeTryAgainView();
    EXPECT_EQ(screen->shownTryAgainView(), nullptr);
}

} // namespace quillet::testing
