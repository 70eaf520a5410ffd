#include "core/charts/kwwishes.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

namespace {
/// Ann and Bob at a table of six or apart, with a wish of Ann's for Bob.
struct Pair
{
    explicit Pair(int value, int annSeat, int bobSeat, bool bobElsewhere = false)
    {
        ann = addGuest(plan, {.name = "Ann"});
        bob = addGuest(plan, {.name = "Bob"});
        KWTable *one = addTable(plan, "one", KWTable::Circular, 6);
        KWTable *two = addTable(plan, "two", KWTable::Circular, 6);
        if (annSeat >= 0)
            plan.assignGuest(ann, one, annSeat, false);
        if (bobSeat >= 0)
            plan.assignGuest(bob, bobElsewhere ? two : one, bobSeat, false);
        plan.setAffinity(ann, bob, value, true);
    }

    KWWish wish() const { return KWWish::all(plan).constFirst(); }

    KWDocument plan;
    KWGuest *ann;
    KWGuest *bob;
};

/// The points of all entries that come from wishes.
int wishPoints(const KWDocument &plan)
{
    int points = 0;
    for (const KWTable *table : plan.tables()) {
        for (const KWSeatScore &seat : table->seatScores()) {
            for (int entry = KWScore::LovesEntry; entry <= KWScore::HatesEntry; ++entry)
                points += seat[static_cast<std::size_t>(entry)];
        }
    }
    return points;
}
} // namespace

class TestWishes : public QObject
{
    Q_OBJECT

private slots:
    void aWishKnowsWhetherAndWhyItIsNotMet_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("annSeat");
        QTest::addColumn<int>("bobSeat");
        QTest::addColumn<bool>("bobElsewhere");
        QTest::addColumn<int>("points");
        QTest::addColumn<QString>("sentence");

