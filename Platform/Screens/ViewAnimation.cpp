#include "Platform/Screens/ViewAnimation.hpp"

#include <QCoreApplication>
#include <QVariantAnimation>

namespace quillet::platform {

void animateView(std::chrono::milliseconds duration, std::function<void(double progress)> step,
                 std::function<void()> completion) {
    // The animation deletes itself when it has ended, at the latest with the application.
    auto* animation = new QVariantAnimation(QCoreApplication::instance());
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    animation->setDuration(static_cast<int>(duration.count()));
    QObject::connect(animation, &QVariantAnimation::valueChanged, animation, [step](const QVariant& value) {
        if (value.toDouble() < 1) {
            step(value.toDouble());
        }
    });
    // Not within the tick of the animation clock, which stands still until the tick is over: the completion
    // may run an event loop, such as that of a host's modal dialog. The last step waits for it, or what has
    // faded would be there unseen.
    QObject::connect(
        animation, &QAbstractAnimation::finished, QCoreApplication::instance(),
        [step = std::move(step), completion = std::move(completion)] {
            step(1);
            completion();
        },
        Qt::QueuedConnection);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace quillet::platform
