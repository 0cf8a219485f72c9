#pragma once

#include <QObject>

// What the application's parts announce to each other across the process, on the
// main thread: the tray item, the popover, the file dialogs and the root view.
class AppEvents : public QObject
{
    Q_OBJECT

public:
    static AppEvents &shared();

Q_SIGNALS:
    // The unread total of all chats, for the tray item's badge.
    void unreadCountDidChange(qint64 total);
    // The popover was shown or closed.
    void popoverVisibilityDidChange(bool visible);
    // A file dialog is about to open, and has closed: the popover steps aside meanwhile.
    void filePanelWillPresent();
    void filePanelDidFinish();
    // The global shortcut was taken, let go or refused.
    void globalShortcutStatusDidChange();
    // The page records a new shortcut: the old one must not act meanwhile.
    void globalShortcutRecordingDidChange(bool recording);
    // A left click with Ctrl held somewhere in the popover.
    void commandClick();
};
