import QtQuick
import KelDS

// What a sample on the sheet is called.
KelLabel {
    size: 11
    color: KelColors.mediumEmphasis
}
