import QtQuick
import QtQuick.Controls.Basic
import KelDS

// What everything has that can be tapped: it can be reached and used by touch, by key and by a screen reader alike, and
// a key that is held down uses it once.
AbstractButton {
    id: pressable

    // Whether touching down is enough; else the finger has to leave the control on it.
    property bool actsOnPress: false
    property bool showsFocus: pressable.visualFocus

    // The control was used, by whatever means.
    signal activated

    focusPolicy: Qt.StrongFocus
    hoverEnabled: false
    Accessible.role: Accessible.Button
    Accessible.name: pressable.text
    Accessible.onPressAction: if (pressable.enabled && !KelCovers.over(pressable)) pressable.activated()
    Keys.onPressed: event => {
        const enters = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
        event.accepted = enters || (event.key === Qt.Key_Space && event.isAutoRepeat)
        if (enters && !event.isAutoRepeat) {
            pressable.activated()
        }
    }
    onPressed: if (pressable.actsOnPress) pressable.activated()
    onClicked: if (!pressable.actsOnPress) pressable.activated()
}
