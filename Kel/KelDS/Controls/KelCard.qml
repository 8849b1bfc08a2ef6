import QtQuick
import KelDS

// A raised surface with a soft shadow if the theme has shadows. Items declared inside become its content, inset by
// `padding`. The shadow is an image, because the software and the OpenGL renderer draw images alike.
Rectangle {
    id: card

    default property alias content: body.data
    property int padding: KelSpacing.small
    property int bottomPadding: card.padding
    // Whether a hairline and a shadow set the card off from the background.
    property bool elevated: true

    implicitHeight: body.childrenRect.height + card.padding + card.bottomPadding
    radius: KelBorderRadius.large
    color: KelColors.surface
    border.width: card.elevated ? 1 : 0
    border.color: KelColors.hairline

    BorderImage {
        anchors.fill: parent
        anchors.margins: -28
        z: -1
        visible: card.elevated && KelColors.hasShadows
        source: "Controls/shadow.png"
        border.left: 44
        border.top: 44
        border.right: 44
        border.bottom: 44
    }
    Item {
        id: body

        anchors.fill: parent
        anchors.margins: card.padding
        anchors.bottomMargin: card.bottomPadding
    }
}
