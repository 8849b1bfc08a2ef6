import QtQuick
import KelDS

KelDialog {
    id: root

    required property var dialog

    title: root.dialog.title
    message: root.dialog.message
    icon: root.dialog.icon
    actionText: root.dialog.actionText
    alpha: root.dialog.alpha
    onButtonTouched: root.dialog.touchButton()
    onBackgroundTouched: root.dialog.touchBackground()
    onCloseIconTouched: root.dialog.touchCloseIcon()
}
