import QtQuick
import Vost.App

// A small banner with an error of the session that no screen answers otherwise,
// and a button that dismisses it.
Rectangle {
    id: banner

    property alias text: message.text

    signal dismissed

    implicitHeight: Math.max(36, message.implicitHeight + 16)
    radius: 8
    color: Qt.rgba(Appearance.badge.r, Appearance.badge.g, Appearance.badge.b, Appearance.isDark ? 0.28 : 0.12)
    border.width: 1
    border.color: Qt.rgba(Appearance.badge.r, Appearance.badge.g, Appearance.badge.b, 0.45)

    ReadableText {
        id: message

        anchors {
            left: parent.left
            leftMargin: 12
            right: dismiss.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        color: Appearance.text
        Accessible.role: Accessible.AlertMessage
    }

    IconButton {
        id: dismiss

        anchors {
            right: parent.right
            rightMargin: 4
            verticalCenter: parent.verticalCenter
        }
        glyph: "✕"
        //: A verb: close the error message.
        Accessible.name: qsTr("Dismiss")
        onClicked: banner.dismissed()
    }
}
