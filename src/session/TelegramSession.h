#pragma once

#include "session/ModelTypes.h"
#include "session/Step.h"
#include "tdlib/AppBundle.h"
#include "tdlib/TdJson.h"

#include <QDateTime>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QEventLoop;
class ReceiveLoop;
class SoundManager;
class TDLibRuntime;

// The application's one model object: it owns the TDLib client, follows TDLib's
// authorization, folds every TDLib answer and update into the published state the
// views observe, and turns each user action into one TDLib request. It lives on
// the main thread; TDLib's events reach it through handleResponse, one at a time.
class TelegramSession : public QObject {
    Q_OBJECT
    Q_PROPERTY(Step step READ step NOTIFY stepChanged)
    Q_PROPERTY(bool isReady READ isReady NOTIFY stepChanged)
    Q_PROPERTY(QString errorMessage READ errorMessageText NOTIFY errorMessageChanged)
    Q_PROPERTY(QString startupStatus READ startupStatus NOTIFY startupStatusChanged)
    Q_PROPERTY(QString currentAccountName READ currentAccountName NOTIFY currentAccountNameChanged)
    Q_PROPERTY(QString currentAccountPhoneNumber READ currentAccountPhoneNumber NOTIFY
                   currentAccountPhoneNumberChanged)

public:
    // When set, every request goes to the sender instead of TDLib: the type and
    // the fields without "@type".
    using RequestSender = std::function<void(const QString &type, const TdObject &fields)>;
    using Clock = std::function<QDateTime()>;

    explicit TelegramSession(RequestSender requestSender = {}, QObject *parent = nullptr);
    ~TelegramSession() override;

    // Where TDLib is loaded from; the main bundle unless set. No bundle: start
    // reports that TDLib is not bundled.
    void setBundle(std::optional<AppBundle> bundle) { m_bundle = std::move(bundle); }
    void setSoundManager(const SoundManager *soundManager) { m_soundManager = soundManager; }
    // The clock behind date texts; the system clock unless set.
    void setClock(Clock clock) { m_now = std::move(clock); }

    Step step() const { return m_step; }
    bool isReady() const { return m_step.kind() == Step::Case::Ready; }
    std::optional<QString> errorMessage() const { return m_errorMessage; }
    QString errorMessageText() const { return m_errorMessage.value_or(QString()); }
    QString startupStatus() const { return m_startupStatus; }
    QString currentAccountName() const { return m_currentAccountName; }
    QString currentAccountPhoneNumber() const { return m_currentAccountPhoneNumber; }

    // Authorization
    Q_INVOKABLE void start(qint64 apiID, const QString &apiHash);
    Q_INVOKABLE void submitPhoneNumber(const QString &phoneNumber);
    Q_INVOKABLE void submitVerificationCode(const QString &code);
    Q_INVOKABLE void submitPassword(const QString &password);
    Q_INVOKABLE void logOutAndChangeAccount();

    // Chat list
    Q_INVOKABLE void requestChats();
    void loadChatList(const QString &listType);

    // Contacts
    Q_INVOKABLE void refreshContacts();

    // One raw answer or update as TDLib delivered it.
    void handleResponse(const QByteArray &json);
    void handleResponse(const QString &json);

    // Closes the TDLib client so its database is flushed, waiting for it at most a
    // few seconds, and ends the receive loop. Called when the application quits.
    void shutDown();

Q_SIGNALS:
    void stepChanged();
    void errorMessageChanged();
    void startupStatusChanged();
    void currentAccountNameChanged();
    void currentAccountPhoneNumberChanged();

private:
    // Channel
    void send(const QString &type, const TdObject &fields = {});
    void startClient();
    void quietTDLibLog();
    friend class ChannelTest;
    void handle(const TdObject &object);

    // Dispatcher
    bool routeByPurpose(const QString &purpose, const TdObject &object);
    bool routeByType(const QString &type, const TdObject &object);
    void handleGenericError(const TdObject &error);

    // Authorization
    void handleAuthorizationState(const TdObject &state);
    void completeSignIn();
    void submitTDLibParameters();
    void beginClient();
    void resetAccountState();
    void storeCurrentUser(const TdObject &user);

    void setStep(const Step &step);
    void setErrorMessage(const std::optional<QString> &message);
    void setStartupStatus(const QString &status);
    void setCurrentAccount(const QString &name, const QString &phoneNumber);

    RequestSender m_requestSender;
    std::optional<AppBundle> m_bundle;
    const SoundManager *m_soundManager;
    Clock m_now;

    // Published
    Step m_step;
    std::optional<QString> m_errorMessage;
    QString m_startupStatus;
    QString m_currentAccountName;
    QString m_currentAccountPhoneNumber;

    // TDLib
    std::optional<qint64> m_apiID;
    std::optional<QString> m_apiHash;
    std::shared_ptr<const TDLibRuntime> m_runtime;
    std::optional<int> m_clientID;
    std::unique_ptr<ReceiveLoop> m_receiveLoop;
    std::optional<qint64> m_currentUserID;
    bool m_restartingAfterLogout = false;
    QEventLoop *m_closeWait = nullptr; // set while quitting waits for the client to close

    // Chat list paging
    QSet<QString> m_loadingChatLists;
};
