#include "Screens/DeliveryRows.hpp"

#include "Harness/Rounds.hpp"
#include "Platform/Screens/MainQueuePump.hpp"
#include "Screens/OffscreenApplication.hpp"
#include "Workers/DispatchMainQueueWrapper.hpp"
#include "Workers/GetOpenOrdersWorker.hpp"

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

namespace quillet::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;

/// Answers at once, on the thread that asks.
class InstantService final : public SellOutCartsStatusOpenServiceRequestable {
public:
    void getOpenOrders(Completion completion) const override { completion({OpenOrdersResponse(), {}, 200}); }
};

class Delegate final : public GetOpenOrdersWorkerDelegate {
public:
    explicit Delegate(std::function<void()> whenDelivered) : whenDelivered_(std::move(whenDelivered)) {}
    void didGetOpenOrders(const std::shared_ptr<const OpenOrdersResult>& /*result*/) override {
        whenDelivered_();
    }

private:
    std::function<void()> whenDelivered_;
};

} // namespace

std::vector<Row> deliveryRows(const Options& options) {
    const OffscreenApplication application;
    platform::pumpMainQueue();

    std::atomic<bool> isDelivered = false;
    Clock::time_point delivered;
    const auto note = [&] {
        delivered = Clock::now();
        isDelivered.store(true, std::memory_order_release);
    };
    const auto delegate = std::make_shared<Delegate>(note);
    const auto worker = std::make_shared<GetOpenOrdersWorker>(std::make_unique<InstantService>(),
                                                              std::make_unique<DispatchMainQueueWrapper>());
    worker->setDelegate(delegate);
    QObject receiver;

    // The sender's core stays busy: it waits without sleeping, as one does that decodes the next body.
    const auto microseconds = [&](const auto& send) {
        isDelivered.store(false, std::memory_order_relaxed);
        const auto start = Clock::now();
        send();
        while (!isDelivered.load(std::memory_order_acquire)) {
        }
        const double time = std::chrono::duration<double, std::micro>(delivered - start).count();
        // The main thread sleeps again before the next one comes.
        for (const auto later = Clock::now() + std::chrono::microseconds(50); Clock::now() < later;) {
        }
        return time;
    };
    Rounds deliveries;
    std::jthread sender([&] {
        const auto ours = [&] { worker->execute(); };
        const auto theirs = [&] { QMetaObject::invokeMethod(&receiver, note, Qt::QueuedConnection); };
        const std::size_t unmeasured = options.times(500, 10);
        const std::size_t measured = options.times(20'000, 100);
        for (std::size_t i = 0; i < unmeasured + measured; ++i) {
            const bool isFirst = i % 2 == 0;
            const double early = isFirst ? microseconds(ours) : microseconds(theirs);
            const double late = isFirst ? microseconds(theirs) : microseconds(ours);
            if (i >= unmeasured) {
                deliveries.ours.add(isFirst ? early : late);
                deliveries.yardstick.add(isFirst ? late : early);
            }
        }
        QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                                  Qt::QueuedConnection);
    });
    QCoreApplication::exec();
    sender.join();

    constexpr double rare = 99;
    Row row = ratioRow("07 a result from a worker to the main thread / a bare queued invokeMethod", "us",
                       deliveries.ours.median(), deliveries.yardstick.median(), atMost(1.2));
    row.remark = "of the 99th percentiles " +
                 shortFigure(deliveries.ours.percentile(rare) / deliveries.yardstick.percentile(rare));
    return {row};
}

} // namespace quillet::benchmarks
