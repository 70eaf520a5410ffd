#include "gui/dialogs/kwdimensionsdlgimpl.h"
#include "support/gui/dialogtest.h"
#include "support/gui/guestform.h"
#include "support/gui/loggingwindow.h"
#include "support/registeredtest.h"

namespace {

/// The dialog with the parts that tests work with.
struct DimensionsDialog : KWDimensionsDlgImpl
{
    explicit DimensionsDialog(KWDocument &plan)
        : KWDimensionsDlgImpl(nullptr, &plan)
    {
    }

    KWPickComboBox *units = child<KWPickComboBox>(*this, "m_unitsCombo");
    QLineEdit *x = child<QLineEdit>(*this, "m_xEdit");
    QLineEdit *y = child<QLineEdit>(*this, "m_yEdit");
    QLineEdit *seat = child<QLineEdit>(*this, "m_seatWidthEdit");

    /// "20 16 0.6"
    QString fields() const { return QStringList{x->text(), y->text(), seat->text()}.join(u' '); }
    static void type(QLineEdit *edit, const QString &text)
    {
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    void pickUnits(const char *name)
    {
        GuestForm::pick(qobject_cast<KWPickComboBox *>(units), name);
    }
    void click(const char *button)
    {
        QTest::mouseClick(child<QPushButton>(*this, button), Qt::LeftButton);
    }
};

QString facts(const KWDocument &plan)
{
    return s("%1|%2 %3 %4%5")
        .arg(plan.units())
        .arg(plan.roomXSize())
        .arg(plan.roomYSize())
        .arg(plan.chairSize())
        .arg(plan.isModified() ? s("|modified") : QString());
}
} // namespace

class TestKWDimensionsDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void eachWidgetHasItsTexts_data();
    void eachWidgetHasItsTexts();
    void theLabelsLeadToTheirFields();
    void theFieldsShowThePlanInItsUnit_data();
    void theFieldsShowThePlanInItsUnit();
    void theValidatorsAreInMetresWhateverTheUnit();
    void anotherUnitConvertsTheSizes();
    void whatIsNoNumberStaysWhenTheUnitChanges();
    void thereAndBackTheSizesAreTheSame();
    void okStoresUnitAndSizesAfterAnUndoPoint();
    void feetAreStoredAsMetres();
    void okWithoutAChangeTakesAnUndoPointAndChangesNothing_data();
    void okWithoutAChangeTakesAnUndoPointAndChangesNothing();
    void cancelLeavesThePlanAsItWas_data();
    void cancelLeavesThePlanAsItWas();
    void aSizeThatIsNoneOrOutOfRangeIsRefused_data();
    void aSizeThatIsNoneOrOutOfRangeIsRefused();
    void inFeetTheLimitsAreTheSameLengths_data();
    void inFeetTheLimitsAreTheSameLengths();
    void theLimitsThemselvesAreTaken_data();
    void theLimitsThemselvesAreTaken();
    void theFirstBadSizeIsToldOf();
    void aBadSizeStaysAndIsSelected();
    void aGermanUserTypesACommaOrAPointAndReadsCommas();
    void theHelpButtonAndF1AskForTheTopic();
    void aNewLanguageTranslatesTheTextsAndKeepsTheSizes();

private:
    std::unique_ptr<LoggingWindow> m_window;
    KWDocument *m_plan = nullptr;
};

void TestKWDimensionsDlgImpl::init()
{
    m_window = std::make_unique<LoggingWindow>();
    m_plan = m_window->document();
    m_plan->setRoomXSize(20);
    m_plan->setRoomYSize(16);
    m_plan->setChairSize(double{0.6F});
    m_plan->setUnits(0);
    m_plan->setModified(false);
}

void TestKWDimensionsDlgImpl::cleanup()
{
    QLocale::setDefault(QLocale::c());
    m_window.reset();
}

