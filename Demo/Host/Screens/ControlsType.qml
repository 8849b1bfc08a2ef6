// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS

ControlsSection {
    id: section

    // One sample for each size index.
    readonly property var samples: [
        { text: "Ciclo 05", weight: KelFonts.Bold },
        { text: "Ciclo actual", weight: KelFonts.Bold },
        { text: "Ciclo actual", weight: KelFonts.Bold },
        { text: "Ciclo actual: 05", weight: KelFonts.Bold },
        { text: "Ciclo actual: 05", weight: KelFonts.Bold },
        { text: "Puntos en curso: 1240", weight: KelFonts.Medium },
        { text: "Puntos del pedido: 86", weight: KelFonts.Medium },
        { text: "Crema de manos Brisa de almendra", weight: KelFonts.Regular },
        { text: "Ir al carrito", weight: KelFonts.Bold },
        { text: "Productos enviados", weight: KelFonts.Medium },
        { text: "En Curso", weight: KelFonts.Bold },
        { text: "Code: 70412", weight: KelFonts.Regular },
        { text: "not for reading text", weight: KelFonts.Regular }
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
