#include "Screens/ScrollRows.hpp"

#include "Checkout/Status/ShippingStatusProductsView.hpp"
#include "Harness/Heap.hpp"
#include "Harness/Rounds.hpp"
#include "Screens/OffscreenApplication.hpp"
#include "Screens/PlainProducts.hpp"
#include "Screens/ResultStage.hpp"

#include <QQmlComponent>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

namespace quillet::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;

/// A frame on a screen with sixty of them a second.
constexpr double frameMilliseconds = 16;

/// How many boxes, texts and other items an item has in it that are shown, itself included.
std::map<std::string, int> shownItems(const QQuickItem& item) {
    std::map<std::string, int> kinds;
    if (item.isVisible()) {
        const bool isText = item.inherits("QQuickText");
        ++kinds[isText ? "text" : item.inherits("QQuickRectangle") ? "box" : "item"];
        for (const QQuickItem* child : item.childItems()) {
            for (const auto& [kind, count] : shownItems(*child)) {
                kinds[kind] += count;
            }
        }
    }
    return kinds;
}

/// A list on the stage, which is scrolled by half of its height a frame: faster than any flick.
class Scrolled {
public:
    Scrolled(ResultStage& stage, QQuickItem& list) : stage_(stage), list_(list) {}

    /// The list moves to where the row with this index is the uppermost.
    void goTo(int row) {
        // The first enumerator of ItemView's positions.
        QMetaObject::invokeMethod(&list_, "positionViewAtIndex", Q_ARG(int, row), Q_ARG(int, 0));
        stage_.drawFrame();
    }
    /// Moves by one step, and draws; false where the list has come to its end.
    bool step() {
        const double y = list_.property("contentY").toDouble() + list_.height() / 2;
        const double end = list_.property("originY").toDouble() + list_.property("contentHeight").toDouble();
        list_.setProperty("contentY", std::min(y, end - list_.height()));
        stage_.drawFrame();
        return !list_.property("atYEnd").toBool();
    }
    /// CPU time a frame over this many steps.
    double cpuPerFrame(std::size_t steps) {
        const double start = processCpuMilliseconds();
        for (std::size_t i = 0; i < steps; ++i) {
            step();
        }
        return (processCpuMilliseconds() - start) / static_cast<double>(steps);
    }
    [[nodiscard]] QQuickWindow& window() const { return *list_.window(); }
    /// The shown row in the middle of the list.
    [[nodiscard]] QQuickItem& middleRow() const {
        QQuickItem* found = nullptr;
        const double y = list_.property("contentY").toDouble() + list_.height() / 2;
        QMetaObject::invokeMethod(&list_, "itemAt", Q_RETURN_ARG(QQuickItem*, found),
                                  Q_ARG(double, list_.width() / 2), Q_ARG(double, y));
        if (!found) {
            throw std::logic_error("There is no row in the middle of the list.");
        }
        return *found;
    }
    /// The index of the shown row in the middle of the list.
    [[nodiscard]] int middleIndex() const {
        int index = -1;
        const double y = list_.property("contentY").toDouble() + list_.height() / 2;
        QMetaObject::invokeMethod(&list_, "indexAt", Q_RETURN_ARG(int, index),
                                  Q_ARG(double, list_.width() / 2), Q_ARG(double, y));
        return index;
    }

private:
    ResultStage& stage_;
    QQuickItem& list_;
};

using Work = std::function<void(Scrolled&)>;

/// Shows the result, has the work done with its list, and removes it.
void withResult(ResultStage& stage, const SharedProducts& products, const Work& work) {
    stage.open(products);
    Scrolled scrolled(stage, stage.list());
    work(scrolled);
    stage.close();
}

/// The plain list of the same products, in the same window, at the same place.
class PlainStage {
public:
    PlainStage(ResultStage& stage, const SharedProducts& products) : stage_(stage) {
        stage.open(products);
        QQuickItem& list = stage.list();
        window_ = list.window();
        place_ = list.mapRectToScene(QRectF(0, 0, list.width(), list.height()));
        const auto* sections = list.property("model").value<ShippingStatusProductsView*>();
        model_ = std::make_unique<PlainProducts>(*sections);
        component_ = std::make_unique<QQmlComponent>(
            qmlEngine(&list), QUrl(QStringLiteral("qrc:/qt/qml/QuilletBenchmarks/PlainList.qml")));
        stage.close();
    }

    void with(const Work& work) {
        const std::unique_ptr<QObject> made(component_->createWithInitialProperties(
            {{QStringLiteral("width"), place_.width()},
             {QStringLiteral("height"), place_.height()},
             {QStringLiteral("model"), QVariant::fromValue<QObject*>(model_.get())}}));
        auto* const list = qobject_cast<QQuickItem*>(made.get());
        if (!list) {
            throw std::runtime_error(component_->errorString().toStdString());
        }
        list->setPosition(place_.topLeft());
        list->setParentItem(window_->contentItem());
        stage_.drawFrame();
        Scrolled scrolled(stage_, *list);
        work(scrolled);
    }

private:
    ResultStage& stage_;
    QQuickWindow* window_ = nullptr;
    QRectF place_;
    std::unique_ptr<PlainProducts> model_;
    std::unique_ptr<QQmlComponent> component_;
};

