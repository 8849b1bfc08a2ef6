import QtQuick
import KelDS

// What a sample on the sheet is called.
KelLabel {
    size: KelFonts.Caption
    color: KelColors.mediumEmphasis
}
