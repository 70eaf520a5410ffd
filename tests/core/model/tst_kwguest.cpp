#include "support/brackettranslator.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

#include <functional>

namespace {
using Change = std::function<void(KWGuest &)>;

KWGuest named(const char *title, const char *first, const char *last)
{
    return KWGuest({.display_name = s("Shown"),
                    .title = s(title),
                    .first_name = s(first),
                    .last_name = s(last)});
}

KWGuest ofKind(int gender, int age)
{
    return KWGuest({.display_name = s("Shown"), .gender = gender, .age = age});
}

KWGuestValues completeValues()
{
    return {.display_name = s("Johnny"),
            .title = s("Dr"),
            .first_name = s("John"),
            .last_name = s("Smith"),
            .meal = s("fish"),
            .gender = KWGuest::Male,
            .age = KWGuest::Child,
            .locked = true,
            .notes = s("late"),
            .vip = false,
            .accepted = true};
}

KWGuest complete()
{
    return KWGuest(completeValues());
}

/// Every field of a guest but the group, in the order of KWGuestValues.
QString facts(const KWGuest &guest)
{
    const auto number = [](int n) { return QString::number(n); };
    return QStringList{guest.displayName(),
                       guest.title(),
                       guest.firstName(),
                       guest.lastName(),
                       guest.meal(),
                       number(guest.gender()),
                       number(guest.age()),
                       number(guest.isLocked()),
                       guest.notes(),
                       number(guest.isVip()),
                       number(guest.isAccepted())}
        .join(u'/');
}
} // namespace

class TestGuests : public QObject
{
    Q_OBJECT

private slots:
    void constructorFillsEveryField()
    {
        const KWGuest guest = complete();
        QCOMPARE(facts(guest), s("Johnny/Dr/John/Smith/fish/1/1/1/late/0/1"));
        QVERIFY(!guest.group());
    }

    void valuesAreAllOfAGuestButTheGroup()
    {
        KWGroup group({}, {}, {});
        KWGuest guest = complete();
        QVERIFY(guest.values() == completeValues());
        guest.setGroup(&group);
        guest.setValues({.display_name = s("Ann"), .gender = KWGuest::Female, .vip = true});
        QCOMPARE(facts(guest), s("Ann/////2/0/0//1/0"));
        QCOMPARE(guest.group(), &group);
        guest.setValues(completeValues());
        QCOMPARE(facts(guest), facts(complete()));
    }

    void copyTakesEverythingButTheGroup()
    {
        KWGroup group({}, {}, {});
        KWGuest guest = complete();
        guest.setGroup(&group);
        const KWGuest copy(guest);
        QCOMPARE(facts(copy), facts(guest));
        QVERIFY(!copy.group());
        QCOMPARE(guest.group(), &group);
    }

    void changingACopyLeavesTheOriginal()
    {
        KWGuest guest = complete();
        KWGuest copy(guest);
        copy.setLastName(s("Jones"));
        copy.setNotes(s("early"));
        guest.setMeal(s("cheese"));
        QCOMPARE(facts(guest), s("Johnny/Dr/John/Smith/cheese/1/1/1/late/0/1"));
        QCOMPARE(facts(copy), s("Johnny/Dr/John/Jones/fish/1/1/1/early/0/1"));
    }

