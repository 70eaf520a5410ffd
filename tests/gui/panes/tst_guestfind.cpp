#include "gui/appearance/kwcontrast.h"
#include "gui/panes/kwfindpattern.h"
#include "gui/panes/kwguestviewfilterimpl.h"
#include "support/gui/shownlist.h"
#include "support/registeredtest.h"

#include <QLineEdit>
#include <QScrollBar>

namespace {

/// A guest with names of their own, in the order last, first, title, display name.
void add(KWDocument &plan, const char *last, const char *first, const char *title,
         const char *display)
{
    plan.addGuest({.display_name = s(display),
                   .title = s(title),
                   .first_name = s(first),
                   .last_name = s(last),
                   .meal = s("meal"),
                   .notes = s("notes")},
                  nullptr);
}

/// The list and the panel above it.
struct FindableList : ShownList
{
    KWGuestViewFilterImpl filter{nullptr, &list};
    QLineEdit *box = filter.findChild<QLineEdit *>(s("m_findLineEdit"));

    explicit FindableList(const QStringList &guests = {})
        : ShownList(guests)
    {
        list.sortByColumn(KWGuestListViewItem::DisplayName, Qt::AscendingOrder);
        filter.show();
    }
};
} // namespace

class TestGuestFind : public QObject
{
    Q_OBJECT

private slots:
    void typingALetterSelectsTheFirstGuestWithAColumnThatBeginsWithIt()
    {
        FindableList shown;
        add(shown.plan, "Grant", "Carl", "Mr", "1 Carl Grant");
        add(shown.plan, "Baker", "Zoe", "Ms", "2 Zoe Baker");
        add(shown.plan, "Cole", "Ada", "Ms", "3 Ada Cole");
        add(shown.plan, "Abel", "Max", "Mr", "4 Max Abel");
        QTest::keyClicks(shown.box, s("a"));
        QCOMPARE(shown.selected(), s("3 Ada Cole"));
    }

    void whatStandsInsideANameIsFoundWhereNoneBeginsWithIt()
    {
        FindableList shown({s("Carl"), s("Sam")});
        QTest::keyClicks(shown.box, s("am"));
        QCOMPARE(shown.selected(), s("Sam"));
    }

    void theSearchRunsAtEachKey()
    {
        FindableList shown({s("Ann"), s("Anton"), s("Antonia")});
        QStringList found;
        for (const char key : QByteArray("antoni")) {
            QTest::keyClick(shown.box, key);
            found.append(shown.selected());
        }
        QCOMPARE(found.join(u' '), s("Ann Ann Anton Anton Anton Antonia"));
        QTest::keyClick(shown.box, Qt::Key_Backspace);
        QCOMPARE(shown.selected(), s("Anton"));
    }

    void aPastedLineBreakIsABlank()
    {
        FindableList shown({s("Ann"), s("Ann Berg")});
        shown.box->insert(s("ann\nberg"));
        QCOMPARE(shown.box->text(), s("ann berg"));
        QCOMPARE(shown.selected(), s("Ann Berg"));
    }

