#include "gui/appearance/kwpixmaps.h"
#include "support/gui/tabledialogtest.h"
#include "support/registeredtest.h"

// What the dialog does with the seats when the shape changes, and the line that compares them with
// the guests.

class TestKWTableDlgShapes : public QObject
{
    Q_OBJECT

private slots:
    void aTotalIsSplitOverTheSides_data();
    void aTotalIsSplitOverTheSides();
    void everyShapeWithoutSidesIsSplit_data();
    void everyShapeWithoutSidesIsSplit();
    void theFourthSideOfACustomTableKeepsItsSeats();
    void noSeatsGiveFourEmptySides();
    void aRectangleGivesACustomTableItsFourSides();
    void aCustomTableGivesARectangleItsFirstTwoSides();
    void withoutSidesTheTotalStaysAndCanBeTyped_data();
    void withoutSidesTheTotalStaysAndCanBeTyped();
    void theSameShapeAgainChangesNothing_data();
    void theSameShapeAgainChangesNothing();
    void theTotalFollowsTheSides();
    void aTotalOfSidesCannotBeTyped();
    void theKeysPassByATotalThatCannotBeTyped();
    void aReaderIsToldWhichSideABoxIsFor();
    void eachShapeHasItsPicture();
    void arrowKeysChangeTheShapeToo();
    void aNewShapeHasItsCaption();
    void aPickMovesTheFocusToTheFirstNumber_data();
    void aPickMovesTheFocusToTheFirstNumber();
    void theLineTellsTheSeatsForTheGuests();
    void theLineFollowsSidesAndShapes();

private:
    FakeMainWindow m_window;
    KWDocument m_plan;
};

void TestKWTableDlgShapes::aTotalIsSplitOverTheSides_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<QString>("rectangular");
    QTest::addColumn<QString>("custom");
    const auto row = [](int total, const char *rectangular, const char *custom) {
        QTest::addRow("%d", total) << total << s(rectangular) << s(custom);
    };
    row(0, "2 × (0 + 0) = [0]", "0 + 0 + 0 + 0 = [0]");
    row(1, "2 × (1 + 0) = [2]", "1 + 0 + 1 + 2 = [4]");
    row(2, "2 × (0 + 1) = [2]", "0 + 1 + 0 + 2 = [3]");
    row(3, "2 × (1 + 1) = [4]", "1 + 1 + 1 + 2 = [5]");
    row(4, "2 × (1 + 1) = [4]", "1 + 1 + 1 + 2 = [5]");
    row(5, "2 × (2 + 1) = [6]", "2 + 1 + 2 + 2 = [7]");
    row(6, "2 × (1 + 2) = [6]", "1 + 2 + 1 + 2 = [6]");
    row(7, "2 × (2 + 2) = [8]", "2 + 2 + 2 + 2 = [8]");
    row(8, "2 × (2 + 2) = [8]", "2 + 2 + 2 + 2 = [8]");
    row(9, "2 × (3 + 2) = [10]", "3 + 2 + 3 + 2 = [10]");
    row(10, "2 × (2 + 3) = [10]", "2 + 3 + 2 + 2 = [9]");
    row(99, "2 × (25 + 25) = [100]", "25 + 25 + 25 + 2 = [77]");
    row(100, "2 × (25 + 25) = [100]", "25 + 25 + 25 + 2 = [77]");
}

void TestKWTableDlgShapes::aTotalIsSplitOverTheSides()
{
    QFETCH(int, total);
    QFETCH(QString, rectangular);
    QFETCH(QString, custom);
    for (const auto &[shape, seats] :
         {std::pair("rectangular", rectangular), std::pair("Custom", custom)}) {
        TableDialog dialog(nullptr, &m_plan, KWTable::Circular);
        TableDialog::type(dialog.total, total);
        GuestForm::pick(dialog.shape, shape);
        QCOMPARE(dialog.seats(), seats);
    }
}

