#include "gui/appearance/kwpixmaps.h"
#include "gui/dialogs/kwspinbox.h"
#include "support/gui/tabledialogtest.h"
#include "support/registeredtest.h"

// What the two openings of the dialog have in common and in what they differ.

namespace {

/// Notes whether the busy cursor is up while the dialog gets its first and its last text.
class CursorWatch : public QTranslator
{
public:
    CursorWatch() { QCoreApplication::installTranslator(this); }
    ~CursorWatch() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        if (QList<QByteArrayView>{"Table name", "giving a total of %1 seats for %2 guests"}
                .contains(text))
            m_busy.append(QApplication::overrideCursor() &&
                          QApplication::overrideCursor()->shape() == Qt::WaitCursor);
        return {};
    }
    QList<bool> busy() const { return m_busy; }

private:
    mutable QList<bool> m_busy;
};
} // namespace

class TestKWTableDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void eachWidgetHasItsTexts_data();
    void eachWidgetHasItsTexts();
    void theNumbersHaveTheirRangesAndDefaults_data();
    void theNumbersHaveTheirRangesAndDefaults();
    void theShapesStandInTheOrderOfTheirNumbers();
    void insertingHasTheCaptionIconAndFieldsOfItsShape_data();
    void insertingHasTheCaptionIconAndFieldsOfItsShape();
    void editingHasItsCaptionAndTheIconOfTheShape();
    void insertingProposesTheNextFreeName();
    void whatAnOpeningHasNoUseForIsHidden_data() { openingRows(); }
    void whatAnOpeningHasNoUseForIsHidden();
    void theFocusStartsInTheNameWhichTypingReplaces_data() { openingRows(); }
    void theFocusStartsInTheNameWhichTypingReplaces();
    void theDefaultButtonAddsOrAccepts_data() { openingRows(); }
    void theDefaultButtonAddsOrAccepts();
    void theBusyCursorIsUpWhileTheDialogIsMade();
    void theSeatsLetterLeadsToTheFirstNumber_data();
    void theSeatsLetterLeadsToTheFirstNumber();
    void theWheelPassesOverFieldsWithoutTheFocus();
    void onALowScreenTheNotesShrink();
    void theHelpButtonAndF1AskForTheTopicOfTheOpening_data() { openingRows(); }
    void theHelpButtonAndF1AskForTheTopicOfTheOpening();
    void aNewLanguageTranslatesTheOpeningInUse_data() { openingRows(); }
    void aNewLanguageTranslatesTheOpeningInUse();
    void aNewLanguageKeepsWhatWasEntered();

private:
    static void openingRows();
    std::unique_ptr<TableDialog> open(bool insert);

    std::unique_ptr<LoggingWindow> m_window;
    KWDocument *m_plan = nullptr;
};

void TestKWTableDlgImpl::init()
{
    m_window = std::make_unique<LoggingWindow>();
    m_plan = m_window->document();
}

void TestKWTableDlgImpl::openingRows()
{
    QTest::addColumn<bool>("insert");
    QTest::newRow("insert") << true;
    QTest::newRow("edit") << false;
}

/// A circular table either way.
std::unique_ptr<TableDialog> TestKWTableDlgImpl::open(bool insert)
{
    if (insert)
        return std::make_unique<TableDialog>(nullptr, m_plan, KWTable::Circular);
    KWTable *table = addTable(*m_plan, "Top", KWTable::Circular, 8);
    return std::make_unique<TableDialog>(nullptr, m_plan, table);
}

