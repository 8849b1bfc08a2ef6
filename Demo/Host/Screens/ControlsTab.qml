import QtQuick
import KelDS

ControlsSection {
    title: "Tab"

    KelTab {
        width: parent.width
        text: "En Curso"
    }
    ControlsNote {
        text: KelSizes.medium + " high, indicator 3"
    }
}
