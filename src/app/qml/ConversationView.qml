import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model

// The open chat: the header (avatar, title, subtitle), the transcript with the
// newest message at the bottom, and the composer.
FocusScope {
    id: conversation

    required property ChatViewModel viewModel
    required property MessageListModel messageList

    readonly property var chat: viewModel.selectedChat
    readonly property string chatTitle: chat ? chat.title : ""

    Accessible.role: Accessible.Pane
    Accessible.name: "Conversation with " + chatTitle

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
                right: parent.right
                rightMargin: 14
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

    ListView {
        id: transcript

        // Set once the newest message is in view, so that the start position does
        // not count as scrolling to the top.
        property bool settled: false

        objectName: "transcript"
        anchors {
            left: parent.left
            right: parent.right
            top: header.bottom
            bottom: composer.top
        }
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        // Short transcripts sit at the bottom, next to the composer.
        topMargin: Math.max(8, height - contentHeight - 8)
        bottomMargin: 8
        model: conversation.messageList
        keyNavigationEnabled: false
        reuseItems: true
        Accessible.role: Accessible.List
        Accessible.name: "Messages"
        ScrollBar.vertical: ScrollBar {}

        Keys.onUpPressed: flick(0, 800)
        Keys.onDownPressed: flick(0, -800)
        Keys.onPressed: event => {
            if (event.key === Qt.Key_PageUp) {
                contentY = Math.max(originY - topMargin, contentY - height * 0.9);
                event.accepted = true;
            } else if (event.key === Qt.Key_PageDown) {
                contentY = Math.min(originY + contentHeight - height + bottomMargin, contentY + height * 0.9);
                event.accepted = true;
            }
        }

        onAtYBeginningChanged: if (atYBeginning && settled && count > 0) conversation.viewModel.loadOlderMessages()
        onCountChanged: if (settled && atYEnd) Qt.callLater(positionViewAtEnd)

        delegate: MessageBubble {
            width: ListView.view.width
            paneWidth: ListView.view.width
            showsSenders: !isOutgoing && senderName !== "" && senderName !== conversation.chatTitle
            onReplyRequested: id => conversation.viewModel.replyTo(id)
            onEditRequested: id => conversation.viewModel.edit(id)
            onDeleteRequested: id => conversation.viewModel.deleteMessage(id)
            onReactionToggled: (emoji, id) => conversation.viewModel.toggleReactionOnMessage(emoji, id)
        }

        function showNewest() {
            settled = false;
            positionViewAtEnd();
            Qt.callLater(() => { transcript.positionViewAtEnd(); transcript.settled = true; });
        }

        Component.onCompleted: showNewest()

        Connections {
            target: conversation.messageList

            function onModelReset() {
                transcript.showNewest();
            }
        }
    }

    // The keyboard focus ring, outside the list so that it does not scroll.
    Rectangle {
        anchors.fill: transcript
        visible: transcript.activeFocus
        color: "transparent"
        border.width: 2
        border.color: Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.5)
    }

    Text {
        anchors.centerIn: transcript
        visible: transcript.count === 0
        text: "No messages here yet."
        color: Appearance.secondaryText
        font.pixelSize: 13
    }

    Composer {
        id: composer

        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
        }
        viewModel: conversation.viewModel
        focus: true
        // A message sent here always comes into view.
        onSent: Qt.callLater(transcript.positionViewAtEnd)
    }
}
