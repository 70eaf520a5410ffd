#pragma once

#include "core/model/kwgroup.h"
#include "core/model/kwguest.h"
#include "core/model/kwobjectlist.h"
#include "core/model/kwplanfields.h"
#include "core/model/kwproximitystore.h"
#include "core/model/kwscore.h"
#include "core/model/kwtable.h"
#include "core/model/kwviewsettings.h"

#include <QObject>
#include <QPair>
#include <QStringList>

class QIODevice;

/// The plan: it owns all guests, groups and tables and is the one place through which they are
/// changed. Every change marks the plan as modified, rescores it when asked to, and fires the
/// events that views follow, eventModified() last.
///
/// A copy is deep: it shares no object with its source, and a guest of the copy corresponds to the
/// guest at the same position. A changing operation refuses null and objects of other plans, and
/// does nothing when there is nothing to change; a query about a table needs one of this plan.
/// Locks are the caller's business.
class KWDocument : public QObject
{
    Q_OBJECT

public:
    using GuestPair = QPair<KWGuest *, KWGuest *>;

    KWDocument();
    KWDocument(const KWDocument &other);
    /// Replaces the whole plan but keeps the object and its connections. Fires eventModified()
    /// only; the callers announce the change. Without memory for the copy, nothing changes.
    KWDocument &operator=(const KWDocument &other);
    ~KWDocument() override;

    /// The number of documents alive in the process, for the trace.
    static int liveCount();

    // Fields. The setters from the event to the notes report, changed or not; the others change
    // the field and nothing else.
    using QObject::event;
    QString event() const { return m_fields.event; }
    void setEvent(const QString &event);
    QString venue() const { return m_fields.venue; }
    void setVenue(const QString &venue);
    QDate date() const { return m_fields.date; }
    void setDate(const QDate &date);
    int fixedCost() const { return m_fields.fixed_cost; }
    void setFixedCost(int cost);
    int adultCost() const { return m_fields.adult_cost; }
    void setAdultCost(int cost);
    int childCost() const { return m_fields.child_cost; }
    void setChildCost(int cost);
    QString notes() const { return m_fields.notes; }
    void setNotes(const QString &notes);

