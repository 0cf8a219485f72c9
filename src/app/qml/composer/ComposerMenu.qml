import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// The composer's context menu: for a misspelt word its corrections, best first,
// and "Add to dictionary"; then the editing commands that apply (hidden, not
// greyed, where they do not: screen readers are told of neither state).
Menu {
    id: menu

    property int start
    // The misspelt word the menu was opened on; "" for none.
    property string word
    property var suggestions: []
    property bool hasSelection: false
    property bool canPaste: false

    signal corrected(int start, string word, string replacement)
    signal added(string word)
    signal cut
    signal copy
    signal paste
    signal selectAll

    title: word !== "" ? qsTr("Spelling")
                         //: The composer's context menu without a misspelt word: the editing commands.
                       : qsTr("Edit")
    // Qt 6.4 names a menu by nothing of its own: its popup item carries the name.
    Component.onCompleted: contentItem.parent.Accessible.name = Qt.binding(() => menu.title)

    background: Rectangle {
        implicitWidth: 200
        radius: 10
        color: Appearance.background
        border.width: 1
        border.color: Appearance.separator
    }

    // Up to five corrections: fixed entries, shown as far as there are any.
    component Correction: MessageMenuItem {
        required property int rank

        text: menu.suggestions[rank] ?? ""
        visible: rank < menu.suggestions.length
        height: visible ? implicitHeight : 0
        font.weight: Font.DemiBold
        onTriggered: menu.corrected(menu.start, menu.word, text)
    }

    Correction { rank: 0 }
    Correction { rank: 1 }
    Correction { rank: 2 }
    Correction { rank: 3 }
    Correction { rank: 4 }
    MenuSeparator {
        visible: menu.suggestions.length > 0
        height: visible ? implicitHeight : 0
    }
    MessageMenuItem {
        //: Keeps a word the spelling check does not know from being marked again.
        text: qsTr("Add to dictionary")
        visible: menu.word !== ""
        height: visible ? implicitHeight : 0
        onTriggered: menu.added(menu.word)
    }
    MenuSeparator {
        visible: menu.word !== ""
        height: visible ? implicitHeight : 0
    }
    MessageMenuItem {
        text: qsTr("Cut")
        visible: menu.hasSelection
        height: visible ? implicitHeight : 0
        onTriggered: menu.cut()
    }
    MessageMenuItem {
        text: qsTr("Copy")
        visible: menu.hasSelection
        height: visible ? implicitHeight : 0
        onTriggered: menu.copy()
    }
    MessageMenuItem {
        text: qsTr("Paste")
        visible: menu.canPaste
        height: visible ? implicitHeight : 0
        onTriggered: menu.paste()
    }
    MessageMenuItem {
        text: qsTr("Select All")
        onTriggered: menu.selectAll()
    }

    // misspelt: {start, word} or an empty object; the field's state decides the rest.
    function openFor(misspelt, corrections, field, x, y) {
        start = misspelt.word === undefined ? 0 : misspelt.start;
        word = misspelt.word ?? "";
        suggestions = corrections;
        hasSelection = field.selectedText !== "";
        canPaste = field.canPaste || Clipboard.hasImage();
        popup(field, x, y);
    }
}
