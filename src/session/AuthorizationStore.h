#pragma once

#include "session/CodeInfo.h"
#include "session/SendRequest.h"
#include "session/Step.h"

#include <QObject>

#include <optional>

// Where the sign-in stands: TDLib's authorization states, what the login screens
// show (the step, where the code went, the last error, the start-up status), the
// signed-in account, and logging out to sign in again.
class AuthorizationStore : public QObject
{
    Q_OBJECT

public:
    explicit AuthorizationStore(SendRequest send, QObject *parent = nullptr);

    Step step() const { return m_step; }
    bool isReady() const { return m_step.kind() == Step::Case::Ready; }
    std::optional<QString> errorMessage() const { return m_errorMessage; }
    CodeInfo codeInfo() const { return m_codeInfo; }
    QString startupStatus() const { return m_startupStatus; }
    QString currentAccountName() const { return m_currentAccountName; }
    QString currentAccountPhoneNumber() const { return m_currentAccountPhoneNumber; }
    std::optional<qint64> currentUserID() const { return m_currentUserID; }

    void setStep(const Step &step);
    void setErrorMessage(const std::optional<QString> &message);
    void setStartupStatus(const QString &status);
    // An event of this "@type" arrived: the status names it, unless the last one
    // named the same type (this runs for every event).
    void noteEvent(const QJsonValue &type);

    void submitPhoneNumber(const QString &phoneNumber);
    void submitVerificationCode(const QString &code);
    void submitPassword(const QString &password);
    // Logs out to sign in again; nothing unless signed in.
    void logOut();

    // Takes "updateAuthorizationState"; false for anything else. While quitting,
    // closing states change nothing shown.
    bool handleUpdate(const QString &type, const TdObject &object, bool quitting);
    // Takes an answer to one of its own requests; false for anything else.
    bool handleAnswer(const QString &purpose, const QString &type, const TdObject &object);
    // An error nothing else took: shown, and the end of a session still starting.
    void fail(const QString &text);
    // Forgets the account that left.
    void reset();

Q_SIGNALS:
    void stepChanged();
    // Each time TDLib waits for a code, even for the same number again.
    void codeInfoChanged();
    void errorMessageChanged();
    void startupStatusChanged();
    void currentAccountNameChanged();
    void currentAccountPhoneNumberChanged();
    void tdlibParametersWanted();
    // The step is ready; the account's own user is asked for right after.
    void signedIn();
    // The client closed while the application quits.
    void clientClosed();
    // The client closed after logging out: a new one is wanted.
    void accountLeft();
    // The signed-in account's user object.
    void currentUserReceived(const TdObject &user);

private:
    void handleState(const TdObject &state, bool quitting);
    void setCurrentAccount(const QString &name, const QString &phoneNumber);

    SendRequest m_send;
    Step m_step;
    CodeInfo m_codeInfo;
    std::optional<QString> m_errorMessage;
    QString m_startupStatus;
    QString m_lastEventType; // the event type behind the status text, when it names one
    QString m_currentAccountName;
    QString m_currentAccountPhoneNumber;
    std::optional<qint64> m_currentUserID;
    bool m_restartingAfterLogout = false;
};
