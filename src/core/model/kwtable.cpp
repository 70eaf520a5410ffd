#include "core/model/kwtable.h"

#include "core/model/kwguest.h"

#include <algorithm>

KWTable::KWTable(int shape, const QString &name, int count1, int count2, int count3, int count4,
                 const QPoint &position, const QString &notes)
    : KWSeatHolder(notes)
    , m_name(name)
    , m_seats(static_cast<std::size_t>(seatCountFor(shape, count1, count2, count3, count4)))
    , m_shape(shape)
    , m_position(position)
    , m_seat_scores(seatCount(), KWSeatScore{})
{
    if (shape == Rectangular)
        setSides({count1, count2, 0, 0});
    else if (shape == Custom)
        setSides({count1, count2, count3, count4});
}

KWTable::KWTable(const KWTable &other)
    : KWSeatHolder(other)
    , m_name(other.m_name)
    , m_seats(other.m_seats.size())
    , m_seats_across(other.m_seats_across)
    , m_seats_down(other.m_seats_down)
    , m_seats_across_2(other.m_seats_across_2)
    , m_seats_down_2(other.m_seats_down_2)
    , m_shape(other.m_shape)
    , m_position(other.m_position)
    , m_seat_scores(other.m_seat_scores)
    , m_score(other.m_score)
{
}

KWTable::~KWTable()
{
    for (KWGuest *guest : m_seats) {
        if (guest && guest->m_table == this)
            guest->m_table = nullptr;
    }
}

void KWTable::setShape(int shape)
{
    m_shape = shape;
    outdateScores();
}

void KWTable::setSides(const Sides &sides)
{
    const Sides bounded = boundedSides(sides);
    m_seats_across = bounded[0];
    m_seats_down = bounded[1];
    m_seats_across_2 = bounded[2];
    m_seats_down_2 = bounded[3];
}

void KWTable::setScores(const QList<KWSeatScore> &seatScores, int score)
{
    m_seat_scores = seatScores;
    m_score = score;
    markScoresCurrent();
}

bool KWTable::allGuestsLocked() const
{
    return m_seated > 0 && std::all_of(m_seats.begin(), m_seats.end(), [](const KWGuest *guest) {
               return !guest || guest->isLocked();
           });
}

void KWTable::setGuest(int seat, KWGuest *guest)
{
    if (seat < 0 || seat >= seatCount())
        return;
    KWGuest *&place = m_seats[static_cast<std::size_t>(seat)];
    // A guest who swaps has been noted on another seat by now; that note must stand.
    if (place && place->m_table == this && place->m_seat == seat)
        place->m_table = nullptr;
    m_seated += (guest ? 1 : 0) - (place ? 1 : 0);
    place = guest;
    outdateScores();
    if (guest) {
        guest->m_table = this;
        guest->m_seat = seat;
    }
}

void KWTable::setSeatCount(int count)
{
    for (int seat = seatCount() - 1; seat >= count; --seat)
        setGuest(seat, nullptr);
    m_seats.resize(static_cast<std::size_t>(std::max(count, 0)));
    m_seat_scores.resize(seatCount(), KWSeatScore{});
    outdateScores();
}

void KWTable::rotate()
{
    switch (m_shape) {
    case Circular:
        moveGuestsUp(1);
        break;
    case Rectangular:
        moveGuestsUp(m_seats_down);
        std::swap(m_seats_across, m_seats_down);
        break;
    case Custom:
        moveGuestsUp(m_seats_down_2);
        setSides({m_seats_down_2, m_seats_across, m_seats_down, m_seats_across_2});
        break;
    default:
        if (isHead())
            m_shape = m_shape == HeadLeft ? HeadTop : m_shape + 1;
    }
}

int KWTable::firstSeatOfLargestGap() const
{
    // Walking twice round the table backwards gives the run of empty seats from each seat on.
    const int count = seatCount();
    int run = 0;
    int best = 0;
    int bestSeat = 0;
    for (int i = 2 * count - 1; i >= 0; --i) {
        run = guest(i % count) ? 0 : std::min(run + 1, count);
        if (i < count && run > 0 && run >= best) {
            best = run;
            bestSeat = i;
        }
    }
    return bestSeat;
}

bool KWTable::compactSeats(int count)
{
    const auto seated = [](const KWGuest *guest) { return guest != nullptr; };
    const auto begin = m_seats.begin();
    const auto end = std::find_if(m_seats.rbegin(), m_seats.rend(), seated).base();
    // So many seats too far sits the last guest, and so many gaps close.
    auto surplus = end - begin - std::max(count, m_seated);
    if (surplus <= 0)
        return false;
    const auto closes = [&surplus](const KWGuest *guest) { return !guest && surplus-- > 0; };
    std::fill(std::remove_if(begin, end, closes), end, nullptr);
    placeGuests();
    return true;
}

int KWTable::boundedCount(int count)
{
    return std::clamp(count, 0, maxCount);
}

KWTable::Sides KWTable::boundedSides(const Sides &sides)
{
    return {boundedCount(sides[0]), boundedCount(sides[1]), boundedCount(sides[2]),
            boundedCount(sides[3])};
}

int KWTable::seatCountFor(int shape, int count1, int count2, int count3, int count4)
{
    switch (shape) {
    case Circular:
    case HeadTop:
    case HeadRight:
    case HeadBottom:
    case HeadLeft:
        return boundedCount(count1);
    case Rectangular:
        return 2 * (boundedCount(count1) + boundedCount(count2));
    case Custom:
        return boundedCount(count1) + boundedCount(count2) + boundedCount(count3) +
               boundedCount(count4);
    default:
        return 0;
    }
}

void KWTable::placeGuests()
{
    outdateScores();
    for (int seat = 0; seat < seatCount(); ++seat) {
        if (KWGuest *guest = m_seats[static_cast<std::size_t>(seat)]) {
            guest->m_table = this;
            guest->m_seat = seat;
        }
    }
}

void KWTable::moveGuestsUp(int by)
{
    if (m_seats.empty())
        return;
    const auto steps = static_cast<std::size_t>(by) % m_seats.size();
    std::rotate(m_seats.begin(), m_seats.end() - static_cast<std::ptrdiff_t>(steps), m_seats.end());
    placeGuests();
}
