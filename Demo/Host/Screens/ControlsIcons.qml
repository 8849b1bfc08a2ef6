// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS

ControlsSection {
    id: section

    readonly property list<int> sizes: [KelSizes.small, KelSizes.standard, KelSizes.semi, KelSizes.semiX, KelSizes.medium,
        KelSizes.mediumX, KelSizes.large]
    readonly property var names: [
        { number: KelIcons.Inventory, name: KelIcons.Inventory, color: KelColors.highEmphasis },
        { number: KelIcons.CheckCircle, name: KelIcons.CheckCircle, color: KelColors.success },
        { number: KelIcons.Error, name: KelIcons.Error, color: KelColors.alert },
        { number: KelIcons.LocalMall, name: KelIcons.LocalMall, color: KelColors.mediumEmphasis },
        { number: KelIcons.Warning, name: "warning", color: KelColors.warning },
        { number: KelIcons.Calendar, name: "date", color: KelColors.mediumEmphasis },
        { number: KelIcons.Schedule, name: "end", color: KelColors.mediumEmphasis },
        { number: KelIcons.Close, name: "close", color: KelColors.mediumEmphasis },
        { number: KelIcons.ExpandMore, name: "panel", color: KelColors.success },
        { number: KelIcons.ArrowBack, name: "back", color: KelColors.highEmphasis }
    ]

    title: "Icons"

    Row {
        spacing: KelSpacing.standard

        Repeater {
            model: section.sizes

            Column {
                id: sized

                required property int modelData

                spacing: KelSpacing.tiny

                Item {
                    width: icon.width
                    height: KelSizes.large

                    KelIcon {
                        id: icon

                        anchors.verticalCenter: parent.verticalCenter
                        number: KelIcons.Inventory
                        size: sized.modelData
                        color: KelColors.highEmphasis
                    }
                }
                ControlsNote {
                    text: sized.modelData
                }
            }
        }
    }
    Row {
        Repeater {
            model: section.names

            Column {
                id: named

                required property var modelData

                width: KelSizes.large
                spacing: KelSpacing.tiny

                KelIcon {
                    number: named.modelData.number
                    size: KelSizes.standard
                    color: named.modelData.color
                }
                ControlsNote {
                    text: named.modelData.name
                }
            }
        }
    }
}
