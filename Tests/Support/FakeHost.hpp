#pragma once

#include "KelCommon/KelAnalytics.hpp"
#include "Quillet/QuilletNavigationDelegate.hpp"
#include "Quillet/Workers.hpp"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quillet::testing {

/// What happened around the unit under test, in order, over all fakes that share this log.
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

class FakeAnalytics final : public kel::KelAnalyticsManagerType {
public:
    explicit FakeAnalytics(Log log) : log_(std::move(log)) {}
    void trackScreen(const kel::KelAnalyticsScreenType& screen) override {
        log_->push_back("screen " + screen.name());
    }
    void trackEvent(const kel::KelAnalyticsEventType& event) override {
        log_->push_back("event " + event.category() + " / " + event.action() + " / " +
                        event.label().value_or("no label"));
        if (event.value() || event.event() || event.error() || event.errorCodes() || event.shouldLeave()) {
            log_->push_back("an event with more than its three texts");
        }
    }

private:
    Log log_;
};

class FakeNavigation final : public QuilletNavigationDelegate {
public:
    explicit FakeNavigation(Log log) : log_(std::move(log)) {}
    void navigateToCart() override { log_->push_back("navigateToCart"); }
    void navigateToHome() override { log_->push_back("navigateToHome"); }
    void navigateToShareMagazine() override { log_->push_back("navigateToShareMagazine"); }

private:
    Log log_;
};

/// A worker that records each run and answers only when the test does.
class FakeExecutable final : public Executable {
public:
    FakeExecutable(Log log, std::string name) : log_(std::move(log)), name_(std::move(name)) {}
    [[nodiscard]] bool isFinishedSuccessfully() const override { return succeeded; }
    void execute() override { log_->push_back(name_); }

    bool succeeded = false;

private:
    Log log_;
    std::string name_;
};

} // namespace quillet::testing
