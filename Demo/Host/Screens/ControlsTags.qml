// Views and loaders of Qt 6.4 cannot create bound components, so components refer to this file's ids unqualified.
// qmllint disable unqualified

import QtQuick
import KelDS

ControlsSection {
    id: section

    readonly property list<string> colors: ["primary", "success", "warning", "alert", "link"]

    title: "Tags"

    Row {
        width: parent.width

        Repeater {
            model: section.colors

            Column {
                id: sample

                required property int index
                required property string modelData

                width: 2 * KelSizes.medium
                spacing: KelSpacing.small

                KelTag {
                    text: sample.index === 2 ? "12" : "3"
                    tagColor: sample.index
                }
                KelTag {
                    tagColor: sample.index
                }
                ControlsNote {
                    text: sample.index + " " + sample.modelData
                }
            }
        }
        Column {
            spacing: KelSpacing.tiny

            ControlsNote {
                height: KelSizes.standard
                text: "with text: " + KelSizes.standard + " high"
            }
            ControlsNote {
                height: KelSizes.standard
                text: "without: " + KelSizes.semi + " × " + KelSizes.tiny
            }
        }
    }
}
