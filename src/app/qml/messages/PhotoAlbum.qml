import QtQuick
import Vost.App
import Vost.Model

// One photo at its own proportions (at most 320 wide), or an album's photos in a
// grid of equal cells (2, 3 or 4 across by how many there are) with 2 px between
// them. A photo still arriving shows its tiny preview and a download ring; a
// click opens the viewer.
Item {
    id: album

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    // Each photo: messageID, mediaPath, width, height, minithumbnail, downloadProgress.
    required property var items
    property real maximumWidth: 320

    signal opened(string messageID)

    readonly property bool single: items.length === 1
    readonly property int columns: items.length <= 2 ? 2 : (items.length === 3 ? 3 : (items.length === 4 ? 2 : (items.length <= 6 ? 3 : 4)))
    readonly property real cell: (maximumWidth - 2 * (columns - 1)) / columns
    readonly property real singleWidth: {
        const item = items.length > 0 ? items[0] : null;
        return item && item.width > 0 ? Math.min(maximumWidth, item.width) : maximumWidth;
    }
    readonly property real singleHeight: {
        const item = items.length > 0 ? items[0] : null;
        const ratio = item && item.width > 0 && item.height > 0 ? item.height / item.width : 0.75;
        return Math.min(singleWidth * ratio, 420);
    }

    implicitWidth: single ? singleWidth : maximumWidth
    implicitHeight: single ? singleHeight : Math.ceil(items.length / columns) * (cell + 2) - 2
    Accessible.role: single ? Accessible.Graphic : Accessible.Grouping
    Accessible.ignored: !album.shown
    Accessible.name: single ? qsTr("Photo") : qsTr("Album, %n photos", "", items.length)
    Accessible.onPressAction: if (single) album.opened(items[0].messageID)

    Grid {
        columns: album.single ? 1 : album.columns
        spacing: 2

        Repeater {
            // By count, so that the photos stay (and keep their decoded images) when
            // a download's progress or a new page gives the album a new list.
            model: album.items.length

            delegate: Rectangle {
                id: photo

                required property int index
                readonly property var modelData: album.items[index]

                width: album.single ? album.singleWidth : album.cell
                height: album.single ? album.singleHeight : album.cell
                radius: album.single ? 10 : 4
                color: Appearance.neutralBubble
                clip: true
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Photo")
                Accessible.ignored: album.single || !album.shown
                Accessible.onPressAction: album.opened(modelData.messageID)

                Image {
                    anchors.fill: parent
                    visible: picture.status !== Image.Ready
                    source: photo.modelData.minithumbnail
                    fillMode: Image.PreserveAspectCrop
                }

                Image {
                    id: picture

                    anchors.fill: parent
                    source: photo.modelData.mediaPath !== "" ? "image://media/" + encodeURIComponent(photo.modelData.mediaPath) : ""
                    // The media provider keeps its own cache, emptied when the chat changes
                    // or the popover closes; a second one in Qt Quick would keep them longer.
                    cache: false
                    sourceSize: Qt.size(width * 2, height * 2)
                    fillMode: Image.PreserveAspectCrop
                    asynchronous: true
                }

                DownloadRing {
                    anchors.centerIn: parent
                    visible: photo.modelData.mediaPath === ""
                    progress: photo.modelData.downloadProgress
                    shown: album.shown
                }

                TapHandler {
                    enabled: photo.modelData.mediaPath !== ""
                    onTapped: album.opened(photo.modelData.messageID)
                }
            }
        }
    }
}
