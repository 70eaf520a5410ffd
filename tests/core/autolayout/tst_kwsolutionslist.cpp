#include "core/autolayout/kwsolutionslist.h"

#include "../drawnplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <algorithm>
#include <random>

namespace {
/// A candidate that can be told by its history, with so many seated guests and this score.
std::unique_ptr<KWDocument> candidate(int seated, int score, const QString &name = {})
{
    auto plan = std::make_unique<KWDocument>();
    KWTable *table = addTable(*plan, "table", KWTable::Circular, seated);
    const QList<KWGuest *> guests = addGuests(*plan, seated);
    for (int seat = 0; seat < seated; ++seat)
        plan->assignGuest(guests.at(seat), table, seat, false);
    table->setScores(table->seatScores(), score);
    plan->setHistory(name);
    return plan;
}

QStringList names(const KWSolutionsList &list)
{
    QStringList result;
    for (int i = 0; i < list.count(); ++i)
        result.append(list.at(i)->history());
    return result;
}

QList<const KWDocument *> pointers(const KWSolutionsList &list)
{
    QList<const KWDocument *> result;
    for (int i = 0; i < list.count(); ++i)
        result.append(list.at(i));
    return result;
}
} // namespace

class TestSolutionsList : public QObject
{
    Q_OBJECT

private slots:
    void theBetterCandidateComparesAsLess_data()
    {
        QTest::addColumn<int>("seatedA");
        QTest::addColumn<int>("scoreA");
        QTest::addColumn<int>("seatedB");
        QTest::addColumn<int>("scoreB");
        QTest::addColumn<int>("result");
        QTest::newRow("more seated") << 3 << 5 << 2 << 5 << -1;
        QTest::newRow("fewer seated") << 2 << 5 << 3 << 5 << 1;
        QTest::newRow("seated guests outrank the score") << 3 << -900 << 2 << 900 << -1;
        QTest::newRow("a score does not outrank seated guests") << 2 << 900 << 3 << -900 << 1;
        QTest::newRow("higher score") << 2 << 6 << 2 << 5 << -1;
        QTest::newRow("lower score") << 2 << -6 << 2 << 5 << 1;
        QTest::newRow("equal") << 2 << 5 << 2 << 5 << 0;
        QTest::newRow("nobody seated") << 0 << 0 << 0 << 0 << 0;
    }
    void theBetterCandidateComparesAsLess()
    {
        QFETCH(const int, seatedA);
        QFETCH(const int, scoreA);
        QFETCH(const int, seatedB);
        QFETCH(const int, scoreB);
        const auto a = candidate(seatedA, scoreA);
        const auto b = candidate(seatedB, scoreB);
        QTEST(KWSolutionsList::compareItems(a.get(), b.get()), "result");
    }

    void nullComesLast()
    {
        const auto some = candidate(0, 0);
        QCOMPARE(KWSolutionsList::compareItems(nullptr, some.get()), 1);
        QCOMPARE(KWSolutionsList::compareItems(some.get(), nullptr), -1);
        QCOMPARE(KWSolutionsList::compareItems(nullptr, nullptr), 1);
    }

    void sortingPutsTheBestFirstAndEqualsKeepTheirOrder()
    {
        KWSolutionsList list;
        list.append(candidate(1, 9, s("one seated")));
        list.append(candidate(2, 4, s("first of equals")));
        list.append(candidate(3, -7, s("three seated")));
        list.append(candidate(2, 4, s("second of equals")));
        list.append(candidate(2, 5, s("higher score")));
        list.append(candidate(2, 4, s("third of equals")));
        list.sort();
        QCOMPARE(names(list),
                 (QStringList{s("three seated"), s("higher score"), s("first of equals"),
                              s("second of equals"), s("third of equals"), s("one seated")}));
    }

    void sortingFollowsTheComparison()
    {
        std::mt19937 engine(1);
        KWSolutionsList list;
        for (int i = 0; i < 200; ++i)
            list.append(candidate(static_cast<int>(engine() % 4), static_cast<int>(engine() % 5)));
        QList<const KWDocument *> expected = pointers(list);
        std::ranges::stable_sort(expected, [](const KWDocument *a, const KWDocument *b) {
            return KWSolutionsList::compareItems(a, b) < 0;
        });
        list.sort();
        QCOMPARE(pointers(list), expected);
        list.sort();
        QCOMPARE(pointers(list), expected);
    }

    void sortingAnEmptyListLeavesItEmpty()
    {
        KWSolutionsList list;
        list.sort();
        QCOMPARE(list.count(), 0);
        QVERIFY(list.isEmpty());
        QCOMPARE(list.first(), nullptr);
    }

    void candidatesOfAnotherListGoToTheEnd()
    {
        KWSolutionsList list;
        KWSolutionsList other;
        list.append(candidate(0, 0, s("A")));
        other.append(candidate(2, 0, s("B")));
        other.append(candidate(1, 0, s("C")));
        const KWDocument *first = list.first();
        const KWDocument *moved = other.first();
        list.append(std::move(other));
        QCOMPARE(names(list), (QStringList{s("A"), s("B"), s("C")}));
        QCOMPARE(list.first(), first);
        QCOMPARE(list.at(1), moved);
        QCOMPARE(other.count(), 0); // NOLINT(bugprone-use-after-move): the list says so
    }

    void theListOwnsItsCandidates()
    {
        const int alive = KWDocument::liveCount();
        {
            KWSolutionsList list;
            for (const auto &name : {s("A"), s("B"), s("C"), s("D")})
                list.append(candidate(0, 0, name));
            list.remove(1);
            QCOMPARE(names(list), (QStringList{s("A"), s("C"), s("D")}));
            QCOMPARE(KWDocument::liveCount(), alive + 3);
            list.clear();
            QVERIFY(list.isEmpty());
            QCOMPARE(KWDocument::liveCount(), alive);
            list.append(candidate(0, 0));
        }
        QCOMPARE(KWDocument::liveCount(), alive);
    }
};

REGISTER_TEST(TestSolutionsList)
#include "tst_kwsolutionslist.moc"
