#include "support/gui/tabledialogtest.h"
#include "support/registeredtest.h"

// The dialog as it edits a table.

class TestKWTableDlgEdit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void theTableIsShown_data();
    void theTableIsShown();
    void okWritesAllValues();
    void theUndoPointComesFirstThenTheTableThenTheScores();
    void okWithoutAChangeMakesAnUndoPointAndNoEvent();
    void textsThatTheFieldsWouldChangeStayIfTheyAreNotTouched();
    void blanksAroundATypedNameAreStripped();
    void moreSeatsThanTheFormMakesStay_data();
    void moreSeatsThanTheFormMakesStay();
    void aCircularTableBecomesRectangularWithItsGuests();
    void shrinkingLeavesTheFirstGuestsInOrderAndUnseatsTheOthers();
    void shrinkingClosesTheGuestsUp();
    void shrinkingATableWithALockedGuestIsRefused_data();
    void shrinkingATableWithALockedGuestIsRefused();
    void growingATableWithALockedGuestIsAllowed();
    void aLockedGuestElsewhereDoesNotMatter();
    void aNewShapeWithFewerSeatsIsRefusedTooWhereAGuestIsLocked();
    void aNameOfBlanksAloneIsRefusedBeforeTheSeatsAreLookedAt();
    void returnAndTheLetterAccept();
    void cancelWritesNothing();
    void withoutAMainWindowTheTableIsWritten();

private:
    /// A table of that many seats with as many guests, G0 and so on, less those left out at the
    /// end.
    KWTable *addFullTable(int seats, int leftOut = 0);

    std::unique_ptr<LoggingWindow> m_window;
    KWDocument *m_plan = nullptr;
};

void TestKWTableDlgEdit::init()
{
    m_window = std::make_unique<LoggingWindow>();
    m_plan = m_window->document();
}

KWTable *TestKWTableDlgEdit::addFullTable(int seats, int leftOut)
{
    KWTable *table = addTable(*m_plan, "Top", KWTable::Circular, seats);
    const QList<KWGuest *> guests = addGuests(*m_plan, seats - leftOut);
    for (int seat = 0; seat < seats - leftOut; ++seat)
        m_plan->assignGuest(guests.at(seat), table, seat, false);
    m_plan->recalculateScores();
    m_window->takeSteps();
    return table;
}

void TestKWTableDlgEdit::theTableIsShown_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QString>("seats");
    QTest::newRow("circular") << int(KWTable::Circular) << s("7");
    QTest::newRow("rectangular") << int(KWTable::Rectangular) << s("2 × (7 + 3) = [20]");
    QTest::newRow("head, top") << int(KWTable::HeadTop) << s("7");
    QTest::newRow("head, right") << int(KWTable::HeadRight) << s("7");
    QTest::newRow("head, bottom") << int(KWTable::HeadBottom) << s("7");
    QTest::newRow("head, left") << int(KWTable::HeadLeft) << s("7");
    QTest::newRow("custom") << int(KWTable::Custom) << s("7 + 3 + 4 + 0 = [14]");
}

void TestKWTableDlgEdit::theTableIsShown()
{
    QFETCH(int, shape);
    QFETCH(QString, seats);
    KWTable *table = m_plan->addTable(shape, s("Top <b>%1</b>"), 7, 3, 4, 0, {}, s("by the door"));
    const TableDialog dialog(nullptr, m_plan, table);
    QCOMPARE(dialog.name->text(), s("Top <b>%1</b>"));
    QCOMPARE(dialog.shape->currentIndex(), shape);
    QCOMPARE(dialog.seats(), seats);
    QCOMPARE(dialog.notes->toPlainText(), s("by the door"));
}

