// Start-up, TDLib's authorization states, sign-in and logging out.

#include "session/AuthorizationStore.h"
#include "session/ContactStore.h"
#include "session/ContentTexts.h"
#include "session/SoundManager.h"
#include "session/StickerStore.h"
#include "session/TelegramSession.h"
#include "tdlib/ReceiveLoop.h"
#include "tdlib/TDLibRuntime.h"

#include <QDir>
#include <QEventLoop>
#include <QLocale>
#include <QStandardPaths>
#include <QSysInfo>

using namespace Qt::StringLiterals;

void TelegramSession::start(qint64 apiID, const QString &apiHash)
{
    if (m_authorization->step().kind() != Step::Case::Idle)
        return;
    m_apiID = apiID;
    m_apiHash = apiHash;
    m_authorization->setStep(Step::starting());
    m_authorization->setStartupStatus(u"Loading the bundled TDLib library…"_s);
    try {
        if (!m_bundle)
            throw TDLibRuntime::RuntimeError::libraryNotBundled();
        m_runtime = std::make_shared<const TDLibRuntime>(*m_bundle);
    } catch (const TDLibRuntime::RuntimeError &error) {
        m_authorization->setStep(Step::unavailable(error.errorDescription()));
        return;
    }
    quietTDLibLog();
    m_authorization->setStartupStatus(u"TDLib loaded; creating a client…"_s);
    m_authorization->setStep(Step::starting());
    startClient();
    m_authorization->setStartupStatus(u"Client created; waiting for TDLib’s first event…"_s);
    m_receiveLoop =
        std::make_unique<ReceiveLoop>(m_runtime, this, [this](const QByteArray &event) { handleResponse(event); });
    m_receiveLoop->start();
}

void TelegramSession::quietTDLibLog()
{
    // TDLib logs its own debugging to standard error by default; keep errors only,
    // unless VOST_TDLIB_LOG_VERBOSITY asks for more.
    bool ok = false;
    int level = qEnvironmentVariableIntValue("VOST_TDLIB_LOG_VERBOSITY", &ok);
    if (!ok)
        level = 1;
    const QByteArray request =
        R"({"@type":"setLogVerbosityLevel","new_verbosity_level":)" + QByteArray::number(level) + '}';
    m_runtime->execute(request.constData());
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
    m_soundManager->play(SoundEvent::SignedIn);
    requestChats();
    refreshContacts();
}

void TelegramSession::submitTDLibParameters()
{
    if (!m_apiID || !m_apiHash)
        return;
    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (dataFolder.isEmpty())
        return;
    const QString databaseFolder = dataFolder + "/Corvella/TDLib"_L1;
    const QString filesFolder = databaseFolder + "/Files"_L1;
    QDir().mkpath(filesFolder); // TDLib reports an unusable folder itself

    const QLocale::Language language = QLocale::system().language();
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
                                      {"api_id"_L1, *m_apiID},
                                      {"api_hash"_L1, *m_apiHash},
                                      {"system_language_code"_L1, languageCode},
                                      {"device_model"_L1, deviceModel},
                                      {"system_version"_L1, QSysInfo::prettyProductName()},
                                      {"application_version"_L1, u"1.4"_s},
                                  });
}

void TelegramSession::beginClient()
{
    if (!m_runtime)
        return;
    m_authorization->setStep(Step::starting());
    startClient();
}

void TelegramSession::resetAccountState()
{
    // The user cache, read markers, avatar owners, base subtitles and muted chats
    // are kept on purpose: they describe Telegram, not the account that left.
    for (auto &[id, record] : m_chatRecords) {
        record.chat.reset();
        record.listKey.reset();
        record.positions = {};
        record.privateChatUser.reset();
    }
    m_chatIndex.clear();
    m_chatIndexChanges.clear();
    m_chatIndexNeedsRebuild = false;
    m_chatsToSort.clear();
    m_publishedChatsValid = false;
    Q_EMIT chatsChanged();
    const QStringList chatsWithMessages = m_messagesByChat.keys();
    m_messagesByChat.clear();
    m_messageDetailsByChat.clear();
    for (const QString &chatID : chatsWithMessages)
        Q_EMIT messagesChanged(chatID);
    m_authorization->reset();
    m_contacts->reset();
    m_stickers->reset();

    m_removedChatIDs.clear();
    m_privateChatsByUser.clear();
    m_explicitlyOpenedChats.clear();
    m_rawMessagesByChat.clear();
    m_messageMediaOwners.clear();
    m_downloadedMediaPaths.clear();
    m_downloadProgress.clear();
    m_imageDiagnosticEvents.clear();
    m_loadingInitialHistory.clear();
    m_repliedMessages.clear();
    m_missingRepliedMessages.clear();
    m_requestedRepliedMessages.clear();
    m_initialHistoryProgress.clear();
    m_preloadedHistory.clear();
    m_expandedHistory.clear();
    m_loadingChatLists.clear();
    m_loadingOlderHistory.clear();
    m_exhaustedHistory.clear();
}
