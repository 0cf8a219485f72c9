#include "app/PopoverWindow.h"

#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickImageProvider>
#include <QQuickTextureFactory>
#include <QSGTexture>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <memory>

// What the popover keeps of its views once they are gone while it is hidden: the
// pictures they showed must not outlive them in the scene graph.
namespace {

struct TextureCounts {
    int made = 0;
    int deleted = 0;
};

// Hands out pictures whose textures report when the scene graph deletes them.
class CountingTextureFactory : public QQuickTextureFactory
{
public:
    explicit CountingTextureFactory(TextureCounts &counts)
        : m_counts(counts)
        , m_image(64, 64, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.fill(Qt::red);
    }

    QSGTexture *createTexture(QQuickWindow *window) const override
    {
        QSGTexture *texture = window->createTextureFromImage(m_image);
        ++m_counts.made;
        TextureCounts &counts = m_counts;
        QObject::connect(texture, &QObject::destroyed, [&counts] { ++counts.deleted; });
        return texture;
    }
    QSize textureSize() const override { return m_image.size(); }
    int textureByteCount() const override { return int(m_image.sizeInBytes()); }
    QImage image() const override { return m_image; }

private:
    TextureCounts &m_counts;
    QImage m_image;
};

class CountingProvider : public QQuickImageProvider
{
public:
    explicit CountingProvider(TextureCounts &counts)
        : QQuickImageProvider(QQmlImageProviderBase::Texture)
        , m_counts(counts)
    {}

    QQuickTextureFactory *requestTexture(const QString &, QSize *size, const QSize &) override
    {
        auto *factory = new CountingTextureFactory(m_counts);
        if (size)
            *size = factory->textureSize();
        return factory;
    }

private:
    TextureCounts &m_counts;
};

} // namespace

class TestPopoverWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

    void texturesOfViewsLetGoWhileHiddenAreDeleted()
    {
        TextureCounts counts;
        QQmlEngine engine;
        engine.addImageProvider(QStringLiteral("counting"), new CountingProvider(counts));
        PopoverWindow popover(&engine);
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nImage { width: 64; height: 64; source: \"image://counting/red\" }\n",
                          QUrl());
        std::unique_ptr<QQuickItem> view(qobject_cast<QQuickItem *>(component.create()));
        QVERIFY2(view, qPrintable(component.errorString()));
        view->setParentItem(popover.contentItem());

        popover.show();
        QVERIFY(QTest::qWaitForWindowExposed(&popover));
        QTRY_COMPARE(counts.made, 1);
        popover.hide();
        view.reset();
        QCOMPARE(counts.deleted, 0);

        // Qt Quick keeps recently shown pictures for another use, and a hidden
        // window makes no frame that would delete their textures.
        popover.dropReleasedScene();
        QCOMPARE(counts.deleted, 1);
    }
};

QTEST_MAIN(TestPopoverWindow)
#include "tst_popoverwindow.moc"
