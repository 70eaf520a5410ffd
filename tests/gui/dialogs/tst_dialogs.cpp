#include "gui/dialogs/kwaboutdlgimpl.h"
#include "gui/dialogs/kwautolayoutprogressdlgimpl.h"
#include "gui/dialogs/kwcoloursandfontsdlgimpl.h"
#include "gui/dialogs/kwcreditsdlg.h"
#include "gui/dialogs/kwdimensionsdlgimpl.h"
#include "gui/dialogs/kwgettingstarteddlgimpl.h"
#include "gui/dialogs/kwguestdlgimpl.h"
#include "gui/dialogs/kwinfodlgimpl.h"
#include "gui/dialogs/kwpreferencesdlgimpl.h"
#include "gui/dialogs/kwrecentlyopeneddlgimpl.h"
#include "gui/dialogs/kwtabledlgimpl.h"
#include "gui/framework/kwconfigurablewarningdlgimpl.h"
#include "gui/framework/kwgetstringdlgimpl.h"
#include "support/gui/dialogchecks.h"
#include "support/gui/dialogtest.h"
#include "support/gui/fakemainwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

using namespace DialogChecks;

// Every dialog of the program is in this table, and has to pass all the checks.

namespace {

using Dialog = std::unique_ptr<QDialog>;

struct DialogRow
{
    const char *name;
    std::function<Dialog(FakeMainWindow &)> make;
    /// Mnemonics that clash in the captions as they were laid down.
    QStringList givenClashes = {};
};

Dialog information(FakeMainWindow &window)
{
    KWDocument &plan = *window.document();
    plan.setEvent(s("Wedding of Ann and Bob"));
    plan.setVenue(s("The Old Mill"));
    plan.setDate(QDate(2025, 6, 21));
    plan.setFixedCost(2500);
    plan.setAdultCost(85);
    plan.setChildCost(999999999);
    addGuest(plan, {.name = "Ann"})->setAccepted(true);
    addGuest(plan, {.name = "Bob"});
    addGuest(plan, {.name = "Cleo", .age = KWGuest::Child})->setAccepted(true);
    addGuest(plan, {.name = "Dan", .age = KWGuest::Child});
    plan.setNotes(s("Vegetarian meals for the third table."));
    return std::make_unique<KWInfoDlgImpl>(nullptr, &plan, [] { return QDate(2025, 5, 20); });
}

Dialog recentlyOpened(FakeMainWindow &window)
{
    QStringList paths;
    for (const char *name : {"wedding.kw", "Summer banquet 2025.kw", "golden anniversary.kw"}) {
        paths.append(testHome().path(s("Plans and lists/") + s(name)));
        QDir().mkpath(QFileInfo(paths.last()).path());
        QFile file(paths.last());
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no plan");
    }
    return std::make_unique<KWRecentlyOpenedDlgImpl>(nullptr, paths, QString(),
                                                     window.userSettings());
}

KWGuest *bride(KWDocument &plan)
{
    const KWContact contact(s("The Old Mill"), s("12 Mill Lane"), s("Ambleside"), s("Cumbria"),
                            s("LA22 9DE"), s("England"), s("015394 32000"), s("015394 33000"),
                            s("07700 900123"), s("ann@example.com, bob@example.com"));
    KWGroup *group = plan.addGroup(contact, s("Smith"), s("Arrive on Friday evening."));
    return plan.addGuest({.display_name = s("Dr Ann Smith"),
                          .title = s("Dr"),
                          .first_name = s("Ann"),
                          .last_name = s("Smith"),
                          .meal = s("Vegetarian"),
                          .gender = KWGuest::Female,
                          .locked = true,
                          .notes = s("Allergic to nuts."),
                          .vip = true,
                          .accepted = true},
                         group);
}

Dialog insertGuest(FakeMainWindow &window)
{
    return std::make_unique<KWGuestDlgImpl>(nullptr, window.document());
}

Dialog editGuest(FakeMainWindow &window)
{
    KWDocument &plan = *window.document();
    KWGuest *guest = bride(plan);
    plan.assignGuest(guest, addTable(plan, "Top table", KWTable::Circular, 8), 2, false);
    return std::make_unique<KWGuestDlgImpl>(nullptr, &plan, guest);
}

Dialog editGroup(FakeMainWindow &window)
{
    KWDocument &plan = *window.document();
    return std::make_unique<KWGuestDlgImpl>(nullptr, &plan, bride(plan)->group());
}

Dialog insertTables(FakeMainWindow &window)
{
    KWDocument &plan = *window.document();
    bride(plan);
    auto dialog = std::make_unique<KWTableDlgImpl>(nullptr, &plan, KWTable::Circular);
    child<QSpinBox>(*dialog, "m_numTablesSpinBox")->setValue(12);
    return dialog;
}

Dialog afterAnotherShape(FakeMainWindow &window, KWTable::Shape from, KWTable::Shape to)
{
    auto dialog = std::make_unique<KWTableDlgImpl>(nullptr, window.document(), from);
    for (const char *side : {"m_seatsAcrossSpinBox", "m_seatsDownSpinBox", "m_seatsAcrossSpinBox_2",
                             "m_seatsDownSpinBox_2"})
        child<QSpinBox>(*dialog, side)->setValue(25);
    dialog->shapeSelected(to);
    return dialog;
}

Dialog editCustomTable(FakeMainWindow &window)
{
    KWDocument &plan = *window.document();
    KWTable *table = plan.addTable(KWTable::Custom, s("Table by the window"), 12, 25, 10, 0, {},
                                   s("Near the band."));
    return std::make_unique<KWTableDlgImpl>(nullptr, &plan, table);
}

Dialog coloursAndFonts(FakeMainWindow &window, KWColoursAndFontsDlgImpl::Mode mode)
{
    auto dialog = std::make_unique<KWColoursAndFontsDlgImpl>(nullptr, window.document(), mode);
    child<QListWidget>(*dialog, "m_themeListBox")->setCurrentRow(2);
    return dialog;
}

Dialog dimensions(FakeMainWindow &window)
{
    KWDocument &plan = *window.document();
    plan.setUnits(KWPlanFields::Feet);
    plan.setRoomXSize(999);
    plan.setRoomYSize(12.3);
    return std::make_unique<KWDimensionsDlgImpl>(nullptr, &plan);
}

const QList<DialogRow> &dialogs()
{
    static const QList<DialogRow> all{
        {"preferences",
         [](FakeMainWindow &window) {
             return std::make_unique<KWPreferencesDlgImpl>(nullptr, window.userSettings());
         },
         {s("Alt+A: m_backupAutoCheckBox, qt_tabwidget_tabbar")}},
        {"information", information, {s("Alt+C: m_cancelPushButton, m_costPerChildLabel")}},
        {"recently opened", recentlyOpened},
        {"auto layout",
         [](FakeMainWindow &window) {
             return std::make_unique<KWAutoLayoutProgressDlgImpl>(nullptr, window.document());
         }},
        {"getting started",
         [](FakeMainWindow &window) {
             return std::make_unique<KWGettingStartedDlgImpl>(nullptr, window.userSettings());
         }},
        {"about", [](FakeMainWindow &) { return std::make_unique<KWAboutDlgImpl>(nullptr); }},
        {"credits", [](FakeMainWindow &) { return std::make_unique<KWCreditsDlg>(nullptr); }},
        {"warning",
         [](FakeMainWindow &) {
             return std::make_unique<KWConfigurableWarningDlgImpl>(
                 nullptr, s("Delete the guest \"Ann\" and everything that is known of her?"));
         }},
        {"string",
         [](FakeMainWindow &) {
             return std::make_unique<KWGetStringDlgImpl>(nullptr, s("Save theme"), s("&Name:"),
                                                         s("Summer"), false, s("Tutorial.htm"));
         }},
        {"insert guest",
         insertGuest,
         {s("Alt+N: m_notesLabel, qt_tabwidget_tabbar"),
          s("Alt+N: m_groupNotesLabel, qt_tabwidget_tabbar")}},
        {"edit guest",
         editGuest,
         {s("Alt+N: m_notesLabel, qt_tabwidget_tabbar"),
          s("Alt+N: m_groupNotesLabel, qt_tabwidget_tabbar")}},
        {"edit group", editGroup, {s("Alt+N: m_groupNotesLabel, qt_tabwidget_tabbar")}},
        {"insert circular tables", insertTables},
        {"rectangular table made circular",
         [](FakeMainWindow &window) {
             return afterAnotherShape(window, KWTable::Rectangular, KWTable::Circular);
         }},
        {"custom table made a head table",
         [](FakeMainWindow &window) {
             return afterAnotherShape(window, KWTable::Custom, KWTable::HeadTop);
         }},
        {"circular table made rectangular",
         [](FakeMainWindow &window) {
             return afterAnotherShape(window, KWTable::Circular, KWTable::Rectangular);
         }},
        {"edit custom table", editCustomTable},
        {"colours of the floor plan",
         [](FakeMainWindow &window) {
             return coloursAndFonts(window, KWColoursAndFontsDlgImpl::FloorPlan);
         }},
        {"colours of the table chart",
         [](FakeMainWindow &window) {
             return coloursAndFonts(window, KWColoursAndFontsDlgImpl::TableChart);
         }},
        {"colours of the guest chart",
         [](FakeMainWindow &window) {
             return coloursAndFonts(window, KWColoursAndFontsDlgImpl::GuestChart);
         }},
        {"dimensions", dimensions},
    };
    return all;
}

/// One of the dialogs, as the fetched row tells, on the screen.
class ShownDialog
{
public:
    ShownDialog(int index, bool largeFont)
    {
        QFont font = m_font;
        if (largeFont)
            font.setPointSizeF(font.pointSizeF() * 1.5);
        QApplication::setFont(font);
        m_dialog = dialogs().at(index).make(m_window);
        m_active = showActive(*m_dialog);
    }

