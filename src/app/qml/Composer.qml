import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model

// The composer: the reply or edit banner, then the text (growing up to six
// lines) and the send button. Enter sends, Shift+Enter starts a new line, Esc
// cancels a reply or an edit.
FocusScope {
    id: composer

    required property ChatViewModel viewModel

    readonly property var replyTo: viewModel.replyToMessage
    readonly property var editing: viewModel.editingMessage
    readonly property bool hasBanner: replyTo !== null || editing !== null

    signal sent

    implicitHeight: column.implicitHeight + 16
    Accessible.role: Accessible.Pane
    Accessible.name: "Composer"

    Rectangle {
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
        }
        height: 1
        color: Appearance.separator
    }

    Column {
        id: column

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            margins: 8
            leftMargin: 12
            rightMargin: 12
        }
        spacing: 6

        Item {
            id: banner

            width: parent.width
            height: 36
            visible: composer.hasBanner
            Accessible.role: Accessible.Grouping
            Accessible.name: bannerTitle.text

            Rectangle {
                id: bannerBar

                width: 3
                height: parent.height - 4
                anchors.verticalCenter: parent.verticalCenter
                radius: 1.5
                color: Appearance.accent
            }

            Column {
                anchors {
                    left: bannerBar.right
                    leftMargin: 8
                    right: cancel.left
                    rightMargin: 8
                    verticalCenter: parent.verticalCenter
                }

                Text {
                    id: bannerTitle

                    width: parent.width
                    text: composer.editing !== null ? "Edit message"
                                                    : (composer.replyTo !== null ? "Reply to " + composer.replyTo.senderName : "")
                    elide: Text.ElideRight
                    color: Appearance.accent
                    font.pixelSize: 12
                    font.weight: Font.DemiBold
                }
                Text {
                    width: parent.width
                    readonly property var quoted: composer.editing !== null ? composer.editing : composer.replyTo
                    text: quoted ? (quoted.text !== "" ? quoted.text : (quoted.mediaKind !== "" ? quoted.mediaKind : quoted.documentName)) : ""
                    textFormat: Text.PlainText
                    maximumLineCount: 1
                    elide: Text.ElideRight
                    color: Appearance.secondaryText
                    font.pixelSize: 12
                }
            }

            ToolButton {
                id: cancel

                anchors {
                    right: parent.right
                    verticalCenter: parent.verticalCenter
                }
                width: 28
                height: 28
                text: "✕"
                font.pixelSize: 13
                palette.buttonText: Appearance.secondaryText
                onClicked: composer.viewModel.cancelReplyAndEdit()
                Accessible.role: Accessible.Button
                Accessible.name: composer.editing !== null ? "Cancel editing" : "Cancel reply"
            }
        }

        Item {
            width: parent.width
            height: Math.max(32, Math.min(field.implicitHeight, 6 * 19 + 14))

            ScrollView {
                id: scroll

                anchors {
                    left: parent.left
                    right: send.left
                    rightMargin: 8
                    top: parent.top
                    bottom: parent.bottom
                }

                TextArea {
                    id: field

                    objectName: "composerField"
                    focus: true
                    activeFocusOnTab: true
                    text: composer.viewModel.composerText
                    placeholderText: "Message"
                    wrapMode: TextEdit.Wrap
                    font.pixelSize: 14
                    color: Appearance.text
                    placeholderTextColor: Appearance.secondaryText
                    selectionColor: Appearance.accent
                    selectedTextColor: Appearance.accentText
                    leftPadding: 12
                    rightPadding: 12
                    topPadding: 7
                    bottomPadding: 7
                    Accessible.role: Accessible.EditableText
                    Accessible.name: "Message"
                    Accessible.multiLine: true

                    background: Rectangle {
                        radius: 16
                        color: Appearance.fieldBackground
                        border.width: field.activeFocus ? 2 : 1
                        border.color: field.activeFocus ? Appearance.accent : Appearance.separator
                    }

                    onTextChanged: if (text !== composer.viewModel.composerText) composer.viewModel.composerText = text
                    Keys.onTabPressed: event => { field.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason); }
                    Keys.onBacktabPressed: event => { field.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason); }
                    Keys.onReturnPressed: event => composer.handleReturn(event)
                    Keys.onEnterPressed: event => composer.handleReturn(event)
                    Keys.onEscapePressed: event => {
                        event.accepted = composer.hasBanner;
                        if (composer.hasBanner)
                            composer.viewModel.cancelReplyAndEdit();
                    }
                }
            }

            RoundButton {
                id: send

                anchors {
                    right: parent.right
                    bottom: parent.bottom
                }
                width: 32
                height: 32
                enabled: composer.viewModel.canSendMessages
                Accessible.role: Accessible.Button
                Accessible.name: composer.editing !== null ? "Save" : "Send"
                onClicked: composer.sendComposed()

                background: Rectangle {
                    radius: 16
                    color: send.enabled ? Appearance.accent : Appearance.separator
                    opacity: send.down ? 0.8 : 1
                }
                contentItem: SymbolIcon {
                    name: "paperplane.fill"
                    color: Appearance.accentText
                }
            }
        }
    }

    function handleReturn(event) {
        if (event.modifiers & Qt.ShiftModifier) {
            event.accepted = false;
            return;
        }
        event.accepted = true;
        composer.sendComposed();
    }

    function sendComposed() {
        viewModel.sendMessage();
        sent();
    }
}
