import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model
import Vost.Render

// The search in the open chat, under its header: the words typed are looked for
// once the typing pauses, the count says which result shows, Up and Down (the
// buttons, or Return and Shift+Return) step to older and newer results, and Esc
// closes the search.
Rectangle {
    id: bar

    // The session's ChatSearchStore.
    required property QtObject search
    required property string chatID
    required property MessageListModel messageList
    property bool active: false
    // What the bubbles highlight: the words looked for, once something is found.
    readonly property string highlight: active && search.state === Model.ChatSearchState.Found ? search.query : ""

    // The shown result's message is in the transcript: it comes into view.
    signal resultShown(string messageID)
    // Esc or the close button: the search in that chat is over, and the transcript
    // goes back to the newest.
    signal closed(string chatID)

    // The shown result, until the transcript holds it (its history is on its way).
    readonly property string shownMessageID: active ? search.currentMessageID : ""
    property bool revealPending: false

    function reveal() {
        if (shownMessageID === "")
            return;
        revealPending = messageList.rowOf(shownMessageID) < 0;
        if (!revealPending)
            resultShown(shownMessageID);
    }

    onShownMessageIDChanged: Qt.callLater(reveal)

    Connections {
        target: bar.messageList
        enabled: bar.revealPending

        function onRowsInserted() {
            Qt.callLater(bar.reveal);
        }
        function onModelReset() {
            Qt.callLater(bar.reveal);
        }
        function onDataChanged() {
            Qt.callLater(bar.reveal);
        }
    }

    function open() {
        active = true;
        field.forceActiveFocus();
        field.selectAll();
    }

    // Looks for the words at once, as a click on a hashtag does.
    function searchFor(words) {
        active = true;
        debounce.stop();
        field.text = words;
        field.forceActiveFocus();
        search.search(chatID, words);
    }

    function close() {
        if (!active)
            return;
        const searchedChat = search.chatID !== "" ? search.chatID : chatID;
        active = false;
        revealPending = false;
        debounce.stop();
        field.clear();
        search.clear();
        closed(searchedChat);
    }

    visible: active
    height: active ? 40 : 0
    color: Appearance.background
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Search in chat")
    Accessible.ignored: !active

    LoginField {
        id: field

        anchors {
            left: parent.left
            leftMargin: 12
            right: status.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        placeholderText: qsTr("Search in chat")
        Accessible.name: qsTr("Search in chat")
        onTextEdited: debounce.restart()
        Keys.onPressed: event => {
            if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
                debounce.stop();
                if (bar.search.query !== text.trim())
                    bar.search.search(bar.chatID, text);
                else if (event.modifiers & Qt.ShiftModifier)
                    bar.search.stepNewer();
                else
                    bar.search.stepOlder();
            } else if (event.key === Qt.Key_Up) {
                bar.search.stepOlder();
            } else if (event.key === Qt.Key_Down) {
                bar.search.stepNewer();
            } else if (event.key === Qt.Key_Escape) {
                bar.close();
            } else {
                return;
            }
            event.accepted = true;
        }
    }

    // Telegram is asked once the typing pauses.
    Timer {
        id: debounce

        interval: 300
        onTriggered: bar.search.search(bar.chatID, field.text)
    }

    Text {
        id: status

        anchors {
            right: older.left
            rightMargin: 6
            verticalCenter: parent.verticalCenter
        }
        color: Appearance.secondaryText
        font.pixelSize: 12
        text: {
            switch (bar.search.state) {
            case Model.ChatSearchState.Searching:
                return qsTr("Searching…");
            case Model.ChatSearchState.NoResults:
                return qsTr("No results");
            case Model.ChatSearchState.Failed:
                return qsTr("Search failed");
            case Model.ChatSearchState.Found:
                //: Which search result shows, of how many: "3 of 12".
                return qsTr("%1 of %n", "", bar.search.totalCount).arg((bar.search.currentIndex + 1).toLocaleString(Qt.locale(), "f", 0));
            }
            return "";
        }
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.ignored: !bar.active || text === ""
    }

    IconButton {
        id: older

        anchors {
            right: newer.left
            verticalCenter: parent.verticalCenter
        }
        symbol: "chevron.up"
        enabled: bar.search.hasOlder
        opacity: enabled ? 1 : 0.4
        Accessible.name: qsTr("Older result")
        onClicked: bar.search.stepOlder()
    }

    IconButton {
        id: newer

        anchors {
            right: closeButton.left
            verticalCenter: parent.verticalCenter
        }
        symbol: "chevron.down"
        enabled: bar.search.hasNewer
        opacity: enabled ? 1 : 0.4
        Accessible.name: qsTr("Newer result")
        onClicked: bar.search.stepNewer()
    }

    IconButton {
        id: closeButton

        anchors {
            right: parent.right
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        symbol: "xmark"
        Accessible.name: qsTr("Close search")
        onClicked: bar.close()
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
