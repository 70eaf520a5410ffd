#include "editedplan.h"
#include "support/registeredtest.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {
/// Two plans that somebody listens to.
struct TwoPlans
{
    KWDocument first;
    KWDocument second;
    EventLog firstLog{first};
    EventLog secondLog{second};
};

const QStringList spoken = steps({"eventModified()"});
} // namespace

class TestEvents : public QObject
{
    Q_OBJECT

private slots:
    void theSignalsAreDeclaredInTheirOrder()
    {
        QStringList declared;
        const QMetaObject &meta = KWDocument::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                declared.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(declared, steps({"eventNewGuest(KWGuest*)",
                                  "eventEditGuest(KWGuest*)",
                                  "eventBeforeDeleteGuest(KWGuest*)",
                                  "eventAfterDeleteGuest()",
                                  "loadingGuests(int)",
                                  "eventNewGroup(KWGroup*)",
                                  "eventEditGroup(KWGroup*)",
                                  "eventGuestChangeGroup(KWGuest*)",
                                  "eventBeforeDeleteGroup(KWGroup*)",
                                  "eventAfterDeleteGroup()",
                                  "eventEditSeat(KWTable*,int)",
                                  "eventEditAffinity(KWGuest*,KWGuest*)",
                                  "eventNewTable(KWTable*)",
                                  "eventEditTable(KWTable*)",
                                  "eventReorderTables(KWTable*,KWTable*)",
                                  "eventBeforeDeleteTable(KWTable*)",
                                  "eventAfterDeleteTable()",
                                  "eventClear()",
                                  "eventRefresh()",
                                  "eventPrepareAutoLayout()",
                                  "eventSimpleAutoLayout()",
                                  "eventScoreChange(KWTable*)",
                                  "eventScoreChange()",
                                  "eventDocumentNameChange(QString)",
                                  "eventModified()",
                                  "error(QString)"}));
    }

    void theOneSlotAsksForAnAbort()
    {
        KWDocument plan;
        EventLog log(plan);
        QVERIFY(QMetaObject::invokeMethod(&plan, "abortProcessing"));
        QVERIFY(plan.abortRequested());
        QVERIFY(!plan.isModified());
        QCOMPARE(log.take(), QStringList());
    }

    void announcementsFireTheirEventAndChangeNothing()
    {
        EditedPlan party;
        party.plan.announceClear();
        party.plan.announceRefresh();
        party.plan.announceModified();
        QCOMPARE(party.log.take(), steps({"eventClear()", "eventRefresh()", "eventModified()"}));
        QCOMPARE(contents(party.plan), contents(EditedPlan().plan));
    }

    void nothingReachesListenersWhileEventsAreBlocked()
    {
        EditedPlan party;
        party.plan.blockEvents();
        party.plan.deleteGuest(party.ann, true);
        party.plan.setVenue(s("Castle"));
        party.plan.announceModified();
        QCOMPARE(party.log.take(), steps({"modified"}));
        party.plan.unblockEvents();
        QCOMPARE(party.log.take(), QStringList());
        party.plan.setVenue(s("Barn"));
        QCOMPARE(party.log.take(), steps({"modified", "eventModified()"}));
    }

    void blocksAreCounted()
    {
        TwoPlans plans;
        plans.first.blockEvents();
        plans.first.blockEvents();
        plans.first.unblockEvents();
        plans.first.announceModified();
        QCOMPARE(plans.firstLog.take(), QStringList());
        plans.first.unblockEvents();
        plans.first.announceModified();
        QCOMPARE(plans.firstLog.take(), spoken);
    }

    void aBlockInsideAnotherPlansBlockSilencesTheOuterPlanOnly()
    {
        TwoPlans plans;
        const auto speak = [&] {
            plans.first.announceModified();
            plans.second.announceModified();
        };
        plans.first.blockEvents();
        plans.second.blockEvents();
        speak();
        QCOMPARE(plans.firstLog.take(), QStringList());
        QCOMPARE(plans.secondLog.take(), spoken);

        plans.second.unblockEvents();
        speak();
        QCOMPARE(plans.firstLog.take(), QStringList());
        QCOMPARE(plans.secondLog.take(), spoken);

        plans.first.unblockEvents();
        speak();
        QCOMPARE(plans.firstLog.take(), spoken);
        QCOMPARE(plans.secondLog.take(), spoken);
    }

