#include "support/gui/tabledialogtest.h"
#include "support/registeredtest.h"

// The dialog as it puts tables into the plan.

class TestKWTableDlgInsert : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void addInsertsATableOfTheShape_data();
    void addInsertsATableOfTheShape();
    void theUndoPointComesFirstThenEachTableIsPlacedAndTheLastOneShown();
    void threeTablesHaveTheNameGivenAndTheNextFreeOnes();
    void theFirstNameIsUsedAsItStandsEvenIfATableHasIt();
    void blanksAroundANameAreStripped();
    void eachTableStartsInTheMiddleOfTheFloorPlanAsItIsThen();
    void allTablesGetTheNotes();
    void aTableWithoutSeatsCanBeMade();
    void manyLargeTablesAreAllowed();
    void aNameOfBlanksAloneIsRefused_data();
    void aNameOfBlanksAloneIsRefused();
    void returnAddsAndSoDoTheLetterAndTheSlot_data();
    void returnAddsAndSoDoTheLetterAndTheSlot();
    void cancelInsertsNothing();
    void withoutAMainWindowTheTablesAreInserted();

private:
    QStringList tables() const;

    std::unique_ptr<LoggingWindow> m_window;
    KWDocument *m_plan = nullptr;
};

void TestKWTableDlgInsert::init()
{
    m_window = std::make_unique<LoggingWindow>();
    m_plan = m_window->document();
}

/// The names of all tables.
QStringList TestKWTableDlgInsert::tables() const
{
    QStringList names;
    for (const KWTable *table : m_plan->tables())
        names.append(table->name());
    return names;
}

void TestKWTableDlgInsert::addInsertsATableOfTheShape_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QString>("expected");
    QTest::newRow("circular") << int(KWTable::Circular) << s("Top|0|0 0 0 0|8|by the door");
    QTest::newRow("rectangular") << int(KWTable::Rectangular) << s("Top|1|3 4 0 0|14|by the door");
    QTest::newRow("head") << int(KWTable::HeadTop) << s("Top|2|0 0 0 0|8|by the door");
    QTest::newRow("custom") << int(KWTable::Custom) << s("Top|6|3 4 5 6|18|by the door");
}

void TestKWTableDlgInsert::addInsertsATableOfTheShape()
{
    QFETCH(int, shape);
    QFETCH(QString, expected);
    TableDialog dialog(nullptr, m_plan, shape);
    QVERIFY(showActive(dialog));
    GuestForm::type(dialog.name, "Top");
    TableDialog::type(dialog.across, 3);
    TableDialog::type(dialog.down, 4);
    TableDialog::type(dialog.across2, 5);
    TableDialog::type(dialog.down2, 6);
    QTest::keyClicks(dialog.notes, s("by the door"));
    QCOMPARE(m_plan->tableCount(), 0);
    dialog.click("m_addPushButton");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_plan->tableCount(), 1);
    QCOMPARE(facts(*m_plan->tableAt(0)), expected);
    QCOMPARE(m_plan->tableAt(0)->position(), QPoint(1000, 800));
}

void TestKWTableDlgInsert::theUndoPointComesFirstThenEachTableIsPlacedAndTheLastOneShown()
{
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    QVERIFY(showActive(dialog));
    GuestForm::type(dialog.name, "Top");
    TableDialog::type(dialog.tables, 2);
    QCOMPARE(m_window->takeSteps(), QStringList());
    dialog.click("m_addPushButton");
    QCOMPARE(m_window->takeSteps(),
             (QStringList{s("undo New table(s)"), s("eventNewTable(Top)"), s("eventModified()"),
                          s("place Top"), s("eventNewTable(Table 1)"), s("eventModified()"),
                          s("place Table 1"), s("show Table 1")}));
    QVERIFY(m_window->wasBusy());
    QVERIFY(!QApplication::overrideCursor());
}

void TestKWTableDlgInsert::threeTablesHaveTheNameGivenAndTheNextFreeOnes()
{
    addTable(*m_plan, "TABLE 2", KWTable::Circular, 8);
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    GuestForm::type(dialog.name, "Family");
    TableDialog::type(dialog.tables, 3);
    dialog.accept();
    QCOMPARE(tables(), (QStringList{s("TABLE 2"), s("Family"), s("Table 1"), s("Table 3")}));
    QCOMPARE(dialog.name->text(), s("Table 4"));
}

void TestKWTableDlgInsert::theFirstNameIsUsedAsItStandsEvenIfATableHasIt()
{
    addTable(*m_plan, "Family", KWTable::Circular, 8);
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    GuestForm::type(dialog.name, "Family");
    dialog.accept();
    QCOMPARE(tables(), (QStringList{s("Family"), s("Family")}));
}

void TestKWTableDlgInsert::blanksAroundANameAreStripped()
{
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    GuestForm::type(dialog.name, "  Top table ");
    dialog.accept();
    QCOMPARE(tables(), QStringList{s("Top table")});
}

