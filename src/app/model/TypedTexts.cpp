#include "TypedTexts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
// Long enough to wait for a pause in the typing, short enough that a crash loses little.
constexpr int saveDelayMs = 800;
} // namespace

TypedTexts::TypedTexts(QString path, QObject *parent)
    : QObject(parent)
    , m_path(std::move(path))
    , m_saveTimer(new QTimer(this))
{
    m_saveTimer->setSingleShot(true);
    m_saveTimer->setInterval(saveDelayMs);
    connect(m_saveTimer, &QTimer::timeout, this, &TypedTexts::flush);
    read();
}

TypedTexts::~TypedTexts()
{
    flush();
}

QString TypedTexts::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/typed-texts.json"_L1;
}

void TypedTexts::read()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject stored = QJsonDocument::fromJson(file.readAll()).object();
    for (auto it = stored.begin(); it != stored.end(); ++it) {
        const QString text = it.value().toString();
        if (!it.key().isEmpty() && !text.isEmpty())
            m_texts.insert(it.key(), text);
    }
}

void TypedTexts::setText(const QString &chatID, const QString &text)
{
    if (chatID.isEmpty() || m_texts.value(chatID) == text)
        return;
    if (text.isEmpty())
        m_texts.remove(chatID);
    else
        m_texts.insert(chatID, text);
    m_dirty = true;
    m_saveTimer->start();
}

void TypedTexts::clear()
{
    if (m_texts.isEmpty())
        return;
    m_texts.clear();
    m_dirty = true;
    flush();
}

void TypedTexts::flush()
{
    m_saveTimer->stop();
    if (!m_dirty || m_path.isEmpty())
        return;
    m_dirty = false;
    if (m_texts.isEmpty()) {
        QFile::remove(m_path);
        return;
    }
    QJsonObject stored;
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it)
        stored.insert(it.key(), it.value());
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    // Written whole and then renamed: a crash mid-write leaves the previous file.
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QJsonDocument(stored).toJson(QJsonDocument::Compact));
    file.commit();
}
