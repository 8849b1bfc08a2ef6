import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import KelDS

// Base of all tappable controls: touch, keyboard and screen reader. A key that is held down activates once.
AbstractButton {
    id: pressable

    // Whether touching down is enough; else the finger has to leave the control on it.
    property bool actsOnPress: false
    property bool showsFocus: pressable.activeFocus && KelInput.byKeys

    // By touch, key or screen reader.
    signal activated

    // A screen reader can press controls that lie under an open alert.
    function isUnderAlert(): bool {
        const overlay = T.Overlay.overlay
        return overlay !== null && overlay.visible && !pressable.isWithin(pressable, overlay)
    }
    function isWithin(item: Item, area: Item): bool {
        return item !== null && (item === area || pressable.isWithin(item.parent, area))
    }

    focusPolicy: Qt.StrongFocus
    hoverEnabled: false
    Accessible.role: Accessible.Button
    Accessible.name: pressable.text
    Accessible.onPressAction: if (pressable.enabled && !pressable.isUnderAlert()) pressable.activated()
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
