import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Vost.App
import Vost.Model

// The two ways to someone not in the contacts: "Add contact" by phone number, and
// "Open username". While the session works on one, a spinner shows and neither
// can be sent again; its error shows under the forms in words a person reads.
ColumnLayout {
    id: forms

    required property SessionAccess session

    spacing: 8

    component FormTitle: Text {
        Layout.topMargin: 6
        color: Appearance.secondaryText
        font.pixelSize: 12
        font.weight: Font.DemiBold
        font.capitalization: Font.AllUppercase
    }

    FormTitle {
        Layout.topMargin: 0
        text: qsTr("Add contact")
    }
    RowLayout {
        spacing: 8

        LoginField {
            id: firstName

            Layout.fillWidth: true
            placeholderText: qsTr("First name")
        }
        LoginField {
            id: lastName

            Layout.fillWidth: true
            placeholderText: qsTr("Last name")
        }
    }
    LoginField {
        id: phone

        Layout.fillWidth: true
        placeholderText: qsTr("Phone number")
        inputMethodHints: Qt.ImhDialableCharactersOnly
        onAccepted: addContact.clicked()
    }
    LoginField {
        id: note

        Layout.fillWidth: true
        //: A noun: a private note about the new contact.
        placeholderText: qsTr("Note")
    }
    AccentButton {
        id: addContact

        text: qsTr("Add contact")
        enabled: !forms.session.creatingConversation && phone.text.trim() !== "" && firstName.text.trim() !== ""
        onClicked: forms.session.createContact(firstName.text, lastName.text, phone.text, note.text)
    }

    FormTitle {
        Layout.topMargin: 18
        //: A form's title: open a chat by someone's public username.
        text: qsTr("Open username")
    }
    RowLayout {
        spacing: 8

        LoginField {
            id: username

            Layout.fillWidth: true
            placeholderText: qsTr("Username")
            onAccepted: open.clicked()
        }
        AccentButton {
            id: open

            //: A verb: the button that opens the chat with that username.
            text: qsTr("Open")
            enabled: !forms.session.creatingConversation && username.text.trim() !== ""
            onClicked: forms.session.openUsername(username.text)
        }
    }

    RowLayout {
        Layout.topMargin: 10
        spacing: 8

        BusyIndicator {
            Layout.preferredWidth: 22
            Layout.preferredHeight: 22
            visible: forms.session.creatingConversation
            running: visible
            Accessible.role: Accessible.ProgressBar
            Accessible.name: qsTr("Opening the chat")
            Accessible.ignored: !visible
        }
        PlainButton {
            visible: forms.session.creatingConversation
            text: qsTr("Cancel")
            onClicked: forms.session.cancelConversation()
        }
        ReadableText {
            Layout.fillWidth: true
            visible: forms.session.conversationError !== ""
            text: ErrorTexts.sentence(forms.session.conversationError)
            color: Appearance.badge
            font.pixelSize: 13
            Accessible.role: Accessible.AlertMessage
            Accessible.ignored: !visible
        }
    }

    Item {
        Layout.fillHeight: true
    }
}
