#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

#include <deque>

namespace {
struct Member
{
    const char *title = "";
    const char *first = "";
    const char *last = "";
    int gender = KWGuest::Undefined;
    int age = KWGuest::Adult;
    bool locked = false;
};
using Members = QList<Member>;

constexpr auto M = KWGuest::Male;
constexpr auto F = KWGuest::Female;
constexpr auto U = KWGuest::Undefined;
constexpr auto Child = KWGuest::Child;

/// A group and its members, whose display names are "a", "b", ... in membership order.
class Party
{
public:
    KWGroup group;

    explicit Party(const Members &members, const QString &name = s("The party"))
        : group({}, name, {})
    {
        for (const Member &m : members)
            add(m);
    }

    QString letters(const QList<KWGuest *> &guests) const
    {
        QString result;
        for (const KWGuest *guest : guests)
            result += guest->displayName();
        return result;
    }
    QString letters() const { return letters(group.guests()); }

private:
    void add(const Member &m)
    {
        const QString name(QLatin1Char(static_cast<char>('a' + m_guests.size())));
        m_guests.emplace_back(KWGuestValues{.display_name = name,
                                            .title = s(m.title),
                                            .first_name = s(m.first),
                                            .last_name = s(m.last),
                                            .gender = m.gender,
                                            .age = m.age,
                                            .locked = m.locked});
        m_guests.back().setGroup(&group);
        group.appendGuest(&m_guests.back());
    }

    std::deque<KWGuest> m_guests;
};

/// A member for each letter: men, women and others as M, F and U, children as m, f and u.
Members membersOf(const QString &letters)
{
    Members result;
    for (const QChar letter : letters) {
        const QChar upper = letter.toUpper();
        result.append(Member{.gender = upper == u'M'   ? M
                                       : upper == u'F' ? F
                                                       : U,
                             .age = letter.isUpper() ? KWGuest::Adult : Child});
    }
    return result;
}
} // namespace

class TestGroup : public QObject
{
    Q_OBJECT

private slots:
    void constructorFillsEveryField()
    {
        KWContact contact;
        contact.city = s("Bath");
        const KWGroup group(contact, s("Friends"), s("late"));
        QVERIFY(group.contact() == contact);
        QCOMPARE(group.name(), s("Friends"));
        QCOMPARE(group.notes(), s("late"));
        QCOMPARE(group.guestCount(), 0);
        QVERIFY(group.guests().isEmpty());
    }

    void copyTakesEverythingButTheMembers()
    {
        Party party(membersOf(s("MF")), s("Friends"));
        KWContact contact;
        contact.zip = s("BA1");
        party.group.setContact(contact);
        party.group.setNotes(s("late"));
        KWGroup copy(party.group);
        QVERIFY(copy.contact() == contact);
        QCOMPARE(copy.name(), s("Friends"));
        QCOMPARE(copy.notes(), s("late"));
        QCOMPARE(copy.guestCount(), 0);
        copy.setName(s("Others"));
        copy.setContact({});
        QCOMPARE(party.group.name(), s("Friends"));
        QVERIFY(party.group.contact() == contact);
        QCOMPARE(party.letters(), s("ab"));
    }

    void membersKeepTheOrderInWhichTheyJoined()
    {
        Party party(membersOf(s("fUM")));
        KWGroup &group = party.group;
        QCOMPARE(party.letters(), s("abc"));
        KWGuest *first = group.guestAt(0);
        group.removeGuest(first);
        QCOMPARE(party.letters(), s("bc"));
        group.appendGuest(first);
        QCOMPARE(party.letters(), s("bca"));
        QCOMPARE(group.guestCount(), 3);
        QCOMPARE(group.guestAt(2), first);
        QVERIFY(!group.guestAt(3));
        QVERIFY(!group.guestAt(-1));
        QCOMPARE(first->group(), &group);
    }

    void adultsAreInMembershipOrder()
    {
        const Party party(membersOf(s("uFmMfU")));
        QCOMPARE(party.letters(party.group.adults()), s("bdf"));
        QVERIFY(Party({}).group.adults().isEmpty());
        QVERIFY(Party(membersOf(s("mfu"))).group.adults().isEmpty());
    }

    void unlockedMembersAreCounted()
    {
        QCOMPARE(Party({}).group.unlockedCount(), 0);
        QCOMPARE(Party(membersOf(s("MFm"))).group.unlockedCount(), 3);
        const Member locked{.locked = true};
        QCOMPARE(Party({locked, {}, locked, {}}).group.unlockedCount(), 2);
        QCOMPARE(Party({locked}).group.unlockedCount(), 0);
    }

