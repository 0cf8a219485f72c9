#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

// The colours of the views for the appearance preference "vostAppearanceMode":
// "system" follows the system palette, "light" and "dark" use Vost's own themes.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString mode READ mode WRITE setMode NOTIFY changed)
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(QColor background READ background NOTIFY changed)
    Q_PROPERTY(QColor sidebar READ sidebar NOTIFY changed)
    Q_PROPERTY(QColor text READ text NOTIFY changed)
    Q_PROPERTY(QColor secondaryText READ secondaryText NOTIFY changed)
    Q_PROPERTY(QColor separator READ separator NOTIFY changed)
    Q_PROPERTY(QColor fieldBackground READ fieldBackground NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    Q_PROPERTY(QColor accentText READ accentText CONSTANT)
    Q_PROPERTY(QColor neutralBubble READ neutralBubble NOTIFY changed)
    Q_PROPERTY(QColor badge READ badge CONSTANT)
    Q_PROPERTY(QColor warning READ warning CONSTANT)
    // The family for text that is only emoji, so that they show in colour.
    Q_PROPERTY(QString emojiFontFamily READ emojiFontFamily CONSTANT)

public:
    static constexpr auto preferenceKey = "vostAppearanceMode";

    explicit Appearance(QObject *parent = nullptr);

    QString mode() const { return m_mode; }
    // Stores the preference; an unknown mode is read as "system".
    void setMode(const QString &mode);
    bool isDark() const;

    QColor background() const;
    QColor sidebar() const;
    QColor text() const;
    QColor secondaryText() const;
    QColor separator() const;
    QColor fieldBackground() const;
    QColor accent() const;
    QColor accentText() const { return Qt::white; }
    QColor neutralBubble() const;
    QColor badge() const { return {0xFF, 0x3B, 0x30}; }
    QColor warning() const { return {0xFF, 0x95, 0x00}; }
    QString emojiFontFamily() const { return QStringLiteral("Noto Color Emoji"); }

    static QString normalizedMode(const QString &mode);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool followsSystem() const { return m_mode == u"system"; }

    QString m_mode;
};
