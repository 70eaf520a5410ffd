#include "gui/dialogs/kwinfodlgimpl.h"
#include "support/gui/dialogtest.h"
#include "support/gui/fakemainwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

const QDate today(2025, 5, 20);

/// The parts of the dialog that the tests work with.
struct Dialog : KWInfoDlgImpl
{
    explicit Dialog(KWDocument &plan)
        : KWInfoDlgImpl(nullptr, &plan, [] { return today; })
    {
    }

    QLineEdit *event = child<QLineEdit>(*this, "m_eventLineEdit");
    QLineEdit *venue = child<QLineEdit>(*this, "m_venueLineEdit");
    QDateEdit *date = child<QDateEdit>(*this, "m_dateEdit");
    QLineEdit *daysRemaining = child<QLineEdit>(*this, "m_daysRemainingLineEdit");
    QSpinBox *fixedCost = child<QSpinBox>(*this, "m_fixedCostSpinBox");
    QSpinBox *adultCost = child<QSpinBox>(*this, "m_costPerAdultSpinBox");
    QSpinBox *childCost = child<QSpinBox>(*this, "m_costPerChildSpinBox");
    QLineEdit *total = child<QLineEdit>(*this, "m_totalCostLineEdit");
    QLineEdit *totalAccepted = child<QLineEdit>(*this, "m_totalCostAcceptedLineEdit");
    QTextEdit *notes = child<QTextEdit>(*this, "m_notesTextEdit");
    QPushButton *ok = child<QPushButton>(*this, "m_okPushButton");
    QPushButton *cancel = child<QPushButton>(*this, "m_cancelPushButton");
};

/// The seven values of a plan, for comparing at a glance.
QString facts(const KWDocument &plan)
{
    return s("%1|%2|%3|%4|%5|%6|%7")
        .arg(plan.event(), plan.venue(), plan.date().toString(Qt::ISODate),
             QString::number(plan.fixedCost()), QString::number(plan.adultCost()),
             QString::number(plan.childCost()), plan.notes());
}

void fillFacts(KWDocument &plan)
{
    plan.setEvent(s("Wedding"));
    plan.setVenue(s("Mill <Hall>"));
    plan.setDate(today.addDays(30));
    plan.setFixedCost(1000);
    plan.setAdultCost(50);
    plan.setChildCost(20);
    plan.setNotes(s("<b>bring</b>\nflowers"));
}

/// Two adults of whom one has accepted, and three children of whom two have.
void addFamily(KWDocument &plan)
{
    const QList<KWGuest *> guests{
        addGuest(plan, {.name = "Ann"}),
        addGuest(plan, {.name = "Bob"}),
        addGuest(plan, {.name = "Cleo", .age = KWGuest::Child}),
        addGuest(plan, {.name = "Dan", .age = KWGuest::Child}),
        addGuest(plan, {.name = "Eve", .age = KWGuest::Child}),
    };
    for (int i : {0, 2, 3})
        guests.at(i)->setAccepted(true);
}
} // namespace

class TestKWInfoDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<FakeMainWindow>();
        m_plan = m_window->document();
        m_plan->setDate(today);
    }

    void cleanup() { m_window.reset(); }

    void eachWidgetHasItsTexts_data()
    {
        addFormRows({
            {"m_eventGroupBox", "&Event", ""},
            {"m_eventLineEdit", "", "Name of the event"},
            {"m_venueGroupBox", "&Venue", ""},
            {"m_venueLineEdit", "", "Venue for the event"},
            {"m_dateGroupBox", "Date", ""},
            {"m_daysRemainingLabel", "&Days remaining:", ""},
            {"m_daysRemainingLineEdit", "0", "Days remaining until the event"},
            {"m_costGroupBox", "Cost", ""},
            {"m_fixedCostLabel", "&Fixed:", ""},
            {"m_fixedCostSpinBox", "0", "Fixed cost of the event (e.g. venue hire cost)"},
            {"m_costPerAdultLabel", "Per &adult:", ""},
            {"m_costPerAdultSpinBox", "0", "Cost per adult"},
            {"m_costPerChildLabel", "Per &child:", ""},
            {"m_costPerChildSpinBox", "0", "Cost per child"},
            {"m_totalCostLabel", "Total (all guests):", ""},
            {"m_totalCostLineEdit", "0", "Total cost for all guests"},
            {"m_totalCostAcceptedLabel", "Total (accepted guests):", ""},
            {"m_totalCostAcceptedLineEdit", "0", "Total cost for all accepted guests"},
            {"m_notesGroupBox", "&Notes", ""},
            {"m_notesTextEdit", "", "Notes about the event"},
            {"m_okPushButton", "&OK", "Accept changes and close window", "Alt+O"},
            {"m_cancelPushButton", "&Cancel", "Discard changes and close window", "Alt+C"},
            {"m_helpPushButton", "&Help", "Context sensitive help", "Alt+H"},
        });
    }

    void eachWidgetHasItsTexts() { compareFormRow(Dialog(*m_plan)); }

    void theDateHasItsTip()
    {
        const Dialog dialog(*m_plan);
        QCOMPARE(dialog.windowTitle(), s("Information"));
        QCOMPARE(dialog.date->toolTip(), s("Date of the event"));
        QVERIFY(dialog.date->displayFormat().contains(s("yyyy")));
    }

    void theYearIsShownInFull_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *text) {
            QTest::newRow(name) << QLocale(s(name)) << s(text);
        };
        row("C", "20 May 2025");
        row("en_US", "5/20/2025");
        row("de_DE", "20.05.2025");
        row("fr_FR", "20/05/2025");
        row("ja_JP", "2025/05/20");
    }

    void theYearIsShownInFull()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, text);
        const auto restore = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
        QLocale::setDefault(locale);
        const Dialog dialog(*m_plan);
        QCOMPARE(dialog.date->text(), text);
    }

    void theDateFollowsTheLocaleWhichIsNoTouch_data() { theYearIsShownInFull_data(); }

    void theDateFollowsTheLocaleWhichIsNoTouch()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, text);
        const ScriptedPrompts prompts;
        Dialog dialog(*m_plan);
        QVERIFY(showActive(dialog));
        dialog.setLocale(QLocale(s("en_GB")));
        dialog.setLocale(locale);
        QCOMPARE(dialog.date->text(), text);
        dialog.reject();
        QVERIFY(!dialog.isVisible());
    }

    void readOutsCannotBeEdited()
    {
        const Dialog dialog(*m_plan);
        for (const QLineEdit *readOut : {dialog.daysRemaining, dialog.total, dialog.totalAccepted})
            QVERIFY(readOut->isReadOnly());
    }

    void costsStayInTheirRange()
    {
        const Dialog dialog(*m_plan);
        for (const QSpinBox *cost : {dialog.fixedCost, dialog.adultCost, dialog.childCost}) {
            QCOMPARE(cost->minimum(), 0);
            QCOMPARE(cost->maximum(), 999999999);
        }
    }

    void theFactsOfThePlanAreShown()
    {
        fillFacts(*m_plan);
        const Dialog dialog(*m_plan);
        QCOMPARE(dialog.event->text(), s("Wedding"));
        QCOMPARE(dialog.venue->text(), s("Mill <Hall>"));
        QCOMPARE(dialog.date->date(), today.addDays(30));
        QCOMPARE(dialog.daysRemaining->text(), s("30"));
        QCOMPARE(dialog.fixedCost->value(), 1000);
        QCOMPARE(dialog.adultCost->value(), 50);
        QCOMPARE(dialog.childCost->value(), 20);
        QCOMPARE(dialog.notes->toPlainText(), s("<b>bring</b>\nflowers"));
    }

    void withNoGuestsBothTotalsAreTheFixedCost()
    {
        fillFacts(*m_plan);
        const Dialog dialog(*m_plan);
        QCOMPARE(dialog.total->text(), s("1000"));
        QCOMPARE(dialog.totalAccepted->text(), s("1000"));
    }

    void totalsCountGuestsByAgeAndAcceptance()
    {
        fillFacts(*m_plan);
        addFamily(*m_plan);
        const Dialog dialog(*m_plan);
        QCOMPARE(dialog.total->text(), QString::number(1000 + 2 * 50 + 3 * 20));
        QCOMPARE(dialog.totalAccepted->text(), QString::number(1000 + 1 * 50 + 2 * 20));
    }

    void totalsFollowTheCosts()
    {
        addFamily(*m_plan);
        const Dialog dialog(*m_plan);
        dialog.fixedCost->setValue(7);
        QCOMPARE(dialog.total->text(), s("7"));
        dialog.adultCost->setValue(100);
        QCOMPARE(dialog.total->text(), s("207"));
        QCOMPARE(dialog.totalAccepted->text(), s("107"));
        dialog.childCost->setValue(1000);
        QCOMPARE(dialog.total->text(), s("3207"));
        QCOMPARE(dialog.totalAccepted->text(), s("2107"));
    }

    void aTotalBeyondTheIntegersWraps()
    {
        addFamily(*m_plan);
        const Dialog dialog(*m_plan);
        dialog.childCost->setValue(999999999);
        QCOMPARE(dialog.total->text(), QString::number(2999999997LL - 4294967296LL));
        QCOMPARE(dialog.totalAccepted->text(), s("1999999998"));
    }

    void theDaysRemainingFollowTheDate_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("days");
        QTest::newRow("today") << today << s("0");
        QTest::newRow("tomorrow") << today.addDays(1) << s("1");
        QTest::newRow("yesterday") << today.addDays(-1) << s("-1");
        QTest::newRow("in a year") << today.addYears(1) << s("365");
        QTest::newRow("far away") << QDate(9999, 12, 31) << s("2912668");
        QTest::newRow("in an older calendar") << QDate(1752, 9, 13) << s("-99595");
        QTest::newRow("earliest") << QDate(100, 1, 1) << s("-703231");
    }

    void theDaysRemainingFollowTheDate()
    {
        QFETCH(QDate, date);
        QFETCH(QString, days);
        const Dialog dialog(*m_plan);
        dialog.date->setDate(today.addDays(100));
        dialog.date->setDate(date);
        QCOMPARE(dialog.date->date(), date);
        QCOMPARE(dialog.daysRemaining->text(), days);
        m_plan->setDate(date);
        QCOMPARE(Dialog(*m_plan).daysRemaining->text(), days);
    }

    void theDaysAreCountedFromTheCurrentDate()
    {
        m_plan->setDate(QDate::currentDate().addDays(5));
        const KWInfoDlgImpl dialog(nullptr, m_plan);
        QCOMPARE(child<QLineEdit>(dialog, "m_daysRemainingLineEdit")->text(), s("5"));
    }

    void okWithoutATouchWritesNothing()
    {
        fillFacts(*m_plan);
        m_plan->setModified(false);
        QSignalSpy modified(m_plan, &KWDocument::eventModified);
        Dialog dialog(*m_plan);
        QVERIFY(showActive(dialog));
        QTest::mouseClick(dialog.ok, Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(m_window->undoLabels, QStringList());
        QCOMPARE(modified.count(), 0);
        QVERIFY(!m_plan->isModified());
    }

    void okAfterATouchMakesAnUndoPointAndWritesAllSeven()
    {
        fillFacts(*m_plan);
        Dialog dialog(*m_plan);
        QVERIFY(showActive(dialog));
        dialog.event->setText(s("Banquet"));
        dialog.venue->setText(s("Barn"));
        dialog.date->setDate(today.addDays(-3));
        dialog.fixedCost->setValue(1);
        dialog.adultCost->setValue(2);
        dialog.childCost->setValue(3);
        dialog.notes->setPlainText(s("none"));
        QCOMPARE(facts(*m_plan),
                 s("Wedding|Mill <Hall>|2025-06-19|1000|50|20|<b>bring</b>\nflowers"));
        QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
        QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(m_window->undoLabels, QStringList{s("Edit Information")});
        QCOMPARE(facts(*m_plan), s("Banquet|Barn|2025-05-17|1|2|3|none"));
    }

    void theUndoPointComesBeforeTheFirstChange()
    {
        QStringList labelsAtChange;
        connect(
            m_plan, &KWDocument::eventModified, this,
            [&] { labelsAtChange = m_window->undoLabels; }, Qt::SingleShotConnection);
        Dialog dialog(*m_plan);
        dialog.event->setText(s("Banquet"));
        dialog.accept();
        QCOMPARE(labelsAtChange, QStringList{s("Edit Information")});
    }

    void withoutAMainWindowOkStillWrites()
    {
        m_window.reset();
        KWDocument plan;
        Dialog dialog(plan);
        dialog.event->setText(s("Banquet"));
        dialog.accept();
        QCOMPARE(plan.event(), s("Banquet"));
    }

    void eachFieldCountsAsATouchThoughItsValueIsRestored_data()
    {
        using Touch = std::function<void(const Dialog &)>;
        QTest::addColumn<Touch>("touch");
        const auto row = [](const char *name, const Touch &touch) { QTest::newRow(name) << touch; };
        const auto touchText = [](QLineEdit *edit) {
            QTest::keyClick(edit, Qt::Key_X);
            QTest::keyClick(edit, Qt::Key_Backspace);
        };
        const auto touchNumber = [](QSpinBox *box) {
            box->stepUp();
            box->stepDown();
        };
        row("event", [=](const Dialog &dialog) { touchText(dialog.event); });
        row("venue", [=](const Dialog &dialog) { touchText(dialog.venue); });
        row("date", [=](const Dialog &dialog) {
            dialog.date->stepUp();
            dialog.date->stepDown();
        });
        row("fixed cost", [=](const Dialog &dialog) { touchNumber(dialog.fixedCost); });
        row("cost per adult", [=](const Dialog &dialog) { touchNumber(dialog.adultCost); });
        row("cost per child", [=](const Dialog &dialog) { touchNumber(dialog.childCost); });
        row("notes", [=](const Dialog &dialog) {
            QTest::keyClick(dialog.notes, Qt::Key_X);
            QTest::keyClick(dialog.notes, Qt::Key_Backspace);
        });
    }

    void eachFieldCountsAsATouchThoughItsValueIsRestored()
    {
        QFETCH(std::function<void(const Dialog &)>, touch);
        fillFacts(*m_plan);
        const QString before = facts(*m_plan);
        Dialog dialog(*m_plan);
        QVERIFY(showActive(dialog));
        touch(dialog);
        {
            ScriptedPrompts prompts;
            prompts.answer(s("&No"));
            QTest::mouseClick(dialog.cancel, Qt::LeftButton);
            QCOMPARE(prompts.texts(), QStringList{s("Discard changes?")});
        }
        QVERIFY(dialog.isVisible());
        QTest::mouseClick(dialog.ok, Qt::LeftButton);
        QCOMPARE(m_window->undoLabels, QStringList{s("Edit Information")});
        QCOMPARE(facts(*m_plan), before);
    }

    void anUntouchedFieldKeepsWhatItsEditorCannotHold_data()
    {
        using Touch = std::function<void(const Dialog &)>;
        QTest::addColumn<Touch>("touch");
        QTest::addColumn<int>("touched");
        int touched = 0;
        const auto row = [&](const char *name, const Touch &touch) {
            QTest::newRow(name) << touch << touched++;
        };
        row("event", [](const Dialog &dialog) { dialog.event->setText(s("new")); });
        row("venue", [](const Dialog &dialog) { dialog.venue->setText(s("new")); });
        row("date", [](const Dialog &dialog) { dialog.date->setDate(today.addDays(1)); });
        row("fixed cost", [](const Dialog &dialog) { dialog.fixedCost->setValue(7); });
        row("cost per adult", [](const Dialog &dialog) { dialog.adultCost->setValue(7); });
        row("cost per child", [](const Dialog &dialog) { dialog.childCost->setValue(7); });
        row("notes", [](const Dialog &dialog) { dialog.notes->setPlainText(s("new")); });
    }

    void anUntouchedFieldKeepsWhatItsEditorCannotHold()
    {
        QFETCH(std::function<void(const Dialog &)>, touch);
        QFETCH(int, touched);
        m_plan->setEvent(s("two\nlines"));
        m_plan->setVenue(s("three\r\nlong\nlines"));
        m_plan->setDate(QDate(99, 12, 31));
        m_plan->setFixedCost(-500);
        m_plan->setAdultCost(2000000000);
        m_plan->setChildCost(-1);
        m_plan->setNotes(s("ten\u00a0\u20ac\r\neach"));
        QStringList expected = facts(*m_plan).split(u'|');
        Dialog dialog(*m_plan);
        touch(dialog);
        dialog.accept();
        QStringList actual = facts(*m_plan).split(u'|');
        QVERIFY(actual.at(touched) != expected.at(touched));
        expected.removeAt(touched);
        actual.removeAt(touched);
        QCOMPARE(actual, expected);
    }

    void aLongEventAndVenueCanBeEdited()
    {
        const QString text(40000, u'x');
        m_plan->setEvent(text);
        m_plan->setVenue(text);
        Dialog dialog(*m_plan);
        for (QLineEdit *edit : {dialog.event, dialog.venue}) {
            edit->end(false);
            QTest::keyClick(edit, Qt::Key_Y);
        }
        dialog.accept();
        QCOMPARE(m_plan->event(), text + u'y');
        QCOMPARE(m_plan->venue(), text + u'y');
    }

    void cancelWithoutATouchAsksNothing()
    {
        fillFacts(*m_plan);
        const ScriptedPrompts prompts;
        Dialog dialog(*m_plan);
        QVERIFY(showActive(dialog));
        QTest::mouseClick(dialog.cancel, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(prompts.messages.isEmpty());
    }

    void discardingChangesIsAskedFor_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closes");
        QTest::newRow("yes") << s("&Yes") << true;
        QTest::newRow("no") << s("&No") << false;
    }

    void discardingChangesIsAskedFor()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closes);
        fillFacts(*m_plan);
        const QString before = facts(*m_plan);
        for (const bool closeBox : {false, true}) {
            ScriptedPrompts prompts;
            prompts.answer(answer);
            Dialog dialog(*m_plan);
            QVERIFY(showActive(dialog));
            dialog.venue->setText(s("Barn"));
            if (closeBox)
                dialog.close();
            else
                QTest::keyClick(&dialog, Qt::Key_Escape);
            QCOMPARE(dialog.isVisible(), !closes);
            QCOMPARE(prompts.messages.size(), 1);
            const KWMessage &message = prompts.messages.first();
            QCOMPARE(message.icon, KWMessage::Warning);
            QCOMPARE(message.caption, s("Ambrelune"));
            QCOMPARE(message.text, s("Discard changes?"));
            QCOMPARE(message.buttons, (QStringList{s("&Yes"), s("&No")}));
            QCOMPARE(facts(*m_plan), before);
            QCOMPARE(m_window->undoLabels, QStringList());
        }
    }

    void aPlanWithoutADateShowsTodayAndKeepsNone()
    {
        m_plan->setDate(QDate());
        Dialog dialog(*m_plan);
        QCOMPARE(dialog.date->date(), today);
        QCOMPARE(dialog.daysRemaining->text(), s("0"));
        dialog.event->setText(s("Banquet"));
        dialog.accept();
        QCOMPARE(m_plan->event(), s("Banquet"));
        QVERIFY(!m_plan->date().isValid());

        Dialog again(*m_plan);
        again.date->setDate(today.addDays(1));
        again.accept();
        QCOMPARE(m_plan->date(), today.addDays(1));
    }

    void theHelpButtonAndF1AskForTheTopic()
    {
        Dialog dialog(*m_plan);
        QVERIFY(showActive(dialog));
        auto *button = child<QPushButton>(dialog, "m_helpPushButton");
        QCOMPARE(topicAskedFor([&] { QTest::mouseClick(button, Qt::LeftButton); }),
                 s("Information_window.htm"));
        QCOMPARE(topicAskedFor([&] { QTest::keyClick(dialog.notes, Qt::Key_F1); }),
                 s("Information_window.htm"));
    }

    void aNewLanguageTranslatesTheForm()
    {
        fillFacts(*m_plan);
        const ScriptedPrompts prompts;
        Dialog dialog(*m_plan);
        const BracketTranslator translator;
        QTRY_COMPARE(dialog.windowTitle(), s("[Information]"));
        QCOMPARE(child<QGroupBox>(dialog, "m_notesGroupBox")->title(), s("[&Notes]"));
        QTRY_COMPARE(dialog.notes->whatsThis(), s("[Notes about the event]"));
        QCOMPARE(dialog.event->text(), s("Wedding"));
        QVERIFY(showActive(dialog));
        dialog.reject();
        QVERIFY(!dialog.isVisible());
    }

private:
    std::unique_ptr<FakeMainWindow> m_window;
    KWDocument *m_plan = nullptr;
};

REGISTER_TEST(TestKWInfoDlgImpl)
#include "tst_kwinfodlgimpl.moc"
