import QtQuick
import KelDS

// What a host's developer wants to see while the module runs.
Rectangle {
    id: live

    required property var journal

    color: Qt.darker(KelColors.background, 1.03)

    Rectangle {
        width: 1
        height: parent.height
        color: KelColors.hairline
    }
    Item {
        anchors.fill: parent
        anchors.margins: KelSpacing.semi

        KelLabel {
            id: heading

            text: "Live"
            size: 5
            weight: 1
        }
        LiveCard {
            id: requests

            anchors.top: heading.bottom
            anchors.topMargin: KelSpacing.small
            width: parent.width
            height: (parent.height - heading.height - 2 * KelSpacing.small) * 0.4
            title: "Requests"
            rows: live.journal.requests
            rowDelegate: Item {
                id: request

                required property var modelData

                width: ListView.view.width
                height: KelSizes.medium

                KelLabel {
                    id: time

                    height: parent.height
                    text: request.modelData.time
                    size: 11
                    color: KelColors.mediumEmphasis
                }
                KelLabel {
                    id: method

                    x: 96
                    height: parent.height
                    text: request.modelData.method
                    size: 11
                    weight: 2
                }
                KelLabel {
                    x: 152
                    width: tag.x - x - KelSpacing.tiny
                    height: parent.height
                    text: request.modelData.path
                    size: 11
                    elide: Text.ElideMiddle
                }
                KelTag {
                    id: tag

                    anchors.right: duration.left
                    anchors.verticalCenter: parent.verticalCenter
                    text: request.modelData.pending ? "…"
                        : request.modelData.status > 0 ? request.modelData.status : request.modelData.error
                    colorIndex: request.modelData.pending ? 4
                              : request.modelData.status >= 200 && request.modelData.status < 300 ? 1 : 3
                }
                KelLabel {
                    id: duration

                    anchors.right: parent.right
                    width: 72
                    height: parent.height
                    text: request.modelData.pending ? "" : request.modelData.milliseconds + " ms"
                    size: 11
                    color: KelColors.mediumEmphasis
                    horizontalAlignment: Text.AlignRight
                }
            }
        }
        LiveCard {
            id: analytics

            anchors.top: requests.bottom
            anchors.topMargin: KelSpacing.small
            anchors.bottom: parent.bottom
            width: (parent.width - KelSpacing.small) * 0.6
            title: "Analytics"
            rows: live.journal.analytics
            rowDelegate: LiveEntry {
                title: modelData.screen ?? modelData.label
                detail: modelData.screen ? "screen" : modelData.action
                icon: modelData.screen ? KelIcons.Screen : KelIcons.Touch
                tone: modelData.screen ? KelColors.link : KelColors.warning
            }
        }
        LiveCard {
            anchors.top: requests.bottom
            anchors.topMargin: KelSpacing.small
            anchors.bottom: parent.bottom
            anchors.right: parent.right
            width: parent.width - analytics.width - KelSpacing.small
            title: "Navigation"
            rows: live.journal.navigation
            rowDelegate: LiveEntry {
                title: modelData.operation
                detail: ""
                icon: KelIcons.Home
                tone: KelColors.mediumEmphasis
            }
        }
    }
}
