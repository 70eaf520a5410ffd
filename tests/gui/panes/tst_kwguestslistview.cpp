#include "support/gui/shownlist.h"

#include "gui/framework/kwbusy.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QTreeWidgetItem>
#include <QTreeWidgetItemIterator>
#include <QWidget>

using Row = KWGuestListViewItem;

namespace {

QString meals(const ShownList &shown)
{
    QStringList all;
    for (int i = 0; i < shown.list.topLevelItemCount(); ++i)
        all.append(shown.list.topLevelItem(i)->text(Row::Meal));
    return all.join(u' ');
}

/// Counts how often a widget is painted and keeps the cursor of the first time.
class Paints : public QObject
{
public:
    explicit Paints(QWidget *widget) { widget->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }
};

/// Another list of the same guests, of whom each stands for all whose names begin as theirs.
class OtherList : public KWGuestsListView
{
public:
    explicit OtherList(KWDocument *document)
        : KWGuestsListView(nullptr, document,
                           {.objectName = "other list",
                            .context = "OtherList",
                            .accessibleName = "Others",
                            .toolTip = "Others pane",
                            .whatsThis = "What others are",
                            .firstHeader = "Other name",
                            .firstWidth = 100})
    {
    }

    QString guests() const
    {
        QStringList names;
        for (const KWGuest *guest : selectedGuests())
            names.append(guest->displayName());
        return names.join(u' ');
    }

protected:
    QList<KWGuest *> guestsOf(QTreeWidgetItem *row) const override
    {
        QList<KWGuest *> same;
        for (KWGuest *guest : document()->guests()) {
            if (guest->displayName().front() == row->text(Row::DisplayName).front())
                same.append(guest);
        }
        return same;
    }
    void addAllRows() override
    {
        QTreeWidgetItem *parent = addRow(document()->guestAt(0));
        for (int i = 1; i < document()->guestCount(); ++i)
            addRow(document()->guestAt(i), parent);
    }
};

void seat(ShownList &shown, const char *guest, KWTable *table, int place)
{
    shown.plan.assignGuest(shown.guest(guest), table, place, true);
}
} // namespace

class TestKWGuestsListView : public QObject
{
    Q_OBJECT

private slots:
    void theColumnsAreAsListed_data()
    {
        QTest::addColumn<QString>("header");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("centred");
        QTest::addColumn<bool>("renamable");
        QTest::newRow("0") << s("") << 40 << false << false;
        QTest::newRow("1") << s("Display name") << 120 << false << true;
        QTest::newRow("2") << s("Title") << 40 << false << true;
        QTest::newRow("3") << s("First name") << 80 << false << true;
        QTest::newRow("4") << s("Last name") << 80 << false << true;
        QTest::newRow("5") << s("Assigned") << 80 << false << false;
        QTest::newRow("6") << s("Locked") << 60 << true << false;
        QTest::newRow("7") << s("VIP") << 60 << true << false;
        QTest::newRow("8") << s("Accepted") << 60 << true << false;
        QTest::newRow("9") << s("Meal") << 80 << false << true;
        QTest::newRow("10") << s("Notes") << 200 << false << false;
    }

    void theColumnsAreAsListed()
    {
        ShownList shown({s("A")});
        shown.list.resize(600, 300);
        QCoreApplication::processEvents();
        const int column = QByteArray(QTest::currentDataTag()).toInt();
        QTEST(shown.list.headerItem()->text(column), "header");
        QTEST(shown.list.columnWidth(column), "width");
        QTEST(bool(shown.list.headerItem()->textAlignment(column) & Qt::AlignHCenter), "centred");
        QTEST(shown.row("A")->isRenameEnabled(column), "renamable");
        QCOMPARE(shown.list.columnCount(), 11);
    }

    void theListSaysWhatItIs()
    {
        ShownList shown;
        QCOMPARE(shown.list.toolTip(), s("Guests pane"));
        QCOMPARE(shown.list.accessibleName(), s("Guests"));
        QCOMPARE(shown.list.whatsThis(),
                 s("<b>Guests pane</b><br/>Displays individual guests. Click on a column to sort. "
                   "Guests can be dragged to seats or tables in the <b>Schematic</b> or <b>Floor "
                   "Plan</b> planes to assign them. "));
        QCOMPARE(shown.list.selectionMode(), QAbstractItemView::ExtendedSelection);
        QVERIFY(shown.list.header()->isSortIndicatorShown());
    }

