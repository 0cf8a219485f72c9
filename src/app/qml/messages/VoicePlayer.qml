import QtQuick
import Vost.App

// A voice message or an audio file: play and pause, how far it has played, the
// elapsed and the whole time, and an audio file's performer and title. Playing
// one stops any other.
Item {
    id: voice

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details
    // The downloaded file; "" until it is here.
    required property string path
    required property AudioPlayback playback
    property bool isAudio: false
    property bool outgoing: false

    readonly property bool isCurrent: path !== "" && playback.path === path
    readonly property bool playing: isCurrent && playback.playing
    readonly property real total: isCurrent && playback.duration > 0 ? playback.duration / 1000 : details.duration
    readonly property real elapsed: isCurrent ? playback.position / 1000 : 0
    readonly property string label: isAudio ? [details.performer, details.title].filter(part => part !== "").join(" — ")
                                            : ""
    readonly property color foreground: outgoing ? Appearance.accentText : Appearance.text

    implicitWidth: 260
    implicitHeight: 48
    Accessible.role: Accessible.Grouping
    Accessible.ignored: !voice.shown
    Accessible.name: isAudio ? qsTr("Audio %1, %2").arg(label !== "" ? label : details.fileName).arg(Formats.duration(details.duration))
                             : qsTr("Voice message, %1").arg(Formats.duration(details.duration))

    IconButton {
        id: button

        anchors.verticalCenter: parent.verticalCenter
        side: 40
        symbol: voice.playing ? "pause.fill" : "play.fill"
        tint: voice.outgoing ? Appearance.accent : Appearance.accentText
        enabled: voice.path !== ""
        //: Verbs: the voice message's play button.
        Accessible.name: voice.playing ? qsTr("Pause") : qsTr("Play")
        Accessible.ignored: !visible || !voice.shown
        onClicked: voice.playback.toggle(voice.path)

        background: Rectangle {
            radius: 20
            color: voice.outgoing ? Appearance.accentText : Appearance.accent
            opacity: button.enabled ? (button.down ? 0.8 : 1) : 0.4
            border.width: button.visualFocus ? 2 : 0
            border.color: Appearance.text
        }
    }

    Column {
        anchors {
            left: button.right
            leftMargin: 10
            right: parent.right
            verticalCenter: parent.verticalCenter
        }
        spacing: 4

        Text {
            width: parent.width
            visible: voice.label !== ""
            text: voice.label
            elide: Text.ElideRight
            color: voice.foreground
            font.pixelSize: 13
            font.weight: Font.DemiBold
        }

        // How far it has played.
        Rectangle {
            width: parent.width
            height: 4
            radius: 2
            color: Qt.rgba(voice.foreground.r, voice.foreground.g, voice.foreground.b, 0.25)

            Rectangle {
                width: voice.total > 0 ? parent.width * Math.min(1, voice.elapsed / voice.total) : 0
                height: parent.height
                radius: 2
                // The played part in the accent colour (on an outgoing bubble, its text colour).
                color: voice.outgoing ? Appearance.accentText : Appearance.accent
            }
        }

        ReadableText {
            //: The time played and the whole length, as in "0:12 of 1:05".
            text: voice.isCurrent ? qsTr("%1 of %2").arg(Formats.duration(voice.elapsed)).arg(Formats.duration(voice.total))
                                  : Formats.duration(voice.total)
            color: Qt.rgba(voice.foreground.r, voice.foreground.g, voice.foreground.b, 0.75)
            font.pixelSize: 12
            wrapMode: Text.NoWrap
            Accessible.ignored: !visible || !voice.shown
        }
    }
}
