#include "support/eventlog.h"
#include "support/gui/shownlist.h"
#include "support/registeredtest.h"

#include <QClipboard>
#include <QLineEdit>

using Row = KWGuestListViewItem;

namespace {

/// The editor that is open, or null.
QLineEdit *editor(const ShownList &shown)
{
    for (auto *field : shown.list.viewport()->findChildren<QLineEdit *>()) {
        // One that was closed is deleted later.
        if (field->isVisible())
            return field;
    }
    return nullptr;
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

/// "Ann Title" for the cell that is being edited.
QString openCell(const ShownList &shown)
{
    const QLineEdit *open = editor(shown);
    const QTreeWidgetItem *row = shown.list.currentItem();
    if (!open || !row)
        return {};
    const QString header = shown.list.headerItem()->text(shown.list.currentColumn());
    if (open->text() != row->text(shown.list.currentColumn()))
        return s("an editor with ") + open->text();
    return row->text(Row::DisplayName) + u' ' + header;
}
} // namespace

class TestKWRowEditor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(50); }

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

    void tabKeepsTheTextAndOpensTheNextCell()
    {
        ShownList shown({s("A"), s("B")});
        QVERIFY(QTest::qWaitForWindowActive(&shown.list));
        QLineEdit *edit = typeInto(shown, "A", Row::DisplayName, "Anna");
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Tab);
        QVERIFY(editor(shown)->hasFocus());
        QCOMPARE(shown.guest("Anna")->displayName(), s("Anna"));
        QTRY_COMPARE(openCell(shown), s("Anna Title"));
        // What cannot be edited is passed over, and behind the last cell comes the next row.
        shown.list.setColumnShown(Row::FirstName, false);
        for (const char *cell : {"Anna Last name", "Anna Meal", "B Display name"}) {
            QTest::keyClick(editor(shown), Qt::Key_Tab);
            QTRY_COMPARE(openCell(shown), s(cell));
        }
        QCOMPARE(shown.selected(), s("B"));
    }

    void shiftAndTabOpenTheCellBefore()
    {
        ShownList shown({s("A"), s("B")});
        QVERIFY(QTest::qWaitForWindowActive(&shown.list));
        shown.list.header()->moveSection(Row::Meal, 0);
        QLineEdit *edit = typeInto(shown, "B", Row::Title, "Dr");
        QVERIFY(edit);
        for (const char *cell : {"B Display name", "B Meal", "A Last name"}) {
            QTest::keyClick(editor(shown), Qt::Key_Backtab, Qt::ShiftModifier);
            QTRY_COMPARE(openCell(shown), s(cell));
            QVERIFY(editor(shown)->hasFocus());
        }
        QCOMPARE(shown.guest("B")->title(), s("Dr"));
    }

    void behindTheLastCellAndBeforeTheFirstTabEndsTheEdit()
    {
        ShownList shown({s("A")});
        QVERIFY(QTest::qWaitForWindowActive(&shown.list));
        QLineEdit *edit = typeInto(shown, "A", Row::Meal, "fish");
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Tab);
        QTRY_VERIFY(!editor(shown));
        QCOMPARE(shown.guest("A")->meal(), s("fish"));
        QVERIFY(shown.list.hasFocus());
        edit = typeInto(shown, "A", Row::DisplayName, "Ann");
        QTest::keyClick(edit, Qt::Key_Backtab);
        QTRY_VERIFY(!editor(shown));
        QCOMPARE(shown.names(), s("Ann"));
    }

    void tabFollowsARowThatMovesByItsNewText()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        shown.list.sortByColumn(Row::DisplayName, Qt::AscendingOrder);
        QLineEdit *edit = typeInto(shown, "A", Row::DisplayName, "Zoe");
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Tab);
        QTRY_COMPARE(openCell(shown), s("Zoe Title"));
        QCOMPARE(shown.names(), s("B C Zoe"));
        QCOMPARE(shown.selected(), s("Zoe"));
    }

    void returnOnAnUnchangedTextChangesNothing()
    {
        ShownList shown;
        shown.plan.addGuest({.display_name = s("A"), .meal = s("fish ")}, nullptr);
        shown.plan.setModified(false);
        EventLog log(shown.plan);
        shown.list.setCurrentItem(shown.row("A"), Row::Meal);
        QTest::keyClick(&shown.list, Qt::Key_F2);
        QVERIFY(editor(shown));
        QTest::keyClick(editor(shown), Qt::Key_Return);
        QTRY_VERIFY(!editor(shown));
        QLineEdit *edit = typeInto(shown, "A", Row::DisplayName, "A");
        QTest::keyClick(edit, Qt::Key_Enter);
        QTRY_VERIFY(!editor(shown));
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!shown.plan.isModified());
    }

    void aPastedTextIsOneLineWithoutBlanksAtItsEnd()
    {
        ShownList shown({s("A")});
        QLineEdit *edit = typeInto(shown, "A", Row::Meal, "x");
        QVERIFY(edit);
        QApplication::clipboard()->setText(s("Fish\nand\tchips\n"));
        edit->selectAll();
        edit->paste();
        QCOMPARE(edit->text(), s("Fish and chips "));
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(shown.guest("A")->meal(), s("Fish and chips"));
    }

    void aRebuiltListDropsTheEdit_data()
    {
        QTest::addColumn<std::function<void(ShownList &)>>("change");
        using Change = std::function<void(ShownList &)>;
        QTest::newRow("refresh") << Change([](ShownList &l) { l.plan.announceRefresh(); });
        QTest::newRow("other guests") << Change([](ShownList &l) {
            const KWDocument copy(l.plan);
            l.plan = copy;
            l.plan.announceRefresh();
        });
        QTest::newRow("layout") << Change(
            [](ShownList &l) { emit l.plan.eventPrepareAutoLayout(); });
        QTest::newRow("simple layout")
            << Change([](ShownList &l) { emit l.plan.eventSimpleAutoLayout(); });
        QTest::newRow("clear") << Change([](ShownList &l) { emit l.plan.eventClear(); });
        QTest::newRow("another row is the current one")
            << Change([](ShownList &l) { l.list.setCurrentItem(l.row("B")); });
        QTest::newRow("another window") << Change([](ShownList &l) {
            QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
            QCoreApplication::sendEvent(editor(l), &out);
        });
        QTest::newRow("deleted") << Change([](ShownList &l) {
            l.plan.deleteGuest(l.guest("A"), false);
            addGuest(l.plan, {"A"});
        });
    }

    void aRebuiltListDropsTheEdit()
    {
        ShownList shown({s("A"), s("B")});
        shown.list.sortByColumn(Row::DisplayName, Qt::AscendingOrder);
        QVERIFY(typeInto(shown, "A", Row::DisplayName, "Anna"));
        const QSignalSpy renamed(&shown.list, &KWListView::itemRenamed);
        QFETCH(std::function<void(ShownList &)>, change);
        change(shown);
        QTRY_VERIFY(!editor(shown));
        QCOMPARE(renamed.size(), 0);
        shown.plan.announceRefresh();
        QCOMPARE(shown.names(), s("A B"));
        // The list is as ready as before.
        QLineEdit *edit = typeInto(shown, "B", Row::DisplayName, "Bea");
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(shown.names(), s("A Bea"));
    }

    void theEditKeyOpensNoCellThatIsHidden()
    {
        ShownList shown({s("A")});
        shown.list.setCurrentItem(shown.row("A"), Row::Title);
        shown.list.setColumnShown(Row::Title, false);
        QTest::keyClick(&shown.list, Qt::Key_F2);
        QCOMPARE(openCell(shown), s("A Display name"));
    }

    void withNothingToEditTheEditKeyDoesNothing()
    {
        ShownList shown({s("A")});
        for (const int column :
             {Row::DisplayName, Row::Title, Row::FirstName, Row::LastName, Row::Meal})
            shown.list.setColumnShown(column, false);
        shown.list.setCurrentItem(shown.row("A"), Row::Notes);
        QTest::keyClick(&shown.list, Qt::Key_F2);
        QVERIFY(!editor(shown));
        shown.plan.clear();
        QTest::keyClick(&shown.list, Qt::Key_F2);
        QVERIFY(!editor(shown));
    }

    void aClickOnACellThatCannotBeEditedOpensNone()
    {
        ShownList shown({s("A")});
        shown.click("A", Row::Notes);
        shown.click("A", Row::Notes);
        QVERIFY(noEditorOpens(shown));
    }

    void anEditorThatWasAskedForDoesNotOpenWhenTheFocusHasLeft()
    {
        ShownList shown({s("A")});
        QLineEdit other(&shown.list);
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&shown.list));
        shown.click("A");
        shown.click("A");
        // As with a question, whose answer brings the focus back.
        other.setFocus();
        shown.list.setFocus();
        QVERIFY(noEditorOpens(shown));
    }

    void norWhileTheButtonIsHeldAgain()
    {
        ShownList shown({s("A")});
        shown.click("A");
        shown.click("A");
        shown.press(Qt::LeftButton, shown.middleOf("A", Row::DisplayName));
        QVERIFY(noEditorOpens(shown));
    }

    void norWhenAnotherCellIsTheCurrentOne()
    {
        ShownList shown({s("A"), s("B")});
        shown.click("A");
        shown.click("A");
        QTest::keyClick(&shown.list, Qt::Key_Down);
        QVERIFY(noEditorOpens(shown));
        shown.click("A");
        shown.click("A");
        shown.plan.deleteGuest(shown.guest("A"), false);
        QVERIFY(noEditorOpens(shown));
    }

    void keysOfTheEditMenuStayCommandsInTheEditor_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("isTheEditors");
        QTest::newRow("properties") << int(Qt::Key_E) << false;
        QTest::newRow("lock") << int(Qt::Key_K) << false;
        QTest::newRow("unassign") << int(Qt::Key_U) << false;
        QTest::newRow("undo of what was typed") << int(Qt::Key_Z) << true;
        QTest::newRow("copy") << int(Qt::Key_C) << true;
    }

    void keysOfTheEditMenuStayCommandsInTheEditor()
    {
        ShownList shown({s("A")});
        QLineEdit *edit = typeInto(shown, "A", Row::Meal, "fish");
        QVERIFY(edit);
        edit->selectAll();
        QFETCH(int, key);
        QKeyEvent override(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        override.ignore();
        QCoreApplication::sendEvent(edit, &override);
        QTEST(override.isAccepted(), "isTheEditors");
        QKeyEvent escape(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
        escape.ignore();
        QCoreApplication::sendEvent(edit, &escape);
        QVERIFY(escape.isAccepted());
    }

    void aClickBehindADoubleClickCountsThoughADialogTookItsRelease()
    {
        ShownList shown({s("A")});
        shown.click("A");
        const QPoint place = shown.middleOf("A", Row::DisplayName);
        QTest::mouseEvent(QTest::MouseDClick, shown.list.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(shown.window.edited, QStringList{s("guest A")});
        shown.click("A", Row::Locked);
        QVERIFY(shown.guest("A")->isLocked());
    }
};

Q_DECLARE_METATYPE(std::function<void(ShownList &)>)

REGISTER_TEST(TestKWRowEditor)
#include "tst_kwroweditor.moc"
