#include "Support/ModuleTest.hpp"

namespace quillet::testing {

namespace {

using std::chrono::seconds;

constexpr auto inLayout = R"(
    Bar { width: parent.width }
    Item {
        y: 64; width: parent.width; height: 780
        ColumnLayout { anchors.fill: parent; ModuleStack {} }
    })";

/// A host's window with this in it. Where a tap is to reach the bar, the bar counts it.
std::string windowWith(const std::string& content) {
    return R"(
    import QtQuick
    import QtQuick.Controls
    import QtQuick.Layouts
    ApplicationWindow {
        id: window
        width: 390; height: 844; visible: true
        property Item stack: null
        property Item right: null
        property Item bar: null
        component Bar: Rectangle {
            property int clicks: 0
            implicitHeight: 64; implicitWidth: 200
            MouseArea { anchors.fill: parent; onClicked: parent.clicks++ }
            Component.onCompleted: window.bar = this
        }
        component HostStack: StackView {
            Layout.fillWidth: true; Layout.fillHeight: true
            initialItem: Item {}
        }
        component ModuleStack: HostStack { Component.onCompleted: window.stack = this }
        )" +
           content + "}";
}

/// Whether the module covers the host's bar while it loads, in hosts of other shapes.
const struct {
    const char* content;
    bool coversBar;
    /// Whether the host names the whole window for covers.
    bool namesWindow = false;
} shapes[] = {
    {"header: Bar {} ModuleStack { anchors.fill: parent }", true},
    {"footer: Bar {} ModuleStack { anchors.fill: parent }", true},
    {inLayout, false},
    {inLayout, true, true},
    {R"(
        Bar { width: parent.width }
        Drawer {
            width: 300; height: parent.height; visible: true; modal: false; interactive: false
            enter: null
            ModuleStack { anchors.fill: parent }
        })",
     false},
};

constexpr auto sideBySide = R"(
    Component.onCompleted: width = 800
    Bar { width: parent.width }
    RowLayout {
        y: 64; width: parent.width; height: 780
        ModuleStack {}
        HostStack { Component.onCompleted: window.right = this }
    })";

struct HostShapes : ModuleTest {};
struct TwoModules : HostShapes, ::testing::WithParamInterface<bool> {};

} // namespace

TEST_F(HostShapes, AreCoveredAsFarAsTheModuleReaches) {
    for (const auto& [content, coversBar, namesWindow] : shapes) {
        SCOPED_TRACE(content);
        backend->script(Call::associate, {Reply{.body = sampleBody(Call::associate), .after = seconds(5)}});
        stage = std::make_shared<Stage>(windowWith(content).c_str());
        open(namesWindow ? stage->window().contentItem() : nullptr);
        // The window and its layouts get their sizes in the event loop.
        ASSERT_TRUE(turnUntil(
            [&] { return settled() && stage->stack().height() > 0 && stage->window().isExposed(); }));
        const QSizeF size = stage->stack().size();
        // The bar of the drawer's window begins beside the drawer.
        const auto clickBar = [&] {
            stage->clickAt(stage->bar().mapToScene({stage->bar().width() - 20, 32}));
            return stage->barClicks();
        };
        EXPECT_EQ(clickBar(), coversBar ? 0 : 1);
        EXPECT_EQ(stage->stack().size(), size);
        backend->clock()->advance(seconds(5));
        clickThrough({viewOrders}, send);
        EXPECT_EQ(clickBar(), coversBar ? 1 : 2);
        clickThrough({send}, someSent);
    }
}

TEST_P(TwoModules, AreApart) {
    backend->script(Call::associate, {Reply::never(), Reply::sample(Call::associate)});
    if (!GetParam()) {
        stage = std::make_shared<Stage>(windowWith(sideBySide).c_str());
    }
    const auto leftStage = stage;
    const QQuickItem& left = stage->stack();
    open();
    if (GetParam()) {
        stage = std::make_shared<Stage>();
    } else {
        stage->window().setProperty("stack", stage->window().property("right"));
    }
    QQuickItem& right = stage->stack();
    open();
    stage->window().requestActivate();
    ASSERT_TRUE(turnUntil([&] { return stage->window().isActive(); }));
    ASSERT_NO_FATAL_FAILURE(clickThrough({viewOrders}, send));
    ASSERT_TRUE(right.isAncestorOf(stage->item(send)));
    right.forceActiveFocus();

    // The left one still waits; the right one works by mouse, by key and for a screen reader.
    ASSERT_NO_FATAL_FAILURE(clickThrough({send}, someSent));
    EXPECT_TRUE(right.isAncestorOf(stage->item(someSent)));
    leftStage->clickBar();
    stage->clickBar();
    EXPECT_EQ(stage->barClicks() - leftStage->barClicks(), GetParam() ? 1 : 0);
    log->clear();
    stage->pressByScreenReader(goToCart);
    EXPECT_THAT(*log, ::testing::Contains("navigateToCart"));

    // Its end puts an outcome on the left, and leaves the right one its focus.
    const QQuickItem* const focus = stage->focus();
    EXPECT_TRUE(GetParam() ? focus != nullptr : right.isAncestorOf(focus));
    backend->clock()->advance(seconds(60));
    const QString outcome = "Lo sentimos, pero esta información ya no está disponible.";
    ASSERT_TRUE(turnUntil([&] { return left.isAncestorOf(leftStage->item(outcome)); }));
    EXPECT_EQ(stage->focus(), focus);
    stage = leftStage;
    log->clear();
    stage->click("Volver");
    EXPECT_THAT(*log, ::testing::ElementsAre("navigateToHome"));
}

INSTANTIATE_TEST_SUITE_P(, TwoModules, ::testing::Bool(),
                         [](const auto& instance) { return instance.param ? "InTwoWindows" : "SideBySide"; });

TEST_F(HostShapes, GiveTheKeysToADialogThatWasHiddenAndGetThemBackOnlyWhereTheyAreSeen) {
    backend->script(Call::checkout, {Reply{.status = 500}});
    for (const bool hidesThePage : {false, true}) {
        stage = std::make_shared<Stage>();
        open();
        clickThrough({viewOrders}, send);
        // The focus stays behind on the button of the page that the checkout covers.
        stage->item(send)->forceActiveFocus();
        stage->key(Qt::Key_Return);
        ASSERT_TRUE(turnUntil([&] { return stage->shows(closeIcon) && !stage->shows(send); }));
        stage->stack().parentItem()->setVisible(!hidesThePage);
        EXPECT_EQ(stage->shows(closeIcon), !hidesThePage);
        stage->stack().parentItem()->setVisible(true);
        log->clear();
        stage->key(Qt::Key_Escape);
        ASSERT_TRUE(turnUntil([&] { return !log->empty() && !stage->shows(closeIcon); }));
        stage->key(Qt::Key_Return);
        EXPECT_THAT(*log, ::testing::ElementsAre("navigateToHome"));
        EXPECT_TRUE(!stage->focus() || stage->focus()->isVisible());
    }
}

} // namespace quillet::testing
