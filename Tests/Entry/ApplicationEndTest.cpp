#include "Platform/Screens/MainQueuePump.hpp"
#include "Quillet/Platform/MainQueue.hpp"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <gmock/gmock.h>

#include <future>
#include <memory>
#include <thread>

namespace quillet::testing {

namespace {

using namespace std::chrono_literals;

/// The state of a wake-up that runs while the application ends.
struct WakeUp {
    std::promise<void> begun;
    std::promise<void> dispatcherGone;
    std::promise<bool> outlivedTheDispatcher;
};

/// An event dispatcher without sources, whose wake-up from another thread is slow.
class SlowDispatcher final : public QAbstractEventDispatcher {
public:
    explicit SlowDispatcher(WakeUp& wakeUp) : wakeUp_(wakeUp) {}
    ~SlowDispatcher() override { wakeUp_.dispatcherGone.set_value(); }

    void wakeUp() override {
        if (std::this_thread::get_id() != main_) {
            WakeUp& seen = wakeUp_;
            seen.begun.set_value();
            const bool gone = seen.dispatcherGone.get_future().wait_for(200ms) == std::future_status::ready;
            seen.outlivedTheDispatcher.set_value(gone);
        }
    }
    bool processEvents(QEventLoop::ProcessEventsFlags) override { return false; }
    void interrupt() override {}
    void registerSocketNotifier(QSocketNotifier*) override {}
    void unregisterSocketNotifier(QSocketNotifier*) override {}
    void registerTimer(int, qint64, Qt::TimerType, QObject*) override {}
    bool unregisterTimer(int) override { return false; }
    bool unregisterTimers(QObject*) override { return false; }
    [[nodiscard]] QList<TimerInfo> registeredTimers(QObject*) const override { return {}; }
    int remainingTime(int) override { return 0; }

private:
    WakeUp& wakeUp_;
    std::thread::id main_ = std::this_thread::get_id();
};

std::unique_ptr<QCoreApplication> makeApplication() {
    static int count = 1;
    static char name[] = "ApplicationEndTests";
    static char* arguments[] = {name, nullptr};
    return std::make_unique<QCoreApplication>(count, arguments);
}

} // namespace

TEST(ApplicationEnd, WaitsForTheThreadThatWakesItAndLeavesTheRestToTheNextApplication) {
    WakeUp wakeUp;
    QCoreApplication::setEventDispatcher(new SlowDispatcher(wakeUp));
    auto application = makeApplication();
    platform::pumpMainQueue();
    int ran = 0;
    std::jthread session([&] { platform::mainQueue().async([&] { ++ran; }); });
    wakeUp.begun.get_future().wait();
    application.reset();
    EXPECT_FALSE(wakeUp.outlivedTheDispatcher.get_future().get());

    platform::mainQueue().async([&] { ++ran; });
    EXPECT_EQ(ran, 0);
    for (const int expected : {2, 3}) {
        application = makeApplication();
        platform::pumpMainQueue();
        platform::pumpMainQueue();
        QCoreApplication::processEvents();
        EXPECT_EQ(ran, expected);
        application.reset();
        platform::mainQueue().async([&] { ++ran; });
    }
}

} // namespace quillet::testing

// Unlike the other tests it creates and destroys several applications.
int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
