#include "Play/ScreenReader.hpp"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace demo::testing {

namespace {

constexpr auto window = R"(
    import QtQuick
    import QtQuick.Controls.Basic
    Window {
        width: 390; height: 844; visible: true
        property alias phone: phone
        component Words: Text {
            width: 100; height: 20; text: "it"
            Accessible.role: Accessible.StaticText; Accessible.name: text
        }
        component Cover: Rectangle { width: 390; height: 200; MouseArea { anchors.fill: parent } }
        component Clip: Item { width: 90; height: 90; clip: true }
        Item { id: phone; anchors.fill: parent; %1 }
    })";

} // namespace

TEST(ScreenReading, ReadsWhatAPersonSeesOfTheModule) {
    // A text in brackets can be seen, but not all of it.
    const std::pair<const char*, const char*> cases[] = {
        {R"(Words { y: 50; text: "below" } Words { text: "above" })", "above, below"},
        {R"(Words { x: 200; text: "right" } Words { y: 3; text: "left" })", "left, right"},
        {R"(Words {} Cover {} Words { y: 300; text: "b" })", "b"},
        {R"(Cover {} Words {})", "it"},
        {R"(Words { z: 1 } Cover {})", "it"},
        {R"(Words {} Cover { opacity: 0 })", ""},
        {R"(Words {} Cover { visible: false })", "it"},
        {R"(Words {} Rectangle { anchors.fill: parent; color: "transparent" })", "it"},
        {R"(Words { visible: false } Words { opacity: 0.01 } Words { text: "" })", ""},
        {R"(Words { y: 824.5 })", "it"},
        {R"(Words { y: 826 })", "(it)"},
        {R"(Words { y: 900 } Words { x: -300 })", ""},
        {R"(Words { x: -2 })", "(it)"},
        {R"(Clip { Words { y: 69.5 } })", "it"},
        {R"(Clip { Words { y: 72 } })", "(it)"},
        {R"(Clip { Words { y: 95 } })", ""},
        {R"(Clip { Words { y: -5; height: 99 } })", "it"},
        {R"(Clip { Words { y: 5; height: 99 } })", "(it)"},
        {R"(Item { objectName: "hostBar"; Words {} })", ""},
        {R"(StackView { anchors.fill: parent; initialItem: Words {} })", ""},
        {R"(StackView { anchors.fill: parent; initialItem: Item { property var viewController: null; Words {} } })",
         "it"},
    };
    for (const auto& [content, expected] : cases) {
        SCOPED_TRACE(content);
        QQmlApplicationEngine engine;
        engine.loadData(QString(window).arg(content).toUtf8());
        ASSERT_FALSE(engine.rootObjects().isEmpty());
        const ScreenReader reader(*engine.rootObjects()[0]->property("phone").value<QQuickItem*>());
        QStringList read;
        for (const ScreenElement& element : reader.elements()) {
            if (reader.shows(element.text)) {
                read << (reader.isWhollyShown(*element.item) ? element.text : '(' + element.text + ')');
            }
        }
        EXPECT_EQ(read.join(", ").toStdString(), expected);
        EXPECT_EQ(reader.texts(), read.replaceInStrings("(it)", "it"));
    }
}

} // namespace demo::testing
