#include "Screens/RingRows.hpp"

#include "Harness/Rounds.hpp"
#include "Screens/ModuleStage.hpp"
#include "Screens/OffscreenApplication.hpp"

#include <QEventLoop>
#include <QQmlComponent>
#include <QTimer>

#include <chrono>
#include <stdexcept>

namespace quillet::benchmarks {

namespace {

using testing::Call;
using testing::Reply;

/// What the window did while it was left alone.
struct Rest {
    double cpuMilliseconds = 0;
    int frames = 0;
};
Rest leftAlone(ModuleStage& stage, std::chrono::milliseconds time) {
    Rest rest;
    QEventLoop loop;
    QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &loop, [&] { ++rest.frames; });
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    const double start = processCpuMilliseconds();
    loop.exec();
    rest.cpuMilliseconds = processCpuMilliseconds() - start;
    return rest;
}

double cpuPerFrame(const Rest& rest) {
    if (rest.frames == 0) {
        throw std::runtime_error("An indicator does not move.");
    }
    return rest.cpuMilliseconds / rest.frames;
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
    // At the pace of a screen, since what moves would otherwise draw without end.
    const OffscreenApplication application(std::chrono::milliseconds(5));
    ModuleStage stage;
    QQmlComponent page(&stage.engine(), QUrl(QStringLiteral("qrc:/qt/qml/QuilletBenchmarks/BusyPage.qml")));
    if (!page.isReady()) {
        throw std::runtime_error(page.errorString().toStdString());
    }
    const std::chrono::milliseconds shown(options.times(1250, 100));
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
        const double time = cpuPerFrame(leftAlone(stage, shown));
        stage.close();
        return time;
    };
    const auto busy = [&] {
        stage.show(page, {{QStringLiteral("indicatorSize"), size}});
        stage.drawFrame();
        const double time = cpuPerFrame(leftAlone(stage, shown));
        stage.clear();
        stage.drawFrame();
        return time;
    };
    const auto rounds = inTurns(options.times(15, 1), ring, busy);

    stage.open();
    stage.drawUntil([&] { return stage.showsSummary(); });
    // What the summary itself still moves comes first.
    leftAlone(stage, std::chrono::milliseconds(options.times(1000, 500)));
    const Rest hidden = leftAlone(stage, std::chrono::milliseconds(options.times(5000, 300)));
    stage.close();

    return {
        ratioRow("15 the loading ring, CPU a frame / Controls' BusyIndicator of the same size", "ms", rounds,
                 atMost(0.8)),
        plainRow("15 the ring hidden for 5 s, frames", "", hidden.frames, atMost(0)),
    };
}

} // namespace quillet::benchmarks
