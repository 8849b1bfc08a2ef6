#pragma once

#include "KelCommon/KelAnalytics.hpp"
#include "KelDSIcons/KelDSIcons.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"

#include <QJsonArray>
#include <QObject>
#include <QVariantList>

namespace demo {

/// What a host's developer wants to see while the module runs: requests and answers, analytics, and
/// navigation, each in order of time. Main thread only.
class Journal final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QVariantList requests READ requests NOTIFY requestsChanged FINAL)
    Q_PROPERTY(QVariantList analytics READ analytics NOTIFY analyticsChanged FINAL)
    Q_PROPERTY(QVariantList navigation READ navigation NOTIFY navigationChanged FINAL)

public:
    void requestStarted(quint64 exchange, const quillet::platform::URLRequest& request);
    void requestEnded(quint64 exchange, const quillet::platform::URLRequest& request,
                      const quillet::platform::URLSessionExchangeEnd& end);
    void screenTracked(const QString& name);
    void eventTracked(const kel::KelAnalyticsEventType& event);
    /// The icon is what the journal shows beside the operation.
    void navigated(const QString& operation, kel::KelIconNumber icon);
    /// Clears requests and analytics for the next order. Earlier navigation entries stay.
    void beginOrder();
    void clear();

    [[nodiscard]] QVariantList requests() const { return requests_; }
    [[nodiscard]] QVariantList analytics() const { return analytics_; }
    [[nodiscard]] QVariantList navigation() const { return navigation_; }

    /// The same for a report, without times. The token is replaced by its length.
    [[nodiscard]] QJsonArray requestsJson() const;
    [[nodiscard]] QJsonArray analyticsJson() const;
    [[nodiscard]] QJsonArray navigationJson() const;

Q_SIGNALS:
    void requestsChanged();
    void analyticsChanged();
    void navigationChanged();

private:
    qsizetype entry(quint64 exchange, const quillet::platform::URLRequest& request);

    QVariantList requests_;
    QVariantList analytics_;
    QVariantList navigation_;
};

} // namespace demo