void TestKWTableDlgShapes::everyShapeWithoutSidesIsSplit_data()
{
    QTest::addColumn<int>("shape");
    QTest::newRow("circular") << int(KWTable::Circular);
    QTest::newRow("top") << int(KWTable::HeadTop);
    QTest::newRow("right") << int(KWTable::HeadRight);
    QTest::newRow("bottom") << int(KWTable::HeadBottom);
    QTest::newRow("left") << int(KWTable::HeadLeft);
}

void TestKWTableDlgShapes::everyShapeWithoutSidesIsSplit()
{
    QFETCH(int, shape);
    TableDialog inserting(nullptr, &m_plan, shape);
    TableDialog::type(inserting.total, 9);
    GuestForm::pick(inserting.shape, "rectangular");
    QCOMPARE(inserting.seats(), s("2 × (3 + 2) = [10]"));
    TableDialog editing(nullptr, &m_plan, addTable(m_plan, "T", shape, 14));
    GuestForm::pick(editing.shape, "Custom");
    QCOMPARE(editing.seats(), s("3 + 4 + 3 + 2 = [12]"));
}

void TestKWTableDlgShapes::theFourthSideOfACustomTableKeepsItsSeats()
{
    TableDialog dialog(nullptr, &m_plan, addCustom(m_plan, "T", 1, 1, 1, 7));
    GuestForm::pick(dialog.shape, "circular");
    QCOMPARE(dialog.seats(), s("10"));
    TableDialog::type(dialog.total, 8);
    GuestForm::pick(dialog.shape, "Custom");
    QCOMPARE(dialog.seats(), s("2 + 2 + 2 + 7 = [13]"));
}

void TestKWTableDlgShapes::noSeatsGiveFourEmptySides()
{
    TableDialog dialog(nullptr, &m_plan, addCustom(m_plan, "T", 1, 1, 1, 7));
    GuestForm::pick(dialog.shape, "Head (seats at top)");
    TableDialog::type(dialog.total, 0);
    GuestForm::pick(dialog.shape, "Custom");
    QCOMPARE(dialog.seats(), s("0 + 0 + 0 + 0 = [0]"));
}

void TestKWTableDlgShapes::aRectangleGivesACustomTableItsFourSides()
{
    TableDialog dialog(nullptr, &m_plan, addRectangular(m_plan, "T", 3, 4));
    QCOMPARE(dialog.seats(), s("2 × (3 + 4) = [14]"));
    GuestForm::pick(dialog.shape, "Custom");
    QCOMPARE(dialog.seats(), s("3 + 4 + 3 + 4 = [14]"));
}

void TestKWTableDlgShapes::aCustomTableGivesARectangleItsFirstTwoSides()
{
    TableDialog dialog(nullptr, &m_plan, addCustom(m_plan, "T", 1, 2, 3, 4));
    QCOMPARE(dialog.seats(), s("1 + 2 + 3 + 4 = [10]"));
    GuestForm::pick(dialog.shape, "rectangular");
    QCOMPARE(dialog.seats(), s("2 × (1 + 2) = [6]"));
}

void TestKWTableDlgShapes::withoutSidesTheTotalStaysAndCanBeTyped_data()
{
    QTest::addColumn<int>("shape");
    QTest::newRow("circular") << int(KWTable::Circular);
    QTest::newRow("head") << int(KWTable::HeadBottom);
}

void TestKWTableDlgShapes::withoutSidesTheTotalStaysAndCanBeTyped()
{
    QFETCH(int, shape);
    TableDialog dialog(nullptr, &m_plan, KWTable::Rectangular);
    TableDialog::type(dialog.across, 5);
    QCOMPARE(dialog.seats(), s("2 × (5 + 2) = [14]"));
    GuestForm::pick(dialog.shape, qPrintable(dialog.shape->itemText(shape)));
    QCOMPARE(dialog.seats(), s("14"));
    QCOMPARE(dialog.total->buttonSymbols(), QSpinBox::UpDownArrows);
    TableDialog::type(dialog.total, 11);
    QCOMPARE(dialog.seats(), s("11"));
}

void TestKWTableDlgShapes::theSameShapeAgainChangesNothing_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QString>("seats");
    QTest::newRow("circular") << int(KWTable::Circular) << s("9");
    QTest::newRow("rectangular") << int(KWTable::Rectangular) << s("2 × (5 + 2) = [14]");
    QTest::newRow("custom") << int(KWTable::Custom) << s("5 + 2 + 2 + 2 = [11]");
}

