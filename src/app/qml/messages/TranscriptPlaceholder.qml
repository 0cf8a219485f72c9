import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// What an empty transcript shows: a spinner while the chat's first page is on its
// way, then that there is nothing.
Item {
    id: placeholder

    property bool waiting: false

    implicitWidth: waiting ? 32 : empty.implicitWidth
    implicitHeight: waiting ? 32 : empty.implicitHeight

    ReadableText {
        id: empty

        anchors.centerIn: parent
        visible: !placeholder.waiting
        text: qsTr("No messages here yet.")
    }

    // The indicator's own role means nothing to screen readers: the item around
    // it speaks for it, as a busy progress bar.
    Item {
        anchors.fill: parent
        visible: placeholder.waiting
        Accessible.role: Accessible.ProgressBar
        Accessible.name: qsTr("Loading messages")
        Accessible.ignored: !placeholder.visible || !visible

        BusyIndicator {
            anchors.fill: parent
            running: parent.visible && placeholder.visible
            Accessible.ignored: true
        }
    }
}
