#include "gui/framework/kwhelpwindow.h"

#include "gui/framework/kwaccel.h"
#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwfindbar.h"
#include "gui/framework/kwhelpbrowser.h"
#include "gui/framework/kwmainwindow.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItem>
#include <QWidget>
#include <QWindow>

using namespace Qt::StringLiterals;

// The help window on the help file that is built.

namespace {

QString helpFile()
{
    return u"%1/ambrelune_%2.chm"_s.arg(dataDirectory(),
                                        KWMainWindow::versionText().replace(u'.', u'_'));
}

/// Takes addresses in the web browser's place.
class WebBrowser : public QObject
{
    Q_OBJECT

public:
    WebBrowser()
    {
        QDesktopServices::setUrlHandler(u"http"_s, this, "open");
        QDesktopServices::setUrlHandler(u"https"_s, this, "open");
        QDesktopServices::setUrlHandler(u"file"_s, this, "open");
    }
    ~WebBrowser() override
    {
        for (const QString &scheme : {u"http"_s, u"https"_s, u"file"_s})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};
} // namespace

class TestHelpWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsAPageAndItsTitle();
    void theContentsShowWhereOneIs();
    void clickingALineOfTheContentsOpensItsPage();
    void arrowKeysInTheContentsOpenPages();
    void clickingALinkOpensItsPage();
    void backForwardAndHome();
    void aLinkToAPlaceInThePageStaysThere();
    void webLinksGoToTheWebBrowser();
    void otherLinksAreIgnored_data();
    void otherLinksAreIgnored();
    void aLinkToAMissingPageIsReported();
    void whatCannotBeShownChangesNothing_data();
    void whatCannotBeShownChangesNothing();
    void aDifferentFileReplacesTheFirst();
    void theSamePageOfADifferentFileIsReadAnew();
    void zoomChangesTheTextAndHasLimits();
    void findsWordsWhileTheyAreTyped();
    void findGoesRoundInBothDirections();
    void findSaysWhenThereIsNothing();
    void findNextOpensTheFindBar();
    void escapeClosesTheFindBarFirst();
    void closingHidesAndShowingBringsItBack();
    void f1InAModalDialogShowsAUsableWindow();
    void itStandsBesideTheDialogThatItIsAskedFrom();
    void aNarrowWindowHasRoomForTheWordsToFind();
    void theListLeavesThePagesThatHaveAllTheWords();
    void aHitIsOpenedAtTheWord();
    void returnOpensTheFirstHit();
    void wordsThatAreNowhereAreToldOf();
    void escapeBringsAllPagesBack();
    void anExampleIsAskedFor();
    void readersHearTheTitleOfThePage();
    void f1TellsHowToGetHelp();
    void itDoesNotKeepTheProgramAlive();
    void everyToolHasAKeyInItsTip();
    void pagesComeFromTheHelpFileOnly_data();
    void pagesComeFromTheHelpFileOnly();
    void pagesDoNotShowPicturesFromTheDisk();
    void theStyleSheetIsThereForTheFirstPage();

private:
    QTextBrowser *browser() const { return m_window->findChild<QTextBrowser *>(); }
    QLineEdit *search() const { return m_window->findChild<QLineEdit *>(u"searchEdit"_s); }
    QStringList inSight() const;
    QTreeWidget *contents() const { return m_window->findChild<QTreeWidget *>(); }
    QLineEdit *words() const { return m_window->findChild<QLineEdit *>(u"wordsEdit"_s); }
    QString result() const { return m_window->findChild<QLabel *>(u"resultLabel"_s)->text(); }
    QAction *action(const char *name) const
    {
        return m_window->findChild<QAction *>(QString::fromLatin1(name));
    }
    QTreeWidgetItem *line(const QString &title) const
    {
        return contents()->findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(m_window->windowHandle(), key, modifiers);
    }
    QPoint placeOfLink(const QString &text) const;

