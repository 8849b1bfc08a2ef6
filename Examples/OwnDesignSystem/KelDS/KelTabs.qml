import KelDS

KelLabel {
    property var titles
    property real leftInset
    property real rightInset
    text: titles[0]
}
