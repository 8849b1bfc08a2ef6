import QtQuick

// The list that anybody would write for the result's rows: the same boxes and texts, placed by constants, and nothing of
// what the product's rows can do besides. It uses its rows again, as the product's list does.
ListView {
    id: list

    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0
    reuseItems: true
    delegate: Item {
        id: row

        required property string quantity
        required property string description
        required property string code
        required property string points
        required property bool hasReason

        width: ListView.view.width
        height: outline.height

        Item {
            id: outline

            x: 16
            width: parent.width - 32
            height: Math.round(content.height)

            Rectangle {
                anchors.fill: parent
                color: "#ffffff"
                border.width: 1
                border.color: "#3f6b25"
            }
            Item {
                id: content

                width: parent.width
                height: body.height

                Item {
                    id: body

                    width: parent.width
                    height: texts.y + texts.height + 16

                    Rectangle {
                        x: 72
                        width: parent.width - 88
                        height: 1
                        color: "#1726231f"
                    }
                    Rectangle {
                        x: 16
                        y: 17
                        width: 40
                        height: 40
                        radius: 8
                        color: "#1a6b655c"

                        Text {
                            anchors.centerIn: parent
                            width: 24
                            height: 24
                            text: "\ue54c"
                            font.family: "Material Icons"
                            font.pixelSize: 24
                            color: "#6b655c"
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                        }
                    }
                    Rectangle {
                        id: badge

                        x: 64
                        y: 17
                        width: 24
                        height: 24
                        radius: 4
                        color: "#f4ab34"

                        Text {
                            anchors.centerIn: parent
                            text: row.quantity
                            font.family: "Inter"
                            font.pixelSize: 12
                            font.weight: Font.DemiBold
                            color: "#1f1b14"
                        }
                    }
                    Item {
                        id: texts

                        x: 100
                        y: 17
                        width: pointsText.x - 112
                        height: codeText.y + codeText.height + (row.hasReason ? 20 : 0)

                        Text {
                            id: nameText

                            width: parent.width
                            text: row.description
                            font.family: "Inter"
                            font.pixelSize: 14
                            lineHeight: 1.2
                            color: "#26231f"
                            wrapMode: Text.Wrap
                        }
                        Text {
                            id: codeText

                            y: nameText.height + 4
                            width: parent.width
                            text: row.code
                            font.family: "Inter"
                            font.pixelSize: 12
                            color: "#6b655c"
                            wrapMode: Text.Wrap
                        }
                        Rectangle {
                            y: codeText.y + codeText.height + 10
                            width: 32
                            height: 8
                            radius: 4
                            color: "#b93a1c"
                            visible: row.hasReason

                            Text {
                                visible: false
                            }
                        }
                    }
                    Text {
                        id: pointsText

                        anchors.right: parent.right
                        anchors.rightMargin: 16
                        y: 17
                        text: row.points
                        font.family: "Inter"
                        font.pixelSize: 14
                        font.weight: Font.Medium
                        lineHeight: 1.2
                        color: "#3f6b25"
                    }
                }
            }
        }
    }
}
