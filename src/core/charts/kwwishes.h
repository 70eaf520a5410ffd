#pragma once

#include "core/model/kwdocument.h"

#include <QCoreApplication>

#include <functional>

/// What the user wishes for two guests, and how the seating of a plan meets it.
struct KWWish
{
    Q_DECLARE_TR_FUNCTIONS(KWWish)

public:
    enum Seating {
        SideBySide,
        AtOneTable,
        AtDifferentTables,
        FirstUnseated,
        SecondUnseated,
        BothUnseated
    };
    /// How a guest is called in a sentence.
    using NameOf = std::function<QString(const KWGuest &guest)>;

    const KWGuest *first;
    const KWGuest *second;
    /// A value of KWScore::Proximity, never neutral.
    int value;
    Seating seating;
    bool isMet;
    /// What the wish adds to the plan's score as it is seated; below 0 for guests who are closer
    /// than they should be.
    int points;

    /// "Ann should sit next to Bob": what is wished.
    QString wanted(const NameOf &nameOf = displayName) const;
    /// "they are at different tables": how the two sit.
    QString found(const NameOf &nameOf = displayName) const;
    /// "Ann should sit next to Bob, but they are at different tables"; just what is wished if the
    /// wish is met.
    QString sentence(const NameOf &nameOf = displayName) const;

    /// All wishes of a plan in the order of its file. What a file may say of a guest and themself
    /// is none, as no seating can meet it.
    static QList<KWWish> all(const KWDocument &plan);
    static int unmetCount(const QList<KWWish> &wishes);
    /// "3 of 12 wishes are not met".
    static QString unmetText(const QList<KWWish> &wishes);
    /// "2 guests have no seat".
    static QString unseatedText(const KWDocument &plan);

private:
    static QString displayName(const KWGuest &guest) { return guest.name(); }
};
