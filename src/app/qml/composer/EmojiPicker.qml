import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Vost.App
import Vost.Model

// The emoji picker: a search by name, a button for each group, and the emoji 8
// across, the recently used ones first. A click inserts the emoji and keeps the
// panel open for the next one.
PickerPanel {
    id: picker

    signal chosen(string emoji)
    // The emoji picked since the panel opened: they join the recent ones when it
    // closes, so that the grid does not move under the pointer.
    property var picked: []

    name: qsTr("Emoji picker")

    onOpened: search.forceActiveFocus()
    onClosed: {
        for (const emoji of picked)
            allEmoji.remember(emoji);
        picked = [];
    }

    function groupName(group) {
        switch (group) {
        //: Emoji sent lately.
        case EmojiGroup.Recent: return qsTr("Recent");
        case EmojiGroup.SmileysAndEmotion: return qsTr("Smileys & Emotion");
        case EmojiGroup.PeopleAndBody: return qsTr("People & Body");
        case EmojiGroup.AnimalsAndNature: return qsTr("Animals & Nature");
        case EmojiGroup.FoodAndDrink: return qsTr("Food & Drink");
        case EmojiGroup.TravelAndPlaces: return qsTr("Travel & Places");
        case EmojiGroup.Activities: return qsTr("Activities");
        case EmojiGroup.Objects: return qsTr("Objects");
        case EmojiGroup.Symbols: return qsTr("Symbols");
        default: return qsTr("Flags");
        }
    }

    EmojiListModel {
        id: allEmoji
    }

    EmojiSearchModel {
        id: found

        sourceModel: allEmoji
        searchText: search.text
    }

    contentItem: ColumnLayout {
        spacing: 6

        LoginField {
            id: search

            Layout.fillWidth: true
            implicitHeight: 30
            font.pixelSize: 13
            placeholderText: qsTr("Search emoji")
        }

        Row {
            Layout.alignment: Qt.AlignHCenter
            visible: search.text === ""
            spacing: 2

            Repeater {
                model: [{group: EmojiGroup.Recent, glyph: "🕘"}, {group: EmojiGroup.SmileysAndEmotion, glyph: "😀"},
                        {group: EmojiGroup.PeopleAndBody, glyph: "👋"}, {group: EmojiGroup.AnimalsAndNature, glyph: "🐱"},
                        {group: EmojiGroup.FoodAndDrink, glyph: "🍎"}, {group: EmojiGroup.TravelAndPlaces, glyph: "🚗"},
                        {group: EmojiGroup.Activities, glyph: "⚽"}, {group: EmojiGroup.Objects, glyph: "💡"},
                        {group: EmojiGroup.Symbols, glyph: "❤️"}, {group: EmojiGroup.Flags, glyph: "🏁"}]

                delegate: IconButton {
                    required property var modelData

                    glyph: modelData.glyph
                    tint: Appearance.text
                    Accessible.name: picker.groupName(modelData.group)
                    onClicked: {
                        const row = found.firstRowOf(modelData.group);
                        if (row >= 0)
                            grid.positionViewAtIndex(row, GridView.Beginning);
                    }
                }
            }
        }

        GridView {
            id: grid

            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            cellWidth: Math.floor(width / 8)
            cellHeight: 36
            model: found
            boundsBehavior: Flickable.StopAtBounds
            keyNavigationEnabled: true
            activeFocusOnTab: true
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Emoji")
            ScrollBar.vertical: ScrollBar {
                Accessible.name: qsTr("Scroll emoji")
                Accessible.ignored: !visible || size >= 1
            }

            delegate: AbstractButton {
                id: cell

                required property int index
                required property string emoji
                required property string name

                readonly property bool onScreen: GridView.view !== null && y + height > GridView.view.contentY
                                                 && y < GridView.view.contentY + GridView.view.height

                width: grid.cellWidth
                height: grid.cellHeight
                hoverEnabled: true
                focusPolicy: Qt.NoFocus
                Accessible.role: Accessible.Button
                Accessible.name: emoji + " " + name
                Accessible.ignored: !onScreen
                Accessible.onPressAction: choose()
                onClicked: choose()
                ToolTip.visible: hovered
                ToolTip.delay: 700
                ToolTip.text: name

                function choose() {
                    picker.chosen(emoji);
                    picker.picked = picker.picked.concat([emoji]);
                }

                background: Rectangle {
                    radius: 8
                    color: cell.hovered || (grid.activeFocus && grid.currentIndex === cell.index)
                           ? Qt.rgba(Appearance.text.r, Appearance.text.g, Appearance.text.b, 0.08) : "transparent"
                }
                contentItem: Text {
                    text: MessageText.emojiGlyphs(cell.emoji)
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    font.pixelSize: 22
                    font.family: Appearance.emojiFontFamily
                }
            }

            Keys.onReturnPressed: if (currentItem) currentItem.choose()
        }

        ReadableText {
            Layout.alignment: Qt.AlignHCenter
            visible: grid.count === 0
            text: qsTr("No emoji found")
        }
    }
}
