#include "cli/commandline.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "core/autolayout/kwgeneticsolver.h"
#include "core/autolayout/kwlayoutrun.h"
#include "core/model/kwdocument.h"
#include "core/model/kwrandom.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <limits>
#include <optional>
#include <unistd.h>

namespace {
volatile std::sig_atomic_t interrupted = 0;

/// While it lives, Ctrl+C asks for the end of the run; a second one ends the program.
class InterruptWatch
{
public:
    InterruptWatch()
    {
        interrupted = 0;
        struct sigaction action = {};
        action.sa_handler = [](int) { interrupted = 1; };
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(SIGINT, nullptr, &m_before);
        // A job that a script runs in the background ignores Ctrl+C, which is meant for others.
        if (m_before.sa_handler != SIG_IGN)
            sigaction(SIGINT, &action, nullptr);
    }
    ~InterruptWatch() { sigaction(SIGINT, &m_before, nullptr); }
    InterruptWatch(const InterruptWatch &) = delete;
    InterruptWatch &operator=(const InterruptWatch &) = delete;

private:
    struct sigaction m_before = {};
};

/// One line on the terminal that tells how far the run is, at most ten times a second.
class ProgressLine
{
public:
    explicit ProgressLine(bool wanted)
        : m_wanted(wanted && isatty(STDERR_FILENO) == 1)
    {
        m_clock.start();
    }
    ~ProgressLine()
    {
        if (m_wanted)
            std::fputs("\r\x1b[K", stderr);
    }
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    void show(const KWLayoutProgress &progress)
    {
        constexpr qint64 pauseMs = 100;
        const qint64 now = m_clock.elapsed();
        if (!m_wanted || now < m_next)
            return;
        m_next = now + pauseMs;
        const double seconds = static_cast<double>(now) / 1000;
        if (progress.inStartStage)
            std::fprintf(stderr, "\r\x1b[Kstart layout %lld of %d, score %d, %.1f s",
                         static_cast<long long>(progress.done), progress.total, progress.score,
                         seconds);
        else
            std::fprintf(stderr, "\r\x1b[Kgeneration %lld, score %d, %.1f s",
                         static_cast<long long>(progress.done), progress.score, seconds);
        std::fflush(stderr);
    }

private:
    bool m_wanted;
    qint64 m_next = 0;
    QElapsedTimer m_clock;
};

/// What is reported of a run, in the terms of the JSON output.
struct Report
{
    int guests;
    int seats;
    int startSeated;
    int startScore;
    int seated;
    int score;
    KWLayoutResult run;

