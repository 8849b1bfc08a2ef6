import QtQuick
import KelDS

// A panel that opens and closes under its head. Whatever is declared inside becomes its content. A list with more rows
// than a screen holds is better made of KelPanelHead and KelPanelFrame, one slice a row.
Item {
    id: panel

    property string title
    property color tone: KelColors.highEmphasis
    property color stroke: KelColors.hairline
    property color fill: "transparent"
    property bool expanded: true
    default property alias content: body.data

    // The head was used; `expanded` is what the panel has become.
    signal toggled

    implicitHeight: head.height + (panel.expanded ? body.height : 0)
    clip: height < head.height + body.height

    Behavior on implicitHeight {
        enabled: !KelMotion.reduced

        NumberAnimation {
            duration: KelMotion.panel
            easing.type: Easing.OutCubic
        }
    }
    KelPanelFrame {
        anchors.fill: parent
        stroke: panel.stroke
        fill: panel.fill
    }
    KelPanelHead {
        id: head

        width: parent.width
        title: panel.title
        tone: panel.tone
        expanded: panel.expanded
        onActivated: {
            panel.expanded = !panel.expanded
            panel.toggled()
        }
    }
    Item {
        id: body

        anchors.top: head.bottom
        width: parent.width
        height: childrenRect.height
        visible: panel.height > head.height
    }
}
