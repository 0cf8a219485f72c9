#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QTimer;

// What the user left typed in each chat, kept on this computer only (never sent
// to Telegram as a draft) so that it survives a quit, a crash and a restart. It
// is written to "typed-texts.json" in the application's data folder shortly after
// typing stops, and at once by flush().
class TypedTexts : public QObject
{
    Q_OBJECT

public:
    // Reads what an earlier run left in path; none when it is missing or unreadable.
    explicit TypedTexts(QString path, QObject *parent = nullptr);
    ~TypedTexts() override;

    // The file in the application's data folder.
    static QString defaultPath();

    QString text(const QString &chatID) const { return m_texts.value(chatID); }
    // An empty text forgets the chat's.
    void setText(const QString &chatID, const QString &text);
    void clear();
    // Writes what is unsaved now.
    void flush();

private:
    void read();

    QString m_path;
    QHash<QString, QString> m_texts;
    QTimer *m_saveTimer;
    bool m_dirty = false;
};
