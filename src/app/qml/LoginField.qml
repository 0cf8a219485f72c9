import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// A sign-in text field in Vost's colours; masked when secure.
TextField {
    id: field

    property bool secure: false

    implicitHeight: 34
    leftPadding: 12
    rightPadding: 12
    font.pixelSize: 14
    color: Appearance.text
    placeholderTextColor: Appearance.secondaryText
    selectionColor: Appearance.accent
    selectedTextColor: Appearance.accentText
    echoMode: secure ? TextInput.Password : TextInput.Normal
    passwordCharacter: "•"
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText
    Accessible.passwordEdit: secure
    // Qt 6.4 gives a masked field no name: the description still says what it is for.
    Accessible.description: placeholderText
    Accessible.ignored: !visible

    background: Rectangle {
        radius: 8
        color: Appearance.fieldBackground
        border.width: field.activeFocus ? 2 : 1
        border.color: field.activeFocus ? Appearance.accent : Appearance.separator
    }
}
