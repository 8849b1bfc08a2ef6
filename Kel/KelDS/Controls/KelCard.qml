import QtQuick
import KelDS

// Level 1: one white layer on the sand ground. Whatever is declared inside becomes its content, inset by `padding`.
Rectangle {
    id: card

    default property alias content: body.data
    property int padding: KelSpacing.small

    implicitHeight: body.childrenRect.height + 2 * card.padding
    radius: KelRadius.large
    color: KelColors.surface
    border.width: 1
    border.color: KelColors.hairline

    Item {
        id: body

        anchors.fill: parent
        anchors.margins: card.padding
    }
}
