import QtQuick
import KelDS

// An expansion panel, open or closed.
Item {
    id: panel

    required property string title
    required property color tone
    property bool expanded: false

    height: head.height + (panel.expanded ? product.height : 0)

    KelPanelFrame {
        anchors.fill: parent
        stroke: panel.tone
    }
    KelPanelHead {
        id: head

        width: parent.width
        title: panel.title
        tone: panel.tone
        expanded: panel.expanded
        onActivated: panel.expanded = !panel.expanded
    }
    ControlsProduct {
        id: product

        anchors.top: head.bottom
        width: parent.width
        visible: panel.expanded
    }
}
