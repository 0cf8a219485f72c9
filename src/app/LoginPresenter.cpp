#include "LoginPresenter.h"

#include "app/AppLanguage.h"
#include "app/ErrorTexts.h"
#include "app/Formats.h"
#include "bundle/AppBundle.h"
#include "session/TelegramSession.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using Case = Step::Case;

namespace {
// What the sign-in screen shows at each step; the steps before the session is
// ready to ask anything share the first row. The texts are marked for the
// catalogs here and translated when they are read.
struct StepTexts {
    const char *icon;
    const char *title;
    const char *instructions;
    LoginTexts::Field field;
    const char *placeholder;
};

constexpr StepTexts preparing{"paperplane.fill", QT_TRANSLATE_NOOP("LoginTexts", "Preparing Telegram"),
                              QT_TRANSLATE_NOOP("LoginTexts", "Starting the secure TDLib connection…"),
                              LoginTexts::Field::None, ""};

constexpr StepTexts phoneNumber{
    "paperplane.fill", QT_TRANSLATE_NOOP("LoginTexts", "Sign in to Telegram"),
    QT_TRANSLATE_NOOP("LoginTexts", "Enter the telephone number associated with your Telegram account, including its "
                                    "international country code."),
    LoginTexts::Field::Plain, QT_TRANSLATE_NOOP("LoginTexts", "Telephone number, including country code")};

constexpr StepTexts verificationCode{
    "number.square.fill", QT_TRANSLATE_NOOP("LoginTexts", "Enter your verification code"),
    QT_TRANSLATE_NOOP("LoginTexts",
                      "Telegram sent a code to one of your existing Telegram sessions or by another supported method."),
    LoginTexts::Field::Plain, QT_TRANSLATE_NOOP("LoginTexts", "Telegram verification code")};

constexpr StepTexts password{
    "lock.fill", QT_TRANSLATE_NOOP("LoginTexts", "Two-step verification"),
    QT_TRANSLATE_NOOP("LoginTexts", "Your account uses an additional password. Enter it to complete sign-in."),
    LoginTexts::Field::Secure, QT_TRANSLATE_NOOP("LoginTexts", "Two-step verification password")};

constexpr StepTexts unavailable{
    "exclamationmark.triangle.fill", QT_TRANSLATE_NOOP("LoginTexts", "Telegram is unavailable"),
    QT_TRANSLATE_NOOP("LoginTexts", "The app could not start its Telegram connection."), LoginTexts::Field::None, ""};

const StepTexts &textsFor(Case step)
{
    switch (step) {
    case Case::PhoneNumber:
        return phoneNumber;
    case Case::VerificationCode:
        return verificationCode;
    case Case::Password:
        return password;
    case Case::Unavailable:
        return unavailable;
    case Case::Idle:
    case Case::Starting:
    case Case::Ready:
        break;
    }
    return preparing;
}

QString translated(const char *text)
{
    return *text ? QCoreApplication::translate("LoginTexts", text) : QString();
}
} // namespace

QString LoginTexts::icon(Step::Case step)
{
    return QString::fromUtf8(textsFor(step).icon);
}

QString LoginTexts::title(Step::Case step)
{
    return translated(textsFor(step).title);
}

QString LoginTexts::instructions(Step::Case step)
{
    return translated(textsFor(step).instructions);
}

LoginTexts::Field LoginTexts::field(Step::Case step)
{
    return textsFor(step).field;
}

QString LoginTexts::placeholder(Step::Case step)
{
    return translated(textsFor(step).placeholder);
}

QString LoginTexts::hintLine(const QString &hint)
{
    //: The two-step password's hint, as its owner wrote it.
    return QCoreApplication::translate("LoginTexts", "Hint: %1").arg(hint);
}

QString LoginTexts::footer()
{
    return QCoreApplication::translate(
        "LoginTexts", "Verification codes and passwords are sent directly to TDLib and are never saved by this app.");
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
{
    // The texts are read in the language of the moment: a new one announces them again.
    connect(&AppLanguage::shared(), &AppLanguage::languageChanged, this, [this] {
        Q_EMIT stepChanged();
        Q_EMIT errorMessageChanged();
    });
}

QString LoginPresenter::mainVersionLine()
{
    return u"Vost "_s + LoginTexts::appVersion(AppBundle::main().infoDictionary());
}

SessionAccess *LoginPresenter::session() const
{
    return m_access.data();
}

TelegramSession *LoginPresenter::telegramSession() const
{
    return m_access ? &m_access->session() : nullptr;
}

void LoginPresenter::setSession(SessionAccess *session)
{
    if (session == m_access)
        return;
    if (TelegramSession *previous = telegramSession())
        disconnect(previous, nullptr, this, nullptr);
    m_access = session;
    if (TelegramSession *current = telegramSession()) {
        connect(current, &TelegramSession::stepChanged, this, &LoginPresenter::restartStep);
        // A code for a new number (or the same one again) ends the number's change.
        connect(current, &TelegramSession::codeInfoChanged, this, &LoginPresenter::restartStep);
        connect(current, &TelegramSession::errorMessageChanged, this, &LoginPresenter::errorMessageChanged);
        connect(current, &TelegramSession::startupStatusChanged, this, &LoginPresenter::startupStatusChanged);
    }
    Q_EMIT sessionChanged();
    Q_EMIT stepChanged();
    Q_EMIT fieldTextChanged();
    Q_EMIT errorMessageChanged();
    Q_EMIT startupStatusChanged();
}

Step LoginPresenter::step() const
{
    const TelegramSession *session = telegramSession();
    return session ? session->step() : Step::idle();
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
    const TelegramSession *session = telegramSession();
    if (!session || shownStep() != Case::VerificationCode)
        return {};
    const CodeInfo info = session->codeInfo();
    const QString number = Formats::phoneNumber(info.phoneNumber);
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
    const TelegramSession *session = telegramSession();
    if (!session)
        return {};
    if (session->step().kind() == Case::Unavailable)
        return session->step().text();
    return m_submitted ? ErrorTexts::sentence(session->errorMessageText()) : QString();
}

QString LoginPresenter::startupStatus() const
{
    const TelegramSession *session = telegramSession();
    return session ? session->startupStatus() : QString();
}

void LoginPresenter::submit()
{
    TelegramSession *session = telegramSession();
    if (!session || !hasField())
        return;
    m_submitted = true;
    switch (shownStep()) {
    case Case::Password:
        session->submitPassword(m_password);
        break;
    case Case::VerificationCode:
        session->submitVerificationCode(m_verificationCode);
        break;
    case Case::PhoneNumber:
        session->submitPhoneNumber(m_phoneNumber);
        break;
    case Case::Unavailable:
    case Case::Idle:
    case Case::Starting:
    case Case::Ready:
        break;
    }
}
