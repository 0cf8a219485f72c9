import QtQuick
import Vost.App

// The conversation pane when no chat is open.
Rectangle {
    color: Appearance.background
    Accessible.role: Accessible.Pane
    Accessible.name: "Conversation"

    Text {
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 40)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: "Choose a Telegram chat or contact."
        color: Appearance.secondaryText
        font.pixelSize: 14
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
