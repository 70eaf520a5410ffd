#include "gui/framework/kwhelpcontents.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QtTest>

using namespace Qt::StringLiterals;

// The pages of the help as they are written: whether all of them can be reached and read, and
// whether what they quote is what the program shows.

namespace {

QString helpDirectory()
{
    return sourcePath("help");
}

QString source(const QString &name)
{
    QFile file(helpDirectory() + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList files(const QStringList &patterns)
{
    return QDir(helpDirectory()).entryList(patterns, QDir::Files, QDir::Name);
}

QStringList pages()
{
    return files({u"*.htm"_s});
}

QList<KWHelpEntry> contents()
{
    return parseHelpContents(source(u"ambrelune.hhc"_s).toUtf8());
}

/// What the pattern's first group takes, everywhere in the text.
QStringList all(const QString &text, const QString &pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::DotMatchesEverythingOption);
    QStringList result;
    for (const QRegularExpressionMatch &match : expression.globalMatch(text))
        result.append(match.captured(1));
    return result;
}

QString plain(const QString &html)
{
    return QString(html)
        .replace(u"&lt;"_s, u"<"_s)
        .replace(u"&gt;"_s, u">"_s)
        .replace(u"&amp;"_s, u"&"_s)
        .simplified();
}

/// The menus, buttons, boxes and captions of the program without their ampersands. Whoever names
/// a new one in a page adds it here, as the program shows it.
const QSet<QString> &programTexts()
{
    static const QSet<QString> texts{
        // menus of the main window
        u"File"_s, u"Edit"_s, u"View"_s, u"Insert"_s, u"Help"_s, u"New"_s, u"Open..."_s,
        u"Open recent..."_s, u"Save"_s, u"Save As..."_s, u"Information..."_s, u"Automatic layout"_s,
        u"Import data..."_s, u"Export"_s, u"Data..."_s, u"Floor plan..."_s, u"Table chart..."_s,
        u"Guest chart..."_s, u"Print..."_s, u"Exit"_s, u"Undo"_s, u"Redo"_s, u"Copy"_s,
        u"Proximity"_s, u"Next to"_s, u"Near to"_s, u"Neutral"_s, u"Not next to"_s,
        u"Not near to"_s, u"Locked"_s, u"Has accepted"_s, u"Unassign"_s, u"Rotate table"_s,
        u"Delete"_s, u"Properties..."_s, u"Preferences..."_s, u"Left pane"_s, u"Top pane"_s,
        u"Bottom pane"_s, u"Single guest..."_s, u"Guest couple..."_s, u"Guest family..."_s,
        u"Guest group..."_s, u"Circular table..."_s, u"Rectangular table..."_s, u"Head table..."_s,
        u"Custom table..."_s, u"Contents"_s, u"Quick start guide"_s, u"Tutorial"_s, u"Whats this"_s,
        u"Web pages"_s, u"About..."_s,
        // entries that name what they work on
        u"Undo Edit Information"_s, u"Redo Edit Information"_s, u"Undo Insert guest"_s,
        u"Undo Edit guest"_s, u"Undo Edit group"_s, u"Undo New table(s)"_s, u"Undo Edit table"_s,
        u"Undo Auto layout"_s, u"Undo Change colours and fonts"_s, u"Copy Floor plan"_s,
        u"Print Floor plan..."_s, u"Print Table chart..."_s, u"Print Guest chart..."_s,
        // the layout
        u"Stop (Esc)"_s,
        // panes
        u"Guests"_s, u"Groups"_s, u"Floor plan"_s, u"Schematic"_s, u"Table chart"_s,
        u"Guest chart"_s, u"Statistics"_s,
        // the list of guests
        u"Find:"_s, u"VIP"_s, u"Accepted"_s, u"Show guest in plan"_s,
        // the panel of the floor plan
        u"Guest name:"_s, u"gender"_s, u"age"_s, u"groups"_s,
        // buttons
        u"OK"_s, u"Cancel"_s, u"Add"_s, u"Yes"_s, u"No"_s, u"Don't save"_s, u"Save as"_s,
        u"Continue"_s, u"Stop (Esc)"_s,
        // file window
        u"Ambrelune backup (*.kwb)"_s,
        // Information
        u"Event"_s, u"Venue"_s, u"Date"_s, u"Days remaining:"_s, u"Cost"_s, u"Fixed:"_s,
        u"Per adult:"_s, u"Per child:"_s, u"Total (all guests):"_s, u"Total (accepted guests):"_s,
        u"Notes"_s,
        // Insert guest, Guest properties, Group properties
        u"Guest"_s, u"Group"_s, u"Contact"_s, u"Title:"_s, u"First name:"_s, u"Last name:"_s,
        u"Display name:"_s, u"Gender:"_s, u"Undefined"_s, u"Male"_s, u"Female"_s, u"Age:"_s,
        u"Adult"_s, u"Child"_s, u"Meal:"_s, u"Notes:"_s, u"VIP"_s, u"accepted invite"_s,
        u"locked"_s, u"Assigned:"_s, u"Name:"_s, u"Address 1:"_s, u"Address 2:"_s, u"Town/City:"_s,
        u"State/County:"_s, u"ZIP/Postcode:"_s, u"Country:"_s, u"Work phone:"_s, u"Home phone:"_s,
        u"Mobile:"_s, u"Email:"_s,
        // Insert table, Table properties
        u"Shape:"_s, u"circular"_s, u"rectangular"_s, u"Head (seats at top)"_s,
        u"Head (seats at left)"_s, u"Custom"_s, u"Seats:"_s, u"Create:"_s,
        // Fonts and colours
        u"Seat:"_s, u"Table:"_s, u"Drawing area:"_s, u"Selected:"_s, u"Background:"_s, u"Text:"_s,
        u"Font..."_s, u"More fonts"_s, u"Default"_s, u"Load"_s, u"Del"_s, u"Preview"_s,
        // Floor plan dimensions
        u"Units:"_s, u"Metres"_s, u"Feet"_s, u"Breadth (X):"_s, u"Depth (Y):"_s, u"Seat width:"_s,
        u"Undo Change dimensions"_s,
        // Preferences
        u"Preferences"_s, u"General"_s, u"Auto layout"_s, u"when saved"_s, u"automatically every"_s,
        u"warn on delete guest or group"_s, u"warn on delete table"_s,
        u"warn if auto layout will re-assign guests"_s, u"warn if guests have duplicate names"_s,
        u"show tool tips"_s, u"automatically capitalise names"_s, u"seconds"_s,
        u"attempts without improvement"_s, u"whichever happens first"_s,
        // warnings and recent plans
        u"show this warning in future"_s, u"show this window at start-up"_s, u"Location"_s,
        // help window
        u"Back"_s, u"Forward"_s, u"Home"_s, u"Zoom in"_s, u"Zoom out"_s, u"Find"_s};
    return texts;
}

void pageRows()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : pages())
        QTest::newRow(qPrintable(page)) << page;
}
} // namespace