void TestKWDimensionsDlgImpl::eachWidgetHasItsTexts_data()
{
    addFormRows({
        {"m_unitsLabel", "&Units:", ""},
        {"m_unitsCombo", "", "Unit system"},
        {"m_xLabel", "&Breadth (X):", ""},
        {"m_xEdit", "20", "Breadth of the room in the chosen units"},
        {"m_yLabel", "&Depth (Y):", ""},
        {"m_yEdit", "16", "Length of the room in the chosen units"},
        {"m_seatWidthLabel", "Seat &width:", ""},
        {"m_seatWidthEdit", "0.6",
         "The width required for one person and their seat in the chosen units"},
        {"m_okPushButton", "&OK", "Accept changes and close window", "Alt+O"},
        {"m_cancelPushButton", "&Cancel", "Discard changes and close window", "Alt+C"},
        {"m_helpPushButton", "&Help", "Context sensitive help", "Alt+H"},
    });
}

void TestKWDimensionsDlgImpl::eachWidgetHasItsTexts()
{
    compareFormRow(DimensionsDialog(*m_plan));
}

void TestKWDimensionsDlgImpl::theLabelsLeadToTheirFields()
{
    DimensionsDialog dialog(*m_plan);
    QCOMPARE(dialog.windowTitle(), s("Floor plan dimensions"));
    QVERIFY(dialog.isModal());
    QCOMPARE(GuestForm::entries(dialog.units), (QStringList{s("Metres"), s("Feet")}));
    QVERIFY(showActive(dialog));
    QVERIFY(dialog.x->hasFocus());
    const auto field = [&dialog](Qt::Key letter) {
        QTest::keyClick(&dialog, letter, Qt::AltModifier);
        return QApplication::focusWidget();
    };
    QCOMPARE(field(Qt::Key_U), dialog.units);
    QCOMPARE(field(Qt::Key_D), dialog.y);
    QCOMPARE(field(Qt::Key_W), dialog.seat);
    QCOMPARE(field(Qt::Key_B), dialog.x);
    QVERIFY(child<QPushButton>(dialog, "m_okPushButton")->isDefault());
}

void TestKWDimensionsDlgImpl::theFieldsShowThePlanInItsUnit_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<double>("room");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("fields");
    QTest::newRow("metres") << 0 << 20. << s("Metres") << s("20 16 0.6");
    QTest::newRow("feet") << 1 << 20. << s("Feet") << s("65.62 52.496 1.9686");
    QTest::newRow("six digits") << 0 << 12.3456789 << s("Metres") << s("12.3457 16 0.6");
    QTest::newRow("a unit of another program") << 7 << 20. << s("Metres") << s("20 16 0.6");
}

void TestKWDimensionsDlgImpl::theFieldsShowThePlanInItsUnit()
{
    QFETCH(int, units);
    QFETCH(double, room);
    m_plan->setRoomXSize(room);
    m_plan->setUnits(units);
    const DimensionsDialog dialog(*m_plan);
    QTEST(dialog.units->currentText(), "unit");
    QTEST(dialog.fields(), "fields");
}

void TestKWDimensionsDlgImpl::theValidatorsAreInMetresWhateverTheUnit()
{
    DimensionsDialog dialog(*m_plan);
    const auto limits = [](const QLineEdit *edit) {
        const auto *validator = qobject_cast<const QDoubleValidator *>(edit->validator());
        return s("%1 %2 %3")
            .arg(validator->bottom())
            .arg(validator->top())
            .arg(validator->decimals());
    };
    for (const char *unit : {"Metres", "Feet"}) {
        dialog.pickUnits(unit);
        QCOMPARE(limits(dialog.x), s("5 999 2"));
        QCOMPARE(limits(dialog.y), s("5 999 2"));
        QCOMPARE(limits(dialog.seat), s("0.2 5 2"));
    }
    // They keep nobody from typing a length in feet.
    DimensionsDialog::type(dialog.x, s("1640.425"));
    QCOMPARE(dialog.x->text(), s("1640.425"));
}

void TestKWDimensionsDlgImpl::anotherUnitConvertsTheSizes()
{
    DimensionsDialog dialog(*m_plan);
    DimensionsDialog::type(dialog.x, s("7.5"));
    dialog.pickUnits("Feet");
    QCOMPARE(dialog.fields(), s("24.6075 52.496 1.9686"));
    // The same unit again is no other one.
    DimensionsDialog::type(dialog.y, s("50"));
    dialog.pickUnits("Feet");
    QCOMPARE(dialog.fields(), s("24.6075 50 1.9686"));
    dialog.pickUnits("Metres");
    QCOMPARE(dialog.fields(), s("7.5 15.2393 0.6"));
}

