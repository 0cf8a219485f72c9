import QtQuick
import Vost.App

// A small pill naming a day: "Today", "Yesterday", the weekday within a week,
// else the date.
Item {
    id: separator

    property var date

    readonly property string label: date ? Formats.dayLabel(date, AppLanguage.language) : ""

    implicitHeight: 32
    visible: label !== ""

    Rectangle {
        anchors.centerIn: parent
        width: dayText.implicitWidth + 20
        height: 22
        radius: 11
        color: Appearance.neutralBubble

        ReadableText {
            id: dayText

            anchors.centerIn: parent
            text: separator.label
            font.pixelSize: 12
            wrapMode: Text.NoWrap
            Accessible.role: Accessible.Heading
            Accessible.ignored: !separator.visible || !separator.shown
        }
    }

    // Whether the list shows it to assistive technology: set by the delegate.
    property bool shown: true
}
