import QtQuick
import QtQuick.Controls.Basic
import QtMultimedia
import Vost.App
import Vost.Model
import Vost.Render

// The chat's photos and videos over the whole popover: one at a time, fitted,
// with the arrows (and Left and Right) going through them, "Save" and "Open",
// and Esc closing it. Videos play here with sound.
Popup {
    id: viewer

    // Each item: messageID, path, kind (MessageContent.Kind), fileName, saveName.
    property var items: []
    property int index: 0

    readonly property var current: index >= 0 && index < items.length ? items[index] : null
    readonly property bool isVideo: current !== null && current.kind !== MessageContent.Photo

    function show(media, messageID) {
        items = media;
        index = Math.max(0, media.findIndex(item => item.messageID === messageID));
        open();
    }

    function step(delta) {
        index = Math.max(0, Math.min(items.length - 1, index + delta));
    }

    x: 0
    y: 0
    width: parent ? parent.width : 860
    height: parent ? parent.height : 560
    modal: true
    focus: true
    padding: 0
    closePolicy: Popup.CloseOnEscape
    Component.onCompleted: contentItem.parent.Accessible.name = qsTr("Photo viewer")

    background: Rectangle {
        color: Qt.rgba(0.05, 0.05, 0.06, 0.96)
    }

    contentItem: FocusScope {
        focus: true
        Keys.onLeftPressed: viewer.step(-1)
        Keys.onRightPressed: viewer.step(1)

        Image {
            id: picture

            anchors.fill: parent
            anchors.margins: 56
            visible: !viewer.isVideo
            source: viewer.current && !viewer.isVideo ? "image://media/" + encodeURIComponent(viewer.current.path) : ""
            cache: false // the media provider has its own
            sourceSize: Qt.size(width * 2, height * 2)
            fillMode: Image.PreserveAspectFit
            asynchronous: true
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Photo %1 of %2").arg(viewer.index + 1).arg(viewer.items.length)
            Accessible.ignored: !visible
        }

        // A GIF plays as pictures; only a video makes a media player, which
        // brings GStreamer into the process for good.
        Loader {
            anchors.fill: parent
            anchors.margins: 56
            active: viewer.opened && viewer.isVideo
            sourceComponent: viewer.current !== null && viewer.current.path.toLowerCase().endsWith(".gif") ? gif : video
        }

        Component {
            id: gif

            AnimatedImage {
                source: LocalFile.url(viewer.current.path)
                fillMode: Image.PreserveAspectFit
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Video %1 of %2").arg(viewer.index + 1).arg(viewer.items.length)
            }
        }

        Component {
            id: video

            Item {
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Video %1 of %2").arg(viewer.index + 1).arg(viewer.items.length)

                VideoOutput {
                    id: output

                    anchors.fill: parent
                }
                MediaPlayer {
                    source: LocalFile.url(viewer.current.path)
                    videoOutput: output
                    audioOutput: AudioOutput {}
                    Component.onCompleted: play()
                }
            }
        }

        IconButton {
            anchors {
                left: parent.left
                leftMargin: 12
                verticalCenter: parent.verticalCenter
            }
            side: 40
            symbol: "chevron.left"
            directional: true
            tint: "white"
            visible: viewer.index > 0
            //: The previous picture of the album.
            Accessible.name: qsTr("Previous")
            onClicked: viewer.step(-1)
        }
        IconButton {
            anchors {
                right: parent.right
                rightMargin: 12
                verticalCenter: parent.verticalCenter
            }
            side: 40
            symbol: "chevron.right"
            directional: true
            tint: "white"
            visible: viewer.index < viewer.items.length - 1
            //: The next picture of the album.
            Accessible.name: qsTr("Next")
            onClicked: viewer.step(1)
        }

        Row {
            anchors {
                top: parent.top
                right: parent.right
                margins: 10
            }
            spacing: 4

            IconButton {
                side: 36
                symbol: "arrow.down.to.line"
                tint: "white"
                //: A verb: save the picture to a folder.
                Accessible.name: qsTr("Save")
                // The viewer stays open behind the dialog and shows again with the popover.
                onClicked: FilePanel.saveCopy(viewer.current.path, viewer.current.saveName)
            }
            IconButton {
                side: 36
                symbol: "arrow.up.right"
                tint: "white"
                //: A verb: open the picture with its application.
                Accessible.name: qsTr("Open")
                onClicked: Qt.openUrlExternally(LocalFile.url(viewer.current.path))
            }
            IconButton {
                side: 36
                symbol: "xmark"
                tint: "white"
                Accessible.name: qsTr("Close")
                onClicked: viewer.close()
            }
        }

        Text {
            anchors {
                bottom: parent.bottom
                horizontalCenter: parent.horizontalCenter
                margins: 16
            }
            //: The picture shown and how many the album has, as in "2 of 5".
            text: qsTr("%1 of %2").arg(viewer.index + 1).arg(viewer.items.length)
            color: "white"
            opacity: 0.7
            font.pixelSize: 12
        }
    }
}
