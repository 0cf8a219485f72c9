#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>

#include <chrono>
#include <memory>
#include <optional>

class AppRootView;
class ColorSchemeWatcher;
class CredentialStore;
class EmbeddedTrayWatch;
class GlobalShortcut;
class NotificationPoster;
class PopoverWindow;
class QApplication;
class QMenu;
class QQmlEngine;
class QSystemTrayIcon;
class QTimer;
class SoundPlayer;
class TelegramSession;
class TrayItem;
class WindowPlacer;

// The tray application: no main window, one tray item with the unread badge and a
// popover holding the whole client. It builds the credential store, the session and
// the root view the popover hosts, owns the tray item, its menu and the popover, and follows the process-wide
// notifications about unread counts, chats to open and file panels.
class VostApp : public QObject
{
    Q_OBJECT

public:
    struct Options {
        // Sign in to the offline demo account instead of Telegram.
        bool demo = false;
    };

    // Answers --help and --version, or a command line it cannot read, before a
    // display or a client is needed; the exit code when it did.
    static std::optional<int> answerWithoutStarting(int &argc, char **argv);
    // Everything main() does after making the QApplication; returns the exit code.
    static int run(QApplication &application);

    explicit VostApp(Options options, QObject *parent = nullptr);
    ~VostApp() override;

    // Builds the session, the popover and the tray item; false when the program
    // cannot run (its message is already printed).
    bool launch();

    bool isPopoverShown() const;
    void togglePopover();
    // "Open Vost": shows the popover if it is not shown.
    void showPopover();
    void closePopover();
    // Shows the popover and gives it the keyboard (a notification click, a second launch).
    void bringForward(const QString &activationToken = {});

private:
    // Where the client lives; decided again whenever a tray comes or goes.
    enum class TrayKind { Undecided, Window, StatusNotifier, XEmbed };

    void createStatusMenu();
    void chooseTray();
    void createTrayIcon();
    void updateStatusItem(int unreadCount);
    void updateToolTip();
    void handleTrayActivation(int reason);
    void handleTrayClick(std::optional<QPoint> point);
    void grabGlobalShortcut();
    void handleGlobalShortcut();
    void showStatusMenu(const QPoint &point);
    void presentPopover();
    static QRect availableAreaAt(QPoint point);
    void presentActivationToken(const QString &token);
    void popoverActiveChanged();
    void closeAfterDeactivation();
    void openChatFromNotification();
    void suspendPopoverForFilePanel();
    void restorePopoverAfterFilePanel();
    void releasePopoverMemory();
    void endWithDesktopSession();
    void quit();

    Options m_options;
    CredentialStore *m_credentialStore = nullptr;
    TelegramSession *m_session = nullptr;
    AppRootView *m_root = nullptr;
    QQmlEngine *m_engine = nullptr;
    std::unique_ptr<PopoverWindow> m_popover;
    // The tray item the desktop draws (StatusNotifierItem); Qt's icon only for
    // XEmbed trays.
    std::unique_ptr<TrayItem> m_trayItem;
    QSystemTrayIcon *m_trayIcon = nullptr;
    std::unique_ptr<EmbeddedTrayWatch> m_embeddedTrayWatch;
    TrayKind m_trayKind = TrayKind::Undecided;
    std::unique_ptr<QMenu> m_statusMenu;
    QTimer *m_deactivationTimer = nullptr;
    QTimer *m_trayWatch = nullptr;
    std::unique_ptr<NotificationPoster> m_poster;
    std::unique_ptr<SoundPlayer> m_soundPlayer;
    std::unique_ptr<ColorSchemeWatcher> m_colorScheme;
    std::unique_ptr<GlobalShortcut> m_globalShortcut;
    std::unique_ptr<WindowPlacer> m_windowPlacer;
    QPoint m_clickPoint;
    bool m_hasClickPoint = false;
    bool m_placedOnce = false;
    QElapsedTimer m_sinceDeactivationClose;
    // When the popover was last asked for, until its first frame is on screen.
    std::optional<std::chrono::steady_clock::time_point> m_presentedAt;
    int m_unreadCount = 0;
};
