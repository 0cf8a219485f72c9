#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QStringList>

#include <memory>

// The program's item in a tray that the desktop draws itself (a StatusNotifierItem
// on Linux): the host asks for pictures in the sizes it likes, draws the menu from
// the entries given here, and reports clicks with the place it knows of.
class TrayItem : public QObject
{
    Q_OBJECT

public:
    enum class Status { Active, NeedsAttention };

    using QObject::QObject;

    // Whether a host has the item now; hosts come and go while the program runs.
    virtual bool isShown() const = 0;
    // The picture heights, in device pixels, that setIcon should receive.
    virtual QList<int> iconHeights() const = 0;
    virtual void setIcon(const QList<QImage> &images) = 0;
    virtual void setToolTip(const QString &title, const QString &text) = 0;
    virtual void setStatus(Status status) = 0;
    // The menu's entries in order; an empty label is a separator.
    virtual void setMenu(const QStringList &labels) = 0;

Q_SIGNALS:
    void shownChanged(bool shown);
    // A primary click. hasPoint is false when the host did not say where (0, 0).
    void activated(QPoint hostPoint, bool hasPoint);
    // A host that does not draw menus asks the program to show its own.
    void contextMenuRequested(QPoint hostPoint);
    void menuAboutToShow();
    // The entry at index in the labels given to setMenu was chosen.
    void menuEntryTriggered(int index);
    // What the next window activation presents to a Wayland compositor.
    void activationTokenProvided(const QString &token);
};

// The platform's tray item, or none where the desktop has no such protocol.
std::unique_ptr<TrayItem> makeSystemTrayItem();
