#pragma once

#include "support/eventlog.h"
#include "support/testplan.h"

#include <QtTest>

#include <initializer_list>

inline QStringList steps(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(s(text));
    return result;
}

/// Everything that a plan file holds of a plan, to see that nothing of it changed.
inline QByteArray contents(const KWDocument &plan)
{
    return plan.toPlanText({});
}

/// The steps of a changing operation as they are seen from outside: its events as EventLog writes
/// them, with "modified" where the plan's flag goes up.
class StepLog
{
public:
    explicit StepLog(KWDocument &plan)
        : m_plan(plan)
        , m_events(plan)
    {
        m_plan.setModified(false);
        watch(&KWDocument::eventNewGuest, &KWDocument::eventEditGuest,
              &KWDocument::eventBeforeDeleteGuest, &KWDocument::eventAfterDeleteGuest,
              &KWDocument::loadingGuests, &KWDocument::eventNewGroup, &KWDocument::eventEditGroup,
              &KWDocument::eventGuestChangeGroup, &KWDocument::eventBeforeDeleteGroup,
              &KWDocument::eventAfterDeleteGroup, &KWDocument::eventEditSeat,
              &KWDocument::eventEditAffinity, &KWDocument::eventNewTable,
              &KWDocument::eventEditTable, &KWDocument::eventReorderTables,
              &KWDocument::eventBeforeDeleteTable, &KWDocument::eventAfterDeleteTable,
              &KWDocument::eventClear, &KWDocument::eventRefresh,
              &KWDocument::eventPrepareAutoLayout, &KWDocument::eventSimpleAutoLayout,
              qOverload<KWTable *>(&KWDocument::eventScoreChange),
              qOverload<>(&KWDocument::eventScoreChange), &KWDocument::eventDocumentNameChange,
              &KWDocument::eventModified, &KWDocument::error);
    }

    /// The steps since the last call. Lowers the flag, so that the next one is seen going up.
    QStringList take()
    {
        QStringList result = m_events.take();
        if (m_plan.isModified()) {
            const qsizetype place = m_flags.indexOf(true);
            result.insert(place < 0 ? result.size() : place, s("modified"));
        }
        m_flags.clear();
        m_plan.setModified(false);
        return result;
    }

private:
    template <typename... Signals>
    void watch(Signals... signalsOfThePlan)
    {
        const auto look = [this] { m_flags.append(m_plan.isModified()); };
        (QObject::connect(&m_plan, signalsOfThePlan, &m_events, look), ...);
    }

    KWDocument &m_plan;
    EventLog m_events;
    /// The flag at each event.
    QList<bool> m_flags;
};

/// A small plan to try an operation on: Ann and Bob sit at "Top" (circular), Cid at "Side" (a head
/// table), Dan nowhere. Unmodified and freshly scored: 4 for a couple side by side, -9 for Cid.
struct EditedPlan
{
    KWDocument plan;
    KWGroup *smiths = plan.addGroup({}, s("Smiths"), {});
    KWGroup *joneses = plan.addGroup({}, s("Joneses"), {});
    KWGuest *ann = addGuest(plan, {.name = "Ann", .gender = KWGuest::Female}, smiths);
    KWGuest *bob = addGuest(plan, {.name = "Bob", .gender = KWGuest::Male}, smiths);
    KWGuest *cid = addGuest(plan, {.name = "Cid"}, smiths);
    KWGuest *dan = addGuest(plan, {.name = "Dan", .gender = KWGuest::Male}, joneses);
    KWTable *top = addTable(plan, "Top", KWTable::Circular, 4);
    KWTable *side = addTable(plan, "Side", KWTable::HeadTop, 3);
    StepLog log{plan};

    EditedPlan()
    {
        plan.setDate(QDate(2030, 6, 1));
        plan.assignGuest(ann, top, 0, false);
        plan.assignGuest(bob, top, 1, false);
        plan.assignGuest(cid, side, 0, false);
        plan.recalculateScores();
        log.take();
    }

    /// The events of a rescore, or none if there is not to be one.
    static QStringList scores(bool rescored = true)
    {
        return rescored ? steps({"eventScoreChange(Top)", "eventScoreChange(Side)",
                                 "eventScoreChange()"})
                        : QStringList();
    }

    /// The steps of deleting one of the Smiths, but for the seat's.
    static QStringList deletion(const char *guest, bool rescored)
    {
        return QStringList{s("eventBeforeDeleteGuest(%1)").arg(s(guest)), s("modified")} +
               scores(rescored) +
               steps({"eventAfterDeleteGuest()", "eventEditGroup(Smiths)", "eventModified()"});
    }
};

/// For the _data slot of an operation that takes `rescore`.
inline void rescoreRows()
{
    QTest::addColumn<bool>("rescore");
    QTest::newRow("with rescore") << true;
    QTest::newRow("without rescore") << false;
}
