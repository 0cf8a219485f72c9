// The XEmbed tray's end, with a tray manager played by a second client of the
// test's X server.
#include "platform/linux/X11EmbeddedTrayWatch.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

class EmbeddedTrayWatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        if (QGuiApplication::platformName() != "xcb"_L1 || !x11)
            QSKIP("needs an X server");
        m_connection = x11->connection();
        m_tray = xcb_connect(nullptr, nullptr);
        QVERIFY(!xcb_connection_has_error(m_tray));
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_tray)).data->root;
        const QByteArray name = "_NET_SYSTEM_TRAY_S0";
        xcb_intern_atom_reply_t *atom = xcb_intern_atom_reply(
            m_tray, xcb_intern_atom(m_tray, false, uint16_t(name.size()), name.constData()), nullptr);
        QVERIFY(atom);
        m_selection = atom->atom;
        std::free(atom);
    }

    void cleanup()
    {
        if (m_tray)
            xcb_disconnect(m_tray);
        m_tray = nullptr;
    }

    void theTrayGoingAwayIsReported()
    {
        X11EmbeddedTrayWatch watch(m_connection, 0);
        QSignalSpy gone(&watch, &EmbeddedTrayWatch::gone);
        QVERIFY(!watch.watch());

        const xcb_window_t first = startTray();
        QVERIFY(watch.watch());
        // Asked again about the same tray: nothing changes.
        QVERIFY(watch.watch());
        xcb_destroy_window(m_tray, first);
        xcb_flush(m_tray);
        QTRY_COMPARE(gone.count(), 1);
        QVERIFY(!watch.watch());

        // A stopped watch says nothing of the next tray's end.
        const xcb_window_t second = startTray();
        QVERIFY(watch.watch());
        watch.stop();
        xcb_destroy_window(m_tray, second);
        xcb_flush(m_tray);
        QTest::qWait(200);
        QCOMPARE(gone.count(), 1);
    }

    void aPanelThatQuitsIsReported()
    {
        X11EmbeddedTrayWatch watch(m_connection, 0);
        QSignalSpy gone(&watch, &EmbeddedTrayWatch::gone);
        startTray();
        QVERIFY(watch.watch());
        // The server destroys a client's windows when it disconnects.
        xcb_disconnect(m_tray);
        m_tray = nullptr;
        QTRY_COMPARE(gone.count(), 1);
    }

private:
    xcb_window_t startTray()
    {
        const xcb_window_t window = xcb_generate_id(m_tray);
        xcb_create_window(m_tray, XCB_COPY_FROM_PARENT, window, m_root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(m_tray, window, m_selection, XCB_CURRENT_TIME);
        xcb_get_input_focus_reply_t *sync = xcb_get_input_focus_reply(m_tray, xcb_get_input_focus(m_tray), nullptr);
        std::free(sync);
        return window;
    }

    xcb_connection_t *m_connection = nullptr;
    xcb_connection_t *m_tray = nullptr;
    xcb_window_t m_root = 0;
    xcb_atom_t m_selection = 0;
};

QTEST_MAIN(EmbeddedTrayWatchTest)
#include "tst_embeddedtraywatch.moc"
