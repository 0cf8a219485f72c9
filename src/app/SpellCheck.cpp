#include "SpellCheck.h"

#include "AppLanguage.h"
#include "spelling/SpellChecker.h"
#include "spelling/SpellingWords.h"

#include <QAbstractTextDocumentLayout>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QQuickTextDocument>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace {

// A paragraph's misspelt words, kept with it in the document.
class MisspeltWords : public QTextBlockUserData
{
public:
    explicit MisspeltWords(QList<SpellingWords::Word> found)
        : words(std::move(found))
    {}

    const QList<SpellingWords::Word> words;
};

QList<SpellingWords::Word> misspelt(const QString &text)
{
    QList<SpellingWords::Word> found;
    SpellChecker &checker = SpellChecker::shared();
    for (const SpellingWords::Word &word : SpellingWords::checkable(text)) {
        if (checker.check(text.sliced(word.start, word.length)) == SpellChecker::Verdict::Misspelt)
            found.append(word);
    }
    return found;
}

// The document tells which paragraphs changed; only those are judged again, and
// their words mostly from the checker's memory.
class MisspeltWordFinder : public QSyntaxHighlighter
{
public:
    MisspeltWordFinder(SpellCheck *owner, QTextDocument *document)
        : QSyntaxHighlighter(document)
        , m_owner(owner)
    {}

protected:
    void highlightBlock(const QString &text) override
    {
        setCurrentBlockUserData(new MisspeltWords(m_owner->isActive() ? misspelt(text) : QList<SpellingWords::Word>()));
        m_owner->update();
    }

private:
    SpellCheck *m_owner;
};

// Half a wave's length, and how far it swings above and below its middle.
constexpr qreal halfWave = 2.0;
constexpr qreal swing = 1.2;

void drawWave(QPainter *painter, qreal left, qreal right, qreal middle)
{
    QPainterPath path({left, middle});
    bool up = true;
    for (qreal x = left; x < right; x += halfWave) {
        const qreal end = std::min(x + halfWave, right);
        path.quadTo((x + end) / 2, middle + (up ? -swing : swing) * 2, end, middle);
        up = !up;
    }
    painter->drawPath(path);
}

} // namespace

SpellCheck::SpellCheck(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    SpellChecker &checker = SpellChecker::shared();
    AppLanguage &language = AppLanguage::shared();
    checker.setPreferredLanguages(QLocale::system().uiLanguages());
    checker.setInterfaceLanguage(language.language());
    connect(&language, &AppLanguage::languageChanged, this,
            [&checker, &language] { checker.setInterfaceLanguage(language.language()); });
    connect(&checker, &SpellChecker::judgementsChanged, this, [this] {
        if (m_highlighter != nullptr && m_active)
            m_highlighter->rehighlight();
    });
    attach();
}

SpellCheck::~SpellCheck()
{
    // The field may outlive this item for a moment: its edits must not reach here.
    delete m_highlighter;
    if (m_holding)
        SpellChecker::shared().release();
}

void SpellCheck::setDocument(QQuickTextDocument *document)
{
    if (document == m_document)
        return;
    m_document = document;
    delete m_highlighter;
    m_highlighter = nullptr;
    if (m_document != nullptr) {
        QTextDocument *text = m_document->textDocument();
        m_highlighter = new MisspeltWordFinder(this, text);
        // A new width wraps the lines again without a change of words.
        connect(text->documentLayout(), &QAbstractTextDocumentLayout::update, this, [this] { update(); });
    }
    update();
    Q_EMIT documentChanged();
}

void SpellCheck::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    attach();
    if (m_highlighter != nullptr)
        m_highlighter->rehighlight();
    update();
    Q_EMIT activeChanged();
}

// The dictionaries stay while a field checks its words.
void SpellCheck::attach()
{
    if (m_active == m_holding)
        return;
    m_holding = m_active;
    if (m_holding)
        SpellChecker::shared().hold();
    else
        SpellChecker::shared().release();
}

QVariantMap SpellCheck::misspeltWordAt(int position) const
{
    if (!m_active || m_document == nullptr)
        return {};
    const QTextBlock block = m_document->textDocument()->findBlock(position);
    if (!block.isValid())
        return {};
    const QString text = block.text();
    const qsizetype offset = position - block.position();
    for (const SpellingWords::Word &word : misspelt(text)) {
        if (word.start <= offset && offset <= word.end())
            return {{u"start"_s, block.position() + int(word.start)},
                    {u"length"_s, int(word.length)},
                    {u"word"_s, text.sliced(word.start, word.length)}};
    }
    return {};
}

QStringList SpellCheck::suggestions(const QString &word) const
{
    return SpellChecker::shared().suggestions(word);
}

void SpellCheck::replace(int start, const QString &word, const QString &replacement)
{
    if (m_document == nullptr || start < 0)
        return;
    QTextDocument *text = m_document->textDocument();
    if (start + word.size() >= text->characterCount())
        return;
    QTextCursor cursor(text);
    cursor.setPosition(start);
    cursor.setPosition(start + int(word.size()), QTextCursor::KeepAnchor);
    if (cursor.selectedText() != word)
        return;
    // One step of the field's undo.
    cursor.beginEditBlock();
    cursor.insertText(replacement);
    cursor.endEditBlock();
}

void SpellCheck::addToDictionary(const QString &word)
{
    SpellChecker::shared().addToPersonalList(word);
}

void SpellCheck::paint(QPainter *painter)
{
    if (!m_active || m_document == nullptr)
        return;
    QTextDocument *document = m_document->textDocument();
    QAbstractTextDocumentLayout *layout = document->documentLayout();
    // What is on screen, in the document's coordinates.
    const QRectF shown(-m_origin, size());
    painter->translate(m_origin);
    painter->setPen(QPen(m_color, 1));
    painter->setBrush(Qt::NoBrush);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const auto *data = dynamic_cast<const MisspeltWords *>(block.userData());
        if (data == nullptr || data->words.isEmpty())
            continue;
        const QRectF bounds = layout->blockBoundingRect(block);
        if (bounds.bottom() < shown.top())
            continue;
        if (bounds.top() > shown.bottom())
            break;
        const QTextLayout *lines = block.layout();
        const QPointF corner = lines->position();
        for (const SpellingWords::Word &word : data->words) {
            // A word too long for one line is underlined on each.
            for (int i = 0; i < lines->lineCount(); ++i) {
                const QTextLine line = lines->lineAt(i);
                const int from = std::max(int(word.start), line.textStart());
                const int to = std::min(int(word.end()), line.textStart() + line.textLength());
                if (from >= to)
                    continue;
                const qreal a = line.cursorToX(from);
                const qreal b = line.cursorToX(to);
                drawWave(painter, corner.x() + std::min(a, b), corner.x() + std::max(a, b),
                         corner.y() + line.y() + line.ascent() + 2.5);
            }
        }
    }
}
