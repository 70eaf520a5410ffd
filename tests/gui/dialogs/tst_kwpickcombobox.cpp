#include "gui/dialogs/kwpickcombobox.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// Three entries on the screen.
struct Combo : KWPickComboBox
{
    explicit Combo(bool editable)
    {
        setEditable(editable);
        addItems({s("Undefined"), s("Male"), s("Female")});
        show();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("no keys");
        setFocus();
    }

    QWidget *keys() { return isEditable() ? static_cast<QWidget *>(lineEdit()) : this; }

    void openList()
    {
        QTest::keyClick(keys(), Qt::Key_Down, Qt::AltModifier);
        if (!QTest::qWaitFor([this] { return view()->isVisible(); }))
            qFatal("no list");
    }

    void clickEntry(int index)
    {
        const QRect place = view()->visualRect(model()->index(index, 0));
        QTest::mouseMove(view()->viewport(), place.center());
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, place.center());
    }

    QSignalSpy chosen{this, &QComboBox::activated};
    QSignalSpy picks{this, &KWPickComboBox::picked};
};

void kindRows()
{
    QTest::addColumn<bool>("editable");
    QTest::newRow("fixed") << false;
    QTest::newRow("editable") << true;
}
} // namespace

class TestKWPickComboBox : public QObject
{
    Q_OBJECT

private slots:
    void aClickInTheOpenListIsAPick_data() { kindRows(); }

    void aClickInTheOpenListIsAPick()
    {
        QFETCH(bool, editable);
        Combo combo(editable);
        combo.openList();
        combo.clickEntry(2);
        QCOMPARE(combo.currentText(), s("Female"));
        QCOMPARE(combo.picks, (QList<QVariantList>{{2}}));
        QVERIFY(!combo.view()->isVisible());
    }

    void theEntryThatWasChosenBeforeCanBePickedAgain_data() { kindRows(); }

    void theEntryThatWasChosenBeforeCanBePickedAgain()
    {
        QFETCH(bool, editable);
        Combo combo(editable);
        combo.openList();
        combo.clickEntry(0);
        QCOMPARE(combo.picks, (QList<QVariantList>{{0}}));
    }

    void returnInTheOpenListIsAPick_data() { kindRows(); }

    void returnInTheOpenListIsAPick()
    {
        QFETCH(bool, editable);
        Combo combo(editable);
        combo.openList();
        QTest::keyClick(combo.view(), Qt::Key_Down);
        QCOMPARE(combo.picks.count(), 0);
        QTest::keyClick(combo.view(), Qt::Key_Return);
        QCOMPARE(combo.picks, (QList<QVariantList>{{1}}));
    }

    void arrowKeysInAClosedBoxPickNothing_data() { kindRows(); }

    void arrowKeysInAClosedBoxPickNothing()
    {
        QFETCH(bool, editable);
        Combo combo(editable);
        QTest::keyClick(combo.keys(), Qt::Key_Down);
        QCOMPARE(combo.currentText(), s("Male"));
        QCOMPARE(combo.chosen.count(), 1);
        QCOMPARE(combo.picks.count(), 0);
    }

    void theWheelOverAClosedBoxPicksNothing()
    {
        Combo combo(false);
        const QPointF place(combo.rect().center());
        QWheelEvent wheel(place, combo.mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &wheel);
        QCOMPARE(combo.currentText(), s("Male"));
        QCOMPARE(combo.chosen.count(), 1);
        QCOMPARE(combo.picks.count(), 0);
    }

    void theWheelPassesOverABoxWithoutTheFocus()
    {
        Combo combo(false);
        QCOMPARE(combo.focusPolicy(), Qt::StrongFocus);
        combo.clearFocus();
        const QPointF place(combo.rect().center());
        QWheelEvent wheel(place, combo.mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &wheel);
        QVERIFY(!wheel.isAccepted());
        QCOMPARE(combo.currentText(), s("Undefined"));
    }

    void aBoxThatIsHiddenMakesNoListForThat()
    {
        Combo combo(false);
        combo.hide();
        QVERIFY(combo.findChildren<QAbstractItemView *>().isEmpty());
    }

    void anArrowKeyBehindAListLeftByEscPicksNothing()
    {
        Combo combo(false);
        combo.openList();
        QTest::keyClick(combo.view(), Qt::Key_Escape);
        QTRY_VERIFY(!combo.view()->isVisible());
        QCoreApplication::processEvents();
        QTest::keyClick(&combo, Qt::Key_Down);
        QCOMPARE(combo.chosen.count(), 1);
        QCOMPARE(combo.picks.count(), 0);
    }

    void whatTheProgramSetsIsNoPick()
    {
        Combo combo(false);
        combo.setCurrentIndex(2);
        QCOMPARE(combo.chosen.count(), 0);
        QCOMPARE(combo.picks.count(), 0);
    }
};

REGISTER_TEST(TestKWPickComboBox)
#include "tst_kwpickcombobox.moc"
