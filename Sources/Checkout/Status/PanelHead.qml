import QtQuick
import QtQuick.Controls.Basic
import KelDS

// The head of an expandable section: the whole of it is one target.
AbstractButton {
    id: head

    required property string title
    required property color tone
    required property bool expanded

    implicitHeight: KelSizes.mediumX
    focusPolicy: Qt.StrongFocus
    text: head.title
    Accessible.role: Accessible.Button
    Accessible.name: head.title
    Accessible.checkable: true
    Accessible.checked: head.expanded
    Accessible.onPressAction: head.clicked()
    Keys.onReturnPressed: head.clicked()

    background: Rectangle {
        color: "transparent"
        border.width: head.visualFocus ? 2 : 0
        border.color: KelColors.highEmphasis
        radius: KelRadius.large
    }
    contentItem: Item {
        KelLabel {
            x: KelSpacing.small
            height: parent.height
            text: head.title
            weight: 2
            color: head.tone
            Accessible.ignored: true
            Accessible.name: ""
        }
        KelIcon {
            anchors.right: parent.right
            anchors.rightMargin: KelSpacing.small
            height: parent.height
            number: head.expanded ? KelIcons.ExpandLess : KelIcons.ExpandMore
            size: KelSizes.standard
            color: head.tone
        }
    }
}
