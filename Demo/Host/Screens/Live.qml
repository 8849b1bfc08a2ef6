import QtQuick
import KelDS
import Demo

// What a host's developer wants to see while the module runs.
Ground {
    id: live

    required property var journal
    required property var status
    required property PhoneArea area
    required property bool moduleOpen

    // Four requests, as many as most orders need, fit without scrolling.
    readonly property int requestsHeight: KelSizes.mediumX + 4 * KelSizes.medium + KelSpacing.tiny
    // What analytics and code share. Analytics keep six entries where there is room; else the code shrinks to some ten
    // lines, then analytics to two entries, then the code again.
    readonly property int sharedHeight: body.height - header.height - KelSpacing.semi - live.requestsHeight
                                        - 2 * KelSpacing.small
    readonly property int tenLines: KelSizes.mediumX + 9 * KelSizes.standard
    readonly property int codeHeight: Math.max(live.sharedHeight - live.entriesHeight(6),
                                               Math.min(live.sharedHeight - live.entriesHeight(2), live.tenLines))

    function entriesHeight(count: int): int {
        return (1 + count) * KelSizes.mediumX + KelSpacing.tiny
    }

    KelDivider {
        id: edge

        width: 1
        height: parent.height
    }
    Item {
        id: body

        anchors.fill: parent
        anchors.margins: KelSpacing.semi
        anchors.leftMargin: KelSpacing.semi + edge.width

        LiveHeader {
            id: header

            width: parent.width
            status: live.status
            area: live.area
        }
        LiveCard {
            id: requests

            anchors.top: header.bottom
            anchors.topMargin: KelSpacing.semi
            width: parent.width
            height: live.requestsHeight
            title: "Requests"
            rows: live.journal.requests
            rowDelegate: LiveRequest {}
        }
        LiveCard {
            id: analytics

            anchors.top: requests.bottom
            anchors.topMargin: KelSpacing.small
            anchors.bottom: code.top
            anchors.bottomMargin: KelSpacing.small
            width: Math.round((parent.width - KelSpacing.small) * 0.6)
            title: "Analytics"
            rows: live.journal.analytics
            rowDelegate: LiveEntry {
                title: modelData.screen ?? modelData.label
                detail: modelData.screen ? "screen" : modelData.action
                time: modelData.time
                icon: modelData.screen ? KelIcons.Screen : KelIcons.Touch
                tone: modelData.screen ? KelColors.link : KelColors.warning
                ground: modelData.screen ? KelColors.link : KelColors.primary
            }
        }
        LiveCard {
            anchors.top: requests.bottom
            anchors.topMargin: KelSpacing.small
            anchors.bottom: code.top
            anchors.bottomMargin: KelSpacing.small
            anchors.right: parent.right
            width: parent.width - analytics.width - KelSpacing.small
            title: "Navigation"
            rows: live.journal.navigation
            outlook: live.moduleOpen ? "Waiting for the module to hand over" : ""
            rowDelegate: LiveEntry {
                title: modelData.operation
                detail: modelData.time
                icon: modelData.icon
                tone: KelColors.mediumEmphasis
            }
        }
        LiveCode {
            id: code

            anchors.bottom: parent.bottom
            width: parent.width
            // Until a person opens or closes it.
            open: live.sharedHeight >= live.tenLines + live.entriesHeight(5)
            openHeight: live.codeHeight
        }
    }
}
