#include "Entry/MainQueuePump.hpp"

#include "Workers/MainQueue.hpp"

#include <QCoreApplication>
#include <QPointer>

namespace quillet {

namespace {

/// Lives as long as the application, and takes the wake-up with it: after that, blocks wait in the queue
/// unheard.
class Pump final : public QObject {
public:
    explicit Pump(QObject* application) : QObject(application) {
        mainQueue().setWakeUp([this] {
            QMetaObject::invokeMethod(
                this, [] { mainQueue().drain(); }, Qt::QueuedConnection);
        });
    }
    ~Pump() override { mainQueue().setWakeUp({}); }
};

} // namespace

void pumpMainQueue() {
    static QPointer<Pump> pump;
    if (!pump) {
        pump = new Pump(QCoreApplication::instance());
    }
}

} // namespace quillet
