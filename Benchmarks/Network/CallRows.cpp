#include "Network/CallRows.hpp"

#include "Harness/Rounds.hpp"
#include "Network/Loopback.hpp"
#include "Quillet/BackendClient.hpp"
#include "Quillet/Platform/MainQueue.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"

#include <curl/curl.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace quillet::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;

/// A signal from one thread to another, once at a time.
class Signal {
public:
    void give() {
        const std::lock_guard lock(mutex_);
        isGiven_ = true;
        changed_.notify_one();
    }
    void take() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return isGiven_; });
        isGiven_ = false;
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    bool isGiven_ = false;
};

/// What is asked of the server.
struct Asked {
    std::string host;
    std::string path;
    std::string token;
};

/// Through the module's client, as a host without Qt uses it.
class OurCall : public std::enable_shared_from_this<OurCall>, public GetOpenOrdersWorkerDelegate {
public:
    void prepare(const BackendClient& client) {
        worker_ = client.getOpenOrders(weak_from_this());
        platform::mainQueue().setWakeUp([this] { queued_.give(); });
    }
    ~OurCall() override { platform::mainQueue().setWakeUp({}); }

    void perform() {
        isOver_ = false;
        worker_->execute();
        while (!isOver_) {
            queued_.take();
            platform::mainQueue().drain();
        }
    }
    void didGetOpenOrders(const std::shared_ptr<const OpenOrdersResult>& result) override {
        if (!result->response) {
            throw std::runtime_error("The server did not answer as it should.");
        }
        isOver_ = true;
    }

private:
    std::shared_ptr<Executable> worker_;
    Signal queued_;
    bool isOver_ = false;
};

std::size_t append(const char* bytes, std::size_t size, std::size_t count, void* body) {
    static_cast<std::string*>(body)->append(bytes, size * count);
    return size * count;
}

/// By libcurl on a thread of its own, without looking at what comes.
class BareCall {
public:
    BareCall(const platform::URLSessionConfiguration& configuration, const Asked& asked)
        : handle_(curl_easy_init()) {
        const platform::HostMapping& mapping = configuration.hostMappings.at(0);
        const std::string port = std::to_string(mapping.port);
        route_ = curl_slist_append(nullptr, (asked.host + ":443:" + mapping.address + ":" + port).c_str());
        headers_ = curl_slist_append(nullptr, ("Authorization: Bearer " + asked.token).c_str());
        curl_easy_setopt(handle_, CURLOPT_URL, ("https://" + asked.host + asked.path).c_str());
        curl_easy_setopt(handle_, CURLOPT_CAINFO, configuration.caBundleFile.c_str());
        curl_easy_setopt(handle_, CURLOPT_CONNECT_TO, route_);
        curl_easy_setopt(handle_, CURLOPT_HTTPHEADER, headers_);
        curl_easy_setopt(handle_, CURLOPT_WRITEFUNCTION, &append);
        curl_easy_setopt(handle_, CURLOPT_WRITEDATA, &body_);
        thread_ = std::thread([this] { serve(); });
    }
    ~BareCall() {
        isOver_ = true;
        asked_.give();
        thread_.join();
        curl_easy_cleanup(handle_);
        curl_slist_free_all(route_);
        curl_slist_free_all(headers_);
    }
    BareCall(const BareCall&) = delete;
    BareCall& operator=(const BareCall&) = delete;

    void perform() {
        body_.clear();
        asked_.give();
        answered_.take();
        if (code_ != CURLE_OK || body_.empty()) {
            throw std::runtime_error(curl_easy_strerror(code_));
        }
    }

private:
    void serve() {
        for (asked_.take(); !isOver_; asked_.take()) {
            code_ = curl_easy_perform(handle_);
            answered_.give();
        }
    }

    CURL* handle_;
    curl_slist* route_ = nullptr;
    curl_slist* headers_ = nullptr;
    std::string body_;
    CURLcode code_ = CURLE_OK;
    /// Written before the signal that is read.
    bool isOver_ = false;
    Signal asked_;
    Signal answered_;
    std::thread thread_;
};

} // namespace

std::vector<Row> callRows(const Options& options) {
    Loopback loopback("gateway.bench");
    platform::URLSessionConfiguration::setDefaultConfiguration(loopback.configuration);
    const auto authorization = authorize(std::string(1024, 'a'), "identity provider", "527308");
    const BackendClient client(*authorization, {.uuid = "cart", .consultantId = 41052, .country = "CL"},
                               loopback.host);
    const auto ours = std::make_shared<OurCall>();
    ours->prepare(client);
    BareCall bare(
        loopback.configuration,
        {loopback.host, "/quillet-bff/consultants/CL/41052/sell-out-carts?status=OPEN", authorization->jwt});

    const auto answer = testing::Answer::complete(200, testing::sampleBody(testing::Call::getOpenOrders));
    const auto microseconds = [&](auto& call) {
        loopback.server.enqueue(answer);
        const auto start = Clock::now();
        call.perform();
        return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
    };
    Rounds calls;
    const std::size_t unmeasured = options.times(100, 2);
    const std::size_t measured = options.times(4000, 20);
    for (std::size_t i = 0; i < unmeasured + measured; ++i) {
        // In turns who is first.
        const double early = i % 2 == 0 ? microseconds(*ours) : microseconds(bare);
        const double late = i % 2 == 0 ? microseconds(bare) : microseconds(*ours);
        if (i >= unmeasured) {
            calls.ours.add(i % 2 == 0 ? early : late);
            calls.yardstick.add(i % 2 == 0 ? late : early);
        }
    }
    if (loopback.server.connections() != 2) {
        throw std::logic_error("The calls were not warm.");
    }
    const auto row = [&](const std::string& name, double percent, double goal) {
        return ratioRow("06 a warm GET to the delegate / by bare libcurl, " + name, "us",
                        calls.ours.percentile(percent), calls.yardstick.percentile(percent), atMost(goal));
    };
    return {row("median", 50, 1.1), row("99th percentile", 99, 1.25)};
}

} // namespace quillet::benchmarks
