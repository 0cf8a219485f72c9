#pragma once

#include "platform/GlobalShortcut.h"

#include <QAbstractNativeEventFilter>
#include <QList>

#include <cstdint>

struct xcb_connection_t;

// A passive key grab on the root window: the X server hands the combination to us
// whatever window has the keyboard. The grab covers Caps Lock and Num Lock being
// on; a combination another client grabbed first is refused by the server.
class X11GlobalShortcut : public GlobalShortcut, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    X11GlobalShortcut(xcb_connection_t *connection, uint32_t rootWindow, QObject *parent = nullptr);
    ~X11GlobalShortcut() override;

    bool isAvailable() const override { return true; }
    bool setShortcut(const QKeySequence &sequence) override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    struct Grab {
        uint8_t keycode;
        uint16_t mask;
    };

    QList<uint8_t> keycodesFor(uint32_t keysym) const;
    uint16_t numLockMask() const;
    void ungrab();

    xcb_connection_t *m_connection;
    uint32_t m_root;
    QList<Grab> m_grabs;
    QList<uint8_t> m_keycodes;
    uint16_t m_mask = 0;
};
