#include "core/model/kwsortedguestlist.h"
#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <optional>

namespace {
QString namesOf(const QList<KWGuest *> &guests)
{
    QStringList names;
    for (const KWGuest *guest : guests)
        names.append(guest->displayName());
    return names.join(u' ');
}
} // namespace

class TestNames : public QObject
{
    Q_OBJECT

    std::optional<KWDocument> m_plan;
    std::optional<StepLog> m_log;
    QByteArray m_before;

    KWGuest *add(const char *display, const char *title, const char *first, const char *last,
                 const char *meal = "")
    {
        return m_plan->addGuest({.display_name = s(display),
                                 .title = s(title),
                                 .first_name = s(first),
                                 .last_name = s(last),
                                 .meal = s(meal)},
                                nullptr);
    }
    void addTables(const QList<const char *> &names)
    {
        for (const char *name : names)
            addTable(*m_plan, name, KWTable::Circular, 1);
    }
    /// The plan is complete: from here on nothing may fire or change.
    const KWDocument &asked()
    {
        m_log.emplace(*m_plan);
        m_before = contents(*m_plan);
        return *m_plan;
    }

private slots:
    void init() { m_plan.emplace(); }
    void cleanup()
    {
        QVERIFY(m_log);
        QCOMPARE(m_log->take(), QStringList());
        QCOMPARE(contents(*m_plan), m_before);
        m_log.reset();
        m_plan.reset();
    }

    void findTableGivesTheFirstOfTheName()
    {
        addTables({"Top", "SIDE", "Side", "side", "Side"});
        const KWDocument &plan = asked();
        QCOMPARE(plan.indexOfTable(plan.findTable(s("Side"), true)), 2);
        QCOMPARE(plan.indexOfTable(plan.findTable(s("Side"), false)), 1);
        QCOMPARE(plan.findTable(s("sIDE"), true), nullptr);
        QCOMPARE(plan.indexOfTable(plan.findTable(s("sIDE"), false)), 1);
        QCOMPARE(plan.findTable(s("Sid"), false), nullptr);
        QCOMPARE(plan.findTable({}, false), nullptr);
    }

    void findTableWithoutCaseKnowsLettersBeyondAscii()
    {
        addTables({"ÉLYSÉE"});
        const KWDocument &plan = asked();
        QCOMPARE(plan.findTable(s("élysée"), false), plan.tableAt(0));
        QCOMPARE(plan.findTable(s("élysée"), true), nullptr);
    }

    void findGroupGivesTheFirstOfTheExactName()
    {
        for (const char *name : {"smiths", "Smiths", "Smiths", ""})
            m_plan->addGroup({}, s(name), {});
        const KWDocument &plan = asked();
        QCOMPARE(plan.findGroup(s("Smiths")), plan.groupAt(1));
        QCOMPARE(plan.findGroup(s("")), plan.groupAt(3));
        QCOMPARE(plan.findGroup(s("SMITHS")), nullptr);
    }

    void theNextTableNameSkipsNamesInUseInAnyCase_data()
    {
        QTest::addColumn<QList<const char *>>("names");
        QTest::addColumn<QString>("next");
        const auto row = [](const char *what, const QList<const char *> &names, const char *next) {
            QTest::newRow(what) << names << s(next);
        };
        row("no table", {}, "Table 1");
        row("other names", {"Top", "Table", "Table1", "Table 01"}, "Table 1");
        row("in sequence", {"Table 1", "Table 2"}, "Table 3");
        row("a gap", {"Table 3", "Table 1"}, "Table 2");
        row("another case", {"TABLE 1", "table 2", "tABLE 3"}, "Table 4");
    }
    void theNextTableNameSkipsNamesInUseInAnyCase()
    {
        QFETCH(QList<const char *>, names);
        QFETCH(QString, next);
        addTables(names);
        QCOMPARE(asked().nextTableName(), next);
    }

    void theNextNamesAreThoseThatTablesWouldGetOneAfterTheOther()
    {
        addTables({"table 2", "Table 5", "Table 5"});
        const QStringList names = asked().nextTableNames(4);
        QCOMPARE(names, steps({"Table 1", "Table 3", "Table 4", "Table 6"}));
        KWDocument copy(*m_plan);
        for (const QString &name : names) {
            QCOMPARE(copy.nextTableName(), name);
            addTable(copy, qPrintable(name), KWTable::Circular, 1);
        }
    }

