// Smileys as emoji, and the link recogniser they (and the conversation view) rely on.

#include "render/LinkRecognizer.h"
#include "render/SmileyText.h"

#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

using Ranges = QList<std::pair<qsizetype, qsizetype>>;

class SmileyTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableHasEveryRow()
    {
        const auto &table = SmileyText::replacements();
        QCOMPARE(table.size(), 32);
        QCOMPARE(table.value(u":'-("_s), u"\U0001F622"_s);
        QCOMPARE(table.value(u":|"_s), u"\U0001F610"_s);
        QCOMPARE(table.value(u"<3"_s), u"\u2764\uFE0F"_s);
        QVERIFY(SmileyText::pattern().isValid());
        // Every key is found on its own, whatever its metacharacters.
        for (auto it = table.cbegin(); it != table.cend(); ++it)
            QCOMPARE(SmileyText::render(u"a "_s + it.key() + u" b"_s), u"a "_s + it.value() + u" b"_s);
    }

    void render_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const QString smile = u"\U0001F642"_s;
        QTest::newRow("after a space") << u"hi :)"_s << u"hi "_s + smile;
        QTest::newRow("longest key wins") << u":-)"_s << smile;
        QTest::newRow("four characters") << u":'-("_s << u"\U0001F622"_s;
        QTest::newRow("letter before") << u"a:)"_s << u"a:)"_s;
        QTest::newRow("letter after") << u":)b"_s << u":)b"_s;
        QTest::newRow("digit before") << u"1:)"_s << u"1:)"_s;
        QTest::newRow("non-ASCII letter before") << u"я:)"_s << u"я:)"_s;
        QTest::newRow("parenthesis does not block") << u"(:)"_s << u"("_s + smile;
        QTest::newRow("underscore") << u"_:)"_s << u"_:)"_s;
        QTest::newRow("slash before") << u"x/:p"_s << u"x/:p"_s;
        QTest::newRow("backslash after") << u":)\\"_s << u":)\\"_s;
        QTest::newRow("hearts on the input") << u"<3<3"_s << u"\u2764\uFE0F<3"_s;
        QTest::newRow("grins on the input") << u":D:D"_s << u"\U0001F603:D"_s;
        QTest::newRow("case matters") << u":d 8D"_s << u":d 8D"_s;
        QTest::newRow("no smileys") << u"plain text, 3 < 4."_s << u"plain text, 3 < 4."_s;
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("inside a link") << u"see https://example.com/:p ok"_s << u"see https://example.com/:p ok"_s;
        QTest::newRow("inside a query") << u"https://example.com/?q=:-)&x=1"_s << u"https://example.com/?q=:-)&x=1"_s;
        QTest::newRow("inside a bare domain's query")
            << u"example.com/?q=;)&x :)"_s << u"example.com/?q=;)&x "_s + smile;
        QTest::newRow("next to a link") << u"https://example.com :)"_s << u"https://example.com "_s + smile;
        QTest::newRow("between emoji") << u"\U0001F600:)\U0001F600"_s << u"\U0001F600"_s + smile + u"\U0001F600"_s;
        QTest::newRow("several, last first") << u":) ;) :( 8-)"_s << smile + u" \U0001F609 \U0001F641 \U0001F60E"_s;
    }

    void render()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(SmileyText::render(text), expected);
    }

    void links_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Ranges>("ranges");
        QTest::addColumn<QStringList>("urls");
        QTest::newRow("scheme") << u"go https://example.com/a?b=1#c now"_s << Ranges{{3, 27}}
                                << QStringList{u"https://example.com/a?b=1#c"_s};
        QTest::newRow("full stop after") << u"See https://example.com/page."_s << Ranges{{4, 24}}
                                         << QStringList{u"https://example.com/page"_s};
        QTest::newRow("question and comma") << u"example.org? yes, example.net, no"_s << Ranges{{0, 11}, {18, 11}}
                                            << QStringList{u"http://example.org"_s, u"http://example.net"_s};
        QTest::newRow("in parentheses") << u"(see https://example.com/x)"_s << Ranges{{5, 21}}
                                        << QStringList{u"https://example.com/x"_s};
        QTest::newRow("balanced parentheses kept")
            << u"https://en.wikipedia.org/wiki/Tea_(drink))."_s << Ranges{{0, 41}}
            << QStringList{u"https://en.wikipedia.org/wiki/Tea_(drink)"_s};
        QTest::newRow("angle brackets") << u"<https://example.com/a> and <me@example.com>"_s
                                        << Ranges{{1, 21}, {29, 14}}
                                        << QStringList{u"https://example.com/a"_s, u"mailto:me@example.com"_s};
        QTest::newRow("www") << u"at www.example.local!"_s << Ranges{{3, 17}}
                             << QStringList{u"http://www.example.local"_s};
        QTest::newRow("bare domain with port and path")
            << u"host.example.io:8080/x"_s << Ranges{{0, 22}} << QStringList{u"http://host.example.io:8080/x"_s};
        QTest::newRow("capitals") << u"Visit GitHub.COM today"_s << Ranges{{6, 10}}
                                  << QStringList{u"http://github.com"_s};
        QTest::newRow("not a top-level domain")
            << u"open file.txt and v1.2.3, e.g. 3.14"_s << Ranges{} << QStringList{};
        QTest::newRow("e-mail") << u"write to first.last+tag@mail.example.com."_s << Ranges{{9, 31}}
                                << QStringList{u"mailto:first.last+tag@mail.example.com"_s};
        QTest::newRow("mailto") << u"mailto:a@b.de"_s << Ranges{{0, 13}} << QStringList{u"mailto:a@b.de"_s};
        QTest::newRow("Cyrillic around") << u"смотри:https://пример.рф/путь, ок"_s << Ranges{{7, 22}}
                                         << QStringList{u"https://пример.рф/путь"_s};
        QTest::newRow("Cyrillic domain") << u"сайт пример.рф."_s << Ranges{{5, 9}}
                                         << QStringList{u"http://пример.рф"_s};
        QTest::newRow("glued to a word") << u"linkhttps://example.com"_s << Ranges{{0, 23}}
                                         << QStringList{u"linkhttps://example.com"_s};
        QTest::newRow("after emoji") << u"\U0001F600example.com"_s << Ranges{{2, 11}}
                                     << QStringList{u"http://example.com"_s};
        QTest::newRow("quoted") << u"\"https://example.com\" and 'example.org'"_s << Ranges{{1, 19}, {27, 11}}
                                << QStringList{u"https://example.com"_s, u"http://example.org"_s};
        QTest::newRow("scheme without host") << u"http:// nothing"_s << Ranges{} << QStringList{};
        QTest::newRow("ellipsis") << u"example.com…"_s << Ranges{{0, 11}} << QStringList{u"http://example.com"_s};
    }

    void links()
    {
        QFETCH(QString, text);
        QFETCH(Ranges, ranges);
        QFETCH(QStringList, urls);
        const QList<TextLink> found = findLinks(text);
        Ranges foundRanges;
        QStringList foundUrls;
        for (const TextLink &link : found) {
            foundRanges.append({link.start, link.length});
            foundUrls.append(link.url.toString(QUrl::EncodeUnicode | QUrl::DecodeReserved));
        }
        QCOMPARE(foundRanges, ranges);
        QCOMPARE(foundUrls.size(), urls.size());
        for (qsizetype i = 0; i < urls.size(); ++i)
            QCOMPARE(found[i].url, QUrl(urls[i]));
    }

    void previewAddressIsTheFirstWebLink()
    {
        QCOMPARE(firstPreviewableLink(u"mail me@example.com or see example.org/x"_s),
                 std::optional(QUrl(u"http://example.org/x"_s)));
        QCOMPARE(firstPreviewableLink(u"tg://resolve?domain=x then https://a.example.com"_s),
                 std::optional(QUrl(u"https://a.example.com"_s)));
        QCOMPARE(firstPreviewableLink(u"no links here :)"_s), std::nullopt);
    }
};

QTEST_MAIN(SmileyTextTest)
#include "tst_smileytext.moc"