        const auto row = [](const char *name, int value, int annSeat, int bobSeat,
                            bool bobElsewhere, int points, const char *sentence) {
            QTest::newRow(name) << value << annSeat << bobSeat << bobElsewhere << points
                                << s(sentence);
        };
        using namespace KWScore;
        row("next to, side by side", Loves, 5, 0, false, 40, "Ann should sit next to Bob");
        row("next to, one table", Loves, 1, 3, false, 20,
            "Ann should sit next to Bob, but they are at one table, not side by side");
        row("next to, two tables", Loves, 1, 2, true, 0,
            "Ann should sit next to Bob, but they are at different tables");
        row("next to, first without a seat", Loves, -1, 2, false, 0,
            "Ann should sit next to Bob, but Ann has no seat");
        row("next to, second without a seat", Loves, 2, -1, false, 0,
            "Ann should sit next to Bob, but Bob has no seat");
        row("next to, both without a seat", Loves, -1, -1, false, 0,
            "Ann should sit next to Bob, but neither has a seat");
        row("near to, side by side", Likes, 1, 2, false, 10, "Ann should sit near Bob");
        row("near to, one table", Likes, 1, 3, false, 4, "Ann should sit near Bob");
        row("near to, two tables", Likes, 1, 2, true, 0,
            "Ann should sit near Bob, but they are at different tables");
        row("not next to, side by side", Dislikes, 1, 2, false, -20,
            "Ann should not sit next to Bob, but they sit side by side");
        row("not next to, one table", Dislikes, 1, 3, false, -10, "Ann should not sit next to Bob");
        row("not next to, without a seat", Dislikes, -1, 3, false, 0,
            "Ann should not sit next to Bob");
        row("not near to, side by side", Hates, 1, 2, false, -80,
            "Ann should not sit near Bob, but they sit side by side");
        row("not near to, one table", Hates, 1, 3, false, -40,
            "Ann should not sit near Bob, but they are at one table");
        row("not near to, two tables", Hates, 1, 2, true, 0, "Ann should not sit near Bob");
        row("not near to, without a seat", Hates, -1, -1, false, 0, "Ann should not sit near Bob");
    }

    void aWishKnowsWhetherAndWhyItIsNotMet()
    {
        QFETCH(int, value);
        QFETCH(int, annSeat);
        QFETCH(int, bobSeat);
        QFETCH(bool, bobElsewhere);
        QFETCH(int, points);
        QFETCH(QString, sentence);
        const Pair pair(value, annSeat, bobSeat, bobElsewhere);
        const KWWish wish = pair.wish();
        QCOMPARE(wish.first, pair.ann);
        QCOMPARE(wish.second, pair.bob);
        QCOMPARE(wish.value, value);
        QCOMPARE(wish.isMet, !sentence.contains(s(", but ")));
        QCOMPARE(wish.sentence(), sentence);
        QCOMPARE(wish.points, points);
    }

    void metWishesSayHowTheTwoSitToo()
    {
        QCOMPARE(Pair(KWScore::Loves, 1, 2).wish().found(), s("they sit side by side"));
        QCOMPARE(Pair(KWScore::Likes, 1, 3).wish().found(), s("they are at one table"));
        QCOMPARE(Pair(KWScore::Hates, 1, 3, true).wish().found(),
                 s("they are at different tables"));
    }

    void theCallerSaysHowGuestsAreCalled()
    {
        const Pair pair(KWScore::Loves, -1, 3);
        const auto number = [&](const KWGuest &guest) {
            return s("#%1 %2").arg(pair.plan.indexOfGuest(&guest));
        };
        // A name that looks like a place to fill stays as it is.
        QCOMPARE(pair.wish().sentence(number), s("#0 %2 should sit next to #1 %2, but #0 %2 has no "
                                                 "seat"));
    }

    void theEndsOfAHeadTableAreNotSideBySide()
    {
        KWDocument plan;
        KWGuest *ann = addGuest(plan, {.name = "Ann"});
        KWGuest *bob = addGuest(plan, {.name = "Bob"});
        KWTable *table = addTable(plan, "T", KWTable::HeadTop, 4);
        plan.assignGuest(ann, table, 0, false);
        plan.assignGuest(bob, table, 3, false);
        plan.setAffinity(ann, bob, KWScore::Dislikes, true);
        QVERIFY(KWWish::all(plan).constFirst().isMet);
    }

    void pointsAreWhatTheWishBringsToTheScore()
    {
        // VIPs, rings of two and all.
        for (unsigned seed = 1; seed <= 20; ++seed) {
            KWDocument plan;
            fillRandomly(plan, {.seed = seed});
            plan.randomLayout();
            int sum = 0;
            for (const KWWish &wish : KWWish::all(plan))
                sum += wish.points;
            QCOMPARE(sum, wishPoints(plan));
        }
        KWDocument plan;
        const QList<KWGuest *> two = addGuests(plan, 2);
        KWTable *ring = addTable(plan, "T", KWTable::Circular, 2);
        plan.assignGuest(two.at(0), ring, 0, false);
        plan.assignGuest(two.at(1), ring, 1, false);
        plan.setGuestVip(two.at(0), true);
        plan.setAffinity(two.at(0), two.at(1), KWScore::Loves, true);
        QCOMPARE(KWWish::all(plan).constFirst().points, 160);
    }

    void nobodyHasAWishForThemself()
    {
        Pair pair(KWScore::Loves, 1, 2);
        pair.plan.setAffinity(pair.ann, pair.ann, KWScore::Hates, true);
        QCOMPARE(KWWish::all(pair.plan).size(), 1);
    }

    void countsAreSentences()
    {
        KWDocument plan;
        QCOMPARE(KWWish::unmetText(KWWish::all(plan)), s("There are no wishes"));
        QCOMPARE(KWWish::unseatedText(plan), s("Every guest has a seat"));
        const QList<KWGuest *> guests = addGuests(plan, 4);
        const auto unmet = [&] { return KWWish::unmetText(KWWish::all(plan)); };
        plan.setAffinity(guests.at(0), guests.at(1), KWScore::Hates, true);
        QCOMPARE(unmet(), s("The wish is met"));
        plan.setAffinity(guests.at(1), guests.at(2), KWScore::Hates, true);
        QCOMPARE(unmet(), s("All 2 wishes are met"));
        plan.setAffinity(guests.at(2), guests.at(3), KWScore::Loves, true);
        QCOMPARE(unmet(), s("1 of 3 wishes is not met"));
        plan.setAffinity(guests.at(0), guests.at(3), KWScore::Likes, true);
        QCOMPARE(unmet(), s("2 of 4 wishes are not met"));
        QCOMPARE(KWWish::unmetCount(KWWish::all(plan)), 2);
        QCOMPARE(KWWish::unseatedText(plan), s("4 guests have no seat"));
        KWTable *table = addTable(plan, "T", KWTable::Circular, 3);
        for (int seat = 0; seat < 3; ++seat)
            plan.assignGuest(guests.at(seat), table, seat, false);
        QCOMPARE(KWWish::unseatedText(plan), s("1 guest has no seat"));
        const Pair pair(KWScore::Loves, 1, 3);
        QCOMPARE(KWWish::unmetText(KWWish::all(pair.plan)), s("The wish is not met"));
    }
};

REGISTER_TEST(TestWishes)
#include "tst_kwwishes.moc"
