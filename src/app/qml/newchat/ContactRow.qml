import QtQuick
import Vost.App

// One contact in the new-chat view: avatar, name and username; a click or the
// accessible Press action opens (or creates) the private chat.
Rectangle {
    id: row

    required property string userID
    required property string name
    required property string username
    required property string initials
    required property string avatarPath
    required property bool isOnline

    signal clicked
    signal menuRequested

    readonly property bool onScreen: ListView.view !== null && y + height > ListView.view.contentY
                                     && y < ListView.view.contentY + ListView.view.height

    height: 52
    color: hover.hovered ? Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.05) : "transparent"
    Accessible.role: Accessible.ListItem
    Accessible.name: isOnline ? qsTr("%1, online").arg(name) : name
    Accessible.ignored: !visible || !onScreen
    Accessible.onPressAction: row.clicked()

    HoverHandler {
        id: hover
    }

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
            leftMargin: 12
            verticalCenter: parent.verticalCenter
        }
        size: 36
        initials: row.initials
        path: row.avatarPath
        Accessible.ignored: true
    }

    Column {
        anchors {
            left: avatar.right
            leftMargin: 10
            right: parent.right
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }

        Text {
            width: parent.width
            text: row.name
            elide: Text.ElideRight
            color: Appearance.text
            font.pixelSize: 14
        }
        Text {
            width: parent.width
            visible: text !== ""
            //: Said of a contact who is using Telegram right now.
            text: row.isOnline ? qsTr("online") : (row.username !== "" ? "@" + row.username : "")
            elide: Text.ElideRight
            color: row.isOnline ? Appearance.accent : Appearance.secondaryText
            font.pixelSize: 12
        }
    }
}
