#include "Harness/AllocationCount.hpp"
#include "Screens/ResultStage.hpp"

#include "KelCommon/KelLocalized.hpp"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace quillet::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;

std::vector<Product> madeProducts(std::size_t count, bool someNotSent) {
    std::vector<Product> products(count);
    for (std::size_t i = 0; i < count; ++i) {
        products[i].productCode = 10000 + i;
        products[i].description = "Protector solar FPS 50 rostro y cuerpo " + std::to_string(i);
        products[i].quantity = 1 + i % 3;
        products[i].totalPoints = i % 120;
        products[i].status =
            someNotSent && i % 2 == 0 ? ProductErrorStatus::unavailable : ProductErrorStatus::none;
    }
    return products;
}

/// A stage that has already shown and removed such a result, so that one-time work such as compiling QML and
/// loading fonts is done.
std::unique_ptr<ResultStage> warmStage(const std::vector<Product>& products) {
    auto stage = std::make_unique<ResultStage>();
    for (int i = 0; i < 3; ++i) {
        stage->open(products);
        stage->close();
    }
    return stage;
}

double seconds(Milliseconds time) {
    return std::chrono::duration<double>(time).count();
}

std::size_t bytesOf(const std::vector<Product>& products) {
    const std::size_t before = liveBytes();
    const std::vector<Product> copy = products;
    benchmark::DoNotOptimize(copy.data());
    return liveBytes() - before;
}

/// Measures from the response's products to the first frame with their rows.
void open(benchmark::State& state) {
    const auto products = madeProducts(static_cast<std::size_t>(state.range(0)), true);
    const auto stage = warmStage(products);
    ResultStage::Opening sum;
    std::uint64_t allocations = 0;
    for (auto _ : state) {
        const std::uint64_t before = allocationCount();
        const auto opening = stage->open(products);
        allocations = allocationCount() - before;
        state.SetIterationTime(seconds(opening.all()));
        sum.input += opening.input;
        sum.view += opening.view;
        sum.push += opening.push;
        sum.frame += opening.frame;
        state.counters["rows"] = static_cast<double>(stage->rows().size());
        stage->close();
    }
    constexpr auto average = benchmark::Counter::kAvgIterations;
    state.counters["input/ms"] = benchmark::Counter(sum.input.count(), average);
    state.counters["view/ms"] = benchmark::Counter(sum.view.count(), average);
    state.counters["push/ms"] = benchmark::Counter(sum.push.count(), average);
    state.counters["frame/ms"] = benchmark::Counter(sum.frame.count(), average);
    state.counters["allocations"] = static_cast<double>(allocations);
}

/// The heap's growth while the screen is shown. The response's own products exist before and do not count.
void memory(benchmark::State& state) {
    const auto products = madeProducts(static_cast<std::size_t>(state.range(0)), true);
    const auto stage = warmStage(products);
    const std::size_t records = bytesOf(products);
    for (auto _ : state) {
        const std::size_t before = liveBytes();
        const auto opening = stage->open(products);
        const std::size_t shown = liveBytes() - before;
        state.SetIterationTime(seconds(opening.all()));
        state.counters["records"] = static_cast<double>(records);
        state.counters["shown"] = static_cast<double>(shown);
        state.counters["beyondRecords"] = static_cast<double>(shown) - static_cast<double>(records);
        state.counters["highest"] = static_cast<double>(opening.highestLiveBytes - before);
        stage->close();
    }
}

/// Opening or closing a section, from the tap on its head until nothing moves. The reported time is the
/// longest frame; the motion itself takes 200 ms.
void toggle(benchmark::State& state, bool expand) {
    const auto products = madeProducts(static_cast<std::size_t>(state.range(0)), false);
    const auto stage = warmStage(products);
    stage->open(products);
    Milliseconds first{};
    for (auto _ : state) {
        if (expand) {
            stage->toggle();
        }
        const auto motion = stage->toggle();
        state.SetIterationTime(seconds(motion.longest));
        first += motion.first;
        state.counters["frames"] = static_cast<double>(motion.frames);
        state.counters["rows"] = static_cast<double>(stage->rows().size());
        if (!expand) {
            stage->toggle();
        }
    }
    state.counters["first/ms"] = benchmark::Counter(first.count(), benchmark::Counter::kAvgIterations);
    stage->close();
}

void collapse(benchmark::State& state) {
    toggle(state, false);
}
void expand(benchmark::State& state) {
    toggle(state, true);
}

/// From the top of the list to its end, half a screen per frame, which is faster than any flick.
void scroll(benchmark::State& state) {
    const auto products = madeProducts(static_cast<std::size_t>(state.range(0)), true);
    const auto stage = warmStage(products);
    for (auto _ : state) {
        stage->open(products);
        QQuickItem& list = stage->list();
        std::size_t made = 0;
        std::size_t mostAlive = 0;
        std::size_t frames = 0;
        std::uint64_t allocations = 0;
        Milliseconds all{};
        Milliseconds longest{};
        while (!list.property("atYEnd").toBool()) {
            const std::uint64_t before = allocationCount();
            const auto start = Clock::now();
            const double y = list.property("contentY").toDouble() + list.height() / 2;
            const double end =
                list.property("originY").toDouble() + list.property("contentHeight").toDouble();
            list.setProperty("contentY", std::min(y, end - list.height()));
            stage->drawFrame();
            const Milliseconds time = Clock::now() - start;
            allocations += allocationCount() - before;
            all += time;
            longest = std::max(longest, time);
            ++frames;
            const auto rows = stage->rows();
            mostAlive = std::max(mostAlive, rows.size());
            made += static_cast<std::size_t>(std::ranges::count_if(rows, [](QQuickItem* row) {
                const bool isNew = !row->property("seen").isValid();
                row->setProperty("seen", true);
                return isNew;
            }));
        }
        state.SetIterationTime(seconds(all));
        state.counters["frames"] = static_cast<double>(frames);
        state.counters["frame/ms"] = all.count() / static_cast<double>(frames);
        state.counters["longest/ms"] = longest.count();
        state.counters["allocations/row"] = static_cast<double>(allocations) / static_cast<double>(made);
        state.counters["rowsMade"] = static_cast<double>(made);
        state.counters["rowsAlive"] = static_cast<double>(mostAlive);
        stage->close();
    }
}

constexpr auto ms = benchmark::kMillisecond;
BENCHMARK(open)->Arg(10)->Arg(1'000)->Arg(10'000)->UseManualTime()->Unit(ms);
BENCHMARK(memory)->Arg(10)->Arg(10'000)->UseManualTime()->Iterations(3)->Unit(ms);
BENCHMARK(collapse)->Arg(10)->Arg(10'000)->UseManualTime()->Iterations(5)->Unit(ms);
BENCHMARK(expand)->Arg(10)->Arg(10'000)->UseManualTime()->Iterations(5)->Unit(ms);
BENCHMARK(scroll)->Arg(10'000)->UseManualTime()->Iterations(1)->Unit(ms);

} // namespace

} // namespace quillet::benchmarks

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    // Draws each frame as soon as it is requested. Otherwise the pause between frames would be measured as
    // well.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    const QGuiApplication application(argc, argv);
    kel::setLanguage(QStringLiteral("es"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
