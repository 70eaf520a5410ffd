#include "gui/framework/kwhelpcontents.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QAbstractTextDocumentLayout>
#include <QRegularExpression>
#include <QTextBlock>
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

QString contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// A caption as it is shown, without the sign of its letter.
QString shown(const QString &caption)
{
    static const QRegularExpression sign(u"&(.)"_s);
    return QString(caption).replace(sign, u"\\1"_s);
}

/// The texts that the program's forms and sources give to translators, as they are shown.
QSet<QString> translatedTexts()
{
    QSet<QString> texts;
    const QStringList sources{u"*.ui"_s, u"*.cpp"_s, u"*.h"_s};
    for (QDirIterator file(sourcePath("src"), sources, QDir::Files, QDirIterator::Subdirectories);
         file.hasNext();) {
        const QString path = file.next();
        const QString source = contentsOf(path);
        if (path.endsWith(".ui"_L1)) {
            for (const QString &text : all(source, u"<string>([^<]*)</string>"_s))
                texts.insert(shown(plain(text)));
            continue;
        }
        static const QString literal =
            u"\\b(?:tr\\(|QT_TR_NOOP\\(|QT_TRANSLATE_NOOP\\([^,]*,)\\s*\"((?:[^\"\\\\]|\\\\.)*)\""_s;
        for (const QString &text : all(source, literal)) {
            // The choices of a file window are one text.
            for (const QString &part : text.split(u";;"_s))
                texts.insert(shown(part));
        }
    }
    return texts;
}

/// Pages of panes that are told of before they are there.
QStringList notBuiltYet()
{
    return {u"Groups"_s, u"Schematic"_s, u"Statistics"_s};
}

/// Whether the program shows it: as one of its texts, or as one with something in the place of a
/// "%1", such as "Undo Edit guest", where that something is a text, too, or the end of a file name.
bool isShown(const QString &quoted)
{
    static const QSet<QString> texts = translatedTexts();
    if (texts.contains(quoted) || notBuiltYet().contains(quoted))
        return true;
    return std::ranges::any_of(texts, [&](const QString &text) {
        static const QRegularExpression placeHolder(u"%[12]"_s);
        const qsizetype place = text.indexOf(placeHolder);
        const QString begin = text.left(place);
        const QString end = text.mid(place + 2);
        if (place < 4 || !quoted.startsWith(begin) || !quoted.endsWith(end))
            return false;
        const QString filling = quoted.sliced(place, quoted.size() - place - end.size());
        return texts.contains(filling) || QStringList{u"kw"_s, u"kwb"_s}.contains(filling);
    });
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
    void whatIsNotBuiltYetIsNotShownYet();
    void theIndexIsSorted();
    void theGreetingAndTheTutorialAgreeOnItsLength();
    void thereIsNoBlankBelowAPicture();
};

void TestHelpPages::whatIsNotBuiltYetIsNotShownYet()
{
    // Or the list of exceptions would hide a change of their names.
    for (const QString &text : notBuiltYet())
        QVERIFY2(!translatedTexts().contains(text), qPrintable(text));
}

void TestHelpPages::theIndexIsSorted()
{
    const QStringList entries = all(source(u"Index.htm"_s), u"<a href=[^>]*>([^<]*)</a>"_s);
    QVERIFY(entries.size() > 50);
    QVERIFY(std::ranges::is_sorted(entries, [](const QString &one, const QString &other) {
        return one.compare(other, Qt::CaseInsensitive) < 0;
    }));
}

void TestHelpPages::theGreetingAndTheTutorialAgreeOnItsLength()
{
    const QString minutes =
        all(source(u"Tutorial.htm"_s), u"takes (about \\w+ minutes)"_s).value(0);
    QVERIFY(!minutes.isEmpty());
    QVERIFY(contentsOf(sourcePath("src/gui/forms/kwgettingstarteddlg.ui")).contains(minutes));
}

void TestHelpPages::thereIsNoBlankBelowAPicture()
{
    QTextDocument document;
    document.setDefaultStyleSheet(source(u"help.css"_s));
    document.setHtml(u"<p class=\"picture\"><img width=\"100\" height=\"200\"></p>"_s);
    const QRectF paragraph = document.documentLayout()->blockBoundingRect(document.firstBlock());
    QVERIFY2(paragraph.height() < 215, qPrintable(QString::number(paragraph.height())));
    for (const QString &page : pages())
        QVERIFY2(!source(page).contains("<p><img"_L1), qPrintable(page));
}

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
        if (link.startsWith("example:"_L1)) {
            QVERIFY2(QFile::exists(sourcePath("examples/") + link.section(u':', 1)),
                     qPrintable(link));
            continue;
        }
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
        if (!isShown(plain(text)))
            unknown.append(text);
    }
    QCOMPARE(unknown, QStringList());
    QCOMPARE(all(html, u"class=\"(?!menu\"|key\"|file\"|note\"|picture\")([^\"]*)\""_s),
             QStringList());
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
