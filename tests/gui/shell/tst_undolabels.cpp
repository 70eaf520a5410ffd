#include "gui/dialogs/kwcoloursandfontsdlgimpl.h"
#include "gui/dialogs/kwdimensionsdlgimpl.h"
#include "gui/dialogs/kwguestdlgimpl.h"
#include "gui/dialogs/kwinfodlgimpl.h"
#include "gui/dialogs/kwtabledlgimpl.h"
#include "gui/exchange/kwdrag.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/framework/kwcolourbutton.h"
#include "gui/panes/kwguestlistviewitem.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwtoptab.h"
#include "support/gui/dialogtest.h"
#include "support/gui/guestform.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

// Every change that can be undone: its words, and that undo and redo bring back every byte.

namespace {

/// The window with Ann and Bob at a table for six, a wish, and Cleo and Dan standing. Cleo is
/// locked, VIP and has accepted.
struct FullWindow : OpenWindow
{
    FullWindow()
    {
        window.userSettings()->setWarning(s("warning/delete_guest"), false);
        window.userSettings()->setWarning(s("warning/delete_table"), false);
        window.userSettings()->setWarning(s("warning/autolayout_unassign"), false);
        KWGroup *group = plan().addGroup({}, s("Friends"), {});
        for (const char *name : {"Ann", "Bob", "Cleo"})
            addGuest(plan(), {.name = name, .gender = KWGuest::Female}, group);
        KWTable *table = addTable(plan(), "T", KWTable::Circular, 6);
        plan().moveTable(table, 600, 500);
        plan().assignGuest(plan().guestAt(0), table, 0, true);
        plan().assignGuest(plan().guestAt(1), table, 2, true);
        plan().setAffinity(plan().guestAt(0), plan().guestAt(1), KWScore::Likes, true);
        KWGuest *last = plan().guestAt(2);
        plan().setGuestLocked(last, true);
        plan().setGuestAccepted(last, true);
        plan().setGuestVip(last, true);
        addGuest(plan(), {.name = "Dan", .gender = KWGuest::Male}, group);
        plan().announceRefresh();
        plan().announceModified();
    }

    KWGuestsListView &list() { return *window.panes()->leftTab()->guestsView(); }
    KWCanvasView &view() { return *window.panes()->floorPlan(); }
    KWFloorPlanViewFilterImpl &panel() { return *window.panes()->topTab()->floorPlanFilter(); }
    QByteArray text() { return plan().toPlanText({}); }

    /// Selects guests in the list, which becomes active.
    void selectGuests(const QList<int> &guests)
    {
        list().clearSelection();
        for (const int index : guests)
            list().itemOfGuest(plan().guestAt(index))->setSelected(true);
        list().setThisViewActive();
    }
    void selectTable() { view().showTable(plan().tableAt(0)); }

    void runOn(const QList<int> &guests, const char *action)
    {
        selectGuests(guests);
        run(action);
    }

    void clickCell(int guest, int column)
    {
        QTreeWidgetItem *row = list().itemOfGuest(plan().guestAt(guest));
        list().scrollToItem(row);
        emit list().itemClicked(row, column);
    }

    /// Drops Dan on a free seat.
    void drop()
    {
        const std::unique_ptr<KWDrag> drag(
            new KWDrag(&plan(), {plan().guestAt(3)}, view().viewport()));
        const QPoint place =
            view().mapFromScene(view().canvas()->itemOfSeat(plan().tableAt(0), 4)->pos());
        QDragEnterEvent enter(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(view().viewport(), &enter);
        QDropEvent event(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(view().viewport(), &event);
    }

    /// What a person does in the dialog that `open` brings up.
    template <typename Dialog>
    void inDialog(const std::function<void()> &open, const std::function<void(Dialog &)> &act)
    {
        ModalUser user;
        user.onDialog<Dialog>(act);
        open();
        QCOMPARE(user.waiting(), 0);
    }
};

using Change = std::function<void(FullWindow &)>;
} // namespace

Q_DECLARE_METATYPE(Change)

class TestUndoLabels : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void undoAndRedoBringBackEveryByte_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char *label, const Change &change) {
            QTest::newRow(label) << change;
        };
        row("Delete", [](FullWindow &open) { open.runOn({0, 1}, "m_editDeleteAction"); });
        row("Delete (table)", [](FullWindow &open) {
            open.selectTable();
            open.run("m_editDeleteAction");
        });
        row("Rotate", [](FullWindow &open) {
            open.selectTable();
            open.run("m_editRotateTableAction");
        });
        row("Unassign", [](FullWindow &open) { open.runOn({0, 1}, "m_editUnassignSeatAction"); });
        row("Lock", [](FullWindow &open) { open.runOn({0, 1, 2}, "m_editLockAction"); });
        row("Lock (cell)",
            [](FullWindow &open) { open.clickCell(0, KWGuestListViewItem::Locked); });
        row("Unlock", [](FullWindow &open) { open.runOn({2}, "m_editLockAction"); });
        row("Set accepted", [](FullWindow &open) {
            open.runOn({0, 1, 2}, "m_editAcceptedAction");
        });
        row("Set not accepted", [](FullWindow &open) { open.runOn({2}, "m_editAcceptedAction"); });
        row("VIP", [](FullWindow &open) { open.clickCell(0, KWGuestListViewItem::Vip); });
        row("not VIP", [](FullWindow &open) { open.clickCell(2, KWGuestListViewItem::Vip); });
        for (const char *value : {"Loves", "Likes", "Neutral", "Dislikes", "Hates"}) {
            const QByteArray action = "m_editSetAffinity" + QByteArray(value) + "Action";
            row(QByteArray("Proximity (" + QByteArray(value) + ')').constData(),
                [action](FullWindow &open) {
                    open.runOn({0, 1, 2}, action.constData());
                });
        }
        row("Auto layout", [](FullWindow &open) { open.run("m_fileAutoLayoutAction"); });
        row("Drag guest(s)", [](FullWindow &open) { open.drop(); });
        addDialogRows();
    }

    void undoAndRedoBringBackEveryByte()
    {
        QFETCH(Change, change);
        FullWindow open;
        const QByteArray before = open.text();
        change(open);
        const QByteArray after = open.text();
        QVERIFY(after != before);
        const QString label = QString::fromLatin1(QTest::currentDataTag()).section(s(" ("), 0, 0);
        const QString words = label == u"Drag guest" || label == u"New table"
                                  ? QString::fromLatin1(QTest::currentDataTag())
                                  : label;
        QCOMPARE(open.action("m_editUndoAction")->text(), s("&Undo ") + words);
        for (int i = 0; i < 2; ++i) {
            open.run("m_editUndoAction");
            QCOMPARE(open.text(), before);
            QCOMPARE(open.action("m_editRedoAction")->text(), s("&Redo ") + words);
            open.run("m_editRedoAction");
            QCOMPARE(open.text(), after);
        }
    }

