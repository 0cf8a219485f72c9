#pragma once

#include <QObject>
#include <QString>

// Where the session stands in TDLib's authorization: one case, with the password
// hint or the text of an unavailable session as its payload.
class Step
{
    Q_GADGET
    Q_PROPERTY(Case kind READ kind CONSTANT)
    Q_PROPERTY(QString hint READ hint CONSTANT)
    Q_PROPERTY(QString text READ text CONSTANT)

public:
    enum class Case { Password, Unavailable, Idle, Starting, PhoneNumber, VerificationCode, Ready };
    Q_ENUM(Case)

    Step() = default;
    static Step password(QString hint) { return Step(Case::Password, std::move(hint)); }
    static Step unavailable(QString text) { return Step(Case::Unavailable, std::move(text)); }
    static Step idle() { return Step(Case::Idle); }
    static Step starting() { return Step(Case::Starting); }
    static Step phoneNumber() { return Step(Case::PhoneNumber); }
    static Step verificationCode() { return Step(Case::VerificationCode); }
    static Step ready() { return Step(Case::Ready); }

    Case kind() const { return m_kind; }
    QString hint() const { return m_kind == Case::Password ? m_payload : QString(); }
    QString text() const { return m_kind == Case::Unavailable ? m_payload : QString(); }

    friend bool operator==(const Step &, const Step &) = default;

private:
    explicit Step(Case kind, QString payload = {})
        : m_kind(kind)
        , m_payload(std::move(payload))
    {}

    Case m_kind = Case::Idle;
    QString m_payload;
};
