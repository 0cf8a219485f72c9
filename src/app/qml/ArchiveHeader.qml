import QtQuick
import Vost.App
import Vost.Model

// Above the chats: in the main list an "Archived chats" row with their unread
// total, which opens them; among the archived chats a way back.
Item {
    id: header

    required property ArchiveFilterModel archive

    readonly property bool offersArchive: !archive.showsArchived && !archive.searching && archive.archivedCount > 0
    readonly property bool inArchive: archive.showsArchived && !archive.searching

    height: offersArchive || inArchive ? 48 : 0
    visible: height > 0

    // The row that opens the archive.
    Rectangle {
        anchors.fill: parent
        visible: header.offersArchive
        color: hover.hovered ? Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.05) : "transparent"
        Accessible.role: Accessible.ListItem
        Accessible.name: header.archive.archivedUnreadCount > 0
                         ? qsTr("Archived chats, %n unread", "", header.archive.archivedUnreadCount)
                         : qsTr("Archived chats")
        Accessible.ignored: !visible
        Accessible.onPressAction: header.archive.showsArchived = true

        HoverHandler {
            id: hover
        }
        TapHandler {
            onTapped: header.archive.showsArchived = true
        }

        Text {
            anchors {
                left: parent.left
                leftMargin: 22
                verticalCenter: parent.verticalCenter
            }
            text: qsTr("Archived chats")
            color: Appearance.text
            font.pixelSize: 14
        }
        Rectangle {
            anchors {
                right: parent.right
                rightMargin: 10
                verticalCenter: parent.verticalCenter
            }
            visible: header.archive.archivedUnreadCount > 0
            width: Math.max(20, unread.implicitWidth + 10)
            height: 20
            radius: 10
            color: Appearance.secondaryText

            Text {
                id: unread

                anchors.centerIn: parent
                text: header.archive.archivedUnreadCount > 999 ? "999+" : header.archive.archivedUnreadCount
                color: "white"
                font.pixelSize: 11
                font.weight: Font.DemiBold
            }
        }
    }

    // The way back from the archive.
    Item {
        anchors.fill: parent
        visible: header.inArchive

        IconButton {
            id: back

            anchors {
                left: parent.left
                leftMargin: 8
                verticalCenter: parent.verticalCenter
            }
            symbol: "chevron.left"
            directional: true
            Accessible.name: qsTr("Back to chats")
            Accessible.ignored: !parent.visible
            onClicked: header.archive.showsArchived = false
        }
        Text {
            anchors {
                left: back.right
                leftMargin: 6
                verticalCenter: parent.verticalCenter
            }
            text: qsTr("Archived chats")
            color: Appearance.text
            font.pixelSize: 14
            font.weight: Font.DemiBold
        }
    }
}
