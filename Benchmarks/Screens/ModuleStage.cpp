#include "Screens/ModuleStage.hpp"

#include "KelCommon/KelCommon.hpp"

#include <QEventLoop>

#include <chrono>
#include <stdexcept>

namespace quillet::benchmarks {

namespace {

constexpr auto host = R"(
    import QtQuick
    import QtQuick.Controls.Basic
    ApplicationWindow {
        width: 390; height: 844; visible: true
        property alias stack: stack
        function show(page, properties) { stack.push(page, properties, StackView.Immediate) }
        function clear() { stack.pop(null, StackView.Immediate) }
        StackView {
            id: stack
            anchors.fill: parent; anchors.topMargin: 64
            pushEnter: null; pushExit: null
            initialItem: Item {}
        }
    })";

class NoNavigation final : public QuilletNavigationDelegate {
public:
    void navigateToCart() override {}
    void navigateToHome() override {}
    void navigateToShareMagazine() override {}
};

class NoAnalytics final : public kel::KelAnalyticsManagerType {
public:
    void trackScreen(const kel::KelAnalyticsScreenType& /*screen*/) override {}
    void trackEvent(const kel::KelAnalyticsEventType& /*event*/) override {}
};

} // namespace

ModuleStage::ModuleStage() : ModuleStage(testing::ScriptedBackend::install()) {}

ModuleStage::ModuleStage(Network /*network*/) : ModuleStage(std::shared_ptr<testing::ScriptedBackend>()) {}

ModuleStage::ModuleStage(std::shared_ptr<testing::ScriptedBackend> backend)
    : backend_(std::move(backend)), navigation_(std::make_shared<NoNavigation>()) {
    kel::KelAnalyticsManager::shared()->setSink(std::make_shared<NoAnalytics>());
    QQmlComponent component(&engine_);
    component.setData(host, QUrl());
    window_.reset(qobject_cast<QQuickWindow*>(component.create()));
    if (!window_) {
        throw std::runtime_error(component.errorString().toStdString());
    }
    stack_ = window_->property("stack").value<QQuickItem*>();
    drawFrame();
}

ModuleStage::~ModuleStage() {
    window_.reset();
    if (backend_) {
        testing::ScriptedBackend::uninstall();
    }
}

Starter ModuleStage::starter() const {
    return *Starter::create("access token", "identity provider", {"cart", 41052, "CL"}, navigation_);
}

void ModuleStage::open() {
    auto screen = starter().createRootViewController();
    screen_ = screen;
    if (!present(screen, *stack_)) {
        throw std::runtime_error("The module cannot be presented.");
    }
}

void ModuleStage::show(QQmlComponent& page, const QVariantMap& properties) {
    QMetaObject::invokeMethod(window_.get(), "show", Q_ARG(QVariant, QVariant::fromValue(&page)),
                              Q_ARG(QVariant, properties));
}

void ModuleStage::clear() {
    QMetaObject::invokeMethod(window_.get(), "clear");
}

void ModuleStage::close() {
    clear();
    drawUntil([this] { return !isOpen(); });
    // The old one keeps all requests, which would grow with each opening.
    if (backend_) {
        backend_ = testing::ScriptedBackend::install();
    }
}

std::size_t ModuleStage::drawUntil(const std::function<bool()>& condition) {
    const auto latest = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    std::size_t frames = 0;
    do {
        if (std::chrono::steady_clock::now() > latest) {
            throw std::runtime_error("The screen does not come to what is waited for.");
        }
        drawFrame();
        ++frames;
    } while (!condition());
    return frames;
}

void ModuleStage::drawFrame() {
    QEventLoop loop;
    QObject::connect(window_.get(), &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    window_->update();
    loop.exec();
}

void ModuleStage::sendProducts() {
    auto* const page = stack_->property("currentItem").value<QQuickItem*>();
    QMetaObject::invokeMethod(page->property("contentView").value<QObject*>(), "tapSendProducts");
}

bool ModuleStage::showsSummary() const {
    const auto* page = stack_->property("currentItem").value<QQuickItem*>();
    return page && page->property("contentView").value<QObject*>();
}

} // namespace quillet::benchmarks
