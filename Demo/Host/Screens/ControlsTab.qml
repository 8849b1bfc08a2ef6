import QtQuick
import KelDS

ControlsSection {
    title: "Tab"

    KelTabs {
        width: parent.width
        titles: ["En Curso"]
    }
    ControlsNote {
        text: KelSizes.medium + " high, indicator 3"
    }
}
