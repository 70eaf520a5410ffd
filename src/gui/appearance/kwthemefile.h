#pragma once

#include "gui/appearance/kwcolours.h"

#include <QList>
#include <QStringList>

#include <optional>

struct KWTheme
{
    QString name;
    KWColours colours;
};

/// The user's shelf of themes: a text file with one theme a line. Until the user changes something
/// the shelf is the file that ships with the program; from then on it is a file in a directory of
/// the user's own, since the program's may be read-only and is replaced by the next version. Lines
/// of other themes are kept byte by byte, and a write that fails leaves the file as it was.
class KWThemeFile
{
public:
    enum Result {
        Done,
        NotFound,
        /// There is no file, or it may not be read.
        Unreadable,
        /// Nothing was changed.
        Unwritable
    };

    /// The own directory is made when it is needed.
    KWThemeFile(const QString &ownDirectory, const QString &shippedDirectory);

    /// The file that is read: the user's own if there is one.
    QString path() const;
    /// The file that is written.
    QString ownPath() const { return m_ownDirectory + fileName(); }

    /// All themes by name, as the language sorts them. Failures are only logged.
    QList<KWTheme> themes() const;
    QStringList names() const;
    bool contains(const QString &name) const;
    /// Takes in what an update of the program has brought, once. Failures are only logged.
    void takeUpdates();
    /// The first theme of that name. What the file does not say is white, or the default font.
    Result load(const QString &name, KWTheme &theme) const;
    /// Adds the theme behind all others, in the place of those of its name.
    Result save(const KWTheme &theme) const;
    /// Removes all themes of that name.
    Result remove(const QString &name) const;

    /// What a name that was typed in becomes, since some characters are the file's own. May be
    /// empty, which is no name.
    static QString tidyName(const QString &typed);
    static bool isSameName(const QString &one, const QString &other);

    static QString nameOf(const QString &line);
    /// What the line does not say stays as it was, but for the colour of what is selected: that is
    /// the application's own then.
    static void readLine(const QString &line, KWTheme &theme);
    /// Without an end of line.
    static QString toLine(const KWTheme &theme);

private:
    using Lines = QList<QByteArray>;

    static QString fileName() { return QStringLiteral("/themes.txt"); }
    /// None if the user has a file that cannot be read; what ships is no replacement for that.
    std::optional<Lines> linesToChange() const;
    bool write(const Lines &lines) const;
    bool takeUpdate(const Lines &update) const;

    QString m_ownDirectory;
    QString m_shippedDirectory;
};
