#include "core/model/kwviewsettings.h"
#include "gui/framework/kwviewandfilter.h"
#include "gui/panes/kwguestviewfilterimpl.h"
#include "support/gui/dialogtest.h"
#include "support/gui/shownlist.h"
#include "support/registeredtest.h"

using Row = KWGuestListViewItem;

namespace {

struct FilteredList : ShownList
{
    KWGuestViewFilterImpl filter{nullptr, &list};

    FilteredList() { filter.show(); }

    QCheckBox *box(const QString &name) { return child<QCheckBox>(filter, name); }
    QToolButton *button(const char *name) { return child<QToolButton>(filter, name); }
};

struct BoxRow
{
    const char *name;
    int column;
    int width;
};

const QList<BoxRow> &boxes()
{
    static const QList<BoxRow> rows{
        {"m_displayNameCheckBox", Row::DisplayName, 120},
        {"m_titleCheckBox", Row::Title, 40},
        {"m_firstNameCheckBox", Row::FirstName, 80},
        {"m_lastNameCheckBox", Row::LastName, 80},
        {"m_assignedCheckBox", Row::Assigned, 80},
        {"m_lockedCheckBox", Row::Locked, 60},
        {"m_vipCheckBox", Row::Vip, 60},
        {"m_acceptedCheckBox", Row::Accepted, 60},
        {"m_mealCheckBox", Row::Meal, 80},
        {"m_notesCheckBox", Row::Notes, 200},
    };
    return rows;
}

void addBoxRows()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("width");
    for (const BoxRow &row : boxes())
        QTest::newRow(row.name) << s(row.name) << row.column << row.width;
}
} // namespace

class TestKWGuestViewFilterImpl : public QObject
{
    Q_OBJECT

private slots:
    void thePanelIsAsListed_data()
    {
        addFormRows({
            {"textLabel1", "F&ind:", ""},
            {"m_findLineEdit", "", "Type the name of the guest you wish to find"},
            {"m_displayNameCheckBox", "&display name", "Show display name column", "Alt+D"},
            {"m_titleCheckBox", "&title", "Show title column", "Alt+T"},
            {"m_firstNameCheckBox", "&first name", "Show first name column", "Alt+F"},
            {"m_lastNameCheckBox", "&last name", "Show last name column", "Alt+L"},
            {"m_assignedCheckBox", "&assigned", "Show assigned column", "Alt+A"},
            {"m_lockedCheckBox", "loc&ked", "Show locked column", "Alt+K"},
            {"m_vipCheckBox", "&VIP", "Show VIP column", "Alt+V"},
            {"m_acceptedCheckBox", "a&ccepted", "Show accepted column", "Alt+C"},
            {"m_mealCheckBox", "&meal", "Show meal column", "Alt+M"},
            {"m_notesCheckBox", "&notes", "Show notes column", "Alt+N"},
        });
    }

    void thePanelIsAsListed()
    {
        FilteredList shown;
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(QString, tip);
        QFETCH(QString, keys);
        const auto *widget = child<QWidget>(shown.filter, name);
        QCOMPARE(widget->property("text").toString(), text);
        QCOMPARE(widget->toolTip(), tip);
        QCOMPARE(widget->property("shortcut").value<QKeySequence>(), QKeySequence(keys));
    }

    void theLabelLeadsToTheFindBox()
    {
        FilteredList shown;
        QCOMPARE(child<QLabel>(shown.filter, "textLabel1")->buddy(),
                 child<QLineEdit>(shown.filter, "m_findLineEdit"));
    }

    void theColumnsAreFoldedAwayAtFirst()
    {
        FilteredList shown;
        QVERIFY(shown.button("m_showButton")->isVisible());
        QVERIFY(!shown.button("m_hideButton")->isVisible());
        for (const BoxRow &row : boxes())
            QVERIFY(!shown.box(s(row.name))->isVisible());
        QVERIFY(child<QLineEdit>(shown.filter, "m_findLineEdit")->isVisible());
    }