    void aListBuiltOnItHasTextsAndRowsOfItsOwn()
    {
        KWDocument plan;
        for (const char *name : {"Ann", "Anton", "Bob"})
            addGuest(plan, {name});
        OtherList list(&plan);
        list.resize(900, 300);
        list.setNeedsRefresh(true);
        list.show();
        QCOMPARE(list.objectName(), s("other list"));
        QCOMPARE(list.accessibleName(), s("Others"));
        QCOMPARE(list.toolTip(), s("Others pane"));
        QCOMPARE(list.whatsThis(), s("What others are"));
        QCOMPARE(list.headerItem()->text(0), s("Other name"));
        QCOMPARE(list.columnWidth(0), 100);
        list.setColumnShown(0, false);
        list.setColumnShown(0, true);
        QCOMPARE(list.columnWidth(0), 100);
        QCOMPARE(list.topLevelItemCount(), 1);
        QCOMPARE(list.topLevelItem(0)->childCount(), 2);
        QVERIFY(list.itemOfGuest(plan.guestAt(2))->isRenameEnabled(Row::Meal));
        // Whoever is selected by two rows counts once.
        list.expandAll();
        list.selectAll();
        QCOMPARE(list.guests(), s("Ann Anton Bob"));
        QVERIFY(list.findNext(s("bob"), false));
        QCOMPARE(list.guests(), s("Bob"));
        QVERIFY(list.find(s("anton")));
        QCOMPARE(list.firstSelectedGuest(), plan.guestAt(1));
    }

    void aRowComesAndGoesWithItsGuest()
    {
        ShownList shown({s("A"), s("B")});
        QCOMPARE(shown.names(), s("A B"));
        shown.plan.deleteGuest(shown.guest("A"), true);
        QCOMPARE(shown.names(), s("B"));
        QCOMPARE(shown.list.itemOfGuest(nullptr), nullptr);
    }

    void aRowFollowsItsGuest()
    {
        ShownList shown({s("A")});
        shown.plan.editGuest(shown.guest("A"), {.display_name = s("Anna"), .meal = s("fish")});
        QCOMPARE(shown.names(), s("Anna"));
        QCOMPARE(meals(shown), s("fish"));
    }

