// Message text with its entities turned into the transcript's blocks: styles that
// nest and overlap, offsets in UTF-16 units, entities that do not fit the text,
// hostile text and addresses, blocks of code and spoilers.

#include "render/FormattedText.h"
#include "session/MessageDetails.h"

#include <QJsonDocument>
#include <QStandardPaths>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using Type = TextEntity::Type;

namespace {

TextEntity span(int offset, int length, Type type, const QString &argument = {})
{
    return {offset, length, type, argument};
}

QString html(const QString &text, const TextEntities &entities)
{
    const QList<FormattedBlock> blocks = formattedBlocks(text, entities);
    return blocks.size() == 1 ? blocks.first().html : u"<%1 blocks>"_s.arg(blocks.size());
}

} // namespace

class FormattedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stylesNestAndOverlap()
    {
        QCOMPARE(html(u"plain bold end"_s, {span(6, 4, Type::Bold)}), u"plain <b>bold</b> end"_s);
        // Italic inside bold.
        QCOMPARE(html(u"bold italic"_s, {span(0, 11, Type::Bold), span(5, 6, Type::Italic)}),
                 u"<b>bold </b><b><i>italic</i></b>"_s);
        // Bold and italic that cross each other: the shared part carries both.
        QCOMPARE(html(u"abcdefghi"_s, {span(3, 6, Type::Italic), span(0, 6, Type::Bold)}),
                 u"<b>abc</b><b><i>def</i></b><i>ghi</i>"_s);
        QCOMPARE(
            html(u"u s c"_s, {span(0, 1, Type::Underline), span(2, 1, Type::Strikethrough), span(4, 1, Type::Code)}),
            u"<u>u</u> <s>s</s> <code>c</code>"_s);
        // Code shows its text as typed: no smileys there.
        QCOMPARE(html(u"a :) b"_s, {span(2, 2, Type::Code)}), u"a <code>:)</code> b"_s);
        QCOMPARE(html(u"a :) b"_s, {}), u"a 🙂 b"_s);
    }

    void offsetsCountUtf16Units()
    {
        // The emoji takes two units: the bold word starts at 3, not 2.
        QCOMPARE(html(u"😀 bold"_s, {span(3, 4, Type::Bold)}), u"😀 <b>bold</b>"_s);
        QCOMPARE(html(u"👨‍👩‍👧 x"_s, {span(9, 1, Type::Italic)}), u"👨‍👩‍👧 <i>x</i>"_s);
        // An entity that starts or ends between the two halves of a pair takes the
        // whole character rather than cut it.
        QCOMPARE(html(u"😀 bold"_s, {span(1, 1, Type::Bold)}), u"<b>😀</b> bold"_s);
        QCOMPARE(html(u"a😀"_s, {span(0, 2, Type::Bold)}), u"<b>a😀</b>"_s);
    }

    void entitiesThatDoNotFitDegradeToPlainText()
    {
        const QString text = u"short"_s;
        for (const TextEntity &bad :
             {span(5, 1, Type::Bold), span(100, 3, Type::Bold), span(-2, 4, Type::Bold), span(1, 0, Type::Bold),
              span(1, -3, Type::Bold), span(INT_MAX, INT_MAX, Type::Pre), span(-1, INT_MAX, Type::Spoiler)})
            QCOMPARE(html(text, {bad}), text);
        // Past the end: cut at the end.
        QCOMPARE(html(text, {span(2, INT_MAX, Type::Bold)}), u"sh<b>ort</b>"_s);
        // Links cannot hold links: the first one stays, the other is dropped.
        QCOMPARE(html(u"ab cd"_s,
                      {span(0, 5, Type::TextUrl, u"https://a.org"_s), span(3, 2, Type::TextUrl, u"https://b.org"_s)}),
                 u"<a href=\"https://a.org\">ab cd</a>"_s);
        // Blocks of code that overlap: the first one stays, whole.
        const QList<FormattedBlock> blocks =
            formattedBlocks(u"abcdef"_s, {span(0, 4, Type::Pre), span(2, 4, Type::Pre)});
        QCOMPARE(blocks.size(), 2);
        QCOMPARE(blocks.at(0).code, u"abcd"_s);
        QCOMPARE(blocks.at(1).html, u"ef"_s);
        QCOMPARE(formattedBlocks({}, {span(0, 3, Type::Bold)}).size(), 1);
    }

    void hostileTextAndAddressesNeverBecomeMarkup()
    {
        const QString text = u"<script>alert(1)</script> & <b>x</b>"_s;
        for (const TextEntities &entities :
             {TextEntities{}, TextEntities{span(0, 8, Type::Bold)}, TextEntities{span(0, 25, Type::Code)},
              TextEntities{span(0, 8, Type::Spoiler)}, TextEntities{span(28, 8, Type::TextUrl, u"https://a.org"_s)}}) {
            const QString shown = html(text, entities);
            QVERIFY2(!shown.contains(u"<script"_s) && !shown.contains(u"<b>x"_s), qPrintable(shown));
            QVERIFY2(!shown.contains(u"& "_s), qPrintable(shown));
        }
        QCOMPARE(html(text, {span(0, 8, Type::Bold)}),
                 u"<b>&lt;script&gt;</b>alert(1)&lt;/script&gt; &amp; &lt;b&gt;x&lt;/b&gt;"_s);
        // An address can neither leave its attribute nor run script.
        QCOMPARE(html(u"here"_s, {span(0, 4, Type::TextUrl, u"https://a.org/\"><script>"_s)}),
                 u"<a href=\"https://a.org/%22%3E%3Cscript%3E\">here</a>"_s);
        QCOMPARE(html(u"here"_s, {span(0, 4, Type::TextUrl, u"javascript:alert(1)"_s)}), u"here"_s);
        QCOMPARE(html(u"here"_s, {span(0, 4, Type::TextUrl, u"file:///etc/passwd"_s)}), u"here"_s);
    }

    void linksMentionsAndHashtags()
    {
        const QString text = u"Read the docs, ask @emma_w #qt6 or qt.io"_s;
        FormattedTextStyle style;
        style.linkColor = u"#123456"_s;
        const QList<FormattedBlock> blocks =
            formattedBlocks(text,
                            {span(9, 4, Type::TextUrl, u"https://doc.qt.io/qt-6/"_s), span(19, 7, Type::Mention),
                             span(27, 4, Type::Hashtag), span(35, 5, Type::Url)},
                            style);
        QCOMPARE(blocks.size(), 1);
        const FormattedBlock &block = blocks.first();
        QVERIFY2(block.html.contains(u"<a href=\"https://doc.qt.io/qt-6/\" style=\"color:#123456\">docs</a>"_s),
                 qPrintable(block.html));
        QVERIFY2(block.html.contains(u"<a href=\"vost-mention:emma_w\" style=\"color:#123456\">@emma_w</a>"_s),
                 qPrintable(block.html));
        QVERIFY2(block.html.contains(u"<a href=\"vost-hashtag:#qt6\" style=\"color:#123456\">#qt6</a>"_s),
                 qPrintable(block.html));
        QVERIFY2(block.html.contains(u"<a href=\"http://qt.io\" style=\"color:#123456\">qt.io</a>"_s),
                 qPrintable(block.html));
        // Only links whose text hides their address name it for screen readers.
        QCOMPARE(block.linkTargets, QStringList{u"https://doc.qt.io/qt-6/"_s});
        QCOMPARE(block.spokenText, text);
        // Addresses written in plain text stay clickable without entities.
        QCOMPARE(html(u"see qt.io"_s, {}), u"see <a href=\"http://qt.io\">qt.io</a>"_s);
    }

    void telegramLinksOpenTheirChatHere_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("username");
        QTest::newRow("t.me") << u"https://t.me/emma_w"_s << u"emma_w"_s;
        QTest::newRow("a message") << u"https://t.me/qt_devs/42"_s << u"qt_devs"_s;
        QTest::newRow("a channel's web page") << u"https://t.me/s/qt_devs"_s << u"qt_devs"_s;
        QTest::newRow("telegram.me, www") << u"http://www.telegram.me/emma_w/"_s << u"emma_w"_s;
        QTest::newRow("tg://resolve") << u"tg://resolve?domain=emma_w"_s << u"emma_w"_s;
        QTest::newRow("an invitation") << u"https://t.me/joinchat/AbCdEf"_s << QString();
        QTest::newRow("a private invitation") << u"https://t.me/+AbCdEf"_s << QString();
        QTest::newRow("a sticker set") << u"https://t.me/addstickers/Cats"_s << QString();
        QTest::newRow("too short") << u"https://t.me/abc"_s << QString();
        QTest::newRow("deeper") << u"https://t.me/qt_devs/42/7"_s << QString();
        QTest::newRow("another site") << u"https://t.me.example.org/emma_w"_s << QString();
        QTest::newRow("no path") << u"https://t.me/"_s << QString();
        QTest::newRow("tg, not resolve") << u"tg://join?invite=AbCdEf"_s << QString();
    }

    void telegramLinksOpenTheirChatHere()
    {
        QFETCH(QString, address);
        QFETCH(QString, username);
        QCOMPARE(telegramUsername(QUrl(address)), username);
        // Behind words and written out alike; the hidden address is still named.
        const QString expected =
            username.isEmpty() ? QUrl(address).toString(QUrl::FullyEncoded) : FormattedLinks::mentionPrefix + username;
        const QList<FormattedBlock> blocks = formattedBlocks(u"profile"_s, {span(0, 7, Type::TextUrl, address)});
        QCOMPARE(blocks.size(), 1);
        QVERIFY2(blocks.first().html.startsWith(u"<a href=\"%1\">"_s.arg(expected.toHtmlEscaped())),
                 qPrintable(blocks.first().html));
        QCOMPARE(blocks.first().linkTargets, QStringList{QUrl(address).toDisplayString()});
        if (address.startsWith("http"_L1))
            QVERIFY(html(u"see "_s + address, {}).contains(u"<a href=\"%1\">"_s.arg(expected.toHtmlEscaped())));
    }

    void codeBlocksStandApart()
    {
        const QString text = u"Look:\nint x = 1 < 2;\nNeat *really*"_s;
        const QList<FormattedBlock> blocks =
            formattedBlocks(text, {span(6, 14, Type::Pre, u"cpp"_s), span(4, 4, Type::Bold), span(10, 1, Type::Italic),
                                   span(26, 8, Type::Bold)});
        QCOMPARE(blocks.size(), 3);
        // The bold crossing into the code is cut at its edge; inside, the code is plain.
        QCOMPARE(blocks.at(0).html, u"Look<b>:</b>"_s);
        QVERIFY(blocks.at(1).isCode);
        QCOMPARE(blocks.at(1).code, u"int x = 1 < 2;"_s);
        QCOMPARE(blocks.at(1).language, u"cpp"_s);
        QCOMPARE(blocks.at(1).html, QString());
        QCOMPARE(blocks.at(2).html, u"Neat <b>*really*</b>"_s);
        // A block without a language.
        const QList<FormattedBlock> bare = formattedBlocks(u"x"_s, {span(0, 1, Type::Pre)});
        QCOMPARE(bare.size(), 1);
        QCOMPARE(bare.first().language, QString());
    }

    void quotesStandApartAndNamesLeadToTheirUser()
    {
        const QString text = u"Ann said:\nStart early, bold move.\nTrue"_s;
        const TextEntities entities{span(0, 3, Type::MentionName, u"42"_s), span(10, 24, Type::BlockQuote),
                                    span(23, 4, Type::Bold)};
        const QList<FormattedBlock> blocks = formattedBlocks(text, entities);
        QCOMPARE(blocks.size(), 3);
        QCOMPARE(blocks.at(0).html, u"<a href=\"vost-user:42\">Ann</a> said:"_s);
        QVERIFY(!blocks.at(0).isQuote && blocks.at(1).isQuote && !blocks.at(2).isQuote);
        // The quote keeps its styles, without the line break that ends it.
        QCOMPARE(blocks.at(1).html, u"Start early, <b>bold</b> move."_s);
        QCOMPARE(blocks.at(1).spokenText, u"Start early, bold move."_s);
        QCOMPARE(blocks.at(2).html, u"True"_s);
        // A quote inside a quote, or across a block of code, is not one: its text stays.
        const QList<FormattedBlock> overlapping = formattedBlocks(
            u"one two three"_s, {span(0, 7, Type::BlockQuote), span(4, 9, Type::Pre), span(2, 3, Type::BlockQuote)});
        QCOMPARE(overlapping.size(), 2);
        QVERIFY(overlapping.at(0).isQuote);
        QCOMPARE(overlapping.at(0).spokenText + overlapping.at(1).spokenText, u"one two three"_s);
    }

    void spoilersHideTheirTextUntilRevealed()
    {
        const QString text = u"The butler did it."_s;
        FormattedTextStyle style;
        style.hiddenSpoilerText = u"[hidden]"_s;
        style.veilColor = u"#808080"_s;
        const TextEntities entities{span(4, 13, Type::Spoiler), span(4, 6, Type::Bold)};
        const FormattedBlock hidden = formattedBlocks(text, entities, style).first();
        QVERIFY2(!hidden.html.contains(u"butler"_s) && !hidden.html.contains(u"did"_s), qPrintable(hidden.html));
        QVERIFY2(hidden.html.contains(u"href=\"vost-spoiler:\""_s), qPrintable(hidden.html));
        QCOMPARE(hidden.spokenText, u"The [hidden]."_s);
        style.spoilersRevealed = true;
        const FormattedBlock shown = formattedBlocks(text, entities, style).first();
        QCOMPARE(shown.html, u"The <b>butler</b> did it."_s);
        QCOMPARE(shown.spokenText, text);
    }

    void entitiesAreReadFromTdLibsText()
    {
        // "\/" in the JSON: moc reads "//" inside a raw string as a comment.
        const TdObject message = QJsonDocument::fromJson(R"({"id":7,"content":{"@type":"messageText",
            "text":{"@type":"formattedText","text":"go here now","entities":[
              {"@type":"textEntity","offset":3,"length":4,"type":{"@type":"textEntityTypeTextUrl","url":"https:\/\/a.org"}},
              {"@type":"textEntity","offset":0,"length":2,"type":{"@type":"textEntityTypePreCode","language":"sh"}},
              {"@type":"textEntity","offset":8,"length":3,"type":{"@type":"textEntityTypeCustomEmoji","custom_emoji_id":"5"}},
              {"@type":"textEntity","offset":-1,"length":3,"type":{"@type":"textEntityTypeBold"}},
              {"@type":"textEntity","offset":"x","length":3,"type":{"@type":"textEntityTypeBold"}},
              {"@type":"textEntity","offset":1,"length":3},
              {"@type":"textEntity","offset":0,"length":2,"type":{"@type":"textEntityTypeMentionName","user_id":77}},
              {"@type":"textEntity","offset":3,"length":2,"type":{"@type":"textEntityTypeMentionName","user_id":0}},
              {"@type":"textEntity","offset":3,"length":8,"type":{"@type":"textEntityTypeExpandableBlockQuote"}},
              {"@type":"textEntity","offset":0,"length":2,"type":{"@type":"textEntityTypeBlockQuote"}},
              "junk"]}}})")
                                     .object();
        const MessageDetails details = messageDetails(message);
        QCOMPARE(details.text, u"go here now"_s);
        // A name for nobody is plain text; both kinds of quote are quotes.
        QCOMPARE(details.entities, (TextEntities{span(3, 4, Type::TextUrl, u"https://a.org"_s),
                                                 span(0, 2, Type::Pre, u"sh"_s), span(0, 2, Type::MentionName, u"77"_s),
                                                 span(3, 8, Type::BlockQuote), span(0, 2, Type::BlockQuote)}));
        // A caption's entities go with the caption.
        const TdObject photo = QJsonDocument::fromJson(R"({"content":{"@type":"messagePhoto","photo":{"sizes":[]},
            "caption":{"text":"Lake","entities":[{"offset":0,"length":4,"type":{"@type":"textEntityTypeItalic"}}]}}})")
                                   .object();
        QCOMPARE(messageDetails(photo).entities, TextEntities{span(0, 4, Type::Italic)});
    }
};

QTEST_GUILESS_MAIN(FormattedTextTest)
#include "tst_formattedtext.moc"
