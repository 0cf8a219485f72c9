import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// A picker's panel above the composer (320 x 360): it stays while the user picks,
// and closes on Esc, on a click outside the composer or on its button again.
// It keeps its place and scroll position between openings.
Popup {
    id: panel

    // The name screen readers give the panel.
    property string name

    width: 320
    height: 360
    padding: 8
    modal: false
    focus: true
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutsideParent

    background: Rectangle {
        radius: 12
        color: Appearance.background
        border.width: 1
        border.color: Appearance.separator
    }

    // Qt 6.4 names a popup by nothing of its own: its popup item carries the name.
    Component.onCompleted: contentItem.parent.Accessible.name = Qt.binding(() => panel.name)
}
