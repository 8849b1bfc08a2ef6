#include "Platform/Screens/MainQueuePump.hpp"
#include "Quillet/Platform/MainQueue.hpp"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>

#include <gmock/gmock.h>

#include <cstdlib>
#include <future>
#include <memory>
#include <thread>

namespace quillet::testing {

namespace {

using namespace std::chrono_literals;

/// An event dispatcher without sources, whose wake-up from another thread is slow.
class SlowDispatcher final : public QAbstractEventDispatcher {
public:
    ~SlowDispatcher() override { dispatcherGone.set_value(); }

    void wakeUp() override {
        if (std::this_thread::get_id() != main_) {
            wakeUpBegun.set_value();
            isOutlived = dispatcherGone.get_future().wait_for(200ms) == std::future_status::ready;
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

    // They outlive the dispatcher, as a wake-up might.
    inline static std::promise<void> wakeUpBegun;
    inline static std::promise<void> dispatcherGone;
    inline static bool isOutlived = true;

private:
    std::thread::id main_ = std::this_thread::get_id();
};

/// In a process without another application.
[[noreturn]] void endApplications() {
    std::destroy_at(qApp);
    int count = 0;
    QCoreApplication::setEventDispatcher(new SlowDispatcher);
    auto application = std::make_unique<QCoreApplication>(count, nullptr);
    platform::pumpMainQueue();
    int ran = 0;
    std::jthread session([&] { platform::mainQueue().async([&] { ++ran; }); });
    SlowDispatcher::wakeUpBegun.get_future().wait();
    application.reset();
    session.join();
    EXPECT_FALSE(SlowDispatcher::isOutlived);

    platform::mainQueue().async([&] { ++ran; });
    EXPECT_EQ(ran, 0);
    for (const int expected : {2, 3}) {
        application = std::make_unique<QCoreApplication>(count, nullptr);
        platform::pumpMainQueue();
        platform::pumpMainQueue();
        QCoreApplication::processEvents();
        EXPECT_EQ(ran, expected);
        application.reset();
        platform::mainQueue().async([&] { ++ran; });
    }
    std::exit(::testing::Test::HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS);
}

} // namespace

TEST(ApplicationEnd, WaitsForTheThreadThatWakesItAndLeavesTheRestToTheNextApplication) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(endApplications(), ::testing::ExitedWithCode(EXIT_SUCCESS), "");
}

} // namespace quillet::testing
