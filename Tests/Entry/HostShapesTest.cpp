#include "Support/ModuleTest.hpp"

namespace quillet::testing {

namespace {

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

const std::string inLayout = R"(
    Bar { width: parent.width }
    Item {
        y: 64; width: parent.width; height: 780
        ColumnLayout { anchors.fill: parent; ModuleStack {} }
    })";

/// Whether the module covers the host's bar while it loads, in hosts of other shapes.
struct Shape {
    const char* name;
    std::string content;
    bool coversBar;
    /// Whether the host names the whole window for covers.
    bool namesWindow = false;

    friend void PrintTo(const Shape& shape, std::ostream* stream) { *stream << shape.name; }
};

const Shape shapes[] = {
    {"header", "header: Bar {} ModuleStack { anchors.fill: parent }", true},
    {"footer", "footer: Bar {} ModuleStack { anchors.fill: parent }", true},
    {"layout", inLayout, false},
    {"layoutWithinAnAreaThatIsNamed", inLayout, true, true},
    {"drawer", R"(
        Bar { width: parent.width }
        Drawer {
            width: 300; height: parent.height; visible: true; modal: false; interactive: false
            enter: null
            ModuleStack { anchors.fill: parent }
        })",
     false},
    {"besideAnotherStack", R"(
        Bar { width: parent.width }
        HostStack { y: 700; width: parent.width; height: 144 }
        ModuleStack { y: 64; width: parent.width; height: 636 })",
     false},
};

const std::string sideBySide = R"(
    Bar { width: parent.width }
    RowLayout {
        y: 64; width: parent.width; height: 780
        ModuleStack {}
        HostStack { Component.onCompleted: window.right = this }
    })";

struct CoveredShapes : ModuleTest, ::testing::WithParamInterface<Shape> {};
struct HostShapes : ModuleTest {};
struct TwoModules : ModuleTest, ::testing::WithParamInterface<bool> {};

bool isUnder(const QQuickItem* item, const QQuickItem& ancestor) {
    return item && ancestor.isAncestorOf(item);
}

} // namespace

TEST_P(CoveredShapes, AreCoveredAsFarAsTheModuleReaches) {
    backend->script(Call::associate,
                    {Reply{.body = sampleBody(Call::associate), .after = std::chrono::seconds(5)}});
    Stage stage(windowWith(GetParam().content).c_str());
    ASSERT_TRUE(open(stage.stack(), GetParam().namesWindow ? stage.window().contentItem() : nullptr));
    const QSizeF size = stage.stack().size();
    // The bar of the drawer's window begins beside the drawer.
    const auto clickBar = [&] { stage.clickAt(stage.bar().mapToScene({stage.bar().width() - 20, 32})); };
    clickBar();
    EXPECT_EQ(stage.barClicks(), GetParam().coversBar ? 0 : 1);
    EXPECT_EQ(stage.stack().size(), size);
    backend->clock()->advance(std::chrono::seconds(5));
    ASSERT_TRUE(showSummary(stage));
    clickBar();
    EXPECT_EQ(stage.barClicks(), GetParam().coversBar ? 1 : 2);
    EXPECT_TRUE(showResult(stage, stage.stack()));
}

INSTANTIATE_TEST_SUITE_P(All, CoveredShapes, ::testing::ValuesIn(shapes),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_P(TwoModules, AreApart) {
    backend->script(Call::associate, {Reply::never(), Reply::sample(Call::associate)});
    Stage left(GetParam() ? nullptr : windowWith(sideBySide).c_str());
    std::unique_ptr<Stage> other = GetParam() ? std::make_unique<Stage>() : nullptr;
    Stage& right = other ? *other : left;
    QQuickItem& stack = other ? other->stack() : *left.window().property("right").value<QQuickItem*>();
    left.window().setWidth(800);
    ASSERT_TRUE(open(left.stack()));
    ASSERT_TRUE(open(stack));
    right.window().requestActivate();
    ASSERT_TRUE(turnUntil([&] { return right.window().isActive(); }) && showSummary(right));
    ASSERT_TRUE(isUnder(right.item(send), stack));
    stack.forceActiveFocus();

    // The left one still waits; the right one works by mouse, by key and for a screen reader.
    ASSERT_TRUE(showResult(right, stack));
    EXPECT_TRUE(isUnder(right.item(someSent), stack));
    left.clickBar();
    right.clickBar();
    EXPECT_EQ(right.barClicks() - left.barClicks(), other ? 1 : 0);
    log->clear();
    right.pressByScreenReader("Ir al carrito");
    EXPECT_THAT(*log, ::testing::Contains("navigateToCart"));

    // Its end puts an outcome on the left, and leaves the right one its focus.
    const QQuickItem* const focus = right.focus();
    EXPECT_TRUE(focus && (other || isUnder(focus, stack)));
    backend->clock()->advance(std::chrono::seconds(60));
    const QString outcome = "Lo sentimos, pero esta información ya no está disponible.";
    ASSERT_TRUE(turnUntil([&] { return isUnder(left.item(outcome), left.stack()); }));
    EXPECT_EQ(right.focus(), focus);
    other.reset();
    log->clear();
    left.click("Volver");
    EXPECT_THAT(*log, ::testing::ElementsAre("navigateToHome"));
}

INSTANTIATE_TEST_SUITE_P(, TwoModules, ::testing::Bool(),
                         [](const auto& instance) { return instance.param ? "InTwoWindows" : "SideBySide"; });

TEST_F(HostShapes, GiveTheKeysToADialogThatWasHiddenAndGetThemBackOnlyWhereTheyAreSeen) {
    backend->script(Call::checkout, {Reply{.status = 500}});
    for (const bool hidesThePage : {false, true}) {
        Stage stage;
        ASSERT_TRUE(open(stage.stack()) && showSummary(stage));
        // The focus stays behind on the button of the page that the checkout covers.
        stage.item(send)->forceActiveFocus();
        stage.key(Qt::Key_Return);
        ASSERT_TRUE(turnUntil([&] { return stage.shows("dialogCloseIcon") && !stage.shows(send); }));
        stage.stack().parentItem()->setVisible(!hidesThePage);
        EXPECT_EQ(stage.shows("dialogCloseIcon"), !hidesThePage);
        stage.stack().parentItem()->setVisible(true);
        log->clear();
        stage.key(Qt::Key_Escape);
        ASSERT_TRUE(turnUntil([&] { return !log->empty() && !stage.shows("dialogCloseIcon"); }));
        stage.key(Qt::Key_Return);
        EXPECT_THAT(*log, ::testing::ElementsAre("navigateToHome"));
        EXPECT_TRUE(!stage.focus() || stage.focus()->isVisible());
    }
}

} // namespace quillet::testing
