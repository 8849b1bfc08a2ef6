#include "Network/Session/SessionLoop.hpp"

#include "Network/Session/Curl/CurlErrorCode.hpp"
#include "Network/Session/Curl/CurlLibrary.hpp"
#include "Network/Support/HostSignals.hpp"
#include "Network/Support/OpenSsl.hpp"

#include <algorithm>
#include <atomic>
#include <limits>
#include <system_error>
#include <thread>
#include <utility>

namespace quillet {

namespace {

std::atomic<std::uint64_t> exchangeCount = 0;

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
    initialiseCurl();
}

void SessionLoop::start(URLSessionExchange exchange) {
    const auto now = configuration_.clock->now();
    const auto deadline =
        now + std::min<std::chrono::milliseconds>(exchange.request.timeoutInterval, longestTimeout);
    Call call{.exchange = std::move(exchange), .number = ++exchangeCount, .start = now, .deadline = deadline};
    {
        const std::lock_guard lock(mutex_);
        if (multi_ || startThread()) {
            arrived_.push_back(std::move(call));
            curl_multi_wakeup(multi_);
            return;
        }
    }
    call.exchange.completionHandler({}, {}, URLError{URLError::Code::unknown, "No thread for the session"});
}

bool SessionLoop::startThread() {
    multi_ = curl_multi_init();
    if (!multi_) {
        return false;
    }
    try {
        std::thread([self = shared_from_this()] { self->run(); }).detach();
    } catch (const std::system_error&) {
        curl_multi_cleanup(std::exchange(multi_, nullptr));
        return false;
    }
    return true;
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

template <typename Foreign>
void SessionLoop::outside(Foreign foreign) {
    work_.unlock();
    foreign();
    work_.lock();
}

void SessionLoop::run() noexcept {
    leaveSignalsToTheHost();
    work_ = ProcessEnd::lock();
    while (true) {
        beginArrivedCalls();
        int unfinished = 0;
        if (const CURLMcode code = curl_multi_perform(multi_, &unfinished); code != CURLM_OK) {
            finishAllCalls({URLError::Code::unknown, curl_multi_strerror(code)});
        }
        finishTransferredCalls();
        finishOverdueCalls();
        if (endIfDone()) {
            return;
        }
        // A wake-up that comes before the poll is not lost: it ends the poll at once.
        outside([&] { curl_multi_poll(multi_, nullptr, 0, millisecondsToNextDeadline(), nullptr); });
    }
}

void SessionLoop::beginArrivedCalls() {
    std::vector<Call> arrived;
    {
        const std::lock_guard lock(mutex_);
        arrived.swap(arrived_);
    }
    for (auto& call : arrived) {
        begin(std::move(call));
    }
}

void SessionLoop::begin(Call call) {
    const auto& request = call.exchange.request;
    const bool isMapped = configuration_.mapping(request.url.host) != nullptr;
    bool isSatisfied = false;
    outside([&] { isSatisfied = configuration_.networkPath->isSatisfied(request.url.host, isMapped); });
    if (!isSatisfied) {
        complete(call, {.error = URLError{URLError::Code::notConnectedToInternet, "There is no network"}});
        return;
    }
    // The transfer reads the request where it lies, so the call must be in its place first.
    const auto place = running_.insert(running_.end(), std::move(call));
    auto transfer = CurlTransfer::create(place->exchange.request, configuration_);
    if (!transfer) {
        finish(place, {.error = std::move(transfer).error()});
        return;
    }
    if (configuration_.observer) {
        outside([&] { configuration_.observer->willSend(place->number, place->exchange.request); });
    }
    if (const CURLMcode code = curl_multi_add_handle(multi_, (*transfer)->handle()); code != CURLM_OK) {
        finish(place, {.error = URLError{URLError::Code::unknown, curl_multi_strerror(code)}});
        return;
    }
    place->transfer = *std::move(transfer);
}

void SessionLoop::finishTransferredCalls() {
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi_, &left)) {
        const auto place = std::ranges::find_if(running_, [&](const Call& call) {
            return call.transfer && call.transfer->handle() == message->easy_handle;
        });
        if (message->msg == CURLMSG_DONE && place != running_.end()) {
            const CURLcode code = message->data.result;
            finish(place, place->transfer->outcome(code));
        }
    }
}

void SessionLoop::finishOverdueCalls() {
    const auto now = configuration_.clock->now();
    for (auto call = running_.begin(); call != running_.end();) {
        const auto next = std::next(call);
        if (call->deadline <= now) {
            finish(call, {.error = URLError{URLError::Code::timedOut, "The request timed out"}});
        }
        call = next;
    }
}

void SessionLoop::finishAllCalls(const URLError& error) {
    while (!running_.empty()) {
        finish(running_.begin(), {.error = error});
    }
}

void SessionLoop::finish(std::list<Call>::iterator place, URLSessionOutcome outcome) {
    std::list<Call> finished;
    finished.splice(finished.end(), running_, place);
    if (place->transfer) {
        curl_multi_remove_handle(multi_, place->transfer->handle());
        place->transfer.reset();
    }
    complete(*place, std::move(outcome));
}

void SessionLoop::complete(Call& call, URLSessionOutcome outcome) {
    if (configuration_.observer) {
        URLSessionExchangeEnd end;
        end.statusCode = outcome.response ? outcome.response->statusCode : 0;
        end.errorCode = outcome.error ? std::optional(outcome.error->code) : std::nullopt;
        end.duration =
            std::chrono::duration_cast<std::chrono::milliseconds>(configuration_.clock->now() - call.start);
        outside([&] { configuration_.observer->didEnd(call.number, call.exchange.request, end); });
    }
    outside([&] {
        auto completionHandler = std::move(call.exchange.completionHandler);
        completionHandler(std::move(outcome.data), std::move(outcome.response), std::move(outcome.error));
    });
}

int SessionLoop::millisecondsToNextDeadline() const {
    // Without a call there is nothing to wait for but a wake-up.
    std::chrono::milliseconds wait = std::chrono::hours(1);
    const auto now = configuration_.clock->now();
    for (const auto& call : running_) {
        wait = std::min(wait, std::chrono::ceil<std::chrono::milliseconds>(call.deadline - now));
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

SessionOwner::SessionOwner(URLSessionConfiguration configuration) {
    const auto clock = configuration.clock;
    loop_ = std::make_shared<SessionLoop>(std::move(configuration));
    if (clock) {
        clock->addListener(loop_);
    }
}

SessionOwner::~SessionOwner() {
    loop_->ownerIsGone();
}

} // namespace quillet
