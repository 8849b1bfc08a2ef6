import QtQuick
import KelDS

// A label and its value as one text, of which only the value is bolder. The value is a number or a date, never a text
// of the back end's, for this label reads mark-up.
KelLabel {
    id: label

    required property string caption
    required property string value

    text: label.caption + "<b>" + label.value + "</b>"
    textFormat: Text.StyledText
    Accessible.name: label.caption + label.value
}
