import QtQuick
import KelDS

// Shows how much of a long text is in view, and which part. Nothing can be done with it but look.
Rectangle {
    id: hint

    required property Flickable page

    anchors.right: parent.right
    y: hint.page.y + hint.page.visibleArea.yPosition / (1 - hint.page.visibleArea.heightRatio)
       * (hint.page.height - hint.height)
    width: KelSizes.micro
    // However long the text, there is something to be seen.
    height: Math.max(KelSizes.standard, hint.page.visibleArea.heightRatio * hint.page.height)
    radius: KelBorderRadius.small
    color: KelColors.lowEmphasis
}
