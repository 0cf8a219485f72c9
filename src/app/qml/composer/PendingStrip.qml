import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model

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

    Flickable {
        width: parent.width
        height: items.length > 0 ? 60 : 0
        contentWidth: row.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Row {
            id: row

            spacing: 6
            height: parent.height

            Repeater {
                model: strip.items

                delegate: Item {
                    id: entry

                    required property var modelData

                    readonly property bool isPhoto: modelData.kind === "photo"

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

            CheckBox {
                id: asFiles

                anchors.verticalCenter: parent.verticalCenter
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
