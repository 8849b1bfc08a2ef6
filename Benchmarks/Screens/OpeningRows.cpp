#include "Screens/OpeningRows.hpp"

#include "Harness/Heap.hpp"
#include "Harness/Rounds.hpp"
#include "Screens/ModuleStage.hpp"
#include "Screens/OffscreenApplication.hpp"

#include <chrono>
#include <stdexcept>
#include <string>

namespace quillet::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;
using testing::Call;
using testing::Reply;

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// From the moment that the second answer arrives to the first frame with the summary.
double summaryMilliseconds(ModuleStage& stage) {
    constexpr std::chrono::seconds answer(1);
    for (const Call call : {Call::associate, Call::getOpenOrders}) {
        stage.backend().script(call, {{.body = testing::sampleBody(call), .after = answer}});
    }
    const std::size_t before = stage.backend().requests().size();
    stage.open();
    // The loading indicator is shown meanwhile, as in life.
    stage.drawFrame();
    stage.backend().clock()->advance(answer);
    stage.drawUntil([&] { return stage.backend().requests().size() == before + 2; });
    stage.backend().clock()->advance(answer);
    const auto start = Clock::now();
    stage.drawUntil([&] { return stage.showsSummary(); });
    const double time = since(start);
    stage.close();
    return time;
}

/// From pushing a page with a bare list to its first frame.
double listMilliseconds(ModuleStage& stage, QQmlComponent& page) {
    const auto start = Clock::now();
    stage.show(page);
    stage.drawFrame();
    const double time = since(start);
    stage.clear();
    stage.drawFrame();
    return time;
}

/// How much the figures grow with each of them, by least squares.
double slope(const std::vector<double>& figures) {
    const auto count = static_cast<double>(figures.size());
    const double middle = (count - 1) / 2;
    double product = 0;
    double square = 0;
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const double place = static_cast<double>(i) - middle;
        product += place * figures[i];
        square += place * place;
    }
    return product / square;
}

} // namespace

std::vector<Row> summaryRows(const Options& options) {
    const OffscreenApplication application;
    ModuleStage stage;
    QQmlComponent page(&stage.engine(),
                       QUrl(QStringLiteral("qrc:/qt/qml/QuilletBenchmarks/BareListPage.qml")));
    if (!page.isReady()) {
        throw std::runtime_error(page.errorString().toStdString());
    }
    const auto rounds = inTurns(
        options.times(101, 2), [&] { return summaryMilliseconds(stage); },
        [&] { return listMilliseconds(stage, page); });
    return {ratioRow("10 both answers there to first frame of the summary / a bare ListView page", "ms",
                     rounds, atMost(2))};
}

std::vector<Row> openingsRows(const Options& options) {
    const OffscreenApplication application;
    ModuleStage stage;
    const std::size_t all = options.times(10'000, 40);
    const std::size_t some = all / 20;
    const std::size_t unmeasured = some / 10;
    Samples first;
    Samples last;
    std::vector<double> live;
    std::vector<double> resident;
    // They must not grow while they are looked at.
    live.reserve(all);
    resident.reserve(all);
    for (std::size_t i = 0; i < unmeasured + all; ++i) {
        const auto start = Clock::now();
        stage.open();
        stage.drawUntil([&] { return stage.showsSummary(); });
        stage.close();
        const double time = since(start);
        // The first few compile and load what all later ones use.
        if (i < unmeasured) {
            continue;
        }
        const std::size_t opening = i - unmeasured;
        if (opening < some) {
            first.add(time);
        } else if (opening >= all - some) {
            last.add(time);
        }
        live.push_back(static_cast<double>(liveBytes()));
        resident.push_back(static_cast<double>(residentBytes()));
    }
    const std::string number = std::to_string(all);
    Row memory = plainRow("16 " + number + " openings and closings, memory that each leaves", "B",
                          slope(live), atMost(16));
    memory.remark = "resident " + shortFigure(slope(resident)) + " B";
    Row time = ratioRow("16 " + number + " openings and closings, one of the last 5 % / of the first", "ms",
                        last.median(), first.median(), atMost(1.05));
    time.remark = "of the minima " + shortFigure(last.least() / first.least());
    time.met = time.met && last.least() / first.least() <= 1.05;
    return {time, memory};
}

} // namespace quillet::benchmarks
