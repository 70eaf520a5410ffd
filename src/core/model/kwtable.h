#pragma once

#include "core/model/kwscore.h"
#include "core/model/kwseatholder.h"

#include <QList>
#include <QPoint>

#include <array>
#include <span>
#include <vector>

class KWGuest;

/// A table of a plan and its seats. Owned by the table list of its KWDocument; owns no guest.
///
/// Seats are numbered from 0. Whoever puts a guest on a seat here must have taken them off any
/// other seat: the guest remembers only the last one. In a plan, KWDocument::assignGuest does so.
class KWTable final : public KWSeatHolder
{
public:
    enum Shape {
        Circular,
        Rectangular,
        HeadTop,
        HeadRight,
        HeadBottom,
        HeadLeft,
        Custom,
        ShapeCount
    };
    /// The most seats that one count, of a side or of a table without sides, may ask for.
    static constexpr int maxCount = 1000;
    /// The seats on the sides: across, down, across 2, down 2.
    using Sides = std::array<int, 4>;

    /// The four counts mean: seats for shapes 0 and 2 to 5 (the others are ignored); across and
    /// down for a rectangular table, each taken twice; the four sides for a custom one. Each is
    /// brought into 0..maxCount. A table of unknown shape has no seats.
    KWTable(int shape, const QString &name, int count1, int count2, int count3, int count4,
            const QPoint &position, const QString &notes);
    /// Copies everything but the guests: all seats of the copy are empty.
    KWTable(const KWTable &other);
    KWTable &operator=(const KWTable &) = delete;
    /// The guests of the table are unseated.
    ~KWTable() override;

    const QString &name() const { return m_name; }
    int shape() const { return m_shape; }
    int seatsAcross() const { return m_seats_across; }
    int seatsDown() const { return m_seats_down; }
    int seatsAcross2() const { return m_seats_across_2; }
    int seatsDown2() const { return m_seats_down_2; }
    Sides sides() const { return {m_seats_across, m_seats_down, m_seats_across_2, m_seats_down_2}; }
    const QPoint &position() const { return m_position; }
    /// One element for each seat, as of the last rescore.
    const QList<KWSeatScore> &seatScores() const { return m_seat_scores; }
    /// The sum of the seat totals, as of the last rescore.
    int score() const { return m_score; }

    void setName(const QString &name) { m_name = name; }
    void setShape(int shape);
    /// Stores the counts, each brought into 0..maxCount; the seats stay.
    void setSides(const Sides &sides);
    void setPosition(const QPoint &position) { m_position = position; }
    void setScores(const QList<KWSeatScore> &seatScores, int score);

    int seatCount() const { return static_cast<int>(m_seats.size()); }
    int seatedCount() const { return m_seated; }
    int emptySeatCount() const { return seatCount() - m_seated; }
    /// True when the seats form a line, so that the first and the last are no neighbours.
    bool isHead() const { return m_shape >= HeadTop && m_shape <= HeadLeft; }
    /// True if at least one guest is seated and every seated guest is locked.
    bool allGuestsLocked() const;

    /// The guest on each seat, null for an empty one. Valid until the table changes.
    std::span<KWGuest *const> seats() const { return m_seats; }
    /// The guest on a seat; null if it is empty or does not exist.
    KWGuest *guest(int seat) const
    {
        return seat >= 0 && seat < seatCount() ? m_seats[static_cast<std::size_t>(seat)] : nullptr;
    }
    /// The guests beside an existing seat, null where there is none. The seats form a ring, or a
    /// line at a head table, whatever the shape of the table.
    KWGuest *leftNeighbour(int seat) const
    {
        return seat > 0 ? guest(seat - 1) : (isHead() ? nullptr : guest(seatCount() - 1));
    }
    KWGuest *rightNeighbour(int seat) const
    {
        return seat < seatCount() - 1 ? guest(seat + 1) : (isHead() ? nullptr : guest(0));
    }
    /// Puts a guest on a seat, or empties it with null; whoever sat there is unseated. A seat
    /// that does not exist is ignored. Changes nothing else.
    void setGuest(int seat, KWGuest *guest);
    void emptySeat(int seat) override { setGuest(seat, nullptr); }
    /// Sets the number of seats at the end: new ones are empty, guests on lost ones unseated.
    /// The scores get as many elements; new ones are zero.
    void setSeatCount(int count);

    /// Turns the table one step, guests and side counts with it. The scores stay as they were.
    void rotate();
    /// The seat at which the longest run of empty seats begins, counted round the table;
    /// 0 if no seat is empty.
    int firstSeatOfLargestGap() const;
    /// If somebody sits beyond the first `count` seats (or beyond as many seats as there are
    /// guests), closes gaps from seat 0 on until nobody does: guests keep their order, and no more
    /// gaps close than must. True if any guest moved.
    bool compactSeats(int count);

    /// What a caller or a file may have handed in, brought into 0..maxCount.
    static int boundedCount(int count);
    static Sides boundedSides(const Sides &sides);
    /// The seats of a table made with these counts, by the rules of the constructor.
    static int seatCountFor(int shape, int count1, int count2, int count3, int count4);

private:
    void placeGuests();
    void moveGuestsUp(int by);

    QString m_name;
    std::vector<KWGuest *> m_seats;
    int m_seats_across = 0;
    int m_seats_down = 0;
    int m_seats_across_2 = 0;
    int m_seats_down_2 = 0;
    int m_shape;
    int m_seated = 0;
    QPoint m_position;
    QList<KWSeatScore> m_seat_scores;
    int m_score = 0;
};