    void everyNameColumnIsSearchedAndNoOther_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("found");
        QTest::newRow("last name") << s("Last") << true;
        QTest::newRow("first name") << s("First") << true;
        QTest::newRow("title") << s("Title") << true;
        QTest::newRow("display name") << s("Display") << true;
        QTest::newRow("table") << s("Table") << false;
        QTest::newRow("meal") << s("meal") << false;
        QTest::newRow("notes") << s("notes") << false;
    }

    void everyNameColumnIsSearchedAndNoOther()
    {
        FindableList shown;
        add(shown.plan, "Last", "First", "Title", "Display");
        shown.plan.assignGuest(shown.plan.guestAt(0),
                               addTable(shown.plan, "Table", KWTable::Circular, 4), 0, false);
        QFETCH(QString, text);
        shown.list.find(text);
        QTEST(!shown.selected().isEmpty(), "found");
    }

    void lettersAreTheSameInEitherCase()
    {
        FindableList shown({s("Bob"), s("Émile")});
        shown.list.find(s("éMI"));
        QCOMPARE(shown.selected(), s("Émile"));
    }

    void blanksAroundTheTextDoNotCount()
    {
        FindableList shown({s("Ann"), s("Bob")});
        shown.box->setText(s("  bob "));
        QCOMPARE(shown.selected(), s("Bob"));
    }

    void theTextIsARegularExpression_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("selected");
        QTest::newRow("any") << s("b.b") << s("Bob");
        QTest::newRow("end") << s("a$") << s("Anna");
        QTest::newRow("set") << s("[cd]") << s("Carl");
        // The beginning belongs to the first of them.
        QTest::newRow("either") << s("x|arl") << s("Carl");
        QTest::newRow("a place holder") << s("%1") << s("100%1");
    }

    void theTextIsARegularExpression()
    {
        FindableList shown({s("100%1"), s("Anna"), s("Bob"), s("Carl")});
        QFETCH(QString, text);
        shown.list.find(text);
        QTEST(shown.selected(), "selected");
    }

    void aTextThatIsNoValidExpressionFindsNothingAndChangesNothing_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"(", "[", "*", "?", "a{2,1}", "\\", "+b", "(?<n", "(*X)"})
            QTest::newRow(text) << s(text);
    }

    void aTextThatIsNoValidExpressionFindsNothingAndChangesNothing()
    {
        FindableList shown({s("(*?"), s("[+{")});
        shown.select({"[+{"});
        QFETCH(QString, text);
        shown.box->setText(text);
        QCOMPARE(shown.selected(), s("[+{"));
        QCOMPARE(shown.window.currentView, nullptr);
    }

    void withNothingFoundTheOldSelectionStands()
    {
        FindableList shown({s("Ann"), s("Bob")});
        shown.select({"Ann", "Bob"});
        for (const char *text : {"zoe", "", "  "})
            shown.box->setText(s(text));
        QCOMPARE(shown.selected(), s("Ann Bob"));
        QCOMPARE(shown.window.currentView, nullptr);
    }

    void whatIsFoundIsTheOnlySelectedRowAndInSightAndTheListActive()
    {
        FindableList shown;
        addGuests(shown.plan, 200);
        shown.select({"G1", "G2"});
        shown.list.resize(300, 200);
        shown.list.horizontalScrollBar()->setValue(50);
        shown.list.find(s("G150"));
        QCOMPARE(shown.selected(), s("G150"));
        QCOMPARE(shown.list.currentItem(), shown.row("G150"));
        const QRect seen = shown.list.viewport()->rect();
        const QRect row = shown.list.visualItemRect(shown.row("G150"));
        QVERIFY(row.top() >= seen.top() && row.bottom() <= seen.bottom());
        QCOMPARE(shown.list.horizontalScrollBar()->value(), 50);
        QCOMPARE(shown.window.currentView, &shown.list);
    }

    void aHitInTheLastOfTwoThousandRowsIsFound()
    {
        FindableList shown;
        addGuests(shown.plan, 2000);
        add(shown.plan, "Zwaan", "Hilde", "Ms", "zzz Ms Hilde Zwaan");
        QCOMPARE(shown.list.topLevelItem(2000)->text(KWGuestListViewItem::LastName), s("Zwaan"));
        shown.box->setText(s("waa"));
        QCOMPARE(shown.selected(), s("zzz Ms Hilde Zwaan"));
    }

    void theCellWithTheTextBecomesTheCurrentOne()
    {
        FindableList shown;
        add(shown.plan, "Grant", "Carl", "Mr", "1 Carl Grant");
        add(shown.plan, "Baker", "Zoe", "Ms", "2 Zoe Baker");
        QTest::keyClicks(shown.box, s("zo"));
        QCOMPARE(shown.list.currentColumn(), int(KWGuestListViewItem::FirstName));
        // So typing in the list goes on in that column.
        QTest::keyClicks(&shown.list, s("car"));
        QCOMPARE(shown.selected(), s("1 Carl Grant"));
    }

    void anExpressionThatIsValidOnlyAtTheStartIsNotRunBehindAnother()
    {
        FindableList shown({s("Ann"), s("Bob")});
        QTest::failOnWarning(QRegularExpression(s("QRegularExpression")));
        shown.box->setText(s("(*CR)b"));
        QCOMPARE(shown.selected(), s("Bob"));
    }

    void theKeysForFindingFurtherGoRoundAllHits()
    {
        FindableList shown({s("Hugo A"), s("Ida"), s("Mr Hugo"), s("Ulla"), s("Xhugo")});
        QTest::keyClicks(shown.box, s("hugo"));
        QStringList found{shown.selected()};
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(shown.box, Qt::Key_F3);
            found.append(shown.selected());
        }
        QCOMPARE(found.join(u','), s("Hugo A,Mr Hugo,Xhugo,Hugo A"));
        found.clear();
        // In the list, too, and from wherever the person has gone meanwhile.
        shown.list.setCurrentItem(shown.row("Ulla"));
        shown.window.currentView = nullptr;
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(&shown.list, Qt::Key_F3, Qt::ShiftModifier);
            found.append(shown.selected());
        }
        QCOMPARE(found.join(u','), s("Mr Hugo,Hugo A,Xhugo"));
        QCOMPARE(shown.window.currentView, &shown.list);
    }

    void withNoCurrentRowTheFirstOrTheLastHitComes()
    {
        FindableList shown({s("Ann"), s("Bob"), s("Anna")});
        QVERIFY(shown.list.findNext(s("an"), false));
        QCOMPARE(shown.selected(), s("Ann"));
        shown.list.setCurrentItem(nullptr);
        QVERIFY(shown.list.findNext(s("an"), true));
        QCOMPARE(shown.selected(), s("Anna"));
        for (const char *text : {"", "(", "zoe"}) {
            QVERIFY(!shown.list.findNext(s(text), false));
            QCOMPARE(shown.selected(), s("Anna"));
        }
    }

    void aTextThatNobodyHasStandsOnRed()
    {
        FindableList shown({s("Ann"), s("Bob")});
        const auto ground = [&shown] { return shown.box->palette().color(QPalette::Base); };
        const QColor usual = ground();
        const auto isRed = [&] { return ground().green() < usual.green() - 40; };
        QTest::keyClicks(shown.box, s("a"));
        QVERIFY(!isRed());
        QTest::keyClicks(shown.box, s("x"));
        QVERIFY(isRed());
        QVERIFY(!shown.box->accessibleDescription().isEmpty());
        QVERIFY(contrast(shown.box->palette().color(QPalette::Text), ground()) >= 4.5);
        QTest::keyClick(shown.box, Qt::Key_Backspace);
        QCOMPARE(ground(), usual);
        shown.box->setText(s("zoe"));
        QVERIFY(isRed());
        // Nothing is asked for.
        shown.box->setText(s(" "));
        QCOMPARE(ground(), usual);
        QVERIFY(shown.box->accessibleDescription().isEmpty());
        // Somebody of that name has come meanwhile.
        shown.box->setText(s("zoe"));
        addGuest(shown.plan, {"Zoe"});
        QTest::keyClick(shown.box, Qt::Key_F3);
        QCOMPARE(ground(), usual);
        QCOMPARE(shown.selected(), s("Zoe"));
    }

    void theLettersOfTheLabelSelectWhatIsInTheBox()
    {
        FindableList shown({s("Ann")});
        shown.box->setText(s("ann"));
        shown.box->deselect();
        QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_I, Qt::AltModifier);
        override.ignore();
        QCoreApplication::sendEvent(shown.box, &override);
        QVERIFY(override.isAccepted());
        QKeyEvent press(QEvent::KeyPress, Qt::Key_I, Qt::AltModifier);
        QCoreApplication::sendEvent(shown.box, &press);
        QCOMPARE(shown.box->selectedText(), s("ann"));
        // A command stays one, though line edits delete with it.
        QKeyEvent lock(QEvent::ShortcutOverride, Qt::Key_K, Qt::ControlModifier);
        lock.ignore();
        QCoreApplication::sendEvent(shown.box, &lock);
        QVERIFY(!lock.isAccepted());
        // Other menus open.
        QKeyEvent other(QEvent::ShortcutOverride, Qt::Key_F, Qt::AltModifier);
        other.ignore();
        QCoreApplication::sendEvent(shown.box, &other);
        QVERIFY(!other.isAccepted());
    }

    void anExpressionThatWouldTakeForeverIsGivenUp_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("nested") << s("(a+)+$");
        QTest::newRow("either") << s("(a|aa)+$");
        QTest::newRow("unlimited") << s("(*LIMIT_MATCH=4000000000)(a+)+$");
        QTest::newRow("optional") << s("(a?){60}a{60}$");
        QTest::newRow("back reference") << s("(a*)*\\1b");
    }

    /// Each of these steps through more ways than would end in a lifetime; so the test ends only
    /// if they are given up.
    void anExpressionThatWouldTakeForeverIsGivenUp()
    {
        FindableList shown;
        for (int i = 0; i < 50; ++i)
            add(shown.plan, "", "", "", qPrintable(QString(60, u'a') + u'!'));
        QFETCH(QString, text);
        shown.list.find(text);
        QCOMPARE(shown.selected(), s(""));
    }

    void afterAFewTextsThatTookTooLongNoneIsTried()
    {
        KWFindPattern pattern(s("(a+)+$"));
        const QString tooLong = QString(60, u'a') + u'!';
        QVERIFY(pattern.isIn(s("aa")));
        for (int i = 0; i < 2; ++i)
            QVERIFY(!pattern.isIn(tooLong));
        QVERIFY(pattern.isIn(s("aa")));
        QVERIFY(!pattern.isIn(tooLong));
        QVERIFY(!pattern.isIn(s("aa")));
    }
};

REGISTER_TEST(TestGuestFind)
#include "tst_guestfind.moc"
