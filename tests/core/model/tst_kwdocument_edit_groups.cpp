#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>

namespace {
KWContact contactIn(const char *city)
{
    KWContact contact;
    contact.city = s(city);
    return contact;
}
} // namespace

class TestEditGroups : public QObject
{
    Q_OBJECT

private slots:
    void aListenerMayChangeTheGroupThatIsBeingDeleted()
    {
        EditedPlan p;
        const QMetaObject::Connection deletes =
            connect(&p.plan, &KWDocument::eventAfterDeleteGuest, this, [&p] {
                disconnect(&p.plan, &KWDocument::eventAfterDeleteGuest, nullptr, nullptr);
                p.plan.deleteGuest(p.bob, false);
                p.plan.moveGuestToGroup(p.smiths, p.dan);
            });
        QVERIFY(deletes);
        p.plan.deleteGroup(p.smiths, false);
        QCOMPARE(p.plan.guestCount(), 0);
        QCOMPARE(p.plan.groups(), QList<KWGroup *>{p.joneses});
    }

    void addingAGroupStoresAllAndReports()
    {
        EditedPlan party;
        KWGroup *group = party.plan.addGroup(contactIn("Rome"), s("Browns"), s("by train"));
        QCOMPARE(party.log.take(), steps({"modified", "eventNewGroup(Browns)", "eventModified()"}));
        QCOMPARE(party.plan.groups(), QList<KWGroup *>({party.smiths, party.joneses, group}));
        QVERIFY(group->contact() == contactIn("Rome"));
        QCOMPARE(group->name(), s("Browns"));
        QCOMPARE(group->notes(), s("by train"));
        QCOMPARE(group->guestCount(), 0);
    }

    void editingAGroupStoresWhatDiffers_data()
    {
        QTest::addColumn<QString>("city");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("notes");
        QTest::newRow("contact") << s("Rome") << s("Smiths") << QString();
        QTest::newRow("name") << QString() << s("Smythes") << QString();
        QTest::newRow("notes") << QString() << s("Smiths") << s("by train");
        QTest::newRow("all") << s("Rome") << s("Smythes") << s("by train");
    }
    void editingAGroupStoresWhatDiffers()
    {
        QFETCH(QString, city);
        QFETCH(QString, name);
        QFETCH(QString, notes);
        EditedPlan party;
        KWContact contact;
        contact.city = city;
        const QStringList reported{s("eventEditGroup(%1)").arg(name), s("modified"),
                                   s("eventModified()")};
        party.plan.editGroup(party.smiths, contact, name, notes);
        QCOMPARE(party.log.take(), reported);
        QVERIFY(party.smiths->contact() == contact);
        QCOMPARE(party.smiths->name(), name);
        QCOMPARE(party.smiths->notes(), notes);
        party.plan.editGroup(party.smiths, contact, name, notes);
        QCOMPARE(party.log.take(), QStringList());
    }

    void deletingAGroupOfThreeDeletesEachMemberInFull_data() { rescoreRows(); }
    void deletingAGroupOfThreeDeletesEachMemberInFull()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.unassignGuest(party.bob, true);
        party.log.take();
        party.plan.deleteGroup(party.smiths, rescore);
        QStringList expected =
            steps({"eventBeforeDeleteGroup(Smiths)", "eventEditSeat(Top,0)"}) +
            EditedPlan::deletion("Ann", rescore) + EditedPlan::deletion("Bob", rescore) +
            steps({"eventEditSeat(Side,0)"}) + EditedPlan::deletion("Cid", rescore) +
            steps({"eventAfterDeleteGroup()", "eventModified()"});
        // The first deletion puts the flag up, and it stays up.
        expected.removeAll(s("modified"));
        expected.insert(3, s("modified"));
        QCOMPARE(party.log.take(), expected);
        QCOMPARE(party.plan.groups(), QList<KWGroup *>({party.joneses}));
        QCOMPARE(party.plan.guests(), QList<KWGuest *>({party.dan}));
        QCOMPARE(seating(party.plan), s("- - - -\n- - -"));
        QCOMPARE(party.plan.totalScore(), rescore ? 0 : -18);
    }

    void deletingAGroupWithoutMembersRescoresNothing()
    {
        EditedPlan party;
        KWGroup *group = party.plan.addGroup({}, s("Browns"), {});
        party.log.take();
        party.plan.deleteGroup(group, true);
        QCOMPARE(party.log.take(), steps({"eventBeforeDeleteGroup(Browns)", "modified",
                                          "eventAfterDeleteGroup()", "eventModified()"}));
        QCOMPARE(party.plan.groupCount(), 2);
    }

    void aMovedGuestLeavesTheOldGroupAndIsLastInTheNew()
    {
        EditedPlan party;
        const QStringList reported =
            steps({"eventGuestChangeGroup(Ann)", "modified", "eventModified()"});
        party.plan.moveGuestToGroup(party.joneses, party.ann);
        QCOMPARE(party.log.take(), reported);
        QCOMPARE(party.ann->group(), party.joneses);
        QCOMPARE(party.smiths->guests(), QList<KWGuest *>({party.bob, party.cid}));
        QCOMPARE(party.joneses->guests(), QList<KWGuest *>({party.dan, party.ann}));
        QCOMPARE(seating(*party.top), s("Ann Bob - -"));
    }

    void aGuestMovedWithinTheGroupBecomesItsLastMember()
    {
        EditedPlan party;
        party.plan.moveGuestToGroup(party.smiths, party.ann);
        QCOMPARE(party.log.take(),
                 steps({"eventGuestChangeGroup(Ann)", "modified", "eventModified()"}));
        QCOMPARE(party.smiths->guests(), QList<KWGuest *>({party.bob, party.cid, party.ann}));
        QCOMPARE(party.ann->group(), party.smiths);
    }

    void nullAndStrangersAreRefused_data()
    {
        using Operation = std::function<void(KWDocument &, KWGuest *, KWGroup *)>;
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char *name, const Operation &op) { QTest::newRow(name) << op; };
        row("editGroup", [](auto &plan, auto *, auto *group) {
            plan.editGroup(group, contactIn("Rome"), s("X"), s("X"));
        });
        row("deleteGroup", [](auto &plan, auto *, auto *group) { plan.deleteGroup(group, true); });
        row("moveGuestToGroup: guest",
            [](auto &plan, auto *guest, auto *) { plan.moveGuestToGroup(plan.groupAt(0), guest); });
        row("moveGuestToGroup: group",
            [](auto &plan, auto *, auto *group) { plan.moveGuestToGroup(group, plan.guestAt(0)); });
    }
    void nullAndStrangersAreRefused()
    {
        using Operation = std::function<void(KWDocument &, KWGuest *, KWGroup *)>;
        QFETCH(Operation, operation);
        EditedPlan party;
        EditedPlan other;
        operation(party.plan, nullptr, nullptr);
        operation(party.plan, other.cid, other.joneses);
        QCOMPARE(party.log.take(), QStringList());
        QCOMPARE(other.log.take(), QStringList());
        QCOMPARE(contents(party.plan), contents(EditedPlan().plan));
        QCOMPARE(contents(other.plan), contents(EditedPlan().plan));
    }
};

REGISTER_TEST(TestEditGroups)
#include "tst_kwdocument_edit_groups.moc"
