#include "clitool.h"
#include "support/registeredtest.h"

#include <QJsonArray>
#include <QTemporaryDir>

#include <csignal>
#include <pty.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestCli : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }

    void helpIsThereAtEveryLevel_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("words");
        QTest::newRow("program") << QStringList{u"--help"_s} << QByteArray("layout");
        QTest::newRow("short") << QStringList{u"-h"_s} << QByteArray("Exit status");
        for (const char *command : {"show", "score", "save", "layout", "floorplan"})
            QTest::newRow(command)
                << QStringList{QString::fromLatin1(command), u"--help"_s} << QByteArray("PLAN");
    }
    void helpIsThereAtEveryLevel()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, words);
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.out.contains("Usage: "));
        QVERIFY(outcome.out.contains(words));
        QCOMPARE(outcome.err, QByteArray());
    }

    void theVersionIsTold()
    {
        const Outcome outcome = run({u"--version"_s});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("ambrelune-cli 1.2.14\n"));
    }

    void wrongUsageIsRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const QString plan = example(u"small.kw"_s);
        const auto layout = [&](const QStringList &more) {
            return QStringList{u"layout"_s, plan, u"-o"_s, out()} + more;
        };
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("no such command") << QStringList{u"lay\nout"_s};
        QTest::newRow("no plan") << QStringList{u"show"_s};
        QTest::newRow("two plans") << QStringList{u"show"_s, plan, plan};
        QTest::newRow("unknown option") << QStringList{u"show"_s, plan, u"--xml"_s};
        QTest::newRow("no output") << QStringList{u"save"_s, plan};
        QTest::newRow("stop on what") << layout({u"--stop"_s, u"never"_s});
        QTest::newRow("words for seconds") << layout({u"--seconds"_s, u"ten"_s});
        QTest::newRow("negative seconds") << layout({u"--seconds=-1"_s});
        QTest::newRow("too many seconds") << layout({u"--seconds=2147483648"_s});
        QTest::newRow("words for generations") << layout({u"--unimproved"_s, u"1.5"_s});
        QTest::newRow("the toolkit's options") << QStringList{u"show"_s, plan, u"-reverse"_s};
        QTest::newRow("seed too large") << layout({u"--seed"_s, u"4294967296"_s});
        QTest::newRow("two things to standard output")
            << QStringList{u"layout"_s, plan, u"-o"_s, u"-"_s, u"--json"_s};
    }
    void wrongUsageIsRefused()
    {
        QFETCH(QStringList, arguments);
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.status, 64);
        QVERIFY2(isComplaint(outcome.err), outcome.err);
        QCOMPARE(outcome.out, QByteArray());
        QVERIFY(!QFile::exists(out()));
    }

    void aFileThatIsNoPlanGivesStatus1()
    {
        const QString path = m_folder.filePath(u"letter.kw"_s);
        write(path, "Dear guests,\n");
        for (const QString &command : {u"show"_s, u"score"_s}) {
            const Outcome outcome = run({command, path});
            QCOMPARE(outcome.status, 1);
            QVERIFY2(isComplaint(outcome.err), outcome.err);
        }
    }

    void aFileThatCannotBeOpenedGivesStatus2()
    {
        for (const QString &path : {u"/nowhere/plan.kw"_s, m_folder.path()}) {
            const Outcome outcome = run({u"save"_s, path, u"-o"_s, out()});
            QCOMPARE(outcome.status, 2);
            QVERIFY2(isComplaint(outcome.err), outcome.err);
            QVERIFY(!QFile::exists(out()));
        }
    }

    void aFileThatCannotBeWrittenGivesStatus4_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("no such folder") << u"/nowhere/plan.kw"_s;
        QTest::newRow("a folder") << m_folder.path();
        QTest::newRow("a full disk") << u"/dev/full"_s;
    }
    void aFileThatCannotBeWrittenGivesStatus4()
    {
        QFETCH(QString, path);
        for (const QString &command : {u"save"_s, u"layout"_s}) {
            const Outcome outcome = run({command, example(u"small.kw"_s), u"-o"_s, path});
            QCOMPARE(outcome.status, 4);
            QVERIFY2(isComplaint(outcome.err), outcome.err);
        }
        QVERIFY(QFileInfo(u"/dev/full"_s).exists());
        QVERIFY(!QFileInfo(u"/dev/full"_s).isFile());
    }

    void fullStandardOutputGivesStatus4()
    {
        for (const QString &command : {u"show"_s, u"score"_s}) {
            const Outcome outcome = run({command, example(u"small.kw"_s)}, u"/dev/full"_s);
            QCOMPARE(outcome.status, 4);
            QVERIFY2(isComplaint(outcome.err), outcome.err);
        }
    }

    void anOldFileSurvivesAFailedWrite()
    {
        write(out(), "the old plan");
        QProcess process;
        process.setChildProcessModifier([] {
            // A file may not grow beyond this; writing on fails as on a full disk.
            const rlimit limit{1000, 1000};
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, SIG_IGN);
        });
        process.start(commandLineTool(), {u"save"_s, example(u"small.kw"_s), u"-o"_s, out()});
        const Outcome outcome = finish(process);
        QCOMPARE(outcome.status, 4);
        QVERIFY2(isComplaint(outcome.err), outcome.err);
        QVERIFY2(outcome.err.contains("File too large"), outcome.err);
        QCOMPARE(contentOf(out()), QByteArray("the old plan"));
        QCOMPARE(QDir(m_folder.path()).entryList({u"out*"_s}), QStringList{u"out.kw"_s});
    }

    void savingTwiceGivesTheSameBytes()
    {
        const QString path = example(u"banquet.kw"_s);
        QCOMPARE(run({u"save"_s, path, u"-o"_s, out()}).status, 0);
        const Outcome again = run({u"save"_s, path, u"-o"_s, u"-"_s});
        QCOMPARE(again.status, 0);
        QCOMPARE(again.out, contentOf(out()));
        QCOMPARE(again.out, contentOf(path));
    }

    void showTellsTheFacts()
    {
        const Outcome outcome = run({u"show"_s, example(u"wedding.kw"_s)});
        QCOMPARE(outcome.status, 0);
        for (const char *words :
             {"2027-06-19", "121 (100 adults, 21 children)", "6 seated", "130 at 14 tables",
              "41 next to, 174 near to, 11 not next to, 11 not near to"})
            QVERIFY2(outcome.out.contains(words), words);
    }

    void showJsonHoldsTheWholePlan()
    {
        const QJsonObject plan = json(run({u"show"_s, u"--json"_s, madePlan()}).out);
        QCOMPARE(plan[u"version_differs"_s].toBool(), true);
        QCOMPARE(plan[u"guest_count"_s].toInt(), 3);
        QCOMPARE(plan[u"seat_count"_s].toInt(), 6);
        QCOMPARE(plan[u"seated_count"_s].toInt(), 2);
        QCOMPARE(plan[u"score"_s].toInt(), 44);
        const QJsonObject settings = plan[u"settings"_s].toObject();
        QCOMPARE(settings.size(), 81);
        QCOMPARE(settings[u"version"_s].toInt(), 1);
        QCOMPARE(settings[u"event"_s].toString(), u"50%1 off"_s);
        QCOMPARE(settings[u"adult_cost"_s].toInt(), 30);
        QCOMPARE(settings[u"chair_size"_s].toDouble(), 0.6);
        QCOMPARE(settings[u"show_grid"_s], QJsonValue(true));
        QCOMPARE(settings[u"date"_s].toString(), u"Sat Jun 19 2027"_s);
        QCOMPARE(settings[u"floorplan_colour_outside"_s], QJsonValue(QJsonArray{1, 2, 3}));
        QCOMPARE(settings[u"floor_plan_font"_s].toString(), u"Helvetica,12,-1,5,75,0,0,0,0,0"_s);
        QCOMPARE(settings[u"guest_chart_cols"_s].toInt(), 1);

        const QJsonObject ann = plan[u"guests"_s][0].toObject();
        QCOMPARE(ann[u"gender"_s].toString(), u"Female"_s);
        QCOMPARE(ann[u"age"_s].toString(), u"adult"_s);
        QCOMPARE(ann[u"group"_s].toInt(-1), 0);
        QCOMPARE(ann[u"table"_s].toInt(-1), 0);
        QCOMPARE(ann[u"seat"_s].toInt(-1), 1);
        QCOMPARE(ann[u"vip"_s], QJsonValue(false));
        QCOMPARE(ann[u"names"_s],
                 QJsonValue(QJsonArray{u"Ann"_s, u"Rye, Ann"_s, u"Rye, A."_s, u"Ann Rye"_s,
                                       u"A. Rye"_s, u"Dr Ann Rye"_s, u"Dr A. Rye"_s}));
        const QJsonObject cy = plan[u"guests"_s][2].toObject();
        QVERIFY(cy[u"table"_s].isNull());
        QVERIFY(cy[u"seat"_s].isNull());

        const QJsonObject group = plan[u"groups"_s][0].toObject();
        QCOMPARE(group[u"city"_s].toString(), u"Łódź"_s);
        QCOMPARE(group[u"members"_s], QJsonValue(QJsonArray{0, 1}));
        QCOMPARE(group[u"address_name"_s].toString(), u"B. Oat & Dr A. Rye"_s);
        QCOMPARE(group[u"first_names"_s].toString(), u"Bob & Ann"_s);
        QCOMPARE(group[u"kind"_s].toInt(), 1);

        const QJsonObject table = plan[u"tables"_s][0].toObject();
        QCOMPARE(table[u"seats"_s], QJsonValue(QJsonArray{QJsonValue(), 0, 1, QJsonValue(),
                                                          QJsonValue(), QJsonValue()}));
        QCOMPARE(table[u"shape"_s].toInt(), 1);
        QCOMPARE(table[u"seats_across"_s].toInt(), 2);
        QCOMPARE(table[u"x"_s].toInt(), -5);
        QCOMPARE(table[u"seat_scores"_s][1], QJsonValue(QJsonArray{20, 0, 0, 0, 2, 0, 22}));
        QCOMPARE(table[u"score"_s].toInt(), 44);
        QCOMPARE(
            plan[u"affinities"_s],
            QJsonValue(QJsonArray{QJsonObject{
                {u"guest1"_s, 1}, {u"guest2"_s, 0}, {u"value"_s, 0}, {u"wish"_s, u"next to"_s}}}));
    }

    void scoreTellsWhatIsNotMet()
    {
        const Outcome outcome = run({u"score"_s, example(u"wedding.kw"_s)});
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.out.contains("Guests without a seat: 115\n"));
        QVERIFY(outcome.out.contains(" of 237\n"));
        QVERIFY(outcome.out.contains("\nScore: "));
        const Outcome made = run({u"score"_s, madePlan()});
        QVERIFY(made.out.contains("Guests without a seat: 1\n  100%2\n"));
        QVERIFY(made.out.contains("Wishes not met: 0 of 1\n"));
        QVERIFY(made.out.contains(
            "     2       20        0        0        0        2        0       22  Ann\n"));
    }

    void textsOfAPlanDoNotReachTheTerminalRaw()
    {
        const QString path = m_folder.filePath(u"raw.kw"_s);
        write(path, "<!DOCTYPE ambrelune>\n<root><event value=\"a%1B[2J%E2%80%AEb\"/>"
                    "<guest display_name=\"A%07nn%0A\"/><guest/>"
                    "<affinity guest1=\"0\" guest2=\"1\" value=\"1\"/>"
                    "<affinity guest1=\"0\" guest2=\"0\" value=\"0\"/></root>");
        QVERIFY(run({u"show"_s, path}).out.startsWith("Event:    a[2Jb\n"));
        const QByteArray score = run({u"score"_s, path}).out;
        QVERIFY2(score.contains("Guests without a seat: 2\n  Ann\n  (no name)\n"), score);
        QVERIFY2(score.contains("Wishes not met: 1 of 1\n"
                                "  Ann should sit near (no name), but neither has a seat\n"),
                 score);
    }

    void costsDoNotOverflow()
    {
        const QString path = m_folder.filePath(u"dear.kw"_s);
        write(path, "<!DOCTYPE ambrelune>\n<root><fixed_cost value=\"2147483647\"/>"
                    "<adult_cost value=\"2147483647\"/><guest/></root>");
        QVERIFY(run({u"show"_s, path}).out.contains("Cost:     4294967294 for all guests"));
    }

    void aPlanOfAnotherVersionIsWrittenWithAWarning()
    {
        const Outcome outcome = run({u"save"_s, madePlan(), u"-o"_s, out()});
        QCOMPARE(outcome.status, 0);
        QVERIFY2(isComplaint(outcome.err), outcome.err);
        QVERIFY(outcome.err.contains("different version"));
    }

    void whatIsBehindStandardOutputIsNotReplaced()
    {
        write(out(), "a log\n");
        QProcess process;
        process.setStandardOutputFile(out(), QIODevice::Append);
        process.start(commandLineTool(),
                      {u"save"_s, example(u"small.kw"_s), u"-o"_s, u"/dev/stdout"_s});
        QCOMPARE(finish(process).status, 0);
        QCOMPARE(contentOf(out()), "a log\n" + contentOf(example(u"small.kw"_s)));
    }

    void aPlanWithNothingToLayOutIsSaid()
    {
        const QString path = m_folder.filePath(u"empty.kw"_s);
        write(path, "<!DOCTYPE ambrelune>\n<root/>");
        const Outcome outcome = run({u"layout"_s, path, u"-o"_s, out()});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err,
                 QByteArray("ambrelune-cli: There are no seats: add some tables first.\n"));
    }

    void layoutSeatsEverybody()
    {
        const Outcome outcome = run({u"layout"_s, example(u"small.kw"_s), u"-o"_s, out()});
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.out.contains("before: 2 seated, score 132\n"));
        QVERIFY(outcome.out.contains("after:  20 seated"));
        const QJsonObject plan = json(run({u"show"_s, u"--json"_s, out()}).out);
        QCOMPARE(plan[u"seated_count"_s].toInt(), 20);
        QVERIFY(plan[u"score"_s].toInt() > 132);
    }

    void layoutWithASeedIsRepeatable()
    {
        const auto lay = [&](const QString &seed) {
            return run({u"layout"_s, example(u"small.kw"_s), u"-o"_s, u"-"_s, u"--seed"_s, seed})
                .out;
        };
        const QByteArray once = lay(u"7"_s);
        QVERIFY(once.startsWith("<!DOCTYPE ambrelune>\n<root>\n"));
        QCOMPARE(lay(u"7"_s), once);
        QVERIFY(lay(u"8"_s) != once);
    }

    void layoutReportsAsJson()
    {
        const Outcome outcome = run({u"layout"_s, example(u"wedding.kw"_s), u"-o"_s, out(),
                                     u"--json"_s, u"--unimproved"_s, u"3"_s});
        QCOMPARE(outcome.status, 0);
        const QJsonObject report = json(outcome.out);
        QStringList keys = report.keys();
        keys.sort();
        QCOMPARE(keys, QStringList({u"generations"_s, u"generations_ms"_s, u"guests"_s, u"score"_s,
                                    u"seated"_s, u"seats"_s, u"seconds"_s, u"start_score"_s,
                                    u"start_seated"_s, u"start_solutions"_s, u"start_stage_ms"_s,
                                    u"stopped_by"_s}));
        QCOMPARE(report[u"guests"_s].toInt(), 121);
        QCOMPARE(report[u"seats"_s].toInt(), 130);
        QCOMPARE(report[u"start_seated"_s].toInt(), 6);
        QCOMPARE(report[u"seated"_s].toInt(), 121);
        QCOMPARE(report[u"start_solutions"_s].toInt(), 40);
        QCOMPARE(report[u"stopped_by"_s].toString(), u"unimproved"_s);
        QVERIFY(report[u"generations"_s].toInt() >= 3);
        QVERIFY(report[u"seconds"_s].toDouble() > 0);
    }

    void layoutStopsOnTime()
    {
        const Outcome outcome = run({u"layout"_s, example(u"small.kw"_s), u"-o"_s, out(),
                                     u"--json"_s, u"--stop"_s, u"time"_s, u"--seconds"_s, u"0"_s});
        const QJsonObject report = json(outcome.out);
        QCOMPARE(report[u"stopped_by"_s].toString(), u"time"_s);
    }

    void layoutWithoutAGenerationTakesTheBestStart()
    {
        const Outcome outcome = run({u"layout"_s, example(u"small.kw"_s), u"-o"_s, out(),
                                     u"--json"_s, u"--unimproved"_s, u"0"_s});
        const QJsonObject report = json(outcome.out);
        QCOMPARE(report[u"generations"_s].toInt(-1), 0);
        QCOMPARE(report[u"seated"_s].toInt(), 20);
    }

    void quietLayoutPrintsNothing()
    {
        const Outcome outcome =
            run({u"layout"_s, u"--quiet"_s, example(u"small.kw"_s), u"-o"_s, out()});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out + outcome.err, QByteArray());
    }

    void ctrlCStopsTheRunAndWritesTheBest()
    {
        QProcess process;
        process.start(commandLineTool(),
                      {u"layout"_s, example(u"small.kw"_s), u"-o"_s, out(), u"--json"_s,
                       u"--stop"_s, u"time"_s, u"--seconds"_s, u"1000"_s});
        QVERIFY(process.waitForStarted());
        // The handler is set once the plan is loaded; a signal before that would end the program.
        QTRY_VERIFY(catchesInterrupt(process.processId()));
        kill(static_cast<pid_t>(process.processId()), SIGINT);
        const Outcome outcome = finish(process);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(json(outcome.out)[u"stopped_by"_s].toString(), u"user"_s);
        QCOMPARE(json(run({u"show"_s, u"--json"_s, out()}).out)[u"seated_count"_s].toInt(),
                 json(outcome.out)[u"seated"_s].toInt());
    }

    void aTerminalSeesTheProgress()
    {
        int master = -1;
        int slave = -1;
        QCOMPARE(openpty(&master, &slave, nullptr, nullptr, nullptr), 0);
        QProcess process;
        process.setChildProcessModifier([slave] { dup2(slave, STDERR_FILENO); });
        process.start(commandLineTool(), {u"layout"_s, example(u"banquet.kw"_s), u"-o"_s, out()});
        QCOMPARE(finish(process).status, 0);
        close(slave);
        QByteArray shown(4096, '\0');
        shown.truncate(std::max<qsizetype>(read(master, shown.data(), 4096), 0));
        close(master);
        QVERIFY2(shown.contains("start layout 1 of 40, score "), shown);
        QVERIFY(shown.contains("generation "));
        QVERIFY(shown.endsWith("\r\x1b[K"));
    }

    void cleanup() { QFile::remove(out()); }

