#include "KelDS/KelDS.hpp"
#include "Platform/Screens/Accessible/AccessibleState.hpp"
#include "Support/ModuleTest.hpp"
#include "Support/Reading.hpp"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QTimer>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;

std::vector<std::string>& heard() {
    static std::vector<std::string> events;
    return events;
}

// What a screen reader is told while it happens.
void hear(QAccessibleEvent* event) {
    const QAccessibleInterface* const interface =
        event->object() ? QAccessible::queryAccessibleInterface(event->object()) : nullptr;
    if (!interface) {
        return;
    }
    const std::string name = interface->text(QAccessible::Name).toStdString();
    if (event->type() == QAccessible::Alert) {
        const std::string description = interface->text(QAccessible::Description).toStdString();
        heard().push_back("says: " + (description.empty() ? name : description));
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (event->type() == QAccessible::Announcement) {
        heard().push_back("says: " +
                          static_cast<QAccessibleAnnouncementEvent*>(event)->message().toStdString());
    }
#endif
    if (event->type() == QAccessible::StateChanged) {
        const auto changed = static_cast<QAccessibleStateChangeEvent*>(event)->changedStates();
        if (changed.busy) {
            heard().push_back(name + (interface->state().busy ? " is busy" : " is no longer busy"));
        }
        if (changed.expanded) {
            heard().push_back(name + (interface->state().expanded ? " is open" : " is closed"));
        }
    }
}

/// The timer of a loading overlay; null if there is none.
QTimer* patienceBelow(const QQuickItem& item) {
    const auto* const loading = item.property("loadingView").value<QObject*>();
    auto* patience = loading ? loading->findChild<QTimer*>() : nullptr;
    for (const QQuickItem* child : item.childItems()) {
        patience = patience ? patience : patienceBelow(*child);
    }
    return patience;
}

struct Accessibility : ModuleTest {
    Accessibility() {
        heard().clear();
        platform::AccessibleState::post = hear;
    }
    ~Accessibility() override {
        platform::AccessibleState::post = QAccessible::updateAccessibility;
        kel::KelAppearance::current().setReducedMotion(false);
    }

    [[nodiscard]] bool openSummary() { return open(stage.stack()) && showSummary(stage); }
    /// What the focus is on, with an "o" where a ring shows it.
    [[nodiscard]] QString focus() const {
        const QQuickItem* const item = stage.focus();
        return item ? item->property("text").toString() + (item->property("showsFocus").toBool() ? " o" : "")
                    : "";
    }

    Stage stage;
};

} // namespace

TEST_F(Accessibility, TellsThatItWaitsAndThatItTakesLong) {
    backend->script(Call::associate,
                    {Reply{.body = sampleBody(Call::associate), .after = std::chrono::seconds(8)}});
    ASSERT_TRUE(open(stage.stack()));
    // In place of the five seconds.
    QTimer* const patience = patienceBelow(*stage.window().contentItem());
    ASSERT_TRUE(patience && patience->isActive());
    patience->start(0);
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Está tardando más de lo habitual."); }));
    backend->clock()->advance(std::chrono::seconds(8));
    ASSERT_TRUE(showsDialog(stage));
    EXPECT_THAT(heard(),
                ElementsAre("Resumen de venta is busy", "says: Cargando",
                            "says: Está tardando más de lo habitual.", "Resumen de venta is no longer busy",
                            "says: El pedido enviado por WhatsApp, fue registrado con éxito."));
}

TEST_F(Accessibility, TellsTheResultAndWhetherASectionIsOpen) {
    ASSERT_TRUE(openSummary());
    heard().clear();
    ASSERT_TRUE(showResult(stage, stage.stack()));
    std::erase_if(heard(), [](const std::string& event) { return !event.starts_with("says: "); });
    EXPECT_THAT(heard(), ElementsAre("says: Cargando", "says: " + someSent.toStdString()));
    heard().clear();
    stage.click("Productos enviados");
    stage.click("Productos enviados");
    EXPECT_THAT(heard(), ElementsAre("Productos enviados is closed", "Productos enviados is open"));
}

