import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Vost.App
import Vost.Model

// The preferences page, over the whole popover: appearance, language, spelling,
// sounds and their pack (each pack previews itself when chosen), notifications,
// the shortcut that opens Vost, starting at login, the account with "Change
// account", and the version. Esc or "Back" returns to the chats.
FocusScope {
    id: page

    required property AppRootView host
    readonly property Preferences preferences: AppPreferences.preferences

    signal closed

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Preferences")
    Keys.onEscapePressed: page.closed()

    Rectangle {
        anchors.fill: parent
        color: Appearance.background

        // The chats underneath get no pointer: no hover, click or wheel passes.
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.AllButtons
            onWheel: wheel => wheel.accepted = true
        }
    }

    Item {
        id: header

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
        }
        height: 52

        IconButton {
            id: back

            anchors {
                left: parent.left
                leftMargin: 10
                verticalCenter: parent.verticalCenter
            }
            symbol: "chevron.left"
            directional: true
            Accessible.name: qsTr("Back")
            onClicked: page.closed()
        }

        Text {
            anchors {
                left: back.right
                leftMargin: 8
                verticalCenter: parent.verticalCenter
            }
            text: qsTr("Preferences")
            color: Appearance.text
            font.pixelSize: 16
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Rectangle {
            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
            }
            height: 1
            color: Appearance.separator
        }
    }

    Flickable {
        id: scroller

        anchors {
            left: parent.left
            right: parent.right
            top: header.bottom
            bottom: parent.bottom
        }
        contentHeight: content.implicitHeight + 2 * content.y
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {
            // Shown for good when the page is taller than the popover: it says there is more below.
            policy: scroller.contentHeight > scroller.height ? ScrollBar.AlwaysOn : ScrollBar.AsNeeded
            Accessible.name: qsTr("Scroll preferences")
            Accessible.ignored: !visible || size >= 1
        }

        ColumnLayout {
            id: content

            x: 40
            y: 14
            width: Math.min(560, scroller.width - 80)
            spacing: 8

            component SectionTitle: Text {
                Layout.topMargin: 10
                color: Appearance.secondaryText
                font.pixelSize: 12
                font.weight: Font.DemiBold
                font.capitalization: Font.AllUppercase
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            SectionTitle {
                Layout.topMargin: 0
                //: Titles of the preferences' sections.
                text: qsTr("Appearance")
            }
            RowLayout {
                spacing: 16

                Repeater {
                    //: The appearance that follows the system's light or dark setting.
                    model: [{mode: "system", label: qsTr("System")}, {mode: "light", label: qsTr("Light")},
                        {mode: "dark", label: qsTr("Dark")}]

                    delegate: PreferenceChoice {
                        required property var modelData

                        text: modelData.label
                        chosen: Appearance.mode === modelData.mode
                        onPicked: Appearance.mode = modelData.mode
                    }
                }
                // On the appearance's line: the page fits the popover whole.
                LanguageChoice {
                    Layout.leftMargin: 24
                }
                PreferenceCheck {
                    Layout.leftMargin: 24
                    //: Whether the composer underlines misspelt words.
                    text: qsTr("Check spelling")
                    value: page.preferences.checksSpelling
                    onFlipped: on => page.preferences.checksSpelling = on
                }
            }

            SectionTitle {
                text: qsTr("Sounds")
            }
            PreferenceCheck {
                text: qsTr("Play sounds")
                value: page.preferences.soundsEnabled
                onFlipped: on => page.preferences.soundsEnabled = on
            }
            ReadableText {
                text: qsTr("Sound pack")
                font.pixelSize: 13
            }
            RowLayout {
                spacing: 16

                Repeater {
                    model: page.preferences.soundPacks

                    delegate: PreferenceChoice {
                        required property string modelData

                        // The packs' names as people read them.
                        //: Names of the sound packs.
                        text: ({crystal: qsTr("Crystal"), gentle: qsTr("Gentle"), classic: qsTr("Classic"),
                                playful: qsTr("Playful")})[modelData]
                        chosen: page.preferences.soundPack === modelData
                        onPicked: {
                            page.preferences.soundPack = modelData;
                            page.preferences.previewSoundPack(modelData);
                        }
                    }
                }
            }

            SectionTitle {
                text: qsTr("Notifications")
            }
            RowLayout {
                spacing: 24

                PreferenceCheck {
                    text: qsTr("Show notifications")
                    value: page.preferences.showsNotifications
                    onFlipped: on => page.preferences.showsNotifications = on
                }
                // Beside the notifications: the page fits the popover whole.
                ShortcutChoice {}
            }
            PreferenceCheck {
                text: qsTr("Start Vost when I sign in to my computer")
                value: AppPreferences.startsAtLogin
                onFlipped: on => AppPreferences.startsAtLogin = on
            }

            SectionTitle {
                text: qsTr("Account")
            }
            RowLayout {
                spacing: 12

                Column {
                    Layout.fillWidth: true

                    ReadableText {
                        text: page.host.access.currentAccountName
                        font.pixelSize: 14
                        font.weight: Font.DemiBold
                    }
                    ReadableText {
                        text: Formats.phoneNumber(page.host.access.currentAccountPhoneNumber)
                        color: Appearance.secondaryText
                        font.pixelSize: 12
                    }
                }
                PlainButton {
                    //: A verb: sign out and sign in to another account.
                    text: qsTr("Change account")
                    onClicked: changeAccount.open()
                }
            }
            ReadableText {
                visible: AppPreferences.isDemoAccount
                text: qsTr("Demo account: nothing leaves this computer")
                color: Appearance.secondaryText
                font.pixelSize: 12
                Accessible.ignored: !visible
            }

            ReadableText {
                Layout.topMargin: 10
                //: %1 is the version, such as 0.1.0.
                text: qsTr("Vost %1").arg(AppPreferences.version)
                color: Appearance.secondaryText
                font.pixelSize: 12
            }
        }
    }

    ConfirmDialog {
        id: changeAccount

        parent: page
        question: qsTr("Sign out of this account and sign in to another?")
        actionText: qsTr("Change account")
        onConfirmed: {
            page.closed();
            page.host.access.logOutAndChangeAccount();
        }
    }
}
