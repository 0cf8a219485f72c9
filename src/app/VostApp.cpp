#include "VostApp.h"

#include "AppEvents.h"
#include "AppLanguage.h"
#include "AppPreferences.h"
#include "AppRootView.h"
#include "MediaImageProvider.h"
#include "PopoverPlacement.h"
#include "PopoverWindow.h"
#include "RoundImageProvider.h"
#include "SingleInstance.h"
#include "StatusItemImage.h"
#include "StickerEngine.h"
#include "bundle/AppBundle.h"
#include "platform/ColorScheme.h"
#include "platform/EmbeddedTrayWatch.h"
#include "platform/GlobalShortcut.h"
#include "platform/LauncherEntry.h"
#include "platform/NotificationPoster.h"
#include "platform/SoundPlayer.h"
#include "platform/TerminationSignals.h"
#include "platform/TrayItem.h"
#include "platform/WindowPlacer.h"
#include "session/CredentialStore.h"
#include "session/NotificationCenter.h"
#include "session/NotificationService.h"
#include "session/Preferences.h"
#include "session/SoundManager.h"
#include "session/TelegramSession.h"
#include "tdlib/DemoBundle.h"

#include <QApplication>
#include <QByteArrayList>
#include <QCommandLineParser>
#include <QCursor>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMenu>
#include <QMessageBox>
#include <QPixmapCache>
#include <QQmlEngine>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTextStream>
#include <QTimer>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

// How long a click on the tray item takes to reach the screen; bench/popover.py
// turns it on (QT_LOGGING_RULES="vost.popover.timing.debug=true").
Q_LOGGING_CATEGORY(lcPopoverTiming, "vost.popover.timing", QtWarningMsg)

namespace {

// Nothing sets it; every popover action tests it first, so that a later feature
// can hold the popover still.
bool popoverHandlingSuspended = false;

constexpr int deactivationCloseDelayMs = 150;
// A left click on the tray item that took the activation away from the popover
// closed it already; the same click must not open it again.
constexpr int reopenGuardMs = 400;
constexpr int trayWatchIntervalMs = 2000;
// From letting the popover's views go to handing their memory back.
constexpr int contentSettleMs = 1000;

// The demo account's fixed credentials: the demo library accepts any.
constexpr qint64 demoAPIID = 12345;
constexpr auto demoAPIHash = "vost-demo";

void nameApplication()
{
    QCoreApplication::setApplicationName(u"Vost"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VOST_VERSION));
    QCoreApplication::setOrganizationName(u"Corvella"_s);
}

// The options the program takes; returns --demo.
QCommandLineOption describeOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QCoreApplication::translate("VostApp", "A compact Telegram client for the system tray."));
    parser.addHelpOption();
    parser.addVersionOption();
    QCommandLineOption demo(u"demo"_s, QCoreApplication::translate("VostApp", "Use the offline demo account."));
    parser.addOption(demo);
    return demo;
}

} // namespace

std::optional<int> VostApp::answerWithoutStarting(int &argc, char **argv)
{
    static const QByteArrayList informationOptions{"-h", "--help", "--help-all", "-v", "--version"};
    bool asked = false;
    for (int i = 1; i < argc && !asked; ++i)
        asked = informationOptions.contains(QByteArray(argv[i]));
    if (!asked)
        return std::nullopt;
    // No QApplication: the answer needs no display.
    QCoreApplication core(argc, argv);
    nameApplication();
    QCommandLineParser parser;
    describeOptions(parser);
    // Prints the help or the version (or what is wrong) and ends the process.
    parser.process(core);
    return 0;
}

