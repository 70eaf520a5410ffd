#include "core/autolayout/kwgeneticsolver.h"

#include "core/autolayout/kwmemoryexception.h"
#include "core/autolayout/kwmutations.h"
#include "core/model/kwmodelhooks.h"
#include "core/model/kwrandom.h"

#include <algorithm>
#include <new>

namespace {
/// How often a mutation or a crossover is tried on one child.
constexpr int maxTries = 51;

std::array<KWGeneticSolver::Statistics, KWGeneticSolver::mutationCount> mutationCounters;
KWGeneticSolver::Statistics crossoverCounters;

bool mutate(int number, KWDocument &child)
{
    switch (number) {
    case 0:
        return KWMutations::mutateGuest(child);
    case 1:
        return KWMutations::mutateMultiGuest(child);
    case 2:
        return KWMutations::mutateMember(child);
    case 3:
        return KWMutations::mutateEmpty(child);
    case 4:
        return KWMutations::mutateTogether(child, KWScore::Loves);
    case 5:
        return KWMutations::mutateTogether(child, KWScore::Likes);
    case 6:
        return KWMutations::mutateApart(child, KWScore::Dislikes);
    default:
        return KWMutations::mutateApart(child, KWScore::Hates);
    }
}

/// Counts a finished try and, after a success, rescores the child.
void record(KWGeneticSolver::Statistics &counters, bool success, KWDocument &child,
            const KWDocument &parent)
{
    if (!success) {
        ++counters.fails;
        return;
    }
    ++counters.successes;
    child.recalculateScores();
    if (child.totalScore() > parent.totalScore())
        ++counters.improved;
}

std::unique_ptr<KWDocument> copyOf(const KWDocument &source)
{
    try {
        return std::make_unique<KWDocument>(source);
    } catch (const std::bad_alloc &) {
        throw KWMemoryException();
    }
}

int share(int populationSize, float factor)
{
    return static_cast<int>(static_cast<float>(populationSize) * factor);
}

QString cell(const QString &text)
{
    return text.rightJustified(10);
}

QString percentage(qint64 part, qint64 whole)
{
    return whole < 1 ? QStringLiteral("-") : QString::number(part * 100 / whole);
}

QStringList columnNames()
{
    return {QStringLiteral("attempts"), QStringLiteral("successes"), QStringLiteral("fails"),
            QStringLiteral("improved"), QStringLiteral("success %"), QStringLiteral("improved %")};
}

QStringList columns(const KWGeneticSolver::Statistics &counters)
{
    return {QString::number(counters.attempts),
            QString::number(counters.successes),
            QString::number(counters.fails),
            QString::number(counters.improved),
            percentage(counters.successes, counters.successes + counters.fails),
            percentage(counters.improved, counters.successes)};
}

QString row(const QStringList &texts)
{
    QStringList cells;
    std::ranges::transform(texts, std::back_inserter(cells), cell);
    return cells.join(u' ');
}
} // namespace

KWGeneticSolver::KWGeneticSolver(const KWDocument &document, int stopCriteria, int maxSeconds,
                                 int maxGenerationsUnimproved, int populationSize,
                                 float mutationFactor, float crossoverFactor, float startFactor)
    : m_document(document)
    , m_population_size(populationSize)
    , m_max_seconds(maxSeconds)
    , m_max_generations_unimproved(maxGenerationsUnimproved)
    , m_start_factor(startFactor)
    , m_crossover_factor(crossoverFactor)
    , m_mutation_factor(mutationFactor)
    , m_stop_criteria(stopCriteria)
{
    seedRandomNumbers();
    m_clock.start();
    findAvailable();
}

void KWGeneticSolver::findAvailable()
{
    const auto &tables = m_document.tables();
    const int unlocked = m_document.unlockedGuestCount();
    const auto hasUnlockedPair = [this](int value) {
        const auto pairs = m_document.proximityPairs(value);
        return std::ranges::any_of(pairs, [](const auto &pair) {
            return !pair.first->isLocked() || !pair.second->isLocked();
        });
    };
    const bool severalTables = m_document.tableCount() >= 2;

    m_mutation_available[0] = unlocked >= 2;
    m_mutation_available[1] =
        unlocked >= 4 && std::ranges::count_if(tables, [this](const KWTable *table) {
                             return m_document.seatsFreeOfLocks(table) >= 2;
                         }) >= 2;
    m_mutation_available[2] = std::ranges::any_of(
        m_document.groups(), [](const KWGroup *group) { return group->unlockedCount() >= 2; });
    m_mutation_available[3] = m_document.guestCount() < m_document.seatCount();
    m_mutation_available[4] = hasUnlockedPair(KWScore::Loves);
    m_mutation_available[5] = hasUnlockedPair(KWScore::Likes);
    m_mutation_available[6] = severalTables && hasUnlockedPair(KWScore::Dislikes);
    m_mutation_available[7] = severalTables && hasUnlockedPair(KWScore::Hates);
    m_crossover_available =
        unlocked >= 4 && std::ranges::count_if(tables, [this](const KWTable *table) {
                             return table->seatCount() > 0 &&
                                    !m_document.tableHasLockedGuest(table);
                         }) >= 2;
}

bool KWGeneticSolver::isMutationAvailable(int number) const
{
    return number >= 0 && number < mutationCount &&
           m_mutation_available[static_cast<std::size_t>(number)];
}

int KWGeneticSolver::numberOfStartSolutions() const
{
    return share(m_population_size, m_start_factor);
}

void KWGeneticSolver::addStartSolution()
{
    std::unique_ptr<KWDocument> candidate = copyOf(m_document);
    if (!m_solutions.isEmpty()) {
        candidate->randomLayout();
        candidate->appendHistory(QStringLiteral("start solution %1").arg(m_solutions.count()));
    }
    traceLine(QStringLiteral("start solution %1 score %2 ")
                  .arg(candidate->history(), QString::number(candidate->totalScore())));
    m_solutions.append(std::move(candidate));
}