void TestKWDimensionsDlgImpl::whatIsNoNumberStaysWhenTheUnitChanges()
{
    DimensionsDialog dialog(*m_plan);
    DimensionsDialog::type(dialog.x, QString());
    DimensionsDialog::type(dialog.y, s("."));
    dialog.pickUnits("Feet");
    QCOMPARE(dialog.fields(), s(" . 1.9686"));
}

void TestKWDimensionsDlgImpl::thereAndBackTheSizesAreTheSame()
{
    for (const double room : {5., 12.34, 20., 333.33, 999.}) {
        m_plan->setRoomXSize(room);
        DimensionsDialog dialog(*m_plan);
        const QString before = dialog.fields();
        for (int i = 0; i < 10; ++i) {
            dialog.pickUnits("Feet");
            dialog.pickUnits("Metres");
        }
        QCOMPARE(dialog.fields(), before);
        dialog.click("m_okPushButton");
        QCOMPARE(m_plan->roomXSize(), room);
        QVERIFY(!m_plan->isModified());
    }
}

void TestKWDimensionsDlgImpl::okStoresUnitAndSizesAfterAnUndoPoint()
{
    DimensionsDialog dialog(*m_plan);
    DimensionsDialog::type(dialog.x, s("7.5"));
    DimensionsDialog::type(dialog.y, s("12.25"));
    DimensionsDialog::type(dialog.seat, s("0.5"));
    dialog.click("m_okPushButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    // So that the plan is asked about before it is closed, and is part of the next backup.
    QCOMPARE(m_window->takeSteps(),
             (QStringList{s("undo Change dimensions"), s("eventModified()")}));
    QCOMPARE(facts(*m_plan), s("0|7.5 12.25 0.5|modified"));
}

void TestKWDimensionsDlgImpl::feetAreStoredAsMetres()
{
    DimensionsDialog dialog(*m_plan);
    QVERIFY(showActive(dialog));
    dialog.pickUnits("Feet");
    DimensionsDialog::type(dialog.x, s("32.81"));
    DimensionsDialog::type(dialog.seat, s("3.281"));
    QTest::keyClick(dialog.seat, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(facts(*m_plan), s("1|10 16 1|modified"));
    // What was not typed over is not rounded to the digits that are shown.
    QCOMPARE(m_plan->roomYSize(), 16.);
}

void TestKWDimensionsDlgImpl::okWithoutAChangeTakesAnUndoPointAndChangesNothing_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<double>("room");
    QTest::newRow("metres") << 0 << 12.3456789;
    QTest::newRow("feet") << 1 << 12.3456789;
    // Shown as 3277.72, which would be too large.
    QTest::newRow("the largest room in feet") << 1 << 999.;
}

void TestKWDimensionsDlgImpl::okWithoutAChangeTakesAnUndoPointAndChangesNothing()
{
    QFETCH(int, units);
    QFETCH(double, room);
    m_plan->setUnits(units);
    m_plan->setRoomXSize(room);
    DimensionsDialog dialog(*m_plan);
    dialog.click("m_okPushButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_window->takeSteps(), QStringList{s("undo Change dimensions")});
    QCOMPARE(m_plan->roomXSize(), room);
    QCOMPARE(m_plan->roomYSize(), 16.);
    QCOMPARE(m_plan->chairSize(), double{0.6F});
    QVERIFY(!m_plan->isModified());
}

void TestKWDimensionsDlgImpl::cancelLeavesThePlanAsItWas_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("the button") << false;
    QTest::newRow("Esc") << true;
}

void TestKWDimensionsDlgImpl::cancelLeavesThePlanAsItWas()
{
    QFETCH(bool, byKey);
    DimensionsDialog dialog(*m_plan);
    QVERIFY(showActive(dialog));
    dialog.pickUnits("Feet");
    DimensionsDialog::type(dialog.x, s("100"));
    if (byKey)
        QTest::keyClick(dialog.x, Qt::Key_Escape);
    else
        dialog.click("m_cancelPushButton");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(m_window->takeSteps(), QStringList());
    QCOMPARE(facts(*m_plan), s("0|20 16 0.6"));
}

void TestKWDimensionsDlgImpl::aSizeThatIsNoneOrOutOfRangeIsRefused_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const auto rows = [](const char *field, const char *message, const QList<const char *> &texts) {
        for (const char *text : texts)
            QTest::addRow("%s, '%s'", field, text) << s(field) << s(text) << s(message);
    };
    // Breadth is called length, and the other way round.
    const QList<const char *> rooms{"", ".", "4.99", "999.01", "0", "1e3 m"};
    rows("m_xEdit", "Room length must be a valid number in the range 5 to 999", rooms);
    rows("m_yEdit", "Room breadth must be a valid number in the range 5 to 999", rooms);
    rows("m_seatWidthEdit", "Seat width must be a valid number in the range 0.2 to 5",
         {"", ".", "0.19", "5.01", "0", "nan", "inf"});
}

