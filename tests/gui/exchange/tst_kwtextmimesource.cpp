#include "gui/exchange/kwtextmimesource.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {
const QString htmlFormat = s("HTML format");
const QString guests = s("Zoë Müller – Łódź");

/// The header of the "HTML format", as it is.
QByteArray header(const char *html, const char *htmlEnd, const char *fragment,
                  const char *fragmentEnd)
{
    return QByteArray("Version:0.9\r\nStartHTML:") + html + "\r\nEndHTML:" + htmlEnd +
           "\r\nStartFragment:" + fragment + "\r\nEndFragment:" + fragmentEnd + "\r\n";
}

QByteArray htmlFormatOf(const QString &page)
{
    return KWTextMimeSource(page, QString()).data(htmlFormat);
}

QByteArray utf16(std::initializer_list<char16_t> units)
{
    return QByteArray(reinterpret_cast<const char *>(units.begin()),
                      static_cast<qsizetype>(units.size() * 2));
}

/// What arrives in an editor by the keyboard.
template <typename Editor>
void paste(Editor &editor)
{
    editor.show();
    editor.setFocus();
    QTest::keyClick(&editor, Qt::Key_V, Qt::ControlModifier);
}
} // namespace

class TestKWTextMimeSource : public QObject
{
    Q_OBJECT

private slots:
    void theFormatsStandInTheirOrder()
    {
        const KWTextMimeSource source(s("<p>x</p>"), s("x"));
        QCOMPARE(source.formats(), QStringList({s("HTML format"), s("text/html"), s("text/plain"),
                                                s("text/plain;charset=utf-8"), s("UTF8_STRING")}));
    }

    void aFormatHasItsNameInAnyLetterCase()
    {
        const KWTextMimeSource source(s("<html><body></body></html>"), s("x"));
        for (const char *type : {"HTML format", "HTML Format", "html format"}) {
            QVERIFY(source.hasFormat(s(type)));
            QVERIFY(source.data(s(type)).startsWith("Version:0.9\r\n"));
        }
        QCOMPARE(source.data(s("TEXT/HTML")), source.data(s("text/html")));
        QVERIFY(source.hasFormat(s("Text/HTML")));
        QCOMPARE(source.data(s("Text/Plain")), QByteArray("x"));
        QVERIFY(source.hasFormat(s("Text/Plain")));
        QVERIFY(source.hasFormat(s("text/plain;charset=UTF-8")));
    }

    void anUnknownFormatIsEmpty()
    {
        const KWTextMimeSource source(s("<html><body></body></html>"), s("x"));
        for (const char *type : {"", "text", "text/rtf", "HTML format ", "text/plain;charset=x"}) {
            QVERIFY(!source.hasFormat(s(type)));
            QCOMPARE(source.data(s(type)), QByteArray());
        }
    }

    void theOffsetsOfASmallPageAre97And109And117And124()
    {
        QCOMPARE(htmlFormatOf(s("<html><body><p>x</p></body></html>")),
                 header("00000097", "00000124", "00000109", "00000117") +
                     "<html><body><p>x</p></body></html>");
    }

