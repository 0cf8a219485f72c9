// Start-up, TDLib's authorization states, sign-in and logging out.

#include "session/Announcer.h"
#include "session/AuthorizationStore.h"
#include "session/ChatSearchStore.h"
#include "session/ContactStore.h"
#include "session/ContentTexts.h"
#include "session/DownloadStore.h"
#include "session/RepliedMessageStore.h"
#include "session/SoundManager.h"
#include "session/StickerStore.h"
#include "session/TDLibChannel.h"
#include "session/TelegramSession.h"

#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QSysInfo>

using namespace Qt::StringLiterals;

void TelegramSession::start(qint64 apiID, const QString &apiHash)
{
    if (m_authorization->step().kind() != Step::Case::Idle)
        return;
    m_channel->setCredentials(apiID, apiHash);
    m_authorization->setStep(Step::starting());
    m_authorization->setStartupStatus(tr("Loading the bundled TDLib library…"));
    if (const std::optional<QString> error = m_channel->load()) {
        m_authorization->setStep(Step::unavailable(*error));
        return;
    }
    m_channel->quietLog();
    m_authorization->setStartupStatus(tr("TDLib loaded; creating a client…"));
    m_authorization->setStep(Step::starting());
    m_channel->startClient();
    m_authorization->setStartupStatus(tr("Client created; waiting for TDLib’s first event…"));
    m_channel->startReceiving([this](const QByteArray &event) { handleResponse(event); });
}

void TelegramSession::submitPhoneNumber(const QString &phoneNumber)
{
    m_authorization->submitPhoneNumber(phoneNumber);
}

void TelegramSession::submitVerificationCode(const QString &code)
{
    m_authorization->submitVerificationCode(code);
}

void TelegramSession::submitPassword(const QString &password)
{
    m_authorization->submitPassword(password);
}

void TelegramSession::logOutAndChangeAccount()
{
    m_authorization->logOut();
}

void TelegramSession::completeSignIn()
{
    m_announcer->play(SoundEvent::SignedIn);
    requestChats();
    refreshContacts();
}

void TelegramSession::submitTDLibParameters()
{
    const std::optional<qint64> apiID = m_channel->apiID();
    const std::optional<QString> apiHash = m_channel->apiHash();
    if (!apiID || !apiHash)
        return;
    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (dataFolder.isEmpty())
        return;
    const QString databaseFolder = dataFolder + "/Corvella/TDLib"_L1;
    const QString filesFolder = databaseFolder + "/Files"_L1;
    QDir().mkpath(filesFolder); // TDLib reports an unusable folder itself

    // The default locale: the system's, or the language chosen in the preferences.
    const QLocale::Language language = QLocale().language();
    QString languageCode;
    if (language != QLocale::C && language != QLocale::AnyLanguage)
        languageCode = QLocale::languageToCode(language);
    if (languageCode.isEmpty())
        languageCode = u"en"_s;
#ifdef Q_OS_MACOS
    const QString deviceModel = u"Mac"_s;
#else
    const QString deviceModel = u"Linux"_s;
#endif
    send(u"setTdlibParameters"_s, {
                                      {"use_test_dc"_L1, false},
                                      {"database_directory"_L1, databaseFolder},
                                      {"files_directory"_L1, filesFolder},
                                      {"database_encryption_key"_L1, u""_s},
                                      {"use_file_database"_L1, true},
                                      {"use_chat_info_database"_L1, true},
                                      {"use_message_database"_L1, true},
                                      {"use_secret_chats"_L1, true},
                                      {"api_id"_L1, *apiID},
                                      {"api_hash"_L1, *apiHash},
                                      {"system_language_code"_L1, languageCode},
                                      {"device_model"_L1, deviceModel},
                                      {"system_version"_L1, QSysInfo::prettyProductName()},
                                      {"application_version"_L1, u"1.4"_s},
                                  });
}

void TelegramSession::beginClient()
{
    if (!m_channel->isLoaded())
        return;
    m_authorization->setStep(Step::starting());
    m_channel->startClient();
}

void TelegramSession::resetAccountState()
{
    // The user cache is kept on purpose: it describes Telegram, not the account
    // that left.
    m_chatList->reset();
    const QStringList chatsWithMessages = m_messages.reset();
    for (const QString &chatID : chatsWithMessages)
        Q_EMIT messagesChanged(chatID);
    m_authorization->reset();
    m_contacts->reset();
    m_stickers->reset();
    m_downloads->reset();
    m_chatSearch->reset();
    m_history.reset();

    m_imageDiagnosticEvents.clear();
    m_replied->reset();
    // The next client reports its own link; until it does, nothing is claimed.
    setConnectionState(ConnectionState::Ready);
}
