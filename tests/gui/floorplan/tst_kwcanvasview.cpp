#include "support/eventlog.h"
#include "support/gui/dialogtest.h"
#include "support/gui/modaluser.h"
#include "support/gui/shownplan.h"
#include "support/registeredtest.h"

#include <QClipboard>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

QString answers(KWCanvasView &view)
{
    QStringList yes;
    const auto note = [&yes](bool answer, const char *name) {
        if (answer)
            yes.append(s(name));
    };
    note(view.canDelete(), "delete");
    note(view.canEditProperties(), "edit");
    note(view.canUnassign(), "unassign");
    note(view.canSetLocked(), "lock");
    note(view.isLocked(), "locked");
    note(view.canRotate(), "rotate");
    note(view.canSetAccepted() || view.hasAccepted(), "accept");
    note(view.canSetAffinity(), "proximity");
    note(view.canCopy(), "copy");
    return yes.join(u' ');
}

void turnWheel(QWidget *viewport, int turn, Qt::KeyboardModifiers modifiers)
{
    const QPointF place(50, 50);
    QWheelEvent wheel(place, viewport->mapToGlobal(place), {}, {0, turn}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(viewport, &wheel);
}
} // namespace

class TestKWCanvasView : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void theViewSaysWhatItIs()
    {
        ShownPlan shown;
        QCOMPARE(shown.view.toolTip(), s("Floor plan pane"));
        QCOMPARE(
            shown.view.whatsThis(),
            s("<b>Floor plan pane</b><br/>Displays an aerial view of table, seats and assigned "
              "guests. You can drag tables and drag guests between seats. Guests can be "
              "dragged to seats or tables from the <b>Guests</b> or <b>Groups</b> panes. "));
        QCOMPARE(shown.view.zoom(), 0.3);
    }

    void theCommandsFollowTheSelectedItem()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        KWTable *empty = shown.table("E", KWTable::Circular, 4, {1300, 500});
        shown.seat("Ann", table, 0);
        KWGuest *bob = shown.seat("Bob", table, 1, true);
        const auto of = [&shown](QGraphicsItem *item) {
            shown.canvas.setSelected(item);
            return answers(shown.view);
        };
        QCOMPARE(of(nullptr), s("copy"));
        QCOMPARE(of(shown.canvas.itemAtPoint({1900, 1500})), s("copy"));
        QCOMPARE(of(shown.canvas.itemOfSeat(table, 0)), s("edit unassign lock copy"));
        QCOMPARE(of(shown.canvas.itemOfSeat(table, 1)), s("edit lock locked copy"));
        QCOMPARE(of(shown.canvas.itemOfSeat(table, 2)), s("copy"));
        QCOMPARE(of(shown.canvas.itemOfTable(table)), s("delete edit lock rotate copy"));
        QCOMPARE(of(shown.canvas.itemOfTable(empty)), s("delete edit rotate copy"));
        shown.plan.setGuestLocked(shown.plan.guestAt(0), true);
        QCOMPARE(of(shown.canvas.itemOfTable(table)), s("delete edit lock locked rotate copy"));
        QVERIFY(bob->isLocked());
    }

    void lockAndUnassignGoToTheGuestOrTheTable()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        KWGuest *ann = shown.seat("Ann", table, 0);
        KWGuest *bob = shown.seat("Bob", table, 1);
        shown.canvas.setSelected(shown.canvas.itemOfSeat(table, 0));
        shown.view.setLocked(true);
        QVERIFY(ann->isLocked() && !bob->isLocked());
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        shown.view.setLocked(true);
        QVERIFY(ann->isLocked() && bob->isLocked());
        shown.view.setLocked(false);
        QVERIFY(!ann->isLocked() && !bob->isLocked());
        EventLog log(shown.plan);
        shown.canvas.setSelected(shown.canvas.itemOfSeat(table, 0));
        shown.view.unassign();
        QCOMPARE(seating(*table), s("- Bob - -"));
        QCOMPARE(log.take().count(s("eventScoreChange()")), 1);
    }

    void rotatingAHeadTableFourTimesGivesTheFirstLayoutAndNobodyChangesSeat()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 3, {600, 500});
        shown.seat("Ann", table, 1);
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        const auto first = shown.canvas.itemOfSeat(table, 0)->pos();
        shown.view.rotate();
        QCOMPARE(table->shape(), int(KWTable::HeadRight));
        QVERIFY(shown.canvas.itemOfSeat(table, 0)->pos() != first);
        for (int i = 0; i < 3; ++i)
            shown.view.rotate();
        QCOMPARE(shown.canvas.itemOfSeat(table, 0)->pos(), first);
        QCOMPARE(seating(*table), s("- Ann -"));
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfTable(table));
    }

    void aTableWithALockedGuestIsNotDeleted()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0, true);
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        shown.prompts.answer(s("&OK"));
        shown.view.deleteSelection();
        QCOMPARE(shown.prompts.texts(),
                 QStringList{s("You must unlock all the locked guests before you can delete this "
                               "table")});
        QCOMPARE(shown.plan.tableCount(), 1);
    }

    void deletingATableAsksFirst_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("tables");
        QTest::newRow("yes") << 0 << 0;
        QTest::newRow("no") << 1 << 1;
    }

    void deletingATableAsksFirst()
    {
        QFETCH(int, button);
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        ModalUser user;
        QString question;
        user.onDialog<QDialog>([&](QDialog &dialog) {
            for (const auto *label : dialog.findChildren<QLabel *>())
                question += label->text();
            dialog.findChildren<QPushButton *>().at(button)->click();
        });
        shown.view.deleteSelection();
        QVERIFY2(question.contains(s("Delete table?")), qPrintable(question));
        QTEST(shown.plan.tableCount(), "tables");
        QCOMPARE(shown.canvas.selected() != nullptr, shown.plan.tableCount() > 0);
    }

    void aTableIsDeletedWithItsSeats()
    {
        ShownPlan shown;
        shown.window.userSettings()->setValue(u"warning/delete_table", false);
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0);
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        shown.view.deleteSelection();
        QCOMPARE(shown.plan.tableCount(), 0);
        QCOMPARE(shown.canvas.items().size(), 1);
        QCOMPARE(shown.canvas.selected(), nullptr);
    }

    void aGuestIsShownInTheMiddleAndSelected()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {1000, 800});
        KWGuest *ann = shown.seat("Ann", table, 0);
        shown.view.setZoom(10);
        shown.view.showGuest(ann);
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfSeat(table, 0));
        const QPoint way = shown.placeOf(table, 0) - shown.view.viewport()->rect().center();
        QVERIFY(way.manhattanLength() <= 2);
        shown.view.showGuest(addGuest(shown.plan, {"Bob"}));
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfSeat(table, 0));
    }

    void zoomGoesInStepsAboutTheMiddleAndSaysSo()
    {
        ShownPlan shown;
        shown.table("T", KWTable::Circular, 4, {1000, 800});
        shown.view.setZoom(10 / 3.0);
        shown.view.centerOn(1000, 800);
        const QPointF middle = shown.view.centre();
        shown.window.statusMessages.clear();
        shown.view.zoomIn();
        QCOMPARE(shown.window.statusMessages, QStringList{s("Zoom to x1.30")});
        shown.view.zoomOut();
        QCOMPARE(shown.window.statusMessages.last(), s("Zoom to x1.00"));
        const QPointF way = shown.view.centre() - middle;
        QVERIFY(way.manhattanLength() <= 4);
        QVERIFY(shown.view.updatesEnabled());
        QVERIFY(!QApplication::overrideCursor());
    }

    void zoomingInEndsOnceTheScaleHasReachedThree()
    {
        ShownPlan shown;
        int steps = 0;
        while (shown.view.canZoomIn() && ++steps < 100)
            shown.view.zoomIn();
        QVERIFY(shown.view.zoom() >= 3 && shown.view.zoom() < 3 * 1.3);
    }

    void zoomingOutEndsAtTheFitOfTheCanvas()
    {
        ShownPlan shown;
        int steps = 0;
        while (shown.view.canZoomOut() && ++steps < 100)
            shown.view.zoomOut();
        QVERIFY(steps < 100);
        QVERIFY(2000 * shown.view.zoom() <= shown.view.maximumViewportSize().width());
        QVERIFY(2000 * shown.view.zoom() * 1.31 > shown.view.maximumViewportSize().width() ||
                1600 * shown.view.zoom() * 1.31 > shown.view.maximumViewportSize().height());
    }

    void theCentreShowsAllTablesAsLargeAsTheyFit()
    {
        ShownPlan shown;
        shown.table("A", KWTable::Circular, 4, {400, 300});
        shown.table("B", KWTable::Circular, 4, {1600, 900});
        shown.view.zoomCentre();
        const QRectF bounds = shown.canvas.itemBounds(0);
        const QRect seen = shown.view.mapFromScene(bounds).boundingRect();
        QVERIFY(shown.view.viewport()->rect().adjusted(-2, -2, 2, 2).contains(seen));
        QVERIFY(seen.width() > 750 || seen.height() > 550);
    }

    void withoutTablesTheCentreIsTheRoomAtTheFirstScale()
    {
        ShownPlan shown;
        shown.view.setZoom(5);
        shown.view.zoomCentre();
        QCOMPARE(shown.view.zoom(), 0.3);
    }

    void aFittedPlanStaysFittedUntilTheUserZoomsOrScrolls_data()
    {
        QTest::addColumn<QString>("act");
        QTest::addColumn<bool>("staysFitted");
        QTest::newRow("nothing") << s("nothing") << true;
        QTest::newRow("zoom") << s("zoom") << false;
        QTest::newRow("scroll") << s("scroll") << false;
        QTest::newRow("show a guest") << s("show") << false;
        // Or unfolding the panel after the first table of a new plan would jump to it.
        QTest::newRow("another table") << s("table") << false;
    }

    void aFittedPlanStaysFittedUntilTheUserZoomsOrScrolls()
    {
        QFETCH(QString, act);
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 10, {1000, 800});
        KWGuest *ann = shown.seat("Ann", table, 0);
        shown.view.zoomCentre();
        const double fitted = shown.view.zoom();
        if (act == u"zoom")
            shown.view.zoomIn();
        else if (act == u"scroll")
            shown.view.horizontalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
        else if (act == u"show")
            shown.view.selectGuest(ann);
        else if (act == u"table")
            shown.table("U", KWTable::HeadTop, 2, {1700, 1500});
        const double before = shown.view.zoom();
        shown.view.resize(500, 600);
        QFETCH(bool, staysFitted);
        QCOMPARE(shown.view.zoom() < before, staysFitted);
        if (staysFitted) {
            QVERIFY(shown.view.zoom() < fitted);
            QVERIFY((shown.view.centre() - shown.canvas.itemBounds(0).center()).manhattanLength() <
                    3 / shown.view.zoom());
        }
    }

    void ctrlAndTheWheelZoomWithinTheLimits()
    {
        ShownPlan shown;
        turnWheel(shown.view.viewport(), 120, Qt::ControlModifier);
        QCOMPARE(shown.view.zoom(), 0.3 * 1.3);
        turnWheel(shown.view.viewport(), 120, Qt::NoModifier);
        QCOMPARE(shown.view.zoom(), 0.3 * 1.3);
        for (int i = 0; i < 50; ++i)
            turnWheel(shown.view.viewport(), 120, Qt::ControlModifier);
        QVERIFY(shown.view.zoom() < 3 * 1.3);
        for (int i = 0; i < 50; ++i)
            turnWheel(shown.view.viewport(), -120, Qt::ControlModifier);
        QVERIFY(shown.view.zoom() > 0.2);
    }

    void partsOfANotchOfTheWheelAddUpToAStep()
    {
        ShownPlan shown;
        for (int i = 0; i < 7; ++i)
            turnWheel(shown.view.viewport(), 15, Qt::ControlModifier);
        QCOMPARE(shown.view.zoom(), 0.3);
        turnWheel(shown.view.viewport(), 15, Qt::ControlModifier);
        QCOMPARE(shown.view.zoom(), 0.3 * 1.3);
        // The other way begins anew.
        turnWheel(shown.view.viewport(), 105, Qt::ControlModifier);
        turnWheel(shown.view.viewport(), -105, Qt::ControlModifier);
        QCOMPARE(shown.view.zoom(), 0.3 * 1.3);
        turnWheel(shown.view.viewport(), -15, Qt::ControlModifier);
        QCOMPARE(shown.view.zoom(), 0.3 * 1.3 * 0.769231);
    }

    void theTextsFollowTheLanguage()
    {
        ShownPlan shown;
        const BracketTranslator brackets;
        QTRY_COMPARE(shown.view.toolTip(), s("[Floor plan pane]"));
        QVERIFY(shown.view.whatsThis().startsWith(u'['));
    }

    void theKeyboardFocusMakesTheViewActive()
    {
        ShownPlan shown;
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(&shown.view, &out);
        shown.window.currentView = nullptr;
        QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&shown.view, &in);
        QCOMPARE(shown.window.currentView, &shown.view);
    }

    void aTipTellsOfASeatOrATable()
    {
        ShownPlan shown;
        KWTable *table = shown.table("Top", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0);
        const auto tipAt = [&shown](const QPoint &place) {
            QToolTip::hideText();
            QHelpEvent help(QEvent::ToolTip, place, shown.view.viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(shown.view.viewport(), &help);
            return QToolTip::text();
        };
        QCOMPARE(tipAt(shown.placeOf(table)), s("<b>Name:</b> Top"));
        QVERIFY(tipAt(shown.placeOf(table, 0)).startsWith(s("<b>Name:</b> Ann<br/>")));
        // Else what the pane itself says.
        QCOMPARE(tipAt(shown.placeOf(table, 1)), s("Floor plan pane"));
        QCOMPARE(tipAt(shown.placeOf(QPointF(1900, 1500))), s("Floor plan pane"));
        QToolTip::hideText();
    }

    void aCopyGoesToTheClipboard()
    {
        ShownPlan shown;
        shown.table("T", KWTable::HeadTop, 10, {600, 400});
        shown.view.copy();
        QCOMPARE(QApplication::clipboard()->pixmap().size(), QSize(1108, 304));
    }

    void aCopyOfNothingIsReported()
    {
        ShownPlan shown;
        shown.prompts.answer(s("&OK"));
        shown.view.copy();
        QCOMPARE(shown.prompts.texts(),
                 QStringList{s("Unable to copy floor plan to clipboard.\nYou may have insufficient "
                               "memory.\nTry closing some other applications.")});
    }

    void theOrderOfNamesAloneIsNoChangeOfThePlan()
    {
        ShownPlan shown;
        shown.plan.setModified(false);
        shown.view.setNameOrder(7);
        QCOMPARE(shown.canvas.nameOrder(), 7);
        QVERIFY(!shown.plan.isModified());
    }

    void aFontIsKeptButSeatsArePaintedWithThePlans()
    {
        ShownPlan shown;
        KWTable *table = shown.table("Top", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0);
        const QImage before = shown.view.viewport()->grab().toImage();
        const QFont font(s("Courier"), 30);
        shown.view.setSeatFont(font);
        QCOMPARE(shown.canvas.seatFont(), font);
        QCOMPARE(shown.view.viewport()->grab().toImage(), before);
    }
};

REGISTER_TEST(TestKWCanvasView)
#include "tst_kwcanvasview.moc"
