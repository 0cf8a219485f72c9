#include "TestStateWriter.h"

#include <QSaveFile>

TestStateWriter::TestStateWriter()
    : m_path(qEnvironmentVariable("VOST_TEST_STATE_FILE"))
{}

void TestStateWriter::set(const QString &key, const QString &value)
{
    if (!isEnabled() || (m_values.contains(key) && m_values.value(key) == value))
        return;
    m_values.insert(key, value);
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    for (auto it = m_values.cbegin(); it != m_values.cend(); ++it)
        file.write((it.key() + u'=' + it.value() + u'\n').toUtf8());
    file.commit();
}
