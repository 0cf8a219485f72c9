import QtQuick
import Vost.App

// A ring that fills as a file arrives (progress from 0 to 1), over a dimmed
// round; a full circle turning slowly while nothing is known yet.
Item {
    id: ring

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    // 0 to 1; below 0 while the download's progress is unknown.
    property real progress: -1

    implicitWidth: 40
    implicitHeight: 40
    Accessible.role: Accessible.ProgressBar
    //: %1 is how much has come, in percent.
    Accessible.name: progress >= 0 ? qsTr("Downloading, %1 %").arg(Math.round(progress * 100)) : qsTr("Downloading")
    Accessible.ignored: !visible || !ring.shown

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: Qt.rgba(0, 0, 0, 0.45)
    }

    Canvas {
        id: arc

        anchors.fill: parent
        anchors.margins: 6
        rotation: ring.progress < 0 ? spin.angle : -90
        onPaint: {
            const context = getContext("2d");
            context.reset();
            context.strokeStyle = "white";
            context.lineWidth = 2.5;
            context.lineCap = "round";
            context.beginPath();
            const sweep = ring.progress < 0 ? 1.5 : Math.max(0.05, ring.progress) * 2 * Math.PI;
            context.arc(width / 2, height / 2, width / 2 - 2, 0, sweep, false);
            context.stroke();
        }

        Connections {
            target: ring

            function onProgressChanged() {
                arc.requestPaint();
            }
        }
    }

    QtObject {
        id: spin

        property real angle: 0
    }

    NumberAnimation {
        target: spin
        property: "angle"
        from: 0
        to: 360
        duration: 1200
        loops: Animation.Infinite
        // Nothing turns in a hidden popover.
        running: ring.visible && ring.progress < 0 && ring.Window.window !== null && ring.Window.window.visible
    }
}