    void theButtonsUnfoldAndFoldThePanelAndKeepTheFocus()
    {
        FilteredList shown;
        shown.filter.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.filter));
        shown.button("m_showButton")->setFocus();
        QTest::keyClick(shown.button("m_showButton"), Qt::Key_Space);
        QVERIFY(!shown.button("m_showButton")->isVisible());
        QVERIFY(shown.button("m_hideButton")->hasFocus());
        for (const BoxRow &row : boxes())
            QVERIFY(shown.box(s(row.name))->isVisible());
        QTest::keyClick(shown.button("m_hideButton"), Qt::Key_Space);
        QVERIFY(shown.button("m_showButton")->hasFocus());
        QVERIFY(!shown.button("m_hideButton")->isVisible());
        QVERIFY(!shown.box(s("m_vipCheckBox"))->isVisible());
    }

    void aBoxHidesItsColumnAndBringsItBackAndThePlanIsChanged_data() { addBoxRows(); }

    void aBoxHidesItsColumnAndBringsItBackAndThePlanIsChanged()
    {
        QFETCH(QString, name);
        QFETCH(int, column);
        QFETCH(int, width);
        FilteredList shown;
        shown.list.resize(500, 300);
        QCoreApplication::processEvents();
        shown.plan.setModified(false);
        shown.filter.showAll();
        QTest::mouseClick(shown.box(name), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(shown.list.columnWidth(column), 0);
        QVERIFY(shown.plan.isModified());
        shown.plan.setModified(false);
        QTest::mouseClick(shown.box(name), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(shown.list.columnWidth(column), width);
        QVERIFY(shown.plan.isModified());
    }

    void draggingAColumnDownToNothingUnticksItsBoxAndOpenTicksIt_data() { addBoxRows(); }

    void draggingAColumnDownToNothingUnticksItsBoxAndOpenTicksIt()
    {
        QFETCH(QString, name);
        QFETCH(int, column);
        FilteredList shown;
        shown.list.resize(1100, 300);
        QCoreApplication::processEvents();
        QWidget *header = shown.list.header()->viewport();
        const int left = shown.list.header()->sectionViewportPosition(column);
        const int edge = left + shown.list.columnWidth(column) - 1;
        const auto drag = [header](int from, int to) {
            QTest::mousePress(header, Qt::LeftButton, {}, QPoint(from, 5));
            QTest::mouseMove(header, QPoint(to, 5));
            QMouseEvent move(QEvent::MouseMove, QPoint(to, 5), header->mapToGlobal(QPoint(to, 5)),
                             Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(header, &move);
            QTest::mouseRelease(header, Qt::LeftButton, {}, QPoint(to, 5));
        };
        drag(edge, left - 20);
        QCOMPARE(shown.list.columnWidth(column), 0);
        QVERIFY(!shown.box(name)->isChecked());
        // Behind the last column there is nothing to drag it open with; its box does that.
        if (column == Row::Notes)
            return;
        drag(left + 1, left + 40);
        QVERIFY(shown.list.columnWidth(column) > 0);
        QVERIFY(shown.box(name)->isChecked());
    }

    void aColumnThatIsDraggedLeavesTheHiddenLastOneHidden()
    {
        FilteredList shown;
        shown.filter.readSettings({.guests_show_notes = false});
        shown.list.resize(1500, 300);
        QCoreApplication::processEvents();
        shown.list.header()->resizeSection(Row::Title, 90);
        QCOMPARE(shown.list.columnWidth(Row::Notes), 0);
        QVERIFY(!shown.box(s("m_notesCheckBox"))->isChecked());
        QVERIFY(shown.box(s("m_titleCheckBox"))->isChecked());
    }

    void theFirstColumnHasNoBox()
    {
        FilteredList shown;
        shown.list.setColumnWidth(0, 0);
        for (const BoxRow &row : boxes())
            QVERIFY(shown.box(s(row.name))->isChecked());
    }

    void savedColumnsAreShownWithoutChangingThePlan_data() { addBoxRows(); }

    void savedColumnsAreShownWithoutChangingThePlan()
    {
        QFETCH(QString, name);
        QFETCH(int, column);
        FilteredList shown;
        shown.plan.setModified(false);
        using Shown = KWViewSettings;
        const QHash<QString, bool Shown::*> fields{
            {s("m_displayNameCheckBox"), &Shown::guests_show_display_name},
            {s("m_titleCheckBox"), &Shown::guests_show_title},
            {s("m_firstNameCheckBox"), &Shown::guests_show_first_name},
            {s("m_lastNameCheckBox"), &Shown::guests_show_last_name},
            {s("m_assignedCheckBox"), &Shown::guests_show_assigned},
            {s("m_lockedCheckBox"), &Shown::guests_show_locked},
            {s("m_vipCheckBox"), &Shown::guests_show_vip},
            {s("m_acceptedCheckBox"), &Shown::guests_show_accepted},
            {s("m_mealCheckBox"), &Shown::guests_show_meal},
            {s("m_notesCheckBox"), &Shown::guests_show_notes}};
        Shown columns;
        columns.*fields[name] = false;
        shown.filter.readSettings(columns);
        QVERIFY(!shown.plan.isModified());
        for (const BoxRow &row : boxes()) {
            QCOMPARE(shown.box(s(row.name))->isChecked(), row.column != column);
            QCOMPARE(shown.list.columnWidth(row.column) > 0, row.column != column);
        }
        Shown now;
        // What belongs to others is left alone.
        now.groups_show_vip = false;
        shown.filter.writeSettings(now);
        QVERIFY(!now.groups_show_vip && now.groups_show_title);
        for (auto field = fields.cbegin(); field != fields.cend(); ++field)
            QCOMPARE(now.*field.value(), field.key() != name);
        shown.filter.readSettings({});
        QVERIFY(shown.list.columnWidth(column) > 0);
        QVERIFY(!shown.plan.isModified());
    }

    void fromTheFindBoxTheseKeysLeadIntoTheList_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("return") << int(Qt::Key_Return);
        QTest::newRow("enter") << int(Qt::Key_Enter);
        QTest::newRow("down") << int(Qt::Key_Down);
    }

    void fromTheFindBoxTheseKeysLeadIntoTheList()
    {
        FakeMainWindow window;
        KWDocument &plan = *window.document();
        KWViewAndFilter<KWGuestsListView, KWGuestViewFilterImpl> pair(nullptr, &plan, false);
        pair.show();
        addGuest(plan, {"Ann"});
        QVERIFY(QTest::qWaitForWindowActive(&pair));
        auto *box = child<QLineEdit>(pair, "m_findLineEdit");
        box->setFocus();
        QTest::keyClicks(box, s("an"));
        window.currentView = nullptr;
        QFETCH(int, key);
        QTest::keyClick(box, static_cast<Qt::Key>(key));
        QVERIFY(pair.view()->hasFocus());
        QCOMPARE(window.currentView, pair.view());
        QCOMPARE(pair.view()->firstSelectedGuest(), plan.guestAt(0));
    }

    void aLanguageChangeBringsTheTextsAgain()
    {
        FilteredList shown;
        const BracketTranslator brackets;
        QTRY_COMPARE(child<QLabel>(shown.filter, "textLabel1")->text(), s("[F&ind:]"));
    }
};

REGISTER_TEST(TestKWGuestViewFilterImpl)
#include "tst_kwguestviewfilterimpl.moc"
