#include "Support/ModuleTest.hpp"

namespace quillet::testing {

namespace {

using ::testing::IsEmpty;

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

TEST_F(HostShapes, KeepTwoModulesApart) {
    backend->script(Call::associate, {Reply::never(), Reply::sample(Call::associate)});
    Stage stage(sideBySide.c_str());
    stage.window().setWidth(800);
    QQuickItem& right = *stage.window().property("right").value<QQuickItem*>();
    ASSERT_TRUE(open(stage.stack()));
    ASSERT_TRUE(open(right));
    ASSERT_TRUE(showSummary(stage));
    ASSERT_TRUE(isUnder(stage.item(send), right));
    right.forceActiveFocus();

    // The left one still waits; the right one works by mouse, by key and for a screen reader.
    ASSERT_TRUE(showResult(stage, right));
    EXPECT_TRUE(isUnder(stage.item(someSent), right));
    log->clear();
    stage.pressByScreenReader("Ir al carrito");
    EXPECT_THAT(*log, ::testing::Contains("navigateToCart"));

    // Its end puts an outcome on the left, and leaves the right one its focus.
    EXPECT_TRUE(isUnder(stage.focus(), right) || stage.focus() == &right);
    backend->clock()->advance(std::chrono::seconds(60));
    ASSERT_TRUE(turnUntil([&] {
        return isUnder(stage.item("Lo sentimos, pero esta información ya no está disponible."),
                       stage.stack());
    }));
    EXPECT_TRUE(isUnder(stage.focus(), right) || stage.focus() == &right);
}

TEST_F(HostShapes, HideAndShowAPageWithADialogThatKeepsTheKeys) {
    backend->script(Call::checkout, {Reply{.status = 500}});
    Stage stage;
    ASSERT_TRUE(open(stage.stack()) && showSummary(stage));
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
    ASSERT_TRUE(open(stage.stack()) && showSummary(stage));
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
