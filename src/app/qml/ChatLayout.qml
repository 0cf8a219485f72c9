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

            anchors {
                left: parent.left
                right: parent.right
                top: parent.top
                bottom: toolbar.top
            }
            focus: true
            viewModel: layout.viewModel
            chatList: layout.host.chatList
            session: layout.host.access
            onChatChosen: if (conversationPane.item) conversationPane.item.forceActiveFocus()
            onChatMenuRequested: (chatID, title) => {
                chatMenu.instance().openFor(chatID, title, layout.host.access.isPrivateChat(chatID));
            }
        }

        SidebarToolbar {
            id: toolbar

            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
            }
            host: layout.host
            onPreferencesRequested: layout.showPreferences()
            onNewChatRequested: layout.showNewChat()
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
        text: layout.host.access.errorMessage
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

    OnDemand {
        id: chatMenu

        sourceComponent: ChatMenu {
            parent: layout
            onDeleteRequested: (chatID, title, includingContact) => {
                const dialog = deletion.instance();
                dialog.chatID = chatID;
                dialog.includingContact = includingContact;
                dialog.question = includingContact ? qsTr("Delete the chat with %1 and remove them from your contacts?").arg(title)
                                                   : qsTr("Delete the chat “%1”?").arg(title);
                dialog.open();
            }
        }
    }

    OnDemand {
        id: deletion

        sourceComponent: ConfirmDialog {
            property string chatID
            property bool includingContact

            parent: layout
            //: A verb: the button that confirms deleting the chat.
            actionText: qsTr("Delete")
            onConfirmed: layout.host.access.deleteChat(chatID, includingContact)
        }
    }

    Shortcut {
        sequence: "Ctrl+,"
        onActivated: layout.showPreferences()
    }

    Shortcut {
        sequence: "Ctrl+N"
        onActivated: layout.showNewChat()
    }

    Loader {
        id: newChatPage

        anchors.fill: parent
        active: false
        z: 10
        sourceComponent: NewChatView {
            host: layout.host
            focus: true
            onClosed: layout.hideNewChat()
        }
        onLoaded: item.forceActiveFocus()
    }

    function showNewChat() {
        newChatPage.active = true;
        if (newChatPage.item)
            newChatPage.item.forceActiveFocus();
    }

    function hideNewChat() {
        newChatPage.active = false;
        if (conversationPane.item)
            conversationPane.item.forceActiveFocus();
        else
            chatListView.forceActiveFocus();
    }

    // Over everything else while open; the chats underneath keep their state.
    Loader {
        id: preferencesPage

        anchors.fill: parent
        active: false
        z: 10
        sourceComponent: PreferencesView {
            host: layout.host
            focus: true
            onClosed: layout.hidePreferences()
        }
        onLoaded: item.forceActiveFocus()
    }

    function showPreferences() {
        preferencesPage.active = true;
        if (preferencesPage.item)
            preferencesPage.item.forceActiveFocus();
    }

    function hidePreferences() {
        preferencesPage.active = false;
        chatListView.forceActiveFocus();
    }
}
