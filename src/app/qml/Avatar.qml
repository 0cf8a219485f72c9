import QtQuick
import Vost.App

// A round avatar: the photo when it is downloaded, otherwise the initials in
// white on the chat's or sender's colour. Decorative: the names beside it say who
// it is, so screen readers pass over it.
Rectangle {
    id: avatar

    property string initials
    // A file path; "" when there is no photo.
    property string path
    property color tint: Appearance.accent
    property int size: 40

    width: size
    height: size
    radius: size / 2
    color: photo.status === Image.Ready ? "transparent" : tint

    Text {
        anchors.centerIn: parent
        visible: photo.status !== Image.Ready
        text: avatar.initials
        color: "white"
        font.pixelSize: avatar.size >= 40 ? 16 : (avatar.size >= 28 ? 13 : 12)
        font.weight: Font.DemiBold
    }

    Image {
        id: photo

        anchors.fill: parent
        source: avatar.path !== "" ? "image://round/" + encodeURIComponent(avatar.path) : ""
        sourceSize: Qt.size(avatar.size * 2, avatar.size * 2)
        asynchronous: true
        visible: status === Image.Ready
    }
}