    bool isModified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }
    /// The path of the plan on disk with native separators; null for a plan without a file.
    QString fileName() const { return m_file_name; }
    void setFileName(const QString &path) { m_file_name = path; }
    /// The version of the plan file that was loaded; the one that save() writes for a new plan.
    int fileVersion() const { return m_file_version; }
    QString history() const { return m_history; }
    void setHistory(const QString &history) { m_history = history; }
    /// Appends "->" and the text to the history.
    void appendHistory(const QString &text);
    bool abortRequested() const { return m_abort_requested; }
    void setAbortRequested(bool requested) { m_abort_requested = requested; }

    /// Sizes are kept in metres; `units` is the unit of the number given or wanted.
    double roomXSize(int units = KWPlanFields::Metres) const;
    void setRoomXSize(double size, int units = KWPlanFields::Metres);
    double roomYSize(int units = KWPlanFields::Metres) const;
    void setRoomYSize(double size, int units = KWPlanFields::Metres);
    double chairSize(int units = KWPlanFields::Metres) const;
    void setChairSize(double size, int units = KWPlanFields::Metres);
    bool showGrid() const { return m_fields.show_grid; }
    void setShowGrid(bool show) { m_fields.show_grid = show; }
    int units() const { return m_fields.units; }
    void setUnits(int units) { m_fields.units = units; }

    QString printHeaderText() const { return m_fields.print_header_text; }
    void setPrintHeaderText(const QString &text) { m_fields.print_header_text = text; }
    QFont printHeaderFont() const { return m_fields.print_header_font; }
    void setPrintHeaderFont(const QFont &font) { m_fields.print_header_font = font; }
    QColor printHeaderColour() const { return m_fields.print_header_colour; }
    void setPrintHeaderColour(const QColor &c) { m_fields.print_header_colour = c; }
    QString printFooterText() const { return m_fields.print_footer_text; }
    void setPrintFooterText(const QString &text) { m_fields.print_footer_text = text; }
    QFont printFooterFont() const { return m_fields.print_footer_font; }
    void setPrintFooterFont(const QFont &font) { m_fields.print_footer_font = font; }
    QColor printFooterColour() const { return m_fields.print_footer_colour; }
    void setPrintFooterColour(const QColor &c) { m_fields.print_footer_colour = c; }
    int printMargin() const { return m_fields.print_margin; }
    void setPrintMargin(int margin) { m_fields.print_margin = margin; }
    bool printOrientation() const { return m_fields.print_orientation; }
    void setPrintOrientation(bool orientation) { m_fields.print_orientation = orientation; }
    int headerPosition() const { return m_fields.header_position; }
    void setHeaderPosition(int position) { m_fields.header_position = position; }
    int footerPosition() const { return m_fields.footer_position; }
    void setFooterPosition(int position) { m_fields.footer_position = position; }

    QColor floorplanColourSeats() const { return m_fields.floorplan_colour_seats; }
    void setFloorplanColourSeats(const QColor &c) { m_fields.floorplan_colour_seats = c; }
    QColor floorplanColourSeatsEdge() const { return m_fields.floorplan_colour_seats_edge; }
    void setFloorplanColourSeatsEdge(const QColor &c) { m_fields.floorplan_colour_seats_edge = c; }
    QColor floorplanColourTables() const { return m_fields.floorplan_colour_tables; }
    void setFloorplanColourTables(const QColor &c) { m_fields.floorplan_colour_tables = c; }
    QColor floorplanColourTablesEdge() const { return m_fields.floorplan_colour_tables_edge; }
    void setFloorplanColourTablesEdge(const QColor &c)
    {
        m_fields.floorplan_colour_tables_edge = c;
    }
    QColor floorplanColourInside() const { return m_fields.floorplan_colour_inside; }
    void setFloorplanColourInside(const QColor &c) { m_fields.floorplan_colour_inside = c; }
    QColor floorplanColourOutside() const { return m_fields.floorplan_colour_outside; }
    void setFloorplanColourOutside(const QColor &c) { m_fields.floorplan_colour_outside = c; }
    QColor floorplanColourSeatsText() const { return m_fields.floorplan_colour_seats_text; }
    void setFloorplanColourSeatsText(const QColor &c) { m_fields.floorplan_colour_seats_text = c; }
    QColor floorplanColourTableText() const { return m_fields.floorplan_colour_table_text; }
    void setFloorplanColourTableText(const QColor &c) { m_fields.floorplan_colour_table_text = c; }
    QFont floorPlanFont() const { return m_fields.floor_plan_font; }
    void setFloorPlanFont(const QFont &font) { m_fields.floor_plan_font = font; }
    /// Invalid while the plan has no colour of its own for selected things.
    QColor floorplanColourSelected() const { return m_fields.floorplan_colour_selected; }
    void setFloorplanColourSelected(const QColor &c) { m_fields.floorplan_colour_selected = c; }
    QFont tableChartFont() const { return m_fields.table_chart_font; }
    void setTableChartFont(const QFont &font) { m_fields.table_chart_font = font; }
    QColor tableChartColourText() const { return m_fields.table_chart_colour_text; }
    void setTableChartColourText(const QColor &c) { m_fields.table_chart_colour_text = c; }
    QColor tableChartColourBackground() const { return m_fields.table_chart_colour_background; }
    void setTableChartColourBackground(const QColor &c)
    {
        m_fields.table_chart_colour_background = c;
    }
    QFont guestChartFont() const { return m_fields.guest_chart_font; }
    void setGuestChartFont(const QFont &font) { m_fields.guest_chart_font = font; }
    QColor guestChartColourText() const { return m_fields.guest_chart_colour_text; }
    void setGuestChartColourText(const QColor &c) { m_fields.guest_chart_colour_text = c; }
    QColor guestChartColourBackground() const { return m_fields.guest_chart_colour_background; }
    void setGuestChartColourBackground(const QColor &c)
    {
        m_fields.guest_chart_colour_background = c;
    }
    /// All of the above that a plan file carries, for readers and writers of the whole.
    const KWPlanFields &fields() const { return m_fields; }

    // Changing operations. `rescore` asks for recalculateScores() at the operation's place for it;
    // in a batch, pass false and call it once at the end.
    KWTable *addTable(int shape, const QString &name, int count1, int count2, int count3,
                      int count4, const QPoint &position, const QString &notes);
    /// `group` may be null: the guest then has none until moveGuestToGroup().
    KWGuest *addGuest(const KWGuestValues &values, KWGroup *group);
    KWGroup *addGroup(const KWContact &contact, const QString &name, const QString &notes);
    void deleteGuest(KWGuest *guest, bool rescore);
    void deleteTable(KWTable *table, bool rescore);
    /// Deletes the group's members, too.
    void deleteGroup(KWGroup *group, bool rescore);

    void editGuest(KWGuest *guest, const KWGuestValues &values);
    void editGroup(KWGroup *group, const KWContact &contact, const QString &name,
                   const QString &notes);
    void moveGuestToGroup(KWGroup *group, KWGuest *guest);
    void setGuestLocked(KWGuest *guest, bool locked);
    void setGuestAccepted(KWGuest *guest, bool accepted);
    void setGuestVip(KWGuest *guest, bool vip);

    /// The four counts mean what they mean to KWTable's constructor.
    void editTable(KWTable *table, const QString &name, int shape, int count1, int count2,
                   int count3, int count4, const QString &notes);
    void setTableName(KWTable *table, const QString &name);
    /// The seats and the side counts stay, so a table given sides like this has seats that a plan
    /// file cannot hold; to change a shape with its seats, use editTable().
    void setTableShape(KWTable *table, int shape);
    void setTableLocked(KWTable *table, bool locked);
    void resizeTable(KWTable *table, int count, bool rescore);
    void resizeRectangular(KWTable *table, int across, int down, bool rescore);
    void resizeCustom(KWTable *table, int across, int down, int across2, int down2, bool rescore);
    void rotateTable(KWTable *table);
    /// Fires nothing: a drag calls this at every move of the mouse.
    void moveTable(KWTable *table, int x, int y);
    void moveTableBefore(KWTable *table, KWTable *other);

    /// Onto an empty seat the guest moves; with an occupant a seated guest swaps, and an unseated
    /// one takes the seat and leaves the occupant unseated.
    void assignGuest(KWGuest *guest, KWTable *table, int seat, bool rescore);
    void unassignGuest(KWGuest *guest, bool rescore);
    /// Any value but KWScore::Neutral is stored as it comes.
    void setAffinity(KWGuest *a, KWGuest *b, int value, bool rescore);

    /// Makes this a new plan, of which the KWPlanLooks stay as they are.
    void clear();
    void announceClear() { emit eventClear(); }
    void announceRefresh() { emit eventRefresh(); }
    void announceModified() { emit eventModified(); }

    /// A counted pair: no event of this document fires in between. The depth is one for all
    /// documents of the process, so nested pairs on other documents do nothing.
    void blockEvents();
    void unblockEvents();

    /// Blocks a document's events while it lives, however its scope is left.
    class EventBlock
    {
    public:
        explicit EventBlock(KWDocument &document);
        ~EventBlock();
        EventBlock(const EventBlock &) = delete;
        EventBlock &operator=(const EventBlock &) = delete;

    private:
        KWDocument &m_document;
    };

    // Queries.
    int tableCount() const { return m_tables.size(); }
    int guestCount() const { return m_guests.size(); }
    int groupCount() const { return m_groups.size(); }
    /// All seats of all tables.
    int seatCount() const;
    const QList<KWTable *> &tables() const { return m_tables.items(); }
    const QList<KWGuest *> &guests() const { return m_guests.items(); }
    const QList<KWGroup *> &groups() const { return m_groups.items(); }
    /// By list position from 0; null outside the list.
    KWTable *tableAt(int index) const { return m_tables.at(index); }
    KWGuest *guestAt(int index) const { return m_guests.at(index); }
    KWGroup *groupAt(int index) const { return m_groups.at(index); }
    KWGuest *memberAt(const KWGroup *group, int index) const;
    /// -1 for null and for an object of another plan.
    int indexOfTable(const KWTable *table) const { return m_tables.indexOf(table); }
    int indexOfGuest(const KWGuest *guest) const { return m_guests.indexOf(guest); }
    int indexOfGroup(const KWGroup *group) const { return m_groups.indexOf(group); }
    /// No tables and no guests; there may be groups.
    bool isEmpty() const { return m_tables.isEmpty() && m_guests.isEmpty(); }

    /// True if the guest is seated; fills the out-arguments that are not null only then.
    bool findGuest(const KWGuest *guest, KWTable **table = nullptr, int *seat = nullptr) const;
    /// True if the seat holds a guest; fills the out-argument, if any, only then.
    bool guestAtSeat(const KWTable *table, int seat, KWGuest **guest = nullptr) const;
    KWTable *findTable(const QString &name, bool caseSensitive) const;
    KWGroup *findGroup(const QString &name) const;
    /// "Table 1", or the first number that no table's name has, whatever its letter case.
    QString nextTableName() const { return nextTableNames(1).first(); }
    /// The names that nextTableName() would give one after the other, each given to a new table.
    QStringList nextTableNames(int count) const;
    /// True if a guest other than `except` has the same three names, stripped and lower-cased.
    bool guestExists(const QString &title, const QString &first, const QString &last,
                     const KWGuest *except) const;
    bool isNextTo(const KWGuest *a, const KWGuest *b) const;
    bool atSameTable(const KWGuest *a, const KWGuest *b) const;

    void countGuests(int *adults, int *children, int *acceptedAdults, int *acceptedChildren) const;
    void countDemographics(int *male, int *female, int *undefined, int *adult, int *child) const;
    int seatedGuestCount() const;
    int seatedUnlockedGuestCount() const;
    int unlockedGuestCount() const;
    int unseatedGuestCount(bool includeLocked) const;
    int occupiedTableCount() const;
    QList<KWGuest *> seatedGuests() const;
    QList<KWGuest *> unseatedGuests(bool includeLocked) const;
    QList<KWGuest *> unseatedUnlockedGuests() const { return unseatedGuests(false); }
    QList<KWGuest *> acceptedGuests() const;
    /// All guests by their lower-cased name in a name order; equal names in reverse list order.
    QList<KWGuest *> sortedGuests(int order) const;

    bool seatHoldsLockedGuest(const KWTable *table, int seat) const;
    /// Every seat holds a locked guest.
    bool allSeatsLocked(const KWTable *table) const;
    /// The number of seats that hold no locked guest.
    int seatsFreeOfLocks(const KWTable *table) const;
    bool tableHasLockedGuest(const KWTable *table) const;
    bool hasSeatedUnlockedGuest() const;

    /// The tables in random order.
    QList<KWTable *> shuffledTables() const;
    /// Largest seat count first; equals in list order.
    QList<KWTable *> tablesBySize() const;
    /// The distinct meals of all guests, sorted; the empty one too if any guest has it.
    QStringList meals() const;
    /// The usual titles and those in use, sorted, with the empty one.
    QStringList titles() const;
    /// Writes guests, seats and wishes to the trace.
    void debugDump() const;

    // Proximity and score.
    /// The value of a pair in either order; KWScore::Neutral if none is stored.
    int affinity(const KWGuest *a, const KWGuest *b) const;
    /// The stored pairs with a value, in stored order of each pair, by list position.
    QList<GuestPair> proximityPairs(int value) const;
    struct Affinity
    {
        KWGuest *first;
        KWGuest *second;
        int value;
    };
    /// Every stored pair in stored order, by list position; its size is affinityCount().
    QList<Affinity> affinities() const;
    int affinityCount() const { return m_affinities.size(); }

    /// Rescores every table in list order and reports each, then the whole. A table on which
    /// nothing has changed keeps its scores.
    void recalculateScores();
    void scoreTable(KWTable *table);
    /// The sum of the tables' scores as of the last rescore.
    int totalScore() const;
    /// One KWScore::Entry of a seat as of the last rescore; 0 for a seat that does not exist.
    int seatScore(const KWTable *table, int seat, int entry) const;
    /// What the guest would score on this seat, with the table as it stands.
    KWSeatScore seatContribution(const KWTable *table, int seat, const KWGuest *guest) const;

    // Seating everybody, for the solver; by KWGreedySeating.
    /// Turns everybody out who is not locked and seats as many as there are seats for: each table
    /// gets one guest by chance and grows greedily around that guest. Rescores.
    void randomLayout();
    /// A guest who is neither seated nor locked, by chance; null if there is none.
    KWGuest *randomUnseatedGuest() const;
    /// The guest, neither seated nor locked, whom the seat suits best; the earliest of equals;
    /// null if there is none.
    KWGuest *bestGuestForSeat(const KWTable *table, int seat) const;

    // The plan file.
    enum FileResult { FileOk = 0, FileNotAPlan = 1, FileCannotOpen = 2, FileCannotWrite = 4 };
    /// Writes the plan and the panes' settings to a file: FileOk or FileCannotWrite. An existing
    /// file is replaced by replaceFile(), so that a failure leaves it as it was. On success the
    /// plan is unmodified and has this file name.
    int save(const QString &path, const KWViewSettings &viewSettings);
    /// Replaces the plan by a file's: FileOk, FileNotAPlan or FileCannotOpen. The plan is empty
    /// after a failure. `viewSettings` is filled on success only.
    int load(const QString &path, KWViewSettings &viewSettings, bool &versionDiffers);
    /// The same from an open device; the plan then has no file name.
    int load(QIODevice &device, KWViewSettings &viewSettings, bool &versionDiffers);
    /// The text of the plan file, as save() would write it. Reports progress.
    QByteArray toPlanText(const KWViewSettings &viewSettings) const;