bool KWGeneticSolver::isFinished() const
{
    const bool onUnimproved =
        m_stop_criteria == StopOnUnimproved || m_stop_criteria == StopOnEither;
    const bool onTime = m_stop_criteria == StopOnTime || m_stop_criteria == StopOnEither;
    return (onUnimproved && m_generations_unimproved >= m_max_generations_unimproved) ||
           (onTime && isTimeOver(m_clock.elapsed(), m_max_seconds));
}

bool KWGeneticSolver::isTimeOver(qint64 milliseconds, int maxSeconds)
{
    return milliseconds / 1000 > maxSeconds;
}

void KWGeneticSolver::nextGeneration()
{
    // The children stand apart until all are made, so that parents are drawn from parents only.
    KWSolutionsList children;
    const int mutants = share(m_population_size, m_mutation_factor);
    for (int i = 0; i < mutants && numberOfSolutions() > 0; ++i) {
        const KWDocument &parent = *m_solutions.at(randomNumber(numberOfSolutions()));
        if (parent.seatedUnlockedGuestCount() > 0)
            children.append(makeMutant(parent));
    }
    const int crossovers = share(m_population_size, m_crossover_factor);
    for (int i = 0; i < crossovers && m_crossover_available && numberOfSolutions() > 1; ++i)
        children.append(makeCrossover());
    m_solutions.append(std::move(children));
    ++m_generation;
}

std::unique_ptr<KWDocument> KWGeneticSolver::makeMutant(const KWDocument &parent) const
{
    std::unique_ptr<KWDocument> child = copyOf(parent);
    int tries = 0;
    bool success = false;
    while (!success && tries < maxTries) {
        ++tries;
        const int number = randomNumber(mutationCount);
        Statistics &counters = mutationCounters[static_cast<std::size_t>(number)];
        ++counters.attempts;
        if (!isMutationAvailable(number))
            continue;
        success = mutate(number, *child);
        record(counters, success, *child, parent);
    }
    if (tries == maxTries)
        traceLine(QStringLiteral("--Gave up on mutation"));
    return child;
}

std::unique_ptr<KWDocument> KWGeneticSolver::makeCrossover() const
{
    const int a = biasedRandomNumber(numberOfSolutions());
    const int b = otherRandomNumber(numberOfSolutions(), a);
    const KWDocument &firstParent = *m_solutions.at(a);
    const KWDocument &secondParent = *m_solutions.at(b);
    std::unique_ptr<KWDocument> child = copyOf(secondParent);
    int tries = 0;
    bool success = false;
    while (!success && tries < maxTries) {
        ++tries;
        ++crossoverCounters.attempts;
        success = KWMutations::crossoverTable(firstParent, *child);
        record(crossoverCounters, success, *child, secondParent);
    }
    if (tries == maxTries)
        traceLine(QStringLiteral("--Gave up on crossover"));
    return child;
}

void KWGeneticSolver::selectSurvivors()
{
    if (m_solutions.isEmpty())
        return;
    const int oldScore = m_solutions.first()->totalScore();
    const int oldSeated = m_solutions.first()->seatedGuestCount();
    m_solutions.sort();
    const int newScore = m_solutions.first()->totalScore();
    const int newSeated = m_solutions.first()->seatedGuestCount();
    const bool improved = newSeated > oldSeated || newScore > oldScore;
    m_generations_unimproved = improved ? 0 : m_generations_unimproved + 1;
    traceLine(QStringLiteral("**new best score="), newScore);

    const int half = m_population_size / 2;
    while (m_solutions.count() > m_population_size)
        m_solutions.remove(half + randomNumber(m_solutions.count() - half));
}

void KWGeneticSolver::keepFirstSolution()
{
    while (m_solutions.count() > 1)
        m_solutions.remove(m_solutions.count() - 1);
}

const KWDocument &KWGeneticSolver::best() const
{
    const KWDocument *candidate = m_solutions.first();
    if (!candidate || (candidate->seatedGuestCount() <= m_document.seatedGuestCount() &&
                       candidate->totalScore() <= m_document.totalScore()))
        return m_document;
    return *candidate;
}

const std::array<KWGeneticSolver::Statistics, KWGeneticSolver::mutationCount> &
KWGeneticSolver::mutationStatistics()
{
    return mutationCounters;
}

const KWGeneticSolver::Statistics &KWGeneticSolver::crossoverStatistics()
{
    return crossoverCounters;
}

void KWGeneticSolver::logStatistics()
{
    const auto header = [](const QString &title, const QStringList &names) {
        return QStringLiteral("\n%1\n%2").arg(title, row(names));
    };
    traceLine(header(QStringLiteral("Mutations"),
                     QStringList{QStringLiteral("mutation")} + columnNames()));
    for (int number = 0; number < mutationCount; ++number) {
        const Statistics &counters = mutationCounters[static_cast<std::size_t>(number)];
        traceLine(row(QStringList{QString::number(number)} + columns(counters)));
    }
    traceLine(header(QStringLiteral("Crossovers"), columnNames()));
    traceLine(row(columns(crossoverCounters)));
}

void KWGeneticSolver::logSeats(const KWTable &table)
{
    for (int seat = 0; seat < table.seatCount(); ++seat) {
        const KWGuest *guest = table.guest(seat);
        const QString prefix = QStringLiteral("seat ") + QString::number(seat);
        traceLine(prefix, guest ? QStringLiteral(" = assigned ") + guest->name()
                                : QStringLiteral(" = unassigned"));
    }
}
