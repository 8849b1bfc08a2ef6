#pragma once

#include "Quillet/Testing/RecordingHost.hpp"

#include <gtest/gtest.h>

#include <functional>

namespace quillet::testing {

/// A host, and its analytics, that records what it is told, and does something at each line of it.
class ActingHost final : public QuilletNavigationDelegate, public kel::KelAnalyticsManagerType {
public:
    ActingHost(Log log, std::function<void(const std::string& line)> act)
        : log_(std::move(log)), act_(std::move(act)) {}
    void navigateToCart() override { tell(&RecordingNavigation::navigateToCart); }
    void navigateToHome() override { tell(&RecordingNavigation::navigateToHome); }
    void navigateToShareMagazine() override { tell(&RecordingNavigation::navigateToShareMagazine); }
    void trackScreen(const kel::KelAnalyticsScreenType& screen) override {
        RecordingAnalytics(log_).trackScreen(screen);
        act_(log_->back());
    }
    void trackEvent(const kel::KelAnalyticsEventType& event) override {
        RecordingAnalytics(log_).trackEvent(event);
        EXPECT_FALSE(event.value() || event.event() || event.error() || event.errorCodes() ||
                     event.shouldLeave());
        act_(log_->back());
    }

private:
    void tell(void (RecordingNavigation::*what)()) {
        (RecordingNavigation(log_).*what)();
        act_(log_->back());
    }

    Log log_;
    std::function<void(const std::string& line)> act_;
};

} // namespace quillet::testing
