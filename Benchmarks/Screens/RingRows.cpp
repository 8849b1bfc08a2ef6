#include "Screens/RingRows.hpp"

#include "Harness/Rounds.hpp"
#include "Screens/ModuleStage.hpp"
#include "Screens/OffscreenApplication.hpp"

#include <QEventLoop>
#include <QQmlComponent>
#include <QTimer>

#include <chrono>
#include <stdexcept>
#include <thread>

namespace quillet::benchmarks {

namespace {

using testing::Call;
using testing::Reply;

/// The frames that the window draws while it is left alone.
int framesAlone(ModuleStage& stage, std::chrono::milliseconds time) {
    int frames = 0;
    QEventLoop loop;
    QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &loop, [&] { ++frames; });
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    return frames;
}

/// CPU time a frame, at sixty frames a second.
double cpuPerFrame(ModuleStage& stage, std::size_t frames) {
    using Clock = std::chrono::steady_clock;
    const double start = processCpuMilliseconds();
    auto next = Clock::now();
    for (std::size_t i = 0; i < frames; ++i) {
        stage.drawFrame();
        next += std::chrono::microseconds(16'667);
        std::this_thread::sleep_until(next);
    }
    return (processCpuMilliseconds() - start) / static_cast<double>(frames);
}

/// The visible item of this class below another one.
QQuickItem* find(QQuickItem& root, const char* className) {
    for (QQuickItem* const child : root.childItems()) {
        if (child->isVisible() && child->inherits(className)) {
            return child;
        }
        if (QQuickItem* const found = find(*child, className)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

std::vector<Row> ringRows(const Options& options) {
    const OffscreenApplication application;
    ModuleStage stage;
    QQmlComponent page(&stage.engine(), QUrl(QStringLiteral("qrc:/qt/qml/QuilletBenchmarks/BusyPage.qml")));
    if (!page.isReady()) {
        throw std::runtime_error(page.errorString().toStdString());
    }
    const std::size_t frames = options.times(75, 5);
    double size = 0;
    const auto ring = [&] {
        stage.backend().script(Call::associate, {Reply::never()});
        stage.open();
        stage.drawFrame();
        const QQuickItem* const item = find(*stage.window().contentItem(), "quillet::ProgressIndicatorItem");
        if (!item) {
            throw std::runtime_error("There is no loading indicator.");
        }
        size = item->width();
        const double time = cpuPerFrame(stage, frames);
        stage.close();
        return time;
    };
    const auto busy = [&] {
        stage.show(page, {{QStringLiteral("indicatorSize"), size}});
        stage.drawFrame();
        const double time = cpuPerFrame(stage, frames);
        stage.clear();
        stage.drawFrame();
        return time;
    };
    const auto rounds = inTurns(options.times(15, 1), ring, busy);

    stage.open();
    stage.drawUntil([&] { return stage.showsSummary(); });
    // What the summary itself still moves comes first.
    framesAlone(stage, std::chrono::milliseconds(options.times(1000, 500)));
    const int hidden = framesAlone(stage, std::chrono::milliseconds(options.times(5000, 300)));
    stage.close();

    return {
        ratioRow("15 the loading ring, CPU a frame / Controls' BusyIndicator of the same size", "ms", rounds,
                 atMost(0.8)),
        plainRow("15 the ring hidden for 5 s, frames", "", hidden, atMost(0)),
    };
}

} // namespace quillet::benchmarks
