import QtQuick
import KelDS

// The keys that scroll a page: what the page's content leaves alone is forwarded here.
Item {
    id: keys

    required property Flickable page
    // The ends of a list are estimates until its rows have been made, so a list goes there itself.
    readonly property ListView list: keys.page as ListView
    readonly property real screenful: Math.max(KelSizes.large, keys.page.height - KelSizes.large)

    function scrollBy(distance: real) {
        const end = Math.max(keys.page.originY, keys.page.originY + keys.page.contentHeight - keys.page.height)
        keys.page.contentY = Math.max(keys.page.originY, Math.min(end, keys.page.contentY + distance))
    }
    function scrollToStart() {
        if (keys.list) {
            keys.list.positionViewAtBeginning()
        } else {
            keys.scrollBy(-keys.page.contentHeight)
        }
    }
    function scrollToEnd() {
        if (keys.list) {
            keys.list.positionViewAtEnd()
        } else {
            keys.scrollBy(keys.page.contentHeight)
        }
    }

    Keys.onUpPressed: keys.scrollBy(-KelSizes.large)
    Keys.onDownPressed: keys.scrollBy(KelSizes.large)
    Keys.onPressed: event => {
        const steps = [
            [Qt.Key_PageUp, () => keys.scrollBy(-keys.screenful)],
            [Qt.Key_PageDown, () => keys.scrollBy(keys.screenful)],
            [Qt.Key_Home, keys.scrollToStart],
            [Qt.Key_End, keys.scrollToEnd]
        ]
        const step = steps.find(one => one[0] === event.key)
        event.accepted = step !== undefined
        if (step) {
            step[1]()
        }
    }
}
