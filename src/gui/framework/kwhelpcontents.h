#pragma once

#include <QList>
#include <QString>

/// A line of the help's table of contents.
struct KWHelpEntry
{
    QString title;
    /// The file name of its page; empty for a heading that has none.
    QString page;
    /// 0 for the outermost lines. Never more than one deeper than the line before.
    int depth = 0;

    bool operator==(const KWHelpEntry &) const = default;
};

/// Reads a contents file (.hhc) as far as it makes sense. Garbage between the entries is passed
/// over, and what is nested absurdly deep is brought up to a readable depth.
QList<KWHelpEntry> parseHelpContents(const QByteArray &hhc);