int VostApp::run(QApplication &application)
{
#if defined(__GLIBC__)
    // Large blocks (decoded pictures, animation frames) always get pages of their
    // own, which go back to the system when freed. By default glibc raises this
    // threshold after the first such block is freed, and later ones stay in its heaps.
    mallopt(M_MMAP_THRESHOLD, 256 * 1024);
#endif
    nameApplication();
    // Before any text is shown, the first of them the warning below.
    AppLanguage::shared().load();
    // Wayland compositors and docks match the window to the desktop entry by it.
    QApplication::setDesktopFileName(QStringLiteral(VOST_APP_ID));
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    const QCommandLineOption demoOption = describeOptions(parser);
    parser.process(application);

    // TDLib locks its database: one client per user.
    SingleInstance instance;
    if (instance.activateRunningInstance())
        return 0;
    // Nobody answered, but one that is closing may still hold the database.
    if (!instance.waitForDatabase()) {
        const QString text = QCoreApplication::translate(
            "VostApp", "Another Vost is still closing or not answering. Start Vost again in a moment.");
        QTextStream(stderr) << text << '\n';
        QMessageBox::warning(nullptr, u"Vost"_s, text);
        return 3;
    }
    if (!instance.listen())
        QTextStream(stderr) << "Vost could not listen for later launches on " << SingleInstance::serverName() << ".\n";

    VostApp app(Options{parser.isSet(demoOption)});
    if (!app.launch())
        return 2;
    QObject::connect(&instance, &SingleInstance::activationRequested, &app, &VostApp::bringForward);
    TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::received, &app, &VostApp::quit);
    // The desktop session ending: close the database now, the process may not get
    // another chance.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &app, &VostApp::endWithDesktopSession);
    return QApplication::exec();
}

VostApp::VostApp(Options options, QObject *parent)
    : QObject(parent)
    , m_options(options)
{}

VostApp::~VostApp()
{
    NotificationService::shared().setActivator({});
    NotificationService::shared().setPoster(nullptr);
    SoundManager::shared().setPlayer(nullptr);
    if (m_trayIcon)
        m_trayIcon->hide();
    // The popover's QML reads the root view, and the root view the session and
    // the credentials: each goes before what it uses.
    m_popover.reset();
    delete m_root;
    delete m_session;
    delete m_credentialStore;
}

