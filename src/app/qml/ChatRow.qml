import QtQuick
import Vost.App

// One chat in the sidebar, 60 high: avatar, title, preview or draft, time,
// unread pill, a lock before the title of a secret chat, and the muted, pinned
// and archived marks. For a screen reader it is
// one item whose name says all of that, and whose Press action opens the chat.
Rectangle {
    id: row

    required property int index
    required property string chatID
    required property string title
    required property string subtitle
    required property string preview
    required property string timestamp
    required property int unreadCount
    required property bool isMuted
    required property bool isPinned
    required property bool isArchived
    required property bool isMarkedUnread
    required property string draftText
    required property string avatarText
    required property string avatarPath
    required property color avatarColor
    required property bool isSelected
    required property bool isTyping
    required property bool isSecret

    // The chat is on its way out of the list.
    property bool deleting: false

    signal clicked
    // A right click: the chat's menu, at the pointer.
    signal menuRequested

    readonly property bool hasUnread: unreadCount > 0 || isMarkedUnread
    readonly property string secondLine: deleting ? qsTr("Deleting…")
                                                  //: %1 is the start of the unsent text of the chat.
                                                  : (isTyping ? subtitle : (draftText !== "" ? qsTr("Draft: %1").arg(draftText) : preview))
    // Only rows inside the list's viewport are shown to assistive technology.
    readonly property bool onScreen: ListView.view !== null && y + height > ListView.view.contentY
                                     && y < ListView.view.contentY + ListView.view.height

    height: 60
    color: isSelected ? Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.18)
                      : (hover.hovered ? Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.05) : "transparent")
    Accessible.role: Accessible.ListItem
    Accessible.name: {
        const parts = [title];
        if (isSecret)
            //: Read aloud after a chat's title, like the other states of a chat here.
            parts.push(qsTr("secret chat"));
        if (isPinned)
            parts.push(qsTr("pinned"));
        if (isMuted)
            parts.push(qsTr("muted"));
        if (isArchived)
            parts.push(qsTr("archived"));
        if (unreadCount > 0)
            //: How many messages of the chat are unread.
            parts.push(qsTr("%n unread", "", unreadCount));
        else if (isMarkedUnread)
            parts.push(qsTr("marked unread"));
        parts.push(secondLine);
        return parts.join(", ");
    }
    Accessible.selected: isSelected
    Accessible.selectable: true
    Accessible.ignored: !visible || !onScreen
    Accessible.onPressAction: row.clicked()

    HoverHandler {
        id: hover
    }

    opacity: deleting ? 0.5 : 1

    TapHandler {
        onTapped: row.clicked()
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: row.menuRequested()
    }

    Avatar {
        id: avatar

        anchors {
            left: parent.left
            leftMargin: 10
            verticalCenter: parent.verticalCenter
        }
        size: 40
        initials: row.avatarText
        path: row.avatarPath
        tint: row.avatarColor
    }

    Row {
        id: marks

        anchors {
            right: time.left
            rightMargin: 4
            top: parent.top
            topMargin: 10
        }
        spacing: 3

        Text {
            visible: row.isPinned
            text: "⚑"
            color: Appearance.secondaryText
            font.pixelSize: 12
        }
        Text {
            visible: row.isMuted
            text: "⊘"
            color: Appearance.secondaryText
            font.pixelSize: 12
        }
        Text {
            visible: row.isArchived
            text: "⊟"
            color: Appearance.secondaryText
            font.pixelSize: 12
        }
    }

    SymbolIcon {
        id: lock

        anchors {
            left: avatar.right
            leftMargin: 10
            verticalCenter: titleText.verticalCenter
        }
        visible: row.isSecret
        width: visible ? 12 : 0
        height: 12
        name: "lock.fill"
        color: Appearance.text
    }

    Text {
        id: titleText

        anchors {
            left: lock.right
            leftMargin: lock.visible ? 4 : 0
            right: marks.left
            rightMargin: 4
            top: parent.top
            topMargin: 10
        }
        text: row.title
        elide: Text.ElideRight
        color: Appearance.text
        font.pixelSize: 14
        font.weight: Font.DemiBold
    }

    Text {
        id: time

        anchors {
            right: parent.right
            rightMargin: 10
            baseline: titleText.baseline
        }
        text: row.timestamp
        color: Appearance.secondaryText
        font.pixelSize: 12
    }

    Text {
        anchors {
            left: avatar.right
            leftMargin: 10
            right: pill.visible ? pill.left : parent.right
            rightMargin: 10
            top: titleText.bottom
            topMargin: 4
        }
        text: row.secondLine
        textFormat: Text.PlainText
        maximumLineCount: 1
        elide: Text.ElideRight
        color: row.isTyping ? Appearance.accent : Appearance.secondaryText
        font.pixelSize: 13
        font.italic: row.draftText !== "" && !row.isTyping
    }

    Rectangle {
        id: pill

        anchors {
            right: parent.right
            rightMargin: 10
            top: time.bottom
            topMargin: 5
        }
        visible: row.hasUnread
        height: 20
        width: Math.max(height, count.implicitWidth + 12)
        radius: height / 2
        color: row.isMuted ? Appearance.secondaryText : Appearance.accent

        Text {
            id: count

            anchors.centerIn: parent
            text: row.unreadCount > 0 ? (row.unreadCount > 999 ? "999+" : row.unreadCount) : ""
            color: "white"
            font.pixelSize: 12
            font.weight: Font.DemiBold
        }
    }
}
