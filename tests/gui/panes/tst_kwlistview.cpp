#include "support/gui/shownlist.h"
#include "support/registeredtest.h"

#include <QLineEdit>
#include <QMenu>

using Row = KWGuestListViewItem;

namespace {

/// What the rows are painted on, from the top: "p" for plain, "s" for striped.
QString stripes(ShownList &shown)
{
    shown.list.viewport()->repaint();
    QString all;
    for (QTreeWidgetItem *item = shown.list.topLevelItem(0); item;
         item = shown.list.itemBelow(item)) {
        QStyleOptionViewItem option;
        option.palette = shown.list.palette();
        static_cast<KWListViewItem *>(item)->prepareToPaint(option);
        all += option.palette.color(QPalette::Base) == QColor(224, 224, 255) ? u's' : u'p';
    }
    return all;
}

/// The editor that is open, or null.
QLineEdit *editor(const ShownList &shown)
{
    return shown.list.viewport()->findChild<QLineEdit *>();
}

/// Opens the editor of a cell and types into it.
QLineEdit *typeInto(ShownList &shown, const char *name, int column, const char *text)
{
    shown.list.setCurrentItem(shown.row(name), column);
    QTest::keyClick(&shown.list, Qt::Key_F2);
    QLineEdit *edit = editor(shown);
    if (edit) {
        edit->selectAll();
        QTest::keyClicks(edit, s(text));
    }
    return edit;
}

/// Whether none has opened when the time is over in which a second click would have opened one.
bool noEditorOpens(const ShownList &shown)
{
    bool over = false;
    QTimer::singleShot(QApplication::doubleClickInterval() + 50, Qt::PreciseTimer,
                       [&over] { over = true; });
    return QTest::qWaitFor([&over] { return over; }) && !editor(shown);
}

/// The entries of the menu that comes up while `act` runs; empty if none does.
QStringList menuThatOpens(const std::function<void()> &act)
{
    QStringList entries;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&entries] {
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            for (const QAction *action : menu->actions())
                entries.append(action->text());
            menu->close();
        }
    });
    look.start(0);
    act();
    return entries;
}

/// Dark as desktops have it: light text on a dark ground.
class DarkPalette
{
public:
    explicit DarkPalette(QWidget &widget)
        : m_widget(widget)
    {
        QPalette dark = widget.palette();
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, QColor(230, 230, 230));
        m_widget.setPalette(dark);
    }

private:
    QWidget &m_widget;
};
} // namespace

