import KelDS

KelLabel {
    property var titles
    text: titles[0]
}
