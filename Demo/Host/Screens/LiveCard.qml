// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS

// One list of the journal under its head, with the number of its rows.
KelCard {
    id: card

    required property string title
    required property var rows
    required property Component rowDelegate
    // A line below the last row about what comes next.
    property string outlook

    padding: 0

    KelLabel {
        x: KelSpacing.small
        height: KelSizes.mediumX
        text: card.title
        weight: KelFonts.Medium
    }
    KelLabel {
        anchors.right: parent.right
        anchors.rightMargin: KelSpacing.small
        height: KelSizes.mediumX
        text: card.rows.length
        size: KelFonts.Caption
        color: KelColors.mediumEmphasis
    }
    KelDivider {
        y: KelSizes.mediumX - height
        width: parent.width
    }
    ListView {
        anchors.fill: parent
        anchors.topMargin: KelSizes.mediumX
        anchors.leftMargin: KelSpacing.small
        anchors.rightMargin: KelSpacing.small
        anchors.bottomMargin: KelSpacing.tiny
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: card.rows
        delegate: card.rowDelegate
        footer: KelLabel {
            visible: text !== ""
            width: ListView.view.width
            height: visible ? KelSizes.mediumX : 0
            text: card.outlook
            size: KelFonts.Caption
            color: KelColors.mediumEmphasis
            wrapMode: Text.Wrap
        }
        onCountChanged: positionViewAtEnd()
        onHeightChanged: positionViewAtEnd()
    }
}
