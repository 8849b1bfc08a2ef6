#include "Harness/AllocationCount.hpp"
#include "OpenCartsBody.hpp"
#include "Quillet/Orders.hpp"

#include <QByteArray>
#include <QJsonDocument>
#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <malloc.h>

#include <optional>

namespace quillet::benchmarks {

namespace {

constexpr std::size_t carts = 2000;
constexpr std::size_t linesPerCart = 12;

const std::optional<std::string>& body() {
    static const std::optional<std::string> text = openCartsBody(carts, linesPerCart);
    return text;
}

void countBytes(benchmark::State& state) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(body()->size()));
}

/// Frees a result and makes the allocator do its deferred work now, so that it is not measured as part of the
/// next decoding.
template <typename Result>
void settleHeapWithout(Result result) {
    { const Result gone = std::move(result); }
    std::free(std::malloc(std::size_t{1} << 20));
}

void decodeIntoRecords(benchmark::State& state) {
    std::uint64_t allocations = 0;
    for (auto _ : state) {
        const std::uint64_t before = allocationCount();
        auto response = OpenOrdersResponse::create(body());
        allocations = allocationCount() - before;
        if (!response || response->openOrders.size() != carts) {
            state.SkipWithError("The body did not decode.");
        }
        benchmark::DoNotOptimize(response);
        state.PauseTiming();
        settleHeapWithout(std::move(response));
        state.ResumeTiming();
    }
    state.counters["allocations/line"] = static_cast<double>(allocations) / (carts * linesPerCart);
    countBytes(state);
}

void parseWithQt(benchmark::State& state) {
    const auto bytes = QByteArray::fromStdString(*body());
    for (auto _ : state) {
        auto document = QJsonDocument::fromJson(bytes);
        benchmark::DoNotOptimize(document);
        state.PauseTiming();
        settleHeapWithout(std::move(document));
        state.ResumeTiming();
    }
    countBytes(state);
}

/// With a parser that keeps its memory from one body to the next, and with a new one for each body.
void parseWithSimdjson(benchmark::State& state, bool keepParser) {
    const simdjson::padded_string bytes(*body());
    simdjson::dom::parser kept;
    for (auto _ : state) {
        simdjson::dom::parser fresh;
        benchmark::DoNotOptimize((keepParser ? kept : fresh).parse(bytes).error());
    }
    countBytes(state);
}

void parseWithKeptSimdjson(benchmark::State& state) {
    parseWithSimdjson(state, true);
}
void parseWithFreshSimdjson(benchmark::State& state) {
    parseWithSimdjson(state, false);
}

BENCHMARK(decodeIntoRecords)->Unit(benchmark::kMillisecond);
BENCHMARK(parseWithQt)->Unit(benchmark::kMillisecond);
BENCHMARK(parseWithKeptSimdjson)->Unit(benchmark::kMillisecond);
BENCHMARK(parseWithFreshSimdjson)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillet::benchmarks

int main(int argc, char** argv) {
    // Keeps freed memory in the process. Otherwise most of the measured time would be the kernel's clearing
    // of new pages, which only simdjson's reused parser avoids.
    constexpr int kept = 1 << 30;
    mallopt(M_TRIM_THRESHOLD, kept);
    mallopt(M_MMAP_THRESHOLD, kept);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
