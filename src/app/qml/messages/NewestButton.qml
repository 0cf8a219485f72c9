import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// The round button that goes back to the newest message after scrolling up; it
// counts the messages that arrived meanwhile.
RoundButton {
    id: button

    property int unseen: 0

    width: 36
    height: 36
    focusPolicy: Qt.NoFocus
    //: An arrow glyph pointing down, to the newest message; not a word.
    text: qsTr("↓")
    font.pixelSize: 16
    palette.button: Appearance.neutralBubble
    palette.buttonText: Appearance.text
    Accessible.role: Accessible.Button
    Accessible.name: unseen > 0 ? qsTr("Go to newest message, %n new", "", unseen) : qsTr("Go to newest message")
    Accessible.ignored: !visible
    Accessible.onPressAction: clicked()
    onVisibleChanged: if (!visible) unseen = 0

    Rectangle {
        anchors {
            right: parent.right
            top: parent.top
            topMargin: -6
            rightMargin: -4
        }
        visible: button.unseen > 0
        width: Math.max(18, unseenText.implicitWidth + 8)
        height: 18
        radius: 9
        color: Appearance.accent

        Text {
            id: unseenText

            anchors.centerIn: parent
            text: button.unseen
            color: Appearance.accentText
            font.pixelSize: 11
        }
    }
}
