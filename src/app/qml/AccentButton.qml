import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// The screen's main action: white text on the accent colour (red when the action
// destroys something). Its accessible Press action clicks it, as a mouse click does.
Button {
    id: button

    property bool destructive: false

    implicitHeight: 34
    implicitWidth: Math.max(120, contentItem.implicitWidth + 32)
    font.pixelSize: 14
    font.weight: Font.DemiBold
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.ignored: !visible
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    contentItem: Text {
        text: button.text
        font: button.font
        color: Appearance.accentText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: 8
        color: button.destructive ? Appearance.badge : Appearance.accent
        opacity: button.enabled ? (button.down ? 0.8 : 1.0) : 0.4
        border.width: button.visualFocus ? 2 : 0
        border.color: Appearance.text
    }
}
