#include "KelCommon/KelAnalyticsManager.hpp"

#include <utility>

namespace kel {

const std::shared_ptr<KelAnalyticsManager>& KelAnalyticsManager::shared() {
    static const auto manager = std::make_shared<KelAnalyticsManager>();
    return manager;
}

void KelAnalyticsManager::setSink(std::shared_ptr<KelAnalyticsManagerType> sink) {
    sink_ = std::move(sink);
}

void KelAnalyticsManager::trackScreen(const KelAnalyticsScreenType& screen) {
    if (sink_) {
        sink_->trackScreen(screen);
    }
}

void KelAnalyticsManager::trackEvent(const KelAnalyticsEventType& event) {
    if (sink_) {
        sink_->trackEvent(event);
    }
}

} // namespace kel
