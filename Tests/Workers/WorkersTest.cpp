#include "Support/FakeWorkerCollaborators.hpp"
#include "Workers/AssociateConsultantToCartWorker.hpp"
#include "Workers/CheckoutWorker.hpp"
#include "Workers/GetOpenOrdersWorker.hpp"

#include <gmock/gmock.h>

#include <optional>

namespace quillet {

namespace {

using ::testing::ElementsAre;

// One row per worker: how it is made and what its execution records.
struct Associate {
    static constexpr auto name = "Associate";
    using Result = OrderResult;
    using Delegate = testing::FakeAssociateDelegate;
    static std::vector<std::string> started() { return {"call cart 7"}; }
    static auto make(auto talk, auto queue) {
        return std::make_shared<AssociateConsultantToCartWorker>(
            std::make_unique<testing::FakeAssociateService>(talk), "cart", 7, std::move(queue));
    }
};

struct GetOpenOrders {
    static constexpr auto name = "GetOpenOrders";
    using Result = OpenOrdersResult;
    using Delegate = testing::FakeOpenOrdersDelegate;
    static std::vector<std::string> started() { return {"call"}; }
    static auto make(auto talk, auto queue) {
        return std::make_shared<GetOpenOrdersWorker>(std::make_unique<testing::FakeOpenOrdersService>(talk),
                                                     std::move(queue));
    }
};

struct Checkout {
    static constexpr auto name = "Checkout";
    using Result = CheckoutResult;
    using Delegate = testing::FakeCheckoutDelegate;
    static std::vector<std::string> started() { return {"starting", "call"}; }
    static auto make(auto talk, auto queue) {
        return std::make_shared<CheckoutWorker>(std::make_unique<testing::FakeCheckoutService>(talk),
                                                std::move(queue));
    }
};

template <typename Row>
struct Worker : ::testing::Test {
    using Result = typename Row::Result;

    // A result with or without a response. Its error is not looked at.
    static Result result(std::int64_t status, bool hasResponse) {
        Result made{{}, HttpStatusCodeError{status}, status};
        auto& [response, error, code] = made;
        if (hasResponse) {
            response.emplace();
        }
        return made;
    }

    std::shared_ptr<testing::Conversation<Result>> talk = std::make_shared<testing::Conversation<Result>>();
    std::shared_ptr<platform::MainQueue> queue = std::make_shared<platform::MainQueue>();
    decltype(Row::make(talk, std::make_unique<testing::DrainedQueue>(queue))) worker =
        Row::make(talk, std::make_unique<testing::DrainedQueue>(queue));
    std::shared_ptr<typename Row::Delegate> delegate = std::make_shared<typename Row::Delegate>(talk);

    Worker() { worker->setDelegate(delegate); }
};

struct RowNames {
    template <typename Row>
    static std::string GetName(int) {
        return Row::name;
    }
};

using Rows = ::testing::Types<Associate, GetOpenOrders, Checkout>;
TYPED_TEST_SUITE(Worker, Rows, RowNames);

} // namespace

TYPED_TEST(Worker, TakesTheResultToItsDelegateOnTheMainQueue) {
    EXPECT_FALSE(this->worker->isFinishedSuccessfully());
    this->worker->execute();
    EXPECT_EQ(this->talk->log, TypeParam::started());
    this->talk->log.clear();
    this->talk->pending.at(0)(this->result(500, true));
    EXPECT_TRUE(this->worker->isFinishedSuccessfully());
    EXPECT_TRUE(this->talk->log.empty());
    EXPECT_EQ(this->queue->drain(), 1u);
    EXPECT_THAT(this->talk->log, ElementsAre("result 500"));
}

TYPED_TEST(Worker, RemembersTheLatestOutcomeOfSeveralRuns) {
    this->worker->execute();
    this->worker->execute();
    this->talk->log.clear();
    this->talk->pending.at(1)(this->result(201, true));
    EXPECT_TRUE(this->worker->isFinishedSuccessfully());
    this->talk->pending.at(0)(this->result(200, false));
    EXPECT_FALSE(this->worker->isFinishedSuccessfully());
    this->queue->drain();
    EXPECT_THAT(this->talk->log, ElementsAre("result 201", "result 200"));
}

TYPED_TEST(Worker, DropsAResultThatComesAfterItsEnd) {
    this->worker->execute();
    this->worker->execute();
    this->talk->log.clear();
    this->talk->pending.at(0)(this->result(200, true));
    this->worker.reset();
    this->talk->pending.at(1)(this->result(200, true));
    EXPECT_EQ(this->queue->drain(), 1u);
    EXPECT_TRUE(this->talk->log.empty());
}

TYPED_TEST(Worker, CallsNobodyWhenItsDelegateIsGone) {
    this->worker->execute();
    this->talk->log.clear();
    this->delegate.reset();
    this->talk->pending.at(0)(this->result(200, true));
    EXPECT_TRUE(this->worker->isFinishedSuccessfully());
    EXPECT_EQ(this->queue->drain(), 1u);
    EXPECT_TRUE(this->talk->log.empty());
}

} // namespace quillet
