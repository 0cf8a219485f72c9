#include "LoginPresenter.h"

#include "app/ErrorTexts.h"
#include "app/PhoneNumbers.h"
#include "session/TelegramSession.h"
#include "tdlib/AppBundle.h"

using namespace Qt::StringLiterals;
using Case = Step::Case;

QString LoginTexts::icon(Step::Case step)
{
    switch (step) {
    case Case::Password:
        return u"lock.fill"_s;
    case Case::Unavailable:
        return u"exclamationmark.triangle.fill"_s;
    case Case::VerificationCode:
        return u"number.square.fill"_s;
    case Case::Idle:
    case Case::Starting:
    case Case::PhoneNumber:
    case Case::Ready:
        break;
    }
    return u"paperplane.fill"_s;
}

QString LoginTexts::title(Step::Case step)
{
    switch (step) {
    case Case::Password:
        return u"Two-step verification"_s;
    case Case::Unavailable:
        return u"Telegram is unavailable"_s;
    case Case::PhoneNumber:
        return u"Sign in to Telegram"_s;
    case Case::VerificationCode:
        return u"Enter your verification code"_s;
    case Case::Idle:
    case Case::Starting:
    case Case::Ready:
        break;
    }
    return u"Preparing Telegram"_s;
}

QString LoginTexts::instructions(Step::Case step)
{
    switch (step) {
    case Case::Password:
        return u"Your account uses an additional password. Enter it to complete sign-in."_s;
    case Case::Unavailable:
        return u"The app could not start its Telegram connection."_s;
    case Case::PhoneNumber:
        return u"Enter the telephone number associated with your Telegram account, including its international "
               "country code."_s;
    case Case::VerificationCode:
        return u"Telegram sent a code to one of your existing Telegram sessions or by another supported method."_s;
    case Case::Idle:
    case Case::Starting:
    case Case::Ready:
        break;
    }
    return u"Starting the secure TDLib connection…"_s;
}

LoginTexts::Field LoginTexts::field(Step::Case step)
{
    switch (step) {
    case Case::PhoneNumber:
    case Case::VerificationCode:
        return Field::Plain;
    case Case::Password:
        return Field::Secure;
    case Case::Unavailable:
    case Case::Idle:
    case Case::Starting:
    case Case::Ready:
        break;
    }
    return Field::None;
}

QString LoginTexts::placeholder(Step::Case step)
{
    switch (step) {
    case Case::PhoneNumber:
        return u"Telephone number, including country code"_s;
    case Case::VerificationCode:
        return u"Telegram verification code"_s;
    case Case::Password:
        return u"Two-step verification password"_s;
    case Case::Unavailable:
    case Case::Idle:
    case Case::Starting:
    case Case::Ready:
        break;
    }
    return {};
}

QString LoginTexts::hintLine(const QString &hint)
{
    return u"Hint: "_s + hint;
}

QString LoginTexts::appVersion(const QVariantMap &infoDictionary)
{
    const QVariant version = infoDictionary.value(u"CFBundleShortVersionString"_s);
    if (version.typeId() != QMetaType::QString)
        return u"1.2"_s;
    return version.toString();
}

LoginPresenter::LoginPresenter(QObject *parent)
    : QObject(parent)
    , m_versionLine(mainVersionLine())
{}

QString LoginPresenter::mainVersionLine()
{
    return u"Vost "_s + LoginTexts::appVersion(AppBundle::main().infoDictionary());
}

QObject *LoginPresenter::session() const
{
    return m_session.data();
}

void LoginPresenter::setSession(QObject *session)
{
    auto *telegramSession = qobject_cast<TelegramSession *>(session);
    if (telegramSession == m_session)
        return;
    if (m_session)
        disconnect(m_session, nullptr, this, nullptr);
    m_session = telegramSession;
    if (m_session) {
        connect(m_session, &TelegramSession::stepChanged, this, &LoginPresenter::restartStep);
        // A code for a new number (or the same one again) ends the number's change.
        connect(m_session, &TelegramSession::codeInfoChanged, this, &LoginPresenter::restartStep);
        connect(m_session, &TelegramSession::errorMessageChanged, this, &LoginPresenter::errorMessageChanged);
        connect(m_session, &TelegramSession::startupStatusChanged, this, &LoginPresenter::startupStatusChanged);
    }
    Q_EMIT sessionChanged();
    Q_EMIT stepChanged();
    Q_EMIT fieldTextChanged();
    Q_EMIT errorMessageChanged();
    Q_EMIT startupStatusChanged();
}

