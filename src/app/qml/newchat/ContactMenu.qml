import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// The actions on one contact: "Message" opens the chat, "Delete contact" removes
// them from the contacts (after confirming).
Menu {
    id: menu

    property string userID
    property string name

    signal messageRequested(string userID)
    signal deleteRequested(string userID, string name)

    title: qsTr("Contact actions")
    // Qt 6.4 names a menu by nothing of its own: its popup item carries the name.
    Component.onCompleted: contentItem.parent.Accessible.name = title

    background: Rectangle {
        implicitWidth: 200
        radius: 10
        color: Appearance.background
        border.width: 1
        border.color: Appearance.separator
    }

    MessageMenuItem {
        //: A verb: write to this contact.
        text: qsTr("Message")
        onTriggered: menu.messageRequested(menu.userID)
    }
    MessageMenuItem {
        text: qsTr("Delete contact")
        destructive: true
        onTriggered: menu.deleteRequested(menu.userID, menu.name)
    }

    function openFor(id, contactName) {
        userID = id;
        name = contactName;
        popup();
    }
}
