import QtQuick
import Vost.App

// The message a reply answers: a bar, its sender and a line of it. A click goes
// to it when it is loaded.
Item {
    id: quote

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details
    property bool outgoing: false

    signal activated(string messageID)

    // A delegate between two messages may hold no details for a moment.
    readonly property var info: details ?? ({})
    readonly property bool missing: info.replyToMissing === true
    readonly property string sender: missing ? "" : (info.replyToIsOutgoing ? qsTr("You") : (info.replyToSender ?? ""))
    readonly property string line: missing ? qsTr("Message not found") : MessageText.displayText(info.replyToText ?? "")
    readonly property color tint: outgoing ? Appearance.accentText : Appearance.accent

    implicitWidth: Math.min(280, Math.max(senderText.implicitWidth, lineText.implicitWidth) + 14)
    implicitHeight: 38
    Accessible.role: Accessible.Link
    Accessible.ignored: !quote.shown
    //: A quoted message read aloud: %1 is its sender, %2 what it says.
    Accessible.name: qsTr("Reply to %1: %2").arg(sender !== "" ? sender : qsTr("a message")).arg(line)
    Accessible.onPressAction: quote.activated(info.replyToMessageID ?? "")

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: Qt.rgba(quote.tint.r, quote.tint.g, quote.tint.b, 0.12)
    }
    Rectangle {
        width: 3
        height: parent.height
        radius: 1.5
        color: quote.tint
    }

    Column {
        anchors {
            left: parent.left
            leftMargin: 10
            right: parent.right
            rightMargin: 4
            verticalCenter: parent.verticalCenter
        }

        Text {
            id: senderText

            width: parent.width
            visible: text !== ""
            text: quote.sender
            elide: Text.ElideRight
            color: quote.tint
            font.pixelSize: 12
            font.weight: Font.DemiBold
        }
        Text {
            id: lineText

            width: parent.width
            text: quote.line
            textFormat: Text.PlainText
            maximumLineCount: 1
            elide: Text.ElideRight
            color: quote.outgoing ? Qt.rgba(1, 1, 1, 0.85) : Appearance.secondaryText
            font.pixelSize: 12
        }
    }

    TapHandler {
        onTapped: quote.activated(quote.info.replyToMessageID ?? "")
    }
}
