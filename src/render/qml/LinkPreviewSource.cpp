#include "LinkPreviewSource.h"

LinkPreviewSource::LinkPreviewSource(QObject *parent)
    : QObject(parent)
{}

void LinkPreviewSource::setUrl(const QUrl &url)
{
    if (url == m_url && m_metadata)
        return;
    m_url = url;
    delete m_metadata;
    m_metadata = new LinkPreviewMetadata(url, this);
    for (const auto signal : {&LinkPreviewMetadata::titleChanged, &LinkPreviewMetadata::siteNameChanged,
                              &LinkPreviewMetadata::imageChanged, &LinkPreviewMetadata::isLoadingChanged})
        connect(m_metadata, signal, this, &LinkPreviewSource::metadataChanged);
    Q_EMIT urlChanged();
    Q_EMIT metadataChanged();
}

void LinkPreviewSource::start()
{
    // A bubble reused for a message without a link has no address for a moment.
    if (m_metadata && !m_url.isEmpty())
        m_metadata->load();
}
