#include "gui/framework/kwconfigurablewarningdlgimpl.h"
#include "support/gui/guestdialogtest.h"
#include "support/gui/modaluser.h"
#include "support/registeredtest.h"

// The dialog as it inserts a guest.

namespace {

const QString refusal = s("No first name or last name supplied.");

KWGuest *addNamed(KWDocument &plan, const char *title, const char *first, const char *last,
                  const char *meal = "")
{
    return plan.addGuest({.display_name = s(first),
                          .title = s(title),
                          .first_name = s(first),
                          .last_name = s(last),
                          .meal = s(meal)},
                         plan.addGroup({}, {}, {}));
}
} // namespace

class TestKWGuestDlgInsert : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        TestHome::clearSettings();
        m_window = std::make_unique<LoggingWindow>();
        m_plan = m_window->document();
    }

    void cleanup() { m_window.reset(); }

    void theListsOfferWhatThePlanKnows()
    {
        addNamed(*m_plan, "Prof", "Ann", "", "Fish");
        addNamed(*m_plan, "Mr", "Bob", "", "Beef");
        addNamed(*m_plan, "", "Cleo", "", "Fish");
        const GuestDialog dialog(nullptr, m_plan);
        QCOMPARE(GuestForm::entries(dialog.ui.title), m_plan->titles());
        QVERIFY(m_plan->titles().contains(s("Prof")));
        QCOMPARE(GuestForm::entries(dialog.ui.meal), (QStringList{s("Beef"), s("Fish")}));
        QCOMPARE(dialog.ui.title->currentText(), QString());
        QCOMPARE(dialog.ui.meal->currentText(), QString());
    }

    void addWritesAGuestWithAllValuesInAGroupOfTheirOwn()
    {
        GuestDialog dialog(nullptr, m_plan);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.title, "mrs");
        GuestForm::type(dialog.ui.first, "ann");
        GuestForm::type(dialog.ui.last, "smith");
        GuestForm::type(dialog.ui.display, "Auntie");
        GuestForm::pick(dialog.ui.age, "Child");
        GuestForm::type(dialog.ui.meal, "Fish");
        QTest::keyClicks(dialog.ui.notes, s("nuts"));
        QTest::keyClick(dialog.ui.vip, Qt::Key_Space);
        QTest::keyClick(dialog.ui.accepted, Qt::Key_Space);
        GuestForm::type(dialog.groupName, "The Smiths");
        QTest::keyClicks(dialog.groupNotes, s("friday"));
        GuestForm::type(dialog.city, "York");
        QCOMPARE(m_plan->guests().size(), 0);
        dialog.click("m_addPushButton");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(m_plan->guests().size(), 1);
        const KWGuest *guest = m_plan->guests().first();
        QCOMPARE(facts(*guest), s("Auntie|Mrs|Ann|Smith|Fish|Female|child|nuts|vipaccepted"));
        QCOMPARE(m_plan->groups(), QList<KWGroup *>{guest->group()});
        QCOMPARE(guest->group()->guests().size(), 1);
        QCOMPARE(facts(*guest->group()), s("The Smiths|York|friday"));
    }

    void theUndoPointComesFirstThenTheGroupThenTheGuest()
    {
        GuestDialog dialog(nullptr, m_plan);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.first, "Ann");
        QCOMPARE(m_window->takeSteps(), QStringList());
        QTest::keyClick(&dialog, Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(!dialog.isVisible());
        QCOMPARE(m_window->takeSteps(),
                 (QStringList{s("undo Insert guest"), s("eventNewGroup(Ann)"), s("eventModified()"),
                              s("eventNewGuest(Ann)"), s("eventModified()")}));
        QVERIFY(m_window->wasBusy());
        QVERIFY(!QApplication::overrideCursor());
    }

    void returnInAFieldAdds()
    {
        GuestDialog dialog(nullptr, m_plan);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.first, "Ann");
        QTest::keyClick(dialog.ui.title->lineEdit(), Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_plan->guests().size(), 1);
    }

    void cancelAndEscWriteNothing()
    {
        for (const bool esc : {false, true}) {
            GuestDialog dialog(nullptr, m_plan);
            QVERIFY(showActive(dialog));
            GuestForm::type(dialog.ui.first, "Ann");
            if (esc)
                QTest::keyClick(dialog.ui.first, Qt::Key_Escape);
            else
                dialog.click("m_cancelPushButton");
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.result(), int(QDialog::Rejected));
        }
        QCOMPARE(m_window->takeSteps(), QStringList());
    }

    void oneNameIsEnoughAndTheRestMayBeEmpty_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("guest");
        QTest::addColumn<QString>("group");
        QTest::newRow("first name") << s("Ann") << s("") << s("Ann||Ann|") << s("Ann");
        QTest::newRow("last name") << s("") << s("Smith") << s("Smith|||Smith") << s("Smith");
        QTest::newRow("both") << s("Ann") << s("Smith") << s("Ann Smith||Ann|Smith") << s("Smith");
    }

    void oneNameIsEnoughAndTheRestMayBeEmpty()
    {
        QFETCH(QString, first);
        QFETCH(QString, last);
        QFETCH(QString, guest);
        QFETCH(QString, group);
        GuestDialog dialog(nullptr, m_plan);
        QTest::keyClicks(dialog.ui.first, first);
        QTest::keyClicks(dialog.ui.last, last);
        dialog.accept();
        QCOMPARE(facts(*m_plan->guests().value(0)), guest + s("||Undefined|adult||"));
        QCOMPARE(facts(*m_plan->groups().value(0)), group + s("||"));
    }

    void namesAreStrippedAndTheOtherTextsAreNot()
    {
        GuestDialog dialog(nullptr, m_plan);
        GuestForm::type(dialog.ui.title, "Mr ");
        GuestForm::type(dialog.ui.first, "  Bob  ");
        GuestForm::type(dialog.ui.last, " Smith ");
        GuestForm::type(dialog.ui.display, " B ");
        GuestForm::type(dialog.ui.meal, " Fish ");
        dialog.accept();
        QCOMPARE(facts(*m_plan->guests().value(0)), s(" B |Mr |Bob|Smith| Fish |Male|adult||"));
    }

    void aGuestWithoutANameIsRefused_data()
    {
        QTest::addColumn<QString>("first");
        QTest::newRow("nothing") << s("");
        QTest::newRow("blanks only") << s("   ");
    }

    void aGuestWithoutANameIsRefused()
    {
        QFETCH(QString, first);
        ScriptedPrompts prompts;
        prompts.answer(s("&OK"));
        GuestDialog dialog(nullptr, m_plan);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.title, "Dr");
        QTest::keyClicks(dialog.ui.first, first);
        dialog.tabs->setCurrentIndex(2);
        GuestForm::type(dialog.city, "York");
        dialog.click("m_addPushButton");
        QCOMPARE(prompts.messages.size(), 1);
        QCOMPARE(prompts.messages.first().icon, KWMessage::Critical);
        QCOMPARE(prompts.messages.first().caption, s("Ambrelune"));
        QCOMPARE(prompts.messages.first().text, refusal);
        QCOMPARE(prompts.messages.first().buttons, QStringList{s("&OK")});
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.tabs->currentIndex(), 0);
        QVERIFY(dialog.ui.first->hasFocus());
        QCOMPARE(dialog.ui.title->currentText(), s("Dr"));
        QCOMPARE(dialog.city->text(), s("York"));
        QCOMPARE(m_window->takeSteps(), QStringList());
        QTest::keyClicks(dialog.ui.first, s("ann"));
        dialog.click("m_addPushButton");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_plan->guests().value(0)->displayName(), s("Dr Ann"));
    }

    void aFirstNameOfBlanksIsRefusedHoweverItGotThere()
    {
        ScriptedPrompts prompts;
        prompts.answer(s("&OK"));
        GuestDialog dialog(nullptr, m_plan);
        dialog.ui.first->setValidator(nullptr);
        dialog.ui.first->setText(s(" \t "));
        QVERIFY(!dialog.apply());
        QCOMPARE(prompts.texts(), QStringList{refusal});
        QCOMPARE(m_window->takeSteps(), QStringList());
    }

    void aDuplicateIsAskedAbout_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("question");
        const auto row =
            [](const char *name, const char *title, const char *first, const char *last,
               const char *duplicate) {
                QTest::newRow(name)
                    << s(title) << s(first) << s(last)
                    << (*duplicate ? s("Allow guest with duplicate name '%1'?").arg(s(duplicate))
                                   : QString());
            };
        row("the same", "Mrs", "Ann", "Smith", "Mrs Ann Smith");
        row("other letter case", "mRS", "ANN", "smith", "MRS ANN Smith");
        row("blanks around", "Mrs", "Ann ", "Smith  ", "Mrs Ann Smith");
        row("blanks behind the title", "Mrs ", "Ann", "Smith", "Mrs  Ann Smith");
        row("no title", "", "Cleo", "Jones", "Cleo Jones");
        row("one name", "", "", "Dan", "Dan");
        row("other title", "Ms", "Ann", "Smith", "");
        row("other first name", "Mrs", "Anna", "Smith", "");
        row("other last name", "Mrs", "Ann", "Smithe", "");
    }

    void aDuplicateIsAskedAbout()
    {
        QFETCH(QString, title);
        QFETCH(QString, first);
        QFETCH(QString, last);
        QFETCH(QString, question);
        addNamed(*m_plan, "Mrs", "Ann", "Smith");
        addNamed(*m_plan, "", "Cleo", "Jones");
        addNamed(*m_plan, "", "", "Dan");
        GuestDialog dialog(nullptr, m_plan);
        QVERIFY(showActive(dialog));
        QTest::keyClicks(dialog.ui.title->lineEdit(), title);
        QTest::keyClicks(dialog.ui.first, first);
        QTest::keyClicks(dialog.ui.last, last);
        QString asked;
        ModalUser user;
        if (!question.isEmpty()) {
            user.onDialog<KWConfigurableWarningDlgImpl>([&](auto &warning) {
                asked = child<QLabel>(warning, "m_message")->text();
                child<QPushButton>(warning, "m_button1")->click();
            });
        }
        dialog.accept();
        QCOMPARE(asked, question);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_plan->guests().size(), 4);
    }

    void aDuplicateThatIsDeclinedLeavesTheDialogOpenAndNoUndoPoint()
    {
        addNamed(*m_plan, "", "Ann", "Smith");
        m_window->takeSteps();
        GuestDialog dialog(nullptr, m_plan);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.first, "Ann");
        GuestForm::type(dialog.ui.last, "Smith");
        for (const bool esc : {false, true}) {
            ModalUser user;
            user.onDialog<KWConfigurableWarningDlgImpl>([&](auto &warning) {
                if (esc)
                    QTest::keyClick(&warning, Qt::Key_Escape);
                else
                    child<QPushButton>(warning, "m_button2")->click();
            });
            dialog.click("m_addPushButton");
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.ui.last->text(), s("Smith"));
            QCOMPARE(m_window->takeSteps(), QStringList());
            QVERIFY(!QApplication::overrideCursor());
        }
    }

    void theQuestionAboutDuplicatesCanBeSwitchedOffInItAndBefore()
    {
        addNamed(*m_plan, "", "Ann", "");
        {
            ModalUser user;
            user.onDialog<KWConfigurableWarningDlgImpl>([](auto &warning) {
                child<QCheckBox>(warning, "m_showWarningCheckBox")->setChecked(false);
                child<QPushButton>(warning, "m_button1")->click();
            });
            GuestDialog dialog(nullptr, m_plan);
            GuestForm::type(dialog.ui.first, "Ann");
            QVERIFY(dialog.apply());
        }
        QVERIFY(!m_window->userSettings()->warningDuplicateGuest());
        GuestDialog dialog(nullptr, m_plan);
        GuestForm::type(dialog.ui.first, "Ann");
        QVERIFY(dialog.apply());
        QCOMPARE(m_plan->guests().size(), 3);
    }

    void theGroupNameFollowsTheNames()
    {
        GuestDialog dialog(nullptr, m_plan);
        GuestForm::type(dialog.ui.first, "ann");
        QCOMPARE(dialog.groupName->text(), s("Ann"));
        GuestForm::type(dialog.ui.last, "smith");
        QCOMPARE(dialog.groupName->text(), s("Smith"));
        GuestForm::type(dialog.ui.first, "bea");
        QCOMPARE(dialog.groupName->text(), s("Smith"));
        GuestForm::type(dialog.ui.last, "");
        QCOMPARE(dialog.groupName->text(), s("Bea"));
        GuestForm::type(dialog.ui.title, "Dr");
        GuestForm::type(dialog.ui.display, "Doctor");
        QCOMPARE(dialog.groupName->text(), s("Bea"));
    }

    void theGroupNameGoesOnFollowingThoughItWasTypedOver()
    {
        GuestDialog dialog(nullptr, m_plan);
        GuestForm::type(dialog.ui.last, "Smith");
        GuestForm::type(dialog.groupName, "Friends");
        QTest::keyClicks(dialog.ui.last, s("e"));
        QCOMPARE(dialog.groupName->text(), s("Smithe"));
    }

    void aGroupThatWasEmptiedMeanwhileIsTakenAway()
    {
        KWGroup *other = m_plan->addGroup({}, s("other"), {});
        connect(m_plan, &KWDocument::eventNewGuest, this,
                [&](KWGuest *guest) { m_plan->moveGuestToGroup(other, guest); });
        GuestDialog dialog(nullptr, m_plan);
        GuestForm::type(dialog.ui.first, "Ann");
        dialog.accept();
        QCOMPARE(m_plan->groups(), QList<KWGroup *>{other});
        QCOMPARE(other->guests(), m_plan->guests());
    }

    void withoutAMainWindowNamesHaveCapitalsAndTheGuestIsAdded()
    {
        m_window.reset();
        KWDocument plan;
        addNamed(plan, "", "Ann", "");
        GuestDialog dialog(nullptr, &plan);
        GuestForm::type(dialog.ui.first, "ann");
        dialog.accept();
        QCOMPARE(plan.guests().size(), 2);
        QCOMPARE(plan.guests().last()->firstName(), s("Ann"));
    }

    void withCapitalsSwitchedOffNamesStayInLowerCase()
    {
        m_window->userSettings()->setMiscCapitaliseNames(false);
        GuestDialog dialog(nullptr, m_plan);
        GuestForm::type(dialog.ui.first, "  ann");
        GuestForm::type(dialog.ui.last, " smith");
        QCOMPARE(dialog.ui.display->text(), s("ann smith"));
        QCOMPARE(dialog.groupName->text(), s("smith"));
    }

private:
    std::unique_ptr<LoggingWindow> m_window;
    KWDocument *m_plan = nullptr;
};

REGISTER_TEST(TestKWGuestDlgInsert)
#include "tst_kwguestdlg_insert.moc"
