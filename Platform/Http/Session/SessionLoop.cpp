#include "Platform/Http/Session/SessionLoop.hpp"

#include "Platform/Http/Curl/CurlErrorCode.hpp"
#include "Platform/Http/Curl/CurlLibrary.hpp"
#include "Platform/Http/Process/HostSignals.hpp"
#include "Platform/Http/Process/OpenSsl.hpp"
#include "Platform/Http/SystemNetworkPathMonitor.hpp"
#include "Platform/Http/SystemSessionClock.hpp"

#include <algorithm>
#include <new>
#include <system_error>
#include <thread>
#include <utility>

namespace quillet::platform {

namespace {

constexpr std::chrono::hours longestTimeout(24);

URLSessionConfiguration completed(URLSessionConfiguration configuration) {
    if (!configuration.networkPath) {
        configuration.networkPath = std::make_shared<SystemNetworkPathMonitor>();
    }
    if (!configuration.clock) {
        configuration.clock = std::make_shared<SystemSessionClock>();
    }
    return configuration;
}

} // namespace

SessionLoop::SessionLoop(URLSessionConfiguration configuration)
    : configuration_(completed(std::move(configuration))) {
    // Early, so that libcurl's exit handlers are registered before the host's later ones. Each call checks
    // the error.
    static_cast<void>(initialiseCurl());
}

void SessionLoop::start(URLSessionExchange exchange) {
    if (configuration_.loader) {
        startElsewhere(std::move(exchange));
        return;
    }
    const auto now = configuration_.clock->now();
    const auto deadline =
        now + std::min<std::chrono::milliseconds>(exchange.request.timeoutInterval, longestTimeout);
    Calls call;
    call.push_back({.exchange = std::move(exchange), .report = CallReport(now), .deadline = deadline});
    {
        const std::lock_guard lock(mutex_);
        if (multi_ || startThread()) {
            arrived_.splice(arrived_.end(), call);
            wakeUp();
            return;
        }
    }
    call.front().exchange.completionHandler(
        {}, {}, URLError::of(URLError::Code::unknown, "No thread for the session"));
}

void SessionLoop::startElsewhere(URLSessionExchange exchange) {
    const CallReport report(configuration_.clock->now());
    report.willSend(configuration_, exchange.request);
    const URLRequest request = exchange.request;
    // The loader may end the call after the session. It owns the completion, which therefore must not own it.
    auto configuration = configuration_;
    configuration.loader = nullptr;
    configuration_.loader->load(
        request, [configuration = std::move(configuration), report,
                  exchange = std::move(exchange)](auto data, auto response, auto error) {
            URLSessionOutcome outcome{std::move(data), response, std::move(error)};
            report.didEnd(configuration, exchange.request, outcome);
            exchange.completionHandler(std::move(outcome.data), outcome.response, std::move(outcome.error));
        });
}

bool SessionLoop::startThread() {
    multi_ = curl_multi_init();
    try {
        // Without its wake-up file descriptors a multi handle would not notice new calls while it polls.
        if (multi_ && curl_multi_wakeup(multi_) == CURLM_OK) {
            std::thread([self = shared_from_this()] { self->run(); }).detach();
            return true;
        }
    } catch (const std::system_error&) {
    } catch (const std::bad_alloc&) {
    }
    curl_multi_cleanup(std::exchange(multi_, nullptr));
    return false;
}

void SessionLoop::ownerIsGone() {
    const std::lock_guard lock(mutex_);
    ownerIsGone_ = true;
    wakeUp();
}

void SessionLoop::clockDidJump() {
    const std::lock_guard lock(mutex_);
    wakeUp();
}

void SessionLoop::wakeUp() {
    if (multi_) {
        curl_multi_wakeup(multi_);
    }
}

template <typename Callback>
void SessionLoop::withoutLock(Callback callback) {
    struct Unlocked {
        explicit Unlocked(ProcessEnd::Lock& work) : work_(work) { work_.unlock(); }
        ~Unlocked() { work_.lock(); }
        ProcessEnd::Lock& work_;
    };
    const Unlocked guard(work_);
    callback();
}

void SessionLoop::run() noexcept {
    leaveSignalsToTheHost();
    work_ = ProcessEnd::lock();
    while (true) {
        beginArrivedCalls();
        int unfinished = 0;
        if (const CURLMcode code = curl_multi_perform(multi_, &unfinished); code != CURLM_OK) {
            finishAllCalls(code);
        }
        finishTransferredCalls();
        finishOverdueCalls();
        if (endIfDone()) {
            return;
        }
        // A wake-up before the poll is kept and ends the poll at once.
        withoutLock([&] { curl_multi_poll(multi_, nullptr, 0, millisecondsToSleep(), nullptr); });
    }
}

void SessionLoop::beginArrivedCalls() {
    Calls arrived;
    {
        const std::lock_guard lock(mutex_);
        arrived.swap(arrived_);
    }
    while (!arrived.empty()) {
        const auto call = arrived.begin();
        running_.splice(running_.end(), arrived, call);
        withoutLock([&] { call->report.willSend(configuration_, call->exchange.request); });
        begin(call);
    }
}

void SessionLoop::begin(Calls::iterator call) {
    std::optional<URLError> error;
    try {
        error = beginTransfer(*call);
    } catch (const std::bad_alloc&) {
        error = URLError::outOfMemory();
    }
    if (error) {
        finish(call, {.error = std::move(error)});
    }
}

std::optional<URLError> SessionLoop::beginTransfer(Call& call) {
    if (auto error = initialiseCurl()) {
        return error;
    }
    auto transfer = CurlTransfer::create(call.exchange.request, configuration_);
    if (!transfer) {
        return std::move(transfer).error();
    }
    if (const CURLMcode code = curl_multi_add_handle(multi_, (*transfer)->handle()); code != CURLM_OK) {
        return URLError::of(URLError::Code::unknown, curl_multi_strerror(code));
    }
    call.transfer = *std::move(transfer);
    return std::nullopt;
}

void SessionLoop::endTransfer(Call& call) {
    if (call.transfer) {
        curl_multi_remove_handle(multi_, call.transfer->handle());
        call.transfer.reset();
    }
}

void SessionLoop::finishTransferredCalls() {
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi_, &left)) {
        const auto call = std::ranges::find_if(running_, [&](const Call& one) {
            return one.transfer && one.transfer->handle() == message->easy_handle;
        });
        if (message->msg == CURLMSG_DONE && call != running_.end()) {
            finishTransferredCall(call, message->data.result);
        }
    }
}