    void aSetterChangesItsFieldOnly_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const Change &change, const char *expected) {
            QTest::newRow(name) << change << s(expected);
        };
        row(
            "display name", [](KWGuest &g) { g.setDisplayName(s("X")); },
            "X/Dr/John/Smith/fish/1/1/1/late/0/1");
        row(
            "title", [](KWGuest &g) { g.setTitle(s("X")); },
            "Johnny/X/John/Smith/fish/1/1/1/late/0/1");
        row(
            "first name", [](KWGuest &g) { g.setFirstName(s("X")); },
            "Johnny/Dr/X/Smith/fish/1/1/1/late/0/1");
        row(
            "last name", [](KWGuest &g) { g.setLastName(s("X")); },
            "Johnny/Dr/John/X/fish/1/1/1/late/0/1");
        row(
            "meal", [](KWGuest &g) { g.setMeal(s("X")); }, "Johnny/Dr/John/Smith/X/1/1/1/late/0/1");
        row(
            "gender", [](KWGuest &g) { g.setGender(2); },
            "Johnny/Dr/John/Smith/fish/2/1/1/late/0/1");
        row(
            "age", [](KWGuest &g) { g.setAge(0); }, "Johnny/Dr/John/Smith/fish/1/0/1/late/0/1");
        row(
            "locked", [](KWGuest &g) { g.setLocked(false); },
            "Johnny/Dr/John/Smith/fish/1/1/0/late/0/1");
        row(
            "notes", [](KWGuest &g) { g.setNotes(s("X")); },
            "Johnny/Dr/John/Smith/fish/1/1/1/X/0/1");
        row(
            "VIP", [](KWGuest &g) { g.setVip(true); }, "Johnny/Dr/John/Smith/fish/1/1/1/late/1/1");
        row(
            "accepted", [](KWGuest &g) { g.setAccepted(false); },
            "Johnny/Dr/John/Smith/fish/1/1/1/late/0/0");
    }
    void aSetterChangesItsFieldOnly()
    {
        QFETCH(Change, change);
        QFETCH(QString, expected);
        KWGuest guest = complete();
        change(guest);
        QCOMPARE(facts(guest), expected);
    }

    void nameInEachOrderAfterTheDisplayName_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char *name, const char *title, const char *first,
                            const char *last, const char *names) {
            QTest::newRow(name) << s(title) << s(first) << s(last) << s(names).split(u'|');
        };
        row("all three", "Dr", "John", "Smith",
            "Smith, John|Smith, J.|John Smith|J. Smith|Dr John Smith|Dr J. Smith");
        row("no title", "", "John", "Smith",
            "Smith, John|Smith, J.|John Smith|J. Smith|John Smith|J. Smith");
        row("first name only", "", "John", "", "John|J.|John|J.|John|J.");
        row("last name only", "", "", "Smith", "Smith|Smith|Smith|Smith|Smith|Smith");
        row("title and first name", "Dr", "John", "", "John|J.|John|J.|Dr John|Dr J.");
        row("title and last name", "Dr", "", "Smith", "Smith|Smith|Smith|Smith|Dr Smith|Dr Smith");
        row("title only", "Title", "", "", "||||Title|Title");
        row("nothing", "", "", "", "|||||");
        row("white space inside the result stays", " Dr ", " John ", " Smith ",
            "Smith ,  John|Smith , J.|John   Smith|J.  Smith|Dr  John   Smith|Dr  J.  Smith");
        row("a blank is a first name", "", " ", "Smith",
            "Smith,|Smith, .|Smith|. Smith|Smith|. Smith");
        row("place holders are ordinary text", "%2", "%1", "%3",
            "%3, %1|%3, %.|%1 %3|%. %3|%2 %1 %3|%2 %. %3");
    }
    void nameInEachOrderAfterTheDisplayName()
    {
        QFETCH(QString, title);
        QFETCH(QString, first);
        QFETCH(QString, last);
        QFETCH(QStringList, names);
        KWGuest guest = named("", "", "");
        guest.setTitle(title);
        guest.setFirstName(first);
        guest.setLastName(last);
        QStringList actual;
        for (int order = 1; order <= 6; ++order)
            actual.append(guest.name(order));
        QCOMPARE(actual, names);
    }

    void theDisplayNameDoesNotFollowTheOtherNames()
    {
        KWGuest guest = named("Dr", "John", "Smith");
        QCOMPARE(guest.name(), s("Shown"));
        QCOMPARE(guest.name(0), s("Shown"));
        guest.setFirstName(s("Jim"));
        QCOMPARE(guest.name(), s("Shown"));
        guest.setDisplayName(s("\t Mister  Smith \n"));
        QCOMPARE(guest.name(), s("Mister  Smith"));
        QCOMPARE(guest.displayName(), s("\t Mister  Smith \n"));
        guest.setDisplayName({});
        QCOMPARE(guest.name(), QString());
    }

    void nameInAnUnknownOrderIsEmpty()
    {
        const KWGuest guest = named("Dr", "John", "Smith");
        QCOMPARE(guest.name(7), QString());
        QCOMPARE(guest.name(-1), QString());
    }

    void initialIsTheFirstLetterAfterWhiteSpace_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("initial");
        QTest::newRow("empty") << s("") << s("");
        QTest::newRow("plain") << s("John") << s("J.");
        QTest::newRow("the case stays") << s("john") << s("j.");
        QTest::newRow("one letter") << s("J") << s("J.");
        QTest::newRow("white space in front") << s(" \tJohn") << s("J.");
        QTest::newRow("nothing but white space") << s("  ") << s(".");
        QTest::newRow("beyond ASCII") << s("Élodie") << s("É.");
        QTest::newRow("letter and accent apart") << s("E\u0301lodie") << s("E\u0301.");
        QTest::newRow("surrogate pair") << s("\U0001F600x") << s("\U0001F600.");
    }
    void initialIsTheFirstLetterAfterWhiteSpace()
    {
        QFETCH(QString, first);
        QFETCH(QString, initial);
        KWGuest guest = named("", "", "");
        guest.setFirstName(first);
        QCOMPARE(guest.initial(), initial);
    }

    void eachGenderAndAgeHasItsWord()
    {
        QCOMPARE(KWGuest::genderToString(0), s("Undefined"));
        QCOMPARE(KWGuest::genderToString(1), s("Male"));
        QCOMPARE(KWGuest::genderToString(2), s("Female"));
        QCOMPARE(KWGuest::ageToString(0), s("adult"));
        QCOMPARE(KWGuest::ageToString(1), s("child"));
        for (int value : {-1, 3})
            QCOMPARE(KWGuest::genderToString(value), QString());
        for (int value : {-1, 2})
            QCOMPARE(KWGuest::ageToString(value), QString());
        const KWGuest girl = ofKind(2, 1);
        QCOMPARE(girl.genderString(), s("Female"));
        QCOMPARE(girl.ageString(), s("child"));
    }

    void genderOfAWord_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<int>("gender");
        QTest::newRow("male") << s("male") << 1;
        QTest::newRow("female") << s("female") << 2;
        QTest::newRow("undefined") << s("Undefined") << 0;
        QTest::newRow("any case, male") << s("MaLe") << 1;
        QTest::newRow("any case, female") << s("FEMALE") << 2;
        QTest::newRow("empty") << s("") << 0;
        QTest::newRow("white space counts") << s(" male") << 0;
        QTest::newRow("a number") << s("1") << 0;
    }
    void genderOfAWord()
    {
        QFETCH(QString, word);
        QTEST(KWGuest::genderFromString(word), "gender");
    }

    void ageOfAWordInAnyCase()
    {
        QTest::failOnWarning(QRegularExpression(s(".*")));
        QCOMPARE(KWGuest::ageFromString(s("adult")), 0);
        QCOMPARE(KWGuest::ageFromString(s("child")), 1);
        QCOMPARE(KWGuest::ageFromString(s("Adult")), 0);
        QCOMPARE(KWGuest::ageFromString(s("CHILD")), 1);
    }

    void anUnknownAgeIsAdultWithAWarning()
    {
        for (const char *word : {"", "baby", " child", "1"}) {
            QTest::ignoreMessage(QtWarningMsg, "undefined age");
            QCOMPARE(KWGuest::ageFromString(s(word)), 0);
        }
    }

    void nameOrdersAreInTheLanguageOfTheMoment()
    {
        {
            const BracketTranslator brackets;
            QCOMPARE(KWGuest::nameOrders().value(KWGuest::LastInitial), s("[Last, F.]"));
            QCOMPARE(KWGuest::nameOrderToString(KWGuest::TitleFirstLast), s("[Title First Last]"));
            QCOMPARE(KWGuest::genderToString(KWGuest::Male), s("Male"));
            QCOMPARE(KWGuest::ageToString(KWGuest::Adult), s("adult"));
        }
        QCOMPARE(KWGuest::nameOrders().value(KWGuest::LastInitial), s("Last, F."));
    }

    void nameOrdersHaveTheirWordsInOrder()
    {
        const QStringList words{s("DisplayName"),  s("Last, First"), s("Last, F."),
                                s("First Last"),   s("F. Last"),     s("Title First Last"),
                                s("Title F. Last")};
        QCOMPARE(KWGuest::nameOrders(), words);
        for (int order = 0; order < 7; ++order)
            QCOMPARE(KWGuest::nameOrderToString(order), words.at(order));
        QCOMPARE(KWGuest::nameOrderToString(7), QString());
        QCOMPARE(KWGuest::nameOrderToString(-1), QString());
    }

    void composedDisplayName_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *title, const char *first,
                            const char *last, const char *expected) {
            QTest::newRow(name) << s(title) << s(first) << s(last) << s(expected);
        };
        row("all three", "Dr", "John", "Smith", "Dr John Smith");
        row("each is stripped", " Dr ", "\tJohn ", " Smith\n", "Dr John Smith");
        row("a missing middle leaves two blanks", "Dr", "", "Smith", "Dr  Smith");
        row("a blank middle, too", "Dr", " ", "Smith", "Dr  Smith");
        row("no title", "", "John", "Smith", "John Smith");
        row("no last name", "Dr", "John", "", "Dr John");
        row("last name only", "", "", "Smith", "Smith");
        row("nothing", "", " ", "", "");
        row("white space inside stays", "Dr", "Mary  Ann", "van Dam", "Dr Mary  Ann van Dam");
        row("place holders are ordinary text", "%3", "%2", "%1", "%3 %2 %1");
    }
    void composedDisplayName()
    {
        QFETCH(QString, title);
        QFETCH(QString, first);
        QFETCH(QString, last);
        QTEST(KWGuest::composeDisplayName(title, first, last), "expected");
    }

    void adultsPrecedeChildrenAndWithinAnAgeMenWomenAndOthers()
    {
        const std::array genders{KWGuest::Male, KWGuest::Female, KWGuest::Undefined};
        std::vector<KWGuest> inOrder;
        inOrder.reserve(6);
        for (int age : {KWGuest::Adult, KWGuest::Child}) {
            for (int gender : genders)
                inOrder.push_back(ofKind(gender, age));
        }
        const auto word = [](const KWGuest &g) { return g.ageString() + u' ' + g.genderString(); };
        for (std::size_t a = 0; a < inOrder.size(); ++a) {
            for (std::size_t b = 0; b < inOrder.size(); ++b) {
                QVERIFY2(inOrder[a].precedes(inOrder[b]) == (a < b),
                         qPrintable(word(inOrder[a]) + s(" before ") + word(inOrder[b])));
            }
        }
    }

    void aDeletedGuestLeavesTheSeatEmptyAndACopyHasNoSeat()
    {
        KWTable table(KWTable::Circular, s("T"), 3, 0, 0, 0, {}, {});
        auto guest = std::make_unique<KWGuest>(complete());
        table.setGuest(1, guest.get());
        auto copy = std::make_unique<KWGuest>(*guest);
        copy.reset();
        QCOMPARE(seating(table), s("- Johnny -"));
        guest.reset();
        QCOMPARE(seating(table), s("- - -"));
        QCOMPARE(table.seatedCount(), 0);
    }
};

REGISTER_TEST(TestGuests)
#include "tst_kwguest.moc"
