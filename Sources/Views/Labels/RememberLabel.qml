import QtQuick
import KelDS

// The reminder: its first word bolder, then the sentence.
KelLabel {
    id: label

    required property string remember
    required property string reminder

    size: 11
    lineHeight: 1.3
    wrapMode: Text.Wrap
    textFormat: Text.StyledText
    text: "<b>" + label.remember + ":</b> " + label.reminder
    Accessible.name: label.remember + ": " + label.reminder
}
