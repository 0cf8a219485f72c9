import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// A secondary action beside an AccentButton: text on a quiet background. Its
// accessible Press action clicks it, as a mouse click does.
Button {
    id: button

    implicitHeight: 34
    implicitWidth: Math.max(96, contentItem.implicitWidth + 32)
    font.pixelSize: 14
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.ignored: !visible
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    contentItem: Text {
        text: button.text
        font: button.font
        color: Appearance.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: 8
        color: Appearance.fieldBackground
        opacity: button.enabled ? (button.down ? 0.7 : 1.0) : 0.4
        border.width: button.visualFocus ? 2 : 1
        border.color: button.visualFocus ? Appearance.accent : Appearance.separator
    }
}
