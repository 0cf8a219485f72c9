import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// The actions on one chat: "Delete chat" and, with one person, "Delete chat and
// contact". Each asks first, naming the chat.
Menu {
    id: menu

    property string chatID
    property string chatTitle
    property bool isPrivate: false

    signal deleteRequested(string chatID, string chatTitle, bool includingContact)

    title: qsTr("Chat actions")
    // Qt 6.4 names a menu by nothing of its own: its popup item carries the name.
    Component.onCompleted: contentItem.parent.Accessible.name = title

    background: Rectangle {
        implicitWidth: 220
        radius: 10
        color: Appearance.background
        border.width: 1
        border.color: Appearance.separator
    }

    MessageMenuItem {
        text: qsTr("Delete chat")
        destructive: true
        onTriggered: menu.deleteRequested(menu.chatID, menu.chatTitle, false)
    }
    MessageMenuItem {
        text: qsTr("Delete chat and contact")
        destructive: true
        visible: menu.isPrivate
        height: visible ? implicitHeight : 0
        onTriggered: menu.deleteRequested(menu.chatID, menu.chatTitle, true)
    }

    function openFor(id, title, isPrivateChat) {
        chatID = id;
        chatTitle = title;
        isPrivate = isPrivateChat;
        popup();
    }
}
