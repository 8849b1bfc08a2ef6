#include "Code/HostCode.hpp"
#include "KelDS/KelDesignSystem.hpp"
#include "PhoneArea.hpp"
#include "Play/Hands.hpp"
#include "Play/WarningCounter.hpp"
#include "Sandbox/Journal.hpp"
#include "Sandbox/LiveStatus.hpp"

#include <QFile>
#include <QQuickItem>
#include <QQuickView>
#include <QtTest/qtestsystem.h>

#include <gtest/gtest.h>

extern void qml_register_types_Demo();

namespace demo::testing {

TEST(Live, HasTheCodeThatEmbedsTheModuleAsItStandsInTheHost) {
    QFile source(QUILLET_PROJECT_FOLDER "/" + HostCode::file());
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(source.readAll()).contains("\n" + HostCode::text() + "\n"));
    for (const char* call : {"QuilletConfiguration::shared().configure(", "Starter::create(",
                             "quillet::present(", "::navigateToCart()"}) {
        EXPECT_TRUE(HostCode::text().contains(call)) << call;
    }
}

TEST(Live, ShowsTheHostCodeToWhomeverOpensItsCard) {
    const WarningCounter warnings;
    const int before = WarningCounter::count();
    Journal journal;
    LiveStatus status;
    PhoneArea area(usualPhoneSize, true);
    QQuickView view;
    qml_register_types_Demo();
    kel::useDesignSystem(*view.engine());
    view.setInitialProperties({{"journal", QVariant::fromValue<QObject*>(&journal)},
                               {"status", QVariant::fromValue<QObject*>(&status)},
                               {"area", QVariant::fromValue(&area)},
                               {"moduleOpen", false}});
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(usualLiveSize);
    view.setSource(QUrl("qrc:/qt/qml/Demo/Live.qml"));
    view.show();
    auto* head = view.rootObject()->findChild<QQuickItem*>("hostCodeHead");
    auto* code = view.rootObject()->findChild<QQuickItem*>("hostCode");
    ASSERT_TRUE(head && code);
    EXPECT_FALSE(code->isVisible());

    Hands(view).tap(head->mapToScene({8, 8}), Device::mouse);
    EXPECT_TRUE(QTest::qWaitFor([&] { return code->isVisible(); }));
    EXPECT_EQ(code->property("text").toString().toStdString(), HostCode::text().toStdString());
    EXPECT_EQ(WarningCounter::count(), before);
}

} // namespace demo::testing
