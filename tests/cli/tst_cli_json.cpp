#include "clitool.h"
#include "support/registeredtest.h"

#include <QJsonArray>
#include <QSet>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {
/// Ann and Bob are apart, Cid and Ann side by side at a head table; Dan has no seat.
const QByteArray smallPlan = R"(<!DOCTYPE ambrelune>
<root>
 <date value="Sat%20Jun%2019%202027"/><units value="1"/>
 <group name="both"/><group/>
 <guest display_name="Ann" gender="Female" group="0"/>
 <guest display_name="Bob" gender="Male" group="0"/>
 <guest display_name="Cid" vip="1" group="1"/>
 <guest display_name="Dan" group="1"/>
 <table table="T" shape="0" assigned="1,-1"/>
 <table table="H" shape="3" assigned="2,0"/>
 <affinity guest1="0" guest2="1" value="0"/>
 <affinity guest1="2" guest2="0" value="0"/>
 <affinity guest1="3" guest2="1" value="1"/>
 <affinity guest1="2" guest2="1" value="4"/>
</root>
)";

/// All keys of all objects in a value.
void collectKeys(const QJsonValue &value, QSet<QString> &keys)
{
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        keys.insert(it.key());
        // What is in there is told by the document of the plan file.
        if (it.key() != u"settings"_s)
            collectKeys(it.value(), keys);
    }
    for (const QJsonValue &item : value.toArray())
        collectKeys(item, keys);
}
} // namespace

class TestCliJson : public QObject
{
    Q_OBJECT

private slots:
    void scoreNamesEverything()
    {
        const QJsonObject score = scoreOf(smallPlan);
        QCOMPARE(score[u"guest_count"_s].toInt(), 4);
        QCOMPARE(score[u"seat_count"_s].toInt(), 4);
        QCOMPARE(score[u"seated_count"_s].toInt(), 3);
        QCOMPARE(score[u"unmet_count"_s].toInt(), 2);
        QCOMPARE(score[u"score"_s].toInt(), 71);
        QCOMPARE(score[u"unseated"_s],
                 QJsonValue(QJsonArray{QJsonObject{{u"guest"_s, 3}, {u"name"_s, u"Dan"_s}}}));

        const QJsonObject table = score[u"tables"_s][1].toObject();
        QCOMPARE(table[u"table"_s].toInt(), 1);
        QCOMPARE(table[u"name"_s].toString(), u"H"_s);
        QCOMPARE(table[u"seat_count"_s].toInt(), 2);
        QCOMPARE(table[u"seated_count"_s].toInt(), 2);
        QCOMPARE(table[u"score"_s].toInt(), 80);
        const QJsonObject points{{u"next_to"_s, 60},    {u"near_to"_s, 0}, {u"not_next_to"_s, 0},
                                 {u"not_near_to"_s, 0}, {u"gender"_s, 0},  {u"alone"_s, 0},
                                 {u"total"_s, 60}};
        QCOMPARE(
            table[u"seats"_s][0],
            QJsonValue(QJsonObject{
                {u"seat"_s, 0}, {u"guest"_s, 2}, {u"name"_s, u"Cid"_s}, {u"points"_s, points}}));
        const QJsonValue empty = score[u"tables"_s][0][u"seats"_s][1];
        QVERIFY(empty[u"guest"_s].isNull());
        QVERIFY(empty[u"name"_s].isNull());
        QCOMPARE(empty[u"points"_s][u"total"_s], QJsonValue(0));
        QCOMPARE(score[u"tables"_s][0][u"seats"_s][0][u"points"_s][u"alone"_s], QJsonValue(-9));
    }

    void scoreTellsOfEachWish()
    {
        const QJsonArray wishes = scoreOf(smallPlan)[u"wishes"_s].toArray();
        QCOMPARE(wishes.size(), 4);
        const QJsonObject apart{{u"guest1"_s, 0},
                                {u"guest2"_s, 1},
                                {u"name1"_s, u"Ann"_s},
                                {u"name2"_s, u"Bob"_s},
                                {u"value"_s, 0},
                                {u"wish"_s, u"next to"_s},
                                {u"met"_s, false},
                                {u"seating"_s, u"different tables"_s},
                                {u"sentence"_s, u"Ann should sit next to Bob, but they are at "
                                                "different tables"_s},
                                {u"points"_s, 0}};
        QVERIFY(wishes.contains(apart));
        const auto wishOf = [&](int guest1, int guest2) {
            for (const QJsonValue &wish : wishes) {
                if (wish[u"guest1"_s].toInt() == guest1 && wish[u"guest2"_s].toInt() == guest2)
                    return wish.toObject();
            }
            return QJsonObject();
        };
        QCOMPARE(wishOf(2, 0)[u"met"_s], QJsonValue(true));
        QCOMPARE(wishOf(2, 0)[u"seating"_s], QJsonValue(u"side by side"_s));
        QCOMPARE(wishOf(2, 0)[u"points"_s], QJsonValue(80));
        QCOMPARE(wishOf(3, 1)[u"seating"_s], QJsonValue(u"guest1 has no seat"_s));
        QCOMPARE(wishOf(3, 1)[u"wish"_s], QJsonValue(u"near to"_s));
        QCOMPARE(wishOf(2, 1)[u"wish"_s], QJsonValue(u"not near to"_s));
    }

