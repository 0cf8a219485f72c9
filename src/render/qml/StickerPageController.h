#pragma once

#include "render/StickerPage.h"
#include "session/ModelTypes.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

// Decides, for one sticker view, when a new page is loaded: only when the sticker's
// path or format changes, never on a redraw. Both may change together (a reused
// list delegate): the decision waits for the event loop, so it sees both.
class StickerPageController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged)
    Q_PROPERTY(Model::StickerFormat format READ format WRITE setFormat NOTIFY formatChanged)
    Q_PROPERTY(QString page READ page NOTIFY pageChanged)
    Q_PROPERTY(bool hasPage READ hasPage NOTIFY pageChanged)
    Q_PROPERTY(QString key READ key NOTIFY pageChanged)
    Q_PROPERTY(PlayState playState READ playState NOTIFY playStateChanged)

public:
    // The order of StickerPage::PlayState.
    enum PlayState { Loading, Playing, Unavailable };
    Q_ENUM(PlayState)

    explicit StickerPageController(QObject *parent = nullptr);

    QString path() const { return m_path; }
    // Every write counts as a redraw: the page stays unless the key changed.
    void setPath(const QString &path);
    StickerFormat format() const { return m_format; }
    void setFormat(StickerFormat format);

    // The page to show; pageChanged() means "load it", even when the text is the
    // same as before (a WebP and a WebM sticker get the same markup).
    QString page() const { return m_page; }
    bool hasPage() const { return !m_page.isEmpty(); }
    QString key() const { return m_coordinator.key(); }
    // What the web view found of the page it shows.
    Q_INVOKABLE void reportPlayState(PlayState state);
    // The page cannot play any more (its player went away); a new page starts over.
    Q_INVOKABLE void markUnavailable();
    // Loading again whenever a new page is handed out.
    PlayState playState() const { return m_playState; }
    // How many pages have been handed to the view.
    int pagesMade() const { return m_pagesMade; }

Q_SIGNALS:
    void pathChanged();
    void formatChanged();
    void pageChanged();
    void playStateChanged();

private:
    void scheduleUpdate();
    void update();

    QString m_path;
    StickerFormat m_format = StickerFormat::Animated;
    QString m_page;
    bool m_updateScheduled = false;
    int m_pagesMade = 0;
    PlayState m_playState = Loading;
    StickerPage::Coordinator m_coordinator;
};
