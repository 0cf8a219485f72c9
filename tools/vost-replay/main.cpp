// vost-replay: drives one session headlessly from JSON Lines. See docs/replay.md.

#include "ReplayDriver.h"
#include "ReplayModules.h"

#include "platform/NotificationPoster.h"
#include "platform/SoundPlayer.h"
#include "session/NotificationCenter.h"
#include "session/NotificationService.h"
#include "session/SoundManager.h"
#include "session/TelegramSession.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <fstream>
#include <iostream>
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
    {
    }
    void show(const QString &, const QString &title, const QString &body, const QString &chatID) override
    {
        m_driver.emitLine(
            {{"notification"_L1, QJsonObject{{"title"_L1, title}, {"body"_L1, body}, {"chatID"_L1, chatID}}}});
    }

private:
    ReplayDriver &m_driver;
};

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
    parser.addOptions({nowOption, bundleOption, appStoreHostOption, appStoreLookupOption});
    parser.process(application);

    // Never the user's own settings or data.
    QStandardPaths::setTestModeEnabled(true);
    QTemporaryDir settingsFolder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsFolder.path());

    ReplayDriver driver(stdout);
    RecordingSoundPlayer soundPlayer(driver);
    SoundManager::shared().setPlayer(&soundPlayer);

    TelegramSession session([&driver](const QString &type, const TdObject &fields) {
        TdObject request = fields;
        request.insert("@type"_L1, type);
        driver.emitLine({{"request"_L1, request}});
    });
    session.setBundle(parser.isSet(bundleOption) ? std::optional(AppBundle(parser.value(bundleOption))) : std::nullopt);
    if (parser.isSet(nowOption)) {
        const QDateTime now = QDateTime::fromSecsSinceEpoch(parser.value(nowOption).toLongLong());
        session.setClock([now] { return now; });
    }

    QObject::connect(&NotificationCenter::defaultCenter(), &NotificationCenter::posted, &driver,
                     [&driver](const QString &name, const QVariant &object) {
                         driver.emitLine({{"posted"_L1, QJsonObject{{"name"_L1, name},
                                                                    {"object"_L1, QJsonValue::fromVariant(object)}}}});
                     });

    RecordingNotificationPoster notificationPoster(driver);
    NotificationService::shared().setPoster(&notificationPoster);

    registerSessionCalls(driver, session);
    registerActionCalls(driver, session);
    registerRenderCalls(driver, {parser.value(appStoreHostOption), parser.value(appStoreLookupOption)});

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
