// Linked into a program, it tells the file descriptor 3 the moment of the program's first frame, in
// nanoseconds of the monotonic clock. The program itself stays as it is.
#include <QCoreApplication>
#include <QEvent>
#include <QQuickWindow>

#include <unistd.h>

#include <chrono>
#include <string>

namespace {

class FirstFrame final : public QObject {
public:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Expose) {
            if (auto* const window = qobject_cast<QQuickWindow*>(object)) {
                connect(window, &QQuickWindow::frameSwapped, this, &FirstFrame::tell,
                        Qt::SingleShotConnection);
                QCoreApplication::instance()->removeEventFilter(this);
            }
        }
        return false;
    }

private:
    static void tell() {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        const std::string line =
            std::to_string(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()) + '\n';
        static_cast<void>(!write(3, line.data(), line.size()));
    }
};

void watch() {
    static FirstFrame firstFrame;
    QCoreApplication::instance()->installEventFilter(&firstFrame);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
