import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Vost.App
import Vost.Model

// "Forward to": the chats with a search of their own; picking one forwards the
// message there and opens that chat.
Dialog {
    id: dialog

    required property ChatListModel chats
    property string messageID

    signal chatChosen(string chatID)

    //: The title of the list of chats a message can be forwarded to.
    title: qsTr("Forward to")
    header: null
    footer: null
    anchors.centerIn: parent
    width: 340
    height: Math.min(440, parent ? parent.height - 40 : 440)
    modal: true
    focus: true
    padding: 12
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    onOpened: {
        search.text = "";
        filtered.searchText = "";
        search.forceActiveFocus();
    }

    background: Rectangle {
        radius: 12
        color: Appearance.background
        border.width: 1
        border.color: Appearance.separator
    }

    SearchFilterModel {
        id: filtered

        sourceModel: dialog.chats
    }

    contentItem: ColumnLayout {
        spacing: 8

        ReadableText {
            Layout.alignment: Qt.AlignHCenter
            text: dialog.title
            color: Appearance.text
            font.pixelSize: 14
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        LoginField {
            id: search

            Layout.fillWidth: true
            implicitHeight: 30
            font.pixelSize: 13
            placeholderText: qsTr("Search chats")
            onTextEdited: filtered.searchText = text
            Keys.onDownPressed: list.forceActiveFocus()
            // Return forwards to the only match; among several, it goes to the list.
            Keys.onReturnPressed: list.chooseFromSearch()
            Keys.onEnterPressed: list.chooseFromSearch()
        }

        ListView {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: filtered
            boundsBehavior: Flickable.StopAtBounds
            keyNavigationEnabled: true
            activeFocusOnTab: true
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Chats to forward to")
            ScrollBar.vertical: ScrollBar {
                Accessible.name: qsTr("Scroll chats to forward to")
                Accessible.ignored: !visible || size >= 1
            }

            delegate: ChatRow {
                width: ListView.view.width
                onClicked: dialog.chatChosen(chatID)
            }

            Keys.onReturnPressed: if (currentItem) dialog.chatChosen(currentItem.chatID)

            function chooseFromSearch() {
                if (count === 1 && itemAtIndex(0))
                    dialog.chatChosen(itemAtIndex(0).chatID);
                else if (count > 1)
                    forceActiveFocus();
            }
        }

        ReadableText {
            Layout.alignment: Qt.AlignHCenter
            visible: list.count === 0
            text: qsTr("No results")
        }
    }
}
