#include "support/eventlog.h"
#include "support/gui/shownplan.h"
#include "support/registeredtest.h"

#include <QMenu>

// What the mouse does on the floor plan.

namespace {

/// The entries of the menu that comes up while `act` runs, "-" for a separator; empty if none does.
QString menuThatOpens(const std::function<void()> &act)
{
    QStringList entries;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&entries] {
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            for (const QAction *action : menu->actions())
                entries.append(action->isSeparator() ? s("-") : action->text());
            menu->close();
        }
    });
    look.start(0);
    act();
    return entries.join(u' ');
}

void nameActions(FakeMainWindow &window)
{
    using Window = KWMainWindow;
    window.editAction(Window::EditProperties)->setText(s("properties"));
    window.editAction(Window::RotateTable)->setText(s("rotate"));
    window.editAction(Window::Lock)->setText(s("lock"));
    window.editAction(Window::Unassign)->setText(s("unassign"));
    window.editAction(Window::Delete)->setText(s("delete"));
}
} // namespace

class TestKWCanvasViewMouse : public QObject
{
    Q_OBJECT

private slots:
    void aPressSelectsWhatIsOnTop()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.click(shown.placeOf(table));
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfTable(table));
        shown.click(shown.placeOf(table, 1));
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfSeat(table, 1));
        // The bare floor is the room.
        shown.click(shown.placeOf(QPointF(1900, 1500)));
        QCOMPARE(shown.canvas.selected()->type(), int(KWRoomCanvasViewItem::Type));
        shown.click(shown.placeOf(QPointF(2300, 1500)));
        QCOMPARE(shown.canvas.selected(), nullptr);
        QCOMPARE(shown.window.currentView, &shown.view);
    }

    void theCanvasStandsAtTheTopLeftOfALargerView()
    {
        ShownPlan shown;
        QCOMPARE(shown.placeOf(QPointF(0, 0)), QPoint(0, 0));
        QCOMPARE(shown.placeOf(QPointF(1000, 500)), QPoint(300, 150));
    }

    void aTableIsMovedWithItsSeatsAndLandsWithTheRelease()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.plan.setModified(false);
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(30, 0));
        shown.moveTo(start + QPoint(60, 30));
        // Nothing goes to the plan yet.
        QCOMPARE(table->position(), QPoint(600, 500));
        QVERIFY(!shown.plan.isModified());
        shown.release(Qt::LeftButton, start + QPoint(60, 30));
        QCOMPARE(table->position(), QPoint(800, 600));
        QCOMPARE(shown.canvas.itemOfSeat(table, 0)->pos(), QPointF(800, 475));
        QVERIFY(shown.plan.isModified());
        // There is no undo for it.
        QCOMPARE(shown.window.undoLabels, QStringList());
    }

    void aClickOnATableChangesNothing()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.plan.setModified(false);
        shown.click(shown.placeOf(table));
        QVERIFY(!shown.plan.isModified());
    }

    void aTableDoesNotFollowThePointerOffTheCanvas()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(shown.placeOf(QPointF(2100, 500)));
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(600, 500));
        shown.moveTo(shown.placeOf(QPointF(1000, 500)));
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(1000, 500));
    }

    void escapePutsATableBackWhileItIsMoved()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        QTest::keyClick(&shown.view, Qt::Key_Escape);
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(600, 500));
        shown.moveTo(start + QPoint(90, 30));
        shown.release(Qt::LeftButton, start + QPoint(90, 30));
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(600, 500));
        QCOMPARE(table->position(), QPoint(600, 500));
        QCOMPARE(shown.canvas.itemOfSeat(table, 0)->pos(), QPointF(600, 375));
    }

    void aCommandOfAKeyFindsTheTableWhereItIsSeen()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        QTest::keyClick(&shown.view, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(table->position(), QPoint(800, 600));
        // The move goes on, and Escape does not take back what the command saw.
        shown.moveTo(start + QPoint(90, 30));
        QTest::keyClick(&shown.view, Qt::Key_Escape);
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(800, 600));
        shown.release(Qt::LeftButton, start + QPoint(90, 30));
        QCOMPARE(table->position(), QPoint(800, 600));
    }

    void keysThatAreHeldWithOthersDoNotLandATable()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta})
            QTest::keyClick(&shown.view, key);
        QCOMPARE(table->position(), QPoint(600, 500));
        QTest::keyClick(&shown.view, Qt::Key_Escape);
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(600, 500));
    }

    void aTableLandsBeforeItsWindowIsClosed()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.plan.setModified(false);
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        shown.view.window()->close();
        QCOMPARE(table->position(), QPoint(800, 600));
        QVERIFY(shown.plan.isModified());
    }

    void aSecondPressLandsATable()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        EventLog log(shown.plan);
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        QCOMPARE(log.take(), QStringList());
        shown.press(Qt::RightButton, start + QPoint(60, 30));
        QCOMPARE(table->position(), QPoint(800, 600));
        // So that it counts for the next backup.
        QCOMPARE(log.take(), QStringList{s("eventModified()")});
    }

    void otherButtonsMoveNothing_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::newRow("middle") << int(Qt::MiddleButton);
        QTest::newRow("back") << int(Qt::BackButton);
        QTest::newRow("left and right") << int(Qt::LeftButton | Qt::RightButton);
    }

    void otherButtonsMoveNothing()
    {
        QFETCH(int, buttons);
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0);
        for (const QPoint &start : {shown.placeOf(table), shown.placeOf(table, 0)}) {
            shown.press(Qt::LeftButton, start);
            shown.moveTo(start + QPoint(60, 30), Qt::MouseButtons(buttons));
        }
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(600, 500));
        QCOMPARE(shown.view.drags, QStringList());
    }

    void theMenuKeyOpensTheMenuOfWhatIsSelectedWithinTheView()
    {
        ShownPlan shown;
        nameActions(shown.window);
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const auto menuByKey = [&] {
            return menuThatOpens([&] {
                QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
                QCoreApplication::sendEvent(shown.view.viewport(), &key);
            });
        };
        QCOMPARE(menuByKey(), QString());
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        shown.window.currentView = nullptr;
        QCOMPARE(menuByKey(), s("properties rotate lock - delete"));
        QCOMPARE(shown.window.currentView, &shown.view);
        shown.canvas.setSelected(shown.canvas.itemOfSeat(table, 0));
        QCOMPARE(menuByKey(), s("properties - lock unassign"));
        // The mouse's own is the release's affair.
        QContextMenuEvent mouse(QContextMenuEvent::Mouse, QPoint(1, 1), QPoint(1, 1));
        QCOMPARE(menuThatOpens([&] { QCoreApplication::sendEvent(shown.view.viewport(), &mouse); }),
                 QString());
        shown.view.viewport()->resize(0, 0);
        QCOMPARE(menuByKey(), s("properties - lock unassign"));
    }

    void aTableThatComesBackToItsPlaceChangesNothing()
    {
        ShownPlan shown;
        // Squeezed into the room, but not in the plan.
        KWTable *table = shown.table("T", KWTable::Circular, 4, {3000, 500});
        shown.canvas.resizeToRoom();
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(2000, 500));
        shown.plan.setModified(false);
        EventLog log(shown.plan);
        const QPoint start = shown.placeOf(QPointF(1950, 500));
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start);
        shown.moveTo(start - QPoint(20, 0));
        shown.moveTo(start);
        shown.release(Qt::LeftButton, start);
        QCOMPARE(table->position(), QPoint(3000, 500));
        QVERIFY(!shown.plan.isModified());
        QCOMPARE(log.take(), QStringList());
    }

    void aTableLandsWhereTheFocusGoesAndEscapeKeepsItThere()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(&shown.view, &out);
        QCOMPARE(table->position(), QPoint(800, 600));
        shown.moveTo(start + QPoint(90, 30));
        QTest::keyClick(&shown.view, Qt::Key_Escape);
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(800, 600));
    }

    void aReleaseThatWentElsewhereLandsTheTable()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        shown.moveTo(start + QPoint(200, 100), Qt::NoButton);
        QCOMPARE(table->position(), QPoint(800, 600));
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(800, 600));
    }

    void aTableLandsBeforeAnotherIsShown()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        KWTable *other = shown.table("U", KWTable::Circular, 4, {1300, 900});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        shown.view.showTable(other);
        QCOMPARE(table->position(), QPoint(800, 600));
        QTest::keyClick(&shown.view, Qt::Key_Escape);
        QCOMPARE(other->position(), QPoint(1300, 900));
        QCOMPARE(shown.canvas.itemOfTable(other)->pos(), QPointF(1300, 900));
    }

    void aRightDoubleClickOpensNoDialog()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.click(shown.placeOf(table));
        QTest::mouseDClick(shown.view.viewport(), Qt::RightButton, {}, shown.placeOf(table));
        QCOMPARE(shown.window.edited, QStringList());
    }

    void theRightButtonMovesNothing()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::RightButton, start);
        shown.moveTo(start + QPoint(60, 30), Qt::RightButton);
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(600, 500));
    }

    void aGuestIsDraggedOnceThePressIsFarAndTheLengthsDifferByMoreThanFive()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0);
        shown.view.setZoom(1 / shown.view.zoom());
        const QPointF centre = shown.canvas.itemOfSeat(table, 0)->pos();
        const auto place = [&](double dx, double dy) {
            return shown.placeOf(centre + QPointF(dx, dy));
        };
        shown.press(Qt::LeftButton, place(0, 0));
        // What x gains y loses: the lengths stay the same.
        shown.moveTo(place(40, -40));
        const int far = QApplication::startDragDistance();
        shown.moveTo(place(far, 0));
        shown.moveTo(place(-far, 0));
        QCOMPARE(shown.view.drags, QStringList());
        shown.moveTo(place(far + 1, 0));
        QCOMPARE(shown.view.drags, QStringList{s("Ann")});
        // One press starts one drag.
        shown.moveTo(place(30, 0));
        QCOMPARE(shown.view.drags.size(), 1);
        shown.release(Qt::LeftButton, place(30, 0));
    }

    void aTremorBesideTheMiddleOfASeatDragsNobody()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0);
        shown.seat("Bob", table, 1, true);
        shown.view.setZoom(1 / shown.view.zoom());
        for (int seat = 0; seat < 2; ++seat) {
            const QPoint start = shown.placeOf(table, seat) + QPoint(15, 0);
            shown.press(Qt::LeftButton, start);
            shown.moveTo(start + QPoint(1, 0));
            shown.release(Qt::LeftButton, start + QPoint(1, 0));
        }
        QCOMPARE(shown.view.drags, QStringList());
    }

    void aDragStartsWhereTheLengthsDifferByMoreThanFive()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0);
        shown.view.setZoom(1 / shown.view.zoom());
        const QPointF centre = shown.canvas.itemOfSeat(table, 0)->pos();
        // Far from the press, but about as far from the origin as the middle of the seat.
        shown.press(Qt::LeftButton, shown.placeOf(centre + QPointF(-20, 0)));
        shown.moveTo(shown.placeOf(centre + QPointF(5, 0)));
        QCOMPARE(shown.view.drags, QStringList());
        shown.moveTo(shown.placeOf(centre + QPointF(6, 0)));
        QCOMPARE(shown.view.drags, QStringList{s("Ann")});
    }

    void anEmptySeatIsNotDragged()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table, 0);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(40, 0));
        QCOMPARE(shown.view.drags, QStringList());
    }

    void aLockedGuestIsReportedAndNotDragged()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 0, true);
        shown.prompts.answer(s("&OK"));
        const QPoint start = shown.placeOf(table, 0);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(40, 0));
        shown.moveTo(start + QPoint(60, 0));
        QCOMPARE(shown.prompts.texts(), QStringList{s("Guest 'Ann' is locked")});
        QCOMPARE(shown.view.drags, QStringList());
    }

    void theMenuBelongsToWhatTheRightClickHit()
    {
        ShownPlan shown;
        nameActions(shown.window);
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const auto menuAt = [&](const QPoint &place) {
            return menuThatOpens([&] {
                shown.press(Qt::RightButton, place);
                shown.release(Qt::RightButton, place);
            });
        };
        QCOMPARE(menuAt(shown.placeOf(table)), s("properties rotate lock - delete"));
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfTable(table));
        QCOMPARE(menuAt(shown.placeOf(table, 2)), s("properties - lock unassign"));
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfSeat(table, 2));
        QCOMPARE(menuAt(shown.placeOf(QPointF(1900, 1500))), QString());
        QCOMPARE(menuAt(shown.placeOf(QPointF(2300, 1500))), QString());
    }

    void aDoubleClickOpensTheDialogOfTheTableOrTheGuest()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.seat("Ann", table, 1);
        for (const QPoint &place : {shown.placeOf(table), shown.placeOf(table, 1),
                                    shown.placeOf(table, 2), shown.placeOf(QPointF(1900, 1500))}) {
            shown.click(place);
            QTest::mouseDClick(shown.view.viewport(), Qt::LeftButton, {}, place);
        }
        QCOMPARE(shown.window.edited, (QStringList{s("table T"), s("guest Ann")}));
    }

    void whatIsUnderAClearedPlanIsForgotten()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(60, 30));
        shown.plan.clear();
        shown.moveTo(start + QPoint(90, 30));
        shown.release(Qt::LeftButton, start);
        QCOMPARE(shown.plan.tableCount(), 0);
    }
};

REGISTER_TEST(TestKWCanvasViewMouse)
#include "tst_kwcanvasview_mouse.moc"
