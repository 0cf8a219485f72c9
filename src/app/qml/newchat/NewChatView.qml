import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model

// Starting a conversation, over the whole popover: the contacts on the left (a
// search filters them by name at once), and on the right a new contact by phone
// number or a username to open. A chat that opens closes the view; Esc or "Back"
// returns to the chats.
FocusScope {
    id: view

    required property AppRootView host
    readonly property var session: host.session

    signal closed

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("New chat")
    Keys.onEscapePressed: view.closed()
    Component.onCompleted: session.refreshContacts()

    Connections {
        target: view.session

        function onNewlyOpenedChatIDChanged() {
            view.closed();
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Appearance.background

        // The chats underneath get no pointer: no hover, click or wheel passes.
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.AllButtons
            onWheel: wheel => wheel.accepted = true
        }
    }

    Item {
        id: header

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
        }
        height: 52

        IconButton {
            id: back

            anchors {
                left: parent.left
                leftMargin: 10
                verticalCenter: parent.verticalCenter
            }
            symbol: "chevron.left"
            Accessible.name: qsTr("Back")
            onClicked: view.closed()
        }

        Text {
            anchors {
                left: back.right
                leftMargin: 8
                verticalCenter: parent.verticalCenter
            }
            text: qsTr("New chat")
            color: Appearance.text
            font.pixelSize: 16
            font.weight: Font.DemiBold
        }

        Rectangle {
            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
            }
            height: 1
            color: Appearance.separator
        }
    }

    Item {
        id: roster

        anchors {
            left: parent.left
            top: header.bottom
            bottom: parent.bottom
        }
        width: 300

        LoginField {
            id: search

            anchors {
                left: parent.left
                right: parent.right
                top: parent.top
                margins: 12
            }
            focus: true
            placeholderText: qsTr("Search contacts")
            onTextEdited: filtered.searchText = text
            Keys.onDownPressed: contacts.forceActiveFocus()
        }

        ListView {
            id: contacts

            anchors {
                left: parent.left
                right: parent.right
                top: search.bottom
                topMargin: 8
                bottom: parent.bottom
            }
            clip: true
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            model: SearchFilterModel {
                id: filtered

                sourceModel: view.host.contactList
                filterRole: ContactListModel.NameRole
            }
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Contacts")
            ScrollBar.vertical: ScrollBar {
                Accessible.name: qsTr("Scroll contacts")
                Accessible.ignored: !visible || size >= 1
            }

            delegate: ContactRow {
                width: ListView.view.width
                onClicked: view.host.viewModel.openContact(userID)
            }
        }

        ReadableText {
            anchors.centerIn: contacts
            visible: contacts.count === 0
            text: search.text !== "" ? qsTr("No contacts found") : qsTr("No contacts yet")
            color: Appearance.secondaryText
            Accessible.ignored: !visible
        }
    }

    Rectangle {
        id: divider

        anchors {
            left: roster.right
            top: header.bottom
            bottom: parent.bottom
        }
        width: 1
        color: Appearance.separator
    }

    NewContactForms {
        anchors {
            left: divider.right
            right: parent.right
            top: header.bottom
            bottom: parent.bottom
            margins: 24
        }
        session: view.session
    }
}
