#pragma once

#include "Quillet/QuilletNavigationDelegate.hpp"

// Kel's own build has the analytics in a header without Qt. Another design system has the header that Kel's
// page names.
#if __has_include(<KelCommon/KelAnalytics.hpp>)
#include <KelCommon/KelAnalytics.hpp>
#else
#include <KelCommon/KelCommon.hpp>
#endif

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quillet::testing {

/// What happened around the module or a part of it, in order, over all recorders that share this log.
using Log = std::shared_ptr<std::vector<std::string>>;

inline Log makeLog() {
    return std::make_shared<std::vector<std::string>>();
}

/// Takes the lines so far out of the log.
inline std::vector<std::string> taken(const Log& log) {
    return std::exchange(*log, {});
}

/// An event's line in the log. All events of the module have one category.
inline std::string event(const std::string& action, const std::string& label) {
    return "event Quillet - SellOutIntegration / " + action + " / " + label;
}

/// Hears of each line as soon as it is in the log. A test may do there what a host does.
using Listener = std::function<void(std::string line)>;

/// An analytics manager that records "screen <name>" and the lines of `event`. Main thread only.
class RecordingAnalytics final : public kel::KelAnalyticsManagerType {
public:
    explicit RecordingAnalytics(
        Log log, Listener listener = [](const auto&) {})
        : log_(std::move(log)), listener_(std::move(listener)) {}
    void trackScreen(const kel::KelAnalyticsScreenType& screen) override {
        listener_(log_->emplace_back("screen " + screen.name()));
    }
    void trackEvent(const kel::KelAnalyticsEventType& event) override {
        listener_(log_->emplace_back("event " + event.category() + " / " + event.action() + " / " +
                                     event.label().value_or("no label")));
    }

private:
    Log log_;
    Listener listener_;
};

/// A host that records the names of the functions that the module calls. Main thread only.
class RecordingNavigation final : public QuilletNavigationDelegate {
public:
    explicit RecordingNavigation(
        Log log, Listener listener = [](const auto&) {})
        : log_(std::move(log)), listener_(std::move(listener)) {}
    void navigateToCart() override { listener_(log_->emplace_back("navigateToCart")); }
    void navigateToHome() override { listener_(log_->emplace_back("navigateToHome")); }
    void navigateToShareMagazine() override { listener_(log_->emplace_back("navigateToShareMagazine")); }

private:
    Log log_;
    Listener listener_;
};

} // namespace quillet::testing
