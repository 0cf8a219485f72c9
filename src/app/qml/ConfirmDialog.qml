import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Vost.App

// Asks before something that cannot be undone: a question, "Cancel" and the
// action's button (red), centred on the view it belongs to. Esc or "Cancel"
// closes it without acting.
Dialog {
    id: dialog

    property string question
    property string actionText
    signal confirmed

    anchors.centerIn: parent
    width: 340
    modal: true
    focus: true
    padding: 20
    closePolicy: Popup.CloseOnEscape
    // The dialog's accessible name.
    title: question
    header: null
    footer: null

    background: Rectangle {
        radius: 12
        color: Appearance.background
        border.width: 1
        border.color: Appearance.separator
    }

    contentItem: ColumnLayout {
        spacing: 18

        ReadableText {
            Layout.fillWidth: true
            text: dialog.question
            color: Appearance.text
            font.pixelSize: 14
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
        }

        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            spacing: 10

            PlainButton {
                text: qsTr("Cancel")
                onClicked: dialog.close()
            }
            AccentButton {
                id: action

                destructive: true
                text: dialog.actionText
                focus: true
                onClicked: {
                    dialog.close();
                    dialog.confirmed();
                }
            }
        }
    }

    onOpened: action.forceActiveFocus()
}
