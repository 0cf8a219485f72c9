import QtQuick
import Vost.App

// The reactions under a bubble: a chip per reaction with its count, the user's own
// in the accent colour; a click or the chip's Press action toggles it.
Row {
    id: row

    property var reactions: []
    // Whether the message is on screen: off screen, nothing is exposed.
    property bool shown: true

    signal toggled(string emoji)

    spacing: 4
    visible: reactions ? reactions.length > 0 : false

    Repeater {
        model: row.reactions

        delegate: Rectangle {
            id: chip

            required property var modelData

            width: Math.max(28, chipText.implicitWidth + 14)
            height: 28
            radius: 14
            color: modelData.isChosen ? Appearance.accent : Appearance.neutralBubble
            border.width: 1
            border.color: Appearance.separator
            Accessible.role: Accessible.Button
            Accessible.name: modelData.emoji + " " + modelData.count
            Accessible.checkable: true
            Accessible.checked: modelData.isChosen
            Accessible.ignored: !row.shown
            Accessible.onPressAction: row.toggled(modelData.emoji)

            Row {
                id: chipText

                anchors.centerIn: parent
                spacing: 4

                Text {
                    text: MessageText.emojiGlyphs(chip.modelData.emoji)
                    font.pixelSize: 13
                    font.family: Appearance.emojiFontFamily
                }
                Text {
                    text: chip.modelData.count
                    color: chip.modelData.isChosen ? Appearance.accentText : Appearance.text
                    font.pixelSize: 12
                }
            }

            TapHandler {
                onTapped: row.toggled(chip.modelData.emoji)
            }
        }
    }
}
