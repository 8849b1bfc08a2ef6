import QtQuick
import KelDS

Rectangle {
    implicitHeight: 1
    color: KelColors.hairline
}
