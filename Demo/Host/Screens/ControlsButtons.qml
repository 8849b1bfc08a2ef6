// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS

ControlsSection {
    id: section

    readonly property list<string> states: ["normal", "pressed", "focused", "disabled"]

    title: "Buttons"

    Grid {
        id: grid

        readonly property real cell: (width - (columns - 1) * columnSpacing) / columns

        width: parent.width
        columns: section.states.length
        columnSpacing: KelSpacing.small
        rowSpacing: KelSpacing.small + KelSpacing.micro

        Repeater {
            model: 2 * section.states.length

            KelButton {
                required property int index
                readonly property string look: section.states[index % grid.columns]

                width: grid.cell
                outlined: index >= grid.columns
                text: outlined ? "Ver Pedidos" : "Ir al carrito"
                enabled: look !== "disabled"
                down: look === "pressed"
                showsFocus: look === "focused"
            }
        }
        Repeater {
            model: section.states

            ControlsNote {
                required property string modelData

                text: modelData
            }
        }
    }
}
