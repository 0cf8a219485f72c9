import QtQuick
import Vost.App

// A thrown dice (or dart, ball, …): its emoji, large, and the value it came to.
Item {
    id: card

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details

    implicitWidth: row.implicitWidth
    implicitHeight: 56
    Accessible.role: Accessible.Grouping
    Accessible.ignored: !card.shown
    //: %1 is the die's emoji (a die, a dart, a ball), %2 the number it came up with.
    Accessible.name: qsTr("%1 rolled %2").arg(details.diceEmoji).arg(details.diceValue)

    Row {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        spacing: 10

        Text {
            text: card.details.diceEmoji
            font.pixelSize: 40
            font.family: Appearance.emojiFontFamily
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: card.details.diceValue
            // Dice sit outside a bubble, on the pane's own background.
            color: Appearance.text
            font.pixelSize: 22
            font.weight: Font.DemiBold
        }
    }
}
