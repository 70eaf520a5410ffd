#include "gui/dialogs/kwnamevalidator.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// A line edit on the screen with the validator on it.
struct NameEdit : QLineEdit
{
    explicit NameEdit(bool capitalise = true)
    {
        setValidator(new KWNameValidator(capitalise, this));
        show();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("no keys");
        setFocus();
    }

    /// The text with a bar for the cursor.
    QString state() const { return text().insert(cursorPosition(), u'|'); }
};

/// What the keyboard of many countries sends for an accented letter: the accent alone is shown
/// until the letter comes.
void typeWithDeadKey(QWidget *edit, const char *accent, const char *letter)
{
    QInputMethodEvent composing(s(accent), {});
    QApplication::sendEvent(edit, &composing);
    QInputMethodEvent composed;
    composed.setCommitString(s(letter));
    QApplication::sendEvent(edit, &composed);
}
} // namespace

class TestKWNameValidator : public QObject
{
    Q_OBJECT

private slots:
    void itHasItsName() { QCOMPARE(KWNameValidator(true).objectName(), s("KWNameValidator")); }

    void aNameIsTidied_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("capitalised");
        QTest::addColumn<QString>("plain");
        const auto row = [](const char *text, const char *capitalised,
                            const char *plain = nullptr) {
            QTest::newRow(text) << s(text) << s(capitalised) << s(plain ? plain : text);
        };
        row("", "");
        row("   ", "", "");
        row("ann", "Ann");
        row("  ann", "Ann", "ann");
        row("\t ann lee ", "Ann Lee ", "ann lee ");
        row("\u00a0ann", "Ann", "ann");
        row("anna\nmaria\r\n", "Anna Maria  ", "anna maria  ");
        row("mary-ann o'neil", "Mary-Ann O'Neil");
        row("o\u2019neil", "O\u2019Neil");
        row("McDonald", "McDonald");
        row("macdonald", "Macdonald");
        row("mCDONALD", "MCDONALD");
        row("von  der heide", "Von  Der Heide");
        row("j.r.r. tolkien", "J.R.R. Tolkien");
        row("3rd", "3Rd");
        row("renée åse", "Renée Åse");
        row("élodie", "Élodie");
        row("rene\u0301e", "Rene\u0301e");
        row("rene\u0301\u0323e", "Rene\u0301\u0323e");
        row("e\u0301lodie", "E\u0301lodie");
        row("\u0301ann", "\u0301Ann");
        row("ßler", "ßler");
        row("\u5b8b\U00020000a", "\u5b8b\U00020000a");
        row("\U00010428nn", "\U00010400nn");
        row("анна каренина", "Анна Каренина");
    }

    void aNameIsTidied()
    {
        QFETCH(QString, text);
        QFETCH(QString, capitalised);
        QFETCH(QString, plain);
        QString tidied = text;
        KWNameValidator(true).fixup(tidied);
        QCOMPARE(tidied, capitalised);
        KWNameValidator(false).fixup(text);
        QCOMPARE(text, plain);
    }

    void theCursorMovesOnlyIfTheTextHasBecomeShorterThanItsPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::newRow("nothing to tidy") << s("Ann") << 2 << 2;
        QTest::newRow("at the end") << s("Ann") << 3 << 3;
        QTest::newRow("a capital") << s("ann") << 1 << 1;
        QTest::newRow("one blank in front") << s(" Ann") << 1 << 1;
        QTest::newRow("at the end behind one blank") << s(" Ann") << 4 << 2;
        QTest::newRow("at the end behind blanks") << s("   ann") << 6 << 2;
        QTest::newRow("as long as the text becomes") << s("   ann") << 3 << 3;
        QTest::newRow("blanks only") << s("   ") << 3 << 0;
        QTest::newRow("one letter") << s("  a") << 3 << 0;
        QTest::newRow("empty") << s("") << 0 << 0;
    }

    void theCursorMovesOnlyIfTheTextHasBecomeShorterThanItsPlace()
    {
        QFETCH(QString, text);
        QFETCH(int, before);
        QFETCH(int, after);
        int position = before;
        QCOMPARE(KWNameValidator(true).validate(text, position), QValidator::Acceptable);
        QCOMPARE(position, after);
    }

    void typingANameKeepsTheCursorBehindIt()
    {
        NameEdit edit;
        QTest::keyClicks(&edit, s("mary-ann o'neil"));
        QCOMPARE(edit.state(), s("Mary-Ann O'Neil|"));
    }

    void typingInTheMiddleKeepsTheCursorThere()
    {
        NameEdit edit;
        edit.setText(s("Mary Smith"));
        edit.setCursorPosition(4);
        QTest::keyClicks(&edit, s("-ann"));
        QCOMPARE(edit.state(), s("Mary-Ann| Smith"));
        edit.home(false);
        QTest::keyClicks(&edit, s("lady "));
        QCOMPARE(edit.state(), s("Lady |Mary-Ann Smith"));
    }

    void pastingInTheMiddleKeepsTheCursorBehindIt()
    {
        NameEdit edit;
        edit.setText(s("Ann Smith"));
        edit.setCursorPosition(4);
        QApplication::clipboard()->setText(s("lee-jones "));
        QTest::keySequence(&edit, QKeySequence::Paste);
        QCOMPARE(edit.state(), s("Ann Lee-Jones |Smith"));
    }

    void pastingBlanksInFrontTakesThemAway()
    {
        NameEdit edit;
        QApplication::clipboard()->setText(s("   ann lee"));
        QTest::keySequence(&edit, QKeySequence::Paste);
        QCOMPARE(edit.state(), s("Ann Le|e"));
    }

    void deletingMakesTheNewFirstLetterACapitalAndKeepsTheCursor()
    {
        NameEdit edit;
        edit.setText(s("McDonald"));
        edit.home(false);
        QTest::keyClick(&edit, Qt::Key_Delete);
        QCOMPARE(edit.state(), s("|CDonald"));
        edit.setText(s("Mary-Ann"));
        edit.setCursorPosition(5);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(edit.state(), s("Mary|Ann"));
        edit.setText(s("Anne"));
        edit.home(false);
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClick(&edit, Qt::Key_Delete);
        QCOMPARE(edit.state(), s("|Ne"));
    }

    void aBlankInFrontDoesNotStay()
    {
        for (const bool capitalise : {true, false}) {
            NameEdit edit(capitalise);
            QTest::keyClicks(&edit, s("  ann"));
            QCOMPARE(edit.state(), s(capitalise ? "Ann|" : "ann|"));
        }
    }

    void anAccentByADeadKeyKeepsTheCursorBehindIt()
    {
        NameEdit edit;
        edit.setText(s("Rene Smith"));
        edit.setCursorPosition(3);
        typeWithDeadKey(&edit, "´", "é");
        QCOMPARE(edit.state(), s("René|e Smith"));
        edit.setCursorPosition(6);
        QTest::keyClicks(&edit, s("-"));
        typeWithDeadKey(&edit, "´", "é");
        QCOMPARE(edit.state(), s("Renée -É|Smith"));
    }

    void anAccentByADeadKeyAtTheStartBecomesACapital()
    {
        NameEdit edit;
        edit.setText(s("Lodie"));
        edit.home(false);
        typeWithDeadKey(&edit, "´", "é");
        QCOMPARE(edit.state(), s("É|Lodie"));
    }
};

REGISTER_TEST(TestKWNameValidator)
#include "tst_kwnamevalidator.moc"