bool VostApp::launch()
{
    // Credentials from the information dictionary; the demo account when asked
    // for, or when the build has none and the demo library is there.
    const AppBundle mainBundle = AppBundle::main();
    QVariantMap infoDictionary = mainBundle.infoDictionary();
    const std::optional<AppBundle> demo = demoBundle(mainBundle);
    if (m_options.demo && !demo) {
        QTextStream(stderr) << "This copy of Vost has no demo account.\n";
        return false;
    }
    m_session = new TelegramSession({}, this);
    if (m_options.demo || (!CredentialStore(infoDictionary).hasCredentials() && demo)) {
        infoDictionary = {{u"TelegramAPIID"_s, QString::number(demoAPIID)},
                          {u"TelegramAPIHash"_s, QString::fromLatin1(demoAPIHash)}};
        m_session->setBundle(demo);
        AppPreferences::setDemoAccount(true);
    }
    m_credentialStore = new CredentialStore(infoDictionary, this);
    m_root = new AppRootView(*m_credentialStore, *m_session, this);

    m_poster = makeSystemNotificationPoster();
    NotificationService::shared().setPoster(m_poster.get());
    m_soundPlayer = makeSystemSoundPlayer();
    SoundManager::shared().setPlayer(m_soundPlayer.get());
    NotificationService::shared().setActivator([this] { bringForward(); });

    m_engine = new QQmlEngine(this);
    VostRender::addImportPath(*m_engine);
    m_engine->addImageProvider(QString::fromLatin1(RoundImageProvider::name), new RoundImageProvider);
    m_engine->addImageProvider(QString::fromLatin1(MediaImageProvider::name), new MediaImageProvider);
    // The pictures of a chat nobody looks at need not stay decoded.
    connect(m_root->viewModel(), &ChatViewModel::selectedChatIDChanged, this, &MediaImageProvider::release);
    m_popover = std::make_unique<PopoverWindow>(m_engine);
    m_popover->setInitialProperties({{u"host"_s, QVariant::fromValue<QObject *>(m_root)},
                                     {u"popover"_s, QVariant::fromValue<QObject *>(m_popover.get())}});
    m_popover->setSource(QUrl(u"qrc:/qt/qml/Vost/App/qml/PopoverRoot.qml"_s));
    if (m_popover->status() != QQuickView::Ready) {
        for (const QQmlError &error : m_popover->errors())
            QTextStream(stderr) << error.toString() << '\n';
        return false;
    }
    connect(m_popover.get(), &QWindow::visibleChanged, this, [this](bool visible) {
        Q_EMIT AppEvents::shared().popoverVisibilityDidChange(visible);
        // A hide can come from inside a click's handler (Save hides the popover for
        // its dialog): what the release frees must not be under that handler's feet.
        if (!visible)
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (!m_popover->isVisible())
                        releasePopoverMemory();
                },
                Qt::QueuedConnection);
    });
    connect(m_popover.get(), &PopoverWindow::holdsContentChanged, this, [this] {
        if (m_popover->holdsContent())
            return;
        // The views go by deleteLater, and what they held in turn; their memory is
        // handed back once all of that has run.
        m_engine->collectGarbage();
        QTimer::singleShot(contentSettleMs, this, [this] {
            if (m_popover->holdsContent())
                return;
            m_popover->dropReleasedScene();
            releasePopoverMemory();
        });
    });
    connect(m_popover.get(), &QWindow::activeChanged, this, &VostApp::popoverActiveChanged);
    if (lcPopoverTiming().isDebugEnabled()) {
        // Swaps happen on the render thread: the moment is taken there.
        connect(
            m_popover.get(), &QQuickWindow::frameSwapped, this,
            [this] {
                const auto swapped = std::chrono::steady_clock::now();
                QMetaObject::invokeMethod(this, [this, swapped] {
                    if (!m_presentedAt)
                        return;
                    const std::chrono::duration<double, std::milli> elapsed = swapped - *m_presentedAt;
                    qCDebug(lcPopoverTiming, "first frame %.1f ms after the popover was asked for", elapsed.count());
                    m_presentedAt.reset();
                });
            },
            Qt::DirectConnection);
    }
    connect(m_popover.get(), &PopoverWindow::escapeNotHandled, this, [this] {
        if (m_popover->isInTrayMode())
            closePopover();
    });
    connect(m_popover.get(), &PopoverWindow::quitRequested, this, &VostApp::quit);
    m_deactivationTimer = new QTimer(this);
    m_deactivationTimer->setSingleShot(true);
    m_deactivationTimer->setInterval(deactivationCloseDelayMs);
    connect(m_deactivationTimer, &QTimer::timeout, this, &VostApp::closeAfterDeactivation);

    connect(&NotificationCenter::defaultCenter(), &NotificationCenter::openTelegramChat, this,
            &VostApp::openChatFromNotification);
    const AppEvents &events = AppEvents::shared();
    connect(&events, &AppEvents::unreadCountDidChange, this, [this](qint64 total) {
        updateStatusItem(int(std::clamp<qint64>(total, 0, std::numeric_limits<int>::max())));
        LauncherEntry::showCount(total);
    });
    // A dock keeps the last count it was sent, also from a run that ended badly.
    LauncherEntry::showCount(0);
    m_colorScheme = makeSystemColorSchemeWatcher();
    connect(m_colorScheme.get(), &ColorSchemeWatcher::schemeChanged, this, [this] { updateStatusItem(m_unreadCount); });
    connect(&events, &AppEvents::filePanelWillPresent, this, &VostApp::suspendPopoverForFilePanel);
    connect(&events, &AppEvents::filePanelDidFinish, this, &VostApp::restorePopoverAfterFilePanel);
    connect(qApp, &QCoreApplication::aboutToQuit, m_session, &TelegramSession::shutDown);
    connect(m_session, &TelegramSession::connectionStateChanged, this, &VostApp::updateToolTip);
    connect(&AppLanguage::shared(), &AppLanguage::languageChanged, m_session, &TelegramSession::retranslate);

    createStatusMenu();
    m_trayItem = makeSystemTrayItem();
    if (m_trayItem) {
        m_trayItem->setMenu({tr("Open Vost"), QString(), tr("Quit Vost")});
        connect(m_trayItem.get(), &TrayItem::shownChanged, this, &VostApp::chooseTray);
        connect(m_trayItem.get(), &TrayItem::activated, this, [this](QPoint hostPoint, bool hasPoint) {
            handleTrayClick(hasPoint ? std::optional(hostPoint) : std::nullopt);
        });
        connect(m_trayItem.get(), &TrayItem::contextMenuRequested, this, &VostApp::showStatusMenu);
        connect(m_trayItem.get(), &TrayItem::activationTokenProvided, this, &VostApp::presentActivationToken);
        // The host's menu takes the pointer: the popover goes first.
        connect(m_trayItem.get(), &TrayItem::menuAboutToShow, this, &VostApp::closePopover);
        connect(m_trayItem.get(), &TrayItem::menuEntryTriggered, this, [this](int index) {
            if (index == 0)
                showPopover();
            else if (index == 2)
                quit();
        });
    }
    // An XEmbed tray announces itself only on the X server.
    m_embeddedTrayWatch = makeSystemEmbeddedTrayWatch();
    if (m_embeddedTrayWatch)
        connect(m_embeddedTrayWatch.get(), &EmbeddedTrayWatch::gone, this, &VostApp::chooseTray);
    m_trayWatch = new QTimer(this);
    m_trayWatch->setInterval(trayWatchIntervalMs);
    connect(m_trayWatch, &QTimer::timeout, this, &VostApp::chooseTray);
    chooseTray();
    m_windowPlacer = makeSystemWindowPlacer();
    m_globalShortcut = makeSystemGlobalShortcut();
    connect(m_globalShortcut.get(), &GlobalShortcut::activated, this, &VostApp::handleGlobalShortcut);
    // The portal's answers come later: whether it exists, then whether the desktop bound it.
    connect(m_globalShortcut.get(), &GlobalShortcut::availabilityChanged, this, &VostApp::grabGlobalShortcut);
    connect(m_globalShortcut.get(), &GlobalShortcut::settled, this, [](bool held) {
        if (!Preferences::shared().globalShortcut().isEmpty())
            AppPreferences::setShortcutStatus(held ? AppPreferences::ShortcutStatus::Working
                                                   : AppPreferences::ShortcutStatus::Refused);
    });
    connect(&Preferences::shared(), &Preferences::globalShortcutChanged, this, &VostApp::grabGlobalShortcut);
    // Pressing the current combination while recording must reach the page, not
    // close the popover: the grab waits until the recording ends.
    connect(&events, &AppEvents::globalShortcutRecordingDidChange, this, [this](bool recording) {
        if (recording)
            m_globalShortcut->setShortcut(QKeySequence());
        else
            grabGlobalShortcut();
    });
    grabGlobalShortcut();
    m_root->start();
    return true;
}

