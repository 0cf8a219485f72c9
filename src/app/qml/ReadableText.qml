import QtQuick
import Vost.App

// A line or paragraph a screen reader reads: named by its text and exposed only
// while it shows. Its role is a paragraph, not a label, because Qt 6.4 offers
// every label as a focus target.
Text {
    color: Appearance.secondaryText
    font.pixelSize: 13
    wrapMode: Text.WordWrap
    Accessible.role: Accessible.Paragraph
    Accessible.name: text
    Accessible.ignored: !visible || text === ""
}
