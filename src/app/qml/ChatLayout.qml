import QtQuick
import Vost.App
import Vost.Model

// The signed-in client: the chat list on the left, the conversation on the right.
// Tab moves from the list to the transcript to the composer and round again.
FocusScope {
    id: layout

    required property AppRootView host

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

        ChatListView {
            id: chatListView

            anchors.fill: parent
            focus: true
            viewModel: layout.host.viewModel
            chatList: layout.host.chatList
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
        id: conversationPane

        anchors {
            left: divider.right
            right: parent.right
            top: parent.top
            bottom: parent.bottom
        }
        sourceComponent: layout.host.viewModel.selectedChatID !== "" ? conversation : emptyConversation
    }

    Component {
        id: conversation

        ConversationView {
            viewModel: layout.host.viewModel
            messageList: layout.host.messageList
        }
    }

    Component {
        id: emptyConversation

        EmptyConversationView {}
    }
}
