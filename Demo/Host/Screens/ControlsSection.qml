import QtQuick
import KelDS

// One part of the sheet: whatever is declared inside stands below its title.
Column {
    id: section

    required property string title

    spacing: KelSpacing.small

    KelLabel {
        text: section.title
        weight: KelFonts.Medium
    }
}