class TestKWListView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(50); }

    void theListIsSetUpAsListsAre()
    {
        ShownList shown;
        QVERIFY(shown.list.allColumnsShowFocus());
        QCOMPARE(shown.list.objectName(), s("guests list view"));
        QCOMPARE(shown.list.numSelected(), 0);
    }

    void everyOtherRowIsStripedFromTheTop()
    {
        ShownList shown({s("A"), s("B"), s("C"), s("D"), s("E")});
        QCOMPARE(stripes(shown), s("pspsp"));
    }

    void afterSortingByAnotherColumnTheStripesStillAlternateFromTheTop()
    {
        ShownList shown({s("A"), s("B"), s("C"), s("D"), s("E")});
        QCOMPARE(stripes(shown), s("pspsp"));
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        QCOMPARE(shown.names(), s("E D C B A"));
        QCOMPARE(stripes(shown), s("pspsp"));
    }

    void theStripesFollowRowsThatComeAndGo()
    {
        ShownList shown({s("A"), s("B"), s("C"), s("D"), s("E")});
        QCOMPARE(stripes(shown), s("pspsp"));
        shown.plan.deleteGuest(shown.guest("B"), false);
        QCOMPARE(stripes(shown), s("psps"));
        addGuest(shown.plan, {"F"});
        addGuest(shown.plan, {"G"});
        QCOMPARE(stripes(shown), s("pspsps"));
    }

    void aRowIsPaintedOnItsStripeOverTheWholeWidth()
    {
        ShownList shown({s("A"), s("B")});
        const QImage picture = shown.list.viewport()->grab().toImage();
        const int width = shown.list.viewport()->width();
        const QRect second = shown.list.visualItemRect(shown.list.topLevelItem(1));
        QCOMPARE(picture.pixelColor(second.left() + 1, second.bottom() - 1), QColor(224, 224, 255));
        QCOMPARE(picture.pixelColor(width - 2, second.bottom() - 1), QColor(224, 224, 255));
        const QRect first = shown.list.visualItemRect(shown.list.topLevelItem(0));
        QCOMPARE(picture.pixelColor(width - 2, first.bottom() - 1),
                 shown.list.palette().color(QPalette::Base));
    }

    void aSelectedRowKeepsTheColourOfTheSelection()
    {
        ShownList shown({s("A"), s("B")});
        shown.select({"B"});
        const QImage picture = shown.list.viewport()->grab().toImage();
        const QRect second = shown.list.visualItemRect(shown.row("B"));
        const QColor painted = picture.pixelColor(second.center().x(), second.bottom() - 1);
        QVERIFY(painted != QColor(224, 224, 255));
    }

    void textOnAStripeStaysLegibleUnderADarkPalette()
    {
        ShownList shown({s("A"), s("B")});
        const DarkPalette dark(shown.list);
        QStyleOptionViewItem option;
        option.palette = shown.list.palette();
        stripes(shown);
        static_cast<KWListViewItem *>(shown.list.topLevelItem(1))->prepareToPaint(option);
        QCOMPARE(option.palette.color(QPalette::Base), QColor(224, 224, 255));
        QCOMPARE(option.palette.color(QPalette::Text), QColor(Qt::black));
        QVERIFY(option.font.bold());
    }

    void theTextOfTheDesktopIsKeptWhereItCanBeRead()
    {
        ShownList shown({s("A"), s("B")});
        QPalette navy = shown.list.palette();
        navy.setColor(QPalette::Text, QColor(0, 0, 120));
        QStyleOptionViewItem option;
        option.palette = navy;
        stripes(shown);
        static_cast<KWListViewItem *>(shown.list.topLevelItem(1))->prepareToPaint(option);
        QCOMPARE(option.palette.color(QPalette::Text), QColor(0, 0, 120));
    }

    void aPressOfAnyButtonMakesTheListTheActiveView_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("left") << Qt::LeftButton;
        QTest::newRow("middle") << Qt::MiddleButton;
        QTest::newRow("right") << Qt::RightButton;
    }

    void aPressOfAnyButtonMakesTheListTheActiveView()
    {
        QFETCH(Qt::MouseButton, button);
        ShownList shown({s("A")});
        menuThatOpens([&] { shown.press(button, shown.middleOf("A", Row::DisplayName)); });
        QCOMPARE(shown.window.currentView, &shown.list);
        QCOMPARE(shown.selected(), s("A"));
    }

    void keysThatMoveMakeTheListTheActiveView_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<bool>("becomesActive");
        const Qt::KeyboardModifiers none;
        for (int key = Qt::Key_Home; key <= Qt::Key_PageDown; ++key)
            QTest::addRow("%s", qPrintable(QKeySequence(key).toString())) << key << none << true;
        QTest::newRow("ctrl+a") << int(Qt::Key_A) << Qt::KeyboardModifiers(Qt::ControlModifier)
                                << true;
        QTest::newRow("ctrl") << int(Qt::Key_Control) << none << true;
        QTest::newRow("shift") << int(Qt::Key_Shift) << none << false;
        QTest::newRow("escape") << int(Qt::Key_Escape) << none << false;
    }

    void keysThatMoveMakeTheListTheActiveView()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        ShownList shown({s("A")});
        QTest::keyPress(&shown.list, static_cast<Qt::Key>(key), modifiers);
        QCOMPARE(shown.window.currentView, nullptr);
        QTest::keyRelease(&shown.list, static_cast<Qt::Key>(key), modifiers);
        QFETCH(bool, becomesActive);
        QCOMPARE(shown.window.currentView != nullptr, becomesActive);
    }

    void typingTheBeginningOfANameMakesTheListTheActiveView()
    {
        ShownList shown({s("Ann"), s("Bob")});
        shown.list.setCurrentItem(shown.row("Ann"), Row::DisplayName);
        QTest::keyClick(&shown.list, Qt::Key_B);
        QCOMPARE(shown.selected(), s("Bob"));
        QCOMPARE(shown.window.currentView, &shown.list);
    }

    void theOtherButtonsOpenTheMenuOfTheFirstSelectedRow_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("middle") << Qt::MiddleButton;
        QTest::newRow("right") << Qt::RightButton;
    }

    void theOtherButtonsOpenTheMenuOfTheFirstSelectedRow()
    {
        QFETCH(Qt::MouseButton, button);
        ShownList shown({s("A")});
        shown.window.editAction(KWMainWindow::EditProperties)->setText(s("properties"));
        const QStringList entries =
            menuThatOpens([&] { shown.press(button, shown.middleOf("A", Row::DisplayName)); });
        QCOMPARE(entries.value(0), s("properties"));
    }

    void theMenuKeyOpensTheMenu()
    {
        ShownList shown({s("A")});
        shown.window.editAction(KWMainWindow::EditProperties)->setText(s("properties"));
        shown.select({"A"});
        QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {}, {});
        QCursor::setPos(5, 5);
        QPoint asked;
        const QStringList entries = menuThatOpens([&] {
            asked = shown.list.menuPosition();
            QCoreApplication::sendEvent(&shown.list, &key);
        });
        QCOMPARE(asked, QPoint(5, 5));
        QCOMPARE(entries.value(0), s("properties"));
        QCOMPARE(shown.window.currentView, &shown.list);
    }

    void aQuickSecondPressOfTheRightButtonOpensTheMenuAgain()
    {
        ShownList shown({s("A")});
        shown.window.editAction(KWMainWindow::EditProperties)->setText(s("properties"));
        const QPoint place = shown.middleOf("A", Row::DisplayName);
        const QStringList entries = menuThatOpens(
            [&] { QTest::mouseDClick(shown.list.viewport(), Qt::RightButton, {}, place); });
        QVERIFY(!entries.isEmpty());
        QCOMPARE(shown.window.edited, QStringList());
    }

    void aLeftPressOpensNoMenu()
    {
        ShownList shown({s("A")});
        QCOMPARE(menuThatOpens([&] { shown.click("A"); }), QStringList());
    }

    void aRightPressOnAnUnselectedAreaWithNothingSelectedOpensNoMenu()
    {
        ShownList shown({s("A")});
        const QPoint below(20, shown.list.viewport()->height() - 5);
        QVERIFY(!shown.list.itemAt(below));
        QCOMPARE(menuThatOpens([&] { shown.press(Qt::RightButton, below); }), QStringList());
        QCOMPARE(shown.window.currentView, &shown.list);
    }

    void theCommandsFollowTheSelectionOfTheActiveListOnly()
    {
        ShownList shown({s("A"), s("B")});
        shown.select({"A"});
        QCOMPARE(shown.window.viewUpdates, 0);
        shown.window.currentView = &shown.list;
        shown.row("B")->setSelected(true);
        QCOMPARE(shown.window.viewUpdates, 1);
        shown.plan.clear();
        QCOMPARE(shown.window.viewUpdates, 2);
    }

    void theSelectedRowsCountFromTheTop()
    {
        ShownList shown({s("A"), s("B"), s("C"), s("D")});
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        shown.select({"A", "D", "C"});
        QCOMPARE(shown.list.numSelected(), 3);
        QCOMPARE(shown.selected(), s("D C A"));
        shown.list.editProperties();
        QCOMPARE(shown.window.edited, QStringList{s("guest D")});
    }

    void aDoubleClickOpensTheDialog()
    {
        ShownList shown({s("A")});
        shown.click("A");
        QTest::mouseDClick(shown.list.viewport(), Qt::LeftButton, {},
                           shown.middleOf("A", Row::DisplayName));
        QCOMPARE(shown.window.edited, QStringList{s("guest A")});
        // Nor does an editor open behind it, as it would with a slow second click.
        QVERIFY(noEditorOpens(shown));
    }

    void aSecondClickAfterAWhileOpensTheEditor()
    {
        ShownList shown({s("A"), s("B")});
        shown.click("A");
        shown.click("A");
        QTRY_VERIFY(editor(shown));
        QCOMPARE(editor(shown)->text(), s("A"));
    }

    void aClickIntoSeveralSelectedRowsLeavesTheOneAndOpensNoEditor()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        shown.list.selectAll();
        shown.click("B");
        QCOMPARE(shown.selected(), s("B"));
        QVERIFY(noEditorOpens(shown));
    }

    void allRowsAreOfOneHeightWhateverIsInThem()
    {
        ShownList shown({s("A"), s("B")});
        const auto height = [&shown] {
            return shown.list.visualItemRect(shown.list.topLevelItem(0)).height();
        };
        const int before = height();
        QVERIFY(before >= shown.list.iconSize().height() + 2);
        shown.plan.setGuestLocked(shown.guest("A"), true);
        shown.plan.setGuestVip(shown.guest("A"), true);
        shown.plan.announceRefresh();
        QCOMPARE(height(), before);
    }

    void aClickElsewhereMeanwhileOpensNone()
    {
        ShownList shown({s("A"), s("B")});
        shown.click("A");
        shown.click("A");
        shown.click("B");
        QVERIFY(noEditorOpens(shown));
    }

    void returnKeepsAnEdit()
    {
        ShownList shown({s("A")});
        const QSignalSpy renamed(&shown.list, &KWListView::itemRenamed);
        QLineEdit *edit = typeInto(shown, "A", Row::Meal, "fish");
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(renamed.size(), 1);
        QCOMPARE(renamed[0][0].value<QTreeWidgetItem *>(), shown.row("A"));
        QCOMPARE(renamed[0][1].toInt(), int(Row::Meal));
        QCOMPARE(renamed[0][2].toString(), s("fish"));
        QCOMPARE(shown.row("A")->text(Row::Meal), s("fish"));
    }

    void escapeDropsAnEdit()
    {
        ShownList shown({s("A")});
        QLineEdit *edit = typeInto(shown, "A", Row::Meal, "fish");
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Escape);
        QTRY_VERIFY(!editor(shown));
        QCOMPARE(shown.guest("A")->meal(), QString());
        QCOMPARE(shown.row("A")->text(Row::Meal), QString());
    }

    void anEditThatLosesTheFocusIsDropped()
    {
        ShownList shown({s("A"), s("B")});
        QVERIFY(QTest::qWaitForWindowActive(&shown.list));
        QVERIFY(typeInto(shown, "A", Row::Meal, "fish"));
        shown.click("B");
        QTRY_VERIFY(!editor(shown));
        QCOMPARE(shown.row("A")->text(Row::Meal), QString());
        QCOMPARE(shown.guest("A")->meal(), QString());
    }

    void theTabKeyLeavesTheEditorAndDropsTheEdit()
    {
        ShownList shown({s("A"), s("B")});
        QLineEdit *edit = typeInto(shown, "A", Row::Meal, "fish");
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Tab);
        QTRY_VERIFY(!editor(shown));
        QCOMPARE(shown.guest("A")->meal(), QString());
    }

    void theMenuOfTheEditorDoesNotDropTheEdit()
    {
        ShownList shown({s("A")});
        QVERIFY(QTest::qWaitForWindowActive(&shown.list));
        QLineEdit *edit = typeInto(shown, "A", Row::Meal, "fish");
        QVERIFY(edit);
        QFocusEvent out(QEvent::FocusOut, Qt::PopupFocusReason);
        QCoreApplication::sendEvent(edit, &out);
        QCoreApplication::processEvents();
        QCOMPARE(editor(shown), edit);
    }

    void theEditKeyTakesTheFirstCellThatCanBeEditedAndSeen()
    {
        ShownList shown({s("A")});
        shown.plan.editGuest(shown.guest("A"), {.display_name = s("A"), .title = s("Dr")});
        shown.list.setCurrentItem(shown.row("A"), Row::Locked);
        QTest::keyClick(&shown.list, Qt::Key_F2);
        QVERIFY(editor(shown));
        QCOMPARE(editor(shown)->text(), s("A"));
        QTest::keyClick(editor(shown), Qt::Key_Escape);
        QTRY_VERIFY(!editor(shown));

        shown.list.setColumnShown(Row::DisplayName, false);
        shown.list.setCurrentItem(shown.row("A"), Row::Locked);
        QTest::keyClick(&shown.list, Qt::Key_F2);
        QVERIFY(editor(shown));
        QCOMPARE(editor(shown)->text(), s("Dr"));
    }

    void theLastColumnFillsTheListAndKeepsItsWidthWhereThereIsNoRoom()
    {
        ShownList shown;
        shown.list.resize(1500, 300);
        QCoreApplication::processEvents();
        const QHeaderView *header = shown.list.header();
        QCOMPARE(header->length(), shown.list.viewport()->width());
        shown.list.resize(300, 300);
        QCoreApplication::processEvents();
        QCOMPARE(shown.list.columnWidth(Row::Notes), 200);
    }

    void aHiddenLastColumnStaysHiddenWhenTheListGrows()
    {
        ShownList shown;
        shown.list.setColumnShown(Row::Notes, false);
        shown.list.resize(1500, 300);
        QCoreApplication::processEvents();
        QCOMPARE(shown.list.columnWidth(Row::Notes), 0);
    }
};

REGISTER_TEST(TestKWListView)
#include "tst_kwlistview.moc"
