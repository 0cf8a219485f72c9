// vost-replay: drives one session headlessly from JSON Lines. See docs/replay.md.

#include "ReplayDriver.h"
#include "ReplayModules.h"

#include "platform/NotificationPoster.h"
#include "platform/SoundPlayer.h"
#include "session/NotificationService.h"
#include "session/SoundManager.h"
#include "session/TelegramSession.h"
#include "tdlib/DemoBundle.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

// Prints the name of each sound instead of playing it.
class RecordingSoundPlayer : public SoundPlayer
{
public:
    explicit RecordingSoundPlayer(ReplayDriver &driver)
        : m_driver(driver)
    {}
    void play(const QString &name) override { m_driver.emitLine({{"sound"_L1, name}}); }

private:
    ReplayDriver &m_driver;
};

// Prints each desktop notification instead of showing it.
class RecordingNotificationPoster : public NotificationPoster
{
public:
    explicit RecordingNotificationPoster(ReplayDriver &driver)
        : m_driver(driver)
    {}
    void show(const QString &, const QString &title, const QString &body, const QString &chatID,
              const QString &) override
    {
        m_driver.emitLine(
            {{"notification"_L1, QJsonObject{{"title"_L1, title}, {"body"_L1, body}, {"chatID"_L1, chatID}}}});
    }

private:
    ReplayDriver &m_driver;
};

// What the session exchanges with TDLib and what of it is printed.
struct Traffic {
    std::optional<AppBundle> bundle;
    bool deliver = false;      // requests reach the library, not only the output
    bool printRequests = true; // {"request": ...} lines
    bool printReceived = true; // {"received": ...} lines, when delivering
};

// Prints each request the session sends and, when delivering, each object the
// library sends before the session handles it (not the events the script injects).
void observeTraffic(TelegramSession &session, ReplayDriver &driver, const Traffic &traffic)
{
    if (traffic.printRequests) {
        session.setRequestObserver([&driver](const QString &type, const TdObject &fields) {
            TdObject request = fields;
            request.insert("@type"_L1, type);
            driver.emitLine({{"request"_L1, request}});
        });
    }
    if (traffic.deliver && traffic.printReceived) {
        session.setResponseObserver([&driver](const QByteArray &json) {
            if (driver.isInjectingEvent())
                return;
            const QJsonDocument document = QJsonDocument::fromJson(json);
            driver.emitLine({{"received"_L1, document.isObject() ? QJsonValue(document.object())
                                                                 : QJsonValue(QString::fromUtf8(json))}});
        });
    }
}

// Reads lines on a thread of its own, so a pipe that another program keeps writing
// to is handled line by line as it arrives.
void readLines(std::istream &input, ReplayDriver *driver)
{
    std::string line;
    while (std::getline(input, line)) {
        QMetaObject::invokeMethod(
            driver, [driver, text = QByteArray::fromStdString(line)] { driver->feed(text); }, Qt::QueuedConnection);
    }
    QMetaObject::invokeMethod(driver, &ReplayDriver::finishInput, Qt::QueuedConnection);
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"vost-replay"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Drives a Vost session from JSON Lines of TDLib events and calls."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"script"_s, u"A .jsonl file; standard input when absent."_s);
    const QCommandLineOption nowOption(u"now"_s, u"Fixes the clock at UNIX_SECONDS."_s, u"UNIX_SECONDS"_s);
    const QCommandLineOption bundleOption(u"bundle"_s, u"Loads TDLib from the bundle at DIR."_s, u"DIR"_s);
    const QCommandLineOption appStoreHostOption(u"app-store-host"_s, u"The app store's web host."_s, u"HOST"_s,
                                                u"apps.apple.com"_s);
    const QCommandLineOption appStoreLookupOption(u"app-store-lookup"_s, u"The app store's lookup address."_s, u"URL"_s,
                                                  u"https://itunes.apple.com/lookup?id="_s);
    const QCommandLineOption deliverOption(
        u"deliver"_s, u"Also delivers the requests to the bundle's library and prints what it sends."_s);
    const QCommandLineOption demoOption(u"demo"_s, u"Drives the offline demo account: its bundle, with --deliver."_s);
    const QCommandLineOption quietRequestsOption(u"quiet-requests"_s, u"Does not print the requests."_s);
    const QCommandLineOption viewModelOption(
        u"view-model"_s, u"Also builds the chat view model, wired to the session as the root view wires it."_s);
    const QCommandLineOption quietReceivedOption(u"quiet-received"_s, u"Does not print what the library sends."_s);
    parser.addOptions({nowOption, bundleOption, deliverOption, demoOption, viewModelOption, quietRequestsOption,
                       quietReceivedOption, appStoreHostOption, appStoreLookupOption});
    parser.process(application);

    Traffic traffic;
    traffic.deliver = parser.isSet(deliverOption) || parser.isSet(demoOption);
    traffic.printRequests = !parser.isSet(quietRequestsOption);
    traffic.printReceived = !parser.isSet(quietReceivedOption);
    if (parser.isSet(demoOption)) {
        traffic.bundle = demoBundle(AppBundle::main());
        if (!traffic.bundle) {
            std::cerr << "vost-replay: the demo account is not in this build or installation\n";
            return 2;
        }
    } else if (parser.isSet(bundleOption)) {
        traffic.bundle = AppBundle(parser.value(bundleOption));
    } else if (traffic.deliver) {
        std::cerr << "vost-replay: --deliver needs --bundle DIR\n";
        return 2;
    }

    // Never the user's own settings or data. A library that is delivered to keeps
    // its database under a private home that goes away at the end.
    QTemporaryDir privateHome;
    if (traffic.deliver)
        qputenv("HOME", QFile::encodeName(privateHome.path()));
    QStandardPaths::setTestModeEnabled(true);
    QTemporaryDir settingsFolder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsFolder.path());

    ReplayDriver driver(stdout);
    RecordingSoundPlayer soundPlayer(driver);
    SoundManager::shared().setPlayer(&soundPlayer);

    // Without delivery a sender that drops every request keeps them from the library.
    TelegramSession::RequestSender dropRequests;
    if (!traffic.deliver)
        dropRequests = [](const QString &, const TdObject &) {};
    TelegramSession session(dropRequests);
    session.setBundle(traffic.bundle);
    observeTraffic(session, driver, traffic);
    if (parser.isSet(nowOption)) {
        const QDateTime now = QDateTime::fromSecsSinceEpoch(parser.value(nowOption).toLongLong());
        session.setClock([now] { return now; });
    }

    registerPostedEvents(driver);

    RecordingNotificationPoster notificationPoster(driver);
    NotificationService::shared().setPoster(&notificationPoster);

    registerSessionCalls(driver, session);
    registerActionCalls(driver, session);
    registerRenderCalls(driver, {parser.value(appStoreHostOption), parser.value(appStoreLookupOption)});
    // After the printer of process-wide notifications, so a posted line comes before the reactions to it.
    if (parser.isSet(viewModelOption))
        registerViewModelCalls(driver, session);

    QObject::connect(&driver, &ReplayDriver::finished, &application, &QCoreApplication::quit);

    const QStringList positional = parser.positionalArguments();
    std::ifstream file;
    if (!positional.isEmpty()) {
        file.open(positional.first().toStdString());
        if (!file) {
            std::cerr << "vost-replay: cannot read " << positional.first().toStdString() << '\n';
            return 2;
        }
    }
    std::thread reader(readLines, std::ref(positional.isEmpty() ? std::cin : file), &driver);
    reader.detach(); // a blocked read of standard input must not keep the process alive

    const int status = application.exec();
    session.shutDown();
    return status;
}
