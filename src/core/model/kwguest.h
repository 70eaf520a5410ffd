#pragma once

#include "core/model/kwguestvalues.h"
#include "core/model/kwobject.h"

#include <QSharedData>
#include <QStringList>

class KWGroup;
class KWSeatHolder;

/// A guest of a plan. Owned by the guest list of the KWDocument it was added to.
///
/// The texts are implicitly shared between a guest and its copies in other documents; setting one
/// detaches. The seat a guest sits on is noted here by KWTable, so that looking it up does not
/// scan the tables; ask the document with findGuest().
class KWGuest final : public KWObject
{
public:
    enum Gender { Undefined, Male, Female };
    enum Age { Adult, Child };
    enum NameOrder {
        DisplayName,
        LastFirst,
        LastInitial,
        FirstLast,
        InitialLast,
        TitleFirstLast,
        TitleInitialLast,
        NameOrderCount
    };

    explicit KWGuest(const KWGuestValues &values);
    /// Copies everything but the group and the seat: the copier links the copy to its own.
    KWGuest(const KWGuest &other);
    KWGuest &operator=(const KWGuest &) = delete;
    /// Leaves the guest's seat, if any, empty.
    ~KWGuest() override;

    const QString &displayName() const { return m_texts->display_name; }
    const QString &title() const { return m_texts->title; }
    const QString &firstName() const { return m_texts->first_name; }
    const QString &lastName() const { return m_texts->last_name; }
    const QString &meal() const { return m_texts->meal; }
    int gender() const { return m_gender; }
    int age() const { return m_age; }
    bool isLocked() const { return m_locked; }
    bool isVip() const { return m_vip; }
    bool isAccepted() const { return m_accepted; }
    KWGuestValues values() const;
    /// Null until the document links the guest to a group.
    KWGroup *group() const { return m_group; }

    void setDisplayName(const QString &text) { m_texts->display_name = text; }
    void setTitle(const QString &text) { m_texts->title = text; }
    void setFirstName(const QString &text) { m_texts->first_name = text; }
    void setLastName(const QString &text) { m_texts->last_name = text; }
    void setMeal(const QString &text) { m_texts->meal = text; }
    void setGender(int gender);
    void setAge(int age) { m_age = age; }
    void setLocked(bool locked) { m_locked = locked; }
    void setVip(bool vip);
    void setAccepted(bool accepted) { m_accepted = accepted; }
    void setValues(const KWGuestValues &values);
    void setGroup(KWGroup *group) { m_group = group; }

    /// The guest's name in a name order, stripped; empty for a value that is no name order.
    QString name(int order = DisplayName) const;
    /// The first letter of the first name with a full stop, or empty without a first name.
    QString initial() const;

    QString genderString() const { return genderToString(m_gender); }
    QString ageString() const { return ageToString(m_age); }

    /// Adults before children, then men before women before guests of undefined gender.
    /// Two guests alike in both do not precede each other.
    bool precedes(const KWGuest &other) const;

    /// The file's word for a value, not translated; empty when out of range.
    static QString genderToString(int gender);
    static QString ageToString(int age);
    /// The value of a word, whatever its letter case. An unknown gender is Undefined; an unknown
    /// age is Adult, with a warning on the debug channel.
    static int genderFromString(const QString &word);
    static int ageFromString(const QString &word);

    /// The word of a name order for people to read, translated; empty when out of range.
    static QString nameOrderToString(int order);
    /// All of them in their order.
    static QStringList nameOrders();

    /// Proposes a display name: title, first and last name, each stripped, with blanks between.
    /// A missing first name leaves two blanks.
    static QString composeDisplayName(const QString &title, const QString &first,
                                      const QString &last);

private:
    friend class KWDocument;
    friend class KWGreedySeating;
    friend class KWTable;

    /// The scores of the guest's table no longer hold.
    void outdateScores();

    struct Texts : QSharedData
    {
        explicit Texts(const KWGuestValues &values);

        QString display_name;
        QString title;
        QString first_name;
        QString last_name;
        QString meal;
    };

    QSharedDataPointer<Texts> m_texts;
    KWGroup *m_group = nullptr;
    /// The table of m_seat; null without a seat.
    KWSeatHolder *m_table = nullptr;
    int m_seat = -1;
    int m_wishId = -1;
    int m_gender;
    int m_age;
    bool m_locked;
    bool m_vip;
    bool m_accepted;
};
