#include "planfile.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
#ifdef __SANITIZE_ADDRESS__
constexpr int smaller = 10;
#else
constexpr int smaller = 1;
#endif

/// `count` texts, made for each number from 0.
template <typename Make>
QByteArray listOf(int count, Make make)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += make(QByteArray::number(i), i);
    return text;
}

/// A guest as plan files have them.
QByteArray guest(const QByteArray &name, int /*number*/)
{
    return "  <guest display_name=\"Guest%20" + name + "\" title=\"Ms\" first_name=\"Ann%20" +
           name +
           "\" last_name=\"O%27Hara\" meal=\"fish\" gender=\"Female\" age=\"adult\" locked=\"0\""
           " notes=\"\" vip=\"0\" accepted=\"1\" group=\"0\"/>\n";
}

/// Wishes between guests that stand a few places apart.
QByteArray wishes(int guests, int count)
{
    return listOf(count, [=](const QByteArray &, int i) {
        const int first = i % guests;
        const int second = (first + 1 + i / guests) % guests;
        return "  <affinity guest1=\"" + QByteArray::number(first) + "\" guest2=\"" +
               QByteArray::number(second) + "\" value=\"" + (i % 2 ? "4" : "0") + "\"/>\n";
    });
}

/// Round tables of ten for the guests in their order.
QByteArray tables(int guests)
{
    return listOf(guests / 10, [](const QByteArray &name, int i) {
        QByteArray assigned;
        for (int seat = 0; seat < 10; ++seat)
            assigned += (seat > 0 ? "%2C" : "") + QByteArray::number(10 * i + seat);
        return "  <table table=\"Table%20" + name + "\" shape=\"0\" notes=\"\" assigned=\"" +
               assigned + "\" X=\"0\" Y=\"0\"/>\n";
    });
}

/// Guests at tables with wishes.
QByteArray crowd(int guests, int wishCount)
{
    return listOf(guests, guest) + tables(guests) + wishes(guests, wishCount);
}

/// A document type that declares something.
QByteArray declaring(const QByteArray &declarations, const QByteArray &elements)
{
    return planText(elements).replace("ambrelune>", "ambrelune [" + declarations + "]>");
}
} // namespace

