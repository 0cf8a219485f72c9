import QtQuick
import Vost.Render

// The preview card under a message with a web address: thumbnail (or a link
// symbol), title, site name and an outgoing-link mark. Loads once, when it first
// appears. Opening the link is left to the conversation view.
Item {
    id: root

    property url url
    property bool outgoing: false
    // Whether loading has finished (or was never needed).
    readonly property bool isLoading: source.metadata.isLoading
    readonly property string title: source.metadata.title
    readonly property string siteName: source.metadata.siteName
    readonly property bool hasImage: source.metadata.hasImage

    signal activated(url url)

    implicitWidth: 280
    implicitHeight: 64

    LinkPreviewSource {
        id: source
        url: root.url
    }

    Component.onCompleted: source.start()
    onUrlChanged: if (root.visible) source.start()
    onVisibleChanged: if (root.visible) source.start()

    SystemPalette {
        id: palette
    }

    Rectangle {
        id: card

        anchors.fill: parent
        radius: 10
        color: root.outgoing ? Qt.rgba(1, 1, 1, 0.14) : Qt.rgba(palette.text.r, palette.text.g, palette.text.b, 0.06)
        border.width: 1
        border.color: Qt.rgba(palette.text.r, palette.text.g, palette.text.b, 0.08)

        Item {
            id: thumbnail

            x: 8
            anchors.verticalCenter: parent.verticalCenter
            width: 48
            height: 48

            PreviewImage {
                anchors.fill: parent
                visible: root.hasImage
                image: source.metadata.image
                radius: 6
            }

            Canvas {
                // A link symbol: two rounded links of a chain, at an angle.
                id: linkSymbol

                anchors.fill: parent
                visible: !root.hasImage
                onPaint: {
                    const context = getContext("2d")
                    context.reset()
                    context.fillStyle = Qt.rgba(palette.text.r, palette.text.g, palette.text.b, 0.08)
                    context.fillRect(0, 0, width, height)
                    context.translate(width / 2, height / 2)
                    context.rotate(-Math.PI / 4)
                    context.strokeStyle = root.outgoing ? "white" : palette.highlight
                    context.lineWidth = 2.5
                    for (const offset of [-6, 6]) {
                        context.beginPath()
                        context.roundedRect(offset - 8, -5, 16, 10, 5, 5)
                        context.stroke()
                    }
                }
            }
        }

        Column {
            anchors.left: thumbnail.right
            anchors.leftMargin: 10
            anchors.right: arrow.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Text {
                width: parent.width
                text: root.title
                font.pixelSize: 13
                font.weight: Font.DemiBold
                color: root.outgoing ? "white" : palette.text
                elide: Text.ElideRight
                maximumLineCount: 2
                wrapMode: Text.Wrap
            }

            Text {
                width: parent.width
                text: root.siteName
                font.pixelSize: 12
                color: root.outgoing ? Qt.rgba(1, 1, 1, 0.7) : Qt.rgba(palette.text.r, palette.text.g, palette.text.b, 0.6)
                elide: Text.ElideRight
            }
        }

        Text {
            // The outgoing-link mark.
            id: arrow

            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.top: parent.top
            anchors.topMargin: 6
            text: "\u2197"
            font.pixelSize: 14
            color: root.outgoing ? Qt.rgba(1, 1, 1, 0.7) : Qt.rgba(palette.text.r, palette.text.g, palette.text.b, 0.6)
        }

        MouseArea {
            anchors.fill: parent
            cursorShape: Qt.PointingHandCursor
            onClicked: root.activated(root.url)
        }
    }
}
