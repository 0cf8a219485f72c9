#pragma once

#include "render/LinkPreviewMetadata.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

// A card's view of LinkPreviewMetadata: one metadata object per address, owned
// here, made anew when the address changes.
class LinkPreviewSource : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUrl url READ url WRITE setUrl NOTIFY urlChanged)
    Q_PROPERTY(QString title READ title NOTIFY metadataChanged)
    Q_PROPERTY(QString siteName READ siteName NOTIFY metadataChanged)
    Q_PROPERTY(QImage image READ image NOTIFY metadataChanged)
    Q_PROPERTY(bool hasImage READ hasImage NOTIFY metadataChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY metadataChanged)

public:
    explicit LinkPreviewSource(QObject *parent = nullptr);

    QUrl url() const { return m_url; }
    void setUrl(const QUrl &url);
    QString title() const { return m_metadata ? m_metadata->title() : QString(); }
    QString siteName() const { return m_metadata ? m_metadata->siteName() : QString(); }
    QImage image() const { return m_metadata ? m_metadata->image() : QImage(); }
    bool hasImage() const { return m_metadata && m_metadata->hasImage(); }
    bool isLoading() const { return m_metadata && m_metadata->isLoading(); }

    // Starts loading, once per address.
    Q_INVOKABLE void start();

Q_SIGNALS:
    void urlChanged();
    void metadataChanged();

private:
    QUrl m_url;
    QPointer<LinkPreviewMetadata> m_metadata;
};
