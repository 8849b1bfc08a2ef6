// Bound components cannot be made by a view or a loader in Qt 6.4, so the ids of this file are seen from inside them.
// qmllint disable unqualified

import QtQuick
import KelDS

ControlsSection {
    id: section

    // One sample for each size index.
    readonly property var samples: [
        { text: "Ciclo 05", weight: 2 },
        { text: "Ciclo actual", weight: 2 },
        { text: "Ciclo actual", weight: 2 },
        { text: "Ciclo actual: 05", weight: 2 },
        { text: "Ciclo actual: 05", weight: 2 },
        { text: "Puntos en curso: 1240", weight: 1 },
        { text: "Puntos del pedido: 86", weight: 1 },
        { text: "Crema de manos Brisa de almendra", weight: 0 },
        { text: "Ir al carrito", weight: 2 },
        { text: "Productos enviados", weight: 1 },
        { text: "En Curso", weight: 2 },
        { text: "Code: 70412", weight: 0 },
        { text: "not for reading text", weight: 0 }
    ]

    title: "Type"

    Column {
        Repeater {
            model: section.samples

            Item {
                id: sample

                required property int index
                required property var modelData

                width: section.width
                height: Math.max(KelSizes.semiX, text.implicitHeight)

                ControlsNote {
                    height: parent.height
                    text: sample.index
                }
                ControlsNote {
                    x: KelSizes.standard + KelSpacing.micro
                    height: parent.height
                    text: text.font.pixelSize
                }
                KelLabel {
                    id: text

                    x: KelSizes.large + KelSpacing.tiny
                    height: parent.height
                    text: sample.modelData.text
                    size: sample.index
                    weight: sample.modelData.weight
                }
            }
        }
    }
}
