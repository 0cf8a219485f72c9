import QtQuick
import QtQuick.Layouts
import Vost.App

// The sign-in screen: the step's icon, title and instructions, its field and
// "Continue", the error that answers what was submitted, the start-up progress,
// and the footer.
FocusScope {
    id: view

    property alias session: presenter.session

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Sign in")

    LoginPresenter {
        id: presenter

        onStepChanged: field.forceActiveFocus()
    }

    RegularExpressionValidator {
        id: phoneCharacters

        regularExpression: /\+?[0-9 ()\-]*/
    }

    Rectangle {
        anchors.fill: parent
        color: Appearance.background
    }

    ColumnLayout {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -24
        width: 380
        spacing: 12

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 8
            Accessible.role: Accessible.Grouping
            //: The group of fields where the sign-in details are typed.
            Accessible.name: qsTr("Login Information")

            SymbolIcon {
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: 48
                Layout.preferredHeight: 48
                Layout.bottomMargin: 4
                name: presenter.icon
                color: presenter.isUnavailable ? Appearance.warning : Appearance.accent
            }

            ReadableText {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: presenter.title
                color: Appearance.text
                font.pixelSize: 16
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            ReadableText {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: presenter.instructions
            }

            ReadableText {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                visible: text !== ""
                text: presenter.codeDestination
                color: Appearance.text
                Accessible.ignored: !visible
            }
        }

        LoginField {
            id: field

            Layout.fillWidth: true
            Layout.topMargin: 8
            visible: presenter.hasField
            focus: true
            secure: presenter.isSecure
            placeholderText: presenter.placeholder
            // Digits, a leading "+" and the spaces, dashes and brackets people write numbers with.
            validator: presenter.isPhoneNumber ? phoneCharacters : null
            inputMethodHints: presenter.isPhoneNumber ? Qt.ImhDialableCharactersOnly : Qt.ImhNone
            text: presenter.fieldText
            onTextEdited: presenter.fieldText = text
            onAccepted: presenter.submit()
        }

        ReadableText {
            Layout.fillWidth: true
            visible: presenter.showsHint
            text: presenter.hintLine
            font.pixelSize: 12
        }

        ReadableText {
            Layout.fillWidth: true
            visible: text !== ""
            text: presenter.errorMessage
            color: Appearance.badge
            font.pixelSize: 12
            Accessible.role: Accessible.AlertMessage
        }

        AccentButton {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 4
            visible: presenter.hasField
            enabled: presenter.canContinue
            text: qsTr("Continue")
            onClicked: presenter.submit()
        }

        PlainButton {
            Layout.alignment: Qt.AlignHCenter
            visible: presenter.canChangeNumber
            text: qsTr("Use a different number")
            Accessible.ignored: !visible
            onClicked: presenter.changeNumber()
        }

        ReadableText {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            visible: presenter.isStarting && presenter.startupStatus.length > 0
            text: presenter.startupStatus
            font.pixelSize: 12
        }
    }

    ColumnLayout {
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            margins: 20
        }
        spacing: 4

        ReadableText {
            Layout.alignment: Qt.AlignHCenter
            Layout.maximumWidth: 520
            horizontalAlignment: Text.AlignHCenter
            text: presenter.footer
            font.pixelSize: 12
        }

        ReadableText {
            Layout.alignment: Qt.AlignHCenter
            text: presenter.versionLine
            font.pixelSize: 12
        }
    }
}
