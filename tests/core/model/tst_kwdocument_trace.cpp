#include "core/model/kwmodelhooks.h"
#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
/// Gathers the lines of the trace for as long as it lives.
class TraceSink
{
public:
    TraceSink()
    {
        modelHooks().trace = [this](const QString &line) { m_lines.append(line); };
    }
    ~TraceSink() { modelHooks().trace = nullptr; }
    Q_DISABLE_COPY_MOVE(TraceSink)

    QStringList take() { return std::exchange(m_lines, {}); }

private:
    QStringList m_lines;
};
} // namespace

class TestTrace : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyPlanIsOneEmptyLine()
    {
        TraceSink sink;
        KWDocument().debugDump();
        QCOMPARE(sink.take(), steps({""}));
    }

    void guestsSeatsAndWishesAreWrittenOneLineEach()
    {
        EditedPlan party;
        party.plan.setAffinity(party.bob, party.ann, KWScore::Hates, false);
        party.log.take();
        TraceSink sink;
        party.plan.debugDump();
        QCOMPARE(sink.take(),
                 steps({"", "guest Ann", "guest Bob", "guest Cid", "guest Dan", "table Top",
                        "seat 0 = assigned Ann", "seat 1 = assigned Bob", "seat 2 = (empty)",
                        "seat 3 = (empty)", "table Side", "seat 0 = assigned Cid",
                        "seat 1 = (empty)", "seat 2 = (empty)", "affinity Bob for Ann = 4"}));
        QCOMPARE(party.log.take(), QStringList());
    }

    void wishesAreWrittenInTheOrderOfTheStore()
    {
        EditedPlan party;
        party.plan.setAffinity(party.dan, party.ann, KWScore::Loves, false);
        party.plan.setAffinity(party.bob, party.cid, KWScore::Likes, false);
        party.plan.setAffinity(party.cid, party.dan, KWScore::Dislikes, false);
        party.plan.setAffinity(party.cid, party.dan, KWScore::Neutral, false);
        party.plan.setAffinity(party.ann, party.cid, KWScore::Hates, false);
        QStringList expected;
        for (const KWDocument::Affinity &wish : party.plan.affinities()) {
            expected.append(
                s("affinity %1 for %2 = %3")
                    .arg(wish.first->name(), wish.second->name(), QString::number(wish.value)));
        }
        TraceSink sink;
        party.plan.debugDump();
        QStringList lines = sink.take().mid(14);
        QCOMPARE(lines, expected);
        lines.sort();
        QCOMPARE(lines, steps({"affinity Ann for Cid = 4", "affinity Bob for Cid = 1",
                               "affinity Dan for Ann = 0"}));
    }

    void placeHoldersInNamesAreShownAsTheyStand()
    {
        KWDocument plan;
        KWGuest *first = addGuest(plan, {.name = "100%2"});
        KWGuest *second = addGuest(plan, {.name = "%1 %3"});
        KWTable *table = addTable(plan, "%1", KWTable::Circular, 1);
        plan.assignGuest(first, table, 0, false);
        plan.setAffinity(first, second, KWScore::Likes, false);
        TraceSink sink;
        plan.debugDump();
        QCOMPARE(sink.take(), steps({"", "guest 100%2", "guest %1 %3", "table %1",
                                     "seat 0 = assigned 100%2", "affinity 100%2 for %1 %3 = 1"}));
    }

    void guestsAreWrittenByTheirStrippedDisplayName()
    {
        KWDocument plan;
        plan.addGuest({.display_name = s("  Ann "),
                       .title = s("Ms"),
                       .first_name = s("Anna"),
                       .last_name = s("Smith")},
                      nullptr);
        TraceSink sink;
        plan.debugDump();
        QCOMPARE(sink.take(), steps({"", "guest Ann"}));
    }

    void linesAreATextATextAndATextOrATextAndANumber()
    {
        TraceSink sink;
        traceLine(s("a"));
        traceLine(s("%1 "), s("%2"));
        traceLine(s("n = "), -3);
        QCOMPARE(sink.take(), steps({"a", "%1 %2", "n = -3"}));
    }

    void withoutASinkNothingIsWritten()
    {
        {
            TraceSink sink;
            traceLine(s("a"));
            QCOMPARE(sink.take(), steps({"a"}));
        }
        QVERIFY(!modelHooks().trace);
        EditedPlan party;
        party.plan.debugDump();
        QCOMPARE(party.log.take(), QStringList());
    }
};

REGISTER_TEST(TestTrace)
#include "tst_kwdocument_trace.moc"
