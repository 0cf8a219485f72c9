#pragma once

#include "SessionAccess.h"
#include "session/Step.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

class TelegramSession;

// The sign-in screen's fixed texts for each authorization step.
namespace LoginTexts {
enum class Field { None, Plain, Secure };

QString icon(Step::Case step);
QString title(Step::Case step);
QString instructions(Step::Case step);
Field field(Step::Case step);
QString placeholder(Step::Case step);
// "Hint: " and the password hint.
QString hintLine(const QString &hint);
// "CFBundleShortVersionString", or "1.2" when the dictionary has none.
QString appVersion(const QVariantMap &infoDictionary);
QString footer();
} // namespace LoginTexts

// What TelegramLoginView shows for the session's step, and the three texts the
// user typed (one per step, kept when the step changes, never written anywhere).
// submit() hands the current step's text, exactly as typed, to the session.
class LoginPresenter : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(SessionAccess *session READ session WRITE setSession NOTIFY sessionChanged)
    Q_PROPERTY(QString icon READ icon NOTIFY stepChanged)
    Q_PROPERTY(QString title READ title NOTIFY stepChanged)
    Q_PROPERTY(QString instructions READ instructions NOTIFY stepChanged)
    Q_PROPERTY(bool hasField READ hasField NOTIFY stepChanged)
    Q_PROPERTY(bool isSecure READ isSecure NOTIFY stepChanged)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY stepChanged)
    // The phone step takes digits, "+" and the separators people type.
    Q_PROPERTY(bool isPhoneNumber READ isPhoneNumber NOTIFY stepChanged)
    // On the code step: the number and where its code went.
    Q_PROPERTY(QString codeDestination READ codeDestination NOTIFY stepChanged)
    Q_PROPERTY(bool canChangeNumber READ canChangeNumber NOTIFY stepChanged)
    Q_PROPERTY(bool showsHint READ showsHint NOTIFY stepChanged)
    Q_PROPERTY(QString hintLine READ hintLine NOTIFY stepChanged)
    Q_PROPERTY(bool isStarting READ isStarting NOTIFY stepChanged)
    // Telegram cannot be reached: the icon is drawn as a warning.
    Q_PROPERTY(bool isUnavailable READ isUnavailable NOTIFY stepChanged)
    Q_PROPERTY(QString fieldText READ fieldText WRITE setFieldText NOTIFY fieldTextChanged)
    Q_PROPERTY(bool canContinue READ canContinue NOTIFY fieldTextChanged)
    // The error that answers what the user submitted on this step, or why Telegram
    // is unavailable; "" otherwise (nothing greets a new user with an error).
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged)
    Q_PROPERTY(QString startupStatus READ startupStatus NOTIFY startupStatusChanged)
    Q_PROPERTY(QString footer READ footer NOTIFY stepChanged)
    Q_PROPERTY(QString versionLine READ versionLine CONSTANT)

public:
    explicit LoginPresenter(QObject *parent = nullptr);

    SessionAccess *session() const;
    void setSession(SessionAccess *session);

    Step step() const;
    QString icon() const { return LoginTexts::icon(shownStep()); }
    QString title() const { return LoginTexts::title(shownStep()); }
    QString instructions() const { return LoginTexts::instructions(shownStep()); }
    bool hasField() const { return LoginTexts::field(shownStep()) != LoginTexts::Field::None; }
    bool isSecure() const { return LoginTexts::field(shownStep()) == LoginTexts::Field::Secure; }
    bool isPhoneNumber() const { return shownStep() == Step::Case::PhoneNumber; }
    QString placeholder() const { return LoginTexts::placeholder(shownStep()); }
    QString codeDestination() const;
    bool canChangeNumber() const { return shownStep() == Step::Case::VerificationCode; }
    bool showsHint() const { return step().kind() == Step::Case::Password && !step().hint().isEmpty(); }
    QString hintLine() const { return LoginTexts::hintLine(step().hint()); }
    bool isStarting() const;
    bool isUnavailable() const { return step().kind() == Step::Case::Unavailable; }
    // The text of the current step's field; "" for a step without one.
    QString fieldText() const;
    void setFieldText(const QString &text);
    bool canContinue() const { return !fieldText().trimmed().isEmpty(); }
    QString errorMessage() const;
    QString startupStatus() const;
    QString footer() const { return LoginTexts::footer(); }
    QString versionLine() const { return m_versionLine; }

    // Run by "Continue" and by Return in the field.
    Q_INVOKABLE void submit();
    // "Use a different number": the phone step again while TDLib waits for the
    // code; TDLib takes a new number in that state and sends a code for it.
    Q_INVOKABLE void changeNumber();

    // "Vost " and the version of the running application.
    static QString mainVersionLine();

Q_SIGNALS:
    void sessionChanged();
    void stepChanged();
    void fieldTextChanged();
    void errorMessageChanged();
    void startupStatusChanged();

private:
    // The step whose texts and field are shown: the session's, or the phone
    // step while a new number is being typed.
    Step::Case shownStep() const;
    QString *currentText();
    TelegramSession *telegramSession() const;
    void restartStep();

    QPointer<SessionAccess> m_access;
    // The user submitted this step's text: the session's errors now answer it.
    bool m_submitted = false;
    bool m_changingNumber = false;
    QString m_phoneNumber;
    QString m_verificationCode;
    QString m_password;
    QString m_versionLine;
};
