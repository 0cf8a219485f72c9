#pragma once

#include <QFile>
#include <QTemporaryDir>

// A home folder of the test's own, for what finds its files through HOME (test
// mode puts the data folder under it, and TDLib keeps its database there).
class TemporaryHome
{
public:
    // Makes it the process's HOME; false when the folder could not be made.
    bool enter()
    {
        if (!m_folder.isValid())
            return false;
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        return true;
    }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};