void TestKWTableDlgEdit::okWritesAllValues()
{
    KWTable *table = m_plan->addTable(KWTable::Circular, s("Top"), 8, 0, 0, 0, QPoint(300, 400),
                                      s("by the door"));
    TableDialog dialog(nullptr, m_plan, table);
    QVERIFY(showActive(dialog));
    GuestForm::type(dialog.name, "Family");
    GuestForm::pick(dialog.shape, "Custom");
    TableDialog::type(dialog.across, 1);
    TableDialog::type(dialog.down, 3);
    TableDialog::type(dialog.across2, 5);
    TableDialog::type(dialog.down2, 7);
    QTest::keyClicks(dialog.notes, s("not "));
    QCOMPARE(facts(*table), s("Top|0|0 0 0 0|8|by the door"));
    dialog.click("m_okPushButton");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(facts(*table), s("Family|6|1 3 5 7|16|not by the door"));
    QCOMPARE(table->position(), QPoint(300, 400));
    QCOMPARE(m_plan->tableCount(), 1);
}

void TestKWTableDlgEdit::theUndoPointComesFirstThenTheTableThenTheScores()
{
    KWTable *table = addFullTable(3, 1);
    TableDialog dialog(nullptr, m_plan, table);
    QVERIFY(showActive(dialog));
    GuestForm::type(dialog.name, "Family");
    TableDialog::type(dialog.total, 5);
    QCOMPARE(m_window->takeSteps(), QStringList());
    dialog.click("m_okPushButton");
    QCOMPARE(m_window->takeSteps(),
             (QStringList{s("undo Edit table"), s("eventEditTable(Family)"), s("eventModified()"),
                          s("eventEditTable(Family)"), s("eventModified()"),
                          s("eventScoreChange(Family)"), s("eventScoreChange()")}));
    QVERIFY(m_window->wasBusy());
    QVERIFY(!QApplication::overrideCursor());
}

void TestKWTableDlgEdit::okWithoutAChangeMakesAnUndoPointAndNoEvent()
{
    for (KWTable *table :
         {addTable(*m_plan, "A", KWTable::HeadLeft, 5), addRectangular(*m_plan, "B", 2, 0),
          addCustom(*m_plan, "C", 1, 2, 3, 4)}) {
        m_window->takeSteps();
        const QString before = facts(*table);
        TableDialog dialog(nullptr, m_plan, table);
        dialog.accept();
        QCOMPARE(m_window->takeSteps(), QStringList{s("undo Edit table")});
        QCOMPARE(facts(*table), before);
    }
}

void TestKWTableDlgEdit::textsThatTheFieldsWouldChangeStayIfTheyAreNotTouched()
{
    KWTable *table = m_plan->addTable(KWTable::Circular, s(" Top\ntable "), 8, 0, 0, 0, {},
                                      s("ten\u00a0\u20ac\r\neach"));
    TableDialog dialog(nullptr, m_plan, table);
    TableDialog::type(dialog.total, 9);
    dialog.accept();
    QCOMPARE(facts(*table), s("Top\ntable|0|0 0 0 0|9|ten\u00a0\u20ac\r\neach"));
}

void TestKWTableDlgEdit::blanksAroundATypedNameAreStripped()
{
    KWTable *table = addTable(*m_plan, "Top", KWTable::Circular, 8);
    TableDialog dialog(nullptr, m_plan, table);
    GuestForm::type(dialog.name, "  Family table ");
    dialog.accept();
    QCOMPARE(table->name(), s("Family table"));
}

void TestKWTableDlgEdit::moreSeatsThanTheFormMakesStay_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QString>("seats");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("split");
    QTest::newRow("circular") << int(KWTable::Circular) << s("140") << s("rectangular")
                              << s("2 × (35 + 35) = [140]");
    QTest::newRow("rectangular") << int(KWTable::Rectangular) << s("2 × (140 + 30) = [340]")
                                 << s("Custom") << s("140 + 30 + 140 + 30 = [340]");
    QTest::newRow("custom") << int(KWTable::Custom) << s("140 + 30 + 40 + 50 = [260]")
                            << s("circular") << s("260");
}

void TestKWTableDlgEdit::moreSeatsThanTheFormMakesStay()
{
    QFETCH(int, shape);
    QFETCH(QString, seats);
    QFETCH(QString, other);
    QFETCH(QString, split);
    KWTable *table = m_plan->addTable(shape, s("Top"), 140, 30, 40, 50, {}, {});
    const QString before = facts(*table);
    TableDialog dialog(nullptr, m_plan, table);
    QCOMPARE(dialog.seats(), seats);
    dialog.apply();
    QCOMPARE(facts(*table), before);
    GuestForm::pick(dialog.shape, qPrintable(other));
    QCOMPARE(dialog.seats(), split);
}

