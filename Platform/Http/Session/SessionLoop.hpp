#pragma once

#include "Platform/Http/Curl/CurlTransfer.hpp"
#include "Platform/Http/Process/ProcessEnd.hpp"
#include "Platform/Http/URLSessionConfiguration.hpp"
#include "Platform/Http/URLSessionExchange.hpp"

#include <chrono>
#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <optional>

namespace quillet::platform {

/// A session's engine and its thread. The thread keeps the loop alive and ends when no call is left and the
/// owner is gone; the thread is detached, so it uses nothing that the end of main could take away.
class SessionLoop final : public SessionClockListening, public std::enable_shared_from_this<SessionLoop> {
public:
    explicit SessionLoop(URLSessionConfiguration configuration);

    /// Starts a call; the first one starts the thread. Any thread, as long as the owner is there. Where the
    /// system gives no thread the completion is called at once, on the caller's. Throws std::bad_alloc where
    /// there is no memory for the call, which then is forgotten and never completed.
    void start(URLSessionExchange exchange);

    /// No call will be started any more. Any thread, once.
    void ownerIsGone();

    void clockDidJump() override;

private:
    using TimePoint = std::chrono::steady_clock::time_point;

    struct Call {
        URLSessionExchange exchange;
        std::uint64_t number;
        TimePoint start;
        TimePoint deadline;
        std::unique_ptr<CurlTransfer> transfer = nullptr;
    };
    // A call stays in its node from start to end: libcurl reads the request where it lies, and moving nodes
    // takes no memory.
    using Calls = std::list<Call>;

    bool startThread();
    void wakeUp();

    // From here on: on the session's thread only.
    void run() noexcept;
    void beginArrivedCalls();
    void begin(Calls::iterator call);
    std::optional<URLError> beginTransfer(Call& call);
    void endTransfer(Call& call);
    void finishTransferredCalls();
    void finishTransferredCall(Calls::iterator call, CURLcode code);
    void finishOverdueCalls();
    void finishAllCalls(CURLMcode code);
    void finish(Calls::iterator call, URLSessionOutcome outcome);
    [[nodiscard]] bool isNetworkThere(const Call& call);
    template <typename Foreign>
    void outside(Foreign foreign);
    template <typename Tell>
    void tellObserver(Tell tell);
    [[nodiscard]] int millisecondsToSleep() const;
    [[nodiscard]] bool endIfDone();

    const URLSessionConfiguration configuration_;

    std::mutex mutex_;
    // Guarded by the mutex. The multi handle itself belongs to the session's thread; others only wake it up.
    Calls arrived_;
    CURLM* multi_ = nullptr;
    bool ownerIsGone_ = false;

    // The session's thread's own. The lock is held while libcurl works, and neither while the thread waits
    // nor while it is in somebody else's code.
    ProcessEnd::Lock work_;
    Calls running_;
};

/// What a session and its tasks share: as long as one of them is there, calls may be started.
class SessionOwner {
public:
    explicit SessionOwner(URLSessionConfiguration configuration);
    ~SessionOwner();
    SessionOwner(const SessionOwner&) = delete;
    SessionOwner& operator=(const SessionOwner&) = delete;

    void start(URLSessionExchange exchange) { loop_->start(std::move(exchange)); }

private:
    std::shared_ptr<SessionLoop> loop_;
};

} // namespace quillet::platform
