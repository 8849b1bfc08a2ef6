#include "Quillet/Quillet.hpp"
#include "Quillet/Testing.hpp"
#include "Support/Stage.hpp"

#include <KelCommon/KelAnalyticsManager.hpp>

#include <QQmlEngine>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

using ::testing::IsEmpty;

const char* const barInHeader = R"(
    import QtQuick
    import QtQuick.Controls
    ApplicationWindow {
        width: 390; height: 844; visible: true
        property alias stack: stack
        property alias bar: bar
        header: Rectangle {
            id: bar
            property int clicks: 0
            implicitHeight: 64
            MouseArea { anchors.fill: parent; onClicked: bar.clicks++ }
        }
        StackView { id: stack; objectName: "stack"; anchors.fill: parent; initialItem: Item {} }
    })";

// The bar and the module's page in a layout, and below it a part of the window that the host names for covers
// or not.
const char* const stackInLayout = R"(
    import QtQuick
    import QtQuick.Controls
    import QtQuick.Layouts
    Window {
        width: 390; height: 844; visible: true
        property alias stack: stack
        property alias bar: bar
        property alias pane: pane
        Rectangle {
            id: bar
            property int clicks: 0
            width: parent.width; height: 64
            MouseArea { anchors.fill: parent; onClicked: bar.clicks++ }
        }
        Item {
            id: pane
            anchors.fill: parent; anchors.topMargin: 64
            ColumnLayout {
                anchors.fill: parent
                StackView {
                    id: stack
                    objectName: "stack"
                    Layout.fillWidth: true; Layout.fillHeight: true
                    initialItem: Item {}
                }
            }
        }
    })";

const char* const sideBySide = R"(
    import QtQuick
    import QtQuick.Controls
    import QtQuick.Layouts
    ApplicationWindow {
        width: 800; height: 844; visible: true
        property alias stack: left
        property alias right: right
        property alias bar: bar
        Item { id: bar; property int clicks: 0 }
        RowLayout {
            anchors.fill: parent
            StackView { id: left; Layout.fillWidth: true; Layout.fillHeight: true; initialItem: Item {} }
            StackView { id: right; Layout.fillWidth: true; Layout.fillHeight: true; initialItem: Item {} }
        }
    })";

struct HostShapes : ::testing::Test {
    HostShapes() { kel::KelAnalyticsManager::shared()->setSink(std::make_shared<RecordingAnalytics>(log)); }
    ~HostShapes() override {
        kel::KelAnalyticsManager::shared()->setSink(nullptr);
        ScriptedBackend::uninstall();
        EXPECT_THAT(Stage::complaints(), IsEmpty());
    }

    // The dialog of an order that was taken over comes first.
    [[nodiscard]] bool showOrder(Stage& stage) const {
        if (!turnUntil([&] { return stage.shows(viewOrders); })) {
            return false;
        }
        stage.click(viewOrders);
        return turnUntil([&] { return !stage.shows(viewOrders); });
    }

    [[nodiscard]] bool open(QQuickItem& stack, QQuickItem* covered = nullptr) const {
        const auto starter = Starter::create("token", "idp", {"cart-1", 41052, "CL"}, host);
        // The window and its layouts get their sizes in the event loop.
        return turnUntil([&] { return stack.height() > 0 && stack.window()->isExposed(); }) &&
               present(starter->createRootViewController(), stack, covered) &&
               turnUntil([&] { return !stack.property("busy").toBool(); });
    }

    static QQuickItem* part(const Stage& stage, const char* name) {
        return stage.window().property(name).value<QQuickItem*>();
    }

    static bool isUnder(const QQuickItem* item, const QQuickItem& ancestor) {
        return item && ancestor.isAncestorOf(item);
    }

    Log log = makeLog();
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<ScriptedBackend> backend = ScriptedBackend::install();
    const QString viewOrders = "Ver Pedidos";
    const QString send = "Enviar productos a mi carrito";
};

} // namespace