    void guestExistsComparesTheThreeNamesStrippedAndLowerCased_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<bool>("exists");
        const auto row = [](const char *what, const char *title, const char *first,
                            const char *last, bool exists) {
            QTest::newRow(what) << s(title) << s(first) << s(last) << exists;
        };
        row("the same", "Mr", "Bob", "Öland", true);
        row("another case", "MR", "bOB", "öLAND", true);
        row("white space", "  Mr", "Bob\t", " Öland\n", true);
        row("another title", "Dr", "Bob", "Öland", false);
        row("no title", "", "Bob", "Öland", false);
        row("another first name", "Mr", "Rob", "Öland", false);
        row("another last name", "Mr", "Bob", "Oland", false);
        row("the display name", "", "", "Bobby", false);
        row("nothing at all", "", "", "", false);
    }
    void guestExistsComparesTheThreeNamesStrippedAndLowerCased()
    {
        QFETCH(QString, title);
        QFETCH(QString, first);
        QFETCH(QString, last);
        QFETCH(bool, exists);
        add("Ann", "Ms", "Ann", "Öland");
        const KWGuest *bob = add("Bobby", "mr ", " Bob", "Öland ");
        const KWDocument &plan = asked();
        QCOMPARE(plan.guestExists(title, first, last, nullptr), exists);
        QCOMPARE(plan.guestExists(title, first, last, plan.guestAt(0)), exists);
        QVERIFY(!plan.guestExists(title, first, last, bob));
    }

    void guestExistsFindsANamesakeOfTheExceptedGuest()
    {
        const KWGuest *first = add("A", "", "Ann", "East");
        add("B", "", "ann", "east");
        const KWDocument &plan = asked();
        QVERIFY(plan.guestExists({}, s("Ann"), s("East"), first));
    }

    void guestsAreSortedByLowerCasedNameInANameOrder_data()
    {
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("sorted");
        const auto row = [](int order, const char *sorted) {
            QTest::newRow(qPrintable(KWGuest::nameOrderToString(order))) << order << s(sorted);
        };
        row(KWGuest::DisplayName, "A b C d");
        row(KWGuest::LastFirst, "b d A C");
        row(KWGuest::LastInitial, "b d A C");
        row(KWGuest::FirstLast, "b A C d");
        row(KWGuest::InitialLast, "b A C d");
        row(KWGuest::TitleFirstLast, "C b A d");
        row(KWGuest::TitleInitialLast, "C b A d");
    }
    void guestsAreSortedByLowerCasedNameInANameOrder()
    {
        QFETCH(int, order);
        QFETCH(QString, sorted);
        add("d", "", "zoe", "adams");
        add("C", "Dr", "Paul", "Zane");
        add("b", "Mr", "Amy", "Adams");
        add("A", "Ms", "ben", "North");
        const KWDocument &plan = asked();
        QCOMPARE(namesOf(plan.sortedGuests(order)), sorted);
        QCOMPARE(namesOf(plan.guests()), s("d C b A"));
    }

    void guestsOfEqualNamesAreSortedInReverseListOrder()
    {
        for (const char *meal : {"1", "2", "3"}) {
            add("ann", "", "", "", meal);
            add("Bob", "", "", "", meal);
            add("ANN", "", "", "", meal);
        }
        const KWDocument &plan = asked();
        QList<int> order;
        for (const KWGuest *guest : plan.sortedGuests(KWGuest::DisplayName))
            order.append(plan.indexOfGuest(guest));
        QCOMPARE(order, QList<int>({8, 6, 5, 3, 2, 0, 7, 4, 1}));
        // All names are empty in this order.
        QCOMPARE(plan.sortedGuests(KWGuest::FirstLast).first(), plan.guestAt(8));
        QCOMPARE(plan.sortedGuests(KWGuest::FirstLast).last(), plan.guestAt(0));
    }

    void namesAreComparedAsPlainText()
    {
        for (const char *name : {"zoe", "Élan", "a b", "a-b", "ab", "10", "9"})
            add(name, "", "", "");
        QCOMPARE(namesOf(asked().sortedGuests(0)), s("10 9 a b a-b ab zoe Élan"));
    }

    void aSortedListComparesByItsNameOrder()
    {
        const KWGuest *ann = add("Ann", "", "X", "");
        const KWGuest *bob = add("Bob", "", "x", "");
        asked();
        const KWSortedGuestList byDisplayName(KWGuest::DisplayName);
        QCOMPARE(byDisplayName.compareItems(ann, bob), -1);
        QCOMPARE(byDisplayName.compareItems(bob, ann), 1);
        QCOMPARE(byDisplayName.compareItems(ann, ann), 0);
        QCOMPARE(KWSortedGuestList(KWGuest::FirstLast).compareItems(ann, bob), 0);
    }

    void mealsAreDistinctAndSorted()
    {
        for (const char *meal : {"fish", "Beef", "beef", "fish", "vegetables"})
            add("G", "", "", "", meal);
        QCOMPARE(asked().meals(), steps({"Beef", "beef", "fish", "vegetables"}));
    }

    void theEmptyMealIsOneOfTheMealsIfAGuestHasIt()
    {
        for (const char *meal : {"fish", "", ""})
            add("G", "", "", "", meal);
        QCOMPARE(asked().meals(), steps({"", "fish"}));
        QCOMPARE(KWDocument().meals(), QStringList());
    }

    void titlesAreTheUsualOnesAndThoseInUse()
    {
        QCOMPARE(asked().titles(), steps({"", "Dr", "Master", "Miss", "Mr", "Mrs", "Ms"}));
        m_log.reset();
        for (const char *title : {"Sir", "Mr", "Sir", "", "Capt"})
            add("G", title, "", "");
        QCOMPARE(asked().titles(),
                 steps({"", "Capt", "Dr", "Master", "Miss", "Mr", "Mrs", "Ms", "Sir"}));
    }

    void proximityPairsAreThoseOfOneValueInStoredOrder()
    {
        const QList<KWGuest *> g = addGuests(*m_plan, 4);
        m_plan->setAffinity(g[2], g[0], KWScore::Loves, false);
        m_plan->setAffinity(g[1], g[3], KWScore::Hates, false);
        m_plan->setAffinity(g[3], g[0], KWScore::Loves, false);
        m_plan->setAffinity(g[0], g[3], KWScore::Hates, false);
        const KWDocument &plan = asked();
        using Pairs = QList<KWDocument::GuestPair>;
        QCOMPARE(plan.proximityPairs(KWScore::Loves), Pairs({{g[2], g[0]}}));
        const Pairs hated = plan.proximityPairs(KWScore::Hates);
        QCOMPARE(hated.size(), 2);
        QVERIFY(hated.contains({g[1], g[3]}));
        QVERIFY(hated.contains({g[0], g[3]}));
        for (const int value : {KWScore::Likes, KWScore::Neutral, KWScore::Dislikes})
            QCOMPARE(plan.proximityPairs(value), Pairs());
    }
};

REGISTER_TEST(TestNames)
#include "tst_kwdocument_names.moc"
