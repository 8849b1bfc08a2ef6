#include "Play/Stage.hpp"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace demo {

QString Stage::title() const {
    const auto* bar = host_.phone()->findChild<QQuickItem*>(QStringLiteral("hostBar"));
    return bar ? bar->property("title").toString() : QString();
}

bool Stage::settled() const {
    const auto* stack = host_.window()->property("stack").value<QQuickItem*>();
    const auto* dialog = reader_.named(QStringLiteral("dialogBackground"));
    return stack && !stack->property("busy").toBool() && !(dialog && dialog->opacity() < 1);
}

bool Stage::wait(std::chrono::milliseconds longest, const std::function<bool()>& done,
                 std::chrono::milliseconds glance) {
    QElapsedTimer timer;
    timer.start();
    while (!done()) {
        if (std::chrono::milliseconds(timer.elapsed()) > longest) {
            return false;
        }
        letTimePass(glance);
    }
    return true;
}

void Stage::letTimePass(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace demo
