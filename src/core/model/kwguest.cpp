#include "core/model/kwguest.h"

#include "core/model/kwseatholder.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTextBoundaryFinder>

#include <array>

namespace {
constexpr std::array<QLatin1StringView, 3> genderWords{
    QLatin1StringView("Undefined"), QLatin1StringView("Male"), QLatin1StringView("Female")};
constexpr std::array<QLatin1StringView, 2> ageWords{QLatin1StringView("adult"),
                                                    QLatin1StringView("child")};
constexpr std::array<const char *, KWGuest::NameOrderCount> nameOrderWords{
    QT_TRANSLATE_NOOP("KWGuest", "DisplayName"),  QT_TRANSLATE_NOOP("KWGuest", "Last, First"),
    QT_TRANSLATE_NOOP("KWGuest", "Last, F."),     QT_TRANSLATE_NOOP("KWGuest", "First Last"),
    QT_TRANSLATE_NOOP("KWGuest", "F. Last"),      QT_TRANSLATE_NOOP("KWGuest", "Title First Last"),
    QT_TRANSLATE_NOOP("KWGuest", "Title F. Last")};
/// Room for a letter with all its marks and joiners, in code units.
constexpr int longestLetter = 64;

template <std::size_t N>
QString wordAt(const std::array<QLatin1StringView, N> &words, int index)
{
    return index >= 0 && index < static_cast<int>(N) ? QString(words[index]) : QString();
}

/// The two texts with the separator between them when both are there, else whichever exists.
QString joined(const QString &a, QLatin1StringView separator, const QString &b)
{
    return a.isEmpty() || b.isEmpty() ? a + b : a + separator + b;
}
} // namespace

KWGuest::Texts::Texts(const KWGuestValues &values)
    : display_name(values.display_name)
    , title(values.title)
    , first_name(values.first_name)
    , last_name(values.last_name)
    , meal(values.meal)
{
}

KWGuest::KWGuest(const KWGuestValues &values)
    : KWObject(values.notes)
    , m_texts(new Texts(values))
    , m_gender(values.gender)
    , m_age(values.age)
    , m_locked(values.locked)
    , m_vip(values.vip)
    , m_accepted(values.accepted)
{
}

KWGuest::KWGuest(const KWGuest &other)
    : KWObject(other)
    , m_texts(other.m_texts)
    , m_gender(other.m_gender)
    , m_age(other.m_age)
    , m_locked(other.m_locked)
    , m_vip(other.m_vip)
    , m_accepted(other.m_accepted)
{
}

KWGuest::~KWGuest()
{
    if (m_table)
        m_table->emptySeat(m_seat);
}

KWGuestValues KWGuest::values() const
{
    return {.display_name = displayName(),
            .title = title(),
            .first_name = firstName(),
            .last_name = lastName(),
            .meal = meal(),
            .gender = m_gender,
            .age = m_age,
            .locked = m_locked,
            .notes = notes(),
            .vip = m_vip,
            .accepted = m_accepted};
}

void KWGuest::setValues(const KWGuestValues &values)
{
    m_texts = new Texts(values);
    if (values.gender != m_gender || values.vip != m_vip)
        outdateScores();
    m_gender = values.gender;
    m_age = values.age;
    m_locked = values.locked;
    setNotes(values.notes);
    m_vip = values.vip;
    m_accepted = values.accepted;
}

void KWGuest::setGender(int gender)
{
    m_gender = gender;
    outdateScores();
}

void KWGuest::setVip(bool vip)
{
    m_vip = vip;
    outdateScores();
}

void KWGuest::outdateScores()
{
    if (m_table)
        m_table->outdateScores();
}

QString KWGuest::name(int order) const
{
    switch (order) {
    case DisplayName:
        return displayName().trimmed();
    case LastFirst:
        return joined(lastName(), QLatin1StringView(", "), firstName()).trimmed();
    case LastInitial:
        return joined(lastName(), QLatin1StringView(", "), initial()).trimmed();
    case FirstLast:
        return joined(firstName(), QLatin1StringView(" "), lastName()).trimmed();
    case InitialLast:
        return joined(initial(), QLatin1StringView(" "), lastName()).trimmed();
    case TitleFirstLast:
        return (title() + u' ' + name(FirstLast)).trimmed();
    case TitleInitialLast:
        return (title() + u' ' + name(InitialLast)).trimmed();
    default:
        return {};
    }
}

QString KWGuest::initial() const
{
    if (firstName().isEmpty())
        return {};
    const QString stripped = firstName().trimmed().left(longestLetter);
    // A letter may be made of several code units: a surrogate pair, or a letter and its accent.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, stripped);
    const qsizetype end = stripped.isEmpty() ? 0 : finder.toNextBoundary();
    return stripped.left(end) + u'.';
}

bool KWGuest::precedes(const KWGuest &other) const
{
    if (m_age == Adult && other.m_age == Child)
        return true;
    if (m_age != other.m_age)
        return false;
    if (m_gender == Male && other.m_gender != Male)
        return true;
    if (m_gender != Female)
        return false;
    return other.m_gender == Undefined;
}

QString KWGuest::genderToString(int gender)
{
    return wordAt(genderWords, gender);
}

QString KWGuest::ageToString(int age)
{
    return wordAt(ageWords, age);
}

int KWGuest::genderFromString(const QString &word)
{
    const QString lower = word.toLower();
    if (lower == QLatin1StringView("male"))
        return Male;
    if (lower == QLatin1StringView("female"))
        return Female;
    return Undefined;
}

int KWGuest::ageFromString(const QString &word)
{
    const QString lower = word.toLower();
    if (lower == QLatin1StringView("adult"))
        return Adult;
    if (lower == QLatin1StringView("child"))
        return Child;
    qWarning("undefined age");
    return Adult;
}

QString KWGuest::nameOrderToString(int order)
{
    return nameOrders().value(order);
}

QStringList KWGuest::nameOrders()
{
    QStringList result;
    for (const char *word : nameOrderWords)
        result.append(QCoreApplication::translate("KWGuest", word));
    return result;
}

QString KWGuest::composeDisplayName(const QString &title, const QString &first, const QString &last)
{
    return (title.trimmed() + u' ' + first.trimmed() + u' ' + last.trimmed()).trimmed();
}
