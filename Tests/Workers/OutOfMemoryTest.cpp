#include "Models/Bodies.hpp"
#include "Quillet/Platform/MainQueue.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Quillet/Testing/ManualClock.hpp"
#include "Support/FailingAllocations.hpp"
#include "Support/FaultServer.hpp"
#include "Workers/AssociateConsultantToCartWorker.hpp"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <pthread.h>

#include <limits>
#include <semaphore>
#include <thread>

namespace quillet {

namespace {

using testing::Allocator;
using testing::Answer;
using testing::FailingAllocation;

/// Which allocator fails, and the step from one failing allocation to the next.
struct Scarcity {
    std::string name;
    Allocator allocator;
    std::size_t step;
};

std::ostream& operator<<(std::ostream& stream, const Scarcity& scarcity) {
    return stream << scarcity.name;
}

// Only counts, since recording results would allocate as well.
class CountingDelegate final : public AssociateConsultantToCartWorkerDelegate {
public:
    void didAssociate(const std::shared_ptr<const OrderResult>& result) override {
        ++outcomes;
        complete += result->response && !result->error && result->httpStatusCode == 200;
        failed += !result->response && result->error && result->httpStatusCode == 0;
    }

    std::size_t outcomes = 0;
    std::size_t complete = 0;
    std::size_t failed = 0;
};

/// A worker with its own server, which has two complete answers.
class WorkerTrial {
public:
    explicit WorkerTrial(const testing::TestAuthority& authority)
        : server(authority.serverContext("gateway.test"), {.onThread = &FailingAllocation::spareThisThread}) {
        server.enqueue(Answer::complete(200, tests::orderJson));
        server.enqueue(Answer::complete(200, tests::orderJson));
        platform::URLSessionConfiguration::setDefaultConfiguration(
            {.caBundleFile = authority.bundleFile(),
             .hostMappings = {{.host = "gateway.test", .address = "127.0.0.1", .port = server.port()}},
             .clock = clock});
        worker =
            AssociateConsultantToCartWorker::factoryMethod("cart", 7, "gateway.test", {"token", "provider"});
        worker->setDelegate(delegate);
        platform::mainQueue().setWakeUp([this] { waiting.release(); });
    }
    ~WorkerTrial() { platform::mainQueue().setWakeUp(nullptr); }

    /// Waits for an outcome and delivers it. OpenSSL may lose a message when an allocation fails, and then
    /// both sides wait until the call's deadline.
    void deliver() {
        if (!waiting.try_acquire_for(std::chrono::seconds(5))) {
            clock->advance(std::chrono::seconds(60));
            ASSERT_TRUE(waiting.try_acquire_for(std::chrono::seconds(30))) << "no outcome";
        }
        // Not on this thread, which is exempt.
        std::thread([] { platform::mainQueue().drain(); }).join();
    }

    /// Makes one more call, which must succeed.
    void expectNextCallComplete() {
        const auto complete = delegate->complete;
        const auto outcomes = delegate->outcomes;
        worker->execute();
        ASSERT_NO_FATAL_FAILURE(deliver());
        EXPECT_EQ(delegate->complete, complete + 1);
        EXPECT_EQ(delegate->outcomes, outcomes + 1);
        EXPECT_TRUE(worker->isFinishedSuccessfully());
    }

    testing::FaultServer server;
    std::shared_ptr<testing::ManualClock> clock = std::make_shared<testing::ManualClock>();
    std::counting_semaphore<> waiting{0};
    std::shared_ptr<CountingDelegate> delegate = std::make_shared<CountingDelegate>();
    std::shared_ptr<AssociateConsultantToCartWorker> worker;
};

struct OutOfThreads : ::testing::Test {
    OutOfThreads() { FailingAllocation::spareThisThread(); }

    testing::TestAuthority authority;
};

struct OutOfMemory : OutOfThreads, ::testing::WithParamInterface<Scarcity> {};

// libcurl 8.22 passes a null pointer to OpenSSL, which crashes. 8.14 does not.
constexpr unsigned firstThatCrashes = 0x080F00;

// From here on no thread can start: its stack would be larger than the address space.
class NoThreads {
public:
    NoThreads() {
        pthread_getattr_default_np(&before_);
        pthread_attr_t attributes;
        pthread_attr_init(&attributes);
        pthread_attr_setstacksize(&attributes, std::numeric_limits<std::size_t>::max() / 8 * 7);
        pthread_setattr_default_np(&attributes);
    }
    ~NoThreads() { pthread_setattr_default_np(&before_); }

private:
    pthread_attr_t before_;
};

} // namespace

// Each allocation fails once in turn. The call delivers its answer or an error exactly once, and the next
// call delivers its answer.
TEST_P(OutOfMemory, FailsTheCallAndNotTheNextOne) {
    const auto* const libcurl = curl_version_info(CURLVERSION_NOW);
    if (GetParam().allocator == Allocator::openSsl && libcurl->version_num >= firstThatCrashes) {
        GTEST_SKIP() << "libcurl " << libcurl->version
                     << " uses the connection that OpenSSL had no memory for.";
    }
    std::size_t failed = 0;
    bool wasReached = true;
    for (std::size_t index = 1; wasReached; index += GetParam().step) {
        SCOPED_TRACE(index);
        WorkerTrial trial(authority);
        {
            const FailingAllocation failing(GetParam().allocator, index);
            std::thread([&] { trial.worker->execute(); }).join();
            ASSERT_NO_FATAL_FAILURE(trial.deliver());
            wasReached = failing.hasFailed();
        }
        EXPECT_EQ(trial.delegate->complete + trial.delegate->failed, 1u);
        EXPECT_LE(trial.server.requests().size(), 1u);
        failed += trial.delegate->failed;
        ASSERT_NO_FATAL_FAILURE(trial.expectNextCallComplete());
    }
    EXPECT_GT(failed, 0u);
}

TEST_F(OutOfThreads, FailsTheCallAndNotTheNextOne) {
    WorkerTrial trial(authority);
    {
        const NoThreads none;
        trial.worker->execute();
    }
    ASSERT_NO_FATAL_FAILURE(trial.deliver());
    EXPECT_EQ(trial.delegate->failed, 1u);
    ASSERT_NO_FATAL_FAILURE(trial.expectNextCallComplete());
}

INSTANTIATE_TEST_SUITE_P(, OutOfMemory,
                         ::testing::Values(Scarcity{"Cpp", Allocator::cpp, 1},
                                           Scarcity{"Curl", Allocator::curl, 1},
                                           Scarcity{"OpenSsl", Allocator::openSsl, 23}),
                         [](const auto& parameter) { return parameter.param.name; });

} // namespace quillet