void VostApp::createStatusMenu()
{
    m_statusMenu = std::make_unique<QMenu>();
    QAction *open = m_statusMenu->addAction(tr("Open Vost"));
    connect(open, &QAction::triggered, this, &VostApp::showPopover);
    m_statusMenu->addSeparator();
    QAction *quitAction = m_statusMenu->addAction(tr("Quit Vost"));
    quitAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quitAction, &QAction::triggered, this, &VostApp::quit);
    connect(&AppLanguage::shared(), &AppLanguage::languageChanged, m_statusMenu.get(), [this, open, quitAction] {
        open->setText(tr("Open Vost"));
        quitAction->setText(tr("Quit Vost"));
        if (m_trayItem)
            m_trayItem->setMenu({open->text(), QString(), quitAction->text()});
        updateStatusItem(m_unreadCount);
    });
}

// A tray that draws StatusNotifierItems comes first, then an XEmbed tray, else an
// ordinary window keeps the client reachable (GNOME without AppIndicator, a bare
// window manager, a panel that quit) until a tray appears.
void VostApp::chooseTray()
{
    TrayKind kind = TrayKind::Window;
    if (m_trayItem && m_trayItem->isShown())
        kind = TrayKind::StatusNotifier;
    // Qt settles on its first question whether its own tray icon speaks
    // StatusNotifierItem; asked only while no watcher runs, it stays with XEmbed.
    // A panel that holds both kinds can drop its StatusNotifierItem host before its
    // XEmbed tray: the watch then reports that tray's end too.
    else if (QSystemTrayIcon::isSystemTrayAvailable() && (!m_embeddedTrayWatch || m_embeddedTrayWatch->watch()))
        kind = TrayKind::XEmbed;
    if (kind != TrayKind::XEmbed && m_embeddedTrayWatch)
        m_embeddedTrayWatch->stop();
    // Only a window looks out for an XEmbed tray; in a tray the program sleeps.
    if (kind == TrayKind::Window && !m_trayWatch->isActive())
        m_trayWatch->start();
    else if (kind != TrayKind::Window)
        m_trayWatch->stop();
    if (kind == m_trayKind)
        return;
    const TrayKind previous = m_trayKind;
    m_trayKind = kind;
    if (kind != TrayKind::XEmbed && m_trayIcon) {
        m_trayIcon->hide();
        m_trayIcon->deleteLater();
        m_trayIcon = nullptr;
    }
    if (kind == TrayKind::Window) {
        closePopover();
        m_popover->setTrayMode(false);
        presentPopover();
        return;
    }
    if (previous == TrayKind::Window) {
        // Into the tray: the window goes; a later window is placed afresh.
        closePopover();
        m_placedOnce = false;
    }
    m_popover->setTrayMode(true);
    if (kind == TrayKind::XEmbed)
        createTrayIcon();
    updateStatusItem(m_unreadCount);
}

