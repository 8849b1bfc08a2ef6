import QtQuick
import KelDS

// A scroll indicator: it shows which part of a page is visible. It takes no input.
Rectangle {
    id: hint

    required property Flickable page

    anchors.right: parent.right
    y: hint.page.y + hint.page.visibleArea.yPosition / (1 - hint.page.visibleArea.heightRatio)
       * (hint.page.height - hint.height)
    width: KelSizes.micro
    // Keeps the indicator visible for very long pages.
    height: Math.max(KelSizes.standard, hint.page.visibleArea.heightRatio * hint.page.height)
    radius: KelBorderRadius.small
    color: KelColors.edge
}
