#include "KelCommon/KelLocalized.hpp"

#include <QGuiApplication>

#include <gmock/gmock.h>

// Runs Qt tests without display or graphics card, in one language on every machine.
int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    kel::setLanguage(QStringLiteral("es"));
    return RUN_ALL_TESTS();
}
