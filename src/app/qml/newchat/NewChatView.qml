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
    readonly property SessionAccess session: host.access

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
            directional: true
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
            onTextEdited: {
                filtered.searchText = text;
                telegramSearch.restart();
            }
            Keys.onDownPressed: contacts.forceActiveFocus()
        }

        // The contacts the name filter lists are not found again below it.
        Binding {
            target: view.host.contactResultList
            property: "listedText"
            value: search.text
        }

        // Telegram is asked once the typing pauses.
        Timer {
            id: telegramSearch

            interval: 350
            onTriggered: view.host.viewModel.searchContacts(search.text)
        }

        ListView {
            id: contacts

            anchors {
                left: parent.left
                right: parent.right
                top: search.bottom
                topMargin: 8
                bottom: found.visible ? found.top : parent.bottom
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
                onMenuRequested: contactMenu.openFor(userID, name)
            }
        }

        // What Telegram's search found (by name, username or phone number), under the
        // contacts the name filter keeps.
        Column {
            id: found

            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
            }
            visible: search.text !== "" && results.count > 0

            Text {
                leftPadding: 12
                topPadding: 6
                bottomPadding: 4
                text: qsTr("Found by Telegram")
                color: Appearance.secondaryText
                font.pixelSize: 12
                font.weight: Font.DemiBold
            }
            ListView {
                id: results

                width: parent.width
                height: Math.min(contentHeight, 160)
                clip: true
                model: view.host.contactResultList
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Found by Telegram")
                Accessible.ignored: !found.visible

                delegate: ContactRow {
                    width: ListView.view.width
                    onClicked: view.host.viewModel.openContact(userID)
                }
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

    ContactMenu {
        id: contactMenu

        onMessageRequested: userID => view.host.viewModel.openContact(userID)
        onDeleteRequested: (userID, name) => {
            deletion.userID = userID;
            deletion.question = qsTr("Remove %1 from your contacts?").arg(name);
            deletion.open();
        }
    }

    ConfirmDialog {
        id: deletion

        property string userID

        parent: view
        actionText: qsTr("Delete contact")
        onConfirmed: view.session.deleteContact(Number(userID))
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
