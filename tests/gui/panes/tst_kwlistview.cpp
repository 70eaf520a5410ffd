#include "support/gui/shownlist.h"
#include "support/registeredtest.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QToolTip>

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

/// What stands on the screen, with whatever was not painted anew.
QImage onScreen(const ShownList &shown)
{
    QCoreApplication::processEvents();
    return shown.list.screen()
        ->grabWindow(shown.list.winId())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/// The same with all of it painted anew.
QImage repainted(ShownList &shown)
{
    shown.list.viewport()->repaint();
    return onScreen(shown);
}

/// The tip that comes up over a cell.
QString tipOver(ShownList &shown, const char *name, int column)
{
    const QPoint place = shown.middleOf(name, column);
    QHelpEvent help(QEvent::ToolTip, place, shown.list.viewport()->mapToGlobal(place));
    QToolTip::hideText();
    QCoreApplication::sendEvent(shown.list.viewport(), &help);
    return QToolTip::text();
}

/// Takes whatever is dragged there.
class TakingList : public KWGuestsListView
{
public:
    TakingList(QWidget *parent, KWDocument *document)
        : KWGuestsListView(parent, document)
    {
        viewport()->setAcceptDrops(true);
    }

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { event->acceptProposedAction(); }
};

/// Selects a row in two ranges of columns, as a row can be after it was sorted anew.
void selectInTwoRanges(ShownList &shown, const char *name)
{
    const int row = shown.list.indexOfTopLevelItem(shown.row(name));
    const auto cell = [&shown, row](int column) { return shown.list.model()->index(row, column); };
    QItemSelection ranges;
    ranges.append(QItemSelectionRange(cell(0), cell(1)));
    ranges.append(QItemSelectionRange(cell(2), cell(Row::Notes)));
    shown.list.selectionModel()->select(ranges, QItemSelectionModel::Select);
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

    void theStripesCountFromTheTopThoughItIsOutOfSight()
    {
        ShownList shown;
        addGuests(shown.plan, 101);
        shown.list.sortByColumn(Row::DisplayName, Qt::AscendingOrder);
        shown.list.scrollToItem(shown.list.topLevelItem(50), QAbstractItemView::PositionAtTop);
        QVERIFY(QTest::qWaitForWindowExposed(&shown.list));
        onScreen(shown);
        // Row for row another one, and an even number of them less.
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        shown.plan.deleteGuest(shown.plan.guestAt(7), false);
        shown.list.scrollToItem(shown.list.topLevelItem(50), QAbstractItemView::PositionAtTop);
        const QImage picture = shown.list.viewport()->grab().toImage();
        const int right = shown.list.viewport()->width() - 2;
        for (int row = 50; row < 60; ++row) {
            const QRect place = shown.list.visualItemRect(shown.list.topLevelItem(row));
            QCOMPARE(picture.pixelColor(right, place.center().y()) == QColor(224, 224, 255),
                     row % 2 == 1);
        }
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
        shown.window.currentView = nullptr;
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

    void aRowThatIsSelectedInTwoRangesCountsOnce()
    {
        ShownList shown({s("A"), s("B")});
        selectInTwoRanges(shown, "A");
        QCOMPARE(shown.list.selectionModel()->selection().size(), 2);
        QCOMPARE(shown.selected(), s("A"));
        QCOMPARE(shown.list.numSelected(), 1);
        QVERIFY(shown.list.canEditProperties());
        QVERIFY(!shown.list.canSetAffinity());
        shown.window.userSettings()->setValue(u"warning/delete_guest", false);
        shown.list.deleteSelection();
        QCOMPARE(shown.names(), s("B"));
    }

    void theSelectedRowsFollowTheOrderOfTheRows()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        shown.list.sortByColumn(Row::DisplayName, Qt::AscendingOrder);
        shown.select({"A", "C"});
        QCOMPARE(shown.selected(), s("A C"));
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        QCOMPARE(shown.selected(), s("C A"));
        shown.plan.deleteGuest(shown.guest("C"), false);
        QCOMPARE(shown.selected(), s("A"));
        shown.plan.clear();
        QCOMPARE(shown.selected(), s(""));
    }

    void aChangeOfSeatPaintsTheWholeRowAnew()
    {
        ShownList shown({s("A"), s("B")});
        // Out of sight, so that nothing of the cell itself is painted.
        shown.list.resize(250, 200);
        QVERIFY(QTest::qWaitForWindowExposed(&shown.list));
        KWTable *table = addTable(shown.plan, "T", KWTable::Circular, 4);
        const QImage standing = repainted(shown);
        shown.plan.assignGuest(shown.guest("A"), table, 0, true);
        const QImage seated = onScreen(shown);
        QVERIFY(seated != standing);
        QCOMPARE(seated, repainted(shown));
        shown.plan.unassignGuest(shown.guest("A"), true);
        QCOMPARE(onScreen(shown), standing);
    }

    void aSelectionIsPaintedAtOnce()
    {
        ShownList shown({s("A"), s("B")});
        QVERIFY(QTest::qWaitForWindowExposed(&shown.list));
        const QImage before = repainted(shown);
        shown.row("B")->setSelected(true);
        const QImage selected = onScreen(shown);
        QVERIFY(selected != before);
        QCOMPARE(selected, repainted(shown));
    }

    void aPictureInASelectedRowStandsOnALightGround()
    {
        ShownList shown({s("A")});
        shown.plan.setGuestLocked(shown.guest("A"), true);
        shown.select({"A"});
        const QRect place = shown.list.visualRect(shown.list.model()->index(0, Row::Locked));
        const QImage cell = shown.list.viewport()->grab(place).toImage();
        int white = 0;
        int others = 0;
        const QColor selection = cell.pixelColor(1, 1);
        for (int y = 0; y < cell.height(); ++y) {
            for (int x = 0; x < cell.width(); ++x) {
                const QColor pixel = cell.pixelColor(x, y);
                white += pixel == QColor(Qt::white) ? 1 : 0;
                others += pixel != QColor(Qt::white) && pixel != selection ? 1 : 0;
            }
        }
        QVERIFY(selection != QColor(Qt::white));
        QVERIFY2(white > 20, qPrintable(QString::number(white)));
        // The picture itself.
        QVERIFY2(others > 20, qPrintable(QString::number(others)));
    }

    void aPictureStandsInTheMiddleWhereTheHeaderDoes()
    {
        ShownList shown({s("A")});
        shown.plan.setGuestLocked(shown.guest("A"), true);
        const auto middle = [&shown](int column) {
            const QRect place = shown.list.visualRect(shown.list.model()->index(0, column));
            const QImage cell = shown.list.viewport()->grab(place).toImage();
            const QColor ground = cell.pixelColor(0, 0);
            int left = cell.width();
            int right = 0;
            for (int x = 0; x < cell.width(); ++x) {
                for (int y = 0; y < cell.height(); ++y) {
                    if (cell.pixelColor(x, y) != ground) {
                        left = std::min(left, x);
                        right = x;
                    }
                }
            }
            return (left + right) / 2 - cell.width() / 2;
        };
        QVERIFY(std::abs(middle(Row::Locked)) <= 3);
        QVERIFY(middle(Row::Picture) < -3);
    }

    void whoHasNoSeatIsPaintedInBold()
    {
        ShownList shown({s("A"), s("B")});
        shown.plan.editGuest(shown.guest("B"), {.display_name = s("A")});
        const auto ink = [&shown](int row) {
            const QRect place =
                shown.list.visualRect(shown.list.model()->index(row, Row::DisplayName));
            const QImage cell = shown.list.viewport()->grab(place).toImage();
            int dark = 0;
            for (int y = 0; y < cell.height(); ++y) {
                for (int x = 0; x < cell.width(); ++x)
                    dark += cell.pixelColor(x, y).lightness() < 128 ? 1 : 0;
            }
            return dark;
        };
        const int bold = ink(0);
        shown.plan.assignGuest(static_cast<Row *>(shown.list.topLevelItem(0))->guest(),
                               addTable(shown.plan, "T", KWTable::Circular, 4), 0, true);
        QVERIFY(ink(0) > 0);
        QVERIFY(ink(0) < bold);
    }

    void theFocusMakesTheListTheActiveViewHoweverItComes()
    {
        ShownList shown({s("A")});
        QLineEdit other(&shown.list);
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&shown.list));
        other.setFocus();
        shown.window.currentView = nullptr;
        shown.list.setFocus();
        QCOMPARE(shown.window.currentView, &shown.list);
    }

    void aCellThatCannotShowAllItsTextTellsItAsATip()
    {
        ShownList shown({s("A"), s("<b>Mr & Mrs Hugo</b> Andersson of Stockholm")});
        QCOMPARE(tipOver(shown, "A", Row::DisplayName), s("Guests pane"));
        QCOMPARE(tipOver(shown, "<b>Mr & Mrs Hugo</b> Andersson of Stockholm", Row::DisplayName),
                 s("<span>&lt;b&gt;Mr &amp; Mrs Hugo&lt;/b&gt; Andersson of Stockholm</span>"));
        QCOMPARE(tipOver(shown, "A", Row::Locked), s("Guests pane"));
    }

    void theTipGoesByTheFontThatTheRowIsPaintedIn()
    {
        ShownList shown({s("Maximilian Mmmm")});
        const char *name = "Maximilian Mmmm";
        // Just wide enough for the plain font, in which seated guests stand.
        QFont bold = shown.list.font();
        bold.setBold(true);
        const int plainWidth = QFontMetrics(shown.list.font()).horizontalAdvance(s(name));
        const int boldWidth = QFontMetrics(bold).horizontalAdvance(s(name));
        QVERIFY(boldWidth > plainWidth);
        KWTable *table = addTable(shown.plan, "T", KWTable::Circular, 4);
        shown.list.setColumnWidth(Row::DisplayName, shown.list.columnWidth(Row::Locked));
        QStyleOptionViewItem option;
        option.font = shown.list.font();
        option.fontMetrics = QFontMetrics(option.font);
        const QModelIndex cell = shown.list.model()->index(0, Row::DisplayName);
        shown.list.setColumnWidth(Row::DisplayName,
                                  shown.list.itemDelegate()->sizeHint(option, cell).width());
        QVERIFY(tipOver(shown, name, Row::DisplayName).contains(s(name)));
        shown.plan.assignGuest(shown.guest(name), table, 0, true);
        QCOMPARE(tipOver(shown, name, Row::DisplayName), s("Guests pane"));
    }

    void notesThatWereShortenedAreToldInFull()
    {
        ShownList shown;
        const QString notes = s("a long text about Ann, longer than a cell");
        shown.plan.addGuest({.display_name = s("A"), .notes = notes}, nullptr);
        shown.list.resize(1500, 300);
        QCoreApplication::processEvents();
        QVERIFY(tipOver(shown, "A", Row::Notes).contains(notes));
        shown.plan.editGuest(shown.guest("A"),
                             {.display_name = s("A"), .notes = QString(5000, u'x')});
        QVERIFY(tipOver(shown, "A", Row::Notes).size() < 1100);
    }

    void aDragNearTheEdgeScrollsAListThatTakesDrops()
    {
        KWDocument plan;
        TakingList list(nullptr, &plan);
        list.resize(300, 200);
        list.show();
        addGuests(plan, 100);
        QWidget *viewport = list.viewport();
        const QMimeData data;
        const QPoint edge(50, viewport->height() - 3);
        QDragEnterEvent enter(edge, Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport, &enter);
        QDragMoveEvent move(edge, Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport, &move);
        QTRY_VERIFY(list.verticalScrollBar()->value() > 0);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(viewport, &leave);
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
