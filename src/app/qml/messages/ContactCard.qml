import QtQuick
import Vost.App

// A shared contact: initials, name and phone number, and "Message" when the
// number belongs to a Telegram account.
Item {
    id: card

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details
    property bool outgoing: false

    signal messageRequested(string userID)

    readonly property color foreground: outgoing ? Appearance.accentText : Appearance.text

    implicitWidth: 240
    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.ignored: !card.shown
    Accessible.name: qsTr("Contact %1, %2").arg(details.contactName).arg(details.contactPhone)

    Column {
        id: column

        width: parent.width
        spacing: 8

        Row {
            spacing: 10

            Avatar {
                size: 40
                initials: card.details.contactInitials
                tint: card.outgoing ? Qt.rgba(1, 1, 1, 0.25) : Appearance.accent
            }

            Column {
                anchors.verticalCenter: parent.verticalCenter

                Text {
                    text: card.details.contactName
                    color: card.foreground
                    font.pixelSize: 14
                    font.weight: Font.DemiBold
                }
                Text {
                    text: card.details.contactPhone.startsWith("+") ? card.details.contactPhone : "+" + card.details.contactPhone
                    color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.75)
                    font.pixelSize: 12
                }
            }
        }

        PlainButton {
            visible: card.details.contactUserID !== ""
            //: A verb: write to the person on the card.
            text: qsTr("Message")
            Accessible.ignored: !visible || !card.shown
            implicitHeight: 28
            font.pixelSize: 13
            onClicked: card.messageRequested(card.details.contactUserID)
        }
    }
}
