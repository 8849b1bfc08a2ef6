import QtQuick
import KelDS

// The caption of a sample on the sheet.
KelLabel {
    size: KelFonts.Caption
    color: KelColors.mediumEmphasis
}
