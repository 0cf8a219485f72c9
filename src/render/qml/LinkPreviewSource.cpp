#include "LinkPreviewSource.h"

LinkPreviewSource::LinkPreviewSource(QObject *parent)
    : QObject(parent)
    , m_metadata(new LinkPreviewMetadata(QUrl(), this))
{}

void LinkPreviewSource::setUrl(const QUrl &url)
{
    if (url == m_metadata->url())
        return;
    delete m_metadata;
    m_metadata = new LinkPreviewMetadata(url, this);
    Q_EMIT metadataChanged();
}

void LinkPreviewSource::start()
{
    // A bubble reused for a message without a link has no address for a moment.
    if (!url().isEmpty())
        m_metadata->load();
}
