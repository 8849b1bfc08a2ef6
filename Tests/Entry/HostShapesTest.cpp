#include "Support/ModuleTest.hpp"

namespace quillet::testing {

namespace {

/// A window with `bars` in it, and around the stack what the host has there. Where a tap is to reach a bar
/// this counts it.
std::string windowOf(const std::string& bars, const std::string& around) {
    return R"(
    import QtQuick
    import QtQuick.Controls
    import QtQuick.Layouts
    ApplicationWindow {
        id: window
        width: 390; height: 844; visible: true
        property Item stack: null
        property Item bar: null
        property Item right: null
        component Bar: Rectangle {
            property int clicks: 0
            implicitHeight: 64; implicitWidth: 200
            MouseArea { anchors.fill: parent; onClicked: parent.clicks++ }
        }
        component Stack: StackView {
            Layout.fillWidth: true; Layout.fillHeight: true
            initialItem: Item {}
        }
        )" +
           bars + around + "}";
}

const std::string stackAlone = "Stack { anchors.fill: parent; Component.onCompleted: window.stack = this }";
const std::string barAbove = "Bar { width: parent.width; Component.onCompleted: window.bar = this }";

/// Whether the module covers the host's bar while it loads, in hosts of other shapes.
struct Shape {
    const char* name;
    std::string window;
    bool coversBar;
    /// Whether the host names the whole window for covers.
    bool namesWindow = false;

    friend void PrintTo(const Shape& shape, std::ostream* stream) { *stream << shape.name; }
};

const std::string inLayout = R"(
        Item {
            anchors.fill: parent; anchors.topMargin: 64
            ColumnLayout {
                anchors.fill: parent
                Stack { Component.onCompleted: window.stack = this }
            }
        })";

const std::string inDrawer = R"(
        Drawer {
            width: 300; height: parent.height; visible: true; modal: false; interactive: false
            enter: null
            Stack { anchors.fill: parent; Component.onCompleted: window.stack = this }
        })";

std::vector<Shape> shapes() {
    return {
        {"header", windowOf("header: Bar { Component.onCompleted: window.bar = this }", stackAlone), true},
        {"footer", windowOf("footer: Bar { Component.onCompleted: window.bar = this }", stackAlone), true},
        {"layout", windowOf(barAbove, inLayout), false},
        {"layoutWithinAnAreaThatIsNamed", windowOf(barAbove, inLayout), true, true},
        {"drawer", windowOf(barAbove, inDrawer), false},
        {"besideAnotherStack", windowOf(barAbove + "Stack { y: 700; width: parent.width; height: 144 }", R"(
        Stack { y: 64; width: parent.width; height: 636; Component.onCompleted: window.stack = this })"),
         false},
    };
}

struct CoveredShapes : ModuleTest, ::testing::WithParamInterface<Shape> {};
struct HostShapes : ModuleTest {};
struct TwoModules : ModuleTest, ::testing::WithParamInterface<bool> {};

const std::string sideBySide = windowOf(barAbove, R"(
        RowLayout {
            anchors.fill: parent; anchors.topMargin: 64
            Stack { Component.onCompleted: window.stack = this }
            Stack { Component.onCompleted: window.right = this }
        })");

bool isUnder(const QQuickItem* item, const QQuickItem& ancestor) {
    return item && ancestor.isAncestorOf(item);
}

} // namespace

TEST_P(CoveredShapes, AreCoveredAsFarAsTheModuleReaches) {
    backend->script(Call::associate,
                    {Reply{.body = sampleBody(Call::associate), .after = std::chrono::seconds(5)}});
    Stage stage(GetParam().window.c_str());
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

INSTANTIATE_TEST_SUITE_P(All, CoveredShapes, ::testing::ValuesIn(shapes()),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_P(TwoModules, AreApart) {
    backend->script(Call::associate, {Reply::never(), Reply::sample(Call::associate)});
    Stage left(GetParam() ? nullptr : sideBySide.c_str());
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
