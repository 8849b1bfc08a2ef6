#include "SaleSummary/FakeExecutable.hpp"
#include "SaleSummary/Fakes.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModel.hpp"

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Lines = std::vector<std::string>;

class FakeUseCase final : public SaleSummaryUseCase {
public:
    FakeUseCase(Log log, std::string name, bool applies)
        : log_(std::move(log)), name_(std::move(name)), applies_(applies) {}
    [[nodiscard]] bool canShowContent() const override { return applies_; }
    void showContent() override { log_->push_back("show " + name_); }

private:
    Log log_;
    std::string name_;
    bool applies_;
};

/// Three outcomes; the second and third apply.
class FakeUseCases final : public SaleSummaryUseCaseCreating {
public:
    FakeUseCases(Log log, std::vector<SaleSummaryUseCaseFactoryInput>& inputs)
        : log_(std::move(log)), inputs_(inputs) {}
    [[nodiscard]] std::vector<std::unique_ptr<SaleSummaryUseCase>>
    createAllUseCases(const SaleSummaryUseCaseFactoryInput& input) const override {
        inputs_.push_back(input);
        std::vector<std::unique_ptr<SaleSummaryUseCase>> useCases;
        useCases.push_back(std::make_unique<FakeUseCase>(log_, "first", false));
        useCases.push_back(std::make_unique<FakeUseCase>(log_, "second", true));
        useCases.push_back(std::make_unique<FakeUseCase>(log_, "third", true));
        return useCases;
    }

private:
    Log log_;
    std::vector<SaleSummaryUseCaseFactoryInput>& inputs_;
};

struct SaleSummaryViewModelTest : ::testing::Test {
    SaleSummaryViewModelTest() { viewModel.setDelegate(screen); }

    Log log = makeLog();
    std::shared_ptr<FakeExecutable> associate = std::make_shared<FakeExecutable>(log, "associate");
    std::shared_ptr<FakeExecutable> orders = std::make_shared<FakeExecutable>(log, "open orders");
    std::shared_ptr<FakeSaleSummaryScreen> screen = std::make_shared<FakeSaleSummaryScreen>(log);
    std::vector<SaleSummaryUseCaseFactoryInput> inputs;
    SaleSummaryViewModel viewModel{std::make_shared<RecordingAnalytics>(log), associate, orders,
                                   std::make_unique<FakeUseCases>(log, inputs)};

    void finishFirstPass() {
        viewModel.doRequests();
        viewModel.didAssociate(shared(OrderResult{.response = {}, .error = {}, .httpStatusCode = 504}));
        viewModel.didGetOpenOrders(
            shared(OpenOrdersResult{.response = {}, .error = {}, .httpStatusCode = 504}));
        log->clear();
        inputs.clear();
    }
};

} // namespace

TEST_F(SaleSummaryViewModelTest, AsksForTheOpenOrdersOnlyAfterTheAssociationHoweverItEnded) {
    const OrderResult answers[] = {
        {.response = OrderResponse{}, .error = {}, .httpStatusCode = 200},
        {.response = {}, .error = refusal("ERROR_CART_OTHER_CONSULTANT"), .httpStatusCode = 422},
        {.response = {}, .error = transportError(platform::URLError::Code::timedOut), .httpStatusCode = 0},
    };
    for (const OrderResult& answer : answers) {
        SCOPED_TRACE(answer.httpStatusCode);
        viewModel.doRequests();
        EXPECT_THAT(taken(log), ElementsAre("associate", "startLoading"));
        viewModel.didAssociate(shared(answer));
        EXPECT_THAT(taken(log), ElementsAre("open orders"));
        viewModel.didGetOpenOrders(
            shared(OpenOrdersResult{.response = {}, .error = {}, .httpStatusCode = 500}));
        EXPECT_THAT(taken(log), ElementsAre("stopLoading", "show second"));
        EXPECT_EQ(inputs.back().associateResult->httpStatusCode, answer.httpStatusCode);
        EXPECT_EQ(inputs.back().getOpenOrdersResult->httpStatusCode, 500);
        EXPECT_EQ(inputs.back().delegate.lock(), screen);
    }
    EXPECT_EQ(inputs.size(), 3u);
}

TEST_F(SaleSummaryViewModelTest, RepeatsOnlyTheCallsThatHaveNotSucceeded) {
    const struct {
        bool associated;
        bool gotOrders;
        Lines retried;
    } cases[] = {
        {false, false, {"associate", "open orders", "startLoading"}},
        {false, true, {"associate", "startLoading"}},
        {true, false, {"open orders", "startLoading"}},
        {true, true, {"startLoading"}},
    };
    for (const auto& [associated, gotOrders, retried] : cases) {
        finishFirstPass();
        associate->succeeded = associated;
        orders->succeeded = gotOrders;
        viewModel.tryAgainDoRequests();
        EXPECT_EQ(taken(log), retried);
    }
}

TEST_F(SaleSummaryViewModelTest, JoinsTwiceWhereBothCallsAreRetriedAndTheAssociationAnswersFirst) {
    finishFirstPass();
    viewModel.tryAgainDoRequests();
    log->clear();
    viewModel.didAssociate(
        shared(OrderResult{.response = OrderResponse{}, .error = {}, .httpStatusCode = 200}));
    EXPECT_THAT(taken(log), ElementsAre("open orders"));
    for (const std::int64_t status : {500, 200}) {
        viewModel.didGetOpenOrders(
            shared(OpenOrdersResult{.response = {}, .error = {}, .httpStatusCode = status}));
        EXPECT_THAT(taken(log), ElementsAre("stopLoading", "show second"));
        EXPECT_EQ(inputs.back().getOpenOrdersResult->httpStatusCode, status);
        EXPECT_TRUE(inputs.back().associateResult->response);
    }
}

TEST_F(SaleSummaryViewModelTest, WaitsForTheRepeatedAssociationWhereTheOpenOrdersAnswerFirst) {
    finishFirstPass();
    viewModel.tryAgainDoRequests();
    log->clear();
    viewModel.didGetOpenOrders(shared(OpenOrdersResult()));
    EXPECT_THAT(taken(log), IsEmpty());
    viewModel.didAssociate(shared(OrderResult()));
    // The first answer still counts for this pass, so the next one completes the join.
    viewModel.didGetOpenOrders(shared(OpenOrdersResult()));
    EXPECT_THAT(taken(log), ElementsAre("open orders", "stopLoading", "show second"));
}

TEST_F(SaleSummaryViewModelTest, GoesOnWithoutItsScreen) {
    screen.reset();
    viewModel.doRequests();
    viewModel.tryAgainDoRequests();
    viewModel.didAssociate(shared(OrderResult()));
    viewModel.didGetOpenOrders(shared(OpenOrdersResult()));
    EXPECT_THAT(taken(log),
                ElementsAre("associate", "associate", "open orders", "open orders", "show second"));
}

} // namespace quillet::testing
