#pragma once

#include <QString>

/// The common base of guests, groups and tables: it has notes and a place in its list.
///
/// The position is kept by the KWObjectList that owns the object, so that asking for an index
/// costs nothing. A copy starts outside any list.
class KWObject
{
public:
    virtual ~KWObject() = default;
    KWObject &operator=(const KWObject &) = delete;

    const QString &notes() const { return m_notes; }
    void setNotes(const QString &notes) { m_notes = notes; }

protected:
    explicit KWObject(const QString &notes = {})
        : m_notes(notes)
    {
    }
    KWObject(const KWObject &other)
        : m_notes(other.m_notes)
    {
    }

private:
    template <typename T>
    friend class KWObjectList;

    QString m_notes;
    int m_list_position = -1;
};
