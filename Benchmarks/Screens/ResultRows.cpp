#include "Screens/ResultRows.hpp"

#include "Harness/Heap.hpp"
#include "Harness/Rounds.hpp"
#include "Screens/OffscreenApplication.hpp"
#include "Screens/ResultStage.hpp"

namespace quillet::benchmarks {

namespace {

constexpr std::size_t many = 10'000;
constexpr std::size_t few = 10;

double openedMilliseconds(ResultStage& stage, const SharedProducts& products) {
    const double time = stage.open(products).all().count();
    stage.close();
    return time;
}

/// The heap's growth while a result is on the screen. The response's records exist before, and do not count.
double bytesBeyondRecords(ResultStage& stage, const SharedProducts& products) {
    const std::size_t before = liveBytes();
    stage.open(products);
    const std::size_t shown = liveBytes();
    stage.close();
    return static_cast<double>(shown) - static_cast<double>(before);
}

/// The frames of opening and closing the sections, in milliseconds.
struct ToggledFrames {
    Samples opening;
    Samples closing;
};
ToggledFrames toggledFrames(ResultStage& stage, const SharedProducts& products, std::size_t toggles) {
    ToggledFrames frames;
    stage.open(products);
    for (std::size_t i = 0; i < toggles; ++i) {
        for (Samples* const kind : {&frames.closing, &frames.opening}) {
            for (const Milliseconds time : stage.toggle()) {
                kind->add(time.count());
            }
        }
    }
    stage.close();
    return frames;
}

Row frameRow(const std::string& name, const Samples& ours, const Samples& withFew) {
    constexpr double share = 99;
    Row row = plainRow("13 a section of 10,000 rows " + name +
                           ", 99th percentile of the frames (yardstick: 10 rows)",
                       "ms", ours.percentile(share), atMost(8), withFew.percentile(share));
    row.remark =
        "longest " + shortFigure(ours.percentile(100)) + " of " + std::to_string(ours.size()) + " frames";
    return row;
}

} // namespace

std::vector<Row> resultRows(const Options& options) {
    const OffscreenApplication application;
    keepHeap();
    ResultStage stage;
    const auto manyProducts = madeProducts(many, true);
    const auto fewProducts = madeProducts(few, true);

    const auto opened = inTurns(
        options.times(31, 1), [&] { return openedMilliseconds(stage, manyProducts); },
        [&] { return openedMilliseconds(stage, fewProducts); });
    const double growth = bytesBeyondRecords(stage, manyProducts) - bytesBeyondRecords(stage, fewProducts);

    const std::size_t toggles = options.times(80, 2);
    const auto manyFrames = toggledFrames(stage, madeProducts(many, false), toggles);
    const auto fewFrames = toggledFrames(stage, madeProducts(few, false), toggles);

    return {
        ratioRow("12 result of 10,000 products opened / of 10", "ms", opened, atMost(1.15)),
        plainRow("12 result of 10,000 products, memory beyond its records that one of 10 does not take",
                 "KiB", growth / 1024, atMost(1024)),
        frameRow("expanded", manyFrames.opening, fewFrames.opening),
        frameRow("collapsed", manyFrames.closing, fewFrames.closing),
    };
}

} // namespace quillet::benchmarks
