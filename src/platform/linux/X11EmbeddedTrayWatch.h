#pragma once

#include "platform/EmbeddedTrayWatch.h"

#include <QAbstractNativeEventFilter>

#include <cstdint>

struct xcb_connection_t;

// The tray is the window owning the screen's _NET_SYSTEM_TRAY_Sn selection; its
// destruction (the panel quit or crashed) is what this reports.
class X11EmbeddedTrayWatch : public EmbeddedTrayWatch, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    X11EmbeddedTrayWatch(xcb_connection_t *connection, int screenNumber, QObject *parent = nullptr);
    ~X11EmbeddedTrayWatch() override;

    bool watch() override;
    void stop() override { m_tray = 0; }

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    uint32_t trayWindow() const;

    xcb_connection_t *m_connection;
    uint32_t m_selection = 0;
    uint32_t m_tray = 0;
};
