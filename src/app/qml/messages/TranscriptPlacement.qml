import QtQuick
import Vost.App
import Vost.Model

// Where the transcript stands when a chat opens and while new messages wait below
// it. A chat whose unread messages do not fit on the screen opens with its "Unread
// messages" line at the top, once; any other opens at its newest message, as the
// view itself does. Messages that arrive while the newest is out of view are
// counted until they come into view.
QtObject {
    id: placement

    required property ListView view
    required property MessageListModel messages
    // The chat's first page has come: until then its divider may not be known.
    required property bool messagesArrived
    // How many of the newest rows (0 to unseen - 1) arrived while the reader was
    // elsewhere and have not been in view since.
    property int unseen: 0
    // A chat was chosen and its first screen is still to be placed.
    property bool opening: false

    function inView(item) {
        return item && item.y + item.height > view.contentY && item.y < view.contentY + view.height;
    }

    // Whether the top of the row is in view, with the newest message at the bottom.
    function fitsFromNewest(row) {
        view.forceLayout();
        const item = view.itemAtIndex(row);
        return item && item.y >= view.contentY;
    }

    // The row at the top of the transcript.
    function showAtTop(row) {
        view.positionViewAtIndex(row, ListView.Contain);
        view.forceLayout();
        const item = view.itemAtIndex(row);
        if (item)
            view.contentY = item.y - view.topMargin;
    }

    // The newest message when everything from row on fits below it; otherwise row
    // at the top, so that the oldest of them is read first.
    function showFrom(row) {
        view.toNewestEdge();
        view.atNewest = true;
        if (row > 0 && !fitsFromNewest(row))
            showAtTop(row);
    }

    // Once a chosen chat's rows are there: at the divider when what follows it
    // does not fit. A chat without a divider, or whose divider was shown, is left
    // where the view put it; so is any chat after its first screen, whatever
    // arrives.
    function openAtDivider() {
        if (!opening || !messagesArrived || view.count === 0)
            return;
        opening = false;
        const row = messages.dividerRowToOpenAt();
        if (row < 0)
            return;
        messages.dividerOpened();
        showFrom(row);
    }

    // New rows at the bottom while the newest is out of view.
    function arrived(count) {
        if (!view.atNewest)
            unseen += count;
    }

    // The oldest of the waiting rows, or the newest when they all fit.
    function showArrived() {
        const row = unseen - 1;
        unseen = 0;
        if (row < 0)
            view.toNewestEdge();
        else
            showFrom(row);
        noteSeen();
    }

    // Rows that came into view are no longer waiting; those above one in view
    // were passed on the way.
    function noteSeen() {
        if (unseen === 0)
            return;
        if (view.atNewest) {
            unseen = 0;
            return;
        }
        for (let row = 0; row < unseen; ++row) {
            if (inView(view.itemAtIndex(row))) {
                unseen = row;
                return;
            }
        }
    }

    function chatChanged() {
        unseen = 0;
        opening = true;
        Qt.callLater(openAtDivider);
    }
}
