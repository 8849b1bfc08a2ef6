// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS

ControlsSection {
    id: section

    readonly property var tokens: [
        { name: "primary", color: KelColors.primary },
        { name: "on primary", color: KelColors.inkOnPrimary },
        { name: "background", color: KelColors.background },
        { name: "surface", color: KelColors.surface },
        { name: "highEmphasis", color: KelColors.highEmphasis },
        { name: "mediumEmphasis", color: KelColors.mediumEmphasis },
        { name: "lowEmphasis", color: KelColors.lowEmphasis },
        { name: "success", color: KelColors.success },
        { name: "alert", color: KelColors.alert },
        { name: "warning", color: KelColors.warning },
        { name: "link", color: KelColors.link },
        { name: "on tag", color: KelColors.inkOnTag }
    ]

    title: "Colours"

    Grid {
        id: grid

        width: parent.width
        columns: 3
        rowSpacing: KelSpacing.semi

        Repeater {
            model: section.tokens

            Item {
                id: token

                required property var modelData

                width: grid.width / grid.columns
                height: KelSizes.semi

                Rectangle {
                    id: swatch

                    width: KelSizes.semi
                    height: KelSizes.semi
                    radius: KelBorderRadius.medium
                    color: token.modelData.color
                    border.width: 1
                    border.color: KelColors.hairline
                }
                Column {
                    x: swatch.width + KelSpacing.tiny
                    anchors.verticalCenter: parent.verticalCenter

                    KelLabel {
                        text: token.modelData.name
                        size: KelFonts.Caption
                    }
                    ControlsNote {
                        text: token.modelData.color.toString().toUpperCase()
                    }
                }
            }
        }
    }
}
