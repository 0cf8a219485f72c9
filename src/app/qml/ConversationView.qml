import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model
import Vost.Render

// The open chat: the header (avatar, title, subtitle), the transcript and the
// composer. The transcript is laid out from the bottom up: it opens at the newest
// message, stays there as messages arrive while the reader is at the bottom, and
// pages back through older history (15 at a time, with a small spinner) as the
// reader nears the top, without moving what is on screen.
FocusScope {
    id: conversation

    required property AppRootView host
    readonly property ChatViewModel viewModel: host.viewModel
    readonly property MessageListModel messageList: host.messageList

    readonly property var chat: viewModel.selectedChat
    readonly property string chatTitle: chat ? chat.title : ""

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Conversation with %1").arg(chatTitle)

    Rectangle {
        anchors.fill: parent
        color: Appearance.background
    }

    Item {
        id: header

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
        }
        height: 52
        Accessible.role: Accessible.Heading
        Accessible.name: conversation.chatTitle + (subtitle.text !== "" ? ", " + subtitle.text : "")

        Avatar {
            id: headerAvatar

            anchors {
                left: parent.left
                leftMargin: 14
                verticalCenter: parent.verticalCenter
            }
            size: 32
            initials: conversation.chat ? conversation.chat.avatarText : ""
            path: conversation.chat ? conversation.chat.avatarPath : ""
        }

        Column {
            anchors {
                left: headerAvatar.right
                leftMargin: 10
                right: searchButton.left
                rightMargin: 8
                verticalCenter: parent.verticalCenter
            }

            Text {
                width: parent.width
                text: conversation.chatTitle
                elide: Text.ElideRight
                color: Appearance.text
                font.pixelSize: 14
                font.weight: Font.DemiBold
            }
            Text {
                id: subtitle

                width: parent.width
                visible: text !== ""
                text: conversation.chat ? conversation.chat.subtitle : ""
                elide: Text.ElideRight
                color: Appearance.secondaryText
                font.pixelSize: 12
            }
        }

        IconButton {
            id: searchButton

            anchors {
                right: parent.right
                rightMargin: 12
                verticalCenter: parent.verticalCenter
            }
            symbol: "magnifyingglass"
            highlighted: searchBar.active
            Accessible.name: qsTr("Search in chat")
            onClicked: searchBar.active ? searchBar.close() : searchBar.open()
        }

        Rectangle {
            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
            }
            height: 1
            color: Appearance.separator
        }
    }

    ChatSearchBar {
        id: searchBar

        anchors {
            left: parent.left
            right: parent.right
            top: header.bottom
        }
        search: conversation.host.access.chatSearch
        chatID: conversation.viewModel.selectedChatID
        messageList: conversation.messageList
        onResultShown: messageID => transcript.revealMessage(messageID)
        onClosed: chatID => {
            conversation.host.access.returnToNewest(chatID);
            transcript.showNewest();
        }
    }

    Shortcut {
        sequence: StandardKey.Find
        enabled: conversation.visible && !!conversation.chat
        onActivated: searchBar.open()
    }

    ListView {
        id: transcript

        // Whether the newest message is in view; new ones then keep it in view.
        property bool atNewest: true

        objectName: "transcript"
        anchors {
            left: parent.left
            right: parent.right
            top: searchBar.bottom
            bottom: composer.top
        }
        clip: true
        activeFocusOnTab: true
        verticalLayoutDirection: ListView.BottomToTop
        boundsBehavior: Flickable.StopAtBounds
        topMargin: 8
        bottomMargin: 8
        model: conversation.messageList
        currentIndex: -1
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        reuseItems: true
        cacheBuffer: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Messages")
        ScrollBar.vertical: ScrollBar {
            Accessible.name: qsTr("Scroll messages")
            Accessible.ignored: !visible || size >= 1
        }

        Keys.onPressed: event => {
            if (event.key === Qt.Key_PageUp) {
                contentY = Math.max(originY - topMargin, contentY - height * 0.9);
                event.accepted = true;
            } else if (event.key === Qt.Key_PageDown) {
                contentY = Math.min(originY + contentHeight - height + bottomMargin, contentY + height * 0.9);
                event.accepted = true;
            } else if (event.key === Qt.Key_Home) {
                // The oldest loaded message (the end of the newest-first model) and
                // above it the spinner or the start of the conversation.
                positionViewAtEnd();
                Qt.callLater(showTop);
                event.accepted = true;
            } else if (event.key === Qt.Key_End) {
                showNewest();
                event.accepted = true;
            } else if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)
                       || event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
                if (currentItem) {
                    currentItem.openMenu();
                    event.accepted = true;
                }
            }
        }
        onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0

        // The newest message, at the bottom, as the current one for the keys.
        function showNewest() {
            toNewestEdge();
            atNewest = true;
            if (count > 0)
                currentIndex = 0;
        }

        // The newest message at the bottom with the list's margin under it: the same
        // end the wheel and Page Down reach.
        function toNewestEdge() {
            positionViewAtBeginning();
            contentY = originY + contentHeight - height + bottomMargin;
        }

        // Rows near the bottom settle their height after they come (a wrapped line,
        // a divider): whoever was at the newest stays there.
        function keepNewest() {
            if (atNewest && !moving)
                toNewestEdge();
        }

        // The very top, once the items there are laid out with their real heights.
        function showTop() {
            contentY = originY - topMargin;
        }

        delegate: MessageBubble {
            width: ListView.view.width
            paneWidth: ListView.view.width
            showsSenders: !isOutgoing && senderName !== "" && senderName !== conversation.chatTitle
            isCurrent: ListView.isCurrentItem && transcript.activeFocus
            highlight: searchBar.highlight
            playback: audio
            onMenuRequested: (anchor, x, y) => menu.openFor(messageID, kind === MessageContent.Text && conversation.viewModel.canEdit(messageID),
                                                            bodyText, reactions, anchor, x, y)
            onMediaOpened: id => viewer.instance().show(conversation.messageList.media(), id)
            onReplyActivated: id => transcript.showMessage(id)
            onContactMessageRequested: userID => conversation.viewModel.openContact(userID)
            onMentionActivated: username => conversation.viewModel.openMention(username)
            onHashtagActivated: tag => searchBar.searchFor(tag)
            onReactionToggled: (emoji, id) => conversation.viewModel.toggleReactionOnMessage(emoji, id)
        }

        // At the visual top: the spinner while an older page is on its way, and
        // the start of the conversation once it is reached.
        footer: Item {
            width: ListView.view.width
            height: 40

            // The indicator's own role means nothing to screen readers: the item
            // around it speaks for it, as a busy progress bar.
            Item {
                anchors.centerIn: parent
                width: 24
                height: 24
                visible: conversation.viewModel.loadingOlderMessages
                Accessible.role: Accessible.ProgressBar
                Accessible.name: qsTr("Loading older messages")
                Accessible.ignored: !visible

                BusyIndicator {
                    anchors.fill: parent
                    running: parent.visible
                    Accessible.ignored: true
                }
            }

            Rectangle {
                anchors.centerIn: parent
                visible: conversation.viewModel.historyStartReached && transcript.count > 0
                width: startText.implicitWidth + 20
                height: 22
                radius: 11
                color: Appearance.neutralBubble

                ReadableText {
                    id: startText

                    anchors.centerIn: parent
                    text: qsTr("Start of the conversation")
                    font.pixelSize: 12
                }
            }
        }

        // Brings a loaded message into view, as the current one.
        function showMessage(messageID) {
            const row = conversation.messageList.rowOf(messageID);
            if (row < 0)
                return;
            positionViewAtIndex(row, ListView.Center);
            currentIndex = row;
            // The keyboard goes with the eye: the message is current for the keys
            // and for screen readers.
            forceActiveFocus();
        }

        // A search result, in the middle of the view, without taking the keyboard
        // from the search field; again once the items around it have their heights.
        function revealMessage(messageID) {
            const row = conversation.messageList.rowOf(messageID);
            if (row < 0)
                return;
            atNewest = false;
            positionViewAtIndex(row, ListView.Center);
            currentIndex = row;
            Qt.callLater(() => positionViewAtIndex(row, ListView.Center));
        }

        // Half a screen from the top, the page before the oldest message is asked
        // for; the view model asks once per oldest message and the session once at
        // a time.
        function loadOlderIfNearTop() {
            if (count > 0 && contentHeight > 0 && (contentY - originY) < height / 2)
                conversation.viewModel.loadOlderMessages();
        }

        onContentYChanged: {
            atNewest = contentY + height >= originY + contentHeight - 2;
            loadOlderIfNearTop();
            placement.noteSeen();
        }
        onCountChanged: Qt.callLater(loadOlderIfNearTop)
        onHeightChanged: if (atNewest) toNewestEdge()
        onContentHeightChanged: Qt.callLater(keepNewest)

        Connections {
            target: conversation.messageList

            function onModelReset() {
                transcript.currentIndex = -1;
                transcript.positionViewAtBeginning();
                transcript.atNewest = true;
                placement.chatChanged();
            }
            function onRowsInserted(parent, first, last) {
                // Row 0 is the newest: a message that arrives while the reader is
                // at the bottom comes into view.
                if (first === 0 && transcript.atNewest)
                    Qt.callLater(transcript.toNewestEdge);
                else if (first === 0)
                    placement.arrived(last - first + 1);
                Qt.callLater(placement.openAtDivider);
            }
        }

        Connections {
            target: conversation.viewModel

            function onHistoryStateChanged() {
                Qt.callLater(transcript.loadOlderIfNearTop);
                Qt.callLater(placement.openAtDivider);
            }
            function onSelectedChatIDChanged() {
                searchBar.close();
            }
        }

        TranscriptPlacement {
            id: placement

            view: transcript
            messages: conversation.messageList
            messagesArrived: conversation.viewModel.messagesArrived
        }

        Component.onCompleted: positionViewAtBeginning()
    }

    // The keyboard focus ring, outside the list so that it does not scroll.
    Rectangle {
        anchors.fill: transcript
        visible: transcript.activeFocus
        color: "transparent"
        border.width: 2
        border.color: Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.5)
    }

    TranscriptPlaceholder {
        anchors.centerIn: transcript
        visible: transcript.count === 0 && !!conversation.chat
        waiting: !conversation.viewModel.messagesArrived
    }

    NewestButton {
        id: toNewest

        anchors {
            right: transcript.right
            rightMargin: 16
            bottom: transcript.bottom
            bottomMargin: 12
        }
        visible: !transcript.atNewest && transcript.count > 0
        unseen: placement.unseen
        onClicked: {
            if (placement.unseen > 0)
                placement.showArrived();
            else
                transcript.showNewest();
        }
    }

    AudioPlayback {
        id: audio
    }

    StickyDay {
        anchors {
            left: transcript.left
            right: transcript.right
            top: transcript.top
        }
        view: transcript
    }

    OnDemand {
        id: viewer

        sourceComponent: PhotoViewer {
            parent: conversation.Window.contentItem
        }
    }

    OnDemand {
        id: menu

        function openFor(messageID, canEdit, text, reactions, anchor, x, y) {
            const actions = instance();
            actions.messageID = messageID;
            actions.canEdit = canEdit;
            actions.messageText = text;
            actions.reactions = reactions;
            actions.popup(anchor, x, y);
        }

        sourceComponent: MessageMenu {
            parent: conversation
            palette: conversation.viewModel.reactionPalette

            onReplyRequested: id => {
                conversation.viewModel.replyTo(id);
                composer.forceActiveFocus();
            }
            onEditRequested: id => {
                conversation.viewModel.edit(id);
                composer.forceActiveFocus();
            }
            onForwardRequested: id => {
                forwarding.instance().messageID = id;
                forwarding.open();
            }
            onReactionRequested: (emoji, id) => conversation.viewModel.toggleReactionOnMessage(emoji, id)
            onDeleteRequested: id => {
                deletion.instance().messageID = id;
                deletion.open();
            }
        }
    }

    OnDemand {
        id: forwarding

        sourceComponent: ForwardDialog {
            parent: conversation
            chats: conversation.host.allChats
            onChatChosen: chatID => {
                conversation.viewModel.forwardMessage(messageID, chatID);
                close();
                conversation.viewModel.selectChat(chatID);
            }
        }
    }

    // Files dropped on the conversation wait in the composer like attached ones.
    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: drop => {
            if (drop.hasUrls) {
                conversation.viewModel.queueFiles(drop.urls.map(url => url.toString()));
                drop.acceptProposedAction();
            }
        }
    }

    OnDemand {
        id: deletion

        sourceComponent: ConfirmDialog {
            property string messageID

            parent: conversation
            question: qsTr("Delete this message for everyone?")
            //: A verb: the button that confirms deleting the message.
            actionText: qsTr("Delete")
            onConfirmed: conversation.viewModel.deleteMessage(messageID)
        }
    }

    Composer {
        id: composer

        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
        }
        viewModel: conversation.viewModel
        host: conversation.host
        focus: true
        // A message sent here always comes into view.
        onSent: Qt.callLater(transcript.positionViewAtBeginning)
        onNewestRequested: transcript.showNewest()
    }
}
