#include "Screens/ResultStage.hpp"

#include "Checkout/Inputs/ResultFactories.hpp"
#include "Platform/Screens/NavigationController.hpp"
#include "Views/QuilletViews.hpp"

#include <QEventLoop>
#include <QQmlComponent>

#include <algorithm>
#include <stdexcept>
#include <thread>
#include <utility>

namespace quillet::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto host = R"(
    import QtQuick
    import QtQuick.Controls.Basic
    ApplicationWindow {
        width: 390; height: 844; visible: true
        property alias stack: stack
        function clear() { stack.pop(null, StackView.Immediate) }
        StackView {
            id: stack
            anchors.fill: parent; anchors.topMargin: 64
            pushEnter: null; pushExit: null
            initialItem: Item {}
        }
    })";

class NoAnalytics final : public kel::KelAnalyticsManagerType {
public:
    void trackScreen(const kel::KelAnalyticsScreenType& /*screen*/) override {}
    void trackEvent(const kel::KelAnalyticsEventType& /*event*/) override {}
};

QQuickItem* findList(const QQuickItem& root) {
    for (QQuickItem* child : root.childItems()) {
        QQuickItem* const found = child->objectName() == QLatin1String("result") ? child : findList(*child);
        if (found) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

ResultStage::ResultStage() : engine_(std::make_unique<QQmlEngine>()) {
    useQuilletViews(*engine_);
    QQmlComponent component(engine_.get());
    component.setData(host, QUrl());
    window_.reset(qobject_cast<QQuickWindow*>(component.create()));
    if (!window_) {
        throw std::runtime_error(component.errorString().toStdString());
    }
    stack_ = window_->property("stack").value<QQuickItem*>();
    drawFrame();
}

ResultStage::~ResultStage() {
    window_.reset();
}

ResultStage::Opening ResultStage::open(const SharedProducts& products) {
    Opening opening;
    const auto start = Clock::now();
    ProductsPartiallyAddedFactoryInput input(QStringLiteral("05"), 1, 1, 1, products, products);
    const auto sorted = Clock::now();
    auto screen = std::make_shared<ProductsCheckoutStatusViewController>(
        std::make_unique<LoadingDisplayer>(std::make_unique<LoadingView>()), std::make_shared<NoAnalytics>());
    screen->setView(ProductsPartiallyAddedFactory({}).view(std::move(input), *screen));
    const auto built = Clock::now();
    if (!platform::NavigationController::of(*stack_).push(screen)) {
        throw std::runtime_error("The result screen does not load.");
    }
    const auto pushed = Clock::now();
    do {
        drawFrame();
    } while (rows().empty());
    opening.input = sorted - start;
    opening.view = built - sorted;
    opening.push = pushed - built;
    opening.frame = Clock::now() - pushed;
    screen_ = screen;
    return opening;
}

void ResultStage::close() {
    QMetaObject::invokeMethod(window_.get(), "clear");
    do {
        drawFrame();
    } while (!screen_.expired());
}

std::vector<Milliseconds> ResultStage::toggle() {
    const auto all = rows();
    const auto uppermost = std::ranges::min_element(all, {}, &QQuickItem::y);
    const auto* result = qobject_cast<ProductsCheckoutStatusView*>(screen_.lock()->status());
    const int before = result->products()->rowCount();
    std::vector<Milliseconds> frames;
    auto start = Clock::now();
    QMetaObject::invokeMethod(*uppermost, "headTapped");
    do {
        drawFrame();
        frames.emplace_back(Clock::now() - start);
        // As a screen does: otherwise nearly all frames would find nothing changed.
        std::this_thread::sleep_until(start + std::chrono::milliseconds(16));
        start = Clock::now();
    } while (result->products()->isMoving() || result->products()->rowCount() == before);
    return frames;
}

void ResultStage::drawFrame() {
    QEventLoop loop;
    QObject::connect(window_.get(), &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    window_->update();
    loop.exec();
}

QQuickItem& ResultStage::list() const {
    return *findList(*stack_);
}

std::vector<QQuickItem*> ResultStage::rows() const {
    std::vector<QQuickItem*> rows;
    for (QQuickItem* item : list().property("contentItem").value<QQuickItem*>()->childItems()) {
        // Released rows stay hidden until the event loop deletes them.
        if (item->isVisible() && item->property("isHead").isValid()) {
            rows.push_back(item);
        }
    }
    return rows;
}

} // namespace quillet::benchmarks
