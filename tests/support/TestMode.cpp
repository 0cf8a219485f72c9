#include <QStandardPaths>
#include <QtGlobal>

// Every test runs in Qt's test mode, before anything it does: no test can read or
// write the user's own data, settings or caches, not even one that forgets to ask.
static void enterTestMode()
{
    QStandardPaths::setTestModeEnabled(true);
}
Q_CONSTRUCTOR_FUNCTION(enterTestMode)