void TestKWTableDlgImpl::eachWidgetHasItsTexts_data()
{
    addFormRows({
        {"m_nameTextLabel", "&Name:", ""},
        {"m_nameLineEdit", "Table 1", "Table name"},
        {"m_notesTextLabel", "No&tes:", ""},
        {"m_notesTextEdit", "", "Notes about the table"},
        {"m_numTablesFrontLabel", "C&reate:", ""},
        {"m_numTablesSpinBox", "1", "The number of tables to create"},
        {"m_numTablesLabel", "giving a total of 8 seats for 0 guests", ""},
        {"m_shapeTextLabel", "&Shape:", ""},
        {"m_shapeComboBox", "", "Table shape"},
        {"m_seatsTextLabel", "S&eats:", ""},
        {"m_seatsAcrossSpinBox", "2", "Number of seats across/around"},
        {"m_seatsDownSpinBox", "2", "Number of seats down"},
        {"m_seatsAcrossSpinBox_2", "2", "Number of seats across"},
        {"m_seatsDownSpinBox_2", "2", "Number of seats down"},
        {"m_twiceTextLabel", "2 × (", ""},
        {"m_timesTextLabel", "+", ""},
        {"m_timesTextLabel_2", "+", ""},
        {"m_timesTextLabel_3", "+", ""},
        {"m_equalsTextLabel", ") =", ""},
        {"m_seatsTotalSpinBox", "8", "Total number of seats"},
        {"m_addPushButton", "&Add", "Add table(s) and close window", "Alt+A"},
        {"m_okPushButton", "&OK", "Accept changes and close window", "Alt+O"},
        {"m_cancelPushButton", "&Cancel", "Discard changes and close window", "Alt+C"},
        {"m_helpPushButton", "&Help", "Context sensitive help", "Alt+H"},
    });
}

void TestKWTableDlgImpl::eachWidgetHasItsTexts()
{
    compareFormRow(*open(true));
}

void TestKWTableDlgImpl::theNumbersHaveTheirRangesAndDefaults_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::addColumn<int>("start");
    QTest::newRow("tables") << s("m_numTablesSpinBox") << 1 << 999 << 1;
    QTest::newRow("across") << s("m_seatsAcrossSpinBox") << 0 << 25 << 2;
    QTest::newRow("down") << s("m_seatsDownSpinBox") << 0 << 25 << 2;
    QTest::newRow("across 2") << s("m_seatsAcrossSpinBox_2") << 0 << 25 << 2;
    QTest::newRow("down 2") << s("m_seatsDownSpinBox_2") << 0 << 25 << 2;
    QTest::newRow("total") << s("m_seatsTotalSpinBox") << 0 << 100 << 8;
}

void TestKWTableDlgImpl::theNumbersHaveTheirRangesAndDefaults()
{
    QFETCH(QString, name);
    QFETCH(int, least);
    QFETCH(int, most);
    QFETCH(int, start);
    const auto dialog = open(true);
    const auto *box = child<QSpinBox>(*dialog, name);
    QCOMPARE(box->minimum(), least);
    QCOMPARE(box->maximum(), most);
    QCOMPARE(box->value(), start);
}

void TestKWTableDlgImpl::theShapesStandInTheOrderOfTheirNumbers()
{
    QCOMPARE(GuestForm::entries(open(true)->shape),
             (QStringList{s("circular"), s("rectangular"), s("Head (seats at top)"),
                          s("Head (seats at right)"), s("Head (seats at bottom)"),
                          s("Head (seats at left)"), s("Custom")}));
}

void TestKWTableDlgImpl::insertingHasTheCaptionIconAndFieldsOfItsShape_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("seats");
    QTest::newRow("circular") << s("Insert circular table") << s("8");
    QTest::newRow("rectangular") << s("Insert rectangular table") << s("2 × (2 + 2) = [8]");
    for (const char *side : {"top", "right", "bottom", "left"})
        QTest::addRow("head, %s", side) << s("Insert head table") << s("8");
    QTest::newRow("custom") << s("Insert custom table") << s("2 + 2 + 2 + 2 = [8]");
}

void TestKWTableDlgImpl::insertingHasTheCaptionIconAndFieldsOfItsShape()
{
    QFETCH(QString, caption);
    QFETCH(QString, seats);
    const QStringList rows{s("circular"),     s("rectangular"), s("head, top"), s("head, right"),
                           s("head, bottom"), s("head, left"),  s("custom")};
    const int shape = static_cast<int>(rows.indexOf(s(QTest::currentDataTag())));
    const TableDialog dialog(nullptr, m_plan, shape);
    QCOMPARE(dialog.objectName(), s("table dlg"));
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.windowTitle(), caption);
    QCOMPARE(dialog.shape->currentIndex(), shape);
    QCOMPARE(dialog.seats(), seats);
    const KWPixmaps &pixmaps = KWPixmaps::instance();
    QCOMPARE(dialog.windowIcon().pixmap(16).toImage(), pixmaps.table(shape).toImage());
    QCOMPARE(dialog.windowIcon().pixmap(32).toImage(), pixmaps.tableLarge(shape).toImage());
}

