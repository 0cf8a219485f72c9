import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model
import Vost.Render

// The files waiting above the composer: a thumbnail for each photo, a chip with
// name and size for each document, each with its remove button; "Send as file"
// while pictures wait; and a line for each file that was refused.
Column {
    id: strip

    required property ChatViewModel viewModel

    readonly property var items: viewModel.pendingAttachments
    readonly property bool hasPictures: items.some(item => item.isImage)

    spacing: 4
    visible: items.length > 0 || viewModel.refusedFiles.length > 0
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Files to send")
    Accessible.ignored: !visible

    // The files scroll sideways under a scroll bar, faded at an edge where more
    // are hidden; "Send as file" stays in view beside them.
    Item {
        width: parent.width
        height: strip.items.length > 0 ? 70 : 0
        visible: strip.items.length > 0

        Flickable {
            id: files

            anchors {
                left: parent.left
                right: asFiles.visible ? asFiles.left : parent.right
                rightMargin: asFiles.visible ? 8 : 0
                top: parent.top
                bottom: parent.bottom
            }
            contentWidth: row.width
            contentHeight: height
            flickableDirection: Flickable.HorizontalFlick
            clip: true
            boundsBehavior: Flickable.StopAtBounds

            // A mouse's wheel turns the row too.
            WheelHandler {
                acceptedDevices: PointerDevice.Mouse
                enabled: files.contentWidth > files.width
                onWheel: event => {
                    files.contentX = Math.max(0, Math.min(files.contentWidth - files.width,
                                                          files.contentX - event.angleDelta.y));
                }
            }

            ScrollBar.horizontal: ScrollBar {
                policy: files.contentWidth > files.width ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
                Accessible.name: qsTr("Scroll files to send")
                Accessible.ignored: policy === ScrollBar.AlwaysOff
            }

            Row {
                id: row

                spacing: 6
                height: 60

                Repeater {
                    model: strip.items

                    delegate: Item {
                        id: entry

                        required property var modelData

                        readonly property bool isPhoto: modelData.kind === Model.PendingAttachmentKind.Photo

                        width: isPhoto ? 56 : chip.width
                        height: 56
                        y: 2
                        Accessible.role: Accessible.ListItem
                        Accessible.name: isPhoto ? qsTr("Photo %1").arg(modelData.name)
                                                 : qsTr("Document %1, %2").arg(modelData.name).arg(Formats.dataSize(modelData.size))

                        Rectangle {
                            anchors.fill: parent
                            visible: entry.isPhoto
                            radius: 8
                            color: Appearance.neutralBubble
                            clip: true

                            Image {
                                anchors.fill: parent
                                source: entry.isPhoto ? entry.modelData.url : ""
                                sourceSize: Qt.size(112, 112)
                                fillMode: Image.PreserveAspectCrop
                                asynchronous: true
                            }
                        }

                        Rectangle {
                            id: chip

                            visible: !entry.isPhoto
                            width: Math.min(220, chipRow.implicitWidth + 40)
                            height: 56
                            radius: 8
                            color: Appearance.neutralBubble

                            Row {
                                id: chipRow

                                anchors {
                                    left: parent.left
                                    leftMargin: 10
                                    verticalCenter: parent.verticalCenter
                                }
                                spacing: 8

                                SymbolIcon {
                                    width: 20
                                    height: 20
                                    anchors.verticalCenter: parent.verticalCenter
                                    name: "doc"
                                    color: Appearance.accent
                                }
                                Column {
                                    anchors.verticalCenter: parent.verticalCenter

                                    Text {
                                        width: Math.min(implicitWidth, 150)
                                        text: entry.modelData.name
                                        elide: Text.ElideMiddle
                                        color: Appearance.text
                                        font.pixelSize: 13
                                    }
                                    Text {
                                        text: Formats.dataSize(entry.modelData.size)
                                        color: Appearance.secondaryText
                                        font.pixelSize: 12
                                    }
                                }
                            }
                        }

                        IconButton {
                            anchors {
                                top: parent.top
                                right: parent.right
                                margins: -2
                            }
                            side: 20
                            symbol: "xmark"
                            tint: Appearance.accentText
                            Accessible.name: qsTr("Remove %1").arg(entry.modelData.name)
                            onClicked: strip.viewModel.removePendingAttachmentWithID(entry.modelData.id)

                            background: Rectangle {
                                radius: 10
                                color: Qt.rgba(0, 0, 0, 0.55)
                                border.width: parent.visualFocus ? 2 : 0
                                border.color: Appearance.accent
                            }
                        }
                    }
                }
            }
        }

        Rectangle {
            anchors {
                left: files.left
                top: files.top
            }
            width: 24
            height: 60
            visible: !files.atXBeginning
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Appearance.background }
                GradientStop { position: 1; color: "transparent" }
            }
        }
        Rectangle {
            anchors {
                right: files.right
                top: files.top
            }
            width: 24
            height: 60
            visible: !files.atXEnd
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: "transparent" }
                GradientStop { position: 1; color: Appearance.background }
            }
        }

        CheckBox {
            id: asFiles

            anchors {
                right: parent.right
                top: parent.top
                topMargin: 16
            }
            width: implicitWidth
            visible: strip.hasPictures
            text: qsTr("Send as file")
            checked: strip.viewModel.picturesSentAsFiles
            font.pixelSize: 13
            Accessible.name: text
            Accessible.ignored: !visible
            Accessible.onToggleAction: toggleFiles()
            Accessible.onPressAction: toggleFiles()
            onToggled: toggleFiles()

            function toggleFiles() {
                strip.viewModel.picturesSentAsFiles = !strip.viewModel.picturesSentAsFiles;
                checked = Qt.binding(() => strip.viewModel.picturesSentAsFiles);
            }
        }
    }

    Repeater {
        model: strip.viewModel.refusedFiles

        delegate: ReadableText {
            required property var modelData

            width: strip.width
            color: Appearance.badge
            font.pixelSize: 12
            Accessible.role: Accessible.AlertMessage
            text: {
                switch (modelData.reason) {
                case Attachments.Empty:
                    return qsTr("%1 is empty and can’t be sent.").arg(modelData.name);
                case Attachments.Folder:
                    return qsTr("%1 is a folder; choose the files in it.").arg(modelData.name);
                case Attachments.TooLarge:
                    return qsTr("%1 is larger than 2 GB, more than Telegram takes.").arg(modelData.name);
                default:
                    return qsTr("%1 can’t be read.").arg(modelData.name);
                }
            }
        }
    }
}
