#pragma once

#include "KelCommon/KelAnalytics.hpp"
#include "Quillet/Platform/MainQueue.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Sandbox/Journal.hpp"

#include <memory>
#include <utility>

namespace demo {

/// Passes what the sessions report on their own threads to the journal on the main thread.
class TrafficRecorder final : public quillet::platform::URLSessionObserving {
public:
    explicit TrafficRecorder(std::shared_ptr<Journal> journal) : journal_(std::move(journal)) {}

    void willSend(std::uint64_t exchange, const quillet::platform::URLRequest& request) override {
        post([=](Journal& journal) { journal.requestStarted(exchange, request); });
    }
    void didEnd(std::uint64_t exchange, const quillet::platform::URLRequest& request,
                const quillet::platform::URLSessionExchangeEnd& end) override {
        post([=](Journal& journal) { journal.requestEnded(exchange, request, end); });
    }

private:
    // The module's main queue outlives everything, so a call may end at any time, even during the program's
    // exit.
    template <typename Entry>
    void post(Entry entry) {
        quillet::platform::mainQueue().async([journal = journal_, entry] { entry(*journal); });
    }

    std::shared_ptr<Journal> journal_;
};

/// The analytics manager of the sample host.
class AnalyticsRecorder final : public kel::KelAnalyticsManagerType {
public:
    explicit AnalyticsRecorder(std::shared_ptr<Journal> journal) : journal_(std::move(journal)) {}

    void trackScreen(const kel::KelAnalyticsScreenType& screen) override {
        journal_->screenTracked(QString::fromStdString(screen.name()));
    }
    void trackEvent(const kel::KelAnalyticsEventType& event) override { journal_->eventTracked(event); }

private:
    std::shared_ptr<Journal> journal_;
};

} // namespace demo
