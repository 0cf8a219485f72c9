import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import QtQuick.Window
import Vost.App
import Vost.Model

// "Shortcut to open Vost": a button showing the shortcut, or "None". A click
// records the next key combination with Ctrl, Alt or Meta; Esc leaves it as it was,
// Backspace or Delete clears it. A short note says when the desktop refused it.
RowLayout {
    id: row

    readonly property Preferences preferences: AppPreferences.preferences
    property bool recording: false
    //: Shown on the shortcut's button while it waits for a key combination.
    readonly property string waitingText: qsTr("Press keys…")
    //: On the shortcut's button when no shortcut is chosen.
    readonly property string noneText: qsTr("None", "shortcut")

    spacing: 8
    // While recording the old shortcut rests; a popover that closes ends the recording.
    onRecordingChanged: AppPreferences.recordsShortcut = recording
    Window.onActiveChanged: if (!Window.active) recording = false
    Component.onDestruction: AppPreferences.recordsShortcut = false

    ReadableText {
        text: qsTr("Shortcut to open Vost")
        font.pixelSize: 13
        Accessible.ignored: true
    }

    Button {
        id: button

        implicitHeight: 30
        implicitWidth: Math.max(96, contentItem.implicitWidth + 20)
        font.pixelSize: 13
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Shortcut to open Vost")
        Accessible.description: label.text
        Accessible.onPressAction: row.startRecording()
        // The window's own shortcuts (Ctrl+Q) wait while a combination is recorded.
        Keys.onShortcutOverride: event => event.accepted = row.recording
        Keys.onPressed: event => row.keyPressed(event)
        onClicked: row.startRecording()
        onActiveFocusChanged: if (!activeFocus) row.recording = false

        contentItem: Text {
            id: label

            text: row.recording ? row.waitingText : (row.preferences.globalShortcutLabel || row.noneText)
            font: button.font
            color: row.recording ? Appearance.accent : Appearance.text
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }

        background: Rectangle {
            radius: 8
            color: Appearance.fieldBackground
            opacity: button.down ? 0.7 : 1.0
            border.width: button.visualFocus || row.recording ? 2 : 1
            border.color: button.visualFocus || row.recording ? Appearance.accent : Appearance.separator
        }
    }

    ReadableText {
        visible: text !== ""
        text: {
            switch (AppPreferences.shortcutStatus) {
            case AppPreferences.Taken:
                return qsTr("Taken by another program");
            case AppPreferences.Unavailable:
                return qsTr("Not available on this desktop");
            case AppPreferences.Refused:
                //: The desktop was asked for the shortcut and did not give it.
                return qsTr("Not allowed by the desktop");
            }
            return "";
        }
        color: Appearance.secondaryText
        font.pixelSize: 12
        Accessible.ignored: !visible
    }

    function startRecording() {
        recording = true;
        button.forceActiveFocus();
    }

    // While recording every key is the shortcut's; otherwise Return, Enter and Space
    // start recording as a click does.
    function keyPressed(event) {
        if (!recording) {
            if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space) {
                startRecording();
                event.accepted = true;
            }
            return;
        }
        event.accepted = true;
        if (event.modifiers === Qt.NoModifier && event.key === Qt.Key_Escape) {
            recording = false;
        } else if (event.modifiers === Qt.NoModifier && (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete)) {
            preferences.globalShortcut = "";
            recording = false;
        } else {
            const shortcut = preferences.shortcutForKeyPress(event.key, event.modifiers);
            if (shortcut !== "") {
                preferences.globalShortcut = shortcut;
                recording = false;
            }
        }
    }
}