public slots:
    /// Asks a layout run of this plan to stop at its next check.
    void abortProcessing() { m_abort_requested = true; }

signals:
    void eventNewGuest(KWGuest *guest);
    void eventEditGuest(KWGuest *guest);
    void eventBeforeDeleteGuest(KWGuest *guest);
    void eventAfterDeleteGuest();
    void loadingGuests(int count);
    void eventNewGroup(KWGroup *group);
    /// After the deletion of a guest who was in no group, the group is null.
    void eventEditGroup(KWGroup *group);
    void eventGuestChangeGroup(KWGuest *guest);
    void eventBeforeDeleteGroup(KWGroup *group);
    void eventAfterDeleteGroup();
    void eventEditSeat(KWTable *table, int seat);
    void eventEditAffinity(KWGuest *a, KWGuest *b);
    void eventNewTable(KWTable *table);
    void eventEditTable(KWTable *table);
    void eventReorderTables(KWTable *table, KWTable *other);
    void eventBeforeDeleteTable(KWTable *table);
    void eventAfterDeleteTable();
    void eventClear();
    void eventRefresh();
    void eventPrepareAutoLayout();
    void eventSimpleAutoLayout();
    void eventScoreChange(KWTable *table);
    void eventScoreChange();
    void eventDocumentNameChange(const QString &fileName);
    void eventModified();
    void error(const QString &message);

