import QtQuick
import Vost.App

// The conversation pane when no chat is open.
Rectangle {
    color: Appearance.background
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Conversation")

    ReadableText {
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 40)
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("Choose a Telegram chat or contact.")
        font.pixelSize: 14
    }
}