    void textAndJsonOfTheScoreAgree()
    {
        const QString plan = example(u"wedding.kw"_s);
        const QByteArray text = run({u"score"_s, plan}).out;
        const QJsonObject score = json(run({u"score"_s, u"--json"_s, plan}).out);
        QVERIFY(text.endsWith("\nScore: " + QByteArray::number(score[u"score"_s].toInt()) + '\n'));
        QVERIFY(text.contains(
            "\nWishes not met: " + QByteArray::number(score[u"unmet_count"_s].toInt()) + " of " +
            QByteArray::number(score[u"wishes"_s].toArray().size()) + '\n'));
        QVERIFY(score[u"unmet_count"_s].toInt() > 0);
        for (const QJsonValue &wish : score[u"wishes"_s].toArray()) {
            const QByteArray sentence = "\n  " + wish[u"sentence"_s].toString().toUtf8() + '\n';
            QCOMPARE(text.contains(sentence), !wish[u"met"_s].toBool());
        }
    }

    void showHasWordsBesideNumbers()
    {
        const QJsonObject plan =
            json(runWithInput({u"show"_s, u"--json"_s, u"-"_s}, smallPlan).out);
        QCOMPARE(plan[u"settings"_s][u"date"_s], QJsonValue(u"Sat Jun 19 2027"_s));
        QCOMPARE(plan[u"settings"_s][u"date_iso"_s], QJsonValue(u"2027-06-19"_s));
        QCOMPARE(plan[u"settings"_s][u"units_name"_s], QJsonValue(u"feet"_s));
        QCOMPARE(plan[u"tables"_s][0][u"shape_name"_s], QJsonValue(u"circular"_s));
        QCOMPARE(plan[u"tables"_s][1][u"shape_name"_s], QJsonValue(u"head, seats on the right"_s));
        QCOMPARE(plan[u"tables"_s][1][u"seat_points"_s][0][u"next_to"_s], QJsonValue(60));
        QCOMPARE(plan[u"affinities"_s][0][u"wish"_s], QJsonValue(u"next to"_s));
        QCOMPARE(plan[u"groups"_s][0][u"kind_name"_s], QJsonValue(u"couple"_s));
        QCOMPARE(plan[u"groups"_s][1][u"kind_name"_s], QJsonValue(u"party"_s));
    }

    void everyShapeHasItsName()
    {
        QByteArray tables;
        for (int shape = 0; shape <= 6; ++shape)
            tables += "<table shape=\"" + QByteArray::number(shape) + "\"/>";
        const QJsonObject plan =
            json(runWithInput({u"show"_s, u"--json"_s, u"-"_s},
                              "<!DOCTYPE ambrelune>\n<root>" + tables + "</root>")
                     .out);
        QStringList names;
        for (const QJsonValue &table : plan[u"tables"_s].toArray())
            names.append(table[u"shape_name"_s].toString());
        QCOMPARE(names, QStringList({u"circular"_s, u"rectangular"_s, u"head, seats at the top"_s,
                                     u"head, seats on the right"_s, u"head, seats at the bottom"_s,
                                     u"head, seats on the left"_s, u"custom"_s}));
    }

    void everyKeyIsDocumented()
    {
        const QByteArray text =
            contentOf(sourcePath("docs/json.md")) + contentOf(sourcePath("docs/planfile.md"));
        const QTemporaryDir folder;
        const QString out = folder.filePath(u"out.kw"_s);
        const QString plan = example(u"small.kw"_s);
        QSet<QString> keys;
        for (const QStringList &arguments : QList<QStringList>{
                 {u"show"_s, plan}, {u"score"_s, plan}, {u"layout"_s, plan, u"-o"_s, out}})
            collectKeys(json(run(arguments + QStringList{u"--json"_s}).out), keys);
        QVERIFY(keys.size() > 60);
        for (const QString &key : keys)
            QVERIFY2(text.contains('`' + key.toUtf8() + '`'), qPrintable(key));
    }

private:
    static QJsonObject scoreOf(const QByteArray &plan)
    {
        return json(runWithInput({u"score"_s, u"--json"_s, u"-"_s}, plan).out);
    }
};

REGISTER_TEST(TestCliJson)
#include "tst_cli_json.moc"
