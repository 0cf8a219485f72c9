import QtQuick
import QtQuick.Layouts
import Vost.App

// Shown instead of everything else when this copy has no API credentials.
Rectangle {
    color: Appearance.background
    Accessible.role: Accessible.Grouping
    Accessible.name: title.text

    ColumnLayout {
        anchors.centerIn: parent
        width: 380
        spacing: 10

        SymbolIcon {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 44
            Layout.preferredHeight: 44
            name: "exclamationmark.triangle"
            color: Appearance.warning
        }

        ReadableText {
            id: title

            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("Vost needs to be reinstalled")
            color: Appearance.text
            font.pixelSize: 16
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        ReadableText {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("This copy of Vost is missing its application configuration. Please install the latest complete release from the app’s distributor.")
        }
    }
}
