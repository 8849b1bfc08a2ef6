#include "KelDS/KelDS.hpp"
#include "Platform/Screens/Accessible/AccessibleState.hpp"
#include "Quillet/Quillet.hpp"
#include "Quillet/Testing.hpp"
#include "Support/Stage.hpp"

#include <QAccessible>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

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

void walk(const QAccessibleInterface& interface, std::vector<std::string>& lines) {
    const QAccessible::State state = interface.state();
    if (state.invisible) {
        return;
    }
    static const std::map<QAccessible::Role, std::string> roles{
        {QAccessible::Heading, "heading"}, {QAccessible::StaticText, "text"},
        {QAccessible::Button, "button"},   {QAccessible::List, "list"},
        {QAccessible::ListItem, "item"},   {QAccessible::Dialog, "dialog"},
        {QAccessible::Pane, "page"},       {QAccessible::PageTab, "tab"},
        {QAccessible::Grouping, "group"},  {QAccessible::Animation, "animation"}};
    const auto role = roles.find(interface.role());
    if (role != roles.end()) {
        std::string line = role->second + ": " + interface.text(QAccessible::Name).toStdString();
        line += state.expandable ? state.expanded ? ", open" : ", closed" : "";
        line += state.busy ? ", busy" : "";
        line += state.modal ? ", modal" : "";
        lines.push_back(line);
    }
    for (int i = 0; i < interface.childCount(); ++i) {
        const QAccessibleInterface* child = interface.child(i);
        EXPECT_EQ(interface.indexOfChild(child), i);
        walk(*child, lines);
    }
}

struct Accessibility : ::testing::Test {
    Accessibility() {
        heard().clear();
        platform::AccessibleState::post = hear;
    }
    ~Accessibility() override {
        platform::AccessibleState::post = QAccessible::updateAccessibility;
        kel::KelAppearance::current().setReducedMotion(false);
        ScriptedBackend::uninstall();
        EXPECT_THAT(Stage::complaints(), IsEmpty());
    }

    void open() {
        const auto starter = Starter::create("token", "idp", {"cart-1", 41052, "CL"}, host);
        ASSERT_TRUE(turnUntil([&] { return stage.stack().height() > 0 && stage.window().isExposed(); }));
        ASSERT_TRUE(present(starter->createRootViewController(), stage.stack()));
        ASSERT_TRUE(turnUntil([&] { return !stage.stack().property("busy").toBool(); }));
    }
    void showDialog() {
        open();
        ASSERT_TRUE(turnUntil([&] { return stage.shows(viewOrders); }));
    }
    void showSummary() {
        showDialog();
        stage.click(viewOrders);
        ASSERT_TRUE(turnUntil([&] { return !stage.shows(viewOrders); }));
    }
    void showResult() {
        showSummary();
        stage.click(send);
        ASSERT_TRUE(
            turnUntil([&] { return stage.shows(someSent) && !stage.stack().property("busy").toBool(); }));
    }
    [[nodiscard]] std::vector<std::string> lines() const {
        std::vector<std::string> lines;
        walk(*QAccessible::queryAccessibleInterface(&stage.window()), lines);
        return lines;
    }
    [[nodiscard]] std::string focus() const {
        const QQuickItem* const item = stage.focus();
        return item ? item->property("text").toString().toStdString() : std::string();
    }
    [[nodiscard]] bool showsRing() const {
        return stage.focus() && stage.focus()->property("showsFocus").toBool();
    }

    Log log = makeLog();
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<ScriptedBackend> backend = ScriptedBackend::install();
    const QString viewOrders = "Ver Pedidos";
    const QString send = "Enviar productos a mi carrito";
    const QString someSent = "Algunos productos no fueron enviados al carrito. ¡Vea!";
    Stage stage;
};

} // namespace

TEST_F(Accessibility, TellsThatItWaitsAndThatItTakesLong) {
    backend->script(Call::associate,
                    {Reply{.body = sampleBody(Call::associate), .after = std::chrono::seconds(8)}});
    open();
    EXPECT_THAT(lines(), ElementsAre("page: Resumen de venta, busy", "animation: Cargando, busy, modal"));
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Está tardando más de lo habitual."); }));
    backend->clock()->advance(std::chrono::seconds(8));
    ASSERT_TRUE(turnUntil([&] { return stage.shows(viewOrders); }));
    EXPECT_THAT(heard(),
                ElementsAre("Resumen de venta is busy", "says: Cargando",
                            "says: Está tardando más de lo habitual.", "Resumen de venta is no longer busy",
                            "says: El pedido enviado por WhatsApp, fue registrado con éxito."));
}

TEST_F(Accessibility, LeavesOutWhatLiesUnderADialog) {
    showDialog();
    EXPECT_THAT(lines(),
                ElementsAre("page: Resumen de venta",
                            "dialog: ¡Pedido del cliente registrado y con estatus en curso!, modal",
                            "button: Cerrar", "text: ¡Pedido del cliente registrado y con estatus en curso!",
                            "text: El pedido enviado por WhatsApp, fue registrado con éxito.",
                            "button: Ver Pedidos"));
}

