#include "Platform/Screens/MainQueuePump.hpp"

#include "Platform/Queue/MainQueue.hpp"

#include <QCoreApplication>

#include <utility>

namespace quillet::platform {

namespace {

/// Takes the wake-up with it: after that, blocks wait in the queue unheard.
class Pump final : public QObject {
public:
    Pump() {
        mainQueue().setWakeUp([this] {
            QMetaObject::invokeMethod(
                this, [] { mainQueue().drain(); }, Qt::QueuedConnection);
        });
    }
    ~Pump() override { mainQueue().setWakeUp({}); }
};

} // namespace

void pumpMainQueue() {
    static Pump* pump = nullptr;
    if (!pump) {
        pump = new Pump;
        // A child of the application would go last of all, after the event dispatcher that it wakes on other
        // threads. This runs before Qt takes anything down, and waits for a wake-up that is under way.
        qAddPostRoutine([] { delete std::exchange(pump, nullptr); });
    }
}

} // namespace quillet::platform
