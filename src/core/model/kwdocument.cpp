#include "core/model/kwdocument.h"

namespace {
constexpr double feetInAMetre = 3.281;

int documentsAlive = 0;
int eventBlockDepth = 0;

double fromMetres(double metres, int units)
{
    return units == KWPlanFields::Feet ? metres * feetInAMetre : metres;
}

double toMetres(double size, int units)
{
    return units == KWPlanFields::Feet ? size / feetInAMetre : size;
}
} // namespace

KWDocument::LiveMark::LiveMark()
{
    ++documentsAlive;
}

KWDocument::LiveMark::~LiveMark()
{
    --documentsAlive;
}

int KWDocument::liveCount()
{
    return documentsAlive;
}

KWDocument::EventBlock::EventBlock(KWDocument &document)
    : m_document(document)
{
    m_document.blockEvents();
}

KWDocument::EventBlock::~EventBlock()
{
    m_document.unblockEvents();
}

KWDocument::KWDocument() = default;

KWDocument::KWDocument(const KWDocument &other)
    : QObject()
    , m_affinities(other.m_affinities)
    , m_guestOfWishId(other.m_guestOfWishId.size(), nullptr)
    , m_fields(other.m_fields)
    , m_file_name(other.m_file_name)
    , m_file_version(other.m_file_version)
    , m_history(other.m_history)
    // Taking over wishes is a change like any other.
    , m_modified(other.m_modified || other.affinityCount() > 0)
{
    copyGuests(other);
    copyGroups(other);
    copyTables(other);
}

KWDocument &KWDocument::operator=(const KWDocument &other)
{
    if (this != &other) {
        // The copy is whole before anything of this plan goes.
        KWDocument copy(other);
        m_tables.swap(copy.m_tables);
        m_groups.swap(copy.m_groups);
        m_guests.swap(copy.m_guests);
        m_affinities = copy.m_affinities;
        m_guestOfWishId.swap(copy.m_guestOfWishId);
        std::swap(m_fields, copy.m_fields);
        m_file_name = copy.m_file_name;
        m_file_version = copy.m_file_version;
        m_history = copy.m_history;
        m_modified = copy.m_modified;
    }
    emit eventModified();
    return *this;
}

KWDocument::~KWDocument() = default;

void KWDocument::copyGuests(const KWDocument &other)
{
    m_guests.reserve(other.guestCount());
    for (const KWGuest *source : other.m_guests) {
        KWGuest *guest = m_guests.append(*source);
        guest->m_wishId = source->m_wishId;
        m_guestOfWishId[guest->m_wishId] = guest;
    }
}

void KWDocument::copyGroups(const KWDocument &other)
{
    m_groups.reserve(other.groupCount());
    for (const KWGroup *source : other.m_groups) {
        KWGroup *group = m_groups.append(*source);
        for (int i = 0; i < source->guestCount(); ++i) {
            KWGuest *guest = guestAt(other.indexOfGuest(source->guestAt(i)));
            group->appendGuest(guest);
            guest->setGroup(group);
        }
    }
}

void KWDocument::copyTables(const KWDocument &other)
{
    m_tables.reserve(other.tableCount());
    for (const KWTable *source : other.m_tables) {
        KWTable *table = m_tables.append(*source);
        for (int seat = 0; seat < source->seatCount(); ++seat) {
            if (const KWGuest *guest = source->guest(seat))
                table->setGuest(seat, guestAt(other.indexOfGuest(guest)));
        }
        // The copies sit as their originals do, so the scores hold for them too.
        if (source->areScoresCurrent())
            table->setScores(source->seatScores(), source->score());
    }
}

void KWDocument::clear()
{
    emit eventClear();
    emit eventDocumentNameChange(QString());
    m_file_name = QString();
    m_file_version = KWPlanFields::fileVersion;
    m_tables.clear();
    m_guests.clear();
    m_groups.clear();
    m_guestOfWishId.clear();
    m_affinities.clear();

    static_cast<KWPlanFacts &>(m_fields) = KWPlanFacts();
    // A plan that was never cleared has no colours for them yet.
    m_fields.print_header_colour = Qt::black;
    m_fields.print_footer_colour = Qt::black;
    m_history.clear();
    m_modified = false;
    emit eventModified();
}

void KWDocument::blockEvents()
{
    if (eventBlockDepth == 0)
        blockSignals(true);
    ++eventBlockDepth;
}

void KWDocument::unblockEvents()
{
    Q_ASSERT(eventBlockDepth > 0);
    --eventBlockDepth;
    if (eventBlockDepth == 0)
        blockSignals(false);
}

void KWDocument::appendHistory(const QString &text)
{
    m_history += QLatin1StringView("->") + text;
}

template <typename Value>
void KWDocument::setFact(Value KWPlanFacts::*field, const Value &value)
{
    m_modified = true;
    m_fields.*field = value;
    emit eventModified();
}

void KWDocument::setEvent(const QString &event)
{
    setFact(&KWPlanFields::event, event);
}

void KWDocument::setVenue(const QString &venue)
{
    setFact(&KWPlanFields::venue, venue);
}

void KWDocument::setDate(const QDate &date)
{
    setFact(&KWPlanFields::date, date);
}

void KWDocument::setFixedCost(int cost)
{
    setFact(&KWPlanFields::fixed_cost, cost);
}

void KWDocument::setAdultCost(int cost)
{
    setFact(&KWPlanFields::adult_cost, cost);
}

void KWDocument::setChildCost(int cost)
{
    setFact(&KWPlanFields::child_cost, cost);
}

void KWDocument::setNotes(const QString &notes)
{
    setFact(&KWPlanFields::notes, notes);
}

double KWDocument::roomXSize(int units) const
{
    return fromMetres(m_fields.room_x_size, units);
}

void KWDocument::setRoomXSize(double size, int units)
{
    m_fields.room_x_size = toMetres(size, units);
}

double KWDocument::roomYSize(int units) const
{
    return fromMetres(m_fields.room_y_size, units);
}

void KWDocument::setRoomYSize(double size, int units)
{
    m_fields.room_y_size = toMetres(size, units);
}

double KWDocument::chairSize(int units) const
{
    return fromMetres(m_fields.chair_size, units);
}

void KWDocument::setChairSize(double size, int units)
{
    m_fields.chair_size = toMetres(size, units);
}