void TestKWDimensionsDlgImpl::aSizeThatIsNoneOrOutOfRangeIsRefused()
{
    QFETCH(QString, field);
    QFETCH(QString, text);
    QFETCH(QString, message);
    ScriptedPrompts prompts;
    DimensionsDialog dialog(*m_plan);
    QVERIFY(showActive(dialog));
    auto *edit = child<QLineEdit>(dialog, field);
    edit->setText(text);
    prompts.answer(s("&OK"));
    dialog.click("m_okPushButton");
    QCOMPARE(prompts.texts(), QStringList{message});
    QCOMPARE(prompts.messages[0].buttons, QStringList{s("&OK")});
    QVERIFY(dialog.isVisible());
    QCOMPARE(edit->text(), text);
    QCOMPARE(m_window->takeSteps(), QStringList());
    QCOMPARE(facts(*m_plan), s("0|20 16 0.6"));
}

void TestKWDimensionsDlgImpl::inFeetTheLimitsAreTheSameLengths_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("message");
    QTest::newRow("x") << s("m_xEdit")
                       << s("Room length must be a valid number in the range 16.405 to 3277.719");
    QTest::newRow("y") << s("m_yEdit")
                       << s("Room breadth must be a valid number in the range 16.405 to 3277.719");
    QTest::newRow("seat") << s("m_seatWidthEdit")
                          << s("Seat width must be a valid number in the range 0.6562 to 16.405");
}

void TestKWDimensionsDlgImpl::inFeetTheLimitsAreTheSameLengths()
{
    QFETCH(QString, field);
    QFETCH(QString, message);
    ScriptedPrompts prompts;
    DimensionsDialog dialog(*m_plan);
    dialog.pickUnits("Feet");
    DimensionsDialog::type(child<QLineEdit>(dialog, field), s("0.5"));
    prompts.answer(s("&OK"));
    dialog.click("m_okPushButton");
    QCOMPARE(prompts.texts(), QStringList{message});
}

void TestKWDimensionsDlgImpl::theLimitsThemselvesAreTaken_data()
{
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("room");
    QTest::addColumn<QString>("seat");
    QTest::newRow("least in metres") << s("Metres") << s("5") << s("0.2");
    QTest::newRow("most in metres") << s("Metres") << s("999") << s("5");
    QTest::newRow("least in feet") << s("Feet") << s("16.405") << s("0.6562");
    QTest::newRow("most in feet") << s("Feet") << s("3277.719") << s("16.405");
}

