#pragma once

#include <QPixmap>

#include <array>

/// Makes the pictures compiled into the program, ":/icons/..." and ":/splash.svg", known to Qt.
/// They are in a static library, which nothing else would do for; call it at the program's start.
void initAppearanceResources();

/// The pictures that rows, tabs, drags and dialogs share. There is one set for each device pixel
/// ratio, drawn at its first use and kept until the process ends. Needs an application; of the GUI
/// thread only. Sizes are device independent.
class KWPixmaps
{
public:
    /// The set for a device pixel ratio; 0 means the application's.
    static const KWPixmaps &instance(qreal devicePixelRatio = 0);

    KWPixmaps(const KWPixmaps &) = delete;
    KWPixmaps &operator=(const KWPixmaps &) = delete;

    // 16 by 16, for rows, tabs and buttons in them.
    const QPixmap &guestUndefinedAdult() const { return at(GuestUndefinedAdult); }
    const QPixmap &guestUndefinedChild() const { return at(GuestUndefinedChild); }
    const QPixmap &guestMaleAdult() const { return at(GuestMaleAdult); }
    const QPixmap &guestMaleChild() const { return at(GuestMaleChild); }
    const QPixmap &guestFemaleAdult() const { return at(GuestFemaleAdult); }
    const QPixmap &guestFemaleChild() const { return at(GuestFemaleChild); }
    /// By KWGuest::Gender and KWGuest::Age; a null pixmap for other values.
    const QPixmap &guest(int gender, int age) const;
    const QPixmap &locked() const { return at(Locked); }
    const QPixmap &vip() const { return at(Vip); }
    const QPixmap &accepted() const { return at(Accepted); }
    const QPixmap &singleGuest() const { return at(SingleGuest); }
    const QPixmap &couple() const { return at(Couple); }
    const QPixmap &family() const { return at(Family); }
    const QPixmap &friends() const { return at(Friends); }
    /// By KWTable::Shape; a null pixmap for other values.
    const QPixmap &table(int shape) const { return ofShape(TableCircular, shape); }
    const QPixmap &emptySeat() const { return at(EmptySeat); }
    const QPixmap &nextTo() const { return at(NextTo); }
    const QPixmap &nearTo() const { return at(NearTo); }
    const QPixmap &neutral() const { return at(Neutral); }
    const QPixmap &notNextTo() const { return at(NotNextTo); }
    const QPixmap &notNearTo() const { return at(NotNearTo); }
    const QPixmap &paneFloorPlan() const { return at(PaneFloorPlan); }
    const QPixmap &paneSchematic() const { return at(PaneSchematic); }
    const QPixmap &paneTableChart() const { return at(PaneTableChart); }
    const QPixmap &paneGuestChart() const { return at(PaneGuestChart); }
    const QPixmap &paneStatistics() const { return at(PaneStatistics); }
    const QPixmap &paneGuests() const { return at(PaneGuests); }
    const QPixmap &paneGroups() const { return at(PaneGroups); }
    const QPixmap &paneProximity() const { return at(PaneProximity); }
    const QPixmap &closePane() const { return at(ClosePane); }

    // 32 by 32, for the tool bar, drags, entry dialogs and marks on the floor plan.
    const QPixmap &singleGuestLarge() const { return at(SingleGuestLarge); }
    const QPixmap &coupleLarge() const { return at(CoupleLarge); }
    const QPixmap &familyLarge() const { return at(FamilyLarge); }
    const QPixmap &friendsLarge() const { return at(FriendsLarge); }
    /// By KWTable::Shape; a null pixmap for other values.
    const QPixmap &tableLarge(int shape) const { return ofShape(TableCircularLarge, shape); }
    const QPixmap &dragGuest() const { return at(SingleGuestLarge); }
    const QPixmap &dragTable() const { return at(TableCircularLarge); }
    const QPixmap &whatsThis() const { return at(WhatsThis); }
    const QPixmap &leftPane() const { return at(LeftPane); }
    const QPixmap &topPane() const { return at(TopPane); }
    const QPixmap &bottomPane() const { return at(BottomPane); }

    /// 48 by 48.
    const QPixmap &application() const { return at(Application); }

private:
    /// In the order of the table of file names. Guests go by gender, then age, tables by shape.
    enum Picture : std::size_t {
        GuestUndefinedAdult,
        GuestUndefinedChild,
        GuestMaleAdult,
        GuestMaleChild,
        GuestFemaleAdult,
        GuestFemaleChild,
        Locked,
        Vip,
        Accepted,
        SingleGuest,
        Couple,
        Family,
        Friends,
        TableCircular,
        EmptySeat = TableCircular + 7,
        NextTo,
        NearTo,
        Neutral,
        NotNextTo,
        NotNearTo,
        PaneFloorPlan,
        PaneSchematic,
        PaneTableChart,
        PaneGuestChart,
        PaneStatistics,
        PaneGuests,
        PaneGroups,
        PaneProximity,
        ClosePane,
        SingleGuestLarge,
        CoupleLarge,
        FamilyLarge,
        FriendsLarge,
        TableCircularLarge,
        WhatsThis = TableCircularLarge + 7,
        LeftPane,
        TopPane,
        BottomPane,
        Application,
        PictureCount
    };

    explicit KWPixmaps(qreal devicePixelRatio);

    const QPixmap &at(std::size_t picture) const { return m_pixmaps[picture]; }
    const QPixmap &ofShape(Picture circular, int shape) const;

    std::array<QPixmap, PictureCount> m_pixmaps;
    QPixmap m_none;
};