    ~ShownDialog()
    {
        m_dialog.reset();
        QApplication::setFont(m_font);
    }

    QDialog *operator->() const { return m_dialog.get(); }
    bool isActive() const { return m_active; }
    QString faults(const Check &check) const
    {
        return onEachPage(m_dialog.get(), check).join(u'\n');
    }

private:
    const QFont m_font = QApplication::font();
    FakeMainWindow m_window;
    Dialog m_dialog;
    bool m_active = false;
};

void addDialogRows()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("largeFont");
    for (int i = 0; i < dialogs().size(); ++i) {
        QTest::newRow(dialogs().at(i).name) << i << false;
        QTest::addRow("%s, large font", dialogs().at(i).name) << i << true;
    }
}
} // namespace

#define SHOW_FETCHED_DIALOG(dialog)                                                                \
    QFETCH(int, index);                                                                            \
    QFETCH(bool, largeFont);                                                                       \
    const ShownDialog dialog(index, largeFont);                                                    \
    QVERIFY(dialog.isActive())

class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void fieldsHaveNamesAndMnemonicsLeadThere_data() { addDialogRows(); }

    void fieldsHaveNamesAndMnemonicsLeadThere()
    {
        SHOW_FETCHED_DIALOG(dialog);
        QCOMPARE(dialog.faults(unnamedFields), QString());
    }

    void theTabKeyGoesDownAndToTheRight_data() { addDialogRows(); }

    void theTabKeyGoesDownAndToTheRight()
    {
        SHOW_FETCHED_DIALOG(dialog);
        QCOMPARE(dialog.faults(backwardTabs), QString());
    }

    void mnemonicsDoNotClash_data() { addDialogRows(); }

    void mnemonicsDoNotClash()
    {
        SHOW_FETCHED_DIALOG(dialog);
        QCOMPARE(dialog.faults(mnemonicClashes), dialogs().at(index).givenClashes.join(u'\n'));
    }

    void textsFit_data() { addDialogRows(); }

    void textsFit()
    {
        SHOW_FETCHED_DIALOG(dialog);
        QCOMPARE(dialog.faults(cutTexts), QString());
    }

    void nothingSticksOut_data() { addDialogRows(); }

    void nothingSticksOut()
    {
        SHOW_FETCHED_DIALOG(dialog);
        QCOMPARE(dialog.faults(strayWidgets), QString());
    }

    void columnsAreInLine_data() { addDialogRows(); }

    void columnsAreInLine()
    {
        SHOW_FETCHED_DIALOG(dialog);
        QCOMPARE(dialog.faults(raggedColumns), QString());
    }

    void eachTipIsAlsoWhatsThisAndTheStyleHelperIsThere_data() { addDialogRows(); }

    void eachTipIsAlsoWhatsThisAndTheStyleHelperIsThere()
    {
        SHOW_FETCHED_DIALOG(dialog);
        for (const QWidget *widget : dialog->findChildren<QWidget *>()) {
            if (!widget->toolTip().isEmpty())
                QCOMPARE(widget->whatsThis(), widget->toolTip());
        }
        QVERIFY(dialog->findChild<QObject *>(s("KWStyleHelper"), Qt::FindDirectChildrenOnly));
    }

    void readersHearNoMarkUp_data() { addDialogRows(); }

    void readersHearNoMarkUp()
    {
        SHOW_FETCHED_DIALOG(dialog);
        for (QWidget *widget : dialog->findChildren<QWidget *>()) {
            const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!reader->text(QAccessible::Description).contains(u'<') ||
                         !Qt::mightBeRichText(reader->text(QAccessible::Description)),
                     qPrintable(widget->objectName()));
        }
    }

    void labelsLeadToWhatTakesTheFocus_data() { addDialogRows(); }

    void labelsLeadToWhatTakesTheFocus()
    {
        SHOW_FETCHED_DIALOG(dialog);
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            const QWidget *buddy = label->buddy();
            QVERIFY2(!buddy || (buddy->focusPolicy() != Qt::NoFocus && !buddy->focusProxy()),
                     qPrintable(label->objectName()));
        }
    }

    void pastedLineBreaksBecomeBlanksInEveryField_data() { addDialogRows(); }

    void pastedLineBreaksBecomeBlanksInEveryField()
    {
        SHOW_FETCHED_DIALOG(dialog);
        QApplication::clipboard()->setText(s("Anna\nMaria\tEva\r\n"));
        for (QLineEdit *field : dialog->findChildren<QLineEdit *>()) {
            if (field->isReadOnly())
                continue;
            field->paste();
            for (const QChar letter : field->text())
                QVERIFY2(letter.isPrint(), qPrintable(field->objectName()));
        }
    }

    void boxesChangeAtOnceByTheirLetter_data() { addDialogRows(); }

    void boxesChangeAtOnceByTheirLetter()
    {
        SHOW_FETCHED_DIALOG(dialog);
        const QString clashes = dialogs().at(index).givenClashes.join(u' ');
        for (const QCheckBox *box : dialog->findChildren<QCheckBox *>()) {
            const QKeySequence keys = box->shortcut();
            if (!box->isVisible() || keys.isEmpty() || clashes.contains(box->objectName()))
                continue;
            const bool before = box->isChecked();
            QTest::keySequence(dialog.operator->(), keys);
            QVERIFY2(box->isChecked() != before, qPrintable(box->objectName()));
        }
    }

    void theDialogFitsOnASmallScreen_data() { addDialogRows(); }

    void theDialogFitsOnASmallScreen()
    {
        SHOW_FETCHED_DIALOG(dialog);
        const QSize size = dialog->size().expandedTo(dialog->sizeHint());
        QVERIFY(size.width() <= (largeFont ? 1500 : 1000));
        QVERIFY(size.height() <= (largeFont ? 1140 : 760));
    }

    /// Pictures to look at, where AMBRELUNE_ARTEFACTS names a directory for them.
    void aPictureOfEachDialogCanBeKept_data() { addDialogRows(); }

    void aPictureOfEachDialogCanBeKept()
    {
        SHOW_FETCHED_DIALOG(dialog);
        // Not as small as the screen of the tests may have made it.
        dialog->resize(dialog->size().expandedTo(dialog->sizeHint()));
        const QString directory = qEnvironmentVariable("AMBRELUNE_ARTEFACTS");
        int page = 0;
        const QString faults = dialog.faults([&](QWidget *window) {
            const QPixmap picture = window->grab();
            const QString name =
                s("%1/dialog-%2-%3%4%5.png")
                    .arg(directory, s(dialogs().at(index).name).replace(u' ', u'-'),
                         QString::number(++page), s(largeFont ? "-large" : ""),
                         s(window->devicePixelRatioF() > 1 ? "@2x" : ""));
            const bool kept = directory.isEmpty() || picture.save(name);
            return kept && !picture.isNull() ? QStringList() : QStringList{name};
        });
        QCOMPARE(faults, QString());
    }
};

REGISTER_TEST(TestDialogs)
#include "tst_dialogs.moc"
