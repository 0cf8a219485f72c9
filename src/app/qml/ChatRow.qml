import QtQuick
import Vost.App

// One chat in the sidebar, 60 high: avatar, title, preview or draft, time,
// unread pill and the muted, pinned and archived marks.
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

    signal clicked

    readonly property bool hasUnread: unreadCount > 0 || isMarkedUnread
    readonly property string secondLine: isTyping ? subtitle : (draftText !== "" ? "Draft: " + draftText : preview)

    height: 60
    color: isSelected ? Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.18)
                      : (hover.hovered ? Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.05) : "transparent")
    Accessible.role: Accessible.ListItem
    Accessible.name: title + (hasUnread ? ", " + Math.max(unreadCount, 1) + " unread" : "") + ", " + secondLine
    Accessible.selected: isSelected
    Accessible.selectable: true

    HoverHandler {
        id: hover
    }

    TapHandler {
        onTapped: row.clicked()
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
            Accessible.role: Accessible.StaticText
            Accessible.name: "Pinned"
        }
        Text {
            visible: row.isMuted
            text: "⊘"
            color: Appearance.secondaryText
            font.pixelSize: 12
            Accessible.role: Accessible.StaticText
            Accessible.name: "Muted"
        }
        Text {
            visible: row.isArchived
            text: "⊟"
            color: Appearance.secondaryText
            font.pixelSize: 12
            Accessible.role: Accessible.StaticText
            Accessible.name: "Archived"
        }
    }

    Text {
        id: titleText

        anchors {
            left: avatar.right
            leftMargin: 10
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
            left: titleText.left
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
        Accessible.role: Accessible.StaticText
        Accessible.name: row.unreadCount > 0 ? row.unreadCount + " unread" : "Marked unread"

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
