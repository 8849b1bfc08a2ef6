import QtQuick

// The least that a page with a list can be: as many lines of text as the summary has texts.
ListView {
    model: 20
    delegate: Text {
        required property int index

        width: ListView.view.width
        height: 48
        text: "Line " + index
    }
}
