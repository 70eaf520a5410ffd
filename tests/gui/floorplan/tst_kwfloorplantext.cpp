#include "gui/floorplan/kwfloorplantext.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QFontMetricsF>
#include <QtTest>

using namespace KWFloorPlanText;

namespace {

/// A table of three seats with one guest on seat 1.
struct SeatedGuest
{
    KWDocument plan;
    KWGroup *group = plan.addGroup({}, s("The Bakers"), {});
    KWTable *table = addTable(plan, "T", KWTable::Circular, 3);
    KWGuest *guest = plan.addGuest({.display_name = s("Annie"),
                                    .title = s("Ms"),
                                    .first_name = s("Anna"),
                                    .last_name = s("Baker"),
                                    .gender = KWGuest::Female},
                                   group);

    SeatedGuest() { plan.assignGuest(guest, table, 1, false); }
    QString tip(int nameOrder = KWGuest::DisplayName) const
    {
        return seatTip(*table, 1, nameOrder);
    }
};

QString repeated(const char *text, int times)
{
    return s(text).repeated(times);
}

KWTable tableNamed(const char *name, const char *notes = "")
{
    return KWTable(KWTable::Circular, s(name), 8, 0, 0, 0, {}, s(notes));
}
} // namespace

class TestFloorPlanText : public QObject
{
    Q_OBJECT

private slots:
    void aNameIsWrappedNearItsMiddle_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("lines");

        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("blank") << s(" \t\n ") << QString();
        QTest::newRow("exactly 6 characters with a blank") << s("Ann Li") << s("Ann Li");
        QTest::newRow("7 characters with a blank") << s("Anne Li") << s("Anne\nLi");
        QTest::newRow("blank in front of the middle") << s("Al Jones") << s("Al\nJones");
        QTest::newRow("6 characters after stripping") << s("  Ann \t Li\n") << s("Ann Li");
        QTest::newRow("white space inside") << s(" Anna \t\n Baker ") << s("Anna\nBaker");
        QTest::newRow("no blank") << s("Bartholomew") << s("Bartholomew");
        QTest::newRow("blank on the middle") << s("Anna Bell") << s("Anna\nBell");
        QTest::newRow("blank right behind the middle")
            << s("Elizabeth Johnson") << s("Elizabeth\nJohnson");
        QTest::newRow("blanks on both sides of the middle")
            << s("Mr John Smith") << s("Mr\nJohn\nSmith");
        QTest::newRow("more blanks than lines")
            << s("Dr A B C Featherstone D E") << s("Dr A B C\nFeatherstone\nD E");
        QTest::newRow("the last before and the first behind")
            << s("a b c d e f g h") << s("a b c d\ne\nf g h");
        QTest::newRow("only behind") << s("Bartholomew Li Po") << s("Bartholomew\nLi Po");
    }

    void aNameIsWrappedNearItsMiddle()
    {
        QFETCH(QString, name);
        QTEST(wrapped(name), "lines");
    }

    void aSeatShowsItsGuestInTheNameOrder_data()
    {
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("empty");
        QTest::newRow("display name") << 0 << s("Annie") << QString();
        QTest::newRow("last, first") << 1 << s("Baker, Anna") << QString();
        QTest::newRow("title, initial and last") << 6 << s("Ms A. Baker") << QString();
        QTest::newRow("seat number") << 7 << s("2") << s("1");
        QTest::newRow("no name order") << 8 << QString() << QString();
        QTest::newRow("negative") << -1 << QString() << QString();
    }

    void aSeatShowsItsGuestInTheNameOrder()
    {
        const SeatedGuest seated;
        QFETCH(int, order);
        QTEST(seatText(*seated.table, 1, order), "text");
        QTEST(seatText(*seated.table, 0, order), "empty");
    }

    void emptySeatsShowTheirNumbersFrom1()
    {
        const KWTable table = tableNamed("T");
        QCOMPARE(seatText(table, 0, seatNumbers), s("1"));
        QCOMPARE(seatText(table, 7, seatNumbers), s("8"));
    }

    void aSeatThatDoesNotExistHasNoText()
    {
        const SeatedGuest seated;
        for (const int seat : {-1, 3, 1'000'000'000}) {
            QCOMPARE(seatText(*seated.table, seat, seatNumbers), QString());
            QCOMPARE(seatText(*seated.table, seat, 0), QString());
            QCOMPARE(seatTip(*seated.table, seat, 0), QString());
        }
    }

    void theTipOfATableGivesItsName()
    {
        QCOMPARE(tableTip(tableNamed("Table 1")), s("<b>Name:</b> Table 1"));
        QCOMPARE(tableTip(tableNamed("")), s("<b>Name:</b> "));
        QCOMPARE(tableTip(tableNamed("Table 1", " \n\t")), s("<b>Name:</b> Table 1"));
    }

    void theTipOfATableGivesItsNotes()
    {
        QCOMPARE(tableTip(tableNamed("Table 1", " at the door\n")),
                 s("<b>Name:</b> Table 1<br/><b>Notes:</b>  at the door\n"));
    }

    void anEmptySeatHasNoTip()
    {
        QCOMPARE(seatTip(*SeatedGuest().table, 0, 0), QString());
        QCOMPARE(seatTip(*SeatedGuest().table, 0, seatNumbers), QString());
    }

    void theTipOfASeatTellsOfItsGuestInThatOrder()
    {
        SeatedGuest seated;
        QCOMPARE(seated.tip(), s("<b>Name:</b> Annie<br/><b>Group:</b> The Bakers"
                                 "<br/><b>Gender:</b> Female<br/><b>Age:</b> adult"
                                 "<br/><b>Accepted:</b> No<br/><b>VIP:</b> No"
                                 "<br/><b>Locked:</b> No"));
        seated.plan.editGuest(seated.guest, {.display_name = s("Ann"),
                                             .meal = s("fish"),
                                             .gender = KWGuest::Male,
                                             .age = KWGuest::Child,
                                             .locked = true,
                                             .notes = s("late"),
                                             .vip = true,
                                             .accepted = true});
        QCOMPARE(seated.tip(), s("<b>Name:</b> Ann<br/><b>Group:</b> The Bakers"
                                 "<br/><b>Gender:</b> Male<br/><b>Age:</b> child"
                                 "\n<b>Meal:</b> fish<br/><b>Accepted:</b> Yes<br/><b>VIP:</b> Yes"
                                 "<br/><b>Locked:</b> Yes\n<b>Notes:</b> late"));
    }

    void blankMealsAndNotesAreLeftOut()
    {
        SeatedGuest seated;
        seated.guest->setMeal(s(" \t"));
        seated.guest->setNotes(s("\n"));
        QVERIFY(!seated.tip().contains(s("Meal")));
        QVERIFY(!seated.tip().contains(s("Notes")));
    }

    void theTipNamesTheGuestInTheNameOrder()
    {
        const SeatedGuest seated;
        QVERIFY(seated.tip(KWGuest::LastFirst).startsWith(s("<b>Name:</b> Baker, Anna<br/>")));
    }

    void whereSeatsShowNumbersTheTipGivesTheDisplayName()
    {
        const SeatedGuest seated;
        QVERIFY(seated.tip(seatNumbers).startsWith(s("<b>Name:</b> Annie<br/>")));
    }

    void aGuestOfUndefinedGenderOrWithoutAGroupHasATip()
    {
        SeatedGuest seated;
        seated.guest->setGroup(nullptr);
        seated.guest->setGender(KWGuest::Undefined);
        QVERIFY(seated.tip().contains(
            s("<br/><b>Group:</b> <br/><b>Gender:</b> Undefined<br/><b>Age:</b> adult")));
        seated.guest->setGroup(seated.group);
    }

    void textsOfThePlanAreNoMarkup()
    {
        SeatedGuest seated;
        seated.guest->setDisplayName(s("<i>Ann</i> & \"Bob\" %1 %2"));
        seated.guest->setMeal(s("<br/>"));
        seated.guest->setNotes(s("a<b"));
        seated.group->setName(s("A&B"));
        const QString tip = seated.tip();
        QVERIFY(tip.startsWith(s("<b>Name:</b> &lt;i&gt;Ann&lt;/i&gt; &amp; &quot;Bob&quot; %1 %2"
                                 "<br/><b>Group:</b> A&amp;B<br/>")));
        QVERIFY(tip.contains(s("<b>Meal:</b> &lt;br/&gt;<br/>")));
        QVERIFY(tip.endsWith(s("<b>Notes:</b> a&lt;b")));
        QCOMPARE(tableTip(tableNamed("<T>", "x & %1")),
                 s("<b>Name:</b> &lt;T&gt;<br/><b>Notes:</b> x &amp; %1"));
    }

    void aTipLongerThan200CharactersEndsInThreeDots()
    {
        QCOMPARE(shortenedTip(repeated("x", 200)), repeated("x", 200));
        QCOMPARE(shortenedTip(repeated("x", 201)), repeated("x", 200) + s("..."));
        QCOMPARE(shortenedTip(repeated("x", 100'000)), repeated("x", 200) + s("..."));
        QCOMPARE(shortenedTip({}), QString());
    }

    void theCutSplitsNoTagAndNoCharacter_data()
    {
        QTest::addColumn<QString>("tip");
        QTest::addColumn<QString>("shown");
        const QString x = repeated("x", 198);
        QTest::newRow("a tag") << x + s("<br/>x") << x + s("...");
        QTest::newRow("a tag that just fits")
            << repeated("x", 197) + s("<b>x") << repeated("x", 197) + s("<b>...");
        QTest::newRow("two code units") << x + s("x😀x") << x + s("x...");
        QTest::newRow("an ampersand") << x + s("xx&amp;x") << x + s("xx...");
        QTest::newRow("a bare ampersand") << x + s("x&x") << x + s("x&...");
    }

    void theCutSplitsNoTagAndNoCharacter()
    {
        QFETCH(QString, tip);
        QTEST(shortenedTip(tip), "shown");
    }

    void anEscapeCountsAsTheCharacterThatItStandsFor()
    {
        QCOMPARE(shortenedTip(repeated("&amp;", 200)), repeated("&amp;", 200));
        QCOMPARE(shortenedTip(repeated("&quot;", 201)), repeated("&quot;", 200) + s("..."));
    }

    void aBreak80CharactersBehindTheLastGetsALineFeed_data()
    {
        QTest::addColumn<QString>("tip");
        QTest::addColumn<QString>("shown");
        const QString x80 = repeated("x", 80);
        const QString x79 = repeated("x", 79);
        QTest::newRow("79") << x79 + s("<br/>x") << x79 + s("<br/>x");
        QTest::newRow("80") << x80 + s("<br/>x") << x80 + s("\n<br/>x");
        QTest::newRow("80 without a break") << x80 + s("<b>x") << x80 + s("<b>x");
        QTest::newRow("a break in between does not count")
            << repeated("x", 40) + s("<br/>") + repeated("y", 40) + s("<br/>z")
            << repeated("x", 40) + s("<br/>") + repeated("y", 40) + s("\n<br/>z");
        // The second line begins with its break, of five characters.
        QTest::newRow("79 after the last") << x80 + s("<br/>") + repeated("y", 74) + s("<br/>z")
                                           << x80 + s("\n<br/>") + repeated("y", 74) + s("<br/>z");
        QTest::newRow("80 after the last")
            << x80 + s("<br/>") + repeated("y", 75) + s("<br/>z")
            << x80 + s("\n<br/>") + repeated("y", 75) + s("\n<br/>z");
        QTest::newRow("two breaks together") << x80 + s("<br/><br/>") << x80 + s("\n<br/><br/>");
    }

    void aBreak80CharactersBehindTheLastGetsALineFeed()
    {
        QFETCH(QString, tip);
        QTEST(shortenedTip(tip), "shown");
    }

    void aTextThatFitsKeepsItsFont()
    {
        QFont font;
        font.setPixelSize(20);
        const QSizeF size = QFontMetricsF(font).size(0, s("Anna\nBaker"));
        QCOMPARE(fittedFont(font, s("Anna\nBaker"), size), font);
        QCOMPARE(fittedFont(font, QString(), {1, 100}), font);
    }

    void aTextThatDoesNotFitBecomesSmallerAsFarAsItMust_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        QTest::newRow("too wide") << 0.8 << 1.5;
        QTest::newRow("too high") << 1.5 << 0.8;
        QTest::newRow("both") << 0.9 << 0.75;
    }

    void aTextThatDoesNotFitBecomesSmallerAsFarAsItMust()
    {
        QFETCH(double, width);
        QFETCH(double, height);
        QFont font;
        font.setPixelSize(60);
        const QString text = s("Anna\nBaker");
        const QSizeF size = QFontMetricsF(font).size(0, text);
        const QSizeF box(size.width() * width, size.height() * height);
        QFont fitted = fittedFont(font, text, box);
        const auto fits = [&](const QFont &f) {
            const QSizeF needed = QFontMetricsF(f).size(0, text);
            return needed.width() <= box.width() && needed.height() <= box.height();
        };
        QVERIFY(fits(fitted));
        QVERIFY(fitted.pixelSize() >= 40);
        // Not much smaller than it must be.
        fitted.setPixelSize(fitted.pixelSize() + 2);
        QVERIFY(!fits(fitted));
    }

    void twoThirdsIsTheLeastThatATextIsMadeSmaller()
    {
        QFont font;
        font.setPixelSize(31);
        QCOMPARE(fittedFont(font, s("Bartholomew"), {5, 100}).pixelSize(), 21);
        QCOMPARE(fittedFont(font, s("Bartholomew"), {500, 1}).pixelSize(), 21);
    }
};

REGISTER_TEST(TestFloorPlanText)
#include "tst_kwfloorplantext.moc"