void TestKWTableDlgImpl::editingHasItsCaptionAndTheIconOfTheShape()
{
    KWTable *table = addTable(*m_plan, "Top", KWTable::HeadLeft, 4);
    TableDialog dialog(nullptr, m_plan, table);
    QCOMPARE(dialog.objectName(), s("table dlg"));
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.windowTitle(), s("Table properties"));
    const auto icon = [&dialog] { return dialog.windowIcon().pixmap(16).toImage(); };
    QCOMPARE(icon(), KWPixmaps::instance().table(KWTable::HeadLeft).toImage());
    GuestForm::pick(dialog.shape, "Custom");
    QCOMPARE(dialog.windowTitle(), s("Table properties"));
    QCOMPARE(icon(), KWPixmaps::instance().table(KWTable::Custom).toImage());
}

void TestKWTableDlgImpl::insertingProposesTheNextFreeName()
{
    addTable(*m_plan, "table 1", KWTable::Circular, 8);
    addTable(*m_plan, "Table 3", KWTable::Circular, 8);
    QCOMPARE(open(true)->name->text(), s("Table 2"));
    QCOMPARE(open(true)->notes->toPlainText(), QString());
}

void TestKWTableDlgImpl::whatAnOpeningHasNoUseForIsHidden()
{
    QFETCH(bool, insert);
    const auto dialog = open(insert);
    QVERIFY(showActive(*dialog));
    QStringList hidden;
    for (const char *name :
         {"m_addPushButton", "m_okPushButton", "m_cancelPushButton", "m_helpPushButton",
          "m_numTablesFrontLabel", "m_numTablesSpinBox", "m_numTablesLabel"}) {
        if (!child<QWidget>(*dialog, name)->isVisible())
            hidden.append(s(name));
    }
    QCOMPARE(hidden.join(u' '), insert
                                    ? s("m_okPushButton")
                                    : s("m_addPushButton m_numTablesFrontLabel m_numTablesSpinBox "
                                        "m_numTablesLabel"));
    // Nor is room left for them.
    const int lineBelow = dialog->notes->y() - dialog->total->geometry().bottom();
    QVERIFY(insert == (lineBelow > dialog->total->height()));
}

void TestKWTableDlgImpl::theFocusStartsInTheNameWhichTypingReplaces()
{
    QFETCH(bool, insert);
    const auto dialog = open(insert);
    QVERIFY(showActive(*dialog));
    QVERIFY(dialog->name->hasFocus());
    QTest::keyClicks(dialog->name, s("Family"));
    QCOMPARE(dialog->name->text(), s("Family"));
}

void TestKWTableDlgImpl::theDefaultButtonAddsOrAccepts()
{
    QFETCH(bool, insert);
    const auto dialog = open(insert);
    QVERIFY(
        child<QPushButton>(*dialog, insert ? "m_addPushButton" : "m_okPushButton")->isDefault());
}

void TestKWTableDlgImpl::theBusyCursorIsUpWhileTheDialogIsMade()
{
    for (const bool insert : {true, false}) {
        const CursorWatch watch;
        const auto dialog = open(insert);
        QVERIFY(watch.busy().size() > 1);
        QVERIFY(!watch.busy().contains(false));
        QVERIFY(!QApplication::overrideCursor());
    }
}

void TestKWTableDlgImpl::theSeatsLetterLeadsToTheFirstNumber_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QString>("field");
    QTest::newRow("circular") << int(KWTable::Circular) << s("m_seatsTotalSpinBox");
    QTest::newRow("rectangular") << int(KWTable::Rectangular) << s("m_seatsAcrossSpinBox");
    QTest::newRow("head") << int(KWTable::HeadTop) << s("m_seatsTotalSpinBox");
    QTest::newRow("custom") << int(KWTable::Custom) << s("m_seatsAcrossSpinBox");
}

