// The global shortcut: what the preference keeps, how a combination reads for
// the X server, and a real grab on the test's X server.
#include "platform/linux/X11GlobalShortcut.h"
#include "platform/linux/X11Keys.h"
#include "session/Preferences.h"
#include "session/UserDefaults.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

class GlobalShortcutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyPressesBecomeShortcuts_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("shortcut");
        const int ctrlAlt = int((Qt::ControlModifier | Qt::AltModifier).toInt());
        QTest::newRow("ctrl alt letter") << int(Qt::Key_K) << ctrlAlt << u"Ctrl+Alt+K"_s;
        QTest::newRow("meta function key") << int(Qt::Key_F9) << int(Qt::MetaModifier) << u"Meta+F9"_s;
        QTest::newRow("shift beside ctrl")
            << int(Qt::Key_Space) << int((Qt::ControlModifier | Qt::ShiftModifier).toInt()) << u"Ctrl+Shift+Space"_s;
        QTest::newRow("keypad flag dropped")
            << int(Qt::Key_5) << int((Qt::ControlModifier | Qt::KeypadModifier).toInt()) << u"Ctrl+5"_s;
        QTest::newRow("no modifier") << int(Qt::Key_K) << 0 << QString();
        QTest::newRow("shift alone") << int(Qt::Key_K) << int(Qt::ShiftModifier) << QString();
        QTest::newRow("modifier key alone") << int(Qt::Key_Alt) << ctrlAlt << QString();
        QTest::newRow("super key alone") << int(Qt::Key_Super_L) << int(Qt::MetaModifier) << QString();
        QTest::newRow("unknown key") << int(Qt::Key_unknown) << ctrlAlt << QString();
    }
    void keyPressesBecomeShortcuts()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, shortcut);
        QCOMPARE(Preferences::shortcutForKeyPress(key, modifiers), shortcut);
    }

    void storedTextsAreNormalised()
    {
        QCOMPARE(Preferences::normalizedShortcut(u" ctrl+alt+k "_s), u"Ctrl+Alt+K"_s);
        QCOMPARE(Preferences::normalizedShortcut(u"Alt+Ctrl+K"_s), u"Ctrl+Alt+K"_s);
        QCOMPARE(Preferences::normalizedShortcut(QString()), QString());
        QCOMPARE(Preferences::normalizedShortcut(u"K"_s), QString());
        QCOMPARE(Preferences::normalizedShortcut(u"Ctrl+A, Ctrl+B"_s), QString());
        QCOMPARE(Preferences::normalizedShortcut(u"Ctrl+Nonsense"_s), QString());
    }

    void thePreferenceIsOffUntilChosen()
    {
        Preferences &preferences = Preferences::shared();
        UserDefaults::setValue(u"globalShortcut"_s, QVariant());
        QCOMPARE(preferences.globalShortcut(), QString());
        QSignalSpy changed(&preferences, &Preferences::globalShortcutChanged);

        preferences.setGlobalShortcut(u"Ctrl+Alt+K"_s);
        QCOMPARE(preferences.globalShortcut(), u"Ctrl+Alt+K"_s);
        QCOMPARE(UserDefaults::value(u"globalShortcut"_s).toString(), u"Ctrl+Alt+K"_s);
        QVERIFY(!preferences.globalShortcutLabel().isEmpty());
        QCOMPARE(changed.count(), 1);

        // Neither the same combination again nor one that cannot be a shortcut changes it.
        preferences.setGlobalShortcut(u"Alt+Ctrl+K"_s);
        preferences.setGlobalShortcut(u"Q"_s);
        QCOMPARE(preferences.globalShortcut(), u"Ctrl+Alt+K"_s);
        QCOMPARE(changed.count(), 1);

        preferences.setGlobalShortcut(QString());
        QCOMPARE(preferences.globalShortcut(), QString());
        QCOMPARE(changed.count(), 2);

        // A hand-edited settings file with something unreadable reads as none.
        UserDefaults::setValue(u"globalShortcut"_s, u"Shift+"_s);
        QCOMPARE(preferences.globalShortcut(), QString());
        UserDefaults::setValue(u"globalShortcut"_s, QVariant());
    }

    void keysReadAsKeysyms()
    {
        QCOMPARE(X11Keys::keysym(Qt::Key_K).value_or(0), 0x6bu);
        QCOMPARE(X11Keys::keysym(Qt::Key_5).value_or(0), 0x35u);
        QCOMPARE(X11Keys::keysym(Qt::Key_Exclam).value_or(0), 0x21u);
        QCOMPARE(X11Keys::keysym(Qt::Key_Space).value_or(0), 0x20u);
        QCOMPARE(X11Keys::keysym(Qt::Key_Adiaeresis).value_or(0), 0xc4u);
        QCOMPARE(X11Keys::keysym(Qt::Key_F1).value_or(0), 0xffbeu);
        QCOMPARE(X11Keys::keysym(Qt::Key_F12).value_or(0), 0xffc9u);
        QCOMPARE(X11Keys::keysym(Qt::Key_Home).value_or(0), 0xff50u);
        QCOMPARE(X11Keys::keysym(Qt::Key_Delete).value_or(0), 0xffffu);
        QVERIFY(!X11Keys::keysym(Qt::Key_Control));
        QVERIFY(!X11Keys::keysym(Qt::Key_unknown));
    }

    void modifiersReadAsMasks()
    {
        QCOMPARE(X11Keys::modifierMask(Qt::ControlModifier | Qt::AltModifier), uint16_t(4 | 8));
        QCOMPARE(X11Keys::modifierMask(Qt::MetaModifier | Qt::ShiftModifier), uint16_t(64 | 1));
        QCOMPARE(X11Keys::modifierMask(Qt::KeypadModifier | Qt::GroupSwitchModifier), uint16_t(0));

        // Caps Lock and Num Lock on or off: four grabs.
        QCOMPARE(X11Keys::grabMasks(4 | 8, X11Keys::mod2Mask), (QList<uint16_t>{12, 12 | 2, 12 | 16, 12 | 2 | 16}));
        // No Num Lock key on the keyboard: Caps Lock only.
        QCOMPARE(X11Keys::grabMasks(4, 0), (QList<uint16_t>{4, 4 | 2}));
    }

    // Under an X server the key grab; elsewhere (Wayland, offscreen) a shortcut that
    // is never available and holds nothing.
    void theFactoryFollowsThePlatform()
    {
        const std::unique_ptr<GlobalShortcut> shortcut = makeSystemGlobalShortcut();
        const bool x11 = QGuiApplication::platformName() == "xcb"_L1;
        QCOMPARE(shortcut->isAvailable(), x11);
        if (!x11)
            QVERIFY(!shortcut->setShortcut(QKeySequence(u"Ctrl+Alt+K"_s)));
    }

    // On the test's X server: a combination we hold is refused to another client,
    // and one another client holds is refused to us, until it lets go.
    void grabsOnTheXServer()
    {
        auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        if (QGuiApplication::platformName() != "xcb"_L1 || !x11)
            QSKIP("needs an X server");
        xcb_connection_t *connection = x11->connection();
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        X11GlobalShortcut shortcut(connection, root);
        QVERIFY(shortcut.isAvailable());
        const QKeySequence combination(u"Ctrl+Alt+F7"_s);

        xcb_connection_t *other = xcb_connect(nullptr, nullptr);
        QVERIFY(!xcb_connection_has_error(other));
        const auto otherGrabs = [&] {
            // Num Lock and Caps Lock off: the plain mask, which every grab includes.
            const uint16_t mask = X11Keys::controlMask | X11Keys::mod1Mask;
            const xcb_keycode_t keycode = keycodeOfF7(other);
            xcb_generic_error_t *error = xcb_request_check(
                other, xcb_grab_key_checked(other, 1, root, mask, keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
            std::free(error);
            return error == nullptr;
        };

        QVERIFY(shortcut.setShortcut(combination));
        QVERIFY(!otherGrabs());
        // Letting go frees it for others.
        QVERIFY(shortcut.setShortcut(QKeySequence()));
        QVERIFY(otherGrabs());
        // Now it is theirs: ours is refused, and none of it is kept.
        QVERIFY(!shortcut.setShortcut(combination));
        xcb_disconnect(other);
        QVERIFY(shortcut.setShortcut(combination));
    }

private:
    static xcb_keycode_t keycodeOfF7(xcb_connection_t *connection)
    {
        const xcb_setup_t *setup = xcb_get_setup(connection);
        const int count = setup->max_keycode - setup->min_keycode + 1;
        xcb_get_keyboard_mapping_reply_t *mapping = xcb_get_keyboard_mapping_reply(
            connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, uint8_t(count)), nullptr);
        xcb_keycode_t keycode = 0;
        const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(mapping);
        for (int index = 0; index < count && keycode == 0; ++index)
            if (keysyms[index * mapping->keysyms_per_keycode] == 0xffc4)
                keycode = xcb_keycode_t(setup->min_keycode + index);
        std::free(mapping);
        return keycode;
    }
};

QTEST_MAIN(GlobalShortcutTest)
#include "tst_globalshortcut.moc"
