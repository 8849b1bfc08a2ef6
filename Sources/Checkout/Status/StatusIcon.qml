import QtQuick
import KelDS

// The disc of a result: a parcel with a small mark for sent or not sent, or one warning sign.
Rectangle {
    id: disc

    // 0 all sent, 1 some not sent, 2 none sent
    required property int status
    readonly property color tone: [KelColors.success, KelColors.alert, KelColors.warning][disc.status]

    width: 88
    height: 88
    radius: width / 2
    color: KelColors.tint(disc.tone)

    KelIcon {
        anchors.centerIn: parent
        number: disc.status === 2 ? KelIcons.Warning : KelIcons.Inventory
        size: KelSizes.mediumX
        color: disc.status === 2 ? disc.tone : KelColors.highEmphasis
    }
    Rectangle {
        x: 64
        y: 62
        width: 20
        height: 20
        radius: width / 2
        visible: disc.status !== 2
        color: KelColors.surface

        KelIcon {
            anchors.centerIn: parent
            number: disc.status === 0 ? KelIcons.CheckCircle : KelIcons.Error
            size: KelSizes.small
            color: disc.tone
        }
    }
}