/// Files that are made to be large, slow or both. What takes more than a walk over the file does
/// not end before the time limit of the test.
class TestPlanFileLarge : public QObject
{
    Q_OBJECT

private slots:
    void thousandsOfGuestsAndWishesAreRead()
    {
        Plan plan;
        plan.loadText(planText(crowd(2000, 20'000)));
        QCOMPARE(plan.result, 0);
        QCOMPARE(plan.document.guestCount(), 2000);
        QCOMPARE(plan.document.affinityCount(), 20'000);
        QCOMPARE(plan.document.seatedGuestCount(), 2000);
    }

    void fileOfFiftyMegabytesIsRead()
    {
        constexpr int guests = 200'000 / smaller;
        const QByteArray text = planText(crowd(guests, guests));
        QVERIFY(text.size() > 50'000'000 / smaller);
        Plan plan;
        plan.loadText(text);
        QCOMPARE(plan.result, 0);
        QCOMPARE(plan.document.guestCount(), guests);
        QCOMPARE(plan.document.tableCount(), guests / 10);
        QCOMPARE(plan.document.affinityCount(), guests);
        QCOMPARE(plan.document.seatedGuestCount(), guests);
    }

    void nestingAMillionDeepIsRefused()
    {
        const QByteArray open = QByteArray("<a>").repeated(1'000'000);
        QCOMPARE(PlanOf(open).result, 1);
        QCOMPARE(PlanOf(open + QByteArray("</a>").repeated(1'000'000)).result, 1);
        QCOMPARE(PlanOf(QByteArray("<guest>").repeated(1'000'000)).result, 1);
    }

    void valueOfTenMegabytesIsRead_data()
    {
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<QByteArray>("read");
        QTest::newRow("plain") << QByteArray("abcdefghij") << QByteArray("abcdefghij");
        QTest::newRow("escapes") << QByteArray("%C3%A9%41%42%43") << QByteArray("éABC");
        QTest::newRow("references") << QByteArray("&amp;&#65;") << QByteArray("&A");
        QTest::newRow("percent signs") << QByteArray("%%%%%") << QByteArray("%%%%%");
    }

    void valueOfTenMegabytesIsRead()
    {
        QFETCH(QByteArray, written);
        QFETCH(QByteArray, read);
        const qsizetype count = 10'000'000 / written.size();
        const PlanOf plan("<event value=\"" + written.repeated(count) + "\"/>");
        QCOMPARE(plan.result, 0);
        QVERIFY(plan.document.event() == QString::fromUtf8(read.repeated(count)));
    }

    void seatsOfTenMegabytesAreTooMany()
    {
        const QByteArray seats = QByteArray("-1,,").repeated(2'500'000);
        QCOMPARE(PlanOf("<table shape=\"0\" assigned=\"" + seats + "\"/>").result, 1);
        // Unless a rectangle has them, whose sides say how many there are.
        QCOMPARE(PlanOf("<table shape=\"1\" assigned=\"" + seats + "\"/>").result, 0);
    }

    void tenMegabytesOfWhatMeansNothingAreSkipped_data()
    {
        QTest::addColumn<QByteArray>("piece");
        QTest::newRow("text") << QByteArray("words");
        QTest::newRow("unknown elements") << QByteArray("<other/>");
        QTest::newRow("comments") << QByteArray("<!-- -->");
        QTest::newRow("sections") << QByteArray("<![CDATA[]]>");
        QTest::newRow("instructions") << QByteArray("<?x?>");
        QTest::newRow("the same setting") << QByteArray("<venue value=\"A\"/>");
    }

    void tenMegabytesOfWhatMeansNothingAreSkipped()
    {
        QFETCH(QByteArray, piece);
        const PlanOf plan("<event value=\"Party\"/>" + piece.repeated(10'000'000 / piece.size()));
        QCOMPARE(plan.result, 0);
        QCOMPARE(plan.document.event(), s("Party"));
    }

    void elementWithAHundredThousandAttributesIsNoHindrance()
    {
        const auto attribute = [](const QByteArray &name, int) { return " a" + name + "=\"\""; };
        const QByteArray attributes = listOf(100'000, attribute);
        Plan plan;
        plan.loadText(planText("<other" + attributes + "/>"));
        QVERIFY(plan.result == 0 || plan.result == 1);
    }

    void declaredEntitiesCannotMakeAPlanOutgrowItsFile()
    {
        const QByteArray entity = "<!ENTITY e \"" + QByteArray(4000, 'x') + "\">";
        const QByteArray text =
            declaring(entity, "<event value=\"" + QByteArray("&e;").repeated(1000) + "\"/>");
        Plan plan;
        plan.loadText(text);
        QVERIFY(plan.result == 0 || plan.result == 1);
        QVERIFY2(plan.document.event().size() <= text.size(),
                 QByteArray::number(plan.document.event().size()).constData());
    }

    void declaredAttributesAreNoHindrance()
    {
        const auto attribute = [](const QByteArray &name, int) {
            return " a" + name + " CDATA \"x\"";
        };
        Plan plan;
        plan.loadText(declaring("<!ATTLIST other" + listOf(20'000, attribute) + ">",
                                QByteArray("<other/>").repeated(20'000)));
        QVERIFY(plan.result == 0 || plan.result == 1);
    }

    void entitiesThatNameEachOtherAreRefused_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("in a value") << QByteArray("<event value=\"&e99;\"/>");
        QTest::newRow("in the text") << QByteArray("&e99;");
    }

    void entitiesThatNameEachOtherAreRefused()
    {
        QFETCH(QByteArray, value);
        const auto entity = [](const QByteArray &name, int i) {
            return "<!ENTITY e" + name + " \"" +
                   QByteArray("&e" + QByteArray::number(i - 1) + ';').repeated(10) + "\">\n";
        };
        const QByteArray first = "<!ENTITY e-1 \"ha\">";
        QCOMPARE(PlanOf("").result, 0);
        Plan plan;
        plan.loadText(declaring(first + listOf(100, entity), value));
        QCOMPARE(plan.result, 1);
    }
};

REGISTER_TEST(TestPlanFileLarge)
#include "tst_kwplanfile_large.moc"
