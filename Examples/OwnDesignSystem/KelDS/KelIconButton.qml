import KelDS

KelButton {
    property int number
}
