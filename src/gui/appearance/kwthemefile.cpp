#include "gui/appearance/kwthemefile.h"

#include "core/model/kwplantext.h"
#include "core/model/kwsafefile.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The colours in the order of a line, behind the name and before the font.
constexpr std::array colourFields{
    &KWColours::tables, &KWColours::tablesEdge, &KWColours::seats,     &KWColours::seatsEdge,
    &KWColours::inside, &KWColours::outside,    &KWColours::seatsText, &KWColours::tableText};
constexpr qsizetype fontField = 1 + colourFields.size();
constexpr qsizetype selectedField = fontField + 1;
constexpr QChar separator = u'^';

KWTheme whiteTheme()
{
    KWTheme theme;
    for (const auto field : colourFields)
        theme.colours.*field = Qt::white;
    return theme;
}

/// White unless there are three numbers; each is brought into 0..255.
QColor toColour(const QString &text)
{
    const auto isNumber = [](const QString &part) {
        bool ok = false;
        part.toInt(&ok);
        return ok;
    };
    return std::ranges::all_of(text.split(u','), isNumber) ? KWPlanText::toColour(text) : Qt::white;
}

/// A field without what would end it or its line.
QString toField(QString text)
{
    text.remove(separator);
    for (const QChar end : {u'\r', u'\n'})
        text.replace(end, u' ');
    return text;
}

/// Nothing if there is no such file, or if it cannot be read to its end.
std::optional<QByteArray> content(const QString &path)
{
    QFile file(path);
    // Opening a pipe would wait for somebody to write into it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(bytes) : std::nullopt;
}