void VostApp::createTrayIcon()
{
    m_trayIcon = new QSystemTrayIcon(this);
    connect(m_trayIcon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) { handleTrayActivation(int(reason)); });
    updateStatusItem(m_unreadCount);
    m_trayIcon->show();
}

void VostApp::updateStatusItem(int unreadCount)
{
    m_unreadCount = std::max(unreadCount, 0);
    const QColor glyphColor = StatusItem::glyphColor(
        m_colorScheme ? m_colorScheme->scheme() : DesktopColorScheme::Unknown,
        StatusItem::panelIsAlwaysDark(qEnvironmentVariable("XDG_CURRENT_DESKTOP")), QGuiApplication::palette());
    if (m_trayItem) {
        // The host picks among the sizes it is given; the larger ones are the usual
        // sides drawn at twice the detail.
        QList<QImage> images;
        for (const int height : m_trayItem->iconHeights()) {
            const bool doubled = height > StatusItem::squareSides.back();
            images.append(
                StatusItem::squareImage(m_unreadCount, doubled ? height / 2 : height, doubled ? 2.0 : 1.0, glyphColor));
        }
        m_trayItem->setIcon(images);
    }
    if (m_trayIcon) {
        // Trays give square slots: one picture per usual side, the host takes the
        // nearest (the 2x ones for HiDPI screens and 44 to 64 pixel panels).
        QIcon icon;
        QList<qreal> ratios{1.0, 2.0};
        for (const QScreen *screen : QGuiApplication::screens())
            if (!ratios.contains(screen->devicePixelRatio()))
                ratios.append(screen->devicePixelRatio());
        for (const int side : StatusItem::squareSides)
            for (const qreal ratio : ratios)
                icon.addPixmap(QPixmap::fromImage(StatusItem::squareImage(m_unreadCount, side, ratio, glyphColor)));
        m_trayIcon->setIcon(icon);
        // Painting an icon caches a copy under that icon's key; every unread count
        // makes a new icon, so the copies of the old ones would pile up.
        QPixmapCache::clear();
    }
    updateToolTip();
}

