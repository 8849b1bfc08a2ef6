import QtQuick
import KelDS

// Draws a label of C++'s; one that is absent or has no text takes no room.
KelValueLabel {
    required property var label

    visible: caption !== "" || value !== ""
    caption: label?.caption ?? ""
    value: label?.value ?? ""
    font: label?.font ?? KelFonts.font(6, 0)
    color: label?.color ?? KelColors.highEmphasis
    wrapMode: Text.Wrap
    Accessible.ignored: !visible
}
