#include "Platform/Screens/MainQueuePump.hpp"
#include "Quillet/Platform/MainQueue.hpp"
#include "Support/ListeningPort.hpp"
#include "Support/ModuleTest.hpp"

#include <KelCommon/KelLocalized.hpp>

#include <QAbstractEventDispatcher>
#include <QGuiApplication>

#include <gmock/gmock.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

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

template <typename Application>
std::unique_ptr<Application> makeApplication() {
    static int count = 1;
    static char name[] = "ApplicationEndTests";
    static char* arguments[] = {name, nullptr};
    return std::make_unique<Application>(count, arguments);
}

/// Where the module is when its application ends.
enum class Step { beforeStart, underWay, underWayOverTheNetwork, queued, delivered, fading };

struct Module final : ModuleTest {
    void TestBody() override {}

    void reach(Step step) {
        const ListeningPort silence;
        if (step == Step::underWayOverTheNetwork) {
            const std::string gateway = Starter::create("", "", {}, nullptr)->domainUrl();
            platform::URLSessionConfiguration::setDefaultConfiguration(
                {.hostMappings = {{gateway, "127.0.0.1", silence.port()}}});
        } else if (step < Step::delivered) {
            backend->script(Call::associate, {Reply{.after = 5s}});
        }
        if (step > Step::beforeStart) {
            open();
        }
        if (step == Step::queued) {
            backend->clock()->advance(5s);
        }
        if (step > Step::queued) {
            ASSERT_TRUE(comesToShow(viewOrders));
        }
        if (step == Step::fading) {
            stage->click(viewOrders);
            ASSERT_TRUE(turnUntil([&] { return stage->item("dialogBackground")->opacity() < 1; }));
        }
        log->clear();
    }

    std::shared_ptr<platform::QuickViewController> neverShown =
        Starter::create("token", "idp", {"cart-1", 41052, "CL"}, host)->createRootViewController();
};

/// Ends the process with 0 where nothing was told to anybody after the end of the application. A process may
/// also be left without any end of it, as exit() does.
[[noreturn]] void end(Step step, bool inOrder) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
#ifdef __SANITIZE_ADDRESS__
    // What exit() leaves behind is no leak, and much of it is reachable from QML's heap alone.
    if (!inOrder) {
        __lsan_disable();
    }
#endif
    auto* const application = makeApplication<QGuiApplication>().release();
    kel::setLanguage(QStringLiteral("es"));
    auto& module = *new Module;
    module.reach(step);
    if (inOrder) {
        module.stage.reset();
        delete application;
    }
    module.backend->clock()->advance(60s);
    const bool isQuiet = module.log->empty() && !::testing::Test::HasFailure();
    std::exit(isQuiet ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace

TEST(ApplicationEnd, WaitsForTheThreadThatWakesItAndLeavesTheRestToTheNextApplication) {
    QCoreApplication::setEventDispatcher(new SlowDispatcher);
    auto application = makeApplication<QCoreApplication>();
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
        application = makeApplication<QCoreApplication>();
        platform::pumpMainQueue();
        platform::pumpMainQueue();
        QCoreApplication::processEvents();
        EXPECT_EQ(ran, expected);
        application.reset();
        platform::mainQueue().async([&] { ++ran; });
    }
    platform::mainQueue().drain();
}

TEST(ApplicationEnd, MayComeAtAnyStep) {
    int cases = 0;
    for (const Step step : {Step::beforeStart, Step::underWay, Step::underWayOverTheNetwork, Step::queued,
                            Step::delivered, Step::fading}) {
        for (const bool inOrder : {true, false}) {
            SCOPED_TRACE(std::to_string(static_cast<int>(step)) + (inOrder ? " in order" : " by exit()"));
            EXPECT_EXIT(end(step, inOrder), ::testing::ExitedWithCode(EXIT_SUCCESS), "");
            ++cases;
        }
    }
    RecordProperty("cases", cases);
}

} // namespace quillet::testing

// Unlike the other tests it creates and destroys several applications.
int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
