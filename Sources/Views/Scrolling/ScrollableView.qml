import QtQuick

// What is longer than its room scrolls, by finger and by key.
Flickable {
    id: view

    // Whether something shows which part is in view.
    property bool hinted: true

    clip: view.contentHeight > view.height
    interactive: view.contentHeight > view.height
    boundsBehavior: Flickable.StopAtBounds
    Keys.forwardTo: [keys]

    ScrollKeys {
        id: keys

        page: view
    }
    ScrollHint {
        parent: view.parent
        visible: view.hinted && view.visibleArea.heightRatio < 1
        page: view
    }
}
