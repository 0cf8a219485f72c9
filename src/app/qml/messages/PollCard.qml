import QtQuick
import Vost.App

// A poll, read only: its question, each option with its share of the votes, and
// how many voted.
Item {
    id: card

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details
    property bool outgoing: false

    readonly property color foreground: outgoing ? Appearance.accentText : Appearance.text
    readonly property string kindText: details.pollIsQuiz ? qsTr("Quiz") : (details.pollIsAnonymous ? qsTr("Anonymous poll") : qsTr("Poll"))

    implicitWidth: 280
    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.ignored: !card.shown
    Accessible.name: qsTr("%1: %2").arg(kindText).arg(details.pollQuestion)

    Column {
        id: column

        width: parent.width
        spacing: 6

        Row {
            spacing: 6

            SymbolIcon {
                width: 14
                height: 14
                anchors.verticalCenter: parent.verticalCenter
                name: "chart.bar.fill"
                color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.75)
            }
            Text {
                text: card.details.pollIsClosed ? qsTr("%1, closed").arg(card.kindText) : card.kindText
                color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.75)
                font.pixelSize: 12
            }
        }

        Text {
            width: parent.width
            text: card.details.pollQuestion
            wrapMode: Text.Wrap
            color: card.foreground
            font.pixelSize: 14
            font.weight: Font.DemiBold
        }

        Repeater {
            model: card.details.pollChoices

            delegate: Item {
                id: choice

                required property var modelData

                width: column.width
                height: 30
                Accessible.role: Accessible.ListItem
                Accessible.ignored: !card.shown
                //: A poll's answer read aloud: %1 is the answer, %2 the share of votes in percent.
                Accessible.name: qsTr("%1, %2 %").arg(modelData.text).arg(modelData.percentage)

                Text {
                    id: percentage

                    width: 38
                    text: choice.modelData.percentage + "%"
                    color: card.foreground
                    font.pixelSize: 13
                    font.weight: Font.DemiBold
                }
                Text {
                    anchors {
                        left: percentage.right
                        right: parent.right
                    }
                    text: choice.modelData.text
                    elide: Text.ElideRight
                    color: card.foreground
                    font.pixelSize: 13
                    font.weight: choice.modelData.isChosen ? Font.DemiBold : Font.Normal
                }
                Rectangle {
                    anchors {
                        left: percentage.right
                        right: parent.right
                        bottom: parent.bottom
                        bottomMargin: 4
                    }
                    height: 4
                    radius: 2
                    color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.15)

                    Rectangle {
                        width: parent.width * choice.modelData.percentage / 100
                        height: parent.height
                        radius: 2
                        color: card.outgoing ? Appearance.accentText : Appearance.accent
                    }
                }
            }
        }

        Text {
            //: How many people voted in the poll.
            text: qsTr("%n vote(s)", "", card.details.pollVoterCount ?? 0)
            color: Qt.rgba(card.foreground.r, card.foreground.g, card.foreground.b, 0.75)
            font.pixelSize: 12
        }
    }
}
