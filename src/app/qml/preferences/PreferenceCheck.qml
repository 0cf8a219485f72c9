import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// A preference that is on or off. `value` is what is stored; a click, Space or the
// accessible Toggle and Press actions ask for the other value through `toggled`,
// and the box follows what is stored afterwards.
CheckBox {
    id: check

    property bool value

    checked: value
    font.pixelSize: 13
    palette.windowText: Appearance.text
    palette.base: Appearance.fieldBackground
    palette.text: Appearance.accent
    palette.mid: Appearance.secondaryText
    palette.highlight: Appearance.accent
    Accessible.name: text
    Accessible.ignored: !visible
    Accessible.onToggleAction: flip()
    Accessible.onPressAction: flip()
    onToggled: flip()

    signal flipped(bool on)

    function flip() {
        check.flipped(!check.value);
        checked = Qt.binding(() => check.value);
    }
}