    void aCoupleIsTwoAdultsOfDifferentGender_data()
    {
        QTest::addColumn<QString>("members");
        QTest::addColumn<bool>("couple");
        QTest::newRow("nobody") << s("") << false;
        QTest::newRow("one man") << s("M") << false;
        QTest::newRow("man and woman") << s("MF") << true;
        QTest::newRow("woman and man") << s("FM") << true;
        QTest::newRow("two men") << s("MM") << false;
        QTest::newRow("two women") << s("FF") << false;
        QTest::newRow("one of undefined gender") << s("MU") << false;
        QTest::newRow("the other of undefined gender") << s("UF") << false;
        QTest::newRow("both of undefined gender") << s("UU") << false;
        QTest::newRow("man and woman with three children") << s("MFmfu") << true;
        QTest::newRow("a child between") << s("MfF") << true;
        QTest::newRow("one of the two is a child") << s("Mf") << false;
        QTest::newRow("two children") << s("mf") << false;
        QTest::newRow("three adults") << s("MFU") << false;
        QTest::newRow("one adult among children") << s("mMf") << false;
    }
    void aCoupleIsTwoAdultsOfDifferentGender()
    {
        QFETCH(QString, members);
        QTEST(Party(membersOf(members)).group.isCouple(), "couple");
    }

    void kindLooksAtTheFirstAndTheLastMember_data()
    {
        QTest::addColumn<QString>("members");
        QTest::addColumn<int>("kind");
        QTest::newRow("nobody") << s("") << 3;
        QTest::newRow("one man") << s("M") << 0;
        QTest::newRow("one child") << s("u") << 0;
        QTest::newRow("man and woman") << s("MF") << 1;
        QTest::newRow("undefined differs from male") << s("UM") << 1;
        QTest::newRow("two children") << s("fm") << 1;
        QTest::newRow("man and girl") << s("Mf") << 1;
        QTest::newRow("two women") << s("FF") << 3;
        QTest::newRow("two of undefined gender") << s("UU") << 3;
        QTest::newRow("couple with a daughter last") << s("MFf") << 2;
        QTest::newRow("couple with a son last") << s("MFm") << 3;
        QTest::newRow("couple with a son last, woman first") << s("FMm") << 2;
        QTest::newRow("the child is not last") << s("MfF") << 3;
        QTest::newRow("three adults") << s("MMF") << 3;
        QTest::newRow("children only") << s("mmf") << 2;
        QTest::newRow("four, child last") << s("MFMu") << 2;
    }
    void kindLooksAtTheFirstAndTheLastMember()
    {
        QFETCH(QString, members);
        QTEST(Party(membersOf(members)).group.kind(), "kind");
    }

    void sortingIsStable_data()
    {
        QTest::addColumn<QString>("members");
        QTest::addColumn<QString>("sorted");
        QTest::newRow("nobody") << s("") << s("");
        QTest::newRow("one") << s("u") << s("a");
        QTest::newRow("all kinds, last first") << s("ufmUFM") << s("fedcba");
        QTest::newRow("equals keep their order") << s("FMFMFM") << s("bdface");
        QTest::newRow("children after all adults") << s("mUfFuM") << s("fdbace");
        QTest::newRow("a large party")
            << s("FMFMFMFMFMFMFMFMFMFMFMFM") << s("bdfhjlnprtvxacegikmoqsuw");
        QTest::newRow("in order already") << s("MMFUmfu") << s("abcdefg");
    }
    void sortingIsStable()
    {
        QFETCH(QString, members);
        const Party party(membersOf(members));
        QList<KWGuest *> guests = party.group.guests();
        KWGroup::sortGuests(guests);
        QTEST(party.letters(guests), "sorted");
    }

