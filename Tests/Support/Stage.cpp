#include "Support/Stage.hpp"

#include <QAccessible>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QQmlComponent>
#include <QTest>
#include <QTimer>

#include <stdexcept>

namespace quillet::testing {

namespace {

constexpr auto usualHost = R"(
    import QtQuick
    import QtQuick.Controls.Basic
    ApplicationWindow {
        id: host
        width: 390; height: 844; visible: true
        property alias stack: stack
        property alias bar: bar
        property int wayOut: 400
        function back() { stack.pop() }
        function clear() { stack.pop(null, StackView.Immediate) }
        Rectangle {
            id: bar
            property int clicks: 0
            width: parent.width; height: 64
            MouseArea { anchors.fill: parent; onClicked: bar.clicks++ }
        }
        StackView {
            id: stack
            anchors.fill: parent; anchors.topMargin: bar.height
            initialItem: Item {}
            popExit: Transition { XAnimator { from: 0; to: stack.width; duration: host.wayOut } }
        }
    })";

std::vector<std::string>& collected() {
    static std::vector<std::string> lines;
    return lines;
}

QtMessageHandler previousHandler = nullptr;
int stages = 0;

void collect(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.contains(QLatin1String("qrc:")) || message.contains(QLatin1String("QML")) ||
        QLatin1String(context.category).startsWith(QLatin1String("quillet"))) {
        collected().push_back(message.toStdString());
    }
    previousHandler(type, context, message);
}

QPointingDevice& fingers() {
    static QPointingDevice* const device = QTest::createTouchDevice();
    return *device;
}

QQuickItem* find(QQuickItem& root, const QString& name) {
    if (!root.isVisible()) {
        return nullptr;
    }
    if (root.objectName() == name || root.property("text").toString() == name) {
        return &root;
    }
    for (QQuickItem* child : root.childItems()) {
        if (QQuickItem* found = find(*child, name)) {
            return found;
        }
    }
    return nullptr;
}

// A button acts once the event is over.
void finishEvent() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
}

} // namespace

bool turnUntil(const std::function<bool()>& condition) {
    return turnUntilFor(std::chrono::seconds(30), condition);
}

bool turnUntilFor(std::chrono::milliseconds longest, const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(longest);
    QTimer glance;
    glance.start(10);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

Stage::Stage(const char* host) : engine_(std::make_unique<QQmlEngine>()) {
    if (stages++ == 0) {
        collected().clear();
        previousHandler = qInstallMessageHandler(collect);
    }
    QQmlComponent component(engine_.get());
    component.setData(host ? host : usualHost, QUrl());
    window_.reset(qobject_cast<QQuickWindow*>(component.create()));
    if (!window_) {
        throw std::runtime_error(component.errorString().toStdString());
    }
}

Stage::~Stage() {
    window_.reset();
    engine_.reset();
    if (--stages == 0) {
        qInstallMessageHandler(previousHandler);
    }
}

QQuickItem& Stage::stack() const {
    return *window_->property("stack").value<QQuickItem*>();
}

QQuickItem& Stage::bar() const {
    return *window_->property("bar").value<QQuickItem*>();
}

void Stage::popSlowly(std::chrono::milliseconds wayOut) {
    window_->setProperty("wayOut", static_cast<int>(wayOut.count()));
    pop();
}

void Stage::pop() {
    QMetaObject::invokeMethod(window_.get(), "back");
}

void Stage::popAll() {
    QMetaObject::invokeMethod(window_.get(), "clear");
}

QQuickItem* Stage::item(const QString& textOrName) const {
    return find(*window_->contentItem(), textOrName);
}

void Stage::press(const QString& textOrName) {
    QTest::mousePress(window_.get(), Qt::LeftButton, {}, middle(textOrName).toPoint());
}

void Stage::click(const QString& textOrName) {
    clickAt(middle(textOrName));
}

void Stage::releaseAt(QPointF point) {
    QTest::mouseMove(window_.get(), point.toPoint());
    QTest::mouseRelease(window_.get(), Qt::LeftButton, {}, point.toPoint());
    finishEvent();
}

void Stage::clickBar() {
    clickAt(QPointF(bar().width() / 2, bar().height() / 2));
}

void Stage::clickAt(QPointF point) {
    QTest::mouseClick(window_.get(), Qt::LeftButton, {}, point.toPoint());
    finishEvent();
}

void Stage::touchAt(QPointF point) {
    QTest::touchEvent(window_.get(), &fingers()).press(0, point.toPoint());
    QTest::touchEvent(window_.get(), &fingers()).release(0, point.toPoint());
    finishEvent();
}

void Stage::tapRepeatedly(QPointF point, int times, bool byFinger) {
    for (int tap = 0; byFinger && tap < times; ++tap) {
        touchAt(point);
    }
    if (!byFinger && times > 1) {
        QTest::mouseDClick(window_.get(), Qt::LeftButton, {}, point.toPoint());
    }
    if (!byFinger && times != 2) {
        clickAt(point);
    }
}

void Stage::touchWhileResting(QPointF resting, QPointF tapped) {
    const QPoint still = resting.toPoint();
    const QPoint other = tapped.toPoint();
    QTest::touchEvent(window_.get(), &fingers()).press(0, still);
    QTest::touchEvent(window_.get(), &fingers()).stationary(0).press(1, other);
    QTest::touchEvent(window_.get(), &fingers()).stationary(0).release(1, other);
    QTest::touchEvent(window_.get(), &fingers()).release(0, still);
}

void Stage::wheelAt(QPointF point) {
    QWheelEvent event(point, window_->mapToGlobal(point), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window_.get(), &event);
}

void Stage::pressByScreenReader(const QString& textOrName) {
    QAccessible::queryAccessibleInterface(item(textOrName))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    finishEvent();
}

void Stage::key(Qt::Key key) {
    QTest::keyClick(window_.get(), key);
    finishEvent();
}

void Stage::repeatKey(Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, {}, {}, true);
    QCoreApplication::sendEvent(window_.get(), &event);
}

std::vector<std::string> Stage::complaints() {
    return collected();
}

QPointF Stage::middle(const QString& textOrName) const {
    const QQuickItem* found = item(textOrName);
    if (!found) {
        throw std::runtime_error("not on the stage: " + textOrName.toStdString());
    }
    return found->mapToScene(QPointF(found->width() / 2, found->height() / 2));
}

} // namespace quillet::testing