void TestKWTableDlgEdit::aCircularTableBecomesRectangularWithItsGuests()
{
    KWTable *table = addFullTable(8);
    TableDialog dialog(nullptr, m_plan, table);
    GuestForm::pick(dialog.shape, "rectangular");
    dialog.accept();
    QCOMPARE(facts(*table), s("Top|1|2 2 0 0|8|"));
    QCOMPARE(seating(*table), s("G0 G1 G2 G3 G4 G5 G6 G7"));
}

void TestKWTableDlgEdit::shrinkingLeavesTheFirstGuestsInOrderAndUnseatsTheOthers()
{
    KWTable *table = addFullTable(8);
    TableDialog dialog(nullptr, m_plan, table);
    TableDialog::type(dialog.total, 6);
    dialog.accept();
    QCOMPARE(seating(*table), s("G0 G1 G2 G3 G4 G5"));
    QCOMPARE(m_plan->unseatedGuests(true),
             (QList<KWGuest *>{m_plan->guestAt(6), m_plan->guestAt(7)}));
    QCOMPARE(m_window->takeSteps().filter(s("eventEditGuest")),
             (QStringList{s("eventEditGuest(G7)"), s("eventEditGuest(G6)")}));
}

void TestKWTableDlgEdit::shrinkingClosesTheGuestsUp()
{
    KWTable *table = addFullTable(8, 5);
    m_plan->assignGuest(m_plan->guestAt(1), table, 6, false);
    m_plan->assignGuest(m_plan->guestAt(2), table, 7, false);
    TableDialog dialog(nullptr, m_plan, table);
    TableDialog::type(dialog.total, 4);
    dialog.accept();
    QCOMPARE(seating(*table), s("G0 - G1 G2"));
}

void TestKWTableDlgEdit::shrinkingATableWithALockedGuestIsRefused_data()
{
    QTest::addColumn<int>("locked");
    QTest::newRow("who would keep the seat") << 0;
    QTest::newRow("who would lose the seat") << 7;
}

void TestKWTableDlgEdit::shrinkingATableWithALockedGuestIsRefused()
{
    QFETCH(int, locked);
    KWTable *table = addFullTable(8);
    m_plan->setGuestLocked(m_plan->guestAt(locked), true);
    m_plan->setTableName(table, s("Top %2"));
    m_plan->setModified(false);
    m_window->takeSteps();
    ScriptedPrompts prompts;
    prompts.answer(s("&OK"));
    TableDialog dialog(nullptr, m_plan, table);
    QVERIFY(showActive(dialog));
    GuestForm::type(dialog.name, "Family");
    TableDialog::type(dialog.total, 7);
    dialog.click("m_okPushButton");
    QCOMPARE(prompts.texts(), QStringList{s("You must unlock all the locked guests on table "
                                            "'Top %2' before you can remove any seats")});
    QCOMPARE(prompts.messages.at(0).buttons, QStringList{s("&OK")});
    QCOMPARE(prompts.messages.at(0).icon, KWMessage::Critical);
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.seats(), s("7"));
    QCOMPARE(m_window->takeSteps(), QStringList());
    QCOMPARE(facts(*table), s("Top %2|0|0 0 0 0|8|"));
    QVERIFY(!m_plan->isModified());
    QVERIFY(!QApplication::overrideCursor());
}

void TestKWTableDlgEdit::growingATableWithALockedGuestIsAllowed()
{
    KWTable *table = addFullTable(3, 1);
    m_plan->setGuestLocked(m_plan->guestAt(0), true);
    TableDialog dialog(nullptr, m_plan, table);
    TableDialog::type(dialog.total, 5);
    dialog.accept();
    QCOMPARE(seating(*table), s("G0 G1 - - -"));
}

