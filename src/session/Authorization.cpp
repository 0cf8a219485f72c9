// Start-up, TDLib's authorization states, sign-in and logging out.

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
    if (m_step.kind() != Step::Case::Idle)
        return;
    m_apiID = apiID;
    m_apiHash = apiHash;
    setStep(Step::starting());
    setStartupStatus(tr("Loading the bundled TDLib library…"));
    try {
        if (!m_bundle)
            throw TDLibRuntime::RuntimeError::libraryNotBundled();
        m_runtime = std::make_shared<const TDLibRuntime>(*m_bundle);
    } catch (const TDLibRuntime::RuntimeError &error) {
        setStep(Step::unavailable(error.errorDescription()));
        return;
    }
    quietTDLibLog();
    setStartupStatus(tr("TDLib loaded; creating a client…"));
    setStep(Step::starting());
    startClient();
    setStartupStatus(tr("Client created; waiting for TDLib’s first event…"));
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
    setErrorMessage(std::nullopt);
    send(u"setAuthenticationPhoneNumber"_s,
         {{"phone_number"_L1, phoneNumber},
          {"settings"_L1, TdObject{{"@type"_L1, u"phoneNumberAuthenticationSettings"_s}}}});
}

void TelegramSession::submitVerificationCode(const QString &code)
{
    setErrorMessage(std::nullopt);
    send(u"checkAuthenticationCode"_s, {{"code"_L1, code}});
}

void TelegramSession::submitPassword(const QString &password)
{
    setErrorMessage(std::nullopt);
    send(u"checkAuthenticationPassword"_s, {{"password"_L1, password}});
}

void TelegramSession::logOutAndChangeAccount()
{
    if (!isReady())
        return;
    m_restartingAfterLogout = true;
    setStep(Step::starting());
    setErrorMessage(std::nullopt);
    send(u"logOut"_s);
}

void TelegramSession::handleAuthorizationState(const TdObject &state)
{
    const QString type = typeOf(state);
    if (type == "authorizationStateWaitTdlibParameters"_L1) {
        submitTDLibParameters();
    } else if (type == "authorizationStateWaitPhoneNumber"_L1) {
        setStep(Step::phoneNumber());
    } else if (type == "authorizationStateWaitCode"_L1) {
        m_codeInfo = CodeInfo::from(state.value("code_info"_L1).toObject());
        Q_EMIT codeInfoChanged();
        setStep(Step::verificationCode());
    } else if (type == "authorizationStateWaitPassword"_L1) {
        const QJsonValue hint = state.value("password_hint"_L1);
        setStep(Step::password(hint.isString() ? hint.toString() : QString()));
    } else if (type == "authorizationStateReady"_L1) {
        completeSignIn();
    } else if (type == "authorizationStateLoggingOut"_L1 || type == "authorizationStateClosing"_L1) {
        if (!m_restartingAfterLogout && !m_closeWait)
            setStep(Step::unavailable(tr("The Telegram session is closing.")));
    } else if (type == "authorizationStateClosed"_L1) {
        if (m_closeWait) {
            m_closeWait->quit(); // the application is quitting: no new client
        } else if (m_restartingAfterLogout) {
            m_restartingAfterLogout = false;
            resetAccountState();
            beginClient();
        } else {
            setStep(Step::unavailable(tr("The Telegram session closed.")));
        }
    }
}

void TelegramSession::completeSignIn()
{
    setStep(Step::ready());
    setErrorMessage(std::nullopt);
    m_soundManager->play(SoundEvent::SignedIn);
    requestChats();
    refreshContacts();
    send(u"getMe"_s, {{"@extra"_L1, TdObject{{"purpose"_L1, u"current_user"_s}}}});
}

void TelegramSession::storeCurrentUser(const TdObject &user)
{
    m_currentUserID = int64From(user.value("id"_L1));
    setCurrentAccount(fullName(user), user.value("phone_number"_L1).toString());
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
    setStep(Step::starting());
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
    setCurrentAccount(QString(), QString());
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
    m_currentUserID.reset();
    // The next client reports its own link; until it does, nothing is claimed.
    setConnectionState(ConnectionState::Ready);
}
