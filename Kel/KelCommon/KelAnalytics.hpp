#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kel {

/// A screen as the analytics know it. Implemented by small value types; the manager reads it before it
/// returns.
class KelAnalyticsScreenType {
public:
    virtual ~KelAnalyticsScreenType() = default;
    [[nodiscard]] virtual std::string name() const = 0;
};

/// An event as the analytics know it. Everything but category and action is optional and absent unless
/// overridden.
class KelAnalyticsEventType {
public:
    virtual ~KelAnalyticsEventType() = default;
    [[nodiscard]] virtual std::string category() const = 0;
    [[nodiscard]] virtual std::string action() const = 0;
    [[nodiscard]] virtual std::optional<std::string> label() const { return std::nullopt; }
    [[nodiscard]] virtual std::optional<double> value() const { return std::nullopt; }
    [[nodiscard]] virtual std::optional<std::string> event() const { return std::nullopt; }
    [[nodiscard]] virtual std::optional<std::string> error() const { return std::nullopt; }
    [[nodiscard]] virtual std::optional<std::int32_t> errorCodes() const { return std::nullopt; }
    [[nodiscard]] virtual std::optional<bool> shouldLeave() const { return std::nullopt; }
};

/// Where screen views and events go. Called on the main thread; returns at once; keeps no reference to its
/// argument.
class KelAnalyticsManagerType {
public:
    virtual ~KelAnalyticsManagerType() = default;
    virtual void trackScreen(const KelAnalyticsScreenType& screen) = 0;
    virtual void trackEvent(const KelAnalyticsEventType& event) = 0;
};

} // namespace kel