    void addressOfAGroup_data()
    {
        QTest::addColumn<Members>("members");
        QTest::addColumn<QString>("joinWord");
        QTest::addColumn<QString>("address");
        const auto row = [](const char *name, const Members &members, const char *address,
                            const char *joinWord = "&") {
            QTest::newRow(name) << members << s(joinWord) << s(address);
        };
        const Member mr{"Mr", "John", "Smith", M};
        const Member mrs{"Mrs", "Jane", "Smith", F};
        row("man and woman with last name and titles", {mr, mrs}, "Mr & Mrs J. Smith");
        row("the woman first", {mrs, mr}, "Mr & Mrs J. Smith");
        row("the man's initial", {{"Mrs", "Ann", "Smith", F}, mr}, "Mr & Mrs J. Smith");
        row("titles and no initial", {{"Mr", "", "Smith", M}, mrs}, "Mr & Mrs Smith");
        row("titles and no last names", {{"Mr", "John", "", M}, {"Mrs", "Ann", "", F}},
            "Mr & Mrs J.");
        row("one title gives initials", {mr, {"", "Ann", "Smith", F}}, "J. & A. Smith");
        row("no titles", {{"", "John", "Smith", M}, {"", "Ann", "Smith", F}}, "J. & A. Smith");
        row("no titles and one initial", {{"", "", "Smith", F}, {"", "John", "Smith", M}},
            "J. Smith");
        row("one title and one initial", {{"Mrs", "", "Smith", F}, {"", "John", "Smith", M}},
            "J. Smith");
        row("no titles and no first names", {{"", "", "Smith", M}, {"", "", "Smith", F}}, "Smith");
        row("last names differ", {{"Dr", "Ann", "Jones", F}, mr}, "Mr J. Smith & Dr A. Jones");
        row("last names differ in case", {mr, {"", "Ann", "smith", F}}, "Mr J. Smith & A. smith");
        row("one last name", {{"", "John", "", M}, {"Mrs", "", "Jones", F}}, "J. & Mrs Jones");
        row("a couple and children", {{"", "Tim", "Smith", M, Child}, mrs, mr},
            "Mr & Mrs J. Smith");
        row("three adults", {{"Dr", "Uma", "Smith", U}, mrs, mr}, "Mr J. Smith");
        row("three adults without a man", {{"Dr", "Uma", "Smith", U}, mrs, {"", "Ann", "Lee", F}},
            "Mrs J. Smith");
        row("two men", {{"", "Tom", "Jones", M}, mr}, "T. Jones");
        row("one guest", {mrs}, "Mrs J. Smith");
        row("an adult after a child", {{"", "Tim", "Smith", M, Child}, mrs}, "Mrs J. Smith");
        row("nothing but a display name", {{}}, "");
        row("a couple without any names", {{"", "", "", M}, {"", "", "", F}}, "");
        row("another join word", {mr, mrs}, "Mr and Mrs J. Smith", "and");
        row("no join word", {mr, mrs}, "Mr Mrs J. Smith", "");
        row("place holders are ordinary text", {{"%1", "%2", "%3", M}, {"%4", "x", "%5", F}},
            "%1 %. %3 %1 %4 x. %5", "%1");
    }
    void addressOfAGroup()
    {
        QFETCH(Members, members);
        QFETCH(QString, joinWord);
        const Party party(members);
        QTEST(party.group.addressName(joinWord), "address");
    }

    void addressOfAnEmptyGroupIsItsName()
    {
        QCOMPARE(Party({}, s("The Smiths ")).group.addressName(s("&")), s("The Smiths "));
        QCOMPARE(Party({}, {}).group.addressName(s("&")), QString());
    }

    void firstNamesInOneSentence_data()
    {
        QTest::addColumn<Members>("members");
        QTest::addColumn<QString>("joinWord");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char *name, const Members &members, const char *sentence,
                            const char *joinWord = "&") {
            QTest::newRow(name) << members << s(joinWord) << s(sentence);
        };
        const Member ann{.first = "Ann"};
        const Member bob{.first = "Bob"};
        const Member cid{.first = "Cid"};
        row("nobody", {}, "");
        row("one", {ann}, "Ann");
        row("two", {ann, bob}, "Ann & Bob");
        row("three", {ann, bob, cid}, "Ann, Bob & Cid");
        row("four", {cid, ann, bob, ann}, "Cid, Ann, Bob & Ann");
        row("sorted", {{"", "Tim", "", M, Child}, {"", "Ann", "", F}, {"", "Bob", "", M}},
            "Bob, Ann & Tim");
        row("empty names are left out", {{}, ann, {}, bob, {}}, "Ann & Bob");
        row("nobody with a first name", {{}, {.last = "Smith"}}, "");
        row("another join word", {ann, bob, cid}, "Ann, Bob and Cid", "and");
        row("no join word leaves its blanks", {ann, bob}, "Ann  Bob", "");
        row("place holders are ordinary text", {{.first = "%1"}, {.first = "%2"}}, "%1 %1 %2",
            "%1");
    }
    void firstNamesInOneSentence()
    {
        QFETCH(Members, members);
        QFETCH(QString, joinWord);
        const Party party(members);
        QTEST(party.group.firstNames(joinWord), "sentence");
    }

    void namingAGroupDoesNotReorderIt()
    {
        const Party family(
            {{"", "Tim", "Lee", M, Child}, {"", "Ann", "Lee", F}, {"", "Bob", "Lee", M}});
        QCOMPARE(family.group.addressName(s("&")), s("B. & A. Lee"));
        QCOMPARE(family.group.firstNames(s("&")), s("Bob, Ann & Tim"));
        QCOMPARE(family.letters(), s("abc"));
    }
};

REGISTER_TEST(TestGroup)
#include "tst_kwgroup.moc"
