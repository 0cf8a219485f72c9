import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Vost.App
import Vost.Model
import Vost.Render

// The sticker picker: "Recent", "Installed" and "Trending", a search by emoji or
// keyword, and the stickers 4 across. It asks the session for stickers when it
// opens, when the tab changes and, a moment after the last key, as the search
// changes. Animated stickers play while the pointer is on them.
PickerPanel {
    id: picker

    required property ChatViewModel viewModel
    required property SessionAccess session
    required property StickerListModel stickers

    property string source: "recent"

    signal chosen(int row)

    name: qsTr("Sticker picker")

    function load() {
        picker.session.loadStickers(search.text, picker.source);
    }

    onOpened: {
        load();
        search.forceActiveFocus();
    }
    onSourceChanged: if (opened) load()

    Timer {
        id: searchDelay

        interval: 300
        onTriggered: picker.load()
    }

    contentItem: ColumnLayout {
        spacing: 6

        Row {
            Layout.alignment: Qt.AlignHCenter
            spacing: 4

            Repeater {
                //: Tabs of the sticker picker: stickers sent lately, then installed, then popular ones.
                model: [{source: "recent", label: qsTr("Recent")},
                        {source: "installed", label: qsTr("Installed")},
                        {source: "trending", label: qsTr("Trending")}]

                delegate: TabButton {
                    id: tab

                    required property var modelData

                    readonly property bool selected: picker.source === modelData.source

                    implicitWidth: label.implicitWidth + 24
                    implicitHeight: 28
                    focusPolicy: Qt.StrongFocus
                    checked: selected
                    Accessible.name: modelData.label
                    Accessible.selected: selected
                    Accessible.onPressAction: picker.source = modelData.source
                    onClicked: picker.source = modelData.source
                    Keys.onReturnPressed: picker.source = modelData.source

                    background: Rectangle {
                        radius: 14
                        color: tab.selected ? Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.18)
                                            : "transparent"
                        border.width: tab.visualFocus ? 2 : 0
                        border.color: Appearance.accent
                    }
                    contentItem: Text {
                        id: label

                        text: tab.modelData.label
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                        color: tab.selected ? Appearance.accent : Appearance.text
                        font.pixelSize: 13
                    }
                }
            }
        }

        LoginField {
            id: search

            Layout.fillWidth: true
            implicitHeight: 30
            font.pixelSize: 13
            placeholderText: qsTr("Search stickers")
            onTextEdited: searchDelay.restart()
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            GridView {
                id: grid

                anchors.fill: parent
                clip: true
                cellWidth: Math.floor(width / 4)
                cellHeight: 76
                model: picker.stickers
                boundsBehavior: Flickable.StopAtBounds
                keyNavigationEnabled: true
                activeFocusOnTab: true
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Stickers")
                ScrollBar.vertical: ScrollBar {
                    Accessible.name: qsTr("Scroll stickers")
                    Accessible.ignored: !visible || size >= 1
                }

                delegate: AbstractButton {
                    id: cell

                    required property int index
                    required property string emoji
                    required property string path
                    required property int format

                    readonly property bool onScreen: GridView.view !== null && y + height > GridView.view.contentY
                                                     && y < GridView.view.contentY + GridView.view.height

                    width: grid.cellWidth
                    height: grid.cellHeight
                    hoverEnabled: true
                    focusPolicy: Qt.NoFocus
                    Accessible.role: Accessible.Button
                    Accessible.name: qsTr("Sticker %1").arg(emoji)
                    Accessible.ignored: !onScreen
                    Accessible.onPressAction: picker.chosen(index)
                    onClicked: picker.chosen(index)

                    background: Rectangle {
                        radius: 10
                        color: cell.hovered || (grid.activeFocus && grid.currentIndex === cell.index)
                               ? Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.07) : "transparent"
                    }
                    contentItem: StickerView {
                        path: cell.path
                        format: cell.format
                        emoji: cell.emoji
                        playing: cell.hovered
                        Accessible.ignored: true
                    }
                }

                Keys.onReturnPressed: if (currentIndex >= 0) picker.chosen(currentIndex)
            }

            ReadableText {
                anchors.centerIn: parent
                width: parent.width - 24
                horizontalAlignment: Text.AlignHCenter
                visible: picker.viewModel.stickerError !== "" || (grid.count === 0 && picker.viewModel.recentStickersLoaded)
                text: picker.viewModel.stickerError !== "" ? picker.viewModel.stickerError
                                                           : (search.text !== "" ? qsTr("No stickers found") : qsTr("No stickers here yet"))
            }

            Item {
                anchors.centerIn: parent
                width: 28
                height: 28
                visible: !picker.viewModel.recentStickersLoaded && picker.viewModel.stickerError === ""
                Accessible.role: Accessible.ProgressBar
                Accessible.name: qsTr("Loading stickers")
                Accessible.ignored: !visible

                BusyIndicator {
                    anchors.fill: parent
                    running: parent.visible
                    Accessible.ignored: true
                }
            }
        }
    }
}
