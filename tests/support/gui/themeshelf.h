#pragma once

#include "gui/appearance/kwthemefile.h"
#include "support/testplan.h"

#include <QtTest>

#include <csignal>
#include <sys/resource.h>

/// Directories for the user's own themes, which is not there at first, and for those that ship.
class ThemeShelf
{
public:
    QString own(const char *file = "themes.txt") const
    {
        return m_directory.filePath(s("own/") + s(file));
    }
    QString shipped(const char *file = "themes.txt") const
    {
        return m_directory.filePath(s("shipped/") + s(file));
    }
    /// So that a test that runs as root can become somebody else.
    void openToEverybody() const
    {
        const auto everything = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        if (!QFile::setPermissions(m_directory.path(), everything))
            qFatal("cannot open the directory");
    }
    KWThemeFile file() const
    {
        return {m_directory.filePath(s("own")), m_directory.filePath(s("shipped"))};
    }
    /// As the dialog lists them.
    QStringList listed() const
    {
        KWThemeFile themes = file();
        themes.takeUpdates();
        return themes.names();
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
            file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
    }
    /// "no file" if there is none.
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

private:
    QTemporaryDir m_directory;
};

/// Lets no file grow beyond some bytes while it lives, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

/// Nine colours and a font that all differ.
inline KWColours manyColours()
{
    KWColours colours{{7, 8, 9},    {10, 11, 12}, {1, 2, 3},    {4, 5, 6}, {13, 14, 15},
                      {16, 17, 18}, {19, 20, 21}, {22, 23, 24}, QFont(),   {25, 26, 27}};
    colours.font.setFamily(s("Serif"));
    colours.font.setPointSize(12);
    return colours;
}

/// The line of those colours in a theme file, without its end.
inline QByteArray lineOfManyColours(const QByteArray &name, const QByteArray &selected = "25,26,27")
{
    QByteArray line = name + "^1,2,3^4,5,6^7,8,9^10,11,12^13,14,15^16,17,18^19,20,21^22,23,24"
                             "^Serif,12,-1,5,50,0,0,0,0,0";
    if (!selected.isEmpty())
        line += '^' + selected;
    return line;
}

/// The lines of a hundred themes, "Theme 0" and so on.
inline QByteArray manyThemes()
{
    QByteArray themes;
    for (int i = 0; i < 100; ++i)
        themes += lineOfManyColours("Theme " + QByteArray::number(i)) + "\r\n";
    return themes;
}

/// "1,2,3" and so on in the order of a line, with family and size of the font.
inline QString described(const KWColours &colours)
{
    QStringList texts;
    const auto add = [&](const QColor &colour) {
        texts.append(s("%1,%2,%3").arg(colour.red()).arg(colour.green()).arg(colour.blue()));
    };
    for (const QColor &colour :
         {colours.tables, colours.tablesEdge, colours.seats, colours.seatsEdge, colours.inside,
          colours.outside, colours.seatsText, colours.tableText})
        add(colour);
    texts.append(colours.font.family() + u' ' + QString::number(colours.font.pointSizeF()));
    add(colours.selected);
    return texts.join(u' ');
}
