import QtQuick
import Vost.App
import Vost.Model

// A call: which way it went or how it ended, voice or video, and how long it lasted.
Item {
    id: card

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details
    property bool outgoing: false

    readonly property bool missed: details.callEnd === MessageContent.Missed || details.callEnd === MessageContent.Declined
    readonly property string title: {
        if (details.callEnd === MessageContent.Missed)
            return outgoing ? qsTr("Cancelled call") : qsTr("Missed call");
        if (details.callEnd === MessageContent.Declined)
            return outgoing ? qsTr("Cancelled call") : qsTr("Declined call");
        if (details.callIsVideo)
            return outgoing ? qsTr("Outgoing video call") : qsTr("Incoming video call");
        return outgoing ? qsTr("Outgoing call") : qsTr("Incoming call");
    }
    readonly property color foreground: outgoing ? Appearance.accentText : Appearance.text

    implicitWidth: row.implicitWidth
    implicitHeight: 40
    Accessible.role: Accessible.Grouping
    Accessible.ignored: !card.shown
    //: A call read aloud: %1 what kind of call, %2 how long it lasted.
    Accessible.name: details.duration > 0 ? qsTr("%1, %2").arg(title).arg(Formats.duration(details.duration)) : title

    Row {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        spacing: 10

        Rectangle {
            width: 36
            height: 36
            radius: 18
            color: card.missed ? "#E5484D" : (card.outgoing ? Qt.rgba(1, 1, 1, 0.22) : Appearance.accent)

            SymbolIcon {
                anchors.centerIn: parent
                width: 18
                height: 18
                name: card.details.callIsVideo ? "video.fill" : "phone.fill"
                color: "white"
            }
        }

        Column {
            anchors.verticalCenter: parent.verticalCenter

            Text {
                text: card.title
                color: card.foreground
                font.pixelSize: 14
                font.weight: Font.DemiBold
            }
            Text {
                visible: card.details.duration > 0
                text: Formats.duration(card.details.duration)
                color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.75)
                font.pixelSize: 12
            }
        }
    }
}
