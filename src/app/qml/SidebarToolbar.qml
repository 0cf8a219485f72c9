import QtQuick
import Vost.App
import Vost.Model

// Under the chat list: who is signed in, and the ways to a new chat and to the
// preferences.
Item {
    id: toolbar

    required property AppRootView host

    signal preferencesRequested
    signal newChatRequested

    implicitHeight: 52

    Rectangle {
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
        }
        height: 1
        color: Appearance.separator
    }

    Avatar {
        id: avatar

        anchors {
            left: parent.left
            leftMargin: 12
            verticalCenter: parent.verticalCenter
        }
        size: 28
        initials: toolbar.host.accountInitials
        Accessible.ignored: true
    }

    ReadableText {
        anchors {
            left: avatar.right
            leftMargin: 8
            right: newChat.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        text: toolbar.host.access.currentAccountName
        elide: Text.ElideRight
        font.pixelSize: 13
        wrapMode: Text.NoWrap
    }

    IconButton {
        id: newChat

        anchors {
            right: preferences.left
            rightMargin: 4
            verticalCenter: parent.verticalCenter
        }
        glyph: "✎"
        Accessible.name: qsTr("New chat")
        tip: qsTr("New chat (Ctrl+N)")
        onClicked: toolbar.newChatRequested()
    }

    IconButton {
        id: preferences

        anchors {
            right: parent.right
            rightMargin: 10
            verticalCenter: parent.verticalCenter
        }
        glyph: "⚙"
        Accessible.name: qsTr("Preferences")
        tip: qsTr("Preferences (Ctrl+,)")
        onClicked: toolbar.preferencesRequested()
    }
}
