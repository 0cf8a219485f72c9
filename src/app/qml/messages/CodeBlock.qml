import QtQuick
import Vost.App

// A block of code in a message: monospace, on a tinted ground, with the language
// its sender named and a button that copies it.
Rectangle {
    id: block

    property string code
    property string language
    property bool outgoing: false
    property color foreground: Appearance.text
    property bool shown: true
    property real maximumWidth: 300

    width: Math.min(maximumWidth, Math.max(codeText.implicitWidth, header.implicitWidth) + 16)
    height: header.height + codeText.height + 14
    radius: 6
    color: outgoing ? Qt.rgba(1, 1, 1, 0.16) : Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.06)
    border.width: 1
    border.color: outgoing ? Qt.rgba(1, 1, 1, 0.3) : Appearance.separator

    Item {
        id: header

        x: 8
        y: 4
        width: block.width - 16
        implicitWidth: languageText.implicitWidth + copy.implicitWidth + 16
        height: copy.implicitHeight

        Text {
            id: languageText

            anchors.verticalCenter: parent.verticalCenter
            text: block.language
            color: block.outgoing ? Qt.rgba(1, 1, 1, 0.8) : Appearance.secondaryText
            font.pixelSize: 11
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        Text {
            id: copy

            anchors {
                right: parent.right
                verticalCenter: parent.verticalCenter
            }
            //: A button on a block of code in a message: copies the code.
            text: qsTr("Copy")
            color: block.outgoing ? Appearance.accentText : Appearance.accent
            font.pixelSize: 11
            font.underline: copyArea.containsMouse
            Accessible.role: Accessible.Button
            Accessible.name: text
            Accessible.description: block.language !== "" ? qsTr("Copies the %1 code").arg(block.language)
                                                          : qsTr("Copies the code")
            Accessible.ignored: !block.shown
            Accessible.onPressAction: Clipboard.copyText(block.code)

            MouseArea {
                id: copyArea

                anchors {
                    fill: parent
                    margins: -4
                }
                hoverEnabled: true
                cursorShape: Qt.PointingHandCursor
                onClicked: Clipboard.copyText(block.code)
            }
        }
    }

    Text {
        id: codeText

        x: 8
        y: header.y + header.height + 4
        width: Math.min(implicitWidth, block.maximumWidth - 16)
        text: block.code
        textFormat: Text.PlainText
        wrapMode: Text.WrapAnywhere
        color: block.foreground
        font.family: "monospace"
        font.pixelSize: 13
        Accessible.role: Accessible.Paragraph
        //: How screen readers name a block of code in a message; %1 is the code.
        Accessible.name: block.language !== "" ? qsTr("%1 code: %2").arg(block.language).arg(block.code)
                                               : qsTr("Code: %1").arg(block.code)
        Accessible.ignored: !block.shown
    }
}
