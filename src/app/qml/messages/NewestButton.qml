import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// The button that goes back down after scrolling up: a round "↓" to the newest
// message, or, while messages that arrived meanwhile wait below, "↓ N new" to the
// first of them.
RoundButton {
    id: button

    // How many messages arrived meanwhile and have not been in view.
    property int unseen: 0
    //: An arrow glyph pointing down, to the newest message; not a word.
    readonly property string arrow: qsTr("↓")
    //: On the button under the transcript: how many messages arrived below, with an arrow pointing down to them.
    readonly property string arrived: qsTr("↓ %n new", "", unseen)
    //: The same button read aloud: how many messages arrived below.
    readonly property string spokenArrived: qsTr("%n new", "", unseen)

    width: unseen > 0 ? Math.max(36, implicitContentWidth + 24) : 36
    height: 36
    radius: height / 2
    focusPolicy: Qt.NoFocus
    text: unseen > 0 ? arrived : arrow
    font.pixelSize: unseen > 0 ? 13 : 16
    palette.button: unseen > 0 ? Appearance.accent : Appearance.neutralBubble
    palette.buttonText: unseen > 0 ? Appearance.accentText : Appearance.text
    Accessible.role: Accessible.Button
    Accessible.name: unseen > 0 ? spokenArrived : qsTr("Go to newest message")
    Accessible.description: unseen > 0 ? qsTr("Go to the first new message") : ""
    Accessible.ignored: !visible
    Accessible.onPressAction: clicked()
}