void TestKWTableDlgShapes::theSameShapeAgainChangesNothing()
{
    QFETCH(int, shape);
    QFETCH(QString, seats);
    TableDialog dialog(nullptr, &m_plan, shape);
    TableDialog::type(dialog.across, 5);
    if (shape == KWTable::Circular)
        TableDialog::type(dialog.total, 9);
    GuestForm::pick(dialog.shape, qPrintable(dialog.shape->itemText(shape)));
    QCOMPARE(dialog.seats(), seats);
}

void TestKWTableDlgShapes::theTotalFollowsTheSides()
{
    TableDialog rectangle(nullptr, &m_plan, KWTable::Rectangular);
    TableDialog::type(rectangle.across, 3);
    QCOMPARE(rectangle.total->value(), 10);
    TableDialog::type(rectangle.down, 0);
    QCOMPARE(rectangle.total->value(), 6);

    TableDialog custom(nullptr, &m_plan, KWTable::Custom);
    int expected = 8;
    for (QSpinBox *side : {custom.across, custom.down, custom.across2, custom.down2}) {
        TableDialog::type(side, 25);
        expected += 23;
        QCOMPARE(custom.total->value(), expected);
    }
}

void TestKWTableDlgShapes::aTotalOfSidesCannotBeTyped()
{
    for (const int shape : {KWTable::Rectangular, KWTable::Custom}) {
        TableDialog dialog(nullptr, &m_plan, shape);
        TableDialog::type(dialog.total, 50);
        QTest::keyClick(dialog.total, Qt::Key_Up);
        QCOMPARE(dialog.total->value(), 8);
        QCOMPARE(dialog.total->buttonSymbols(), QSpinBox::NoButtons);
        QCOMPARE(dialog.total->palette().base().color(), dialog.palette().window().color());
    }
}

void TestKWTableDlgShapes::theKeysPassByATotalThatCannotBeTyped()
{
    TableDialog dialog(nullptr, &m_plan, KWTable::Rectangular);
    QVERIFY(showActive(dialog));
    dialog.down->setFocus();
    QTest::keyClick(dialog.down, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), dialog.tables);
    QTest::mouseClick(dialog.total->findChild<QLineEdit *>(), Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), dialog.tables);
    dialog.shapeSelected(KWTable::Circular);
    QTest::keyClick(dialog.tables, Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), dialog.total);
}

void TestKWTableDlgShapes::aReaderIsToldWhichSideABoxIsFor()
{
    const auto names = [](const TableDialog &dialog) {
        QStringList shown;
        for (const QSpinBox *box : {dialog.across, dialog.down, dialog.across2, dialog.down2}) {
            if (box->isVisibleTo(&dialog))
                shown.append(box->accessibleName());
        }
        return shown;
    };
    const TableDialog custom(nullptr, &m_plan, KWTable::Custom);
    QCOMPARE(names(custom), QStringList({s("Seats at the top"), s("Seats at the right"),
                                         s("Seats at the bottom"), s("Seats at the left")}));
    const TableDialog rectangular(nullptr, &m_plan, KWTable::Rectangular);
    QCOMPARE(names(rectangular), QStringList({s("Seats at the top, and as many at the bottom"),
                                              s("Seats at the right, and as many at the left")}));
}

void TestKWTableDlgShapes::eachShapeHasItsPicture()
{
    const TableDialog dialog(nullptr, &m_plan, KWTable::Circular);
    for (int shape = KWTable::Circular; shape <= KWTable::Custom; ++shape)
        QCOMPARE(dialog.shape->itemIcon(shape).pixmap(16).toImage(),
                 KWPixmaps::instance().table(shape).toImage());
}

void TestKWTableDlgShapes::arrowKeysChangeTheShapeToo()
{
    TableDialog dialog(nullptr, &m_plan, KWTable::Circular);
    QVERIFY(showActive(dialog));
    dialog.shape->setFocus();
    QTest::keyClick(dialog.shape, Qt::Key_Down);
    QCOMPARE(dialog.seats(), s("2 × (2 + 2) = [8]"));
    QVERIFY(dialog.shape->hasFocus());
    QTest::keyClick(dialog.shape, Qt::Key_End);
    QCOMPARE(dialog.seats(), s("2 + 2 + 2 + 2 = [8]"));
}

