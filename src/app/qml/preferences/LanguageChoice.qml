import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Vost.App

// "Language" and a compact drop-down: the system's language or one of the
// program's, each named in its own language whatever the page speaks. A choice
// applies at once.
RowLayout {
    id: row

    spacing: 12

    //: The language that follows the system's own.
    readonly property var options: [{code: "", name: qsTr("System", "language")}].concat(AppLanguage.choices)
    readonly property string chosenName: {
        for (const option of options) {
            if (option.code === AppLanguage.choice)
                return option.name;
        }
        return "";
    }

    ReadableText {
        text: qsTr("Language")
        font.pixelSize: 13
        Accessible.ignored: true
    }

    Button {
        id: button

        implicitHeight: 30
        implicitWidth: Math.max(160, contentItem.implicitWidth + 16)
        font.pixelSize: 13
        Accessible.role: Accessible.ComboBox
        Accessible.name: qsTr("Language")
        Accessible.description: row.chosenName
        Accessible.onPressAction: menu.open()
        Keys.onReturnPressed: menu.open()
        Keys.onEnterPressed: menu.open()
        Keys.onSpacePressed: menu.open()
        onClicked: menu.open()

        contentItem: RowLayout {
            spacing: 6

            Text {
                Layout.fillWidth: true
                leftPadding: 10
                text: row.chosenName
                font: button.font
                color: Appearance.text
                elide: Text.ElideRight
                verticalAlignment: Text.AlignVCenter
            }
            Text {
                rightPadding: 8
                text: "▾"
                font.pixelSize: 11
                color: Appearance.secondaryText
            }
        }

        background: Rectangle {
            radius: 8
            color: Appearance.fieldBackground
            opacity: button.down ? 0.7 : 1.0
            border.width: button.visualFocus ? 2 : 1
            border.color: button.visualFocus ? Appearance.accent : Appearance.separator
        }

        Menu {
            id: menu

            y: button.height + 2
            title: qsTr("Language")
            // Qt 6.4 names a menu by nothing of its own: its popup item carries the name.
            Component.onCompleted: contentItem.parent.Accessible.name = title

            background: Rectangle {
                implicitWidth: button.width
                radius: 10
                color: Appearance.background
                border.width: 1
                border.color: Appearance.separator
            }

            Instantiator {
                model: row.options
                onObjectAdded: (index, object) => menu.insertItem(index, object)
                onObjectRemoved: (index, object) => menu.removeItem(object)

                delegate: MessageMenuItem {
                    required property var modelData

                    text: modelData.name
                    checkable: true
                    checked: AppLanguage.choice === modelData.code
                    Accessible.checkable: true
                    Accessible.checked: checked
                    onTriggered: {
                        AppLanguage.choice = modelData.code;
                        // Clicking flipped the check box; the stored choice decides it.
                        checked = Qt.binding(() => AppLanguage.choice === modelData.code);
                    }
                }
            }
        }
    }
}
