import QtQuick
import KelDS

// Contained: filled with amber. Outlined: a clear button with an amber edge.
KelPressable {
    id: button

    property bool outlined: false
    property string identifier

    objectName: button.identifier
    implicitWidth: Math.max(KelSizes.large, button.implicitContentWidth + 2 * KelSpacing.semi)
    implicitHeight: Math.max(KelSizes.medium, button.implicitContentHeight + KelSpacing.small)
    horizontalPadding: KelSpacing.small

    contentItem: KelLabel {
        text: button.text
        size: KelFonts.Body1
        weight: KelFonts.Bold
        color: !button.enabled ? KelColors.withAlpha(KelColors.highEmphasis, KelOpacity.medium)
             : button.outlined ? KelColors.highEmphasis : KelColors.inkOnPrimary
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.ignored: true
        Accessible.name: ""
    }
    background: Rectangle {
        radius: KelBorderRadius.button
        color: button.outlined ? "transparent"
             : button.enabled ? KelColors.primary
                              : KelColors.withAlpha(KelColors.highEmphasis, KelOpacity.disabled)
        border.width: button.outlined ? 1.5 : 0
        border.color: button.enabled ? KelColors.primaryEdge
                                     : KelColors.withAlpha(KelColors.highEmphasis, KelOpacity.disabled)

        Rectangle {
            anchors.fill: parent
            opacity: button.down ? 1 : 0
            radius: parent.radius
            color: KelColors.withAlpha(button.outlined ? KelColors.primary : KelColors.inkOnPrimary, KelOpacity.low)

            Behavior on opacity {
                NumberAnimation {
                    duration: KelMotion.press
                }
            }
        }
        KelFocusRing {
            visible: button.showsFocus
        }
    }
}
