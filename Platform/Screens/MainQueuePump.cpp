#include "Platform/Screens/MainQueuePump.hpp"

#include "Quillet/Platform/MainQueue.hpp"

#include <QCoreApplication>

#include <utility>

namespace quillet::platform {

namespace {

/// Its destructor removes the wake-up hook. Blocks then stay in the queue.
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
        // A child of the application would be destroyed after the event dispatcher, which other threads may
        // be waking up. A post routine runs before that, and waits for a wake-up that is running.
        qAddPostRoutine([] { delete std::exchange(pump, nullptr); });
    }
}

} // namespace quillet::platform
