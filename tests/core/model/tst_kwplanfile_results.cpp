#include "planfile.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QDir>
#include <QtTest>

/// What loading says of a file, and what it leaves behind when it fails.
class TestPlanFileResults : public QObject
{
    Q_OBJECT

private slots:
    void backupsLeaveThePlanWithoutAFileName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("named");

        QTest::newRow("plan") << s("plan.kw") << true;
        QTest::newRow("backup") << s("plan.kwb") << false;
        QTest::newRow("capitals") << s("plan.KWB") << false;
        QTest::newRow("mixed") << s("plan.2027-03-13.Kwb") << false;
        QTest::newRow("other extension") << s("plan.kwb.txt") << true;
        QTest::newRow("no extension") << s("kwb") << true;
    }

    void backupsLeaveThePlanWithoutAFileName()
    {
        QFETCH(QString, name);
        QFETCH(bool, named);
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        QVERIFY(writeFile(path, planText("<event value=\"Party\"/>")));
        Plan plan;
        plan.document.setFileName(s("before.kw"));
        EventLog events(plan.document);
        plan.load(path);
        QCOMPARE(plan.result, 0);
        QCOMPARE(plan.document.event(), s("Party"));
        const QString fileName = named ? path : QString();
        QCOMPARE(plan.document.fileName(), fileName);
        QCOMPARE(plan.document.fileName().isNull(), !named);
        QCOMPARE(events.take().value(4), s("eventDocumentNameChange(%1)").arg(fileName));
    }

    void fileThatCannotBeOpenedLeavesAnEmptyPlan_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << s("/nowhere/at/all/a.kw");
        QTest::newRow("folder") << QDir::tempPath();
    }

    void fileThatCannotBeOpenedLeavesAnEmptyPlan()
    {
        QFETCH(QString, path);
        checkFailure(path, 2);
    }

    void fileThatIsNoPlanLeavesAnEmptyPlan_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no XML") << QByteArray("Dear Ann,");
        QTest::newRow("other document type") << QByteArray("<!DOCTYPE html><root/>");
        QTest::newRow("no document type") << QByteArray("<root/>");
        // All of it counts, not only what stands before the damage.
        QTest::newRow("damaged at its end")
            << planText("<version value=\"1\"/><event value=\"Party\"/><guest/><group/>")
                   .chopped(3);
    }

    void fileThatIsNoPlanLeavesAnEmptyPlan()
    {
        QFETCH(QByteArray, text);
        const QTemporaryDir folder;
        const QString path = folder.filePath(s("a.kw"));
        QVERIFY(writeFile(path, text));
        checkFailure(path, 1);
    }

    void sidesMayAskForAMillionSeatsAndNoMore()
    {
        const QByteArray table("<table shape=\"6\" seats_across=\"1000\" seats_down=\"1000\""
                               " seats_across_2=\"1000\" seats_down_2=\"1000\"/>\n");
        const PlanOf most(table.repeated(250));
        QCOMPARE(most.result, 0);
        QCOMPARE(most.document.seatCount(), 1'000'000);
        const PlanOf more(table.repeated(250) + "<table shape=\"1\" seats_down=\"1\"/>");
        QCOMPARE(more.result, 1);
        QVERIFY(more.document.isEmpty());
        // Seats that the file names one by one do not count, nor those of a table that is dropped.
        QCOMPARE(PlanOf(table.repeated(250) + "<table shape=\"0\" assigned=\"-1\"/>").result, 0);
        QCOMPARE(PlanOf(table.repeated(250) + "<table shape=\"7\" assigned=\"-1\"/>").result, 0);
    }

    void aThousandLevelsAreReadAndMoreAreRefused()
    {
        // The root is one of them.
        const auto nested = [](int levels) {
            return PlanOf(QByteArray("<a>").repeated(levels - 1) +
                          QByteArray("</a>").repeated(levels - 1))
                .result;
        };
        QCOMPARE(nested(1000), 0);
        QCOMPARE(nested(1001), 1);
    }

    void loadingAgainAfterAFailureWorks()
    {
        Plan plan;
        plan.loadText("<root/>");
        QCOMPARE(plan.result, 1);
        plan.loadText(planText("<event value=\"Party\"/>"));
        QCOMPARE(plan.result, 0);
        QCOMPARE(plan.document.event(), s("Party"));
    }

private:
    /// Loads a file into a plan that holds something, and expects it to fail.
    static void checkFailure(const QString &path, int result)
    {
        Plan plan;
        addGuests(plan.document, 2);
        addTable(plan.document, "T", KWTable::Circular, 4);
        plan.document.setEvent(s("Party"));
        plan.views.table_chart_cols = 17;
        EventLog events(plan.document);
        ProgressLog progress;
        plan.load(path);

        QCOMPARE(plan.result, result);
        QVERIFY(!plan.versionDiffers);
        QVERIFY(plan.document.isEmpty());
        QCOMPARE(plan.document.groupCount(), 0);
        QCOMPARE(plan.document.event(), QString());
        QVERIFY(!plan.document.isModified());
        QCOMPARE(plan.document.fileName(), path);
        QCOMPARE(plan.views.table_chart_cols, 17);
        QCOMPARE(events.take(), QStringList({s("eventClear()"), s("eventDocumentNameChange()"),
                                             s("eventModified()")}));
        QCOMPARE(progress.take(), QStringList());
        plan.document.setEvent(s("Party"));
        QCOMPARE(events.take(), QStringList{s("eventModified()")});
    }
};

REGISTER_TEST(TestPlanFileResults)
#include "tst_kwplanfile_results.moc"