private:
    friend class KWGreedySeating;
    friend class KWPlanReader;

    int readFrom(QIODevice &device, KWViewSettings &viewSettings, bool &versionDiffers);
    template <typename Value>
    void setFact(Value KWPlanFacts::*field, const Value &value);
    void reportModified();
    void copyGuests(const KWDocument &other);
    void copyGroups(const KWDocument &other);
    void copyTables(const KWDocument &other);
    bool fitToShape(KWTable *table, int count1, int count2, int count3, int count4);
    void resizeSides(KWTable *table, const KWTable::Sides &sides, int seats, bool rescore);
    void resizeSeats(KWTable *table, int count, bool rescore);
    KWGuest *guestOfWish(int id) const
    {
        return id >= 0 && id < m_guestOfWishId.size() ? m_guestOfWishId.at(id) : nullptr;
    }

    /// Counts a document while it lives, even if it is never finished.
    struct LiveMark
    {
        LiveMark();
        ~LiveMark();
        LiveMark(const LiveMark &) = delete;
        LiveMark &operator=(const LiveMark &) = delete;
    };

    LiveMark m_alive;
    // The order matters: tables go before guests, so that no guest's seat note outlives a table.
    KWObjectList<KWGuest> m_guests;
    KWObjectList<KWGroup> m_groups;
    KWObjectList<KWTable> m_tables;
    KWProximityStore m_affinities;
    /// Guests by the number under which the proximity store knows them; null for deleted ones.
    QList<KWGuest *> m_guestOfWishId;
    KWPlanFields m_fields;
    QString m_file_name;
    int m_file_version = KWPlanFields::fileVersion;
    QString m_history = QStringLiteral("0");
    bool m_modified = false;
    bool m_abort_requested = false;
};
