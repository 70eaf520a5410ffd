#include "../../../fuzz/planreadercheck.h"

#include "planfile.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QDir>
#include <QLoggingCategory>
#include <QtTest>

/// The fuzzer's question, asked in every build of what the fuzzer starts from and of the broken
/// files, among them what it has found.
class TestFuzzCorpus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The reader mentions each unknown word of age.
        QLoggingCategory::setFilterRules(s("default.warning=false"));
    }

    void readingIsSoundAndSavingWhatWasReadIsStable_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString &folder :
             {sourcePath("fuzz/corpus/planreader"), sourcePath("tests/data/broken")}) {
            const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
            QVERIFY(files.size() > 10);
            for (const QFileInfo &file : files)
                QTest::newRow(qPrintable(file.fileName())) << file.filePath();
        }
    }

    void readingIsSoundAndSavingWhatWasReadIsStable()
    {
        QFETCH(QString, path);
        QCOMPARE(PlanReaderCheck::faultOf(readFile(path)), QString());
    }

    void plansOfTheCorpusAreReadAsPlans()
    {
        // A seed that is refused would hardly lead the fuzzer anywhere.
        int plans = 0;
        const QDir corpus(sourcePath("fuzz/corpus/planreader"));
        for (const QFileInfo &file : corpus.entryInfoList({s("*.kw")}, QDir::Files)) {
            const PlanReaderCheck::ReadPlan plan(readFile(file.filePath()));
            QVERIFY2(plan.isPlan, qPrintable(file.fileName()));
            ++plans;
        }
        QVERIFY(plans >= 12);
    }

    void theCheckFindsFaults()
    {
        // The table is changed behind the plan's back, which the plan itself would not let happen.
        KWDocument plan;
        const QList<KWGuest *> guests = addGuests(plan, 2);
        KWTable *table = addTable(plan, "T", KWTable::Circular, 3);
        plan.assignGuest(guests[0], table, 0, true);
        QCOMPARE(PlanReaderCheck::faultOfPlan(plan), QString());
        table->setGuest(1, guests[0]);
        QCOMPARE(PlanReaderCheck::faultOfPlan(plan), s("a guest sits on two seats"));
        table->setGuest(0, nullptr);
        table->setShape(KWTable::Rectangular);
        QCOMPARE(PlanReaderCheck::faultOfPlan(plan),
                 s("a table has other seats than its sides say"));
        table->setShape(KWTable::ShapeCount);
        QCOMPARE(PlanReaderCheck::faultOfPlan(plan), s("a table has an unknown shape"));
        plan.deleteTable(table, true);
        QCOMPARE(PlanReaderCheck::faultOfPlan(plan), QString());
        addGuest(plan, {});
        QCOMPARE(PlanReaderCheck::faultOfPlan(plan), s("the groups do not hold every guest once"));
        QCOMPARE(PlanReaderCheck::difference("a\nb\nc", "a\nB\nc"),
                 s("saved as: b\nloaded and saved again as: B"));
    }
};

REGISTER_TEST(TestFuzzCorpus)
#include "tst_fuzzcorpus.moc"
