#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <utility>

namespace quillet::platform {

/// What one button does, done by the event loop. The host may hear of it, run an event loop of its own and
/// pop the page in there; QML ends the program when an item is destroyed whose handler is still running. Main
/// thread only.
class QueuedTap {
public:
    /// Has the action run as soon as the event that brought the tap is over, unless `view` is destroyed
    /// before. A tap that comes before the action has returned does nothing.
    void tap(QObject& view, std::function<void()> action) {
        if (!std::exchange(*isTapped_, true)) {
            QMetaObject::invokeMethod(
                &view,
                [isTapped = isTapped_, action = std::move(action)] {
                    action();
                    *isTapped = false;
                },
                Qt::QueuedConnection);
        }
    }

private:
    std::shared_ptr<bool> isTapped_ = std::make_shared<bool>(false);
};

} // namespace quillet::platform
