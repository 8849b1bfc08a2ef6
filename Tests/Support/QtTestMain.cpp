#include "KelCommon/KelLocalized.hpp"

#include <QGuiApplication>

#include <gmock/gmock.h>

// For tests of everything that draws: no display, no graphics card, and one language whatever the machine's.
int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    kel::setLanguage(QStringLiteral("es"));
    return RUN_ALL_TESTS();
}
