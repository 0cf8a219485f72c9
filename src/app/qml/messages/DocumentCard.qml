import QtQuick
import Vost.App
import Vost.Model
import Vost.Render

// A file: an icon for its kind, its name and size, the download's progress while
// it arrives, then "Open" (the desktop's application for it) and "Save" (a copy
// where the user chooses).
Item {
    id: card

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details
    // The downloaded file; "" until it is here.
    required property string path
    property real progress: -1
    property bool outgoing: false

    readonly property string sizeText: Formats.dataSize(details.fileSize)
    // A colour for the file's kind: documents, pictures, archives, sound, other.
    readonly property color tint: {
        const type = details.mimeType;
        if (type === "application/pdf")
            return "#E5484D";
        if (type.startsWith("image/"))
            return "#30A46C";
        if (type.startsWith("audio/") || type.startsWith("video/"))
            return "#8E4EC6";
        if (type.includes("zip") || type.includes("compressed") || type.includes("tar"))
            return "#F76B15";
        return Appearance.accent;
    }

    implicitWidth: 280
    implicitHeight: 56
    Accessible.role: Accessible.Grouping
    Accessible.ignored: !card.shown
    Accessible.name: qsTr("Document %1, %2").arg(details.fileName).arg(sizeText)

    Rectangle {
        id: icon

        width: 44
        height: 44
        anchors.verticalCenter: parent.verticalCenter
        radius: 10
        color: card.outgoing ? Qt.rgba(1, 1, 1, 0.22) : card.tint

        SymbolIcon {
            anchors.centerIn: parent
            width: 22
            height: 22
            name: "doc"
            color: "white"
            visible: card.path !== "" || card.progress < 0
        }

        DownloadRing {
            anchors.fill: parent
            visible: card.path === "" && card.progress >= 0
            progress: card.progress
            shown: card.shown
        }
    }

    Column {
        anchors {
            left: icon.right
            leftMargin: 10
            right: buttons.left
            rightMargin: 6
            verticalCenter: parent.verticalCenter
        }
        spacing: 2

        Text {
            width: parent.width
            text: card.details.fileName
            elide: Text.ElideMiddle
            color: card.outgoing ? Appearance.accentText : Appearance.text
            font.pixelSize: 14
            font.weight: Font.DemiBold
        }
        Text {
            width: parent.width
            text: card.path === "" && card.progress >= 0
                  //: How much of the file has come and its whole size, as in "1.2 MB of 5 MB".
                  ? qsTr("%1 of %2").arg(Formats.dataSize(card.details.fileSize * card.progress)).arg(card.sizeText)
                  : card.sizeText
            color: card.outgoing ? Qt.rgba(1, 1, 1, 0.75) : Appearance.secondaryText
            font.pixelSize: 12
        }
    }

    Row {
        id: buttons

        anchors {
            right: parent.right
            verticalCenter: parent.verticalCenter
        }
        spacing: 2
        visible: card.path !== ""

        IconButton {
            symbol: "arrow.up.right"
            tint: card.outgoing ? Appearance.accentText : Appearance.accent
            //: A verb: open the file with its application.
            Accessible.name: qsTr("Open")
            Accessible.ignored: !visible || !card.shown
            onClicked: Qt.openUrlExternally(LocalFile.url(card.path))
        }
        IconButton {
            symbol: "arrow.down.to.line"
            tint: card.outgoing ? Appearance.accentText : Appearance.accent
            //: A verb: save the file to a folder.
            Accessible.name: qsTr("Save")
            Accessible.ignored: !visible || !card.shown
            onClicked: FilePanel.saveCopy(card.path, card.details.fileName)
        }
    }
}
