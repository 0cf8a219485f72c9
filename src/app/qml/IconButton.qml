import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// A small round button showing a symbol (or a glyph), named for screen readers
// and reachable by keyboard; its accessible Press action clicks it, as a mouse
// click does.
AbstractButton {
    id: button

    // A symbol of SymbolIcon, or else a text glyph.
    property string symbol
    property string glyph
    property color tint: Appearance.secondaryText
    property bool highlighted: false
    property int side: 28
    // A symbol that points along the reading direction (send, back, previous):
    // it turns round when the layout is mirrored for a right-to-left language.
    property bool directional: false
    // The tool tip shown on hover; the accessible name by default.
    property string tip: Accessible.name

    implicitWidth: side
    implicitHeight: side
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.ignored: !visible
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    ToolTip.visible: hovered && tip !== ""
    ToolTip.delay: 700
    ToolTip.text: tip

    background: Rectangle {
        radius: width / 2
        color: button.highlighted ? Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.18)
                                  : (button.down ? Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.14)
                                                 : (button.hovered ? Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.07)
                                                                   : "transparent"))
        border.width: button.visualFocus ? 2 : 0
        border.color: Appearance.accent
    }

    contentItem: Item {
        SymbolIcon {
            id: icon

            anchors.centerIn: parent
            width: Math.round(button.side * 0.57)
            height: width
            visible: button.symbol !== ""
            name: button.symbol
            color: button.enabled ? button.tint : Appearance.separator
            transform: Scale {
                origin.x: icon.width / 2
                xScale: button.directional && button.LayoutMirroring.enabled ? -1 : 1
            }
        }
        Text {
            anchors.centerIn: parent
            visible: button.symbol === ""
            text: button.glyph
            color: button.enabled ? button.tint : Appearance.separator
            font.pixelSize: Math.round(button.side * 0.5)
            // Glyphs are emoji: in colour, not in the text font's black and white.
            font.family: Appearance.emojiFontFamily
        }
    }
}