    double seconds() const { return (run.startStageMs + run.generationsMs) / 1000; }
};

QString stoppedByWord(KWLayoutResult::StoppedBy stoppedBy)
{
    switch (stoppedBy) {
    case KWLayoutResult::Time:
        return QStringLiteral("time");
    case KWLayoutResult::Unimproved:
        return QStringLiteral("unimproved");
    case KWLayoutResult::User:
        return QStringLiteral("user");
    default:
        return QStringLiteral("memory");
    }
}

/// To the precision that is worth printing.
double toThreePlaces(double value)
{
    return std::round(value * 1000) / 1000;
}

QByteArray toJson(const Report &report)
{
    const QJsonObject json{
        {QStringLiteral("guests"), report.guests},
        {QStringLiteral("seats"), report.seats},
        {QStringLiteral("start_seated"), report.startSeated},
        {QStringLiteral("start_score"), report.startScore},
        {QStringLiteral("seated"), report.seated},
        {QStringLiteral("score"), report.score},
        {QStringLiteral("start_solutions"), report.run.startSolutions},
        {QStringLiteral("generations"), report.run.generations},
        {QStringLiteral("start_stage_ms"), toThreePlaces(report.run.startStageMs)},
        {QStringLiteral("generations_ms"), toThreePlaces(report.run.generationsMs)},
        {QStringLiteral("seconds"), toThreePlaces(report.seconds())},
        {QStringLiteral("stopped_by"), stoppedByWord(report.run.stoppedBy)}};
    return QJsonDocument(json).toJson();
}

QString toText(const Report &report, const QString &plan, const QString &output)
{
    const auto seating = [](int seated, int score) {
        return QStringLiteral("%1 seated, score %2\n")
            .arg(QString::number(seated), QString::number(score));
    };
    const KWLayoutResult &run = report.run;
    return QStringLiteral("%1: %2 guests, %3 seats\n")
               .arg(plan, QString::number(report.guests), QString::number(report.seats)) +
           QStringLiteral("before: ") + seating(report.startSeated, report.startScore) +
           QStringLiteral("after:  ") + seating(report.seated, report.score) +
           QStringLiteral("%1 start layouts and %2 generations in %3 s\nwritten to %4\n")
               .arg(QString::number(run.startSolutions), QString::number(run.generations),
                    QString::number(report.seconds(), 'f', 2), output);
}

/// Whether an option is there that another one makes idle; complains of it.
bool hasIdleOption(const CommandLine &line, KWGeneticSolver::StopCriteria stop)
{
    const auto isIdle = [&](const QString &option, KWGeneticSolver::StopCriteria other,
                            const QString &needed) {
        if (stop != other || !line.isSet(option))
            return false;
        line.refuse(QStringLiteral("--%1 has no effect without --stop %2 or --stop either.")
                        .arg(option, needed));
        return true;
    };
    return isIdle(QStringLiteral("seconds"), KWGeneticSolver::StopOnUnimproved,
                  QStringLiteral("time")) ||
           isIdle(QStringLiteral("unimproved"), KWGeneticSolver::StopOnTime,
                  QStringLiteral("unimproved"));
}

/// The run's options from the command line; nothing after a complaint.
std::optional<KWLayoutOptions> optionsOf(const CommandLine &line)
{
    constexpr std::array criteria{KWGeneticSolver::StopOnTime, KWGeneticSolver::StopOnUnimproved,
                                  KWGeneticSolver::StopOnEither};
    const auto stop =
        line.word(QStringLiteral("stop"),
                  {QStringLiteral("time"), QStringLiteral("unimproved"), QStringLiteral("either")});
    if (!stop || hasIdleOption(line, criteria.at(static_cast<std::size_t>(*stop))))
        return std::nullopt;
    constexpr int most = std::numeric_limits<int>::max();
    const auto number = [&](const QString &option) { return line.number(option, 0, most); };
    const auto seconds = number(QStringLiteral("seconds"));
    const auto unimproved = seconds ? number(QStringLiteral("unimproved")) : std::nullopt;
    if (!unimproved)
        return std::nullopt;
    return KWLayoutOptions{criteria.at(static_cast<std::size_t>(*stop)), static_cast<int>(*seconds),
                           static_cast<int>(*unimproved)};
}

void addOptions(CommandLine &line)
{
    const KWLayoutOptions defaults;
    line.addOutputOption();
    line.addOption({QStringLiteral("stop"),
                    QStringLiteral("Stop on time, on generations without improvement "
                                   "(unimproved), or on either. Default: unimproved."),
                    QStringLiteral("WHAT"), QStringLiteral("unimproved")});
    line.addOption({QStringLiteral("seconds"),
                    QStringLiteral("With --stop time or either: stop once more than N whole "
                                   "seconds have passed. Default: 60."),
                    QStringLiteral("N"), QString::number(defaults.maxSeconds)});
    line.addOption({QStringLiteral("unimproved"),
                    QStringLiteral("With --stop unimproved or either: stop after N generations "
                                   "without improvement. Default: 20."),
                    QStringLiteral("N"), QString::number(defaults.maxGenerationsUnimproved)});
    line.addOption({QStringLiteral("seed"),
                    QStringLiteral("Start the random numbers from N, so that the layout can be "
                                   "repeated. Default: the time in seconds."),
                    QStringLiteral("N")});
    line.addOption({QStringLiteral("json"),
                    QStringLiteral("Print what was done as JSON; stopped_by is time, unimproved, "
                                   "user or memory.")});
    line.addOption({QStringLiteral("quiet"), QStringLiteral("Print nothing but what was asked "
                                                            "for with --json.")});
}

Report layOut(KWDocument &document, const KWLayoutOptions &options, bool showProgress)
{
    Report report{};
    report.guests = document.guestCount();
    report.seats = document.seatCount();
    report.startSeated = document.seatedGuestCount();
    report.startScore = document.totalScore();

    const InterruptWatch watch;
    ProgressLine progressLine(showProgress);
    KWLayoutHooks hooks;
    hooks.processEvents = [&document] {
        if (interrupted)
            document.abortProcessing();
    };
    hooks.progress = [&progressLine](const KWLayoutProgress &p) { progressLine.show(p); };
    report.run = runLayout(document, options, hooks);

    report.seated = document.seatedGuestCount();
    report.score = document.totalScore();
    return report;
}
} // namespace

int layoutCommand(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("layout"),
                     QStringLiteral("Finds a seating for all guests who are not locked and writes "
                                    "the plan with it.\nCtrl+C ends the search and writes the "
                                    "best seating so far; a second Ctrl+C\nends the program."));
    addOptions(line);
    if (const auto status = line.parse(arguments))
        return *status;
    const auto options = optionsOf(line);
    if (!options)
        return ExitUsage;
    if (line.isSet(QStringLiteral("seed"))) {
        const auto seed =
            line.number(QStringLiteral("seed"), 0, std::numeric_limits<unsigned>::max());
        if (!seed)
            return ExitUsage;
        setFixedRandomSeed(static_cast<unsigned>(*seed));
    }
    const bool json = line.isSet(QStringLiteral("json"));
    const bool quiet = line.isSet(QStringLiteral("quiet"));
    const bool planToStdout = line.output() == QLatin1StringView("-");
    if (json && planToStdout)
        return line.refuse(QStringLiteral("--json and '-o -' would both write to standard "
                                          "output."));

    KWDocument document;
    KWViewSettings views;
    if (const int status = loadPlanToWrite(document, line.plan(), views))
        return status;
    if (document.seatCount() == 0)
        complain(QStringLiteral("There are no seats: add some tables first."));
    else if (document.unlockedGuestCount() == 0)
        complain(QStringLiteral("There is nobody to seat: every guest is locked."));
    const Report report = layOut(document, *options, !quiet);
    if (report.run.stoppedBy == KWLayoutResult::Memory)
        complain(QStringLiteral("Insufficient memory available to complete calculation."));
    if (const int status = writeOutput(line.output(), document.toPlanText(views)))
        return status;
    if (json)
        return writeOutput(QStringLiteral("-"), toJson(report));
    if (quiet || planToStdout)
        return ExitOk;
    return printText(toText(report, planLabel(line.plan()), line.output()));
}
