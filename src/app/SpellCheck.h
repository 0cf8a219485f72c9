#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QQuickTextDocument>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

class QSyntaxHighlighter;

// Spelling for a text field: judges the words of its document as they are typed
// (only the paragraphs that changed, see SpellChecker for the dictionaries) and
// draws a wavy line under the misspelt ones. It lies over the part of the field
// that is on screen and draws only there: `origin` is where the document's top
// left corner lies in it. It also finds the misspelt word at a position, its
// corrections, and puts one in place as one step of the field's undo.
class SpellCheck : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(QPointF origin MEMBER m_origin NOTIFY originChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged)

public:
    explicit SpellCheck(QQuickItem *parent = nullptr);
    ~SpellCheck() override;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    bool isActive() const { return m_active; }
    void setActive(bool active);

    // The misspelt word at a position of the document (in it or just after it):
    // {start, length, word}, or an empty map.
    Q_INVOKABLE QVariantMap misspeltWordAt(int position) const;
    Q_INVOKABLE QStringList suggestions(const QString &word) const;
    // Puts `replacement` in place of `word` at `start`, if it is still there.
    Q_INVOKABLE void replace(int start, const QString &word, const QString &replacement);
    Q_INVOKABLE void addToDictionary(const QString &word);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void documentChanged();
    void activeChanged();
    void originChanged();
    void colorChanged();

private:
    void attach();

    QPointer<QQuickTextDocument> m_document;
    QPointer<QSyntaxHighlighter> m_highlighter;
    bool m_active = true;
    bool m_holding = false;
    QPointF m_origin;
    QColor m_color = Qt::red;
};
