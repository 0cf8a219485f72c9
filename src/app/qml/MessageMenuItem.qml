import QtQuick
import QtQuick.Controls.Basic
import Vost.App

// An entry of a menu whose accessible Press action triggers it (Qt 6.4's menu
// items have none of their own).
MenuItem {
    id: item

    property bool destructive: false

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.ignored: !visible
    Accessible.onPressAction: if (enabled) item.clicked()

    contentItem: Text {
        leftPadding: item.indicator ? item.indicator.width + item.spacing : 0
        text: item.text
        font: item.font
        color: item.destructive ? Appearance.badge : Appearance.text
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    background: Rectangle {
        implicitHeight: 32
        color: item.highlighted ? Qt.rgba(Appearance.accent.r, Appearance.accent.g, Appearance.accent.b, 0.18)
                                : "transparent"
    }
}
