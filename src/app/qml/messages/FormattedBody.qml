import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// A message's text as its sender formatted it: paragraphs of rich text, quoted
// paragraphs (a bar at their side) and blocks of code. Spoilers stay under a
// veil, and out of what screen readers read, until a click (or the paragraph's
// Press action) reveals them.
Column {
    id: body

    property string text
    property var entities
    property bool outgoing: false
    property color foreground: Appearance.text
    // Off screen, nothing of it is exposed to assistive technology.
    property bool shown: true
    property real maximumWidth: 300
    property bool spoilersRevealed: false
    // Words a search found here, marked wherever they occur; "" for none.
    property string highlight

    //: Said by screen readers of a quoted paragraph in a message.
    readonly property string quotation: qsTr("Quotation")
    //: The addresses behind the links of a message's text, for screen readers.
    readonly property string linksTo: qsTr("Links to %1")

    signal mentionActivated(string username)
    signal userMentionActivated(string userID)
    signal hashtagActivated(string tag)

    readonly property var blocks: MessageText.blocks(text, entities, spoilersRevealed,
                                                     outgoing ? "#FFFFFF" : Appearance.accent.toString(),
                                                     outgoing ? "#C9D7F2" : Appearance.secondaryText.toString())

    function activate(link) {
        const kind = MessageText.linkKind(link);
        if (kind === MessageText.Spoiler)
            spoilersRevealed = true;
        else if (kind === MessageText.Mention)
            mentionActivated(MessageText.mentionedName(link));
        else if (kind === MessageText.UserMention)
            userMentionActivated(MessageText.mentionedUser(link));
        else if (kind === MessageText.Hashtag)
            hashtagActivated(MessageText.hashtag(link));
        else
            Qt.openUrlExternally(link);
    }

    spacing: 6

    Repeater {
        model: body.blocks

        delegate: Column {
            id: block

            required property var modelData

            Text {
                id: paragraph

                visible: !block.modelData.isCode
                width: Math.min(implicitWidth, body.maximumWidth)
                leftPadding: block.modelData.isQuote ? 10 : 0
                text: MessageText.highlighted(block.modelData.html, body.highlight)
                textFormat: Text.RichText
                wrapMode: Text.Wrap
                color: body.foreground
                font.pixelSize: 14
                onLinkActivated: link => body.activate(link)
                Accessible.role: Accessible.Paragraph
                Accessible.name: block.modelData.spokenText
                Accessible.description: [block.modelData.isQuote ? body.quotation : "",
                                         block.modelData.linkTargets.length > 0
                                         ? body.linksTo.arg(block.modelData.linkTargets.join(", ")) : ""]
                                        .filter(part => part !== "").join(", ")
                Accessible.ignored: !visible || !body.shown
                Accessible.onPressAction: body.spoilersRevealed = true

                // A quote's bar.
                Rectangle {
                    visible: block.modelData.isQuote
                    width: 3
                    height: parent.height
                    radius: 1.5
                    color: body.outgoing ? "#FFFFFF" : Appearance.accent
                }

                HoverHandler {
                    id: pointer

                    cursorShape: paragraph.hoveredLink !== "" ? Qt.PointingHandCursor : Qt.ArrowCursor
                }
                ToolTip.visible: pointer.hovered && paragraph.hoveredLink !== ""
                                 && MessageText.linkKind(paragraph.hoveredLink) === MessageText.Web
                ToolTip.text: paragraph.hoveredLink
                ToolTip.delay: 500
            }

            CodeBlock {
                visible: block.modelData.isCode
                code: block.modelData.code
                language: block.modelData.language
                outgoing: body.outgoing
                foreground: body.foreground
                shown: visible && body.shown
                maximumWidth: body.maximumWidth
            }
        }
    }
}
