#include "gui/framework/kwhelpcontents.h"
#include "support/registeredtest.h"

#include <QtTest>

using namespace Qt::StringLiterals;

// The table of contents of a help file, good and broken.

Q_DECLARE_METATYPE(QList<KWHelpEntry>)

namespace {

QByteArray entry(const QByteArray &title, const QByteArray &page)
{
    return "<li><object type=\"text/sitemap\"><param name=\"Name\" value=\"" + title +
           "\"><param name=\"Local\" value=\"" + page + "\"></object>";
}
} // namespace

class TestHelpContents : public QObject
{
    Q_OBJECT

private slots:
    void readsEntries_data();
    void readsEntries();
    void deepNestingEndsAtAReadableDepth();
    void noEntryIsMoreThanOneDeeperThanTheOneBefore();
    void garbageEnds_data();
    void garbageEnds();
    void everyPrefixOfAFileIsRead();
};

void TestHelpContents::readsEntries_data()
{
    QTest::addColumn<QByteArray>("hhc");
    QTest::addColumn<QList<KWHelpEntry>>("entries");

    using Entries = QList<KWHelpEntry>;
    const Entries one{{u"One"_s, u"one.htm"_s, 0}};
    QTest::newRow("empty") << QByteArray() << Entries();
    QTest::newRow("no entries") << QByteArray("<html><body><ul></ul></body></html>") << Entries();
    QTest::newRow("text only") << QByteArray("hello") << Entries();
    QTest::newRow("one entry") << "<ul>" + entry("One", "one.htm") + "</ul>" << one;
    QTest::newRow("no list around it") << entry("One", "one.htm") << one;
    QTest::newRow("capitals") << QByteArray(
                                     "<UL><LI><OBJECT TYPE=\"Text/Sitemap\"><PARAM NAME=\"NAME\" "
                                     "VALUE=\"One\"><PARAM NAME=\"local\" VALUE=\"one.htm\">"
                                     "</OBJECT></UL>")
                              << one;
    QTest::newRow("single quotes, none, and blanks")
        << QByteArray("<object type = 'text/sitemap' ><param  value=One name=Name />"
                      "<param name = Local\nvalue = ' one.htm ' ></object>")
        << one;
    QTest::newRow("nested") << "<ul>" + entry("A", "a.htm") + "<ul>" + entry("B", "b.htm") +
                                   "</ul>" + entry("C", "c.htm") + "</ul>"
                            << Entries{{u"A"_s, u"a.htm"_s, 0},
                                       {u"B"_s, u"b.htm"_s, 1},
                                       {u"C"_s, u"c.htm"_s, 0}};
    QTest::newRow("a heading without a page")
        << QByteArray("<object type=\"text/sitemap\"><param name=\"Name\" value=\"Book\"></object>")
        << Entries{{u"Book"_s, {}, 0}};
    QTest::newRow("entities") << entry("What&#39;s &quot;this&quot; &amp;lt; &lt;b&gt;", "one.htm")
                              << Entries{{u"What&#39;s \"this\" &lt; <b>"_s, u"one.htm"_s, 0}};
    QTest::newRow("accents") << entry("Gästebuch", "one.htm")
                             << Entries{{u"Gästebuch"_s, u"one.htm"_s, 0}};
    QTest::newRow("a bracket in quotes")
        << entry("a > b", "one.htm") << Entries{{u"a > b"_s, u"one.htm"_s, 0}};
    QTest::newRow("an object of another kind")
        << QByteArray("<object type=\"text/site properties\"><param name=\"Name\" value=\"x\">"
                      "</object>") +
               entry("One", "one.htm")
        << one;
    QTest::newRow("an entry without a title")
        << entry("", "x.htm") + entry("One", "one.htm") << one;
    QTest::newRow("more lists closed than opened")
        << "</ul></ul></ul>" + entry("One", "one.htm") + "</ul></ul>" << one;
    QTest::newRow("an object that never ends")
        << entry("One", "one.htm") + "<object type=\"text/sitemap\"><param name=\"Name\"" << one;
    QTest::newRow("a quote that never ends")
        << entry("One", "one.htm") + "<object type=\"text/sitemap" + entry("Two", "two.htm") << one;
    QTest::newRow("stray brackets") << "<<<>>><" + entry("One", "one.htm") + "<" << one;
    QTest::newRow("parameters outside an object")
        << "<param name=\"Name\" value=\"x\">" + entry("One", "one.htm") << one;
}

void TestHelpContents::readsEntries()
{
    QFETCH(QByteArray, hhc);
    QFETCH(QList<KWHelpEntry>, entries);

    const QList<KWHelpEntry> read = parseHelpContents(hhc);
    QCOMPARE(read.size(), entries.size());
    for (qsizetype i = 0; i < read.size(); ++i) {
        QCOMPARE(read[i].title, entries[i].title);
        QCOMPARE(read[i].page, entries[i].page);
        QCOMPARE(read[i].depth, entries[i].depth);
    }
}

void TestHelpContents::deepNestingEndsAtAReadableDepth()
{
    QByteArray hhc;
    for (int i = 0; i < 1000; ++i)
        hhc += "<ul>" + entry("deep", "deep.htm");
    const QList<KWHelpEntry> read = parseHelpContents(hhc);
    QCOMPARE(read.size(), 1000);
    QCOMPARE(read[10].depth, 10);
    QCOMPARE(read.last().depth, 16);
}

void TestHelpContents::noEntryIsMoreThanOneDeeperThanTheOneBefore()
{
    const QList<KWHelpEntry> read =
        parseHelpContents("<ul><ul><ul>" + entry("a", "a.htm") + "<ul><ul>" + entry("b", "b.htm"));
    QCOMPARE(read.size(), 2);
    QCOMPARE(read[0].depth, 0);
    QCOMPARE(read[1].depth, 1);
}

void TestHelpContents::garbageEnds_data()
{
    QTest::addColumn<QByteArray>("piece");

    QTest::newRow("lists") << QByteArray("<ul>");
    QTest::newRow("brackets") << QByteArray("<");
    QTest::newRow("quotes") << QByteArray("<\"");
    QTest::newRow("blanks") << QByteArray("< ");
    QTest::newRow("attributes") << QByteArray("<param a=\"b\" ");
    QTest::newRow("equals signs") << QByteArray("<= =");
    QTest::newRow("slashes") << QByteArray("<//");
    QTest::newRow("null bytes") << QByteArray("<\0=\0", 4);
    QTest::newRow("bytes that are no text") << QByteArray("<\xff\xfe=\x80");
    QTest::newRow("entries") << entry("a", "b.htm");
}

void TestHelpContents::garbageEnds()
{
    QFETCH(QByteArray, piece);

    const QList<KWHelpEntry> read = parseHelpContents(piece.repeated(1000000 / piece.size()));
    QVERIFY(read.size() <= 5000);
}

void TestHelpContents::everyPrefixOfAFileIsRead()
{
    const QByteArray hhc = "<ul>" + entry("A", "a.htm") + "<ul>" + entry("B", "b.htm") + "</ul>";
    qsizetype before = 0;
    for (qsizetype length = 0; length <= hhc.size(); ++length) {
        const qsizetype entries = parseHelpContents(hhc.first(length)).size();
        QVERIFY(entries == before || entries == before + 1);
        before = entries;
    }
    QCOMPARE(before, 2);
}

REGISTER_TEST(TestHelpContents)
#include "tst_kwhelpcontents.moc"
