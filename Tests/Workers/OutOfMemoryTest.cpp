#include "Models/Bodies.hpp"
#include "Quillet/Platform/MainQueue.hpp"
#include "Support/FailingAllocations.hpp"
#include "Support/SandboxedSession.hpp"
#include "Workers/AssociateConsultantToCartWorker.hpp"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <semaphore>
#include <thread>

namespace quillet {

namespace {

using testing::Answer;
using testing::FailingResource;
using testing::Resource;

/// What is refused, the step from one refused time to the next, and the order lines of the answer.
struct Scarcity {
    const char* name;
    Resource resource;
    std::size_t step = 1;
    std::size_t items = 1;

    friend void PrintTo(const Scarcity& scarcity, std::ostream* stream) { *stream << scarcity.name; }
};

std::size_t openFiles() {
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

// Only counts, since recording results would allocate as well.
class CountingDelegate final : public AssociateConsultantToCartWorkerDelegate {
public:
    void didAssociate(const std::shared_ptr<const OrderResult>& result) override {
        complete += result->response && !result->error && result->httpStatusCode == 200;
        failed += !result->response && result->error && result->httpStatusCode == 0;
    }

    std::size_t complete = 0;
    std::size_t failed = 0;
};

/// A worker with its own server, which has two complete answers.
struct WorkerTrial : testing::SandboxedSession {
    explicit WorkerTrial(std::size_t items)
        : SandboxedSession{.serverPlace = {.onThread = &FailingResource::spareThisThread}} {
        const auto lines = tests::itemJson + tests::repeated("," + tests::itemJson, items - 1);
        const auto body = tests::replaced(tests::orderJson, tests::itemJson, lines);
        server.enqueue(Answer::complete(200, body));
        server.enqueue(Answer::complete(200, body));
        platform::URLSessionConfiguration::setDefaultConfiguration(configuration);
        worker = AssociateConsultantToCartWorker::factoryMethod("cart", 7, testing::gatewayHost,
                                                                {"token", "provider"});
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

    std::counting_semaphore<> waiting{0};
    std::shared_ptr<CountingDelegate> delegate = std::make_shared<CountingDelegate>();
    std::shared_ptr<AssociateConsultantToCartWorker> worker;
};

struct OutOf : ::testing::TestWithParam<Scarcity> {
    OutOf() { FailingResource::spareThisThread(); }
};

// libcurl 8.22 passes a null pointer to OpenSSL, which crashes. 8.14 does not.
constexpr unsigned firstThatCrashes = 0x080F00;

} // namespace

// Each time is refused once in turn. The call delivers its answer or an error exactly once, and the next call
// delivers its answer.
TEST_P(OutOf, FailsTheCallAndNotTheNextOne) {
    const auto& [name, resource, step, items] = GetParam();
    const auto* const libcurl = curl_version_info(CURLVERSION_NOW);
    if (resource == Resource::openSsl && libcurl->version_num >= firstThatCrashes) {
        GTEST_SKIP() << "libcurl " << libcurl->version
                     << " uses the connection that OpenSSL had no memory for.";
    }
    int cases = 0;
    std::size_t failed = 0;
    bool wasReached = true;
    const std::size_t before = openFiles();
    for (std::size_t index = 1; wasReached; index += step) {
        SCOPED_TRACE(index);
        WorkerTrial trial(items);
        {
            const FailingResource failing(resource, index);
            std::thread([&] { trial.worker->execute(); }).join();
            ASSERT_NO_FATAL_FAILURE(trial.deliver());
            wasReached = failing.hasFailed();
        }
        EXPECT_EQ(trial.delegate->complete + trial.delegate->failed, 1u);
        EXPECT_LE(trial.server.requests().size(), 1u);
        failed += trial.delegate->failed;
        trial.worker->execute();
        ASSERT_NO_FATAL_FAILURE(trial.deliver());
        EXPECT_EQ(trial.delegate->complete + trial.delegate->failed, 2u);
        EXPECT_TRUE(trial.worker->isFinishedSuccessfully());
        ++cases;
    }
    EXPECT_GT(failed, 0u);
    // The sessions' threads end, and close what they have, after the workers.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (openFiles() > before && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::yield();
    }
    EXPECT_LE(openFiles(), before);
    RecordProperty("cases", cases);
}

INSTANTIATE_TEST_SUITE_P(, OutOf,
                         ::testing::Values(Scarcity{"Memory", Resource::cpp},
                                           Scarcity{"CurlsMemory", Resource::curl},
                                           Scarcity{"OpenSslsMemory", Resource::openSsl, 23},
                                           Scarcity{"Threads", Resource::threads, 1, 1000},
                                           Scarcity{"Sockets", Resource::sockets},
                                           Scarcity{"Files", Resource::files}),
                         ::testing::PrintToStringParamName());

} // namespace quillet
