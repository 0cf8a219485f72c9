#include "session/CredentialStore.h"

#include "tdlib/TdJson.h"

using namespace Qt::StringLiterals;

CredentialStore::CredentialStore(const QVariantMap &infoDictionary, QObject *parent)
    : QObject(parent)
{
    const QVariant id = infoDictionary.value(u"TelegramAPIID"_s);
    if (id.typeId() == QMetaType::QString)
        m_apiID = parseInt64(id.toString().trimmed());
    const QVariant hash = infoDictionary.value(u"TelegramAPIHash"_s);
    if (hash.typeId() == QMetaType::QString) {
        const QString trimmed = hash.toString().trimmed();
        if (!trimmed.isEmpty())
            m_apiHash = trimmed;
    }
}
