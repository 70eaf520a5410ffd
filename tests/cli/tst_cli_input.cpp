#include "clitool.h"
#include "support/registeredtest.h"

#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

// What reaches the commands: plans from standard input, options, and the help that tells of them.

class TestCliInput : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }

    void aDashIsStandardInput_data() { addCommands(); }

    void aDashIsStandardInput()
    {
        QFETCH(QStringList, command);
        const QString plan = example(u"small.kw"_s);
        const Outcome expected = run(withPlan(command, plan));
        QCOMPARE(expected.status, 0);
        const Outcome outcome = runWithInput(withPlan(command, u"-"_s), contentOf(plan));
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.out, expected.out);
    }

    void aFileOfThatNameHasAnotherName()
    {
        QVERIFY(QFile::copy(example(u"small.kw"_s), m_folder.filePath(u"-"_s)));
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        process.start(commandLineTool(), {u"show"_s, u"./-"_s});
        QCOMPARE(finish(process).status, 0);
    }

    void brokenInputHasItsStatus_data() { addCommands(); }

    void brokenInputHasItsStatus()
    {
        QFETCH(QStringList, command);
        const QStringList arguments = withPlan(command, u"-"_s);
        for (const QByteArray &input :
             {QByteArray(), QByteArray("Dear guests,\n"),
              contentOf(example(u"small.kw"_s)).chopped(20), QByteArray("\0\xff\xfe<", 4)}) {
            const Outcome outcome = runWithInput(arguments, input);
            QCOMPARE(outcome.status, 1);
            QCOMPARE(outcome.err,
                     QByteArray("ambrelune-cli: There is no plan in standard input, or "
                                "it is damaged.\n"));
            QCOMPARE(outcome.out, QByteArray());
        }
        QProcess process;
        process.setChildProcessModifier([name = QFile::encodeName(m_folder.path())] {
            dup2(::open(name.constData(), O_RDONLY), STDIN_FILENO);
        });
        process.start(commandLineTool(), arguments);
        const Outcome folder = finish(process);
        QCOMPARE(folder.status, 2);
        QCOMPARE(folder.err,
                 QByteArray("ambrelune-cli: Cannot open standard input: Is a directory.\n"));
    }

    void brokenFilesHaveTheirStatus_data() { addCommands(); }

    void brokenFilesHaveTheirStatus()
    {
        QFETCH(QStringList, command);
        const QString letter = m_folder.filePath(u"letter.kw"_s);
        write(letter, "Dear guests,\n");
        for (const auto &[plan, status] : {std::pair(letter, 1), std::pair(m_folder.path(), 2),
                                           std::pair(u"/no/plan.kw"_s, 2)}) {
            const Outcome outcome = run(withPlan(command, plan));
            QCOMPARE(outcome.status, status);
            QVERIFY2(isComplaint(outcome.err), outcome.err);
            QCOMPARE(outcome.out, QByteArray());
        }
    }

    void aPlanOfAnotherVersionOnStandardInputIsToldOf()
    {
        const Outcome outcome =
            runWithInput({u"save"_s, u"-"_s, u"-o"_s, u"-"_s},
                         "<!DOCTYPE ambrelune>\n<root><version value=\"3\"/></root>");
        QCOMPARE(outcome.status, 0);
        QVERIFY2(
            outcome.err.startsWith("ambrelune-cli: The plan in standard input was created with "),
            outcome.err);
        QVERIFY(isComplaint(outcome.err));
    }

    void commandsCanBeChained()
    {
        const Outcome outcome =
            runWithInput({u"layout"_s, u"-"_s, u"-o"_s, u"-"_s}, contentOf(example(u"small.kw"_s)));
        QVERIFY(runWithInput({u"show"_s, u"-"_s}, outcome.out).out.contains(" 20 seated\n"));
    }

    void optionsWithoutEffectAreRefused_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("words");
        const auto row = [](const QStringList &options, const char *words) {
            QTest::newRow(qPrintable(options.join(u' '))) << options << QByteArray(words);
        };
        row({u"--seconds"_s, u"5"_s},
            "--seconds has no effect without --stop time or --stop either.");
        row({u"--stop"_s, u"unimproved"_s, u"--seconds"_s, u"5"_s},
            "--seconds has no effect without --stop time or --stop either.");
        row({u"--stop"_s, u"time"_s, u"--unimproved"_s, u"5"_s},
            "--unimproved has no effect without --stop unimproved or --stop either.");
        row({u"--seed"_s, u"1"_s, u"--seed"_s, u"2"_s}, "--seed is there twice.");
        row({u"-o"_s, u"another.kw"_s}, "-o is there twice.");
    }

    void optionsWithoutEffectAreRefused()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, words);
        const Outcome outcome =
            run(QStringList{u"layout"_s, example(u"small.kw"_s), u"-o"_s, out()} + options);
        QCOMPARE(outcome.status, 64);
        QVERIFY2(outcome.err.contains(words), outcome.err);
        QVERIFY2(isComplaint(outcome.err), outcome.err);
        QVERIFY(!QFile::exists(out()));
    }

    void optionsWithAnEffectAreTaken_data()
    {
        QTest::addColumn<QStringList>("options");
        const auto row = [](const QStringList &options) {
            QTest::newRow(qPrintable(options.join(u' '))) << options;
        };
        row({u"--unimproved"_s, u"1"_s});
        row({u"--stop"_s, u"unimproved"_s, u"--unimproved"_s, u"1"_s});
        row({u"--stop"_s, u"time"_s, u"--seconds"_s, u"0"_s});
        row({u"--stop"_s, u"either"_s, u"--seconds"_s, u"0"_s, u"--unimproved"_s, u"1"_s});
        row({u"--quiet"_s, u"--json"_s});
    }

    void optionsWithAnEffectAreTaken()
    {
        QFETCH(QStringList, options);
        const Outcome outcome =
            run(QStringList{u"layout"_s, example(u"small.kw"_s), u"-o"_s, out()} + options);
        QCOMPARE(outcome.status, 0);
        QVERIFY(QFile::exists(out()));
    }

    void helpOfACommandIsTheSameBothWays_data()
    {
        QTest::addColumn<QString>("command");
        for (const char *command : {"show", "score", "save", "layout", "floorplan"})
            QTest::newRow(command) << QString::fromLatin1(command);
    }

    void helpOfACommandIsTheSameBothWays()
    {
        QFETCH(QString, command);
        const Outcome outcome = run({u"help"_s, command});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, run({command, u"--help"_s}).out);
        QVERIFY2(outcome.out.startsWith("Usage: ambrelune-cli " + command.toLatin1() + " PLAN "),
                 outcome.out);
        QVERIFY(outcome.out.contains("\nPLAN is a file, or \"-\" for standard input.\n"));
        QVERIFY(run({u"help"_s}).out.contains("\n  " + command.toLatin1() + ' '));
    }

    void helpIsTheHelpOfTheProgram()
    {
        const QByteArray help = run({u"--help"_s}).out;
        QVERIFY2(help.startsWith("Usage: ambrelune-cli COMMAND PLAN [options]\n"), help);
        QCOMPARE(run({u"help"_s}).out, help);
        QCOMPARE(run({u"help"_s, u"--help"_s}).out, help);
        QCOMPARE(run({u"help"_s, u"help"_s}).out, help);
    }

    void helpOfWhatIsNoCommandIsRefused()
    {
        for (const QStringList &arguments :
             QList<QStringList>{{u"help"_s, u"seat"_s}, {u"help"_s, u"show"_s, u"score"_s}}) {
            const Outcome outcome = run(arguments);
            QCOMPARE(outcome.status, 64);
            QVERIFY2(isComplaint(outcome.err), outcome.err);
            QCOMPARE(outcome.out, QByteArray());
        }
    }

    void cleanup() { QFile::remove(out()); }

private:
    /// Every command with what it needs, so that all of it goes to standard output.
    static void addCommands()
    {
        QTest::addColumn<QStringList>("command");
        QTest::newRow("show") << QStringList{u"show"_s};
        QTest::newRow("show as JSON") << QStringList{u"show"_s, u"--json"_s};
        QTest::newRow("score") << QStringList{u"score"_s};
        QTest::newRow("score as JSON") << QStringList{u"score"_s, u"--json"_s};
        QTest::newRow("save") << QStringList{u"save"_s, u"-o"_s, u"-"_s};
        QTest::newRow("layout") << QStringList{u"layout"_s, u"-o"_s, u"-"_s, u"--seed"_s, u"1"_s};
        QTest::newRow("floorplan")
            << QStringList{u"floorplan"_s, u"-o"_s, u"-"_s, u"--format"_s, u"png"_s};
    }

    static QStringList withPlan(QStringList command, const QString &plan)
    {
        command.insert(1, plan);
        return command;
    }

    QString out() const { return m_folder.filePath(u"out.kw"_s); }

    QTemporaryDir m_folder;
};

REGISTER_TEST(TestCliInput)
#include "tst_cli_input.moc"
