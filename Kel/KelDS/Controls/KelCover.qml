import QtQuick

// Something that lies over a screen and keeps it from being used meanwhile: it takes the keys, and whatever had them
// before gets them back once the cover is taken away. What it covers with is its content's business.
FocusScope {
    id: cover

    property Item previousFocus: null

    focus: true
    // The way back out of the application stays open.
    Keys.onPressed: event => event.accepted = event.key !== Qt.Key_Back
    Component.onCompleted: {
        cover.previousFocus = cover.Window.activeFocusItem
        cover.forceActiveFocus()
    }
    onParentChanged: {
        const window = cover.parent ? null : cover.previousFocus?.Window.window
        if (window && (!window.activeFocusItem || window.activeFocusItem === window.contentItem)) {
            cover.previousFocus.forceActiveFocus()
        }
    }
}
