import QtQuick
import KelDS

// One part of the sheet: its children are placed below its title.
Column {
    id: section

    required property string title

    spacing: KelSpacing.small

    KelLabel {
        text: section.title
        weight: KelFonts.Medium
    }
}
