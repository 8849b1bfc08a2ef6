#pragma once

#include "KelCommon/KelAnalytics.hpp"

#include <memory>

namespace kel {

/// The host's analytics manager. It hands every screen view and event on to the sink that the host installed,
/// and drops them while there is none. Main thread only.
class KelAnalyticsManager final : public KelAnalyticsManagerType {
public:
    /// The one manager of the process, made on first use.
    [[nodiscard]] static const std::shared_ptr<KelAnalyticsManager>& shared();

    /// Replaces the sink; an empty pointer takes it away. The manager shares ownership of the sink.
    void setSink(std::shared_ptr<KelAnalyticsManagerType> sink);

    void trackScreen(const KelAnalyticsScreenType& screen) override;
    void trackEvent(const KelAnalyticsEventType& event) override;

private:
    std::shared_ptr<KelAnalyticsManagerType> sink_;
};

} // namespace kel
