#include "session/AuthorizationStore.h"

#include "session/ChangedValue.h"
#include "session/ContentTexts.h"

using namespace Qt::StringLiterals;

AuthorizationStore::AuthorizationStore(SendRequest send, QObject *parent)
    : QObject(parent)
    , m_send(std::move(send))
    , m_startupStatus(tr("Waiting to start"))
{}

void AuthorizationStore::setStep(const Step &step)
{
    if (assignChanged(m_step, step))
        Q_EMIT stepChanged();
}

void AuthorizationStore::setErrorMessage(const std::optional<QString> &message)
{
    if (assignChanged(m_errorMessage, message))
        Q_EMIT errorMessageChanged();
}

void AuthorizationStore::setStartupStatus(const QString &status)
{
    if (!assignChanged(m_startupStatus, status))
        return;
    m_lastEventType.clear();
    Q_EMIT startupStatusChanged();
}

void AuthorizationStore::noteEvent(const QJsonValue &type)
{
    const QString typeName = type.isString() ? type.toString() : QString();
    if (!typeName.isEmpty() && typeName == m_lastEventType)
        return;
    //: %1 is the name of TDLib's event, such as updateOption.
    setStartupStatus(tr("Received TDLib event: %1").arg(type.isString() ? typeName : tr("unknown")));
    m_lastEventType = typeName;
}

void AuthorizationStore::setCurrentAccount(const QString &name, const QString &phoneNumber)
{
    if (m_currentAccountName != name) {
        m_currentAccountName = name;
        Q_EMIT currentAccountNameChanged();
    }
    if (m_currentAccountPhoneNumber != phoneNumber) {
        m_currentAccountPhoneNumber = phoneNumber;
        Q_EMIT currentAccountPhoneNumberChanged();
    }
}

void AuthorizationStore::submitPhoneNumber(const QString &phoneNumber)
{
    setErrorMessage(std::nullopt);
    m_send(u"setAuthenticationPhoneNumber"_s,
           {{"phone_number"_L1, phoneNumber},
            {"settings"_L1, TdObject{{"@type"_L1, u"phoneNumberAuthenticationSettings"_s}}}});
}

void AuthorizationStore::submitVerificationCode(const QString &code)
{
    setErrorMessage(std::nullopt);
    m_send(u"checkAuthenticationCode"_s, {{"code"_L1, code}});
}

void AuthorizationStore::submitPassword(const QString &password)
{
    setErrorMessage(std::nullopt);
    m_send(u"checkAuthenticationPassword"_s, {{"password"_L1, password}});
}

void AuthorizationStore::logOut()
{
    if (!isReady())
        return;
    m_restartingAfterLogout = true;
    setStep(Step::starting());
    setErrorMessage(std::nullopt);
    m_send(u"logOut"_s, {});
}

bool AuthorizationStore::handleUpdate(const QString &type, const TdObject &object, bool quitting)
{
    if (type != "updateAuthorizationState"_L1)
        return false;
    handleState(object.value("authorization_state"_L1).toObject(), quitting);
    return true;
}

void AuthorizationStore::handleState(const TdObject &state, bool quitting)
{
    const QString type = typeOf(state);
    if (type == "authorizationStateWaitTdlibParameters"_L1) {
        Q_EMIT tdlibParametersWanted();
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
        setStep(Step::ready());
        setErrorMessage(std::nullopt);
        Q_EMIT signedIn();
        m_send(u"getMe"_s, {{"@extra"_L1, TdObject{{"purpose"_L1, u"current_user"_s}}}});
    } else if (type == "authorizationStateLoggingOut"_L1 || type == "authorizationStateClosing"_L1) {
        if (!m_restartingAfterLogout && !quitting)
            setStep(Step::unavailable(tr("The Telegram session is closing.")));
    } else if (type == "authorizationStateClosed"_L1) {
        if (quitting) {
            Q_EMIT clientClosed(); // the application is quitting: no new client
        } else if (m_restartingAfterLogout) {
            m_restartingAfterLogout = false;
            Q_EMIT accountLeft();
        } else {
            setStep(Step::unavailable(tr("The Telegram session closed.")));
        }
    }
}

bool AuthorizationStore::handleAnswer(const QString &purpose, const QString &type, const TdObject &object)
{
    if (purpose != "current_user"_L1 || type != "user"_L1)
        return false;
    m_currentUserID = int64From(object.value("id"_L1));
    setCurrentAccount(fullName(object), object.value("phone_number"_L1).toString());
    Q_EMIT currentUserReceived(object);
    return true;
}

void AuthorizationStore::fail(const QString &text)
{
    setErrorMessage(text);
    if (m_step.kind() == Step::Case::Starting)
        setStep(Step::unavailable(text));
}

void AuthorizationStore::reset()
{
    setCurrentAccount(QString(), QString());
    m_currentUserID.reset();
}
