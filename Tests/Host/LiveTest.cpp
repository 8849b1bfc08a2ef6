#include "Code/HostCode.hpp"
#include "HostWindow.hpp"
#include "KelDS/KelDesignSystem.hpp"
#include "KelDSIcons/KelDSIcons.hpp"
#include "Play/Hands.hpp"

#include <QFile>
#include <QQuickView>
#include <QRegularExpression>

namespace demo::testing {

using Live = HostWindow;

TEST_F(Live, TellsWhatHappensInItsOrderAndShowsTheHostCode) {
    using namespace std::chrono_literals;
    using namespace quillet::platform;
    QQuickView view;
    kel::useDesignSystem(*view.engine());
    view.setInitialProperties({{"journal", QVariant::fromValue<QObject*>(journal.get())},
                               {"status", QVariant::fromValue<QObject*>(&status)},
                               {"area", QVariant::fromValue(&area)},
                               {"moduleOpen", true}});
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(usualLiveSize);
    view.setSource(QUrl("qrc:/qt/qml/Demo/Live.qml"));
    view.show();
    ASSERT_TRUE(view.rootObject());

    status.gatewayStarted();
    status.opened({"7f3c9a10-52e1", 41052, "CL"}, quillet::Environment::hml);
    const URLRequest patch{.url = {"a.test", "/one"}, .httpMethod = "PATCH"};
    const URLRequest get{.url = {"a.test", "/two?x=y"}};
    journal->requestStarted(1, patch);
    journal->requestStarted(2, get);
    journal->requestStarted(3, get);
    journal->requestEnded(1, patch, {422, {}, 12ms});
    journal->requestEnded(2, get, {0, URLError::Code::timedOut, 60s});
    journal->screenTracked("Orders of my customers");
    journal->navigated("navigateToCart", kel::KelIconNumber::cart);
    status.gatewayEnded();
    const std::string expected =
        "Live | Consultant 41052 · Chile · cart 7f3c9a10 | 320 × 568 | hml | gateway down | "
        "Requests | 3 | T | PATCH | /one | 422 | 12 ms | T | GET | /two?x=y | -1001 | 60000 ms | "
        "T | GET | /two?x=y | … | Analytics | 1 | Orders of my customers | screen | T | "
        "Navigation | 1 | Waiting for the module to hand over | navigateToCart | T | "
        "Host code | Demo/Host/HostApplication.cpp";
    static const QRegularExpression time("[0-9]{2}:[0-9]{2}:[0-9]{2}(\\.[0-9]{3})?");
    const auto words = [&] {
        return QString::fromStdString(wordsIn(*view.rootObject())).replace(time, "T").toStdString();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return words() == expected; })) << words();

    auto* head = view.rootObject()->findChild<QQuickItem*>("hostCodeHead");
    auto* code = view.rootObject()->findChild<QQuickItem*>("hostCode");
    ASSERT_TRUE(head && code);
    Hands(view).tap(head->mapToScene({8, 8}), Device::mouse);
    EXPECT_TRUE(QTest::qWaitFor([&] { return code->isVisible(); }));
    const QString shown = code->property("text").toString();
    QFile source(QUILLET_PROJECT_FOLDER "/" + HostCode::file());
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(source.readAll()).contains("\n" + shown + "\n")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("Starter::create(") && shown.contains("::navigateToCart()"));
}

} // namespace demo::testing
