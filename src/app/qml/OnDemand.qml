import QtQuick

// A popup (a menu, a dialog, a picker) made the first time it is needed rather
// than with its view: most looks at the popover open none of them, and the views
// are made again each time the popover opens after a while closed. Once made, it
// stays with its view and keeps its state between openings. The popup inside must
// name its parent, which is otherwise the item it is declared in.
Loader {
    readonly property bool opened: item !== null && item.opened

    // The popup, made now if it was not yet.
    function instance() {
        active = true;
        return item;
    }

    function open() {
        instance().open();
    }

    function close() {
        if (item !== null)
            item.close();
    }

    active: false
}
