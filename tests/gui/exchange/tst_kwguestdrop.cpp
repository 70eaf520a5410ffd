#include "gui/exchange/kwguestdrop.h"
#include "support/eventlog.h"
#include "support/gui/fakemainwindow.h"
#include "support/gui/guitest.h"
#include "support/gui/scriptedprompts.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

// What a drop of guests would do, and what it does.

namespace {

/// A table T of four: Ann, Bob (locked), Cid and an empty seat; a full table F of two: Fay and Gus
/// (locked); a table L of locked Lea; Eve and Hal without seats.
struct Plan
{
    ScriptedPrompts prompts;
    FakeMainWindow window;
    KWDocument &plan = *window.document();
    KWTable *t = addTable(plan, "T", KWTable::Circular, 4);
    KWTable *f = addTable(plan, "F", KWTable::Circular, 2);
    KWTable *l = addTable(plan, "L", KWTable::Circular, 1);
    KWGuest *ann = seated("Ann", t, 0);
    KWGuest *bob = seated("Bob", t, 1, true);
    KWGuest *cid = seated("Cid", t, 2);
    KWGuest *fay = seated("Fay", f, 0);
    KWGuest *gus = seated("Gus", f, 1, true);
    KWGuest *lea = seated("Lea", l, 0, true);
    KWGuest *eve = addGuest(plan, {"Eve"});
    KWGuest *hal = addGuest(plan, {"Hal"});
    QObject receiver;

    KWGuest *seated(const char *name, KWTable *table, int seat, bool locked = false)
    {
        KWGuest *guest = addGuest(plan, {name});
        plan.assignGuest(guest, table, seat, false);
        plan.setGuestLocked(guest, locked);
        return guest;
    }

    KWGuestDrop onSeat(const QList<KWGuest *> &guests, KWTable *table, int seat)
    {
        return KWGuestDrop::onSeat(&plan, guests, table, seat);
    }
    KWGuestDrop onTable(const QList<KWGuest *> &guests, KWTable *table)
    {
        return KWGuestDrop::onTable(&plan, guests, table);
    }
    KWGuestDrop outside(const QList<KWGuest *> &guests)
    {
        return KWGuestDrop::outside(&plan, guests);
    }
};

/// "T0 T1!" with a mark where a locked guest would lose the seat.
QString seatsOf(const KWGuestDrop &drop)
{
    QStringList texts;
    for (const KWGuestDrop::Seat &seat : drop.seats())
        texts.append(seat.table->name() + QString::number(seat.seat) +
                     (seat.losesLocked ? s("!") : QString()));
    return texts.join(u' ');
}
} // namespace

