#pragma once

#include "session/ModelTypes.h"
#include "session/SendRequest.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <optional>

// The files the account shows: which chats' messages and which chat photos wait
// for each file, where the downloaded ones are, and how far each download of a
// message's file got. Files are asked of TDLib once they are shown.
class DownloadStore : public QObject
{
    Q_OBJECT

public:
    explicit DownloadStore(SendRequest send, QObject *parent = nullptr);

    // The local path of a file a chat's message shows, once it is downloaded (and
    // still there); until then the download is asked for and the chat waits for it.
    std::optional<QString> messageFile(const TdObject &file, const QString &chatID);
    // The chat whose photo the file is.
    void addChatPhoto(qint64 fileID, const QString &chatID);
    void download(qint64 fileID);

    // updateFile: the download's progress, for files shown in messages.
    void trackProgress(const TdObject &file);
    // A finished file is recorded; what waits for it is returned to be shown again.
    struct Waiting {
        QSet<QString> messageChats;
        std::optional<QString> photoChat;
    };
    Waiting applyDownloaded(qint64 fileID, const QString &path);

    // Forgets the account's files.
    void reset();

Q_SIGNALS:
    // From 0 to 1.
    void progressChanged(qint64 fileID, double progress);

private:
    SendRequest m_send;
    QHash<qint64, QSet<QString>> m_messageFileChats;
    QHash<qint64, QString> m_paths;
    QHash<qint64, double> m_progress;
    QHash<qint64, QString> m_chatPhotos;
};
