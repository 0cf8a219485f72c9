import QtQuick
import Vost.App
import Vost.Model

// Under the search field while TDLib's link to Telegram is not up: what it is
// doing, so that an empty or stale list has its reason. Nothing while ready.
Item {
    id: status

    // A Model.ConnectionState.
    required property int connectionState

    visible: line.text !== ""
    implicitHeight: visible ? line.implicitHeight : 0

    ReadableText {
        id: line

        anchors {
            left: parent.left
            right: parent.right
        }
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        font.pixelSize: 12
        text: {
            switch (status.connectionState) {
            case Model.ConnectionState.WaitingForNetwork:
                //: Above the chat list while the computer has no network connection
                return qsTr("Waiting for network…");
            case Model.ConnectionState.ConnectingToProxy:
            case Model.ConnectionState.Connecting:
                //: Above the chat list while the link to Telegram is being made
                return qsTr("Connecting…");
            case Model.ConnectionState.Updating:
                //: Above the chat list while what happened offline is being fetched
                return qsTr("Updating…");
            default:
                return "";
            }
        }
    }
}