/// What a row shows in each section, with the height that the steps depend on.
struct Shape {
    std::map<std::string, int> items;
    double height;
    bool operator==(const Shape&) const = default;
};
std::array<Shape, 2> shapes(Scrolled& scrolled, int products) {
    std::array<Shape, 2> shapes;
    for (int section = 0; section < 2; ++section) {
        scrolled.goTo(products / 4 * (1 + 2 * section));
        const QQuickItem& row = scrolled.middleRow();
        shapes.at(static_cast<std::size_t>(section)) = {shownItems(row), row.height()};
    }
    return shapes;
}

/// What a way from the list's beginning to its end took.
struct Way {
    /// In percent.
    double slowFrames = 0;
    double allocationsPerRow = 0;
    /// Those of them that the renderer made while it painted; another renderer makes others.
    double paintingPerRow = 0;
};
Way endToEnd(Scrolled& scrolled, std::size_t mostSteps) {
    std::uint64_t painting = 0;
    const QObject watch;
    QObject::connect(&scrolled.window(), &QQuickWindow::beforeRendering, &watch,
                     [&] { painting -= allocationCount(); });
    QObject::connect(&scrolled.window(), &QQuickWindow::afterRendering, &watch,
                     [&] { painting += allocationCount(); });
    const int first = scrolled.middleIndex();
    std::size_t frames = 0;
    std::size_t slow = 0;
    const std::uint64_t before = allocationCount();
    bool goesOn = true;
    while (goesOn && frames < mostSteps) {
        const auto start = Clock::now();
        goesOn = scrolled.step();
        slow += Milliseconds(Clock::now() - start).count() > frameMilliseconds;
        ++frames;
    }
    const std::uint64_t allocations = allocationCount() - before;
    const auto rows = static_cast<double>(scrolled.middleIndex() - first);
    return {100.0 * static_cast<double>(slow) / static_cast<double>(frames),
            static_cast<double>(allocations) / rows, static_cast<double>(painting) / rows};
}

} // namespace

std::vector<Row> scrollRows(const Options& options) {
    const OffscreenApplication application;

    const auto products = madeProducts(10'000, true);
    const auto count = static_cast<int>(products->size());
    ResultStage stage;
    PlainStage plain(stage, products);
    const auto ours = [&](const Work& work) { withResult(stage, products, work); };
    const auto theirs = [&](const Work& work) { plain.with(work); };

    std::array<Shape, 2> ourShapes;
    std::array<Shape, 2> theirShapes;
    ours([&](Scrolled& scrolled) { ourShapes = shapes(scrolled, count); });
    theirs([&](Scrolled& scrolled) { theirShapes = shapes(scrolled, count); });
    if (ourShapes != theirShapes) {
        throw std::logic_error("The rows of the two lists differ in what they show.");
    }

    const std::size_t mostSteps = options.times(100'000, 50);
    Way ourWay;
    Way theirWay;
    ours([&](Scrolled& scrolled) { ourWay = endToEnd(scrolled, mostSteps); });
    theirs([&](Scrolled& scrolled) { theirWay = endToEnd(scrolled, mostSteps); });

    // About as many steps in either section, since their rows differ.
    const std::size_t steps = options.times(200, 10);
    const int start = count / 2 - static_cast<int>(steps) * 3;
    const auto perFrame = [&](const auto& shown) {
        double time = 0;
        shown([&](Scrolled& scrolled) {
            scrolled.goTo(start);
            time = scrolled.cpuPerFrame(steps);
        });
        return time;
    };
    const auto rounds = inTurns(
        options.times(15, 1), [&] { return perFrame(ours); }, [&] { return perFrame(theirs); });

    const auto allocations = [&](std::string name, const auto& perRow) {
        Row row = plainRow("14 scroll 10,000 rows, " + std::move(name), "", perRow(ourWay), atMost(300));
        row.remark = "a plain row " + std::to_string(std::lround(perRow(theirWay)));
        return row;
    };
    return {
        ratioRow("14 scroll 10,000 rows, CPU per frame / plain ListView whose row has as many items", "ms",
                 rounds, atMost(1.2)),
        plainRow("14 scroll 10,000 rows, frames over 16 ms", "%", ourWay.slowFrames, atMost(1),
                 theirWay.slowFrames),
        allocations("allocations a row", [](const Way& way) { return way.allocationsPerRow; }),
        allocations("allocations a row without the renderer's",
                    [](const Way& way) { return way.allocationsPerRow - way.paintingPerRow; }),
    };
}

} // namespace quillet::benchmarks
