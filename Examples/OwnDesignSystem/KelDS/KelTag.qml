import KelDS

KelLabel {
    property int tagColor
}