void SessionLoop::finishTransferredCall(Calls::iterator call, CURLcode code) {
    // libcurl's only time-out is that for connecting.
    const bool isConnectTimeout = code == CURLE_OPERATION_TIMEDOUT && !call->transfer->hasTlsBegun();
    if ((isConnectTimeout || isFailureToConnect(code)) && !isNetworkThere(*call)) {
        finish(call, {.error = URLError::of(URLError::Code::notConnectedToInternet, "There is no network")});
        return;
    }
    if (isConnectTimeout) {
        endTransfer(*call);
        begin(call);
        return;
    }
    URLSessionOutcome outcome;
    try {
        outcome = call->transfer->outcome(code);
    } catch (const std::bad_alloc&) {
        outcome = {.error = URLError::outOfMemory()};
    }
    finish(call, std::move(outcome));
}

bool SessionLoop::isNetworkThere(const Call& call) {
    const std::string& host = call.exchange.request.url.host;
    bool isThere = true;
    try {
        withoutLock([&] {
            isThere = configuration_.networkPath->isSatisfied(host, configuration_.mapping(host) != nullptr);
        });
    } catch (...) {
        // If the monitor fails, assume that there is a network.
    }
    return isThere;
}

void SessionLoop::finishOverdueCalls() {
    const auto now = configuration_.clock->now();
    for (auto call = running_.begin(); call != running_.end();) {
        const auto next = std::next(call);
        if (call->deadline <= now) {
            finish(call, {.error = URLError::of(URLError::Code::timedOut, "The request timed out")});
        }
        call = next;
    }
}

void SessionLoop::finishAllCalls(CURLMcode code) {
    while (!running_.empty()) {
        finish(running_.begin(), {.error = URLError::of(URLError::Code::unknown, curl_multi_strerror(code))});
    }
}

void SessionLoop::finish(Calls::iterator call, URLSessionOutcome outcome) {
    Calls finished;
    finished.splice(finished.end(), running_, call);
    endTransfer(*call);
    withoutLock([&] {
        call->report.didEnd(configuration_, call->exchange.request, outcome);
        auto completionHandler = std::move(call->exchange.completionHandler);
        completionHandler(std::move(outcome.data), outcome.response, std::move(outcome.error));
    });
}

int SessionLoop::millisecondsToSleep() const {
    // Without calls, only a wake-up ends the wait.
    std::chrono::milliseconds wait = std::chrono::hours(1);
    const auto now = configuration_.clock->now();
    for (const auto& call : running_) {
        wait = std::min(wait, std::chrono::ceil<std::chrono::milliseconds>(call.deadline - now));
        if (call.transfer && !call.transfer->hasTlsBegun() && !call.transfer->isRequestBegun()) {
            // libcurl 7.88 gives up an address in time, but tries the next one only when it is called again,
            // without setting a timer for it.
            wait = std::min(wait, std::chrono::milliseconds(250));
        }
    }
    return static_cast<int>(std::max(wait, std::chrono::milliseconds(0)).count());
}

bool SessionLoop::endIfDone() {
    CURLM* multi = nullptr;
    {
        const std::lock_guard lock(mutex_);
        if (!ownerIsGone_ || !arrived_.empty() || !running_.empty()) {
            return false;
        }
        multi = std::exchange(multi_, nullptr);
    }
    curl_multi_cleanup(multi);
    leaveOpenSsl();
    work_.unlock();
    return true;
}

} // namespace quillet::platform
