#include "support/eventlog.h"
#include "support/gui/modaluser.h"
#include "support/gui/shownlist.h"
#include "support/registeredtest.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidgetItem>

namespace {

/// A and B sit at a table, B is locked; C and D stand.
struct FourGuests : ShownList
{
    FourGuests()
        : ShownList({s("A"), s("B"), s("C"), s("D")})
    {
        KWTable *table = addTable(plan, "T", KWTable::Circular, 4);
        plan.assignGuest(guest("A"), table, 0, false);
        plan.assignGuest(guest("B"), table, 1, false);
        plan.setGuestLocked(guest("B"), true);
        plan.setGuestAccepted(guest("C"), true);
        plan.recalculateScores();
    }
};

/// What the list answers, the true ones by name.
QString answers(KWView &view)
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
    note(view.canSetAccepted(), "accept");
    note(view.hasAccepted(), "accepted");
    note(view.canSetAffinity(), "proximity");
    note(view.canPrint(), "print");
    note(view.canCopy(), "copy");
    note(view.canRotate(), "rotate");
    return yes.join(u' ');
}
} // namespace

class TestGuestCommands : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void theListAnswersByItsSelection_data()
    {
        using Names = QList<const char *>;
        QTest::addColumn<Names>("guests");
        QTest::addColumn<QString>("yes");
        QTest::newRow("nobody") << Names() << s("");
        QTest::newRow("seated") << Names{"A"} << s("delete edit unassign lock accept");
        QTest::newRow("seated and locked") << Names{"B"} << s("delete edit lock locked accept");
        QTest::newRow("standing") << Names{"D"} << s("delete edit lock accept");
        QTest::newRow("accepted") << Names{"C"} << s("delete edit lock accept accepted");
        QTest::newRow("two, one of them locked")
            << Names{"A", "B"} << s("delete lock accept proximity");
        QTest::newRow("two, one of them standing")
            << Names{"A", "D"} << s("delete lock accept proximity");
        // The first from the top counts.
        QTest::newRow("locked first")
            << Names{"D", "B"} << s("delete lock locked accept proximity");
        QTest::newRow("accepted first")
            << Names{"D", "C"} << s("delete lock accept accepted proximity");
    }

    void theListAnswersByItsSelection()
    {
        FourGuests shown;
        QFETCH(QList<const char *>, guests);
        shown.select(guests);
        QTEST(answers(shown.list), "yes");
    }

    void twoSeatedGuestsCanBeUnassigned()
    {
        FourGuests shown;
        shown.plan.setGuestLocked(shown.guest("B"), false);
        shown.select({"A", "B"});
        QVERIFY(shown.list.canUnassign());
    }

    void aRowThatIsNoGuestsStandsInTheWayOfTheCommands()
    {
        FourGuests shown;
        auto *other = new QTreeWidgetItem(&shown.list);
        shown.select({"A"});
        other->setSelected(true);
        QCOMPARE(answers(shown.list), s("accept"));
        // They are sorted with the others.
        shown.list.sortByColumn(KWGuestListViewItem::DisplayName, Qt::DescendingOrder);
        QCOMPARE(shown.list.indexOfTopLevelItem(other), 4);
        shown.list.sortByColumn(KWGuestListViewItem::DisplayName, Qt::AscendingOrder);
        QCOMPARE(shown.list.indexOfTopLevelItem(other), 0);
    }

    void unassignTakesTheSelectedOffTheirSeatsAndScoresOnce()
    {
        FourGuests shown;
        shown.plan.setGuestLocked(shown.guest("B"), false);
        shown.select({"A", "B", "D"});
        EventLog log(shown.plan);
        shown.list.unassign();
        QCOMPARE(seating(shown.plan), s("- - - -"));
        QCOMPARE(log.take(),
                 QStringList({s("eventEditGuest(A)"), s("eventEditTable(T)"),
                              s("eventEditSeat(T,0)"), s("eventModified()"), s("eventEditGuest(B)"),
                              s("eventEditTable(T)"), s("eventEditSeat(T,1)"), s("eventModified()"),
                              s("eventScoreChange(T)"), s("eventScoreChange()")}));
        QCOMPARE(shown.plan.totalScore(), 0);
    }

    void withTwoSelectedGuestsAProximityHoldsInBothDirections()
    {
        FourGuests shown;
        shown.select({"A", "C"});
        EventLog log(shown.plan);
        shown.list.setAffinity(4);
        QCOMPARE(shown.plan.affinity(shown.guest("A"), shown.guest("C")), 4);
        QCOMPARE(shown.plan.affinity(shown.guest("C"), shown.guest("A")), 4);
        QCOMPARE(log.take(), QStringList({s("eventEditAffinity(A,C)"), s("eventModified()"),
                                          s("eventEditAffinity(C,A)"), s("eventModified()"),
                                          s("eventScoreChange(T)"), s("eventScoreChange()")}));
    }

    void aProximityIsSetForEveryPairOfTheSelection()
    {
        FourGuests shown;
        shown.select({"A", "B", "D"});
        shown.list.setAffinity(1);
        QCOMPARE(shown.plan.affinityCount(), 3);
        QCOMPARE(shown.plan.affinity(shown.guest("B"), shown.guest("D")), 1);
        QCOMPARE(shown.plan.affinity(shown.guest("C"), shown.guest("D")), 2);
    }

    void aProximityOfVeryManyShowsHowFarItHasCome()
    {
        ShownList shown;
        addGuests(shown.plan, 201);
        shown.list.selectAll();
        shown.list.setAffinity(1);
        QCOMPARE(shown.plan.affinityCount(), 201 * 200 / 2);
        QCOMPARE(shown.window.progress.size(), 201);
        QCOMPARE(shown.window.progress.last(), 100);
    }

    void aProximityOfAFewShowsNoProgress()
    {
        FourGuests shown;
        shown.list.selectAll();
        shown.list.setAffinity(1);
        QCOMPARE(shown.window.progress, QList<int>());
    }

    void lockAndAcceptGoToEverySelectedGuest()
    {
        FourGuests shown;
        shown.select({"A", "B", "C"});
        EventLog log(shown.plan);
        shown.list.setLocked(true);
        QCOMPARE(log.take(), QStringList({s("eventEditGuest(A)"), s("eventModified()"),
                                          s("eventEditGuest(C)"), s("eventModified()")}));
        shown.list.setAccepted(true);
        QCOMPARE(log.take(), QStringList({s("eventEditGuest(A)"), s("eventModified()"),
                                          s("eventEditGuest(B)"), s("eventModified()")}));
        QVERIFY(!shown.guest("D")->isLocked() && !shown.guest("D")->isAccepted());
    }

    void deleteAsksAndDeletesTheSelectedAndScoresOnce()
    {
        FourGuests shown;
        shown.select({"A", "C"});
        EventLog log(shown.plan);
        ModalUser user;
        QString question;
        user.onDialog<QDialog>([&question](QDialog &dialog) {
            for (const auto *label : dialog.findChildren<QLabel *>())
                question += label->text();
            dialog.findChild<QPushButton *>()->click();
        });
        shown.list.deleteSelection();
        QVERIFY2(question.contains(s("Delete guest(s)?")), qPrintable(question));
        QCOMPARE(shown.names(), s("B D"));
        const QStringList events = log.take();
        QCOMPARE(events.count(s("eventScoreChange()")), 1);
        QCOMPARE(events.last(), s("eventScoreChange()"));
        QCOMPARE(events.filter(s("eventBeforeDeleteGuest")),
                 QStringList({s("eventBeforeDeleteGuest(A)"), s("eventBeforeDeleteGuest(C)")}));
    }

    void aRefusedDeleteChangesNothing()
    {
        FourGuests shown;
        shown.select({"A", "C"});
        EventLog log(shown.plan);
        ModalUser user;
        user.onDialog<QDialog>([](QDialog &dialog) { dialog.reject(); });
        shown.list.deleteSelection();
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(shown.names(), s("A B C D"));
        QCOMPARE(shown.selected(), s("A C"));
    }

    void withTheWarningSwitchedOffDeleteGoesOnAtOnce()
    {
        FourGuests shown;
        shown.window.userSettings()->setValue(u"warning/delete_guest", false);
        shown.select({"B", "C", "D"});
        shown.list.deleteSelection();
        QCOMPARE(shown.names(), s("A"));
    }

    void aHiddenListDeletesItsSelectionToo()
    {
        FourGuests shown;
        shown.window.userSettings()->setValue(u"warning/delete_guest", false);
        shown.select({"B", "C"});
        shown.list.hide();
        shown.list.deleteSelection();
        QCOMPARE(shown.plan.guestCount(), 2);
        shown.list.show();
        QCOMPARE(shown.names(), s("A D"));
    }

    void theListPrintsCopiesAndRotatesNothing()
    {
        FourGuests shown;
        shown.select({"A"});
        EventLog log(shown.plan);
        shown.list.print();
        shown.list.copy();
        shown.list.rotate();
        QCOMPARE(log.take(), QStringList());
    }

    void aGuestIsShownByTheirRow()
    {
        FourGuests shown;
        shown.select({"A"});
        shown.list.showGuest(shown.guest("D"));
        QCOMPARE(shown.selected(), s("D"));
        shown.list.showGuest(nullptr);
        QCOMPARE(shown.selected(), s("D"));
    }
};

REGISTER_TEST(TestGuestCommands)
#include "tst_guestcommands.moc"
