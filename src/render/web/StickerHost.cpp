#include "StickerHost.h"

#include "StickerHostPage.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QtWebEngineQuick/QQuickWebEngineProfile>

#include <algorithm>

using namespace Qt::StringLiterals;
using StickerHostProtocol::Kind;
using StickerHostProtocol::Message;

StickerHost::StickerHost(const QString &serverName)
    : m_viewComponent(&m_engine)
{
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    m_viewComponent.loadUrl(QUrl(u"qrc:/qt/qml/Vost/StickerHost/StickerWebView.qml"_s));

    // Off the record: nothing the pages do is written to disk.
    m_profile = new QQuickWebEngineProfile(this);
    m_profile->setOffTheRecord(true);
    m_profile->setHttpCacheType(QQuickWebEngineProfile::MemoryHttpCache);
    m_profile->setPersistentCookiesPolicy(QQuickWebEngineProfile::NoPersistentCookies);

    m_connection = new QLocalSocket(this);
    connect(m_connection, &QLocalSocket::readyRead, this, &StickerHost::readCommands);
    connect(m_connection, &QLocalSocket::disconnected, QCoreApplication::instance(), &QCoreApplication::quit,
            Qt::QueuedConnection);
    connect(m_connection, &QLocalSocket::errorOccurred, QCoreApplication::instance(), &QCoreApplication::quit,
            Qt::QueuedConnection);
    m_connection->connectToServer(serverName);
}

// The pages go before the profile they use.
StickerHost::~StickerHost()
{
    m_serving.clear();
    m_pages.clear();
}

void StickerHost::readCommands()
{
    m_reader.append(m_connection->readAll());
    while (const std::optional<Message> message = m_reader.next())
        handle(*message);
    if (m_reader.failed()) {
        qWarning("the sticker host was sent a malformed command; it stops");
        m_connection->abort();
        QCoreApplication::exit(1);
    }
}

void StickerHost::handle(const Message &message)
{
    const auto found = m_serving.find(message.view);
    StickerHostPage *page = found == m_serving.end() ? nullptr : found->second;
    switch (message.kind) {
    case Kind::Show:
        if (!page && message.view != 0)
            page = pageFor(message.view);
        if (!page)
            return;
        page->resize(message.size, message.devicePixelRatio);
        page->show(message.text);
        break;
    case Kind::Resize:
        if (page)
            page->resize(message.size, message.devicePixelRatio);
        break;
    case Kind::Close:
        if (page) {
            page->release();
            m_serving.erase(found);
        }
        break;
    case Kind::Run:
        if (page)
            page->run(message.request, message.text);
        break;
    case Kind::Acknowledge:
        if (page)
            page->acknowledge();
        break;
    default: // what the host itself sends means nothing coming in
        break;
    }
}

StickerHostPage *StickerHost::pageFor(quint32 view)
{
    const auto waiting = std::find_if(m_pages.begin(), m_pages.end(), [](const auto &page) { return page->id() == 0; });
    StickerHostPage *page = waiting == m_pages.end() ? nullptr : waiting->get();
    if (!page) {
        auto made = std::make_unique<StickerHostPage>(m_viewComponent, m_profile);
        if (!made->isValid())
            return nullptr;
        connect(made.get(), &StickerHostPage::send, this, &StickerHost::send);
        page = m_pages.emplace_back(std::move(made)).get();
    }
    page->serve(view);
    m_serving.emplace(view, page);
    return page;
}

void StickerHost::send(const Message &message)
{
    if (m_connection->state() == QLocalSocket::ConnectedState)
        m_connection->write(StickerHostProtocol::encode(message));
}