void TestKWTableDlgInsert::eachTableStartsInTheMiddleOfTheFloorPlanAsItIsThen()
{
    connect(m_plan, &KWDocument::eventNewTable, this,
            [this] { m_window->centre += QPoint(10, -20); });
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    TableDialog::type(dialog.tables, 3);
    dialog.accept();
    QList<QPoint> positions;
    for (const KWTable *table : m_plan->tables())
        positions.append(table->position());
    QCOMPARE(positions, (QList<QPoint>{{1000, 800}, {1010, 780}, {1020, 760}}));
}

void TestKWTableDlgInsert::allTablesGetTheNotes()
{
    TableDialog dialog(nullptr, m_plan, KWTable::HeadLeft);
    QTest::keyClicks(dialog.notes, s("round cloth"));
    TableDialog::type(dialog.tables, 2);
    TableDialog::type(dialog.total, 5);
    dialog.accept();
    QCOMPARE(facts(*m_plan->tableAt(0)), s("Table 1|5|0 0 0 0|5|round cloth"));
    QCOMPARE(facts(*m_plan->tableAt(1)), s("Table 2|5|0 0 0 0|5|round cloth"));
}

void TestKWTableDlgInsert::aTableWithoutSeatsCanBeMade()
{
    TableDialog dialog(nullptr, m_plan, KWTable::Rectangular);
    TableDialog::type(dialog.across, 0);
    TableDialog::type(dialog.down, 0);
    QCOMPARE(dialog.total->value(), 0);
    dialog.accept();
    QCOMPARE(facts(*m_plan->tableAt(0)), s("Table 1|1|0 0 0 0|0|"));
}

void TestKWTableDlgInsert::manyLargeTablesAreAllowed()
{
    addTable(*m_plan, "Table 500", KWTable::Circular, 1);
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    TableDialog::type(dialog.tables, 999);
    TableDialog::type(dialog.total, 100);
    dialog.accept();
    QCOMPARE(m_plan->tableCount(), 1000);
    QCOMPARE(m_plan->seatCount(), 99901);
    QCOMPARE(m_plan->tables().last()->name(), s("Table 1000"));
    const QStringList names = tables();
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 1000);
}

void TestKWTableDlgInsert::aNameOfBlanksAloneIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << s("   ");
    QTest::newRow("other white space") << s(" \u00a0\u2003");
}

void TestKWTableDlgInsert::aNameOfBlanksAloneIsRefused()
{
    QFETCH(QString, name);
    ScriptedPrompts prompts;
    prompts.answer(s("&OK"));
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    QVERIFY(showActive(dialog));
    if (name.isEmpty())
        GuestForm::type(dialog.name, "");
    else
        GuestForm::paste(dialog.name, name);
    dialog.total->setFocus();
    dialog.click("m_addPushButton");
    QCOMPARE(prompts.texts(), QStringList{s("Table name is empty.")});
    QCOMPARE(prompts.messages.at(0).buttons, QStringList{s("&OK")});
    QCOMPARE(prompts.messages.at(0).icon, KWMessage::Critical);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.name->hasFocus());
    QCOMPARE(m_window->takeSteps(), QStringList());
    QCOMPARE(m_plan->tableCount(), 0);
    QVERIFY(!m_plan->isModified());
}

void TestKWTableDlgInsert::returnAddsAndSoDoTheLetterAndTheSlot_data()
{
    QTest::addColumn<QString>("by");
    for (const char *by : {"return in the name", "return in a number", "letter", "slot"})
        QTest::newRow(by) << s(by);
}

void TestKWTableDlgInsert::returnAddsAndSoDoTheLetterAndTheSlot()
{
    QFETCH(QString, by);
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    QVERIFY(showActive(dialog));
    TableDialog::type(dialog.total, 12);
    if (by == s("return in the name"))
        QTest::keyClick(dialog.name, Qt::Key_Return);
    else if (by == s("return in a number"))
        QTest::keyClick(dialog.total, Qt::Key_Return);
    else if (by == s("letter"))
        QTest::keyClick(&dialog, Qt::Key_A, Qt::AltModifier);
    else
        dialog.add();
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_plan->seatCount(), 12);
}

void TestKWTableDlgInsert::cancelInsertsNothing()
{
    TableDialog dialog(nullptr, m_plan, KWTable::Circular);
    QVERIFY(showActive(dialog));
    TableDialog::type(dialog.total, 12);
    dialog.click("m_cancelPushButton");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(m_window->takeSteps(), QStringList());
    QCOMPARE(m_plan->tableCount(), 0);
}

void TestKWTableDlgInsert::withoutAMainWindowTheTablesAreInserted()
{
    m_window.reset();
    KWDocument plan;
    TableDialog dialog(nullptr, &plan, KWTable::Circular);
    TableDialog::type(dialog.tables, 2);
    dialog.accept();
    QCOMPARE(plan.tableCount(), 2);
    QCOMPARE(plan.tableAt(1)->name(), s("Table 2"));
}

REGISTER_TEST(TestKWTableDlgInsert)
#include "tst_kwtabledlg_insert.moc"
