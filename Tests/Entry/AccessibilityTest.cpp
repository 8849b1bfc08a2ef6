#include "Platform/Screens/Accessible/AccessibleState.hpp"
#include "Platform/Screens/QuickViewController.hpp"
#include "Support/ModuleTest.hpp"

#include <QAccessible>
#include <QCoreApplication>
#include <QQmlComponent>
#include <QTimer>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;

struct Accessibility : ModuleTest {
    Accessibility() {
        heard.clear();
        platform::AccessibleState::post = hear;
    }
    ~Accessibility() override { platform::AccessibleState::post = QAccessible::updateAccessibility; }

    /// What a screen reader is told while it happens.
    static void hear(QAccessibleEvent* event) {
        const QAccessibleInterface* const interface = event->accessibleInterface();
        if (!interface) {
            return;
        }
        const std::string name = interface->text(QAccessible::Name).toStdString();
        if (event->type() == QAccessible::Alert) {
            const QString description = interface->text(QAccessible::Description);
            heard.push_back("says: " + (description.isEmpty() ? name : description.toStdString()));
        }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        if (event->type() == QAccessible::Announcement) {
            const auto* const announcement = static_cast<QAccessibleAnnouncementEvent*>(event);
            heard.push_back("says: " + announcement->message().toStdString());
        }
#endif
        if (event->type() == QAccessible::StateChanged) {
            const auto changed = static_cast<QAccessibleStateChangeEvent*>(event)->changedStates();
            if (changed.busy) {
                heard.push_back(name + (interface->state().busy ? " is busy" : " is no longer busy"));
            }
            if (changed.expanded) {
                heard.push_back(name + (interface->state().expanded ? " is open" : " is closed"));
            }
        }
    }

    /// What the focus is on, with an "o" where a ring shows it.
    [[nodiscard]] QString focus() const {
        const QQuickItem* const item = stage->focus();
        return item ? item->property("text").toString() + (item->property("showsFocus").toBool() ? " o" : "")
                    : "";
    }

    inline static std::vector<std::string> heard;
};

} // namespace

TEST_F(Accessibility, TellsWhatHappensInItsOrderAndOnce) {
    backend->script(Call::associate,
                    {Reply{.status = 504, .after = std::chrono::seconds(8)}, Reply::sample(Call::associate)});
    const auto screen = open();
    ASSERT_TRUE(turnUntil([&] { return settled(); }));
    // In place of the five seconds.
    auto* const patience = screen.lock()->property("loadingView").value<QObject*>()->findChild<QTimer*>();
    EXPECT_EQ(patience->interval(), 5000);
    ASSERT_TRUE(patience->isActive());
    QMetaObject::invokeMethod(patience, "timeout", Qt::DirectConnection);
    ASSERT_TRUE(turnUntil([&] { return stage->shows("Está tardando más de lo habitual."); }));
    backend->clock()->advance(std::chrono::seconds(8));
    ASSERT_TRUE(comesToShow(retry));
    EXPECT_FALSE(patience->isActive());
    EXPECT_THAT(std::exchange(heard, {}),
                ElementsAre("Resumen de venta is busy", "says: Cargando",
                            "says: Está tardando más de lo habitual.", "Resumen de venta is no longer busy",
                            "says: Lo sentimos, algo salió mal"));
    clickThrough({retry}, viewOrders);
    EXPECT_THAT(std::exchange(heard, {}),
                ElementsAre("Resumen de venta is busy", "says: Cargando",
                            "Resumen de venta is no longer busy",
                            "says: El pedido enviado por WhatsApp, fue registrado con éxito."));
    clickThrough({viewOrders, send, "Productos enviados", "Productos enviados"});
    std::erase_if(heard, [](const std::string& event) { return event.ends_with("busy"); });
    EXPECT_THAT(heard, ElementsAre("says: Cargando", "says: " + someSent.toStdString(),
                                   "Productos enviados is closed", "Productos enviados is open"));
}

TEST_F(Accessibility, ScrollsByKeysAndByTheWheelAsSoonAsAPageIsShown) {
    stage->window().resize(320, 400);
    // The dialog takes the keys, and gives them back.
    stage->stack().forceActiveFocus();
    open();
    clickThrough({viewOrders}, send);
    const auto y = [&] { return stage->middle("En Curso").y(); };
    const double top = y();
    for (const auto& [down, up] : {std::pair(Qt::Key_Down, Qt::Key_Up),
                                   {Qt::Key_PageDown, Qt::Key_PageUp},
                                   {Qt::Key_End, Qt::Key_Home}}) {
        stage->key(down);
        EXPECT_LT(y(), top) << down;
        stage->key(up);
        EXPECT_EQ(y(), top) << up;
    }
    stage->wheelAt({160, 200});
    EXPECT_TRUE(turnUntilFor(std::chrono::seconds(5), [&] { return y() < top; }));
}

TEST_F(Accessibility, ShowsWhereTheKeysAreToThoseWhoUseKeys) {
    open();
    ASSERT_TRUE(comesToShow(viewOrders));
    EXPECT_EQ(focus(), "Ver Pedidos");
    stage->key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "Cerrar o");
    stage->key(Qt::Key_Tab);
    stage->key(Qt::Key_Return);
    ASSERT_TRUE(comesToShow(send));
    stage->key(Qt::Key_Tab);
    EXPECT_EQ(focus(), send + " o");
    backend->script(Call::checkout, {Reply{.status = 500}});
    stage->key(Qt::Key_Enter);
    // The dialog comes by itself, and still the ring is there.
    ASSERT_TRUE(comesToShow(closeIcon));
    EXPECT_EQ(focus(), "Actualizar o");
    stage->click("dialogBackground");
    EXPECT_EQ(focus(), "Actualizar");
}

TEST_F(Accessibility, TakesAllKeysWhileItWaitsButThePlatformsForGoingBack) {
    backend->script(Call::associate, {Reply{.status = 504}, Reply::never()});
    open();
    clickThrough({retry});
    // The ring turns in each wait, not in the first one alone.
    const auto ring = [&] { return stage->window().grabWindow().copy(167, 394, 56, 56); };
    const QImage before = ring();
    EXPECT_TRUE(turnUntilFor(std::chrono::seconds(5), [&] { return ring() != before; }));
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_Down, Qt::Key_Back}) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(&stage->window(), &event);
        EXPECT_EQ(event.isAccepted(), key != Qt::Key_Back) << key;
    }
}

TEST_F(Accessibility, SaysNothingOfWhatIsNotOnTheScreen) {
    open();
    QQmlComponent component(qmlEngine(&stage->stack()));
    component.setData(R"(import QtQuick; import Quillet.Screens
        Item { visible: false; Accessible.role: Accessible.Pane; AccessibleState.announcement: "here" })",
                      {});
    const std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem*>(component.create()));
    item->setParentItem(&stage->bar());
    EXPECT_EQ(std::ranges::count(heard, "says: here"), 0);
    item->setVisible(true);
    EXPECT_EQ(std::ranges::count(heard, "says: here"), 1);
}

} // namespace quillet::testing