void TestKWTableDlgEdit::aLockedGuestElsewhereDoesNotMatter()
{
    KWTable *table = addFullTable(3, 1);
    addGuest(*m_plan, {.name = "Ann", .locked = true});
    KWTable *other = addTable(*m_plan, "Other", KWTable::Circular, 2);
    m_plan->assignGuest(addGuest(*m_plan, {.name = "Bob", .locked = true}), other, 0, false);
    TableDialog dialog(nullptr, m_plan, table);
    TableDialog::type(dialog.total, 1);
    dialog.accept();
    QCOMPARE(seating(*table), s("G0"));
}

void TestKWTableDlgEdit::aNewShapeWithFewerSeatsIsRefusedTooWhereAGuestIsLocked()
{
    KWTable *table = addCustom(*m_plan, "Top", 1, 2, 3, 4);
    m_plan->assignGuest(addGuest(*m_plan, {.name = "Ann", .locked = true}), table, 0, false);
    ScriptedPrompts prompts;
    prompts.answer(s("&OK"));
    TableDialog dialog(nullptr, m_plan, table);
    GuestForm::pick(dialog.shape, "rectangular");
    QCOMPARE(dialog.seats(), s("2 × (1 + 2) = [6]"));
    QVERIFY(!dialog.apply());
    QCOMPARE(prompts.texts().size(), 1);
    QCOMPARE(facts(*table), s("Top|6|1 2 3 4|10|"));
    TableDialog::type(dialog.across, 3);
    QVERIFY(dialog.apply());
    QCOMPARE(facts(*table), s("Top|1|3 2 0 0|10|"));
    QCOMPARE(prompts.texts().size(), 1);
}

void TestKWTableDlgEdit::aNameOfBlanksAloneIsRefusedBeforeTheSeatsAreLookedAt()
{
    KWTable *table = addFullTable(8);
    m_plan->setTableLocked(table, true);
    m_window->takeSteps();
    ScriptedPrompts prompts;
    prompts.answer(s("&OK"));
    TableDialog dialog(nullptr, m_plan, table);
    QVERIFY(showActive(dialog));
    GuestForm::type(dialog.name, "   ");
    TableDialog::type(dialog.total, 7);
    dialog.click("m_okPushButton");
    QCOMPARE(prompts.texts(), QStringList{s("Table name is empty.")});
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.name->hasFocus());
    QCOMPARE(m_window->takeSteps(), QStringList());
    QCOMPARE(facts(*table), s("Top|0|0 0 0 0|8|"));
}

void TestKWTableDlgEdit::returnAndTheLetterAccept()
{
    KWTable *table = addTable(*m_plan, "Top", KWTable::Circular, 8);
    TableDialog byReturn(nullptr, m_plan, table);
    QVERIFY(showActive(byReturn));
    TableDialog::type(byReturn.total, 9);
    QTest::keyClick(byReturn.total, Qt::Key_Return);
    QVERIFY(!byReturn.isVisible());
    QCOMPARE(table->seatCount(), 9);
    TableDialog byLetter(nullptr, m_plan, table);
    QVERIFY(showActive(byLetter));
    TableDialog::type(byLetter.total, 10);
    QTest::keyClick(&byLetter, Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(!byLetter.isVisible());
    QCOMPARE(table->seatCount(), 10);
}

void TestKWTableDlgEdit::cancelWritesNothing()
{
    KWTable *table = addTable(*m_plan, "Top", KWTable::Circular, 8);
    m_window->takeSteps();
    TableDialog dialog(nullptr, m_plan, table);
    QVERIFY(showActive(dialog));
    GuestForm::type(dialog.name, "Family");
    TableDialog::type(dialog.total, 9);
    dialog.click("m_cancelPushButton");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(m_window->takeSteps(), QStringList());
    QCOMPARE(facts(*table), s("Top|0|0 0 0 0|8|"));
}

void TestKWTableDlgEdit::withoutAMainWindowTheTableIsWritten()
{
    m_window.reset();
    KWDocument plan;
    KWTable *table = addTable(plan, "Top", KWTable::Circular, 8);
    TableDialog dialog(nullptr, &plan, table);
    TableDialog::type(dialog.total, 9);
    dialog.accept();
    QCOMPARE(table->seatCount(), 9);
}

REGISTER_TEST(TestKWTableDlgEdit)
#include "tst_kwtabledlg_edit.moc"
