#include "Screens/GapRows.hpp"

#include "Decoding/OpenCartsBody.hpp"
#include "Harness/Rounds.hpp"
#include "Network/Loopback.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"
#include "Screens/ModuleStage.hpp"
#include "Screens/OffscreenApplication.hpp"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace quillet::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;
using testing::Answer;
using testing::Call;

/// Asks the main thread for its attention every millisecond.
class Heart {
public:
    Heart() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setInterval(std::chrono::milliseconds(1));
        QObject::connect(&timer_, &QTimer::timeout, [this] { beat(); });
        timer_.start();
    }

    /// The longest time without a beat until the condition holds, in milliseconds. Throws std::runtime_error
    /// where it does not within a minute.
    double longestGapUntil(std::function<bool()> condition) {
        longest_ = {};
        last_ = Clock::now();
        latest_ = last_ + std::chrono::minutes(1);
        condition_ = std::move(condition);
        QEventLoop loop;
        loop_ = &loop;
        loop.exec();
        if (last_ > latest_) {
            throw std::runtime_error("The module does not come to what is waited for.");
        }
        return std::chrono::duration<double, std::milli>(longest_).count();
    }
    double longestGapFor(std::chrono::milliseconds time) {
        const auto end = Clock::now() + time;
        return longestGapUntil([&] { return Clock::now() > end; });
    }

private:
    void beat() {
        const auto now = Clock::now();
        longest_ = std::max(longest_, now - last_);
        last_ = now;
        if (loop_ && (condition_() || now > latest_)) {
            std::exchange(loop_, nullptr)->quit();
        }
    }

    QTimer timer_;
    QEventLoop* loop_ = nullptr;
    std::function<bool()> condition_;
    Clock::time_point latest_;
    Clock::time_point last_ = Clock::now();
    Clock::duration longest_{};
};

struct Bodies {
    std::string orders;
    std::string result;
};

/// A checkout's answer of that many products, every other of which was not sent.
std::string resultBody(std::size_t products) {
    const std::string sample = testing::sampleBody(Call::checkout);
    std::string body = sample.substr(0, sample.find("\"products\":["));
    body += "\"products\":[";
    for (std::size_t i = 0; i < products; ++i) {
        body += (i == 0 ? "" : ",") + std::string(R"({"productCode":)") + std::to_string(10'000 + i) +
                R"(,"description":"Protector solar FPS 50 rostro y cuerpo )" + std::to_string(i) +
                R"(","status":")" + (i % 2 == 0 ? "OK" : "UNAVAILABLE") +
                R"(","quantity":1,"totalPrice":8990.00,"unitPoints":10,"totalPoints":10})";
    }
    return body + "]}";
}

/// The longest gaps of a way through the module.
struct Gaps {
    double summary = 0;
    double result = 0;
    double end = 0;

    [[nodiscard]] double longest() const { return std::max({summary, result, end}); }
};
Gaps gapsOfAWay(ModuleStage& stage, Heart& heart, testing::FaultServer& server, const Bodies& bodies) {
    server.enqueue(Answer::complete(200, testing::sampleBody(Call::associate)));
    server.enqueue(Answer::complete(200, bodies.orders));
    server.enqueue(Answer::complete(200, bodies.result));
    constexpr std::chrono::milliseconds after(100);
    Gaps gaps;
    stage.open();
    gaps.summary = heart.longestGapUntil([&] { return stage.showsSummary(); });
    gaps.summary = std::max(gaps.summary, heart.longestGapFor(after));
    stage.sendProducts();
    gaps.result = heart.longestGapUntil([&] { return stage.screens() == 3; });
    gaps.result = std::max(gaps.result, heart.longestGapFor(after));
    stage.clear();
    gaps.end = heart.longestGapUntil([&] { return !stage.isOpen(); });
    gaps.end = std::max(gaps.end, heart.longestGapFor(after));
    return gaps;
}

} // namespace

std::vector<Row> gapRows(const Options& options) {
    const OffscreenApplication application;
    ModuleStage stage{ModuleStage::Network()};
    Loopback loopback(stage.gateway());
    platform::URLSessionConfiguration::setDefaultConfiguration(loopback.configuration);

    // Just below the largest that a session takes.
    const std::size_t most = loopback.configuration.maximumBodyBytes;
    const std::size_t orders = most * 97 / 100 / openCartsBody(options.seed, 100, 12).size() * 100;
    const std::size_t products = most * 97 / 100 / (resultBody(1000).size() / 1000);
    const Bodies large{openCartsBody(options.seed, orders, 12), resultBody(products)};
    const Bodies small{testing::sampleBody(Call::getOpenOrders), testing::sampleBody(Call::checkout)};
    Heart heart;

    // The first way compiles and loads what all later ones use.
    gapsOfAWay(stage, heart, loopback.server, small);
    Samples idle;
    Samples summary;
    Samples result;
    Samples end;
    Samples withSmall;
    Samples withLarge;
    for (std::size_t i = 0; i < options.times(15, 1); ++i) {
        idle.add(heart.longestGapFor(std::chrono::milliseconds(options.times(1000, 100))));
        withSmall.add(gapsOfAWay(stage, heart, loopback.server, small).longest());
        const Gaps gaps = gapsOfAWay(stage, heart, loopback.server, large);
        summary.add(gaps.summary);
        result.add(gaps.result);
        end.add(gaps.end);
        withLarge.add(gaps.longest());
    }
    Row row =
        plainRow("09 main thread's longest gap while the largest bodies come and go, beyond an idle one's",
                 "ms", withLarge.median() - idle.median(), atMost(4), idle.median());
    row.remark = "summary " + shortFigure(summary.median()) + ", result " + shortFigure(result.median()) +
                 ", end " + shortFigure(end.median()) + "; with the smallest bodies " +
                 shortFigure(withSmall.median());
    return {row};
}

} // namespace quillet::benchmarks