void TestKWTableDlgImpl::theSeatsLetterLeadsToTheFirstNumber()
{
    QFETCH(int, shape);
    QFETCH(QString, field);
    TableDialog dialog(nullptr, m_plan, shape);
    QVERIFY(showActive(dialog));
    QTest::keyClick(&dialog, Qt::Key_E, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), field);
}

void TestKWTableDlgImpl::theWheelPassesOverFieldsWithoutTheFocus()
{
    TableDialog dialog(nullptr, m_plan, KWTable::Custom);
    QVERIFY(showActive(dialog));
    for (QWidget *field :
         std::initializer_list<QWidget *>{dialog.shape, dialog.tables, dialog.across, dialog.down,
                                          dialog.across2, dialog.down2, dialog.total}) {
        const QPointF place(field->rect().center());
        QWheelEvent wheel(place, field->mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(field, &wheel);
        QVERIFY2(!wheel.isAccepted(), qPrintable(field->objectName()));
    }
    QCOMPARE(dialog.seats(), s("2 + 2 + 2 + 2 = [8]"));
    QCOMPARE(dialog.tables->value(), 1);
}

void TestKWTableDlgImpl::onALowScreenTheNotesShrink()
{
    const auto dialog = open(true);
    QVERIFY(showActive(*dialog));
    const int notes = dialog->notes->height();
    dialog->resize(dialog->width(), dialog->height() - 100);
    QTRY_COMPARE(dialog->notes->height(), notes - 100);
    QVERIFY(dialog->minimumSizeHint().height() < 300);
}

void TestKWTableDlgImpl::theHelpButtonAndF1AskForTheTopicOfTheOpening()
{
    QFETCH(bool, insert);
    const QString topic = insert ? s("Insert_table_window.htm") : s("Table_properties_window.htm");
    const auto dialog = open(insert);
    QVERIFY(showActive(*dialog));
    QCOMPARE(topicAskedFor([&] { dialog->click("m_helpPushButton"); }), topic);
    QCOMPARE(topicAskedFor([&] { QTest::keyClick(dialog.get(), Qt::Key_F1); }), topic);
}

void TestKWTableDlgImpl::aNewLanguageTranslatesTheOpeningInUse()
{
    QFETCH(bool, insert);
    const auto dialog = open(insert);
    const auto *button = child<QPushButton>(*dialog, insert ? "m_addPushButton" : "m_okPushButton");
    const BracketTranslator translator;
    QTRY_COMPARE(dialog->windowTitle(),
                 insert ? s("[Insert circular table]") : s("[Table properties]"));
    QCOMPARE(button->text(), insert ? s("[&Add]") : s("[&OK]"));
    QCOMPARE(button->shortcut(), QKeySequence(Qt::ALT | (insert ? Qt::Key_A : Qt::Key_O)));
    QTRY_VERIFY(button->whatsThis().startsWith(u'['));
    QCOMPARE(dialog->shape->currentText(), s("[circular]"));
    QCOMPARE(dialog->across->accessibleName(), s("[Seats at the top, and as many at the bottom]"));
    if (insert)
        QCOMPARE(dialog->line->text(), s("[giving a total of 8 seats for 0 guests]"));
}

void TestKWTableDlgImpl::aNewLanguageKeepsWhatWasEntered()
{
    TableDialog dialog(nullptr, m_plan, KWTable::Custom);
    QVERIFY(showActive(dialog));
    QTest::keyClicks(dialog.name, s("Family"));
    TableDialog::type(dialog.down2, 7);
    TableDialog::type(dialog.tables, 3);
    const BracketTranslator translator;
    QTRY_COMPARE(dialog.windowTitle(), s("[Insert custom table]"));
    QCOMPARE(dialog.name->text(), s("Family"));
    QCOMPARE(dialog.seats(), s("2 + 2 + 2 + 7 = [13]"));
    QCOMPARE(dialog.line->text(), s("[giving a total of 39 seats for 0 guests]"));
}

REGISTER_TEST(TestKWTableDlgImpl)
#include "tst_kwtabledlgimpl.moc"
