import QtQuick
import KelDS

// Level 1: one white layer on the sand ground, with a soft shadow where the theme has shadows. Whatever is declared
// inside becomes its content, inset by `padding`. The shadow is a picture, because both renderers draw pictures alike.
Rectangle {
    id: card

    default property alias content: body.data
    property int padding: KelSpacing.small
    property int bottomPadding: card.padding
    // Whether the card lies on the ground, from which a hairline and, where the theme has shadows, a shadow set it off.
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
