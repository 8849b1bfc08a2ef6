import QtQuick
import KelDS

// The arrow keys of a page that scrolls: what the page's content leaves alone is forwarded here.
Item {
    id: keys

    required property Flickable page

    function scrollBy(distance: real) {
        const end = Math.max(keys.page.originY, keys.page.originY + keys.page.contentHeight - keys.page.height)
        keys.page.contentY = Math.max(keys.page.originY, Math.min(end, keys.page.contentY + distance))
    }

    Keys.onUpPressed: keys.scrollBy(-KelSizes.large)
    Keys.onDownPressed: keys.scrollBy(KelSizes.large)
}