private:
    QString out() const { return m_folder.filePath(u"out.kw"_s); }

    /// A small plan of another version with a guest called "100%2".
    QString madePlan() const
    {
        const QString path = m_folder.filePath(u"made.kw"_s);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(R"(<!DOCTYPE ambrelune>
<root>
 <version value="1"/><event value="50%1 off"/><adult_cost value="30"/><show_grid value="1"/>
 <date value="Sat%20Jun%2019%202027"/><floorplan_colour_outside value="1,2,3"/>
 <floor_plan_font value="Helvetica,12,-1,5,75,0,0,0,0,0"/>
 <group city="%C5%81%C3%B3d%C5%BA"/><group/>
 <guest display_name="Ann" title="Dr" first_name="Ann" last_name="Rye" gender="Female"
   age="adult" group="0"/>
 <guest display_name="Bob" first_name="Bob" last_name="Oat" gender="Male" age="adult"/>
 <guest display_name="100%2" age="adult" group="1"/>
 <table table="T" shape="1" seats_across="2" seats_down="1" assigned="-1,0,1" X="-5" Y="7"/>
 <affinity guest1="1" guest2="0" value="0"/>
</root>
)");
        }
        return path;
    }

    static bool catchesInterrupt(qint64 pid)
    {
        for (const QByteArray &line : contentOf(u"/proc/%1/status"_s.arg(pid)).split('\n')) {
            if (line.startsWith("SigCgt:"))
                return line.mid(7).trimmed().toULongLong(nullptr, 16) & (1ULL << (SIGINT - 1));
        }
        return false;
    }

    QTemporaryDir m_folder;
};

REGISTER_TEST(TestCli)
#include "tst_cli.moc"