void VostApp::updateToolTip()
{
    const QString toolTip = StatusItem::toolTip(m_unreadCount, m_session->connectionState());
    if (m_trayIcon)
        m_trayIcon->setToolTip(toolTip);
    if (m_trayItem) {
        // The label is the title; what the connection is doing goes under it.
        const qsizetype lineEnd = toolTip.indexOf(u'\n');
        m_trayItem->setToolTip(toolTip.left(lineEnd), lineEnd < 0 ? QString() : toolTip.mid(lineEnd + 1));
    }
}

void VostApp::handleTrayActivation(int reason)
{
    switch (QSystemTrayIcon::ActivationReason(reason)) {
    // A quick second click arrives as a double click: it toggles like any click.
    case QSystemTrayIcon::Trigger:
    case QSystemTrayIcon::DoubleClick:
        handleTrayClick(QCursor::pos());
        break;
    case QSystemTrayIcon::Context:
        showStatusMenu(QCursor::pos());
        break;
    case QSystemTrayIcon::MiddleClick:
    case QSystemTrayIcon::Unknown:
        break;
    }
}

void VostApp::handleTrayClick(std::optional<QPoint> point)
{
    if (popoverHandlingSuspended)
        return;
    m_clickPoint = point.value_or(QPoint());
    m_hasClickPoint = point.has_value();
    if (!isPopoverShown() && m_sinceDeactivationClose.isValid() && m_sinceDeactivationClose.elapsed() < reopenGuardMs) {
        m_sinceDeactivationClose.invalidate();
        return;
    }
    togglePopover();
}

void VostApp::grabGlobalShortcut()
{
    const QString shortcut = Preferences::shared().globalShortcut();
    const bool held = m_globalShortcut->setShortcut(QKeySequence::fromString(shortcut, QKeySequence::PortableText));
    using Status = AppPreferences::ShortcutStatus;
    if (!m_globalShortcut->isAvailable())
        AppPreferences::setShortcutStatus(Status::Unavailable);
    else if (shortcut.isEmpty())
        AppPreferences::setShortcutStatus(Status::Off);
    else
        AppPreferences::setShortcutStatus(held ? Status::Working : Status::Taken);
}

// The shortcut is a click on the tray item without the item: it opens the popover
// or closes it. A window has no tray item to come back by, so it only comes forward.
void VostApp::handleGlobalShortcut()
{
    if (popoverHandlingSuspended)
        return;
    if (m_popover->isInTrayMode())
        togglePopover();
    else
        bringForward();
}

// In an XEmbed tray, or for a host that leaves the menu to the program, the menu is
// our own popup: the popover must close before it opens, or the menu closes with
// the popover's activation.
void VostApp::showStatusMenu(const QPoint &point)
{
    if (popoverHandlingSuspended)
        return;
    closePopover();
    QTimer::singleShot(0, this, [this, point] { m_statusMenu->popup(point); });
}

bool VostApp::isPopoverShown() const
{
    return m_popover && m_popover->isVisible();
}

void VostApp::togglePopover()
{
    if (popoverHandlingSuspended || !m_popover)
        return;
    if (isPopoverShown())
        closePopover();
    else
        presentPopover();
}

void VostApp::showPopover()
{
    if (!isPopoverShown())
        togglePopover();
}

void VostApp::closePopover()
{
    if (!m_popover)
        return;
    m_deactivationTimer->stop();
    m_popover->hide();
}