void TestKWTableDlgShapes::aNewShapeHasItsCaption()
{
    TableDialog dialog(nullptr, &m_plan, KWTable::Circular);
    QStringList captions;
    for (const char *shape : {"Head (seats at left)", "Custom", "rectangular", "circular"}) {
        GuestForm::pick(dialog.shape, shape);
        captions.append(dialog.windowTitle());
    }
    QCOMPARE(captions, (QStringList{s("Insert head table"), s("Insert custom table"),
                                    s("Insert rectangular table"), s("Insert circular table")}));
}

void TestKWTableDlgShapes::aPickMovesTheFocusToTheFirstNumber_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("seats");
    QTest::newRow("rectangular") << int(KWTable::Circular) << s("rectangular")
                                 << s("2 × (9 + 2) = [22]");
    QTest::newRow("custom") << int(KWTable::HeadTop) << s("Custom") << s("9 + 2 + 2 + 2 = [15]");
    QTest::newRow("circular") << int(KWTable::Rectangular) << s("circular") << s("9");
    QTest::newRow("head") << int(KWTable::Custom) << s("Head (seats at left)") << s("9");
    QTest::newRow("the same") << int(KWTable::Circular) << s("circular") << s("9");
}

void TestKWTableDlgShapes::aPickMovesTheFocusToTheFirstNumber()
{
    QFETCH(int, from);
    QFETCH(QString, to);
    QFETCH(QString, seats);
    TableDialog dialog(nullptr, &m_plan, from);
    QVERIFY(showActive(dialog));
    dialog.shape->setFocus();
    GuestForm::pick(dialog.shape, qPrintable(to));
    QSpinBox *first = seats.contains(u'=') ? dialog.across : dialog.total;
    // Nobody gives the keys back to the dialog here when the list is gone.
    QTRY_COMPARE(dialog.focusWidget(), first);
    // The number is selected, to be typed over.
    QTest::keyClicks(first, s("9"));
    QCOMPARE(dialog.seats(), seats);
}

void TestKWTableDlgShapes::theLineTellsTheSeatsForTheGuests()
{
    KWDocument plan;
    addGuests(plan, 30);
    addTable(plan, "T", KWTable::Circular, 6);
    TableDialog dialog(nullptr, &plan, KWTable::Circular);
    QCOMPARE(dialog.line->text(), s("giving a total of 14 seats for 30 guests"));
    TableDialog::type(dialog.tables, 3);
    QCOMPARE(dialog.line->text(), s("giving a total of 30 seats for 30 guests"));
    TableDialog::type(dialog.total, 10);
    QCOMPARE(dialog.line->text(), s("giving a total of 36 seats for 30 guests"));
    TableDialog::type(dialog.tables, 999);
    TableDialog::type(dialog.total, 100);
    QCOMPARE(dialog.line->text(), s("giving a total of 99906 seats for 30 guests"));
}

void TestKWTableDlgShapes::theLineFollowsSidesAndShapes()
{
    TableDialog dialog(nullptr, &m_plan, KWTable::Rectangular);
    const auto guests = m_plan.guestCount();
    const auto line = [&](int seats) {
        return s("giving a total of %1 seats for %2 guests")
            .arg(seats + m_plan.seatCount())
            .arg(guests);
    };
    QCOMPARE(dialog.line->text(), line(8));
    TableDialog::type(dialog.across, 5);
    QCOMPARE(dialog.line->text(), line(14));
    GuestForm::pick(dialog.shape, "Head (seats at top)");
    TableDialog::type(dialog.total, 9);
    QCOMPARE(dialog.line->text(), line(9));
    GuestForm::pick(dialog.shape, "rectangular");
    QCOMPARE(dialog.line->text(), line(10));
}

REGISTER_TEST(TestKWTableDlgShapes)
#include "tst_kwtabledlg_shapes.moc"
