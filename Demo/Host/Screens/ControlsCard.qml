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
                size: KelFonts.Headline6
                weight: KelFonts.Medium
            }
            KelLabel {
                text: "Ciclo del pedido: <b>05</b>"
                textFormat: Text.StyledText
            }
        }
    }
}