private:
    static void addDialogRows()
    {
        const auto row = [](const char *label, const Change &change) {
            QTest::newRow(label) << change;
        };
        row("Edit guest", [](FullWindow &open) {
            open.inDialog<KWGuestDlgImpl>([&] { open.window.editGuest(open.plan().guestAt(0)); },
                                          [](KWGuestDlgImpl &dialog) {
                                              GuestForm::type(GuestForm(dialog).first, "Anna");
                                              dialog.accept();
                                          });
        });
        row("Insert guest", [](FullWindow &open) {
            open.inDialog<KWGuestDlgImpl>([&] { open.run("m_insertNewGuestAction"); },
                                          [](KWGuestDlgImpl &dialog) {
                                              GuestForm::type(GuestForm(dialog).first, "Eve");
                                              dialog.accept();
                                          });
        });
        row("Edit group", [](FullWindow &open) {
            open.inDialog<KWGuestDlgImpl>(
                [&] { open.window.editGroup(open.plan().groupAt(open.plan().groupCount() - 1)); },
                [](KWGuestDlgImpl &dialog) {
                    auto *name = dialog.findChild<QLineEdit *>(s("m_groupNameEdit"));
                    QVERIFY(name);
                    name->setText(s("Best friends"));
                    dialog.accept();
                });
        });
        row("New table(s)", [](FullWindow &open) {
            open.inDialog<KWTableDlgImpl>([&] { open.run("m_insertNewRectTableAction"); },
                                          [](KWTableDlgImpl &dialog) { dialog.accept(); });
        });
        row("Edit table", [](FullWindow &open) {
            open.inDialog<KWTableDlgImpl>([&] { open.window.editTable(open.plan().tableAt(0)); },
                                          [](KWTableDlgImpl &dialog) {
                                              QTest::keyClicks(dialog.focusWidget(), s("Top"));
                                              dialog.accept();
                                          });
        });
        row("Edit Information", [](FullWindow &open) {
            open.inDialog<KWInfoDlgImpl>(
                [&] { open.run("m_fileInfo"); },
                [](KWInfoDlgImpl &dialog) {
                    dialog.findChild<QLineEdit *>(s("m_eventLineEdit"))->setText(s("June"));
                    dialog.accept();
                });
        });
        row("Change dimensions", [](FullWindow &open) {
            open.inDialog<KWDimensionsDlgImpl>(
                [&] { child<QAbstractButton>(open.panel(), "m_dimensionsButton")->click(); },
                [](KWDimensionsDlgImpl &dialog) {
                    child<QLineEdit>(dialog, "m_xEdit")->setText(s("30"));
                    dialog.accept();
                });
        });
        row("Change colours and fonts", [](FullWindow &open) {
            open.prompts.answerColour(QColor(1, 2, 3));
            open.inDialog<KWColoursAndFontsDlgImpl>(
                [&] { child<QAbstractButton>(open.panel(), "m_coloursButton")->click(); },
                [](KWColoursAndFontsDlgImpl &dialog) {
                    child<KWColourButton>(dialog, "m_insideColourButton")
                        ->findChild<QAbstractButton *>()
                        ->click();
                    child<QPushButton>(dialog, "m_okButton")->click();
                });
        });
    }
};

REGISTER_TEST(TestUndoLabels)
#include "tst_undolabels.moc"
