#include "gui/framework/kwmessagetext.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {
QString letters(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text.append(QChar(u'a' + i % 26));
    return text;
}
} // namespace

class TestKWMessageText : public QObject
{
    Q_OBJECT

private slots:
    void aMessageOfOrdinaryLengthStaysAsItIs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QString();
        QTest::newRow("a question") << s("Delete theme 'Sea breeze'?");
        QTest::newRow("lines") << s("The automatic layout may re-assign unlocked guests.\n"
                                    "Do you wish to continue with the automatic layout?");
        QTest::newRow("as long as it may be") << s("word ").repeated(120);
        QTest::newRow("as many lines as there may be") << s("\n").repeated(11);
        QTest::newRow("a word as long as it may be") << letters(40) + u' ' + letters(40);
    }

    void aMessageOfOrdinaryLengthStaysAsItIs()
    {
        QFETCH(QString, text);
        QCOMPARE(messageText(text), text);
    }

    void aPathCanBeReadWhole()
    {
        const QString text = s("Unable to open file '/%1.kw'").arg(letters(250));
        QVERIFY(messageText(text) != text);
        QCOMPARE(withoutBreaks(messageText(text)), text);
    }

    void aLongWordHasPlacesToBreakEvery40Letters()
    {
        const QChar place(0x200b);
        QCOMPARE(messageText(letters(100)), letters(100).insert(80, place).insert(40, place));
    }

    void aLongNameLosesItsMiddle()
    {
        const QString text =
            messageText(s("Delete theme '%1'?").arg(s("very ").repeated(2000) + s("long")));
        QVERIFY(text.size() < 610);
        QVERIFY(text.startsWith("Delete theme 'very very "_L1));
        QVERIFY(text.endsWith(" very long'?"_L1));
        QCOMPARE(text.count(QChar(0x2026)), 1);
    }

    void noLetterIsTorn_data()
    {
        QTest::addColumn<QString>("letter");
        QTest::newRow("two code units") << s("\U0001F451");
        QTest::newRow("with an accent of its own") << s("a\u0301");
        QTest::newRow("with two") << s("a\u0301\u0323");
    }

    void noLetterIsTorn()
    {
        QFETCH(QString, letter);
        for (int blanks = 0; blanks < 3; ++blanks) {
            QString text =
                withoutBreaks(messageText(QString(blanks, u' ') + letter.repeated(1000)));
            const auto whole = text.count(letter);
            QVERIFY(whole > 150);
            QCOMPARE(text.remove(letter).trimmed(), QString(QChar(0x2026)));
            QVERIFY(whole * letter.size() <= 600);
        }
    }

    void ofManyLinesTheFirstAndTheLastAreShown_data()
    {
        QTest::addColumn<QString>("end");
        QTest::newRow("line feed") << s("\n");
        QTest::newRow("carriage return") << s("\r");
        QTest::newRow("line separator") << QString(QChar(QChar::LineSeparator));
        QTest::newRow("paragraph separator") << QString(QChar(QChar::ParagraphSeparator));
    }

    void ofManyLinesTheFirstAndTheLastAreShown()
    {
        QFETCH(QString, end);
        QStringList lines;
        for (int i = 1; i <= 100; ++i)
            lines.append(QString::number(i));
        QCOMPARE(messageText(lines.join(end)),
                 s("1\n2\n3\n4\n5\n6\n\u2026\n95\n96\n97\n98\n99\n100"));
    }
};

REGISTER_TEST(TestKWMessageText)
#include "tst_kwmessagetext.moc"
