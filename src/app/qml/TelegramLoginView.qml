import QtQuick
import QtQuick.Layouts
import Vost.App

// The sign-in screen: the step's icon, title and instructions, its field and
// "Continue", the session's error and start-up texts, and the footer.
FocusScope {
    id: view

    property alias session: presenter.session

    Accessible.role: Accessible.Pane
    Accessible.name: "Sign in"

    LoginPresenter {
        id: presenter

        onStepChanged: field.forceActiveFocus()
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
            Accessible.name: "Login Information"

            SymbolIcon {
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: 48
                Layout.preferredHeight: 48
                Layout.bottomMargin: 4
                name: presenter.icon
                color: presenter.icon === "exclamationmark.triangle.fill" ? Appearance.warning : Appearance.accent
                Accessible.role: Accessible.Graphic
                Accessible.name: presenter.title
            }

            Text {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                text: presenter.title
                color: Appearance.text
                font.pixelSize: 16
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            Text {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                text: presenter.instructions
                color: Appearance.secondaryText
                font.pixelSize: 13
                Accessible.role: Accessible.StaticText
                Accessible.name: text
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
            text: presenter.fieldText
            onTextEdited: presenter.fieldText = text
            onAccepted: presenter.submit()
        }

        Text {
            Layout.fillWidth: true
            visible: presenter.showsHint
            text: presenter.hintLine
            color: Appearance.secondaryText
            font.pixelSize: 12
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Text {
            Layout.fillWidth: true
            visible: presenter.errorMessage.length > 0
            text: presenter.errorMessage
            color: Appearance.badge
            font.pixelSize: 12
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }

        AccentButton {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 4
            visible: presenter.hasField
            enabled: presenter.canContinue
            text: "Continue"
            onClicked: presenter.submit()
        }

        Text {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            visible: presenter.isStarting && presenter.startupStatus.length > 0
            text: presenter.startupStatus
            color: Appearance.secondaryText
            font.pixelSize: 12
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
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

        Text {
            Layout.alignment: Qt.AlignHCenter
            Layout.maximumWidth: 520
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: presenter.footer
            color: Appearance.secondaryText
            font.pixelSize: 12
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Text {
            Layout.alignment: Qt.AlignHCenter
            text: presenter.versionLine
            color: Appearance.secondaryText
            font.pixelSize: 12
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
