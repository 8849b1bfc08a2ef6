#include "SaleSummary/Fakes.hpp"
#include "SaleSummary/Screen/SaleSummaryViewController.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModel.hpp"
#include "Support/FakeWorkerCollaborators.hpp"
#include "Workers/AssociateConsultantToCartWorker.hpp"
#include "Workers/GetOpenOrdersWorker.hpp"

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

TEST_F(SaleSummaryViewControllerTest, TracksItsScreenBeforeTheFirstRequest) {
    screen->viewDidLoad();
    EXPECT_THAT(taken(log), ElementsAre("trackAnalyticsScreen", "doRequests"));
}

TEST_F(SaleSummaryViewControllerTest, StartsACheckoutFromItselfForEachTapOnTheSummary) {
    const auto content = SaleSummaryViewFactory().create(
        {{PointsInProgressPresenter(0), {}}, {OrderPointsPresenter(0), {}, {}, 0}});
    auto& view = dynamic_cast<SaleSummaryView&>(*content);
    view.setDelegate(screen->viewDelegate());
    view.tapSendProducts();
    view.tapSendProducts();
    EXPECT_THAT(taken(log), ElementsAre("trackSendOrdersToCart", "showCheckout", "trackSendOrdersToCart",
                                        "showCheckout"));
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
    }
    screen->removeTryAgainView();
    EXPECT_EQ(screen->shownTryAgainView(), nullptr);

    for (const char* title : {"first", "second"}) {
        screen->showDialog(DialogPresenter{title, {}, {}}, {});
        EXPECT_EQ(screen->dialogMessage()->property("title").toString(), title);
    }
}

TEST_F(SaleSummaryViewControllerTest, FollowsANewThemeWithItsLabels) {
    screen->viewDidLoad();
    const PointsLabel points(PointsInProgressPresenter(1), 5);
    const QColor light = points.color();
    int changes = 0;
    QObject::connect(&points, &ThemedView::themeChanged, [&] { ++changes; });
    QObject::connect(screen.get(), &platform::QuickViewController::backgroundColorChanged,
                     [&] { ++changes; });
    kel::KelAppearance::current().setTheme(kel::KelTheme::dark);
    const QColor dark = points.color();
    EXPECT_EQ(screen->backgroundColor(), kel::KelColors::background());
    kel::KelAppearance::current().setTheme(kel::KelTheme::light);
    EXPECT_NE(dark, light);
    EXPECT_EQ(points.color(), light);
    EXPECT_EQ(changes, 4);
}

// The screen is held by the page that draws it, and by nobody else.
TEST_F(SaleSummaryViewControllerTest, TakesEverythingBehindItAlongInTheMiddleOfItsCalls) {
    const auto queue = std::make_shared<platform::MainQueue>();
    const auto association = std::make_shared<Conversation<OrderResult>>();
    const auto openOrders = std::make_shared<Conversation<OpenOrdersResult>>();
    auto associateWorker =
        std::make_shared<AssociateConsultantToCartWorker>(std::make_unique<FakeAssociateService>(association),
                                                          "cart", 1, std::make_unique<DrainedQueue>(queue));
    auto openOrdersWorker = std::make_shared<GetOpenOrdersWorker>(
        std::make_unique<FakeOpenOrdersService>(openOrders), std::make_unique<DrainedQueue>(queue));
    auto viewModel = std::make_shared<SaleSummaryViewModel>(std::make_shared<RecordingAnalytics>(log),
                                                            associateWorker, openOrdersWorker,
                                                            std::make_unique<SaleSummaryUseCaseFactory>());
    associateWorker->setDelegate(viewModel);
    openOrdersWorker->setDelegate(viewModel);
    auto whole = std::make_shared<SaleSummaryViewController>(
        viewModel, std::make_unique<Colors>(), std::make_unique<FakeRouter>(log, origin),
        std::make_unique<ViewControllerWrapperFactory>(), std::make_unique<SaleSummaryViewFactory>(),
        std::weak_ptr<QuilletNavigationDelegate>(), std::make_unique<DialogFactory>(),
        std::make_unique<TryAgainFactory>());
    viewModel->setDelegate(whole);
    const std::tuple<std::weak_ptr<void>, std::weak_ptr<void>, std::weak_ptr<void>> parts{
        std::exchange(viewModel, nullptr), std::exchange(associateWorker, nullptr),
        std::exchange(openOrdersWorker, nullptr)};
    const auto living = [&] {
        return std::apply([](const auto&... part) { return (int(!part.expired()) + ...); }, parts) +
               int(association.use_count() > 1) + int(openOrders.use_count() > 1);
    };

    whole->viewDidLoad();
    association->pending[0]({.response = {}, .error = HttpStatusCodeError{500}, .httpStatusCode = 500});
    queue->drain();
    ASSERT_EQ(openOrders->pending.size(), 1u);
    // View model, two workers and their two services.
    EXPECT_EQ(living(), 5);
    log->clear();
    whole.reset();
    EXPECT_EQ(living(), 0);
    openOrders->pending[0]({.response = {}, .error = HttpStatusCodeError{500}, .httpStatusCode = 500});
    queue->drain();
    EXPECT_THAT(*log, ElementsAre());
}

} // namespace quillet::testing
