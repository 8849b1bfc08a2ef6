#include "Decoding/DecodingRows.hpp"
#include "Decoding/HostileBodies.hpp"
#include "Decoding/OpenCartsBody.hpp"
#include "Harness/Heap.hpp"
#include "Quillet/Orders.hpp"

#include <malloc.h>

#include <optional>
#include <stdexcept>
#include <string>

namespace quillet::benchmarks {

namespace {

constexpr std::size_t linesPerCart = 12;

/// Open carts of about that many bytes.
std::optional<std::string> bodyOf(std::uint32_t seed, std::size_t bytes) {
    const std::size_t sample = 100;
    const std::size_t cart = openCartsBody(seed, sample, linesPerCart).size() / sample;
    return openCartsBody(seed, bytes / cart, linesPerCart);
}

/// Nanoseconds for each byte of a decoding, freeing the result not included.
double timePerByte(const std::optional<std::string>& body) {
    std::optional<decltype(OpenOrdersResponse::create(body))> response;
    const double time = milliseconds([&] {
        response = OpenOrdersResponse::create(body);
        return 0;
    });
    response.reset();
    settleHeap();
    return time * 1e6 / static_cast<double>(body->size());
}

} // namespace

std::vector<Row> decodingMemoryRows(const Options& options) {
    const std::size_t carts = options.times(2000, 100);
    const std::optional<std::string> body = openCartsBody(options.seed, carts, linesPerCart);
    // Loads what a first decoding loads.
    (void)OpenOrdersResponse::create(openCartsBody(options.seed, 1, linesPerCart));

    // Free pages that are still there from before would hide what the decoding takes.
    malloc_trim(0);
    const std::size_t residentBefore = residentBytes();
    const std::size_t liveBefore = liveBytes();
    resetPeakResidentBytes();
    const std::uint64_t before = allocationCount();
    const auto response = OpenOrdersResponse::create(body);
    const std::uint64_t allocations = allocationCount() - before;
    const std::size_t records = liveBytes() - liveBefore;
    const double beyond =
        static_cast<double>(peakResidentBytes() - residentBefore) - static_cast<double>(records);
    if (!response) {
        throw std::logic_error("The body does not decode.");
    }
    constexpr double mebibyte = 1 << 20;
    return {ratioRow("04 peak of memory beyond records / input", "MiB", beyond / mebibyte,
                     static_cast<double>(body->size()) / mebibyte, atMost(0.5)),
            plainRow("04 allocations an order line", "",
                     static_cast<double>(allocations) / static_cast<double>(carts * linesPerCart),
                     atMost(2))};
}

std::vector<Row> decodingGrowthRows(const Options& options) {
    keepHeap();
    const std::size_t unit = options.times(10, 1) * 1000 * 1000;
    const std::size_t rounds = options.times(15, 1);
    const auto ten = bodyOf(options.seed, unit);
    const Measured yardstick = [&] { return timePerByte(ten); };
    std::vector<Row> rows;
    for (const std::size_t times : {3U, 6U}) {
        const auto body = bodyOf(options.seed, times * unit);
        rows.push_back(ratioRow("05 a byte of " + std::to_string(times * unit / 1000000) + " MB / of " +
                                    std::to_string(unit / 1000000) + " MB",
                                "ns",
                                inTurns(
                                    rounds, [&] { return timePerByte(body); }, yardstick),
                                atMost(1.25)));
    }
    for (HostileBody& hostile : hostileBodies(6 * unit)) {
        const std::optional<std::string> body = std::move(hostile.text);
        rows.push_back(ratioRow("05 a byte of " + hostile.name + " / of carts", "ns",
                                inTurns(
                                    options.times(15, 1), [&] { return timePerByte(body); }, yardstick),
                                atMost(10)));
    }
    return rows;
}

} // namespace quillet::benchmarks