    void renamingATableRefreshesTheTableOfEveryGuestSeatedThere()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        KWTable *table = addTable(shown.plan, "Old", KWTable::Circular, 4);
        seat(shown, "A", table, 0);
        seat(shown, "C", table, 2);
        QCOMPARE(shown.row("A")->text(Row::Assigned), s("Old"));
        shown.plan.setTableName(table, s("New"));
        QCOMPARE(shown.row("A")->text(Row::Assigned), s("New"));
        QCOMPARE(shown.row("B")->text(Row::Assigned), s(""));
        QCOMPARE(shown.row("C")->text(Row::Assigned), s("New"));
    }

    void aHiddenListOnlyNotesThatItIsOutOfDate_data()
    {
        QTest::addColumn<std::function<void(ShownList &)>>("change");
        using Change = std::function<void(ShownList &)>;
        QTest::newRow("new guest") << Change([](ShownList &l) { addGuest(l.plan, {"C"}); });
        QTest::newRow("edited guest")
            << Change([](ShownList &l) { l.plan.setGuestLocked(l.guest("A"), true); });
        QTest::newRow("edited table")
            << Change([](ShownList &l) { l.plan.setTableName(l.plan.tableAt(0), s("X")); });
        QTest::newRow("refresh") << Change([](ShownList &l) { l.plan.announceRefresh(); });
        QTest::newRow("simple layout")
            << Change([](ShownList &l) { emit l.plan.eventSimpleAutoLayout(); });
        QTest::newRow("deleted guest")
            << Change([](ShownList &l) { l.plan.deleteGuest(l.guest("B"), false); });
        QTest::newRow("clear") << Change([](ShownList &l) { l.plan.clear(); });
    }

    void aHiddenListOnlyNotesThatItIsOutOfDate()
    {
        ShownList shown({s("A"), s("B")});
        seat(shown, "A", addTable(shown.plan, "T", KWTable::Circular, 4), 0);
        shown.list.hide();
        QVERIFY(!shown.list.needsRefresh());
        const int rows = shown.list.topLevelItemCount();
        QFETCH(std::function<void(ShownList &)>, change);
        change(shown);
        QVERIFY(shown.list.needsRefresh());
        QVERIFY(shown.list.topLevelItemCount() <= rows);
        for (QTreeWidgetItemIterator it(&shown.list); *it; ++it)
            QVERIFY(!static_cast<Row *>(*it)->data(Row::Locked, Qt::DecorationRole).isValid());
        shown.list.show();
        QVERIFY(!shown.list.needsRefresh());
        QStringList guests;
        for (const KWGuest *guest : shown.plan.guests())
            guests.append(guest->displayName());
        QCOMPARE(shown.names(), guests.join(u' '));
    }

    void aHiddenListLetsGoOfGuestsThatAreNoMore()
    {
        ShownList shown({s("A"), s("B")});
        shown.select({"A", "B"});
        shown.list.hide();
        shown.plan.deleteGuest(shown.guest("A"), false);
        QCOMPARE(shown.list.firstSelectedGuest(), shown.guest("B"));
        const KWDocument copy(shown.plan);
        shown.plan = copy;
        shown.plan.announceRefresh();
        QCOMPARE(shown.list.firstSelectedGuest(), nullptr);
    }

    void aRebuildPaintsOnceAndKeepsTheWaitCursorUp()
    {
        ShownList shown;
        addGuests(shown.plan, 50);
        QVERIFY(QTest::qWaitForWindowExposed(&shown.list));
        QCoreApplication::processEvents();
        Paints paints(shown.list.viewport());
        Qt::CursorShape cursor = Qt::ArrowCursor;
        bool heldBack = false;
        const auto watch =
            connect(shown.list.model(), &QAbstractItemModel::rowsInserted, this, [&] {
                heldBack = !shown.list.updatesEnabled();
                if (const QCursor *shape = QApplication::overrideCursor())
                    cursor = shape->shape();
            });
        shown.plan.announceRefresh();
        disconnect(watch);
        QCoreApplication::processEvents();
        QCOMPARE(paints.count, 1);
        QCOMPARE(cursor, Qt::WaitCursor);
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(heldBack && shown.list.updatesEnabled());
    }

    void aRebuildKeepsTheSortingAndDropsTheSelection()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        shown.select({"B"});
        shown.window.currentView = &shown.list;
        shown.window.viewUpdates = 0;
        shown.plan.announceRefresh();
        QCOMPARE(shown.names(), s("C B A"));
        QCOMPARE(shown.selected(), s(""));
        QCOMPARE(shown.window.viewUpdates, 1);
    }

    void sortingSelectedRowsBringsTheCommandsUpToDate()
    {
        ShownList shown({s("A"), s("B")});
        shown.list.selectAll();
        shown.window.currentView = &shown.list;
        QCoreApplication::processEvents();
        shown.window.viewUpdates = 0;
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        QTRY_VERIFY(shown.window.viewUpdates > 0);
    }

    void aClickOnAMarkChangesItBehindAnUndoPoint_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("locked") << int(Row::Locked) << QStringList{s("Lock"), s("Unlock")};
        QTest::newRow("vip") << int(Row::Vip) << QStringList{s("VIP"), s("not VIP")};
        QTest::newRow("accepted") << int(Row::Accepted)
                                  << QStringList{s("Set accepted"), s("Set not accepted")};
    }

    void aClickOnAMarkChangesItBehindAnUndoPoint()
    {
        QFETCH(int, column);
        ShownList shown({s("A")});
        EventLog log(shown.plan);
        // The undo point is there before the plan says that anything changed.
        QStringList labelsAtEvents;
        Qt::CursorShape cursor = Qt::ArrowCursor;
        connect(&shown.plan, &KWDocument::eventEditGuest, this, [&] {
            labelsAtEvents.append(shown.window.undoLabels.value(0));
            if (const QCursor *busy = QApplication::overrideCursor())
                cursor = busy->shape();
        });
        const auto mark = [&shown, column] {
            const KWGuest *guest = shown.guest("A");
            return column == Row::Locked ? guest->isLocked()
                   : column == Row::Vip  ? guest->isVip()
                                         : guest->isAccepted();
        };
        shown.click("A", column);
        QVERIFY(mark());
        shown.click("A", column);
        QVERIFY(!mark());
        QFETCH(QStringList, labels);
        QCOMPARE(shown.window.undoLabels, labels);
        QCOMPARE(labelsAtEvents, (QStringList{labels[0], labels[0]}));
        QCOMPARE(cursor, Qt::WaitCursor);
        QVERIFY(!QApplication::overrideCursor());
    }

    void clickingTheLockedCellOfARowOutsideTheSelectionTogglesThatRowAlone()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        shown.select({"A", "B"});
        shown.click("C", Row::Locked, Qt::ControlModifier);
        QVERIFY(shown.guest("C")->isLocked());
        QVERIFY(!shown.guest("A")->isLocked() && !shown.guest("B")->isLocked());
        // So does a click into the selection.
        shown.click("B", Row::Locked, Qt::ControlModifier);
        QVERIFY(shown.guest("B")->isLocked());
        QVERIFY(!shown.guest("A")->isLocked() && shown.guest("C")->isLocked());
    }

    void aDoubleClickOnAMarkChangesItOnceAndNobodyElses()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        shown.list.sortByColumn(Row::Locked, Qt::AscendingOrder);
        const QPoint place = shown.middleOf("C", Row::Locked);
        shown.press(Qt::LeftButton, place);
        shown.release(Qt::LeftButton, place);
        QVERIFY(shown.guest("C")->isLocked());
        // The row has moved to the top: another one is under the second press.
        QCOMPARE(shown.names(), s("C A B"));
        QTest::mouseEvent(QTest::MouseDClick, shown.list.viewport(), Qt::LeftButton, {}, place);
        shown.release(Qt::LeftButton, place);
        QVERIFY(!shown.guest("A")->isLocked() && !shown.guest("B")->isLocked());
        QVERIFY(shown.guest("C")->isLocked());
        QCOMPARE(shown.window.undoLabels, QStringList{s("Lock")});
        // The next click counts again.
        shown.click("A", Row::Locked);
        QVERIFY(shown.guest("A")->isLocked());
    }

    void theCommandsFollowAClickOnAMark()
    {
        ShownList shown({s("A")});
        shown.window.viewUpdates = 0;
        shown.click("A", Row::Locked);
        QCOMPARE(shown.window.viewUpdates, 1);
        QVERIFY(shown.list.isLocked());
    }

    void aClickElsewhereChangesNothing_data()
    {
        QTest::addColumn<int>("column");
        for (const int column : {0, 1, 2, 3, 4, 5, 9, 10})
            QTest::addRow("column %d", column) << column;
    }

    void aClickElsewhereChangesNothing()
    {
        QFETCH(int, column);
        ShownList shown({s("A")});
        EventLog log(shown.plan);
        shown.click("A", column);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(shown.window.undoLabels, QStringList());
    }

    void aClickBesideTheRowsChangesNothing()
    {
        ShownList shown({s("A")});
        EventLog log(shown.plan);
        const int x = shown.list.columnViewportPosition(Row::Locked) + 5;
        const QPoint below(x, shown.list.viewport()->height() - 5);
        QTest::mouseClick(shown.list.viewport(), Qt::LeftButton, {}, below);
        QCOMPARE(log.take(), QStringList());
    }

    void anEditInPlaceGoesIntoThePlanWithoutAnUndoPoint_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("names");
        QTest::newRow("display name") << int(Row::DisplayName) << s("x|Dr|Ann|Lee|fish");
        QTest::newRow("title") << int(Row::Title) << s("A|x|Ann|Lee|fish");
        QTest::newRow("first name") << int(Row::FirstName) << s("A|Dr|x|Lee|fish");
        QTest::newRow("last name") << int(Row::LastName) << s("A|Dr|Ann|x|fish");
        QTest::newRow("meal") << int(Row::Meal) << s("A|Dr|Ann|Lee|x");
    }

    void anEditInPlaceGoesIntoThePlanWithoutAnUndoPoint()
    {
        ShownList shown;
        const QString notes = s("a long text about Ann, longer than a cell");
        KWGuest *guest = shown.plan.addGuest({.display_name = s("A"),
                                              .title = s("Dr"),
                                              .first_name = s("Ann"),
                                              .last_name = s("Lee"),
                                              .meal = s("fish"),
                                              .gender = KWGuest::Female,
                                              .age = KWGuest::Child,
                                              .locked = true,
                                              .notes = notes,
                                              .vip = true,
                                              .accepted = true},
                                             nullptr);
        QFETCH(int, column);
        EventLog log(shown.plan);
        shown.list.setCurrentItem(shown.row("A"), column);
        QTest::keyClick(&shown.list, Qt::Key_F2);
        auto *edit = shown.list.viewport()->findChild<QLineEdit *>();
        QVERIFY(edit);
        edit->selectAll();
        QTest::keyClicks(edit, s("x"));
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_VERIFY(!shown.list.viewport()->findChild<QLineEdit *>());
        QCOMPARE(log.take().size(), 2);
        const QStringList names{guest->displayName(), guest->title(), guest->firstName(),
                                guest->lastName(), guest->meal()};
        QTEST(names.join(u'|'), "names");
        // The rest is the guest's own, not what the cells show of it.
        QCOMPARE(guest->notes(), notes);
        QVERIFY(guest->isLocked() && guest->isVip() && guest->isAccepted());
        QVERIFY(guest->gender() == KWGuest::Female && guest->age() == KWGuest::Child);
        QCOMPARE(shown.window.undoLabels, QStringList());
    }

    void aNameThatNoLongerStandsInTheDisplayNameIsToldOf_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("told");
        QTest::newRow("last name") << int(Row::LastName) << s("Dvořák") << true;
        QTest::newRow("first name") << int(Row::FirstName) << s("Jana") << true;
        QTest::newRow("title") << int(Row::Title) << s("Dr") << true;
        QTest::newRow("no title") << int(Row::Title) << s("") << true;
        QTest::newRow("one that stands there") << int(Row::LastName) << s("Dvoák") << false;
        QTest::newRow("display name") << int(Row::DisplayName) << s("Jan") << false;
        QTest::newRow("meal") << int(Row::Meal) << s("fish") << false;
    }

    void aNameThatNoLongerStandsInTheDisplayNameIsToldOf()
    {
        ShownList shown;
        shown.plan.addGuest({.display_name = s("Master Jan Dvoák"),
                             .title = s("Master"),
                             .first_name = s("Jan"),
                             .last_name = s("Dvak")},
                            nullptr);
        QFETCH(int, column);
        QFETCH(QString, text);
        QFETCH(bool, told);
        QTreeWidgetItem *row = shown.list.topLevelItem(0);
        row->setText(column, text);
        shown.list.renameInPlace(row, column, text);
        QCOMPARE(shown.window.statusMessages,
                 told ? QStringList{s("The display name is still 'Master Jan Dvoák'")}
                      : QStringList());
    }

    void onlyCellsOfGuestsThatCanBeEditedAreRenamed()
    {
        ShownList shown({s("A")});
        EventLog log(shown.plan);
        QTreeWidgetItem other;
        shown.list.renameInPlace(&other, Row::DisplayName, s("B"));
        shown.list.renameInPlace(nullptr, Row::DisplayName, s("B"));
        shown.list.renameInPlace(shown.row("A"), Row::Notes, s("B"));
        QCOMPARE(log.take(), QStringList());
    }

    void aRowOfAGuestWhoIsNoMoreIsNotRenamed()
    {
        ShownList shown({s("A")});
        QTreeWidgetItem *row = shown.row("A");
        const KWDocument copy(shown.plan);
        shown.plan = copy;
        EventLog log(shown.plan);
        shown.list.renameInPlace(row, Row::DisplayName, s("B"));
        QCOMPARE(log.take(), QStringList());
    }

    void aRowThatMovesByItsNewNameStaysInSight()
    {
        ShownList shown;
        addGuests(shown.plan, 200);
        shown.list.sortByColumn(Row::DisplayName, Qt::AscendingOrder);
        shown.row("G0")->setText(Row::DisplayName, s("zzz"));
        shown.list.renameInPlace(shown.list.itemOfGuest(shown.plan.guestAt(0)), Row::DisplayName,
                                 s("zzz"));
        QCOMPARE(shown.list.indexOfTopLevelItem(shown.row("zzz")), 199);
        const QRect row = shown.list.visualItemRect(shown.row("zzz"));
        QVERIFY(shown.list.viewport()->rect().contains(row.center().x(), row.center().y()));
    }

    void theDialogOpensForAGuestsRowOnly()
    {
        ShownList shown({s("A")});
        shown.list.edit(nullptr);
        QTreeWidgetItem other;
        shown.list.edit(&other);
        QCOMPARE(shown.window.edited, QStringList());
        shown.list.edit(shown.row("A"));
        QCOMPARE(shown.window.edited, QStringList{s("guest A")});
    }

    void theSelectedGuestsAreDraggedInTheOrderOfTheList()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        shown.select({"A", "C"});
        const QPoint start = shown.middleOf("A", Row::DisplayName);
        shown.press(Qt::LeftButton, start);
        // Not before the pointer is further away than people tremble.
        const int distance = QApplication::startDragDistance();
        shown.moveTo(start + QPoint(distance - 1, 1));
        QCOMPARE(shown.list.drags, QStringList());
        shown.moveTo(start + QPoint(distance, 1));
        QCOMPARE(shown.list.drags, QStringList{s("C A")});
        QCOMPARE(shown.selected(), s("C A"));
        // One press starts one drag.
        shown.moveTo(start + QPoint(distance + 5, 1));
        QCOMPARE(shown.list.drags.size(), 1);
    }

    void aDragOfFiveGuestsOfWhomOneIsLockedStartsNothingAndReportsThatOne()
    {
        ShownList shown({s("A"), s("B"), s("C"), s("D"), s("E")});
        shown.plan.setGuestLocked(shown.guest("C"), true);
        shown.select({"A", "B", "C", "D", "E"});
        shown.prompts.answer(s("&OK"));
        const QPoint start = shown.middleOf("A", Row::DisplayName);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(40, 0));
        shown.moveTo(start + QPoint(60, 0));
        QCOMPARE(shown.list.drags, QStringList());
        QCOMPARE(shown.selected(), s("A B C D E"));
        QCOMPARE(shown.prompts.messages.size(), 1);
        const KWMessage &message = shown.prompts.messages[0];
        QCOMPARE(message.icon, KWMessage::Critical);
        QCOMPARE(message.caption, KWMainWindow::productName());
        QCOMPARE(message.text, s("Guest 'C' is locked"));
        QCOMPARE(message.buttons, QStringList{s("&OK")});
    }

    void aMoveWithoutAPressOfTheLeftButtonDragsNothing()
    {
        ShownList shown({s("A")});
        shown.select({"A"});
        const QPoint start = shown.middleOf("A", Row::DisplayName);
        shown.moveTo(start + QPoint(100, 0));
        shown.press(Qt::LeftButton, start);
        shown.release(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(100, 0));
        QCOMPARE(shown.list.drags, QStringList());
    }

    void aPressWhoseReleaseWasLostDragsNothingLater()
    {
        ShownList shown({s("A")});
        const QPoint start = shown.middleOf("A", Row::DisplayName);
        shown.press(Qt::LeftButton, start);
        QMouseEvent other(QEvent::MouseMove, start, shown.list.viewport()->mapToGlobal(start),
                          Qt::NoButton, Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(shown.list.viewport(), &other);
        shown.moveTo(start + QPoint(100, 0));
        QCOMPARE(shown.list.drags, QStringList());
    }

    void aDragFromBesideTheRowsMovesNobody()
    {
        ShownList shown({s("A")});
        const QPoint below(20, shown.list.viewport()->height() - 5);
        shown.press(Qt::LeftButton, below);
        shown.moveTo(below + QPoint(100, 0));
        QCOMPARE(shown.list.drags, QStringList());
    }

    void aLanguageChangeBringsTheHeadersAgain()
    {
        ShownList shown;
        shown.list.headerItem()->setText(Row::Meal, s("?"));
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&shown.list, &change);
        QCOMPARE(shown.list.headerItem()->text(Row::Meal), s("Meal"));
    }
};

Q_DECLARE_METATYPE(std::function<void(ShownList &)>)

REGISTER_TEST(TestKWGuestsListView)
#include "tst_kwguestslistview.moc"
