import QtQuick
import Vost.App

// The day of the message at the top of a transcript while it moves, on a band of
// the background so that it never lies over a message's text.
Rectangle {
    id: band

    required property ListView view

    readonly property var topItem: view.itemAt(view.width / 2, view.contentY + height)
    // The footer (the spinner, the start of the conversation) has no date.
    readonly property string label: topItem && topItem.date ? Formats.dayLabel(topItem.date, AppLanguage.language) : ""

    height: 34
    color: Appearance.background
    opacity: view.moving && label !== "" ? 1 : 0
    visible: opacity > 0

    Behavior on opacity {
        NumberAnimation {
            duration: 150
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: dayText.implicitWidth + 20
        height: 22
        radius: 11
        color: Appearance.neutralBubble
        border.width: 1
        border.color: Appearance.separator

        Text {
            id: dayText

            anchors.centerIn: parent
            text: band.label
            color: Appearance.secondaryText
            font.pixelSize: 12
        }
    }
}
