#include "KelCommon/KelLocalized.hpp"

#include <QAnimationDriver>
#include <QBasicTimer>
#include <QGuiApplication>

#include <gmock/gmock.h>

namespace {

/// Qt's animation clock made faster: a tick advances it by a twentieth of a second, however soon it comes.
class HurriedAnimations final : public QAnimationDriver {
public:
    [[nodiscard]] qint64 elapsed() const override { return elapsed_; }

protected:
    void start() override {
        elapsed_ = 0;
        timer_.start(1, this);
        QAnimationDriver::start();
    }
    void stop() override {
        timer_.stop();
        QAnimationDriver::stop();
    }
    void timerEvent(QTimerEvent*) override {
        elapsed_ += 50;
        advance();
    }

private:
    QBasicTimer timer_;
    qint64 elapsed_ = 0;
};

} // namespace

// Runs Qt tests without display or graphics card, in one language on every machine.
int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    HurriedAnimations driver;
    driver.install();
    kel::setLanguage(QStringLiteral("es"));
    const int result = RUN_ALL_TESTS();
    driver.uninstall();
    return result;
}
