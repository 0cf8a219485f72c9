import QtQuick
import Vost.App

// A shared place: a pin on a quiet grid, the place's name and address (a venue)
// or its coordinates, and "Open map" for a public map site at that spot.
Item {
    id: card

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details
    property bool outgoing: false

    readonly property string coordinates: Formats.coordinates(details.latitude, details.longitude)
    readonly property color foreground: outgoing ? Appearance.accentText : Appearance.text

    implicitWidth: 260
    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.ignored: !card.shown
    Accessible.name: details.placeName !== "" ? qsTr("Location %1").arg(details.placeName)
                                              : qsTr("Location %1").arg(coordinates)

    Column {
        id: column

        width: parent.width
        spacing: 6

        Rectangle {
            width: parent.width
            height: 96
            radius: 10
            color: card.outgoing ? Qt.rgba(1, 1, 1, 0.16) : Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.10)
            clip: true

            // Streets, hinted at.
            Repeater {
                model: 6
                Rectangle {
                    required property int index
                    x: index * 48 - 10
                    y: -20
                    width: 2
                    height: 140
                    rotation: 20
                    color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.10)
                }
            }
            Repeater {
                model: 3
                Rectangle {
                    required property int index
                    y: 18 + index * 30
                    width: parent.width
                    height: 2
                    color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.10)
                }
            }

            SymbolIcon {
                anchors.centerIn: parent
                anchors.verticalCenterOffset: -8
                width: 30
                height: 30
                name: "mappin"
                color: "#E5484D"
            }
        }

        Text {
            width: parent.width
            visible: card.details.placeName !== ""
            text: card.details.placeName
            elide: Text.ElideRight
            color: card.foreground
            font.pixelSize: 14
            font.weight: Font.DemiBold
        }

        Text {
            width: parent.width
            text: card.details.address !== "" ? card.details.address : card.coordinates
            elide: Text.ElideRight
            color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.75)
            font.pixelSize: 12
        }

        PlainButton {
            text: qsTr("Open map")
            Accessible.ignored: !visible || !card.shown
            implicitHeight: 28
            font.pixelSize: 13
            onClicked: Qt.openUrlExternally("https://www.openstreetmap.org/?mlat=%1&mlon=%2#map=16/%1/%2"
                                            .arg(card.details.latitude).arg(card.details.longitude))
        }
    }
}