class TestKWGuestDrop : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void aDropMayGoWhereItMakesSense()
    {
        Plan p;
        QVERIFY(p.onSeat({p.eve}, p.t, 0).isAccepted());
        QVERIFY(p.onSeat({p.eve}, p.t, 3).isAccepted());
        QVERIFY(!p.onSeat({p.eve}, p.t, 1).isAccepted());
        QVERIFY(p.onTable({p.eve}, p.t).isAccepted());
        QVERIFY(!p.onTable({p.eve}, p.l).isAccepted());
        QVERIFY(p.outside({p.eve}).isAccepted());
        QVERIFY(!KWGuestDrop().isAccepted());
    }

    void anEmptySeatIsTaken()
    {
        Plan p;
        const KWGuestDrop drop = p.onSeat({p.eve}, p.t, 3);
        QCOMPARE(seatsOf(drop), s("T3"));
        QCOMPARE(drop.description(), s("Eve: seat 4 of T"));
        EventLog log(p.plan);
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(*p.t), s("Ann Bob Cid Eve"));
        QCOMPARE(p.window.undoLabels, QStringList{s("Drag guest(s)")});
        QCOMPARE(log.take().count(s("eventScoreChange()")), 1);
    }

    void whoHasNoSeatTurnsTheOtherOut()
    {
        Plan p;
        const KWGuestDrop drop = p.onSeat({p.eve}, p.t, 0);
        QCOMPARE(drop.description(), s("Eve: seat 1 of T; Ann loses the seat"));
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(*p.t), s("Eve Bob Cid -"));
    }

    void whoHasASeatChangesPlaces()
    {
        Plan p;
        const KWGuestDrop drop = p.onSeat({p.fay}, p.t, 0);
        QCOMPARE(drop.description(), s("Fay: seat 1 of T; Ann changes places with Fay"));
        QCOMPARE(seatsOf(drop), s("T0"));
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(p.plan), s("Fay Bob Cid -\nAnn Gus\nLea"));
    }

    void onesOwnSeatChangesNothing()
    {
        Plan p;
        p.plan.setModified(false);
        const KWGuestDrop drop = p.onSeat({p.ann}, p.t, 0);
        QVERIFY(drop.isAccepted());
        QVERIFY(!drop.changesSeating());
        QCOMPARE(drop.description(), s("Ann: seat 1 of T"));
        EventLog log(p.plan);
        QVERIFY(drop.perform(&p.receiver));
        // What could be done again still can.
        QCOMPARE(p.window.undoLabels, QStringList());
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!p.plan.isModified());
    }

    void aLockedGuestsSeatIsRefusedWithTheReason()
    {
        Plan p;
        const KWGuestDrop drop = p.onSeat({p.eve}, p.t, 1);
        QCOMPARE(drop.description(), s("Bob is locked"));
        QCOMPARE(seatsOf(drop), QString());
        QVERIFY(!drop.perform(&p.receiver));
        QCOMPARE(p.onTable({p.eve}, p.l).description(), s("All guests of L are locked"));
        QVERIFY(!p.onTable({p.eve}, p.l).perform(&p.receiver));
        QCOMPARE(seating(p.plan), s("Ann Bob Cid -\nFay Gus\nLea"));
        QCOMPARE(p.window.undoLabels, QStringList());
    }

    void severalGoOnRoundTheTablePastLockedGuests()
    {
        Plan p;
        const KWGuestDrop drop = p.onSeat({p.eve, p.hal}, p.t, 0);
        QCOMPARE(seatsOf(drop), s("T0 T1!"));
        QCOMPARE(drop.description(),
                 s("2 guests: seats 1 to 2 of T; Bob is locked and would lose the seat; "
                   "Ann loses the seat"));
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(*p.t), s("Eve Hal Cid -"));
        QVERIFY(p.bob->isLocked());
    }

    void theSeatsBeginAnewBehindTheLast()
    {
        Plan p;
        const KWGuestDrop drop = p.onSeat({p.eve, p.hal}, p.t, 3);
        QCOMPARE(seatsOf(drop), s("T3 T0"));
        QCOMPARE(drop.description(), s("2 guests: seats 4 to 1 of T; Ann loses the seat"));
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(*p.t), s("Hal Bob Cid Eve"));
    }

    void onATableTheLongestGapIsFilled()
    {
        Plan p;
        const KWGuestDrop drop = p.onTable({p.eve}, p.t);
        QCOMPARE(seatsOf(drop), s("T3"));
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(*p.t), s("Ann Bob Cid Eve"));
    }

    void onAFullTableTheFirstSeatIsTakenAlsoFromALockedGuest()
    {
        Plan p;
        p.plan.setGuestLocked(p.fay, true);
        p.plan.setGuestLocked(p.gus, false);
        const KWGuestDrop drop = p.onTable({p.eve}, p.f);
        QVERIFY(drop.isAccepted());
        QCOMPARE(seatsOf(drop), s("F0!"));
        QCOMPARE(drop.description(), s("Eve: seat 1 of F; Fay is locked and would lose the seat"));
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(*p.f), s("Eve Gus"));
    }

    void aLockedGuestWhoStaysIsNotWarnedOf()
    {
        Plan p;
        p.plan.setGuestLocked(p.ann, true);
        p.plan.setGuestLocked(p.bob, false);
        // From a list, one's own seat on the way.
        const KWGuestDrop drop = p.onSeat({p.bob, p.ann}, p.t, 3);
        QCOMPARE(seatsOf(drop), s("T3 T0"));
        QCOMPARE(drop.description(), s("2 guests: seats 4 to 1 of T"));
    }

    void whoIsMovedOnIsTold()
    {
        Plan p;
        p.plan.setGuestLocked(p.bob, false);
        // Ann goes to Bob's seat, who changes to hers and is then sent on by Cid.
        const KWGuestDrop drop = p.onSeat({p.ann, p.fay, p.eve, p.cid}, p.t, 1);
        QCOMPARE(seatsOf(drop), s("T1 T2 T3 T0"));
        const QString text = drop.description();
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(p.plan), s("Cid Ann Fay Eve\nBob Gus\nLea"));
        QCOMPARE(text, s("4 guests: seats 2 to 1 of T; Bob moves to seat 1 of F"));
    }

    void longTextsAreCut()
    {
        Plan p;
        KWTable *big = addTable(p.plan, "Big", KWTable::Circular, 6);
        QList<KWGuest *> guests;
        for (int i = 0; i < 6; ++i) {
            p.seated("Sit", big, i, i == 4);
            guests.append(addGuest(p.plan, {"New"}));
        }
        QCOMPARE(p.onSeat(guests, big, 0).description(),
                 s("6 guests: seats 1 to 6 of Big; Sit is locked and would lose the seat; Sit "
                   "loses the seat; Sit loses the seat; and 3 more"));
        KWGuest *longest = addGuest(p.plan, {"0123456789012345678901234567890123456789!"});
        KWGuest *fits = addGuest(p.plan, {"0123456789012345678901234567890123456789"});
        QCOMPARE(p.onSeat({longest}, p.t, 3).description(),
                 s("012345678901234567890123456789012345678…: seat 4 of T"));
        QCOMPARE(p.onSeat({fits}, p.t, 3).description(),
                 s("0123456789012345678901234567890123456789: seat 4 of T"));
    }

    void outsideEverybodyLosesTheSeat()
    {
        Plan p;
        const KWGuestDrop drop = p.outside({p.ann, p.eve, p.bob});
        QCOMPARE(seatsOf(drop), QString());
        QCOMPARE(drop.description(),
                 s("Bob is locked and would lose the seat; Ann loses the seat"));
        EventLog log(p.plan);
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(seating(*p.t), s("- - Cid -"));
        QCOMPARE(p.window.undoLabels, QStringList{s("Drag guest(s)")});
        QCOMPARE(log.take().count(s("eventScoreChange()")), 1);
    }

    void outsideNothingChangesForWhoHasNoSeat()
    {
        Plan p;
        const KWGuestDrop drop = p.outside({p.eve});
        QCOMPARE(drop.description(), s("No seat is lost"));
        QVERIFY(drop.perform(&p.receiver));
        QCOMPARE(p.window.undoLabels, QStringList());
    }

    void tooManyGuestsAreToldWhenTheDragIsOver()
    {
        Plan p;
        const KWGuestDrop drop = p.onTable({p.eve, p.hal, p.ann}, p.f);
        QVERIFY(drop.isAccepted());
        QCOMPARE(seatsOf(drop), QString());
        QCOMPARE(drop.description(), s("Too many guests for table"));
        p.prompts.answer(s("&OK"));
        QVERIFY(!drop.perform(&p.receiver));
        QCOMPARE(p.prompts.texts(), QStringList());
        QTRY_COMPARE(p.prompts.texts(), QStringList{s("Too many guests for table")});
        QCOMPARE(p.prompts.messages[0].icon, KWMessage::Critical);
        QCOMPARE(seating(p.plan), s("Ann Bob Cid -\nFay Gus\nLea"));
        QCOMPARE(p.window.undoLabels, QStringList());
    }

    void nobodyIsNotTaken()
    {
        Plan p;
        for (const KWGuestDrop &drop : {p.onSeat({}, p.t, 3), p.onTable({}, p.t), p.outside({})}) {
            QCOMPARE(drop.description(), QString());
            QVERIFY(!drop.perform(&p.receiver));
        }
        QCOMPARE(p.window.undoLabels, QStringList());
    }

    void whatIsDescribedIsWhatHappens()
    {
        for (unsigned seed = 1; seed <= 40; ++seed) {
            KWDocument plan;
            fillRandomly(plan, {.guests = 12, .seats = 14, .wishes = 0, .locked = 3, .seed = seed});
            for (int i = 0; i < 8; ++i)
                plan.assignGuest(plan.guestAt(i), plan.tableAt(0),
                                 i % std::max(1, plan.tableAt(0)->seatCount()), false);
            KWTable *table = plan.tableAt(static_cast<int>(seed) % plan.tableCount());
            QList<KWGuest *> guests;
            for (int i = 0; i < std::min(4, table->seatCount()); ++i)
                guests.append(plan.guestAt((static_cast<int>(seed) * 5 + i * 3) % 12));
            const KWGuestDrop drop = KWGuestDrop::onTable(&plan, guests, table);
            const QString before = seating(plan);
            const bool changes = drop.changesSeating();
            QList<const KWGuest *> lockedThere;
            for (const KWGuestDrop::Seat &seat : drop.seats()) {
                const KWGuest *guest = seat.table->guest(seat.seat);
                lockedThere.append(guest && guest->isLocked() ? guest : nullptr);
            }
            if (!drop.perform(this))
                continue;
            QCOMPARE(seating(plan) != before, changes);
            for (qsizetype i = 0; i < lockedThere.size(); ++i) {
                const KWGuestDrop::Seat seat = drop.seats().at(i);
                const bool lost = lockedThere[i] && seat.table->guest(seat.seat) != lockedThere[i];
                QCOMPARE(seat.losesLocked, lost);
            }
        }
    }
};

REGISTER_TEST(TestKWGuestDrop)
#include "tst_kwguestdrop.moc"
