#pragma once

#include <QDate>
#include <QDateTime>
#include <QElapsedTimer>

#include <functional>

// Today's local date by a clock (the system's unless a test sets one), read at
// most once a second: a long chat list asks for it once per row.
class LocalToday
{
public:
    using Clock = std::function<QDateTime()>;

    LocalToday()
        : m_now([] { return QDateTime::currentDateTime(); })
    {}

    void setClock(Clock clock)
    {
        m_now = std::move(clock);
        m_age.invalidate();
    }

    QDate date()
    {
        if (!m_age.isValid() || m_age.hasExpired(1000)) {
            m_date = m_now().toLocalTime().date();
            m_age.start();
        }
        return m_date;
    }

private:
    Clock m_now;
    QDate m_date;
    QElapsedTimer m_age;
};
