#pragma once

#include <QMap>
#include <QString>

// For the UI tests only, and off unless VOST_TEST_STATE_FILE names a file: the
// tray item's and the popover's state as "key=value" lines, rewritten whole on
// every change.
class TestStateWriter
{
public:
    TestStateWriter();

    bool isEnabled() const { return !m_path.isEmpty(); }
    void set(const QString &key, const QString &value);

private:
    QString m_path;
    QMap<QString, QString> m_values;
};
