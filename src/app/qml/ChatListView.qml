import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model

// The sidebar: the search field on top, the connection's state while it is not
// ready, and the chats under it. Up and Down move the selection, Enter goes to
// the composer; Ctrl+F goes to the search field while no chat is open (with one
// open, it searches in that chat).
FocusScope {
    id: sidebar

    required property ChatViewModel viewModel
    required property ChatListModel chatList
    required property SessionAccess session

    // Enter on a chat: the user wants to write in it.
    signal chatChosen
    // A chat's menu: a right click on its row, or the Menu key on the selected one.
    signal chatMenuRequested(string chatID, string title)

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Sidebar")

    Shortcut {
        sequence: StandardKey.Find
        enabled: !sidebar.viewModel.selectedChat
        onActivated: search.forceActiveFocus()
    }

    LoginField {
        id: search

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            margins: 10
        }
        implicitHeight: 32
        font.pixelSize: 13
        placeholderText: qsTr("Search")
        text: sidebar.viewModel.searchText
        activeFocusOnTab: true
        onTextEdited: sidebar.viewModel.searchText = text
        // Down goes to the results with the first of them selected (unless the
        // selected chat is among them); Return opens what is selected there.
        Keys.onDownPressed: {
            list.selectShownChat();
            list.forceActiveFocus();
        }
        Keys.onReturnPressed: {
            if (list.selectShownChat())
                sidebar.chatChosen();
        }
        Keys.onEnterPressed: {
            if (list.selectShownChat())
                sidebar.chatChosen();
        }
    }

    ConnectionStatus {
        id: connection

        anchors {
            left: parent.left
            right: parent.right
            top: search.bottom
            margins: 10
            topMargin: visible ? 6 : 0
        }
        connectionState: sidebar.session.connectionState
    }

    ListView {
        id: list

        objectName: "chatList"
        anchors {
            left: parent.left
            right: parent.right
            top: connection.bottom
            topMargin: 8
            bottom: parent.bottom
        }
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        model: ArchiveFilterModel {
            id: archiveFilter

            sourceModel: sidebar.chatList
            searching: sidebar.viewModel.searchText !== ""
        }
        header: ArchiveHeader {
            width: ListView.view.width
            archive: archiveFilter
            // It appears once the chats are counted: a list at its top shows it.
            // While the list is still making it (headerItem not set yet), moving
            // the list would make it a second time.
            onHeightChanged: if (list.headerItem === this && list.contentY - list.originY <= height) list.positionViewAtBeginning()
        }
        keyNavigationEnabled: false
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Chat list")
        ScrollBar.vertical: ScrollBar {
            Accessible.name: qsTr("Scroll chats")
            Accessible.ignored: !visible || size >= 1
        }

        Keys.onUpPressed: list.moveSelection(-1)
        Keys.onDownPressed: list.moveSelection(1)
        Keys.onReturnPressed: sidebar.chatChosen()
        Keys.onEnterPressed: sidebar.chatChosen()

        Keys.onMenuPressed: list.requestMenuForSelection()
        Keys.onPressed: event => {
            if (event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier)) {
                list.requestMenuForSelection();
                event.accepted = true;
            }
        }

        function requestMenuForSelection() {
            const row = archiveFilter.rowOf(sidebar.viewModel.selectedChatID);
            if (row >= 0 && itemAtIndex(row))
                sidebar.chatMenuRequested(sidebar.viewModel.selectedChatID, itemAtIndex(row).title);
        }

        delegate: ChatRow {
            width: ListView.view.width
            deleting: sidebar.session.deletingChatIDs.includes(chatID)
            onMenuRequested: sidebar.chatMenuRequested(chatID, title)
            onClicked: {
                sidebar.viewModel.selectChat(chatID);
                list.forceActiveFocus();
            }
        }

        // The selected chat when the list shows it, else the first shown one;
        // false when the list shows none.
        function selectShownChat() {
            if (count === 0)
                return false;
            if (archiveFilter.rowOf(sidebar.viewModel.selectedChatID) < 0) {
                sidebar.viewModel.selectChat(archiveFilter.idAt(0));
                positionViewAtIndex(0, ListView.Contain);
            }
            return true;
        }

        // Rows move as chats get messages: the selection's row is looked up now.
        function moveSelection(delta) {
            if (count === 0)
                return;
            const row = archiveFilter.rowOf(sidebar.viewModel.selectedChatID);
            const next = row < 0 ? 0 : Math.max(0, Math.min(row + delta, count - 1));
            sidebar.viewModel.selectChat(archiveFilter.idAt(next));
            positionViewAtIndex(next, ListView.Contain);
        }
    }

    // The keyboard focus ring, outside the list so that it does not scroll.
    Rectangle {
        anchors.fill: list
        visible: list.activeFocus
        color: "transparent"
        border.width: 2
        border.color: Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.5)
    }

    ReadableText {
        anchors.centerIn: list
        visible: list.count === 0 && !archiveFilter.showsArchived
        text: sidebar.viewModel.searchText !== "" ? qsTr("No results") : qsTr("No chats yet")
    }
}