void VostApp::presentPopover()
{
    const WindowPlacement placement = windowPlacement(QGuiApplication::platformName(), inWaylandSession());
    const QSize size = PopoverWindow::contentSize;
    std::optional<QPoint> askCompositor;
    if (placement == WindowPlacement::ByCompositor) {
        // Where the window goes is the compositor's to say: most centre it. KWin
        // takes the point under the icon that its panel reported.
        if (m_windowPlacer && m_popover->isInTrayMode() && m_hasClickPoint)
            askCompositor = popoverPosition(QRect(), m_clickPoint, availableAreaAt(m_clickPoint), size);
    } else if (m_popover->isInTrayMode()) {
        const QRect iconGeometry = m_trayIcon ? m_trayIcon->geometry() : QRect();
        const bool pointKnown = m_hasClickPoint || iconGeometry.isValid() || placement == WindowPlacement::Free;
        const QPoint pointer = m_hasClickPoint ? m_clickPoint : QCursor::pos();
        const QRect available = availableAreaAt(iconGeometry.isValid() ? iconGeometry.center() : pointer);
        if (pointKnown)
            m_popover->setPosition(popoverPosition(iconGeometry, pointer, available, size));
    } else if (!m_placedOnce) {
        QRect frame(QPoint(), size);
        frame.moveCenter(availableAreaAt(QPoint()).center());
        m_popover->setPosition(frame.topLeft());
        m_placedOnce = true;
    }
    m_presentedAt = std::chrono::steady_clock::now();
    m_popover->show();
    if (askCompositor)
        m_windowPlacer->place(m_popover.get(), *askCompositor);
    m_popover->raise();
    m_popover->requestActivate();
}

// The screen's area for windows at a point, the primary screen's where no screen is there.
QRect VostApp::availableAreaAt(QPoint point)
{
    QScreen *screen = point.isNull() ? nullptr : QGuiApplication::screenAt(point);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(QPoint(), PopoverWindow::contentSize);
}

void VostApp::bringForward(const QString &activationToken)
{
    presentActivationToken(activationToken);
    showPopover();
    m_popover->raise();
    m_popover->requestActivate();
}

// Qt's Wayland window hands the token to the compositor at its next activation.
void VostApp::presentActivationToken(const QString &token)
{
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

void VostApp::popoverActiveChanged()
{
    // On Linux there is no global pointer hook: losing activation is the click outside.
    if (!m_popover->isInTrayMode() || !isPopoverShown())
        return;
    if (m_popover->isActive())
        m_deactivationTimer->stop();
    else
        m_deactivationTimer->start();
}

void VostApp::closeAfterDeactivation()
{
    if (popoverHandlingSuspended || !isPopoverShown() || m_popover->isActive())
        return;
    if (QGuiApplication::mouseButtons().testFlag(Qt::LeftButton))
        return;
    closePopover();
    m_sinceDeactivationClose.start();
}

void VostApp::openChatFromNotification()
{
    // The root view selects the chat; here the popover comes forward.
    bringForward();
}

void VostApp::suspendPopoverForFilePanel()
{
    closePopover();
    m_popover->holdContentWhileHidden();
}

void VostApp::restorePopoverAfterFilePanel()
{
    showPopover();
}

// Vost spends most of its life in the tray: what a look at the popover cost
// (the scene graph's textures, decoded pictures, unused QML components, freed
// heap) goes back to the system when it closes. The models stay.
void VostApp::releasePopoverMemory()
{
    m_popover->releaseResources();
    MediaImageProvider::release();
    m_engine->trimComponentCache();
    m_engine->collectGarbage();
    QPixmapCache::clear();
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

void VostApp::endWithDesktopSession()
{
    m_session->shutDown();
    quit();
}

void VostApp::quit()
{
    closePopover();
    QCoreApplication::quit();
}
