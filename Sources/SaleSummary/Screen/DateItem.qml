import QtQuick
import KelDS

// An icon and a day.
Row {
    id: date

    required property int number
    required property string text

    spacing: KelSpacing.tiny

    KelIcon {
        number: date.number
    }
    KelLabel {
        text: date.text
        size: KelFonts.Subtitle2
    }
}