void TestKWDimensionsDlgImpl::theLimitsThemselvesAreTaken()
{
    QFETCH(QString, units);
    QFETCH(QString, room);
    QFETCH(QString, seat);
    const ScriptedPrompts prompts;
    DimensionsDialog dialog(*m_plan);
    dialog.pickUnits(units == s("Feet") ? "Feet" : "Metres");
    DimensionsDialog::type(dialog.x, room);
    DimensionsDialog::type(dialog.y, room);
    DimensionsDialog::type(dialog.seat, seat);
    // Nor does the other unit make them wrong.
    dialog.pickUnits(units == s("Feet") ? "Metres" : "Feet");
    QVERIFY(dialog.apply());
    dialog.pickUnits(units == s("Feet") ? "Feet" : "Metres");
    dialog.click("m_okPushButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestKWDimensionsDlgImpl::theFirstBadSizeIsToldOf()
{
    ScriptedPrompts prompts;
    DimensionsDialog dialog(*m_plan);
    for (QLineEdit *edit : {dialog.x, dialog.y, dialog.seat})
        DimensionsDialog::type(edit, s("0.1"));
    QStringList starts;
    for (QLineEdit *edit : {dialog.x, dialog.y, dialog.seat}) {
        prompts.answer(s("&OK"));
        dialog.click("m_okPushButton");
        starts.append(prompts.texts().last().section(u' ', 0, 1));
        DimensionsDialog::type(edit, s("5"));
    }
    QCOMPARE(starts, (QStringList{s("Room length"), s("Room breadth"), s("Seat width")}));
    dialog.click("m_okPushButton");
    QCOMPARE(facts(*m_plan), s("0|5 5 5|modified"));
}

void TestKWDimensionsDlgImpl::aBadSizeStaysAndIsSelected()
{
    ScriptedPrompts prompts;
    DimensionsDialog dialog(*m_plan);
    QVERIFY(showActive(dialog));
    DimensionsDialog::type(dialog.y, s("1000"));
    prompts.answer(s("&OK"));
    QTest::keyClick(dialog.y, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.y->hasFocus());
    QCOMPARE(dialog.y->selectedText(), s("1000"));
}

void TestKWDimensionsDlgImpl::aGermanUserTypesACommaOrAPointAndReadsCommas()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ScriptedPrompts prompts;
    DimensionsDialog dialog(*m_plan);
    QCOMPARE(dialog.fields(), s("20 16 0,6"));
    DimensionsDialog::type(dialog.x, s("7,5"));
    DimensionsDialog::type(dialog.y, s("8.25"));
    DimensionsDialog::type(dialog.seat, s("0,1"));
    QCOMPARE(dialog.fields(), s("7,5 8,25 0,1"));
    prompts.answer(s("&OK"));
    dialog.click("m_okPushButton");
    QCOMPARE(prompts.texts().last(), s("Seat width must be a valid number in the range 0,2 to 5"));
    DimensionsDialog::type(dialog.seat, s("0,5"));
    dialog.pickUnits("Feet");
    QCOMPARE(dialog.fields(), s("24,6075 27,0683 1,6405"));
    dialog.pickUnits("Metres");
    dialog.click("m_okPushButton");
    QCOMPARE(facts(*m_plan), s("0|7.5 8.25 0.5|modified"));
}

void TestKWDimensionsDlgImpl::theHelpButtonAndF1AskForTheTopic()
{
    DimensionsDialog dialog(*m_plan);
    QVERIFY(showActive(dialog));
    const QString topic = s("Dimensions_window.htm");
    QCOMPARE(topicAskedFor([&] { dialog.click("m_helpPushButton"); }), topic);
    QCOMPARE(topicAskedFor([&] { QTest::keyClick(&dialog, Qt::Key_F1); }), topic);
}

void TestKWDimensionsDlgImpl::aNewLanguageTranslatesTheTextsAndKeepsTheSizes()
{
    DimensionsDialog dialog(*m_plan);
    dialog.pickUnits("Feet");
    DimensionsDialog::type(dialog.x, s("40"));
    const BracketTranslator brackets;
    QTRY_COMPARE(dialog.windowTitle(), s("[Floor plan dimensions]"));
    QCOMPARE(dialog.units->currentText(), s("[Feet]"));
    QCOMPARE(dialog.fields(), s("40 52.496 1.9686"));
    const auto *ok = child<QPushButton>(dialog, "m_okPushButton");
    QCOMPARE(ok->shortcut(), QKeySequence(Qt::ALT | Qt::Key_O));
}

REGISTER_TEST(TestKWDimensionsDlgImpl)
#include "tst_kwdimensionsdlgimpl.moc"