    void blocksThatCrossFreeOnlyThePlanWhoseUnblockingIsTheLast()
    {
        TwoPlans plans;
        plans.first.blockEvents();
        plans.second.blockEvents();
        plans.first.unblockEvents();
        plans.second.unblockEvents();
        QVERIFY(plans.first.signalsBlocked());
        QVERIFY(!plans.second.signalsBlocked());

        plans.first.blockEvents();
        plans.first.unblockEvents();
        QVERIFY(!plans.first.signalsBlocked());
    }

    void copyingInsideAnotherPlansBlockLeavesThatPlanSilent()
    {
        EditedPlan party;
        party.plan.blockEvents();
        const KWDocument copy(party.plan);
        KWDocument assigned;
        assigned = party.plan;
        QVERIFY(party.plan.signalsBlocked());
        party.plan.announceModified();
        QCOMPARE(party.log.take(), QStringList());
        party.plan.unblockEvents();
        QVERIFY(!party.plan.signalsBlocked());
    }

    void loadingReportsItsContentsOnceAtTheEnd()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(s("a.kw"));
        EditedPlan party;
        QCOMPARE(party.plan.save(path, {}), int(KWDocument::FileOk));
        const QString named = s("eventDocumentNameChange(%1)").arg(path);
        QCOMPARE(party.log.take(), QStringList{named});

        KWDocument loaded;
        EventLog log(loaded);
        KWViewSettings viewSettings;
        bool versionDiffers = false;
        QCOMPARE(loaded.load(path, viewSettings, versionDiffers), int(KWDocument::FileOk));
        // The first three events are those of making room.
        QCOMPARE(log.take(), steps({"eventClear()", "eventDocumentNameChange()", "eventModified()",
                                    "loadingGuests(4)"}) +
                                 QStringList({named, s("eventModified()")}));
        QVERIFY(!loaded.isModified());
        QCOMPARE(seating(loaded), seating(party.plan));
    }

    void clearAnnouncesTheOldPlanAndReportsTheNewOne()
    {
        EditedPlan party;
        party.plan.setAffinity(party.ann, party.bob, KWScore::Loves, false);
        party.plan.setFileName(s("/tmp/a.kw"));
        party.plan.setVenue(s("Castle"));
        party.plan.setAbortRequested(true);
        QStringList seen;
        const auto look = [&] {
            seen.append(QString::number(party.plan.guestCount()) + u' ' + party.plan.fileName() +
                        u' ' + party.plan.venue() + (party.plan.isModified() ? u'*' : u'.'));
        };
        connect(&party.plan, &KWDocument::eventClear, this, look);
        connect(&party.plan, &KWDocument::eventDocumentNameChange, this, look);
        connect(&party.plan, &KWDocument::eventModified, this, look);
        EventLog log(party.plan);
        party.plan.clear();
        QCOMPARE(log.take(),
                 steps({"eventClear()", "eventDocumentNameChange()", "eventModified()"}));
        QCOMPARE(seen, steps({"4 /tmp/a.kw Castle*", "4 /tmp/a.kw Castle*", "0  ."}));
        QVERIFY(party.plan.fileName().isNull());
        QVERIFY(party.plan.history().isEmpty());
        QCOMPARE(party.plan.tableCount(), 0);
        QCOMPARE(party.plan.groupCount(), 0);
        QCOMPARE(party.plan.affinityCount(), 0);
        QCOMPARE(party.plan.totalScore(), 0);
        QVERIFY(party.plan.abortRequested());
    }

    void aClearedPlanCanBeFilledAnew()
    {
        EditedPlan party;
        party.plan.setAffinity(party.ann, party.bob, KWScore::Loves, false);
        party.plan.clear();
        const QList<KWGuest *> guests = addGuests(party.plan, 3);
        KWTable *table = addTable(party.plan, "New", KWTable::Circular, 3);
        party.plan.assignGuest(guests[0], table, 0, false);
        party.plan.assignGuest(guests[1], table, 1, true);
        QCOMPARE(party.plan.affinity(guests[0], guests[1]), int(KWScore::Neutral));
        QCOMPARE(seating(party.plan), s("G0 G1 -"));
        QCOMPARE(party.plan.totalScore(), 0);
        QCOMPARE(party.plan.guests(), guests);
    }
};

REGISTER_TEST(TestEvents)
#include "tst_kwdocument_events.moc"