TEST_F(Accessibility, ReadsTheSummaryAsItIsSeen) {
    showSummary();
    EXPECT_THAT(lines(),
                ElementsAre("page: Resumen de venta", "tab: En Curso", "heading: Ciclo actual: 05",
                            "text: Inicio: 01/03/2026", "text: Cierre: 21/03/2026",
                            "text: Puntos en curso: 60",
                            "heading: Resumen del Pedido:", "text: Ciclo del pedido: 05", "text: 14/03/2026",
                            "text: Total de productos: 3", "text: Puntos del pedido: 60",
                            "text: Recuerda: Puedes seguir acumulando tus ventas hasta alcanzar el puntaje "
                            "deseado para realizar tu Nuevo Pedido.",
                            "button: Enviar productos a mi carrito"));
}

TEST_F(Accessibility, ReadsTheResultAsItIsSeenInOneColumnAndInTwo) {
    showResult();
    const std::vector<std::string> head{"heading: Ciclo actual: 05",
                                        "text: 20 puntos enviados en total",
                                        "text: " + someSent.toStdString(),
                                        "text: Productos no enviados:",
                                        "text: 1",
                                        "text: Productos enviados con éxito:",
                                        "text: 2"};
    const std::vector<std::string> end{
        "text: Recuerda: Puedes seguir acumulando tus ventas hasta alcanzar el puntaje deseado para realizar "
        "tu Nuevo Pedido.",
        "button: Ir al carrito"};
    const std::vector<std::string> products{
        "button: Productos enviados, open", "item: 1, Perfume Luz de tarde 100 ml, Code: 81190, 10 puntos",
        "item: 1, Champú sólido Romero y limón, Code: 61204, 10 puntos",
        "button: Productos no enviados, open", "item: 1, Labial mate Arcilla rosada, Code: 90318, 10 puntos"};
    const auto join = [](std::vector<std::string> start, const auto&... more) {
        (start.insert(start.end(), more.begin(), more.end()), ...);
        return start;
    };
    const std::string page = "page: Comentarios sobre los envíos";
    const std::vector<std::string> list{"list: " + someSent.toStdString()};
    EXPECT_EQ(lines(), join({page}, list, head, products, end));
    stage.window().resize(1280, 800);
    ASSERT_TRUE(turnUntil([&] { return stage.stack().width() == 1280; }));
    const std::vector<std::string> group{"group: " + someSent.toStdString()};
    EXPECT_EQ(lines(), join({page}, group, head, end, list, products));

    heard().clear();
    stage.click("Productos enviados");
    stage.click("Productos enviados");
    EXPECT_THAT(heard(), ElementsAre("Productos enviados is closed", "Productos enviados is open"));
}

TEST_F(Accessibility, SaysWhatWentWrongOnce) {
    backend->script(Call::associate, {Reply{.status = 500}});
    open();
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Volver"); }));
    EXPECT_THAT(lines(), ElementsAre("page: Resumen de venta",
                                     "group: Lo sentimos, pero esta información ya no está disponible.",
                                     "text: Lo sentimos, pero esta información ya no está disponible.",
                                     "button: Volver"));
    EXPECT_EQ(std::ranges::count(heard(), "says: Lo sentimos, pero esta información ya no está disponible."),
              1);
}

TEST_F(Accessibility, ScrollsByKeysAsSoonAsAPageIsShown) {
    stage.window().resize(320, 400);
    showSummary();
    stage.stack().forceActiveFocus();
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
}

TEST_F(Accessibility, ShowsWhereTheKeysAreToThoseWhoUseKeys) {
    showDialog();
    EXPECT_EQ(focus(), "Ver Pedidos");
    EXPECT_FALSE(showsRing());
    stage.key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "Cerrar");
    EXPECT_TRUE(showsRing());
    stage.key(Qt::Key_Tab);
    stage.key(Qt::Key_Return);
    ASSERT_TRUE(turnUntil([&] { return !stage.shows(viewOrders); }));
    stage.key(Qt::Key_Tab);
    EXPECT_EQ(focus(), send.toStdString());
    EXPECT_TRUE(showsRing());
    backend->script(Call::checkout, {Reply{.status = 500}});
    stage.key(Qt::Key_Return);
    // The dialog comes by itself, and still the ring is there.
    ASSERT_TRUE(turnUntil([&] { return stage.shows("dialogCloseIcon"); }));
    EXPECT_TRUE(showsRing());
    stage.click("dialogBackground");
    EXPECT_FALSE(showsRing());
}

TEST_F(Accessibility, TakesATapOnADialogsCardForNone) {
    showDialog();
    const QQuickItem* const title = stage.item("¡Pedido del cliente registrado y con estatus en curso!");
    stage.clickAt(title->mapToScene({title->width() / 2, title->height() + 4}));
    stage.touchAt(title->mapToScene({title->width() / 2, title->height() + 4}));
    EXPECT_EQ(stage.item("dialogBackground")->opacity() > 0, true);
    EXPECT_FALSE(turnUntilFor(std::chrono::milliseconds(900), [&] { return !stage.shows(viewOrders); }));
}

TEST_F(Accessibility, MovesNothingForLongWhereMotionIsReduced) {
    kel::KelAppearance::current().setReducedMotion(true);
    const kel::KelMotion motion;
    for (const char* what : {"press", "panel", "dialogIn", "dialogOut", "page"}) {
        EXPECT_LE(motion.property(what).toInt(), 150) << what;
        EXPECT_GT(motion.property(what).toInt(), 0) << what;
    }
    showResult();
    const QQuickItem* const list = stage.item("result");
    stage.click("Productos enviados");
    EXPECT_EQ(list->property("count").toInt(), 3);
}

} // namespace quillet::testing
