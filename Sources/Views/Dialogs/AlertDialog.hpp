#pragma once

#include <QString>

namespace quillet {

class ViewController;

/// Shows a message that asks nothing of the consultant. Main thread only.
class AlertDisplay {
public:
    virtual ~AlertDisplay() = default;
    /// Shows the message over the screen and its bar; nothing if the screen is gone or on no stack.
    /// `animated` is about the message's coming and going.
    virtual void show(const QString& title, const QString& body, const ViewController& viewController,
                      bool animated) const = 0;
};

/// Through the design system's dialog controller.
class AlertDialog final : public AlertDisplay {
public:
    void show(const QString& title, const QString& body, const ViewController& viewController,
              bool animated) const override;
};

} // namespace quillet