TEST_F(HostShapes, CoverABarInTheWindowsHeader) {
    backend->script(Call::associate,
                    {Reply{.body = sampleBody(Call::associate), .after = std::chrono::seconds(5)}});
    Stage stage(barInHeader);
    ASSERT_TRUE(open(stage.stack()));
    stage.clickBar();
    EXPECT_EQ(stage.barClicks(), 0);
    backend->clock()->advance(std::chrono::seconds(5));
    ASSERT_TRUE(showOrder(stage));
    stage.clickBar();
    EXPECT_EQ(stage.barClicks(), 1);
}

TEST_F(HostShapes, CoverNoMoreThanTheItemThatIsNamed) {
    backend->script(Call::associate, {Reply::never()});
    for (const bool isNamed : {false, true}) {
        SCOPED_TRACE(isNamed);
        Stage stage(stackInLayout);
        QQuickItem* const pane = part(stage, "pane");
        ASSERT_TRUE(open(stage.stack(), isNamed ? stage.window().contentItem() : nullptr));
        stage.clickBar();
        EXPECT_EQ(stage.barClicks(), isNamed ? 0 : 1);
        EXPECT_EQ(stage.stack().size(), pane->size());
    }
}

TEST_F(HostShapes, KeepTwoModulesApart) {
    backend->script(Call::associate, {Reply::never(), Reply::sample(Call::associate)});
    Stage stage(sideBySide);
    QQuickItem& right = *part(stage, "right");
    ASSERT_TRUE(open(stage.stack()));
    ASSERT_TRUE(open(right));
    ASSERT_TRUE(showOrder(stage));
    ASSERT_TRUE(isUnder(stage.item(send), right));
    right.forceActiveFocus();

    // The left one still waits; the right one works by mouse, by key and for a screen reader.
    stage.click(send);
    ASSERT_TRUE(
        turnUntil([&] { return stage.shows("Algunos productos no fueron enviados al carrito. ¡Vea!"); }));
    EXPECT_TRUE(isUnder(stage.item("Algunos productos no fueron enviados al carrito. ¡Vea!"), right));
    log->clear();
    stage.pressByScreenReader("Ir al carrito");
    EXPECT_THAT(*log, ::testing::Contains("navigateToCart"));

    // Its end puts an outcome on the left, and leaves the right one its focus.
    EXPECT_TRUE(right.isAncestorOf(stage.focus()) || stage.focus() == &right);
    backend->clock()->advance(std::chrono::seconds(60));
    ASSERT_TRUE(turnUntil([&] {
        return isUnder(stage.item("Lo sentimos, pero esta información ya no está disponible."),
                       stage.stack());
    }));
    EXPECT_TRUE(right.isAncestorOf(stage.focus()) || stage.focus() == &right);
}

TEST_F(HostShapes, HideAndShowAPageWithADialogThatKeepsTheKeys) {
    backend->script(Call::checkout, {Reply{.status = 500}});
    Stage stage;
    ASSERT_TRUE(open(stage.stack()));
    ASSERT_TRUE(showOrder(stage));
    stage.click(send);
    ASSERT_TRUE(turnUntil([&] { return stage.shows("dialogCloseIcon"); }));
    stage.stack().parentItem()->setVisible(false);
    EXPECT_FALSE(stage.shows("dialogCloseIcon"));
    stage.stack().parentItem()->setVisible(true);
    log->clear();
    stage.key(Qt::Key_Escape);
    EXPECT_TRUE(turnUntil([&] { return std::ranges::count(*log, "navigateToHome") == 1; }));
}

TEST_F(HostShapes, GetTheKeysBackOnlyWhereTheyAreSeen) {
    backend->script(Call::checkout, {Reply{.status = 500}});
    Stage stage;
    ASSERT_TRUE(open(stage.stack()));
    ASSERT_TRUE(showOrder(stage));
    // The focus stays behind on the button of the page that the checkout covers.
    stage.item(send)->forceActiveFocus();
    stage.key(Qt::Key_Return);
    ASSERT_TRUE(turnUntil([&] { return stage.shows("dialogCloseIcon") && !stage.shows(send); }));
    stage.key(Qt::Key_Escape);
    ASSERT_TRUE(turnUntil([&] { return !stage.shows("dialogCloseIcon"); }));
    log->clear();
    stage.key(Qt::Key_Return);
    EXPECT_THAT(*log, IsEmpty());
    EXPECT_TRUE(!stage.focus() || stage.focus()->isVisible());
}

} // namespace quillet::testing
