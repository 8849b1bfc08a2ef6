import QtQuick
import KelDS

ControlsSection {
    title: "Card"

    KelCard {
        width: parent.width

        Column {
            width: parent.width
            spacing: KelSpacing.tiny

            KelLabel {
                text: "Resumen del Pedido:"
                size: 5
                weight: 1
            }
            KelValueLabel {
                caption: "Ciclo del pedido: "
                value: "05"
            }
        }
    }
}
