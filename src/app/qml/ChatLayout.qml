import QtQuick
import Vost.App
import Vost.Model

// The signed-in client: the chat list on the left, the conversation on the right,
// and over the conversation a banner with the session's latest error until the
// user dismisses it. Tab moves from the list to the transcript to the composer
// and round again. Esc cancels a reply or an edit, then clears the search; only
// then does it reach the popover, which closes.
FocusScope {
    id: layout

    required property AppRootView host

    readonly property ChatViewModel viewModel: host.viewModel
    // The error text the user dismissed; a different error shows again.
    property string dismissedError

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Chats")

    Keys.onEscapePressed: event => {
        if (viewModel.replyToMessage !== null || viewModel.editingMessage !== null)
            viewModel.cancelReplyAndEdit();
        else if (viewModel.searchText !== "")
            viewModel.searchText = "";
        else
            event.accepted = false;
    }

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
            viewModel: layout.viewModel
            chatList: layout.host.chatList
            onChatChosen: if (conversationPane.item) conversationPane.item.forceActiveFocus()
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
        sourceComponent: layout.viewModel.selectedChatID !== "" ? conversation : emptyConversation
    }

    ErrorBanner {
        anchors {
            left: divider.right
            right: parent.right
            top: parent.top
            margins: 8
            topMargin: 58
        }
        text: layout.host.session.errorMessage
        visible: text !== "" && text !== layout.dismissedError
        onDismissed: layout.dismissedError = text
    }

    Component {
        id: conversation

        ConversationView {
            host: layout.host
        }
    }

    Component {
        id: emptyConversation

        EmptyConversationView {}
    }
}
