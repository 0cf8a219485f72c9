import QtQuick
import Vost.App

// The signed-in client: the chat list on the left, the conversation on the right.
// Both panes are placeholders that the chat list and the conversation replace
// through the two components below.
FocusScope {
    id: layout

    // The chat list (280 wide) and the open conversation.
    property Component sidebar: sidebarPlaceholder
    property Component conversation: emptyConversation

    Accessible.role: Accessible.Pane
    Accessible.name: "Chats"

    Rectangle {
        id: sidebarPane

        anchors {
            left: parent.left
            top: parent.top
            bottom: parent.bottom
        }
        width: 280
        color: Appearance.sidebar

        Loader {
            anchors.fill: parent
            sourceComponent: layout.sidebar
            focus: true
        }
    }

    Rectangle {
        id: divider

        anchors {
            left: sidebarPane.right
            top: parent.top
            bottom: parent.bottom
        }
        width: 1
        color: Appearance.separator
    }

    Loader {
        anchors {
            left: divider.right
            right: parent.right
            top: parent.top
            bottom: parent.bottom
        }
        sourceComponent: layout.conversation
    }

    Component {
        id: sidebarPlaceholder

        Item {
            objectName: "sidebarPlaceholder"
            Accessible.role: Accessible.List
            Accessible.name: "Chat list"
        }
    }

    Component {
        id: emptyConversation

        EmptyConversationView {}
    }
}
