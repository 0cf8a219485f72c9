#include "Client.h"

#include "Json.h"
#include "Runtime.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <random>

using namespace Qt::StringLiterals;

namespace demo {

namespace {

// The demo account's sign-in data.
const auto kPlainPhone = "15550100"_L1;    // +1 555 0100: code only
const auto kPasswordPhone = "15550101"_L1; // +1 555 0101: code, then the two-step password
const auto kCode = "22222"_L1;
const auto kPassword = "vostdemo"_L1;
const auto kPasswordHint = "the app's name, then demo"_L1;

QJsonObject authorizationState(const char *type, std::initializer_list<Field> fields = {})
{
    return object("updateAuthorizationState", {{"authorization_state", object(type, fields)}});
}

} // namespace

Client::Client(Runtime &runtime, int id)
    : m_runtime(runtime)
    , m_id(id)
{}

Client::~Client() = default;

void Client::start()
{
    update(object("updateOption",
                  {{"name", u"version"_s}, {"value", object("optionValueString", {{"value", u"1.8.67"_s}})}}));
    update(authorizationState("authorizationStateWaitTdlibParameters"));
    const QString networkSwitch = qEnvironmentVariable("VOST_DEMO_NETWORK_SWITCH");
    if (!networkSwitch.isEmpty())
        watchNetworkSwitch(networkSwitch);
    const QString incoming = qEnvironmentVariable("VOST_DEMO_INCOMING");
    if (!incoming.isEmpty())
        watchIncoming(incoming);
}

void Client::answer(const QJsonObject &request, QJsonObject result)
{
    if (request.contains("@extra"_L1))
        result.insert("@extra"_L1, request.value("@extra"_L1));
    m_runtime.post(m_id, std::move(result));
}

void Client::update(QJsonObject update)
{
    m_runtime.post(m_id, std::move(update));
}

void Client::after(int milliseconds, std::function<void(Client &)> task)
{
    m_runtime.schedule(m_id, milliseconds, std::move(task));
}

int Client::random(int bound)
{
    static std::mt19937 generator{std::random_device{}()};
    return bound <= 1 ? 0 : int(generator() % unsigned(bound));
}

int Client::delay(int fixed, int low, int high)
{
    return Runtime::deterministic() ? fixed : low + random(high - low + 1);
}

void Client::setState(State state)
{
    m_state = state;
    switch (state) {
    case State::WaitParameters:
        update(authorizationState("authorizationStateWaitTdlibParameters"));
        break;
    case State::WaitPhone:
        update(authorizationState("authorizationStateWaitPhoneNumber"));
        break;
    case State::WaitCode:
        update(authorizationState(
            "authorizationStateWaitCode",
            {{"code_info", object("authenticationCodeInfo",
                                  {{"phone_number", u'+' + m_phone},
                                   {"type", object("authenticationCodeTypeTelegramMessage", {{"length", 5}})},
                                   {"next_type", object("authenticationCodeTypeSms", {{"length", 5}})},
                                   {"timeout", 60}})}}));
        break;
    case State::WaitPassword:
        update(authorizationState("authorizationStateWaitPassword", {{"password_hint", QString(kPasswordHint)},
                                                                     {"has_recovery_email_address", false},
                                                                     {"has_passport_data", false},
                                                                     {"recovery_email_address_pattern", QString()}}));
        break;
    case State::Ready:
        update(authorizationState("authorizationStateReady"));
        break;
    case State::LoggingOut:
        update(authorizationState("authorizationStateLoggingOut"));
        break;
    case State::Closing:
        update(authorizationState("authorizationStateClosing"));
        break;
    case State::Closed:
        update(authorizationState("authorizationStateClosed"));
        break;
    }
}

void Client::handle(const QJsonObject &request)
{
    const QString type = request.value("@type"_L1).toString();
    if (type.isEmpty()) {
        answer(request, error(400, u"Failed to parse JSON object as TDLib request: Can't find field \"@type\""_s));
        return;
    }
    if (type == "getOption"_L1) {
        const QString name = stringOf(request, "name");
        if (name == "version"_L1)
            answer(request, object("optionValueString", {{"value", u"1.8.67"_s}}));
        else if (name == "my_id"_L1 && m_account)
            answer(request, object("optionValueInteger", {{"value", int64String(m_account->selfID())}}));
        else
            answer(request, object("optionValueEmpty"));
        return;
    }
    if (type == "setOption"_L1 || type == "setLogVerbosityLevel"_L1) {
        answer(request, ok());
        return;
    }
    if (handleAuthorization(type, request))
        return;
    if (m_state != State::Ready) {
        answer(request, error(401, u"Unauthorized"_s));
        return;
    }
    if (handleChats(type, request) || handleMessages(type, request) || handleStickersAndContacts(type, request))
        return;
    answer(request, error(400, u"The method is not supported by the demo account"_s));
}

bool Client::handleAuthorization(const QString &type, const QJsonObject &request)
{
    if (type == "setTdlibParameters"_L1) {
        if (m_state != State::WaitParameters) {
            answer(request, error(400, u"Unexpected setTdlibParameters"_s));
            return true;
        }
        m_databaseDirectory = stringOf(request, "database_directory");
        m_filesDirectory = stringOf(request, "files_directory");
        if (m_databaseDirectory.isEmpty())
            m_databaseDirectory = QDir::currentPath() + u"/tdlib"_s;
        if (m_filesDirectory.isEmpty())
            m_filesDirectory = m_databaseDirectory;
        QDir().mkpath(m_databaseDirectory);
        QDir().mkpath(m_filesDirectory);
        answer(request, ok());
        // A client started without network waits for it (Network.cpp).
        update(object("updateConnectionState",
                      {{"state", object(m_offline ? "connectionStateWaitingForNetwork" : "connectionStateReady")}}));
        QFile remembered(rememberedAccountPath());
        if (remembered.open(QIODevice::ReadOnly)) {
            m_phone = QJsonDocument::fromJson(remembered.readAll()).object().value("phone"_L1).toString();
            if (m_phone == kPlainPhone || m_phone == kPasswordPhone) {
                becomeReady();
                return true;
            }
        }
        setState(State::WaitPhone);
        return true;
    }
    if (type == "setAuthenticationPhoneNumber"_L1) {
        if (m_state != State::WaitPhone && m_state != State::WaitCode) {
            answer(request, error(400, u"Unexpected setAuthenticationPhoneNumber"_s));
            return true;
        }
        const QString phone = digitsOf(stringOf(request, "phone_number"));
        if (phone != kPlainPhone && phone != kPasswordPhone) {
            answer(request, error(400, u"PHONE_NUMBER_INVALID"_s));
            return true;
        }
        m_phone = phone;
        answer(request, ok());
        setState(State::WaitCode);
        return true;
    }
    if (type == "checkAuthenticationCode"_L1) {
        if (m_state != State::WaitCode) {
            answer(request, error(400, u"Unexpected checkAuthenticationCode"_s));
            return true;
        }
        if (stringOf(request, "code").trimmed() != kCode) {
            answer(request, error(400, u"PHONE_CODE_INVALID"_s));
            return true;
        }
        answer(request, ok());
        if (m_phone == kPasswordPhone)
            setState(State::WaitPassword);
        else
            becomeReady();
        return true;
    }
    if (type == "checkAuthenticationPassword"_L1) {
        if (m_state != State::WaitPassword) {
            answer(request, error(400, u"Unexpected checkAuthenticationPassword"_s));
            return true;
        }
        if (stringOf(request, "password") != kPassword) {
            answer(request, error(400, u"PASSWORD_HASH_INVALID"_s));
            return true;
        }
        answer(request, ok());
        becomeReady();
        return true;
    }
    if (type == "logOut"_L1 || type == "close"_L1) {
        close(type == "logOut"_L1, request);
        return true;
    }
    return false;
}

QString Client::rememberedAccountPath() const
{
    return m_databaseDirectory + u"/vost-demo-account.json"_s;
}

void Client::becomeReady()
{
    const bool second = m_phone == kPasswordPhone;
    m_account = std::make_unique<Account>(second ? 100000002 : 100000001, second ? u"Sam"_s : u"Alex"_s, m_phone,
                                          Runtime::now());
    m_account->filesDirectory = m_filesDirectory;
    // Files generated by an earlier run are already downloaded.
    for (auto &[id, file] : m_account->files) {
        const QString path = m_filesDirectory + u'/' + file.folder + u'/' + file.name;
        if (QFile::exists(path)) {
            file.localPath = path;
            file.completed = true;
            file.size = QFileInfo(path).size();
        }
    }
    QFile remembered(rememberedAccountPath());
    if (remembered.open(QIODevice::WriteOnly))
        remembered.write(QJsonDocument(QJsonObject{{u"phone"_s, m_phone}}).toJson());
    update(object("updateUser", {{"user", m_account->userJson(m_account->selfID())}}));
    setState(State::Ready);
    for (const auto &[id, user] : m_account->users)
        if (id != m_account->selfID())
            update(object("updateUser", {{"user", m_account->userJson(id)}}));
    QJsonArray installed;
    for (const DemoStickerSet &set : m_account->stickerSets)
        if (set.installed)
            installed.append(int64String(set.id));
    update(object("updateInstalledStickerSets",
                  {{"sticker_type", object("stickerTypeRegular")}, {"sticker_set_ids", installed}}));
    scheduleLife();
}

void Client::close(bool logOut, const QJsonObject &request)
{
    if (m_state == State::Closing || m_state == State::LoggingOut) {
        answer(request, error(400, u"Already closing"_s));
        return;
    }
    if (logOut) {
        if (m_state != State::Ready) {
            // Nothing to log out of: TDLib still destroys the local session.
        }
        QFile::remove(rememberedAccountPath());
        setState(State::LoggingOut);
    }
    answer(request, ok());
    setState(State::Closing);
    m_account.reset();
    setState(State::Closed);
}

} // namespace demo
