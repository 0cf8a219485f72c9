import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// What to do with a misspelt word of the composer: its corrections, best first,
// and "Add to dictionary".
Menu {
    id: menu

    property int start
    property string word
    property var suggestions: []

    signal corrected(int start, string word, string replacement)
    signal added(string word)

    title: qsTr("Spelling")
    // Qt 6.4 names a menu by nothing of its own: its popup item carries the name.
    Component.onCompleted: contentItem.parent.Accessible.name = title

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
        onTriggered: menu.added(menu.word)
    }

    function openFor(misspelt, corrections, anchor, x, y) {
        start = misspelt.start;
        word = misspelt.word;
        suggestions = corrections;
        popup(anchor, x, y);
    }
}
