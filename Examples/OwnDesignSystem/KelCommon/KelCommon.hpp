#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kel {

struct KelAnalyticsScreenType {
    virtual ~KelAnalyticsScreenType() = default;
    virtual std::string name() const = 0;
};
struct KelAnalyticsEventType {
    virtual ~KelAnalyticsEventType() = default;
    virtual std::string category() const = 0;
    virtual std::string action() const = 0;
    virtual std::optional<std::string> label() const = 0;
};
struct KelAnalyticsManagerType {
    virtual ~KelAnalyticsManagerType() = default;
    virtual void trackScreen(const KelAnalyticsScreenType& screen) = 0;
    virtual void trackEvent(const KelAnalyticsEventType& event) = 0;
};
struct KelAnalyticsManager final : KelAnalyticsManagerType {
    static std::shared_ptr<KelAnalyticsManager> shared() { return std::make_shared<KelAnalyticsManager>(); }
    void trackScreen(const KelAnalyticsScreenType&) override {}
    void trackEvent(const KelAnalyticsEventType&) override {}
};

struct KelBundle {
    QString folder;
    QString table;
};
// This host has no string tables, so a key is its own text.
inline QString localized(const char* key, const KelBundle&) {
    return key;
}
inline std::function<QString(quint64)> localizedCount(const char* key, const KelBundle&) {
    return [key](quint64 count) { return QString::number(count) + ' ' + key; };
}

} // namespace kel
