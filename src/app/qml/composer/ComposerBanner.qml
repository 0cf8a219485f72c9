import QtQuick
import Vost.App
import Vost.Model

// Above the composer while replying or editing: what the message answers or
// changes, and the button that cancels it.
Item {
    id: banner

    required property ChatViewModel viewModel

    readonly property var replyTo: viewModel.replyToMessage
    readonly property var editing: viewModel.editingMessage
    readonly property var quoted: editing !== null ? editing : replyTo

    height: 36
    visible: quoted !== null
    Accessible.role: Accessible.Grouping
    //: The banner above the composer read aloud: %1 its title, %2 the quoted message.
    Accessible.name: quote.text.length > 0 ? qsTr("%1: %2").arg(title.text).arg(quote.text) : title.text
    Accessible.ignored: !visible

    Rectangle {
        id: bar

        width: 3
        height: parent.height - 4
        anchors.verticalCenter: parent.verticalCenter
        radius: 1.5
        color: Appearance.accent
    }

    Column {
        anchors {
            left: bar.right
            leftMargin: 8
            right: cancel.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }

        Text {
            id: title

            width: parent.width
            text: banner.editing !== null ? qsTr("Edit message")
                                          : (banner.replyTo !== null ? qsTr("Reply to %1").arg(banner.replyTo.senderName) : "")
            elide: Text.ElideRight
            color: Appearance.accent
            font.pixelSize: 12
            font.weight: Font.DemiBold
        }
        Text {
            id: quote

            width: parent.width
            text: banner.quoted ? MessageText.displayText(banner.quoted.text !== "" ? banner.quoted.text
                                                                                    : banner.quoted.documentName) : ""
            textFormat: Text.PlainText
            maximumLineCount: 1
            elide: Text.ElideRight
            color: Appearance.secondaryText
            font.pixelSize: 12
        }
    }

    IconButton {
        id: cancel

        anchors {
            right: parent.right
            verticalCenter: parent.verticalCenter
        }
        symbol: "xmark"
        onClicked: banner.viewModel.cancelReplyAndEdit()
        Accessible.name: banner.editing !== null ? qsTr("Cancel editing") : qsTr("Cancel reply")
    }
}