TEST_F(Accessibility, SaysWhatWentWrongOnce) {
    backend->script(Call::associate, {Reply{.status = 500}});
    ASSERT_TRUE(open(stage.stack()));
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Volver"); }));
    EXPECT_EQ(std::ranges::count(heard(), "says: Lo sentimos, pero esta información ya no está disponible."),
              1);
}

TEST_F(Accessibility, ScrollsByKeysAndByTheWheelAsSoonAsAPageIsShown) {
    stage.window().resize(320, 400);
    // The dialog takes the keys, and gives them back.
    stage.stack().forceActiveFocus();
    ASSERT_TRUE(openSummary());
    const auto y = [&] { return stage.middle("En Curso").y(); };
    const double top = y();
    const struct {
        Qt::Key key;
        bool atTop;
    } steps[] = {{Qt::Key_Down, false},  {Qt::Key_Up, true},   {Qt::Key_PageDown, false},
                 {Qt::Key_PageUp, true}, {Qt::Key_End, false}, {Qt::Key_Home, true}};
    for (const auto& [key, atTop] : steps) {
        stage.key(key);
        EXPECT_EQ(y() == top, atTop) << key;
    }
    stage.wheelAt({160, 200});
    EXPECT_TRUE(turnUntilFor(std::chrono::seconds(5), [&] { return y() < top; }));
}

TEST_F(Accessibility, ShowsWhereTheKeysAreToThoseWhoUseKeys) {
    ASSERT_TRUE(open(stage.stack()) && showsDialog(stage));
    EXPECT_EQ(focus(), "Ver Pedidos");
    stage.key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "Cerrar o");
    stage.key(Qt::Key_Tab);
    stage.key(Qt::Key_Return);
    ASSERT_TRUE(turnUntil([&] { return !stage.shows(viewOrders); }));
    stage.key(Qt::Key_Tab);
    EXPECT_EQ(focus(), send + " o");
    backend->script(Call::checkout, {Reply{.status = 500}});
    stage.key(Qt::Key_Enter);
    // The dialog comes by itself, and still the ring is there.
    ASSERT_TRUE(turnUntil([&] { return stage.shows("dialogCloseIcon"); }));
    EXPECT_EQ(focus(), "Actualizar o");
    stage.click("dialogBackground");
    EXPECT_EQ(focus(), "Actualizar");
}

TEST_F(Accessibility, TakesAllKeysWhileItWaitsButThePlatformsForGoingBack) {
    backend->script(Call::associate, {Reply::never()});
    ASSERT_TRUE(open(stage.stack()));
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_Down, Qt::Key_Back}) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(&stage.window(), &event);
        EXPECT_EQ(event.isAccepted(), key != Qt::Key_Back) << key;
    }
}

TEST_F(Accessibility, SaysNothingOfWhatIsNotOnTheScreen) {
    ASSERT_TRUE(open(stage.stack()));
    QQmlComponent component(qmlEngine(&stage.stack()));
    component.setData(R"(import QtQuick; import Quillet.Screens
        Item { visible: false; Accessible.role: Accessible.Pane; AccessibleState.announcement: "here" })",
                      {});
    const std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem*>(component.create()));
    item->setParentItem(&stage.bar());
    EXPECT_THAT(heard(), ::testing::Not(::testing::Contains("says: here")));
    item->setVisible(true);
    EXPECT_EQ(std::ranges::count(heard(), "says: here"), 1);
}

TEST_F(Accessibility, TakesATapOnADialogsCardForNone) {
    ASSERT_TRUE(open(stage.stack()) && showsDialog(stage));
    const QQuickItem* const title = stage.item("¡Pedido del cliente registrado y con estatus en curso!");
    const QPointF card = title->mapToScene({title->width() / 2, title->height() + 4});
    stage.clickAt(card);
    stage.touchAt(card);
    EXPECT_FALSE(turnUntilFor(std::chrono::milliseconds(900), [&] { return !stage.shows(viewOrders); }));
}

TEST_F(Accessibility, MovesNothingWhereMotionIsReduced) {
    kel::KelAppearance::current().setReducedMotion(true);
    ASSERT_TRUE(openSummary() && showResult(stage, stage.stack()));
    stage.click("Productos enviados");
    EXPECT_EQ(stage.item("result")->property("count").toInt(), 3);
}

} // namespace quillet::testing