class TestHelpPages : public QObject
{
    Q_OBJECT

private slots:
    void everyFileIsInTheProject();
    void everyPageStandsOnceInTheContents();
    void theContentsBeginWithTheDefaultTopic();
    void everyWindowThatTheProgramHasAPageFor_data();
    void everyWindowThatTheProgramHasAPageFor();
    void pageHasATitleAndOneHeadingThatAgree_data() { pageRows(); }
    void pageHasATitleAndOneHeadingThatAgree();
    void tagsOfAPageMatch_data() { pageRows(); }
    void tagsOfAPageMatch();
    void linksOfAPageLeadSomewhere_data() { pageRows(); }
    void linksOfAPageLeadSomewhere();
    void pageQuotesOnlyWhatTheProgramShows_data() { pageRows(); }
    void pageQuotesOnlyWhatTheProgramShows();
    void keysOfAPageAreKeys_data() { pageRows(); }
    void keysOfAPageAreKeys();
    void coloursComeInPairs();
};

void TestHelpPages::everyFileIsInTheProject()
{
    const QString project = source(u"ambrelune.hhp"_s);
    QStringList listed = project.section(u"[FILES]"_s, 1).split(u'\n', Qt::SkipEmptyParts);
    listed.sort();
    QCOMPARE(listed, files({u"*.htm"_s, u"*.css"_s, u"*.png"_s}));
    QVERIFY(project.contains(u"Contents file=ambrelune.hhc\n"_s));
    QVERIFY(pages().size() >= 9);
}

void TestHelpPages::everyPageStandsOnceInTheContents()
{
    QStringList listed;
    for (const KWHelpEntry &entry : contents())
        listed.append(entry.page);
    listed.sort();
    QCOMPARE(listed, pages());
}

void TestHelpPages::theContentsBeginWithTheDefaultTopic()
{
    const QStringList topic = all(source(u"ambrelune.hhp"_s), u"Default topic=([^\\n]*)"_s);
    QCOMPARE(topic.size(), 1);
    QCOMPARE(contents().value(0).page, topic[0]);
}

void TestHelpPages::everyWindowThatTheProgramHasAPageFor_data()
{
    QTest::addColumn<QString>("page");

    // The topics that windows and menu entries ask for.
    for (const QString &topic :
         {u"Main_window.htm"_s, u"Quick_start_guide.htm"_s, u"Tutorial.htm"_s,
          u"Information_window.htm"_s, u"Insert_guest_window.htm"_s,
          u"Guest_properties_window.htm"_s, u"Group_properties_window.htm"_s,
          u"Insert_table_window.htm"_s, u"Table_properties_window.htm"_s,
          u"Fonts_and_colours_window.htm"_s, u"Dimensions_window.htm"_s,
          u"Preferences_window.htm"_s, u"Most_recently_accessed_window.htm"_s})
        QTest::newRow(qPrintable(topic)) << topic;
}

