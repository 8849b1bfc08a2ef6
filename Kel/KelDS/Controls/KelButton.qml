import QtQuick
import QtQuick.Controls.Basic
import KelDS

AbstractButton {
    id: button

    property bool outlined: false
    property string identifier
    // Whether touching down is enough; else the finger has to leave the button on it.
    property bool actsOnPress: false
    property bool showsFocus: button.visualFocus

    // The button was used, be it by touch, by key or by a screen reader.
    signal activated

    objectName: button.identifier
    implicitWidth: Math.max(KelSizes.large, button.implicitContentWidth + 2 * KelSpacing.semi)
    implicitHeight: KelSizes.medium
    focusPolicy: Qt.StrongFocus
    hoverEnabled: false
    Accessible.role: Accessible.Button
    Accessible.name: button.text
    Accessible.onPressAction: button.activated()
    Keys.onReturnPressed: button.activated()
    Keys.onEnterPressed: button.activated()
    onPressed: if (button.actsOnPress) button.activated()
    onClicked: if (!button.actsOnPress) button.activated()

    contentItem: KelLabel {
        text: button.text
        size: 8
        weight: 2
        color: !button.enabled ? KelColors.withAlpha(KelColors.highEmphasis, KelOpacity.medium)
             : button.outlined ? KelColors.highEmphasis : KelColors.inkOnPrimary
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.ignored: true
        Accessible.name: ""
    }
    background: Rectangle {
        radius: KelRadius.button
        color: button.outlined ? (button.down ? KelColors.withAlpha(KelColors.primary, KelOpacity.low) : "transparent")
             : button.enabled ? KelColors.primary
                              : KelColors.withAlpha(KelColors.highEmphasis, KelOpacity.disabled)
        border.width: button.outlined ? 1.5 : 0
        border.color: button.enabled ? KelColors.primary
                                     : KelColors.withAlpha(KelColors.highEmphasis, KelOpacity.disabled)

        Rectangle {
            anchors.fill: parent
            visible: button.down && !button.outlined
            radius: parent.radius
            color: KelColors.withAlpha(KelColors.inkOnPrimary, KelOpacity.low)
        }
        Rectangle {
            anchors.fill: parent
            anchors.margins: -5
            visible: button.showsFocus
            radius: parent.radius + 5
            color: "transparent"
            border.width: 2
            border.color: KelColors.highEmphasis
        }
    }
}