Step LoginPresenter::step() const
{
    return m_session ? m_session->step() : Step::idle();
}

Step::Case LoginPresenter::shownStep() const
{
    const Case kind = step().kind();
    return kind == Case::VerificationCode && m_changingNumber ? Case::PhoneNumber : kind;
}

void LoginPresenter::restartStep()
{
    m_submitted = false;
    m_changingNumber = false;
    Q_EMIT stepChanged();
    Q_EMIT fieldTextChanged();
    Q_EMIT errorMessageChanged();
}

void LoginPresenter::changeNumber()
{
    if (!canChangeNumber())
        return;
    m_submitted = false;
    m_changingNumber = true;
    Q_EMIT stepChanged();
    Q_EMIT fieldTextChanged();
    Q_EMIT errorMessageChanged();
}

QString LoginPresenter::codeDestination() const
{
    if (!m_session || shownStep() != Case::VerificationCode)
        return {};
    const CodeInfo info = m_session->codeInfo();
    const QString number = PhoneNumbers::international(info.phoneNumber);
    switch (info.delivery) {
    case CodeInfo::Delivery::TelegramApp:
        return tr("We’ve sent the code for %1 to the Telegram app on your other device.").arg(number);
    case CodeInfo::Delivery::Sms:
        return tr("We’ve sent the code to %1 by SMS.").arg(number);
    case CodeInfo::Delivery::Call:
        return tr("Telegram is calling %1 to tell you the code.").arg(number);
    case CodeInfo::Delivery::FlashCall:
    case CodeInfo::Delivery::MissedCall:
        return tr("Telegram is calling %1: the last digits of the calling number are the code.").arg(number);
    case CodeInfo::Delivery::Fragment:
        return tr("The code for %1 is waiting on fragment.com.").arg(number);
    case CodeInfo::Delivery::PhoneApp:
        return tr("The code for %1 was sent to Telegram on your phone.").arg(number);
    case CodeInfo::Delivery::Unknown:
        break;
    }
    return number.isEmpty() ? QString() : tr("The code was sent for %1.").arg(number);
}

bool LoginPresenter::isStarting() const
{
    const Case kind = step().kind();
    return kind == Case::Idle || kind == Case::Starting;
}

QString *LoginPresenter::currentText()
{
    switch (shownStep()) {
    case Case::Password:
        return &m_password;
    case Case::VerificationCode:
        return &m_verificationCode;
    case Case::PhoneNumber:
        return &m_phoneNumber;
    case Case::Unavailable:
    case Case::Idle:
    case Case::Starting:
    case Case::Ready:
        break;
    }
    return nullptr;
}

QString LoginPresenter::fieldText() const
{
    const QString *text = const_cast<LoginPresenter *>(this)->currentText();
    return text ? *text : QString();
}

void LoginPresenter::setFieldText(const QString &text)
{
    QString *current = currentText();
    if (!current || *current == text)
        return;
    *current = text;
    Q_EMIT fieldTextChanged();
}

QString LoginPresenter::errorMessage() const
{
    if (!m_session)
        return {};
    if (m_session->step().kind() == Case::Unavailable)
        return m_session->step().text();
    return m_submitted ? ErrorTexts::sentence(m_session->errorMessageText()) : QString();
}

QString LoginPresenter::startupStatus() const
{
    return m_session ? m_session->startupStatus() : QString();
}

void LoginPresenter::submit()
{
    if (!m_session || !hasField())
        return;
    m_submitted = true;
    switch (shownStep()) {
    case Case::Password:
        m_session->submitPassword(m_password);
        break;
    case Case::VerificationCode:
        m_session->submitVerificationCode(m_verificationCode);
        break;
    case Case::PhoneNumber:
        m_session->submitPhoneNumber(m_phoneNumber);
        break;
    case Case::Unavailable:
    case Case::Idle:
    case Case::Starting:
    case Case::Ready:
        break;
    }
}
