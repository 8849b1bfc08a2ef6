#include "Play/ScreenReader.hpp"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <memory>

namespace demo::testing {

namespace {

constexpr auto phone = R"(
    import QtQuick
    import QtQuick.Controls.Basic
    Window {
        width: 390; height: 844; visible: true
        property alias phone: phone
        component Words: Text {
            width: 100; height: 20
            Accessible.role: Accessible.StaticText; Accessible.name: text
        }
        component Cover: Rectangle { width: 390; height: 200; MouseArea { anchors.fill: parent } }
        Item { id: phone; anchors.fill: parent; %1 }
    })";

struct ScreenReading : ::testing::Test {
    /// Reads a phone with this content from now on.
    void show(const char* content) {
        QQmlComponent component(&engine);
        component.setData(QString::fromUtf8(phone).arg(QString::fromUtf8(content)).toUtf8(), QUrl());
        window.reset(component.create());
        ASSERT_TRUE(window) << component.errorString().toStdString();
        item = window->property("phone").value<QQuickItem*>();
    }

    QQmlEngine engine;
    std::unique_ptr<QObject> window;
    QQuickItem* item = nullptr;
};

} // namespace

TEST_F(ScreenReading, TellsWhatIsWhollyShown) {
    const struct {
        const char* phone;
        bool shown;
    } cases[] = {
        {R"(Words { objectName: "it" })", true},
        {R"(Words { objectName: "it"; y: 824.5 })", true},
        {R"(Words { objectName: "it"; y: 826 })", false},
        {R"(Words { objectName: "it"; x: -2 })", false},
        {R"(Words { objectName: "it" } Cover {})", false},
        {R"(Words { objectName: "it"; y: 300 } Cover {})", true},
        {R"(Item { width: 90; height: 90; clip: true; Words { objectName: "it"; y: 69.5 } })", true},
        {R"(Item { width: 90; height: 90; clip: true; Words { objectName: "it"; y: 72 } })", false},
        {R"(Item { width: 90; height: 90; clip: true; Words { objectName: "it"; y: -5; height: 99 } })",
         true},
        {R"(Item { width: 90; height: 90; clip: true; Words { objectName: "it"; y: 5; height: 99 } })",
         false},
        {R"(Item { width: 90; height: 90; clip: true; Words { objectName: "it"; y: 95 } })", false},
    };
    for (const auto& [content, shown] : cases) {
        SCOPED_TRACE(content);
        show(content);
        const ScreenReader reader(*item);
        EXPECT_EQ(reader.isWhollyShown(*item->findChild<QQuickItem*>("it")), shown);
    }
}

TEST_F(ScreenReading, ReadsWhatAPersonSeesOfTheModule) {
    const struct {
        const char* phone;
        QStringList texts;
    } cases[] = {
        {R"(Words { y: 50; text: "below" } Words { text: "above" })", {"above", "below"}},
        {R"(Words { x: 200; text: "right" } Words { y: 3; text: "left" })", {"left", "right"}},
        {R"(Words { text: "a" } Cover {} Words { y: 300; text: "b" })", {"b"}},
        {R"(Cover {} Words { text: "a" })", {"a"}},
        {R"(Words { z: 1; text: "raised" } Cover {})", {"raised"}},
        {R"(Words { text: "a" } Cover { opacity: 0 })", {}},
        {R"(Words { text: "a" } Cover { visible: false })", {"a"}},
        {R"(Words { text: "a" } Rectangle { anchors.fill: parent; color: "transparent" })", {"a"}},
        {R"(Words { text: "a"; visible: false } Words { text: "b"; opacity: 0.01 } Words { text: "" })", {}},
        {R"(Words { y: 900; text: "under the window" } Words { x: -300; text: "beside it" })", {}},
        {R"(Item { width: 390; height: 30; clip: true; Words { y: 40; text: "cut off" } })", {}},
        {R"(Item { objectName: "hostBar"; Words { text: "the host's title" } })", {}},
        {R"(StackView { anchors.fill: parent; initialItem: Words { text: "the host's page" } })", {}},
        {R"(StackView { anchors.fill: parent
            initialItem: Item { property var viewController: null; Words { text: "the module's page" } } })",
         {"the module's page"}},
    };
    for (const auto& [content, texts] : cases) {
        SCOPED_TRACE(content);
        show(content);
        const ScreenReader reader(*item);
        EXPECT_EQ(reader.texts().join(", ").toStdString(), texts.join(", ").toStdString());
    }
}

} // namespace demo::testing