void TestHelpPages::everyWindowThatTheProgramHasAPageFor()
{
    QFETCH(QString, page);
    QVERIFY(pages().contains(page));
}

void TestHelpPages::pageHasATitleAndOneHeadingThatAgree()
{
    QFETCH(QString, page);

    const QString html = source(page);
    const QStringList titles = all(html, u"<title>(.*?)</title>"_s);
    const QStringList headings = all(html, u"<h1>(.*?)</h1>"_s);
    QCOMPARE(titles.size(), 1);
    QVERIFY(!titles[0].trimmed().isEmpty());
    QCOMPARE(headings, titles);
    QVERIFY(html.startsWith("<!DOCTYPE html>"_L1));
    QVERIFY(html.contains("<meta charset=\"utf-8\">"_L1));
    QVERIFY(html.contains("href=\"help.css\""_L1));

    QTextDocument document;
    document.setHtml(html);
    QVERIFY(document.toPlainText().size() > 400);
    QVERIFY(!document.toPlainText().contains(u'\ufffd'));
    for (const KWHelpEntry &entry : contents()) {
        if (entry.page == page)
            QVERIFY2(titles[0].startsWith(entry.title), qPrintable(entry.title));
    }
}

void TestHelpPages::tagsOfAPageMatch()
{
    QFETCH(QString, page);

    const QStringList single{u"meta"_s, u"link"_s, u"br"_s, u"img"_s, u"!doctype"_s};
    const QRegularExpression tag(u"<(/?)([!a-zA-Z0-9]+)[^<>]*>"_s);
    QString html = source(page);
    QStringList open;
    for (const QRegularExpressionMatch &match : tag.globalMatch(html)) {
        const QString name = match.captured(2).toLower();
        if (match.captured(1) == u"/"_s) {
            QVERIFY2(!open.isEmpty() && open.last() == name,
                     qPrintable(u"</%1> behind %2"_s.arg(name, open.join(u' '))));
            open.removeLast();
        } else if (!single.contains(name)) {
            open.append(name);
        }
    }
    QCOMPARE(open, QStringList());
    html.remove(tag);
    QVERIFY2(!html.contains(u'<') && !html.contains(u'>'), "a bracket that is part of no tag");
    QCOMPARE(all(html, u"(&(?!lt;|gt;|amp;)[^;\\s]{0,8})"_s), QStringList());
}

void TestHelpPages::linksOfAPageLeadSomewhere()
{
    QFETCH(QString, page);

    const QString html = source(page);
    for (const QString &link : all(html, u"(?:href|src)=\"([^\"]*)\""_s)) {
        if (link.startsWith("https://"_L1))
            continue;
        const QString file = link.section(u'#', 0, 0);
        const QString place = link.section(u'#', 1);
        QVERIFY2(files({u"*"_s}).contains(file.isEmpty() ? page : file), qPrintable(link));
        QVERIFY2(place.isEmpty() ||
                     source(file.isEmpty() ? page : file).contains(u"id=\"%1\""_s.arg(place)),
                 qPrintable(link));
    }
    QVERIFY(!html.contains("href='"_L1) && !html.contains("src='"_L1));
}

void TestHelpPages::pageQuotesOnlyWhatTheProgramShows()
{
    QFETCH(QString, page);

    const QString html = source(page);
    QStringList unknown;
    for (const QString &text : all(html, u"<span class=\"menu\">(.*?)</span>"_s)) {
        if (!programTexts().contains(plain(text)))
            unknown.append(text);
    }
    QCOMPARE(unknown, QStringList());
    QCOMPARE(all(html, u"class=\"(?!menu\"|key\"|file\"|note\")([^\"]*)\""_s), QStringList());
}

void TestHelpPages::keysOfAPageAreKeys()
{
    QFETCH(QString, page);

    for (const QString &text : all(source(page), u"<span class=\"key\">(.*?)</span>"_s)) {
        if (text == "Ctrl"_L1)
            continue;
        const QKeySequence keys = QKeySequence::fromString(text, QKeySequence::PortableText);
        QCOMPARE(keys.toString(QKeySequence::PortableText), text);
    }
}

void TestHelpPages::coloursComeInPairs()
{
    // A page on a dark desktop has light text: whoever sets one of the two colours sets both.
    for (const QString &rule : all(source(u"help.css"_s), u"\\{([^}]*)\\}"_s)) {
        const bool background = rule.contains("background"_L1);
        const bool foreground = QRegularExpression(u"(^|[;\\s])color:"_s).match(rule).hasMatch();
        QCOMPARE(foreground, background);
    }
    for (const QString &page : pages()) {
        const QString html = source(page);
        for (const QString &word : {u"bgcolor"_s, u"style="_s, u"<font"_s, u"color="_s})
            QVERIFY2(!html.contains(word), qPrintable(page + u": "_s + word));
    }
}

REGISTER_TEST(TestHelpPages)
#include "tst_kwhelppages.moc"