    std::unique_ptr<KWHelpWindow> m_window;
};

void TestHelpWindow::init()
{
    m_window = std::make_unique<KWHelpWindow>();
    QVERIFY(m_window->showPage(helpFile(), u"Welcome.htm"_s));
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestHelpWindow::cleanup()
{
    m_window.reset();
}

QPoint TestHelpWindow::placeOfLink(const QString &text) const
{
    QTextCursor cursor = browser()->document()->find(text);
    while (!cursor.isNull() && !cursor.charFormat().isAnchor())
        cursor = browser()->document()->find(text, cursor);
    cursor.setPosition(cursor.selectionStart() + 2);
    return browser()->cursorRect(cursor).center();
}

/// The lines of the contents that are not hidden.
QStringList TestHelpWindow::inSight() const
{
    QStringList titles;
    for (QTreeWidgetItemIterator item(contents(), QTreeWidgetItemIterator::NotHidden); *item;
         ++item)
        titles.append((*item)->text(0));
    return titles;
}

void TestHelpWindow::showsAPageAndItsTitle()
{
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Welcome to Ambrelune"_s);
    QVERIFY(browser()->toPlainText().startsWith(u"Welcome to Ambrelune"_s));
    // All of it, or what the screen of the test has room for.
    QCOMPARE(m_window->size(),
             QSize(900, 640).boundedTo(m_window->screen()->availableSize() * 0.9));
    QCOMPARE(m_window->windowModality(), Qt::NonModal);
    QVERIFY(m_window->showPage(helpFile(), u"Tutorial.htm"_s));
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Tutorial"_s);
    QCOMPARE(m_window->pageUrl(), KWHelpBrowser::pageUrl(u"Tutorial.htm"_s));
}

void TestHelpWindow::theContentsShowWhereOneIs()
{
    QCOMPARE(contents()->currentItem(), line(u"Welcome"_s));
    QVERIFY(m_window->showPage(helpFile(), u"preferences_WINDOW.htm"_s));
    QCOMPARE(contents()->currentItem(), line(u"Preferences window"_s));
    QCOMPARE(contents()->currentItem()->parent(), line(u"The main window"_s));
    QCOMPARE(contents()->selectedItems().size(), 1);
    press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(contents()->currentItem(), line(u"Welcome"_s));
}

void TestHelpWindow::clickingALineOfTheContentsOpensItsPage()
{
    QTest::mouseClick(contents()->viewport(), Qt::LeftButton, {},
                      contents()->visualItemRect(line(u"Information window"_s)).center());
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Information window"_s);
}

void TestHelpWindow::arrowKeysInTheContentsOpenPages()
{
    contents()->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Quick start guide"_s);
    press(Qt::Key_Down);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Tutorial"_s);
    QVERIFY(contents()->hasFocus());
}

void TestHelpWindow::clickingALinkOpensItsPage()
{
    QTest::mouseClick(browser()->viewport(), Qt::LeftButton, {},
                      placeOfLink(u"Quick start guide"_s));
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Quick start guide"_s);
}

void TestHelpWindow::backForwardAndHome()
{
    QVERIFY(!action("backAction")->isEnabled());
    QVERIFY(!action("forwardAction")->isEnabled());
    m_window->openLink(QUrl(u"Tutorial.htm"_s));
    m_window->openLink(QUrl(u"Getting_help.htm"_s));
    QVERIFY(action("backAction")->isEnabled());

    press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Tutorial"_s);
    action("backAction")->trigger();
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Welcome to Ambrelune"_s);
    QVERIFY(!action("backAction")->isEnabled());
    press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Tutorial"_s);
    action("forwardAction")->trigger();
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Getting help"_s);
    QVERIFY(!action("forwardAction")->isEnabled());
    press(Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Welcome to Ambrelune"_s);
    press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Getting help"_s);
}

void TestHelpWindow::aLinkToAPlaceInThePageStaysThere()
{
    QVERIFY(m_window->showPage(helpFile(), u"Tutorial.htm#copy"_s));
    QCOMPARE(m_window->pageUrl(), QUrl(u"help:/Tutorial.htm#copy"_s));
    QCOMPARE(contents()->currentItem(), line(u"Tutorial"_s));
    m_window->openLink(QUrl(u"#costs"_s));
    QCOMPARE(m_window->pageUrl(), QUrl(u"help:/Tutorial.htm#costs"_s));
}

void TestHelpWindow::webLinksGoToTheWebBrowser()
{
    const WebBrowser web;
    emit browser()->anchorClicked(QUrl(u"https://www.example.org/a?b=c"_s));
    emit browser()->anchorClicked(QUrl(u"http://www.example.org/"_s));
    QCOMPARE(web.opened, (QList<QUrl>{QUrl(u"https://www.example.org/a?b=c"_s),
                                      QUrl(u"http://www.example.org/"_s)}));
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Welcome to Ambrelune"_s);
}

void TestHelpWindow::otherLinksAreIgnored_data()
{
    QTest::addColumn<QUrl>("url");

    QTest::newRow("file") << QUrl(u"file:///etc/passwd"_s);
    QTest::newRow("script") << QUrl(u"javascript:alert(1)"_s);
    QTest::newRow("resource") << QUrl(u"qrc:/page.htm"_s);
    QTest::newRow("help of a host") << QUrl(u"help://host/Tutorial.htm"_s);
    QTest::newRow("empty") << QUrl();
}

void TestHelpWindow::otherLinksAreIgnored()
{
    QFETCH(QUrl, url);

    const WebBrowser web;
    const QString before = browser()->toPlainText();
    emit browser()->anchorClicked(url);
    QCOMPARE(browser()->toPlainText(), before);
    QCOMPARE(web.opened.size(), 0);
}

void TestHelpWindow::aLinkToAMissingPageIsReported()
{
    QSignalSpy missing(m_window.get(), &KWHelpWindow::pageMissing);
    emit browser()->anchorClicked(KWHelpBrowser::pageUrl(u"No_such_page.htm"_s));
    QCOMPARE(missing.size(), 1);
    QCOMPARE(missing[0][0].toString(), u"No_such_page.htm"_s);
    QCOMPARE(missing[0][1].toString(), helpFile());
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Welcome to Ambrelune"_s);
    QVERIFY(!action("backAction")->isEnabled());
}

void TestHelpWindow::whatCannotBeShownChangesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("page");

    QTest::newRow("no such page") << helpFile() << u"No_such_page.htm"_s;
    QTest::newRow("empty page") << helpFile() << QString();
    QTest::newRow("not a page") << helpFile() << u"help.css"_s;
    QTest::newRow("no such file") << u"/no/such/file.chm"_s << u"Welcome.htm"_s;
    QTest::newRow("not a help file") << sourcePath("README.md") << u"Welcome.htm"_s;
}

void TestHelpWindow::whatCannotBeShownChangesNothing()
{
    QFETCH(QString, path);
    QFETCH(QString, page);

    m_window->openLink(QUrl(u"Tutorial.htm"_s));
    QVERIFY(!m_window->showPage(path, page));
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Tutorial"_s);
    QCOMPARE(contents()->currentItem(), line(u"Tutorial"_s));
    QVERIFY(action("backAction")->isEnabled());

    KWHelpWindow fresh;
    QVERIFY(!fresh.showPage(path, page));
    QVERIFY(!fresh.isVisible());
}

void TestHelpWindow::aDifferentFileReplacesTheFirst()
{
    const QString copy = testHome().path(u"another.chm"_s);
    QVERIFY(QFile::copy(helpFile(), copy));
    m_window->openLink(QUrl(u"Tutorial.htm"_s));
    QVERIFY(m_window->showPage(copy, u"Main_window.htm"_s));
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - The main window"_s);
    QCOMPARE(contents()->topLevelItemCount(), 7);
    QVERIFY(QFile::remove(copy));
    m_window->openLink(QUrl(u"Tutorial.htm"_s));
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Tutorial"_s);
}

void TestHelpWindow::theSamePageOfADifferentFileIsReadAnew()
{
    QVERIFY(m_window->showPage(helpFile(), u"Main_window.htm"_s));
    const QString copy = testHome().path(u"another.chm"_s);
    QVERIFY(QFile::copy(helpFile(), copy));
    browser()->document()->clear();
    QVERIFY(m_window->showPage(copy, u"Main_window.htm"_s));
    QVERIFY(!browser()->toPlainText().isEmpty());
    QVERIFY(QFile::remove(copy));
}

void TestHelpWindow::zoomChangesTheTextAndHasLimits()
{
    const qreal before = browser()->font().pointSizeF();
    press(Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(browser()->font().pointSizeF() > before);
    press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(browser()->font().pointSizeF(), before);
    press(Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(browser()->font().pointSizeF(), before + 1);

    for (int i = 0; i < 50; ++i)
        action("zoomOutAction")->trigger();
    QCOMPARE(browser()->font().pointSizeF(), before - 4);
    for (int i = 0; i < 50; ++i)
        action("zoomInAction")->trigger();
    QCOMPARE(browser()->font().pointSizeF(), before + 16);
}

void TestHelpWindow::findsWordsWhileTheyAreTyped()
{
    QVERIFY(!words()->isVisible());
    press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(words()->isVisible());
    QVERIFY(words()->hasFocus());
    QTest::keyClicks(words(), u"TABLE"_s);
    QCOMPARE(browser()->textCursor().selectedText(), u"table"_s);
    const int first = browser()->textCursor().selectionStart();
    QTest::keyClicks(words(), u"s"_s);
    QCOMPARE(browser()->textCursor().selectionStart(), first);
    QCOMPARE(browser()->textCursor().selectedText(), u"tables"_s);
    QCOMPARE(result(), QString());
}

void TestHelpWindow::findGoesRoundInBothDirections()
{
    const auto found = [this] { return browser()->textCursor().selectionStart(); };
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(words(), u"welcome"_s);
    QCOMPARE(found(), 0);
    words()->clear();
    QTest::keyClicks(words(), u"Ambrelune"_s);
    const int first = found();
    QVERIFY(first > 0);

    QList<int> places;
    do {
        places.append(found());
        QTest::keyClick(words(), Qt::Key_Return);
    } while (found() != first && places.size() < 50);
    QVERIFY(places.size() >= 3);
    QVERIFY(std::is_sorted(places.begin(), places.end()));
    QCOMPARE(result(), u"Went on from the top of the page"_s);

    press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(found(), places.last());
    QCOMPARE(result(), u"Went on from the end of the page"_s);
    press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(found(), places[places.size() - 2]);
    QCOMPARE(result(), QString());
    press(Qt::Key_F3);
    QCOMPARE(found(), places.last());
}

void TestHelpWindow::findSaysWhenThereIsNothing()
{
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(words(), u"tablex"_s);
    QCOMPARE(result(), u"Not found on this page"_s);
    QVERIFY(!browser()->textCursor().hasSelection());
    QTest::keyClick(words(), Qt::Key_Backspace);
    QCOMPARE(browser()->textCursor().selectedText(), u"table"_s);
    QCOMPARE(result(), QString());
    words()->clear();
    QCOMPARE(result(), QString());
}

void TestHelpWindow::findNextOpensTheFindBar()
{
    press(Qt::Key_F3);
    QVERIFY(words()->hasFocus());
    press(Qt::Key_Escape);
    press(Qt::Key_F3, Qt::ShiftModifier);
    QVERIFY(words()->hasFocus());
}

void TestHelpWindow::escapeClosesTheFindBarFirst()
{
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(words(), u"plan"_s);
    press(Qt::Key_Escape);
    QVERIFY(!words()->isVisible());
    QVERIFY(m_window->isVisible());
    QVERIFY(browser()->hasFocus());
    press(Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
}

void TestHelpWindow::closingHidesAndShowingBringsItBack()
{
    m_window->openLink(QUrl(u"Tutorial.htm"_s));
    m_window->close();
    QVERIFY(m_window->showPage(helpFile(), u"Tutorial.htm"_s));
    QVERIFY(m_window->isVisible());
    QVERIFY(action("backAction")->isEnabled());

    m_window->showMinimized();
    QVERIFY(m_window->showPage(helpFile(), u"Tutorial.htm"_s));
    QVERIFY(!m_window->isMinimized());
}

void TestHelpWindow::f1InAModalDialogShowsAUsableWindow()
{
    m_window->close();
    QDialog dialog;
    auto *edit = new QLineEdit(&dialog);
    addAccel(&dialog, QKeySequence(u"F1"_s), m_window.get(),
             [this] { QVERIFY(m_window->showPage(helpFile(), u"Main_window.htm"_s)); });
    bool done = false;
    QTimer::singleShot(0, &dialog, [&] {
        const auto close = qScopeGuard([&] { dialog.accept(); });
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        edit->setFocus();
        QTest::keyClick(dialog.windowHandle(), Qt::Key_F1);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));

        // Scroll by key, open a page by mouse, search, and close by key.
        press(Qt::Key_PageDown);
        QVERIFY(browser()->verticalScrollBar()->value() > 0);
        const QPoint place = contents()->visualItemRect(line(u"Tutorial"_s)).center();
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                          contents()->viewport()->mapTo(m_window.get(), place));
        QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Tutorial"_s);
        press(Qt::Key_F, Qt::ControlModifier);
        press(Qt::Key_W);
        QCOMPARE(words()->text(), u"w"_s);
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        QVERIFY(!m_window->isVisible());
        QVERIFY(dialog.isVisible());
        QVERIFY(m_window->showPage(helpFile(), u"Main_window.htm"_s));
        done = true;
    });
    dialog.exec();
    QVERIFY(done);
    QVERIFY(m_window->isVisible());
}

void TestHelpWindow::itStandsBesideTheDialogThatItIsAskedFrom()
{
    m_window->close();
    QDialog dialog;
    dialog.setModal(true);
    dialog.resize(200, 150);
    dialog.move(20, 100);
    dialog.show();
    QTRY_COMPARE(QApplication::activeModalWidget(), &dialog);
    QVERIFY(m_window->showPage(helpFile(), u"Main_window.htm"_s));
    QVERIFY(!m_window->geometry().intersects(dialog.frameGeometry()));
    QVERIFY(m_window->screen()->availableGeometry().contains(m_window->geometry()));
    m_window->close();
    dialog.move(590, 100);
    QVERIFY(m_window->showPage(helpFile(), u"Main_window.htm"_s));
    QVERIFY(!m_window->geometry().intersects(dialog.frameGeometry()));
    QVERIFY(m_window->screen()->availableGeometry().contains(m_window->geometry()));

    // However narrow it was made, and never narrower for good.
    m_window->resize(300, 300);
    m_window->close();
    QVERIFY(m_window->showPage(helpFile(), u"Main_window.htm"_s));
    QVERIFY(m_window->width() >= 420);
    m_window->close();
    dialog.close();
    QVERIFY(m_window->showPage(helpFile(), u"Main_window.htm"_s));
    QCOMPARE(m_window->width(), qMin(900, m_window->screen()->availableSize().width() * 9 / 10));
}

void TestHelpWindow::aNarrowWindowHasRoomForTheWordsToFind()
{
    m_window->close();
    QDialog dialog;
    dialog.resize(m_window->screen()->availableSize().width() - 300, 200);
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY(m_window->showPage(helpFile(), u"Tutorial.htm"_s));
    m_window->findChild<KWFindBar *>()->start();
    QVERIFY(m_window->width() < 560);
    QTRY_VERIFY(words()->isVisible());
    QTRY_VERIFY(words()->width() >= 16 * words()->fontMetrics().averageCharWidth());
    QVERIFY(contents()->width() <= m_window->width() * 2 / 5);
    QTest::keyClicks(words(), u"nowhere"_s);
    QTRY_COMPARE(result(), u"Not found on this page"_s);
    QVERIFY(m_window->width() < 560);
}

void TestHelpWindow::theListLeavesThePagesThatHaveAllTheWords()
{
    const QStringList all = inSight();
    QVERIFY(all.size() > 15);
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(search()->hasFocus());
    QTest::keyClicks(search(), u"auto-save"_s);
    QVERIFY(inSight().contains(u"Where your plans are kept"_s));
    QVERIFY(!inSight().contains(u"Dimensions window"_s));
    search()->setText(u"WIDTH seat metres"_s);
    // With what it stands below.
    QCOMPARE(inSight().filter(u"indow"_s),
             QStringList({u"The main window"_s, u"Dimensions window"_s}));
    search()->clear();
    QCOMPARE(inSight(), all);
    // The page that was shown stays.
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Welcome to Ambrelune"_s);
}

void TestHelpWindow::aHitIsOpenedAtTheWord()
{
    search()->setText(u"feet metres"_s);
    QTest::mouseClick(contents()->viewport(), Qt::LeftButton, {},
                      contents()->visualItemRect(line(u"Dimensions window"_s)).center());
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Dimensions window"_s);
    QCOMPARE(browser()->textCursor().selectedText().toLower(), u"feet"_s);
}

void TestHelpWindow::returnOpensTheFirstHit()
{
    search()->setFocus();
    QTest::keyClicks(search(), u"feet metres seat"_s);
    QTest::keyClick(search(), Qt::Key_Return);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Dimensions window"_s);
    QCOMPARE(contents()->currentItem(), line(u"Dimensions window"_s));
    QVERIFY(contents()->hasFocus());
}

void TestHelpWindow::wordsThatAreNowhereAreToldOf()
{
    const auto *label = m_window->findChild<QLabel *>(u"noHitsLabel"_s);
    QVERIFY(!label->isVisible());
    search()->setText(u"qwertz"_s);
    QVERIFY(label->isVisible());
    QCOMPARE(inSight(), QStringList());
    QTest::keyClick(search(), Qt::Key_Return);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Welcome to Ambrelune"_s);
    search()->clear();
    QVERIFY(!label->isVisible());
}

void TestHelpWindow::escapeBringsAllPagesBack()
{
    const QStringList all = inSight();
    search()->setText(u"feet"_s);
    press(Qt::Key_Escape);
    QCOMPARE(inSight(), all);
    QVERIFY(m_window->isVisible());
    press(Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
}

void TestHelpWindow::anExampleIsAskedFor()
{
    const QSignalSpy chosen(m_window.get(), &KWHelpWindow::exampleChosen);
    QVERIFY(m_window->showPage(helpFile(), u"Tutorial.htm"_s));
    QTest::mouseClick(browser()->viewport(), Qt::LeftButton, {}, placeOfLink(u"open wedding.kw"_s));
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen[0][0].toString(), u"wedding.kw"_s);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Tutorial"_s);
}

void TestHelpWindow::readersHearTheTitleOfThePage()
{
    QCOMPARE(browser()->accessibleName(), u"Welcome to Ambrelune"_s);
    m_window->openLink(QUrl(u"Tutorial.htm"_s));
    QCOMPARE(browser()->accessibleName(), u"Tutorial"_s);
}

void TestHelpWindow::f1TellsHowToGetHelp()
{
    press(Qt::Key_F1);
    QCOMPARE(m_window->windowTitle(), u"Ambrelune help - Getting help"_s);
}

void TestHelpWindow::itDoesNotKeepTheProgramAlive()
{
    QWidget mainWindow;
    mainWindow.show();
    QTimer::singleShot(0, &mainWindow, &QWidget::close);
    QTimer::singleShot(10000, &mainWindow, [] { QCoreApplication::exit(1); });
    QCOMPARE(QCoreApplication::exec(), 0);
}

void TestHelpWindow::everyToolHasAKeyInItsTip()
{
    const QList<QAction *> actions = m_window->findChild<QToolBar *>()->actions();
    int tools = 0;
    for (const QAction *tool : actions) {
        if (tool->isSeparator())
            continue;
        ++tools;
        QVERIFY(!tool->shortcut().isEmpty());
        QVERIFY(tool->toolTip().endsWith(u"(%1)"_s.arg(tool->shortcut().toString())));
    }
    QCOMPARE(tools, 6);
}

void TestHelpWindow::pagesComeFromTheHelpFileOnly_data()
{
    QTest::addColumn<QUrl>("url");

    const QString onDisk = sourcePath("help/Tutorial.htm");
    QTest::newRow("file") << QUrl::fromLocalFile(onDisk);
    QTest::newRow("path") << QUrl(onDisk);
    QTest::newRow("relative path") << QUrl(u"../../../../../../../etc/passwd"_s);
    QTest::newRow("web") << QUrl(u"https://www.example.org/Tutorial.htm"_s);
    QTest::newRow("resource") << QUrl(u"qrc:/qt-project.org/styles/commonstyle/images/up-16.png"_s);
    QTest::newRow("data") << QUrl(u"data:text/html,hello"_s);
    QTest::newRow("host") << QUrl(u"help://host/Tutorial.htm"_s);
    QTest::newRow("two slashes") << QUrl(u"//host/Tutorial.htm"_s);
}

void TestHelpWindow::pagesComeFromTheHelpFileOnly()
{
    QFETCH(QUrl, url);

    auto *help = m_window->findChild<KWHelpBrowser *>();
    QVERIFY(help->loadResource(QTextDocument::HtmlResource, QUrl(u"Tutorial.htm"_s)).isValid());
    QVERIFY(!help->loadResource(QTextDocument::HtmlResource, url).isValid());
    QVERIFY(!help->loadResource(QTextDocument::StyleSheetResource, url).isValid());
    const QVariant picture = help->loadResource(QTextDocument::ImageResource, url);
    QCOMPARE(picture.value<QImage>().size(), QSize(1, 1));
}

void TestHelpWindow::pagesDoNotShowPicturesFromTheDisk()
{
    QImage red(200, 200, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QString path = testHome().path(u"red.png"_s);
    QVERIFY(red.save(path));
    for (const QString &name : {path, QUrl::fromLocalFile(path).toString(), u"red.png"_s}) {
        browser()->setHtml(u"<p><img src=\"%1\"></p>"_s.arg(name));
        const QImage shown = browser()->grab().toImage();
        for (int y = 0; y < shown.height(); y += 10) {
            for (int x = 0; x < shown.width(); x += 10)
                QVERIFY(shown.pixelColor(x, y) != QColor(Qt::red));
        }
    }
}

void TestHelpWindow::theStyleSheetIsThereForTheFirstPage()
{
    KWHelpWindow fresh;
    QVERIFY(fresh.showPage(helpFile(), u"Welcome.htm"_s));
    const QTextDocument *document = fresh.findChild<QTextBrowser *>()->document();
    const QTextCursor key = document->find(u"F1"_s);
    QVERIFY(!key.isNull());
    QVERIFY(key.charFormat().fontWeight() > QFont::Normal);
}

REGISTER_TEST(TestHelpWindow)
#include "tst_kwhelpwindow.moc"
