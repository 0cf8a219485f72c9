import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// The actions on one message: the seven reactions in a row on top (the user's own
// highlighted; a click adds or takes it back), then Reply, Edit (the user's own
// text), Forward, Copy and, apart, Delete.
Menu {
    id: menu

    property string messageID
    property string messageText
    property bool canEdit: false
    // The message's reactions: emoji, count, isChosen.
    property var reactions: []
    property var palette: []

    signal replyRequested(string messageID)
    signal editRequested(string messageID)
    signal forwardRequested(string messageID)
    signal reactionRequested(string emoji, string messageID)
    signal deleteRequested(string messageID)

    function isChosen(emoji) {
        return reactions.some(reaction => reaction.emoji === emoji && reaction.isChosen);
    }

    title: qsTr("Message actions")
    // Qt 6.4 names a menu by nothing of its own: its popup item carries the name.
    Component.onCompleted: contentItem.parent.Accessible.name = title

    background: Rectangle {
        implicitWidth: 236
        radius: 10
        color: Appearance.background
        border.width: 1
        border.color: Appearance.separator
    }

    Item {
        width: parent ? parent.width : 236
        height: 40
        Accessible.role: Accessible.Grouping
        Accessible.name: qsTr("Reactions")

        Row {
            anchors.centerIn: parent
            spacing: 4

            Repeater {
                model: menu.palette

                delegate: IconButton {
                    required property string modelData

                    glyph: modelData
                    tint: Appearance.text
                    highlighted: menu.isChosen(modelData)
                    Accessible.name: modelData
                    Accessible.checkable: true
                    Accessible.checked: highlighted
                    onClicked: {
                        menu.reactionRequested(modelData, menu.messageID);
                        menu.close();
                    }
                }
            }
        }
    }

    MenuSeparator {}

    MessageMenuItem {
        //: Verbs: the actions of the message menu, down to Delete.
        text: qsTr("Reply")
        onTriggered: menu.replyRequested(menu.messageID)
    }
    MessageMenuItem {
        text: qsTr("Edit")
        visible: menu.canEdit
        height: visible ? implicitHeight : 0
        onTriggered: menu.editRequested(menu.messageID)
    }
    MessageMenuItem {
        text: qsTr("Forward")
        onTriggered: menu.forwardRequested(menu.messageID)
    }
    MessageMenuItem {
        text: qsTr("Copy")
        visible: menu.messageText !== ""
        height: visible ? implicitHeight : 0
        onTriggered: Clipboard.copyText(menu.messageText)
    }

    MenuSeparator {}

    MessageMenuItem {
        text: qsTr("Delete")
        destructive: true
        onTriggered: menu.deleteRequested(menu.messageID)
    }
}