    void theOffsetsPointAtTheParts_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QByteArray>("fromHtml");
        QTest::addColumn<QByteArray>("fromFragment");
        QTest::addColumn<QByteArray>("fragment");
        const auto row = [](const char *name, const char *page, const char *fromHtml,
                            const char *fromFragment, const char *fragment) {
            QTest::newRow(name) << s(page) << QByteArray(fromHtml) << QByteArray(fromFragment)
                                << QByteArray(fragment);
        };
        row("something before", "<!DOCTYPE html>\r\n<html><body><b>x</b></body></html>",
            "<html><body>", "<b>x", "<b>x</b>");
        row("attributes", "<html lang='en'><body style=\"color: red;\"><b>x</b></body></html>",
            "<html lang", "<b>x", "<b>x</b>");
        row("tags over several lines",
            "<html\nlang='en'\n><body\nid='b'\n>\n<b>x</b></body></html>", "<html\nlang", "<b>x",
            "<b>x</b>");
        row("text before the first tag", "<html><body>text<b>x</b> y</body></html>", "<html>",
            "<b>x", "<b>x</b> y");
        row("comments",
            "<html><body><!--StartFragment --><p>x</p><!--EndFragment --></body></html>", "<html>",
            "<!--StartFragment", "<!--StartFragment --><p>x</p><!--EndFragment -->");
        row("no tag in the body", "<html><body>x</body></html>", "<html>", "</body>", "");
        row("first of several", "<html><body><p>x</body></html><html><body><b>y</b></body></html>",
            "<html><body><p>", "<p>x", "<p>x");
        row("other letter case", "<HTML><BODY></BODY></HTML><html><body><p></body></html>",
            "<html>", "<p>", "<p>");
        row("tags that begin alike", "<htmlx><bodyx><p></body></html>", "<htmlx>", "<p>", "<p>");
        row("place holders in the page", "<html><body><p><  %1  ><  %2  >%3</p></body></html>",
            "<html>", "<p><  %1  >", "<p><  %1  ><  %2  >%3</p>");
        row("characters beyond Latin-1", "<html><body>Łódź 🎂 <p>Zoë – Łódź</p></body></html>",
            "<html><body>?\xf3", "<p>Zo\xeb ? ?",
            "<p>Zo\xeb ? ?\xf3"
            "d?</p>");
    }

    void theOffsetsPointAtTheParts()
    {
        QFETCH(QString, page);
        QFETCH(QByteArray, fromHtml);
        QFETCH(QByteArray, fromFragment);
        QFETCH(QByteArray, fragment);
        const QByteArray data = htmlFormatOf(page);
        QList<int> offsets;
        for (const QByteArray &line : data.split('\n').mid(1, 4)) {
            const QByteArray number = line.mid(line.indexOf(':') + 1).chopped(1);
            QCOMPARE(number.size(), 8);
            offsets.append(number.toInt());
        }
        QCOMPARE(data.size(), 97 + page.size());
        QVERIFY(data.sliced(offsets.at(0)).startsWith(fromHtml));
        QVERIFY(data.sliced(offsets.at(1)).startsWith("</html>"));
        QVERIFY(data.sliced(offsets.at(2)).startsWith(fromFragment));
        QCOMPARE(data.mid(offsets.at(2), offsets.at(3) - offsets.at(2)), fragment);
        QVERIFY(data.sliced(offsets.at(3)).startsWith("</body>"));
    }

    void aPageThatLacksAPartGivesNoHtmlFormat_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("null") << QString();
        QTest::newRow("plain text") << s("text");
        QTest::newRow("no html tag") << s("<body><p>x</p></body></html>");
        QTest::newRow("html tag in capitals") << s("<HTML><body><p>x</p></body></html>");
        QTest::newRow("html not closed") << s("<html><body><p>x</p></body>");
        QTest::newRow("no body") << s("<html><p>x</p></html>");
        QTest::newRow("body closed but not opened") << s("<html><p>x</p></body></html>");
        QTest::newRow("body not closed") << s("<html><body><p>x</p></html>");
        QTest::newRow("body in capitals") << s("<html><BODY><p>x</p></BODY></html>");
        QTest::newRow("nothing behind the body") << s("<html></html></body><body>");
        QTest::newRow("body tag without its end") << s("</body></html><html><body <p");
    }

    void aPageThatLacksAPartGivesNoHtmlFormat()
    {
        QFETCH(QString, page);
        const KWTextMimeSource source(page, s("plain"));
        QCOMPARE(source.data(htmlFormat), QByteArray());
        QVERIFY(source.hasFormat(htmlFormat));
        QCOMPARE(source.data(s("text/html")).size(), 2 * page.size() + 2);
        QCOMPARE(source.html(), page);
        QCOMPARE(source.data(s("text/plain")), QByteArray("plain"));
    }

    void aLargePageIsRead_data()
    {
        QTest::addColumn<QString>("page");
        constexpr int size = 10'000'000;
        const auto row = [](const char *name, const char *begin, const char *part,
                            const char *end) {
            const QString middle = s(part).repeated(size / static_cast<int>(qstrlen(part)));
            QTest::newRow(name) << s(begin) + middle + s(end);
        };
        row("text", "<html><body><p>", "x", "</p></body></html>");
        row("opening tags without an end", "", "<html", "");
        row("body tags without an end", "<html>", "<body", "");
        row("almost html", "", "<htm", "</html>");
        row("brackets", "<html><body", "<", "></body></html>");
    }

    void aLargePageIsRead()
    {
        QFETCH(QString, page);
        const KWTextMimeSource source(page, QString());
        const QByteArray data = source.data(htmlFormat);
        QCOMPARE(data.size(), page.contains(s("</body>")) ? 97 + page.size() : 0);
    }

    void htmlIsUtf16WithANulBehindIt()
    {
        const KWTextMimeSource source(s("<Łë🎂"), QString());
        QCOMPARE(source.data(s("text/html")),
                 utf16({u'<', u'\u0141', u'\u00eb', 0xd83c, 0xdf82, u'\0'}));
        QCOMPARE(KWTextMimeSource(QString(), QString()).data(s("text/html")), utf16({u'\0'}));
    }

    void plainTextIsLatin1()
    {
        const KWTextMimeSource source(s("<p>not this</p>"), guests);
        QCOMPARE(source.data(s("text/plain")), QByteArray("Zo\xeb M\xfcller ? ?\xf3"
                                                          "d?"));
    }

    void plainTextIsUtf8UnderTheNamesForIt()
    {
        const KWTextMimeSource source(s("<p>not this</p>"), guests);
        QCOMPARE(source.data(s("text/plain;charset=utf-8")), guests.toUtf8());
        QCOMPARE(source.data(s("UTF8_STRING")), guests.toUtf8());
    }

    void whoAsksForAStringGetsTheTextItself()
    {
        const KWTextMimeSource source(s("<p>") + guests + s("</p>"), guests);
        QVERIFY(source.hasText());
        QVERIFY(source.hasHtml());
        QCOMPARE(source.text(), guests);
        QCOMPARE(source.html(), s("<p>") + guests + s("</p>"));
    }

    void withoutAPlainTextOnlyTheHtmlArrives()
    {
        const KWTextMimeSource source(s("<html><body><p>x</p></body></html>"), QString());
        QCOMPARE(source.data(s("text/plain")), QByteArray());
        QCOMPARE(source.text(), QString());
        QVERIFY(source.data(htmlFormat).endsWith("<p>x</p></body></html>"));
    }

    void pastingIntoAnEditorOfTheProgramKeepsTheAccents()
    {
        QApplication::clipboard()->setMimeData(new KWTextMimeSource(
            s("<html><body><p><b>") + guests + s("</b></p></body></html>"), guests));
        QLineEdit line;
        paste(line);
        QCOMPARE(line.text(), guests);
        QPlainTextEdit plain;
        paste(plain);
        QCOMPARE(plain.toPlainText(), guests);
        QTextEdit rich;
        paste(rich);
        QCOMPARE(rich.toPlainText(), guests);
        rich.moveCursor(QTextCursor::End);
        QCOMPARE(rich.fontWeight(), int(QFont::Bold));
        QTextEdit noRich;
        noRich.setAcceptRichText(false);
        paste(noRich);
        QCOMPARE(noRich.toPlainText(), guests);
        QCOMPARE(QApplication::clipboard()->text(), guests);
    }

    void theClipboardOwnsIt()
    {
        const QPointer<KWTextMimeSource> source = new KWTextMimeSource(s("<p>"), s("x"));
        QApplication::clipboard()->setMimeData(source);
        QCOMPARE(QApplication::clipboard()->mimeData(), source.data());
        QApplication::clipboard()->setText(s("next"));
        QVERIFY(source.isNull());
    }
};

REGISTER_TEST(TestKWTextMimeSource)
#include "tst_kwtextmimesource.moc"
