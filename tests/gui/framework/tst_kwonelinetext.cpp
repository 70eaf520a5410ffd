#include "gui/framework/kwonelinetext.h"

#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QClipboard>
#include <QLineEdit>

namespace {

struct Field : QLineEdit
{
    Field() { keepToOneLine(this); }

    void paste(const QString &text)
    {
        QApplication::clipboard()->setText(text);
        QLineEdit::paste();
    }
};
} // namespace

class TestKWOneLineText : public QObject
{
    Q_OBJECT

private slots:
    void eachControlCharacterBecomesABlank_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tidy");
        QTest::newRow("line break") << s("anna\nmaria") << s("anna maria");
        QTest::newRow("a cell of a spreadsheet") << s("Fish\n") << s("Fish ");
        QTest::newRow("line break of other systems") << s("a\r\nb") << s("a  b");
        QTest::newRow("tab") << s("a\tb") << s("a b");
        QTest::newRow("null") << s("a") + QChar(u'\0') + s("b") << s("a b");
        QTest::newRow("delete") << s("a") + QChar(0x7f) + s("b") << s("a b");
        QTest::newRow("next line") << s("a") + QChar(0x85) + s("b") << s("a b");
        QTest::newRow("line separator") << s("a") + QChar(QChar::LineSeparator) << s("a ");
        QTest::newRow("paragraph separator")
            << s("a") + QChar(QChar::ParagraphSeparator) << s("a ");
        QTest::newRow("letters and joined signs")
            << s("É 👩‍👧 ß") << s("É 👩‍👧 ß");
        QTest::newRow("nothing") << QString() << QString();
    }

    void eachControlCharacterBecomesABlank()
    {
        QFETCH(QString, text);
        QTEST(oneLine(text), "tidy");
    }

    void aPastedTextBecomesOneLineAndTheCaretStaysBehindIt()
    {
        Field field;
        field.setText(s("()"));
        field.setCursorPosition(1);
        QStringList seen;
        connect(&field, &QLineEdit::textChanged, this,
                [&seen](const QString &text) { seen.append(text); });
        field.paste(s("anna\nmaria"));
        QCOMPARE(field.text(), s("(anna maria)"));
        QCOMPARE(field.cursorPosition(), 11);
        QCOMPARE(seen, QStringList{s("(anna maria)")});
    }

    void whatTheProgramPutsThereStaysUntilItIsChanged()
    {
        Field field;
        field.setText(s("anna\nmaria"));
        QCOMPARE(field.text(), s("anna\nmaria"));
        QVERIFY(field.hasAcceptableInput());
        field.setCursorPosition(0);
        QTest::keyClicks(&field, s("x"));
        QCOMPARE(field.text(), s("xanna maria"));
        QCOMPARE(field.cursorPosition(), 1);
        field.setText(s("a\tb"));
        QCOMPARE(field.text(), s("a\tb"));
    }
};

REGISTER_TEST(TestKWOneLineText)
#include "tst_kwonelinetext.moc"
