import QtQuick
import QtQuick.Controls.Basic
import Vost.App
import Vost.Model

// The composer: the reply or edit banner, the files waiting to be sent, then
// "Attach", the text (growing up to six lines), "Emoji", "Stickers" and "Send".
// Enter sends, Shift+Enter starts a new line, Up in an empty composer edits the
// user's last message, and a pasted picture waits to be sent like an attached
// one. Esc closes an open picker; after that it is the chat layout's. Misspelt
// words are underlined; a right click on one, or the Menu key or Shift+F10 with
// the cursor in it, offers its corrections.
FocusScope {
    id: composer

    required property ChatViewModel viewModel
    required property AppRootView host
    // Right-to-left: the pickers open at the left, over their buttons.
    readonly property bool mirrored: LayoutMirroring.enabled

    readonly property var replyTo: viewModel.replyToMessage
    readonly property var editing: viewModel.editingMessage
    readonly property bool hasBanner: replyTo !== null || editing !== null
    // A reply begun anywhere (a message's menu, a notification's "Reply") is typed here.
    onReplyToChanged: if (replyTo !== null) field.forceActiveFocus()

    signal sent
    // End in an empty field: the reader wants the newest message.
    signal newestRequested

    implicitHeight: column.implicitHeight + 16
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Composer")

    // An open picker closes first, also while the keyboard is in the text.
    Keys.onEscapePressed: event => {
        event.accepted = emoji.opened || stickers.opened;
        emoji.close();
        stickers.close();
    }

    function insertText(text) {
        field.insert(field.cursorPosition, text);
        field.forceActiveFocus();
    }

    function togglePicker(picker) {
        if (picker.opened) {
            picker.close();
            field.forceActiveFocus();
        } else {
            (picker === stickers ? emoji : stickers).close();
            picker.open();
        }
    }

    Rectangle {
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
        }
        height: 1
        color: Appearance.separator
    }

    Connections {
        target: FilePanel

        function onFilesChosen(paths) {
            composer.viewModel.queueFiles(paths);
        }
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

        ComposerBanner {
            width: parent.width
            viewModel: composer.viewModel
        }

        PendingStrip {
            width: parent.width
            viewModel: composer.viewModel
        }

        Item {
            width: parent.width
            height: Math.max(32, Math.min(field.implicitHeight, 6 * 19 + 14))

            IconButton {
                id: attach

                anchors {
                    left: parent.left
                    bottom: parent.bottom
                    bottomMargin: 2
                }
                symbol: "paperclip"
                //: A verb: the button that adds files.
                Accessible.name: qsTr("Attach")
                onClicked: FilePanel.chooseAttachments()
            }

            ScrollView {
                id: scroll

                // Only the text field and its scroll bar matter to a screen reader.
                Accessible.ignored: true
                ScrollBar.horizontal: ScrollBar {
                    policy: ScrollBar.AlwaysOff
                    Accessible.ignored: true
                }
                ScrollBar.vertical: ScrollBar {
                    parent: scroll
                    x: scroll.width - width
                    height: scroll.height
                    Accessible.name: qsTr("Scroll message text")
                    Accessible.ignored: !visible || size >= 1
                }

                anchors {
                    left: attach.right
                    leftMargin: 6
                    right: emojiButton.left
                    rightMargin: 4
                    top: parent.top
                    bottom: parent.bottom
                }

                TextArea {
                    id: field

                    objectName: "composerField"
                    focus: true
                    activeFocusOnTab: true
                    text: composer.viewModel.composerText
                    //: A noun: the text being written.
                    placeholderText: qsTr("Message")
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
                    Accessible.name: qsTr("Message")
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
                    Keys.onUpPressed: event => {
                        event.accepted = field.text === "" && composer.viewModel.editLastOwnMessage();
                        if (event.accepted)
                            field.cursorPosition = field.length;
                    }
                    Keys.onPressed: event => {
                        if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)) {
                            const caret = field.cursorRectangle;
                            composer.openMenu(field.cursorPosition, caret.x, caret.y + caret.height);
                            event.accepted = true;
                            return;
                        }
                        if (event.key === Qt.Key_End && event.modifiers === Qt.NoModifier && field.text === "") {
                            composer.newestRequested();
                            event.accepted = true;
                            return;
                        }
                        if (event.matches(StandardKey.Paste) && Clipboard.hasImage()) {
                            composer.paste();
                            event.accepted = true;
                        }
                    }

                    TapHandler {
                        acceptedButtons: Qt.RightButton
                        onTapped: eventPoint => {
                            const point = eventPoint.position;
                            composer.openMenu(field.positionAt(point.x, point.y), point.x, point.y);
                        }
                    }

                    SpellCheck {
                        id: spelling

                        // Over the lines on screen, wherever the text is scrolled to.
                        y: scroll.contentItem.contentY
                        width: field.width
                        height: scroll.height
                        origin: Qt.point(field.leftPadding, field.topPadding - y)
                        document: field.textDocument
                        active: AppPreferences.preferences.checksSpelling
                        color: Appearance.badge
                    }
                }
            }

            IconButton {
                id: emojiButton

                anchors {
                    right: stickerButton.left
                    bottom: parent.bottom
                    bottomMargin: 2
                }
                symbol: "face.smiling"
                highlighted: emoji.opened
                Accessible.name: qsTr("Emoji")
                onClicked: composer.togglePicker(emoji)
            }

            IconButton {
                id: stickerButton

                anchors {
                    right: send.left
                    rightMargin: 6
                    bottom: parent.bottom
                    bottomMargin: 2
                }
                symbol: "sticker"
                highlighted: stickers.opened
                Accessible.name: qsTr("Stickers")
                onClicked: composer.togglePicker(stickers)
            }

            IconButton {
                id: send

                anchors {
                    right: parent.right
                    bottom: parent.bottom
                }
                side: 32
                symbol: "paperplane.fill"
                directional: true
                tint: Appearance.accentText
                enabled: composer.viewModel.canSendMessages
                //: The send button while a message is edited: a verb.
                Accessible.name: composer.editing !== null ? qsTr("Save") : qsTr("Send")
                onClicked: composer.sendComposed()

                background: Rectangle {
                    radius: 16
                    color: send.enabled ? Appearance.accent : Appearance.separator
                    opacity: send.down ? 0.8 : 1
                    border.width: send.visualFocus ? 2 : 0
                    border.color: Appearance.text
                }
            }
        }
    }

    OnDemand {
        id: emoji

        sourceComponent: EmojiPicker {
            parent: composer
            // Over its button, at the trailing end of the composer.
            x: composer.mirrored ? 12 : composer.width - width - 12
            y: -height - 6
            onChosen: emoji => composer.insertText(emoji)
            onClosed: if (!stickers.opened) field.forceActiveFocus()
        }
    }

    OnDemand {
        id: stickers

        sourceComponent: StickerPicker {
            parent: composer
            // Over its button, at the trailing end of the composer.
            x: composer.mirrored ? 12 : composer.width - width - 12
            y: -height - 6
            viewModel: composer.viewModel
            session: composer.host.access
            stickers: composer.host.recentStickerList
            onChosen: row => {
                // What waits in the strip stays there: the sticker goes on its own.
                composer.viewModel.sendStickerAt(row);
                composer.sent();
                close();
            }
            onClosed: if (!emoji.opened) field.forceActiveFocus()
        }
    }

    OnDemand {
        id: contextMenu

        sourceComponent: ComposerMenu {
            parent: composer
            onCorrected: (start, word, replacement) => spelling.replace(start, word, replacement)
            onAdded: word => spelling.addToDictionary(word)
            onCut: field.cut()
            onCopy: field.copy()
            onPaste: composer.paste()
            onSelectAll: field.selectAll()
            onClosed: field.forceActiveFocus()
        }
    }

    // The context menu at a position of the text: the corrections of the misspelt
    // word there, if it is one, and the editing commands.
    function openMenu(position, x, y) {
        const misspelt = spelling.misspeltWordAt(position);
        const corrections = misspelt.word === undefined ? [] : spelling.suggestions(misspelt.word);
        contextMenu.instance().openFor(misspelt, corrections, field, x, y);
    }

    // A picture on the clipboard is attached; text is pasted as usual.
    function paste() {
        if (!Clipboard.hasImage()) {
            field.paste();
            return;
        }
        const path = Clipboard.saveImage();
        if (path !== "")
            composer.viewModel.queueFiles([path]);
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