QList<QByteArray> toLines(const QByteArray &bytes)
{
    QList<QByteArray> lines = bytes.split('\n');
    for (QByteArray &line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
    }
    if (lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

/// A line that is no UTF-8 comes from a program that wrote Latin-1.
QString toText(const QByteArray &line)
{
    return line.isValidUtf8() ? QString::fromUtf8(line) : QString::fromLatin1(line);
}

QString nameIn(const QByteArray &line)
{
    return KWThemeFile::nameOf(toText(line));
}

KWTheme themeIn(const QByteArray &line)
{
    KWTheme theme = whiteTheme();
    KWThemeFile::readLine(toText(line), theme);
    return theme;
}

bool isListed(const QStringList &names, const QString &name)
{
    return std::ranges::any_of(
        names, [&](const QString &other) { return KWThemeFile::isSameName(name, other); });
}

void removeLines(QList<QByteArray> &lines, const QString &name)
{
    lines.removeIf(
        [&](const QByteArray &line) { return KWThemeFile::isSameName(nameIn(line), name); });
}

void logFailure(const QString &text, const QString &path)
{
    qWarning("%s", qUtf8Printable(text.arg(path)));
}
} // namespace

KWThemeFile::KWThemeFile(const QString &ownDirectory, const QString &shippedDirectory)
    : m_ownDirectory(ownDirectory)
    , m_shippedDirectory(shippedDirectory)
{
}

QString KWThemeFile::path() const
{
    return QFileInfo::exists(ownPath()) ? ownPath() : m_shippedDirectory + fileName();
}

QString KWThemeFile::tidyName(const QString &typed)
{
    return toField(typed).trimmed();
}

bool KWThemeFile::isSameName(const QString &one, const QString &other)
{
    return one.toLower() == other.toLower();
}

QString KWThemeFile::nameOf(const QString &line)
{
    return line.section(separator, 0, 0).trimmed();
}

void KWThemeFile::readLine(const QString &line, KWTheme &theme)
{
    const QStringList fields = line.trimmed().split(separator);
    theme.name = fields.first().trimmed();
    for (std::size_t i = 0; i < colourFields.size(); ++i) {
        const auto field = static_cast<qsizetype>(i) + 1;
        if (field < fields.size())
            theme.colours.*colourFields[i] = toColour(fields.at(field));
    }
    if (fontField < fields.size())
        theme.colours.font = KWPlanText::toFont(fields.at(fontField));
    theme.colours.selected = selectedField < fields.size() ? toColour(fields.at(selectedField))
                                                           : KWColours::highlightColour();
}

QString KWThemeFile::toLine(const KWTheme &theme)
{
    QStringList fields{theme.name};
    for (const auto field : colourFields)
        fields.append(KWPlanText::fromColour(theme.colours.*field));
    fields.append(KWPlanText::fromFont(theme.colours.font));
    // A theme without a colour of its own follows the desktop it is used on.
    if (theme.colours.selected.rgb() != KWColours::highlightColour().rgb())
        fields.append(KWPlanText::fromColour(theme.colours.selected));
    for (QString &field : fields)
        field = toField(field);
    return fields.join(separator);
}

QList<KWTheme> KWThemeFile::themes() const
{
    QList<KWTheme> themes;
    if (const auto bytes = content(path())) {
        for (const QByteArray &line : toLines(*bytes)) {
            if (KWTheme theme = themeIn(line); !theme.name.isEmpty())
                themes.append(theme);
        }
    } else {
        logFailure(u"Unable to read themes from '%1'"_s, path());
    }
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::stable_sort(themes, collator, &KWTheme::name);
    return themes;
}

QStringList KWThemeFile::names() const
{
    QStringList names;
    for (const KWTheme &theme : themes())
        names.append(theme.name);
    return names;
}

bool KWThemeFile::contains(const QString &name) const
{
    return isListed(names(), name);
}

KWThemeFile::Result KWThemeFile::load(const QString &name, KWTheme &theme) const
{
    const auto bytes = content(path());
    if (!bytes)
        return Unreadable;
    for (const QByteArray &line : toLines(*bytes)) {
        if (!isSameName(nameIn(line), name))
            continue;
        theme = themeIn(line);
        return Done;
    }
    return NotFound;
}

// The old line goes and the new one comes in a single write: neither can be lost in between.
KWThemeFile::Result KWThemeFile::save(const KWTheme &theme) const
{
    auto lines = linesToChange();
    if (!lines)
        return Unwritable;
    removeLines(*lines, theme.name);
    lines->append(toLine(theme).toUtf8());
    return write(*lines) ? Done : Unwritable;
}

KWThemeFile::Result KWThemeFile::remove(const QString &name) const
{
    const auto bytes = content(path());
    if (!bytes)
        return Unreadable;
    Lines lines = toLines(*bytes);
    removeLines(lines, name);
    return write(lines) ? Done : Unwritable;
}

std::optional<KWThemeFile::Lines> KWThemeFile::linesToChange() const
{
    if (!QFileInfo::exists(path()))
        return Lines();
    const auto bytes = content(path());
    return bytes ? std::optional(toLines(*bytes)) : std::nullopt;
}

bool KWThemeFile::write(const Lines &lines) const
{
    QByteArray bytes;
    for (const QByteArray &line : lines)
        bytes += line + "\r\n";
    return QDir().mkpath(m_ownDirectory) && replaceFile(ownPath(), bytes);
}

// An update that cannot be deleted, as it lies in a read-only place beside the program, would bring
// back each time what the user has deleted since. A copy of it says that it was taken in.
void KWThemeFile::takeUpdates()
{
    const QString taken = m_ownDirectory + u"/themes_update_taken.txt"_s;
    for (const QString &directory : {m_ownDirectory, m_shippedDirectory}) {
        const QString path = directory + u"/themes_update.txt"_s;
        const auto update = content(path);
        if (!update || (directory == m_shippedDirectory && update == content(taken)))
            continue;
        if (!takeUpdate(toLines(*update))) {
            logFailure(u"Unable to write themes to '%1'"_s, ownPath());
            continue;
        }
        if (!QFile::remove(path) && !(QDir().mkpath(m_ownDirectory) && replaceFile(taken, *update)))
            logFailure(u"Unable to write themes to '%1'"_s, taken);
    }
}

bool KWThemeFile::takeUpdate(const Lines &update) const
{
    auto lines = linesToChange();
    if (!lines)
        return false;
    const qsizetype before = lines->size();
    QStringList all;
    for (const QByteArray &line : std::as_const(*lines))
        all.append(nameIn(line));
    for (const QByteArray &line : update) {
        const QString name = nameIn(line);
        if (name.isEmpty() || isListed(all, name))
            continue;
        all.append(name);
        lines->append(line);
    }
    return lines->size() == before || write(*lines);
}
