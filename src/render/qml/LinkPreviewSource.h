#pragma once

#include "render/LinkPreviewMetadata.h"

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

// A card's LinkPreviewMetadata: one per address, owned here, made anew when the
// address changes. The card reads the metadata's own properties.
class LinkPreviewSource : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUrl url READ url WRITE setUrl NOTIFY metadataChanged)
    // Never null: an empty address has metadata that loads nothing.
    Q_PROPERTY(LinkPreviewMetadata *metadata READ metadata NOTIFY metadataChanged)

public:
    explicit LinkPreviewSource(QObject *parent = nullptr);

    QUrl url() const { return m_metadata->url(); }
    void setUrl(const QUrl &url);
    LinkPreviewMetadata *metadata() const { return m_metadata; }

    // Starts loading, once per address.
    Q_INVOKABLE void start();

Q_SIGNALS:
    void metadataChanged();

private:
    LinkPreviewMetadata *m_metadata;
};
