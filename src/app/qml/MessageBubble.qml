import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// One message of the transcript: the unread divider above it when the unread run
// starts here, then the bubble (incoming on the left in the neutral colour,
// outgoing on the right in the accent colour) with the sender's name and avatar
// on the first of a group in group chats, the text, media or a placeholder, and
// the time and ticks at the bottom right.
Item {
    id: message

    required property int index
    required property string messageID
    required property string senderName
    required property string senderInitials
    required property color senderColor
    required property string senderAvatarPath
    required property string text
    required property string timestamp
    required property bool isOutgoing
    required property string deliveryState
    required property string mediaPath
    required property string mediaKind
    required property string stickerEmoji
    required property string stickerFormat
    required property string documentName
    required property var reactions
    required property bool showsUnreadDivider
    required property bool isFirstOfGroup

    // Whether sender names and avatars are shown (group chats).
    property bool showsSenders: false
    property real paneWidth: width

    signal replyRequested(string messageID)
    signal editRequested(string messageID)
    signal deleteRequested(string messageID)
    signal reactionToggled(string emoji, string messageID)

    readonly property bool isSticker: mediaKind === "sticker"
    readonly property bool hasImage: mediaPath !== "" && (mediaKind === "photo" || (isSticker && stickerFormat === "webp"))
    readonly property bool withSender: showsSenders && !isOutgoing
    readonly property color foreground: isOutgoing && !isSticker ? Appearance.accentText : Appearance.text
    readonly property string placeholder: {
        switch (mediaKind) {
        case "photo": return "📷 Photo";
        case "video": return "🎬 Video";
        case "animation": return "🎞 GIF";
        case "voice": return "🎤 Voice message";
        case "audio": return "🎵 Audio";
        case "sticker": return stickerEmoji + " Sticker";
        default: return documentName !== "" ? "📄 " + documentName : "";
        }
    }
    readonly property string ticks: !isOutgoing ? "" : (deliveryState === "sending" ? "◷" : (deliveryState === "read" ? "✓✓" : (deliveryState === "sent" ? "✓" : "")))
    readonly property string deliveryName: deliveryState === "sending" ? ", sending" : (deliveryState === "read" ? ", read" : (deliveryState === "sent" ? ", sent" : ""))

    height: column.y + column.height
    Accessible.role: Accessible.ListItem
    Accessible.name: (isOutgoing ? "You" : senderName) + ": " + (text !== "" ? text : placeholder) + ", " + timestamp + deliveryName

    Item {
        id: divider

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            topMargin: 6
        }
        visible: message.showsUnreadDivider
        height: visible ? 20 : 0
        Accessible.role: Accessible.Separator
        Accessible.name: "Unread messages"

        Rectangle {
            anchors {
                left: parent.left
                right: parent.right
                verticalCenter: parent.verticalCenter
            }
            height: 1
            color: Appearance.separator
        }
        Rectangle {
            anchors.centerIn: parent
            width: dividerText.implicitWidth + 16
            height: parent.height
            radius: height / 2
            color: Appearance.background

            Text {
                id: dividerText

                anchors.centerIn: parent
                text: "Unread messages"
                color: Appearance.secondaryText
                font.pixelSize: 12
            }
        }
    }

    Avatar {
        anchors {
            left: parent.left
            leftMargin: 12
            top: column.top
        }
        visible: message.withSender && message.isFirstOfGroup
        size: 28
        initials: message.senderInitials
        path: message.senderAvatarPath
        tint: message.senderColor
    }

    Column {
        id: column

        y: divider.y + divider.height + (message.isFirstOfGroup ? 10 : 2)
        x: message.isOutgoing ? message.width - width - 12 : (message.withSender ? 48 : 12)
        width: Math.max(bubble.width, reactionRow.width)
        spacing: 2

        Rectangle {
            id: bubble

            readonly property real maxWidth: message.paneWidth * 0.7
            readonly property real contentWidth: Math.max(name.visible ? name.implicitWidth : 0,
                                                          media.visible ? media.width : 0,
                                                          body.visible ? Math.min(body.implicitWidth, maxWidth - 24) : 0,
                                                          placeholderText.visible ? placeholderText.implicitWidth : 0,
                                                          meta.implicitWidth)

            width: Math.min(maxWidth, contentWidth + 24)
            height: content.height + 16
            radius: 14
            color: message.isSticker ? "transparent" : (message.isOutgoing ? Appearance.accent : Appearance.neutralBubble)

            HoverHandler {
                id: hover
            }

            TapHandler {
                acceptedButtons: Qt.RightButton
                onTapped: menu.popup()
            }

            Rectangle {
                anchors.fill: parent
                radius: parent.radius
                visible: hover.hovered
                color: Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.04)
            }

            Column {
                id: content

                x: 12
                y: 8
                width: bubble.width - 24
                spacing: 4

                Text {
                    id: name

                    visible: message.withSender && message.isFirstOfGroup
                    text: message.senderName
                    color: message.senderColor
                    font.pixelSize: 13
                    font.weight: Font.DemiBold
                }

                Image {
                    id: media

                    visible: message.hasImage && status === Image.Ready
                    source: message.hasImage ? "file://" + message.mediaPath : ""
                    asynchronous: true
                    fillMode: Image.PreserveAspectFit
                    readonly property real maxSide: message.isSticker ? 160 : Math.min(320, bubble.maxWidth - 24)
                    readonly property real scale_: implicitWidth > 0 ? Math.min(1, maxSide / Math.max(implicitWidth, message.isSticker ? implicitHeight : 0)) : 1
                    width: implicitWidth * scale_
                    height: implicitHeight * scale_
                    Accessible.role: Accessible.Graphic
                    Accessible.name: message.isSticker ? "Sticker " + message.stickerEmoji : "Photo"
                }

                Text {
                    id: placeholderText

                    visible: message.placeholder !== "" && !media.visible
                    text: message.placeholder
                    color: message.foreground
                    font.pixelSize: 14
                }

                Text {
                    id: body

                    visible: message.text !== ""
                    width: Math.min(implicitWidth, bubble.maxWidth - 24)
                    text: MessageText.richText(message.text, message.isOutgoing ? "#FFFFFF" : Appearance.accent.toString())
                    textFormat: Text.RichText
                    wrapMode: Text.Wrap
                    color: message.foreground
                    font.pixelSize: 14
                    onLinkActivated: link => Qt.openUrlExternally(link)
                    Accessible.role: Accessible.StaticText
                    Accessible.name: message.text

                    HoverHandler {
                        cursorShape: body.hoveredLink !== "" ? Qt.PointingHandCursor : Qt.ArrowCursor
                    }
                }

                Text {
                    id: meta

                    anchors.right: parent.right
                    text: message.timestamp + (message.ticks !== "" ? "  " + message.ticks : "")
                    color: message.isOutgoing && !message.isSticker ? Qt.rgba(1, 1, 1, 0.75) : Appearance.secondaryText
                    font.pixelSize: 12
                }
            }
        }

        Row {
            id: reactionRow

            anchors.right: message.isOutgoing ? parent.right : undefined
            spacing: 4
            visible: message.reactions.length > 0

            Repeater {
                model: message.reactions

                delegate: Rectangle {
                    required property var modelData

                    width: Math.max(28, chip.implicitWidth + 14)
                    height: 28
                    radius: 14
                    color: modelData.isChosen ? Appearance.accent : Appearance.neutralBubble
                    border.width: 1
                    border.color: Appearance.separator
                    Accessible.role: Accessible.Button
                    Accessible.name: modelData.emoji + " " + modelData.count
                    Accessible.checked: modelData.isChosen

                    Text {
                        id: chip

                        anchors.centerIn: parent
                        text: parent.modelData.emoji + " " + parent.modelData.count
                        color: parent.modelData.isChosen ? Appearance.accentText : Appearance.text
                        font.pixelSize: 12
                    }

                    TapHandler {
                        onTapped: message.reactionToggled(parent.modelData.emoji, message.messageID)
                    }
                }
            }
        }
    }

    Menu {
        id: menu

        MenuItem {
            text: "Reply"
            onTriggered: message.replyRequested(message.messageID)
        }
        MenuItem {
            text: "Edit"
            enabled: message.isOutgoing && message.text !== ""
            onTriggered: message.editRequested(message.messageID)
        }
        MenuItem {
            text: "React 👍"
            onTriggered: message.reactionToggled("👍", message.messageID)
        }
        MenuItem {
            text: "Delete"
            onTriggered: message.deleteRequested(message.messageID)
        }
    }
}
