import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model
import Vost.Render

// One message of the transcript: the day's separator above the first message of a
// day, the unread divider where the unread run starts, then the bubble (incoming
// on the left in the neutral colour, outgoing on the right in the accent colour)
// with the sender's name and avatar on the first of a group in group chats, where
// it was forwarded from, the message it answers, what it holds, its text with the
// preview of its first link, and the time ("edited" beside it) and ticks at the
// bottom right. Stickers, dice and albums need no bubble round them. A right
// click anywhere on the row, the "More" button that hovering shows, or the item's
// accessible Press action opens the message's menu.
Item {
    id: message

    required property int index
    required property string messageID
    required property string senderName
    required property string senderInitials
    required property color senderColor
    required property string senderAvatarPath
    required property string text
    required property string bodyText
    required property string timestamp
    required property bool isOutgoing
    required property int deliveryState
    required property string mediaPath
    required property string documentPath
    required property string stickerEmoji
    required property int stickerFormat
    required property var reactions
    required property bool showsUnreadDivider
    required property bool isFirstOfGroup
    required property bool startsDay
    required property var date
    required property int kind
    required property var details
    required property real downloadProgress
    required property var albumItems

    // A row the view is between two messages may hold no details for a moment.
    readonly property var info: details ?? ({})

    // Whether sender names and avatars are shown (group chats).
    property bool showsSenders: false
    property real paneWidth: width
    property bool isCurrent: false
    // Words a search found in this message, marked in its text.
    property string highlight
    required property AudioPlayback playback

    signal menuRequested(Item anchor, real x, real y)
    signal reactionToggled(string emoji, string messageID)
    signal mediaOpened(string messageID)
    signal replyActivated(string messageID)
    signal contactMessageRequested(string userID)
    signal mentionActivated(string username)
    signal hashtagActivated(string tag)

    // One to three emoji alone are shown large, without a bubble, as stickers are.
    readonly property bool largeEmoji: kind === MessageContent.Text && MessageText.isLargeEmoji(bodyText)
    readonly property bool bare: kind === MessageContent.Sticker || kind === MessageContent.Dice || largeEmoji
    readonly property bool withSender: showsSenders && !isOutgoing
    // Outgoing messages keep to the trailing side: the right, the left when the
    // popover is mirrored for a right-to-left language (the avatar's anchor flips
    // by itself; the places set by x follow this).
    readonly property bool atRight: isOutgoing !== LayoutMirroring.enabled
    readonly property color foreground: isOutgoing && !bare ? Appearance.accentText : Appearance.text
    readonly property string link: kind === MessageContent.Text ? MessageText.firstLink(bodyText) : ""
    readonly property string ticks: !isOutgoing ? "" : (deliveryState === Model.MessageDeliveryState.Sending ? "◷" : (deliveryState === Model.MessageDeliveryState.Read ? "✓✓" : (deliveryState === Model.MessageDeliveryState.Sent ? "✓" : "")))
    //: A message's delivery state, read aloud after its time; the next two as well.
    readonly property string deliveryName: deliveryState === Model.MessageDeliveryState.Sending ? qsTr("sending") : (deliveryState === Model.MessageDeliveryState.Read ? qsTr("read") : (deliveryState === Model.MessageDeliveryState.Sent ? qsTr("sent") : ""))
    // Set while the view keeps this delegate for reuse: it stays visible there.
    property bool pooled: false
    // Only messages inside the transcript's viewport of a shown popover are exposed
    // to assistive technology, and only they play animations.
    readonly property bool onScreen: !pooled && ListView.view !== null && y + height > ListView.view.contentY
                                     && y < ListView.view.contentY + ListView.view.height
                                     && Window.visibility !== Window.Hidden

    ListView.onPooled: pooled = true
    // A reused row shows another message: its spoilers start hidden.
    onMessageIDChanged: formatted.spoilersRevealed = false
    ListView.onReused: pooled = false

    function openMenu(x, y) {
        menuRequested(bubble, x === undefined ? bubble.width / 2 : x, y === undefined ? bubble.height / 2 : y);
    }

    height: column.y + column.height
    Accessible.role: Accessible.ListItem
    Accessible.name: {
        // What it holds as its widget says it, then its text.
        const held = content.item ? content.item.Accessible.name : null;
        const said = [held, MessageText.spokenText(bodyText, info.entities, formatted.spoilersRevealed)].filter(part => part).join(", ");
        //: A message read aloud: %1 is its sender, %2 what it says.
        const parts = [qsTr("%1: %2").arg(isOutgoing ? qsTr("You") : senderName).arg(said !== "" ? said : text), timestamp];
        if (info.isEdited)
            //: Said of a message that was changed after it was sent.
            parts.push(qsTr("edited"));
        if (deliveryName !== "")
            parts.push(deliveryName);
        for (const reaction of (reactions ? reactions : []))
            //: A reaction read aloud: %1 is its emoji, %2 how many reacted with it; you did too.
            parts.push(reaction.isChosen ? qsTr("%1 %2, yours").arg(reaction.emoji).arg(reaction.count)
                                         : reaction.emoji + " " + reaction.count);
        return parts.join(", ");
    }
    Accessible.selected: isCurrent
    Accessible.ignored: !visible || !onScreen
    Accessible.onPressAction: openMenu()

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => {
            const point = message.mapToItem(bubble, eventPoint.position.x, eventPoint.position.y);
            message.openMenu(point.x, point.y);
        }
    }

    HoverHandler {
        id: hover
    }

    DateSeparator {
        id: day

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            topMargin: 4
        }
        date: message.date
        visible: message.startsDay && label !== ""
        height: visible ? implicitHeight : 0
        shown: message.onScreen
    }

    Item {
        id: divider

        anchors {
            left: parent.left
            right: parent.right
            top: day.bottom
            topMargin: 6
        }
        visible: message.showsUnreadDivider
        height: visible ? 20 : 0

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

            ReadableText {
                id: dividerText

                anchors.centerIn: parent
                text: qsTr("Unread messages")
                font.pixelSize: 12
                Accessible.ignored: !visible || !message.onScreen
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

    // Beside the bubble, inside the row on either side: never cut at the edge.
    IconButton {
        id: more

        x: message.atRight ? Math.max(0, column.x - width - 4)
                              : Math.min(message.width - width, column.x + column.width + 4)
        y: column.y + (column.height - height) / 2
        visible: (hover.hovered && !message.pooled) || message.isCurrent || activeFocus
        symbol: "ellipsis"
        tint: Appearance.text
        //: The button that opens a message's actions.
        Accessible.name: qsTr("More")
        Accessible.ignored: !visible || !message.onScreen
        onClicked: message.openMenu()

        background: Rectangle {
            radius: width / 2
            color: more.down ? Appearance.separator : Appearance.neutralBubble
            border.width: more.visualFocus ? 2 : 1
            border.color: more.visualFocus ? Appearance.accent : Appearance.separator
        }
    }

    Column {
        id: column

        y: divider.y + divider.height + (message.isFirstOfGroup ? 10 : 2)
        x: message.atRight ? (message.width - width - (message.withSender ? 48 : 12)) : (message.withSender ? 48 : 12)
        width: Math.max(bubble.width, reactionRow.width)
        spacing: 2

        Rectangle {
            id: bubble

            readonly property real maxWidth: message.paneWidth * 0.7
            readonly property real innerWidth: maxWidth - 24
            readonly property real contentWidth: Math.max(name.visible ? name.implicitWidth : 0,
                                                          forwarded.visible ? forwarded.implicitWidth : 0,
                                                          reply.visible ? reply.implicitWidth : 0,
                                                          content.item ? content.item.width : 0,
                                                          body.visible ? Math.min(body.implicitWidth, innerWidth) : 0,
                                                          formatted.visible ? Math.min(formatted.implicitWidth, innerWidth) : 0,
                                                          preview.visible ? 280 : 0,
                                                          meta.implicitWidth)

            width: Math.min(maxWidth, contentWidth + 24)
            height: inner.height + 16
            radius: 14
            color: message.bare ? "transparent" : (message.isOutgoing ? Appearance.accent : Appearance.neutralBubble)
            border.width: message.isCurrent ? 2 : 0
            border.color: Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.6)

            Rectangle {
                anchors.fill: parent
                radius: parent.radius
                visible: hover.hovered && !message.bare
                color: Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.04)
            }

            Column {
                id: inner

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

                Text {
                    id: forwarded

                    visible: (message.info.forwardedFrom ?? "") !== ""
                    width: Math.min(implicitWidth, bubble.innerWidth)
                    text: qsTr("Forwarded from %1").arg(message.info.forwardedFrom ?? "")
                    elide: Text.ElideRight
                    color: message.isOutgoing && !message.bare ? Qt.rgba(1, 1, 1, 0.85) : Appearance.accent
                    font.pixelSize: 12
                    font.italic: true
                }

                ReplyQuote {
                    id: reply

                    visible: (message.info.replyToMessageID ?? "") !== ""
                    width: Math.min(implicitWidth, bubble.innerWidth)
                    details: message.info
                    outgoing: message.isOutgoing && !message.bare
                    shown: visible && message.onScreen
                    onActivated: id => message.replyActivated(id)
                }

                MessageContentView {
                    id: content

                    kind: message.kind
                    details: message.info
                    messageID: message.messageID
                    // A document's file, or a picture's sent as a file, is its document.
                    mediaPath: message.mediaPath !== "" ? message.mediaPath : message.documentPath
                    albumItems: message.albumItems
                    downloadProgress: message.downloadProgress
                    outgoing: message.isOutgoing
                    stickerEmoji: message.stickerEmoji
                    stickerFormat: message.stickerFormat
                    onScreen: message.onScreen
                    playback: message.playback
                    maximumWidth: Math.min(320, bubble.innerWidth)
                    onOpened: id => message.mediaOpened(id)
                    onContactMessageRequested: id => message.contactMessageRequested(id)
                }

                Text {
                    id: body

                    visible: message.bodyText !== "" && message.largeEmoji
                    text: visible ? MessageText.emojiGlyphs(message.bodyText) : ""
                    color: message.foreground
                    font.pixelSize: 40
                    font.family: Appearance.emojiFontFamily
                    Accessible.role: Accessible.Paragraph
                    Accessible.name: MessageText.displayText(message.bodyText)
                    Accessible.ignored: !visible || !message.onScreen
                }

                FormattedBody {
                    id: formatted

                    visible: message.bodyText !== "" && !message.largeEmoji
                    text: message.bodyText
                    entities: message.info.entities
                    outgoing: message.isOutgoing
                    foreground: message.foreground
                    shown: visible && message.onScreen
                    maximumWidth: bubble.innerWidth
                    highlight: message.highlight
                    onMentionActivated: username => message.mentionActivated(username)
                    // A name that stands for a user opens their chat, as a contact card does.
                    onUserMentionActivated: userID => message.contactMessageRequested(userID)
                    onHashtagActivated: tag => message.hashtagActivated(tag)
                }

                Loader {
                    id: preview

                    // The card loads its page the first time the message is shown.
                    active: message.link !== "" && message.onScreen || item !== null
                    visible: message.link !== ""
                    width: Math.min(280, bubble.innerWidth)
                    sourceComponent: MessageLinkPreview {
                        url: message.link
                        outgoing: message.isOutgoing
                        onActivated: url => Qt.openUrlExternally(url)
                        Accessible.role: Accessible.Link
                        Accessible.name: qsTr("Link preview: %1").arg(title)
                        Accessible.ignored: !message.onScreen
                        Accessible.onPressAction: Qt.openUrlExternally(url)
                    }
                }

                Text {
                    id: meta

                    // A sticker's or a die's time sits at its bottom right, on a pill of
                    // its own; in a bubble, at the bubble's right.
                    x: message.bare && content.item ? Math.max(0, content.item.width - width - 4) : inner.width - width - (message.bare ? 4 : 0)
                    //: An edited message's time; %1 is the time, such as 14:05.
                    text: (message.info.isEdited ? qsTr("edited  %1").arg(message.timestamp) : message.timestamp)
                          + (message.ticks !== "" ? "  " + message.ticks : "")
                    color: message.isOutgoing && !message.bare ? Qt.rgba(1, 1, 1, 0.75) : Appearance.secondaryText
                    font.pixelSize: 12

                    Rectangle {
                        anchors {
                            fill: parent
                            leftMargin: -6
                            rightMargin: -6
                            topMargin: -1
                            bottomMargin: -1
                        }
                        z: -1
                        visible: message.bare
                        radius: height / 2
                        color: Appearance.neutralBubble
                    }
                }
            }
        }

        ReactionRow {
            id: reactionRow

            // Placed by x, not by an anchor: a reused row that was outgoing must not
            // keep the old place.
            x: message.atRight ? parent.width - width : 0
            reactions: message.reactions
            shown: message.onScreen
            onToggled: emoji => message.reactionToggled(emoji, message.messageID)
        }
    }
}
