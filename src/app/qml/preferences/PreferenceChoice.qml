import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// One of several exclusive choices; `chosen` tells whether it is the stored one.
// A click, Space or the accessible Press action emits `picked`.
RadioButton {
    id: choice

    property bool chosen

    checked: chosen
    autoExclusive: false
    font.pixelSize: 13
    palette.windowText: Appearance.text
    palette.base: Appearance.fieldBackground
    palette.text: Appearance.accent
    palette.mid: Appearance.secondaryText
    palette.highlight: Appearance.accent
    Accessible.name: text
    Accessible.ignored: !visible
    Accessible.onPressAction: pick()
    Accessible.onToggleAction: pick()
    onToggled: pick()

    signal picked

    function pick() {
        choice.picked();
        checked = Qt.binding(() => choice.chosen);
    }
}
