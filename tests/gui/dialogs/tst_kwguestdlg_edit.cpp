#include "gui/framework/kwconfigurablewarningdlgimpl.h"
#include "support/gui/guestdialogtest.h"
#include "support/gui/modaluser.h"
#include "support/registeredtest.h"

// The dialog as it edits a guest or a group.

namespace {

/// Ann of the group Smith, with something in every field.
KWGuest *addAnn(KWDocument &plan)
{
    KWContact contact;
    contact.city = s("York");
    return plan.addGuest({.display_name = s("Dr Ann Smith"),
                          .title = s("Dr"),
                          .first_name = s("Ann"),
                          .last_name = s("Smith"),
                          .meal = s("Fish"),
                          .gender = KWGuest::Female,
                          .age = KWGuest::Child,
                          .locked = true,
                          .notes = s("nuts"),
                          .vip = true,
                          .accepted = true},
                         plan.addGroup(contact, s("The Smiths"), s("friday")));
}

const QString annsFacts = s("Dr Ann Smith|Dr|Ann|Smith|Fish|Female|child|nuts|lockedvipaccepted");
} // namespace

class TestKWGuestDlgEdit : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        TestHome::clearSettings();
        m_window = std::make_unique<LoggingWindow>();
        m_plan = m_window->document();
        m_ann = addAnn(*m_plan);
        m_window->takeSteps();
    }

    void cleanup() { m_window.reset(); }

    void theGuestAndTheGroupAreShown()
    {
        addGuest(*m_plan, {.name = "Bob"})->setMeal(s("Beef"));
        const GuestDialog dialog(nullptr, m_plan, m_ann);
        QCOMPARE(dialog.ui.title->currentText(), s("Dr"));
        QCOMPARE(GuestForm::entries(dialog.ui.title), m_plan->titles());
        QCOMPARE(dialog.ui.first->text(), s("Ann"));
        QCOMPARE(dialog.ui.last->text(), s("Smith"));
        QCOMPARE(dialog.ui.display->text(), s("Dr Ann Smith"));
        QCOMPARE(dialog.ui.gender->currentText(), s("Female"));
        QCOMPARE(dialog.ui.age->currentText(), s("Child"));
        QCOMPARE(dialog.ui.meal->currentText(), s("Fish"));
        QCOMPARE(GuestForm::entries(dialog.ui.meal), (QStringList{s("Beef"), s("Fish")}));
        QCOMPARE(dialog.ui.notes->toPlainText(), s("nuts"));
        QVERIFY(dialog.ui.vip->isChecked());
        QVERIFY(dialog.ui.accepted->isChecked());
        QVERIFY(dialog.ui.locked->isChecked());
        QCOMPARE(dialog.groupName->text(), s("The Smiths"));
        QCOMPARE(dialog.groupNotes->toPlainText(), s("friday"));
        QCOMPARE(dialog.city->text(), s("York"));
    }

    void anAgeThatTheTitleDoesNotTellIsShownAsItIs()
    {
        m_ann->setTitle(s("Mr"));
        const GuestDialog dialog(nullptr, m_plan, m_ann);
        QCOMPARE(dialog.ui.gender->currentText(), s("Female"));
        QCOMPARE(dialog.ui.age->currentText(), s("Child"));
    }

    void theSeatIsShownCountedFromOne()
    {
        const auto assigned = [this] {
            const GuestDialog dialog(nullptr, m_plan, m_ann);
            return child<QLabel>(dialog, "m_assignedTextLabel")->text();
        };
        QCOMPARE(assigned(), QString());
        KWTable *table = addTable(*m_plan, "Top <b>%2</b>", KWTable::Circular, 8);
        m_plan->assignGuest(m_ann, table, 0, false);
        QCOMPARE(assigned(), s("Top <b>%2</b>, seat 1"));
        m_plan->assignGuest(m_ann, table, 7, false);
        QCOMPARE(assigned(), s("Top <b>%2</b>, seat 8"));
    }

    void aLongNameOfATableIsCutInTheMiddle()
    {
        const QByteArray name = "The table of " + QByteArray(500, 'x');
        KWTable *table = addTable(*m_plan, name.constData(), KWTable::Circular, 8);
        m_plan->assignGuest(m_ann, table, 2, false);
        const GuestDialog dialog(nullptr, m_plan, m_ann);
        const QString text = child<QLabel>(dialog, "m_assignedTextLabel")->text();
        QVERIFY(text.startsWith(s("The table of x")));
        QVERIFY(text.contains(u'\u2026'));
        QVERIFY(text.endsWith(s("x, seat 3")));
        QVERIFY(dialog.width() < 600);
    }

    void okWritesAllValuesOfTheGuestAndTheGroup()
    {
        GuestDialog dialog(nullptr, m_plan, m_ann);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.title, "Prof");
        GuestForm::type(dialog.ui.first, " bea ");
        GuestForm::type(dialog.ui.last, "jones ");
        GuestForm::type(dialog.ui.meal, "Beef");
        GuestForm::pick(dialog.ui.gender, "Undefined");
        GuestForm::pick(dialog.ui.age, "Adult");
        QTest::keyClicks(dialog.ui.notes, s("no "));
        for (QCheckBox *box : {dialog.ui.vip, dialog.ui.accepted, dialog.ui.locked})
            QTest::keyClick(box, Qt::Key_Space);
        GuestForm::type(dialog.groupName, "Friends");
        QTest::keyClicks(dialog.groupNotes, s("on "));
        GuestForm::type(dialog.city, "Leeds");
        QCOMPARE(facts(*m_ann), annsFacts);
        dialog.click("m_okPushButton");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(facts(*m_ann), s("Prof Bea Jones|Prof|Bea|Jones|Beef|Undefined|adult|no nuts|"));
        QCOMPARE(facts(*m_ann->group()), s("Friends|Leeds|on friday"));
        QCOMPARE(m_plan->guests().size(), 1);
        QCOMPARE(m_plan->groups().size(), 1);
    }

    void theUndoPointComesFirstThenTheGuestThenTheGroup()
    {
        GuestDialog dialog(nullptr, m_plan, m_ann);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.meal, "Beef");
        GuestForm::type(dialog.groupName, "Friends");
        QCOMPARE(m_window->takeSteps(), QStringList());
        QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
        QTRY_VERIFY(!dialog.isVisible());
        QCOMPARE(m_window->takeSteps(),
                 (QStringList{s("undo Edit guest"), s("eventEditGuest(Dr Ann Smith)"),
                              s("eventModified()"), s("eventEditGroup(Friends)"),
                              s("eventModified()")}));
        QVERIFY(m_window->wasBusy());
        QVERIFY(!QApplication::overrideCursor());
    }

    void okWithoutAChangeMakesAnUndoPointAndNoEvent()
    {
        GuestDialog dialog(nullptr, m_plan, m_ann);
        dialog.accept();
        QCOMPARE(m_window->takeSteps(), QStringList{s("undo Edit guest")});
        QCOMPARE(facts(*m_ann), annsFacts);
        QVERIFY(!dialog.isVisible());
    }

    void textsThatTheFieldsWouldTidyStayIfTheyAreNotTouched()
    {
        m_ann->setTitle(s("gräfin"));
        m_ann->setFirstName(s("mary\nann"));
        m_ann->setLastName(s("von der heide"));
        m_ann->setNotes(s("ten\u00a0\u20ac\r\neach"));
        m_ann->group()->setNotes(s("a\r\nb"));
        const QString before = facts(*m_ann) + facts(*m_ann->group());
        GuestDialog dialog(nullptr, m_plan, m_ann);
        GuestForm::type(dialog.ui.meal, "Beef");
        dialog.accept();
        QCOMPARE(facts(*m_ann) + facts(*m_ann->group()),
                 QString(before).replace(s("Fish"), s("Beef")));
    }

    void returnInAFieldAccepts()
    {
        GuestDialog dialog(nullptr, m_plan, m_ann);
        QVERIFY(showActive(dialog));
        QTest::keyClick(dialog.ui.first, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void cancelWritesNothing()
    {
        GuestDialog dialog(nullptr, m_plan, m_ann);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.meal, "Beef");
        dialog.click("m_cancelPushButton");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_window->takeSteps(), QStringList());
        QCOMPARE(facts(*m_ann), annsFacts);
    }

    void aDisplayNameThatTheNamesGiveFollowsThem()
    {
        GuestDialog dialog(nullptr, m_plan, m_ann);
        GuestForm::type(dialog.ui.first, "Bea");
        dialog.accept();
        QCOMPARE(m_ann->displayName(), s("Dr Bea Smith"));
    }

    void aDisplayNameMadeByHandStays()
    {
        m_ann->setDisplayName(s("Auntie Ann"));
        GuestDialog dialog(nullptr, m_plan, m_ann);
        GuestForm::type(dialog.ui.first, "Bea");
        dialog.accept();
        QCOMPARE(m_ann->displayName(), s("Auntie Ann"));
        QCOMPARE(m_ann->firstName(), s("Bea"));
    }

    void theGroupNameDoesNotFollowTheNames()
    {
        GuestDialog dialog(nullptr, m_plan, m_ann);
        GuestForm::type(dialog.ui.first, "Bea");
        GuestForm::type(dialog.ui.last, "Jones");
        QCOMPARE(dialog.groupName->text(), s("The Smiths"));
    }

    void aGuestWithoutANameIsRefused()
    {
        ScriptedPrompts prompts;
        prompts.answer(s("&OK"));
        GuestDialog dialog(nullptr, m_plan, m_ann);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.first, "");
        GuestForm::type(dialog.ui.last, "  ");
        dialog.click("m_okPushButton");
        QCOMPARE(prompts.texts(), QStringList{s("No first name or last name supplied.")});
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.ui.first->hasFocus());
        QCOMPARE(m_window->takeSteps(), QStringList());
        QCOMPARE(facts(*m_ann), annsFacts);
    }

    void theGuestsOwnNameIsNoDuplicateAndAnothersIs()
    {
        KWGuest *other = addAnn(*m_plan);
        other->setFirstName(s("BEA"));
        m_window->takeSteps();
        GuestDialog dialog(nullptr, m_plan, m_ann);
        QVERIFY(showActive(dialog));
        GuestForm::type(dialog.ui.first, "Bea ");
        QString asked;
        {
            ModalUser user;
            user.onDialog<KWConfigurableWarningDlgImpl>([&](auto &warning) {
                asked = child<QLabel>(warning, "m_message")->text();
                child<QPushButton>(warning, "m_button2")->click();
            });
            dialog.click("m_okPushButton");
        }
        QCOMPARE(asked, s("Allow guest with duplicate name 'Dr Bea Smith'?"));
        QVERIFY(dialog.isVisible());
        QCOMPARE(m_window->takeSteps(), QStringList());
        {
            ModalUser user;
            user.onDialog<KWConfigurableWarningDlgImpl>(
                [](auto &warning) { child<QPushButton>(warning, "m_button1")->click(); });
            dialog.click("m_okPushButton");
        }
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_ann->firstName(), s("Bea"));
    }

    void aGuestWithoutAGroupCanBeEditedAlone()
    {
        KWGuest *bob = m_plan->addGuest(
            {.display_name = s("Bob"), .first_name = s("Bob"), .gender = KWGuest::Male}, nullptr);
        m_window->takeSteps();
        GuestDialog dialog(nullptr, m_plan, bob);
        QVERIFY(dialog.tabs->isTabEnabled(0));
        QVERIFY(!dialog.tabs->isTabEnabled(1));
        QVERIFY(!dialog.tabs->isTabEnabled(2));
        GuestForm::type(dialog.ui.meal, "Beef");
        dialog.accept();
        QCOMPARE(m_window->takeSteps(), (QStringList{s("undo Edit guest"), s("eventEditGuest(Bob)"),
                                                     s("eventModified()")}));
    }

    void withoutAMainWindowTheGuestIsWritten()
    {
        m_window.reset();
        KWDocument plan;
        KWGuest *ann = addAnn(plan);
        GuestDialog dialog(nullptr, &plan, ann);
        GuestForm::type(dialog.ui.meal, "Beef");
        dialog.accept();
        QCOMPARE(ann->meal(), s("Beef"));
    }

    void aGroupIsShownAndWritten()
    {
        KWGroup *group = m_ann->group();
        GuestDialog dialog(nullptr, m_plan, group);
        QVERIFY(showActive(dialog));
        QCOMPARE(dialog.groupName->text(), s("The Smiths"));
        QCOMPARE(dialog.groupNotes->toPlainText(), s("friday"));
        QCOMPARE(dialog.city->text(), s("York"));
        GuestForm::type(dialog.groupName, "Friends");
        QTest::keyClicks(dialog.groupNotes, s("on "));
        GuestForm::type(dialog.city, "Leeds");
        QCOMPARE(m_window->takeSteps(), QStringList());
        QTest::keyClick(dialog.city, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(facts(*group), s("Friends|Leeds|on friday"));
        QCOMPARE(m_window->takeSteps(),
                 (QStringList{s("undo Edit group"), s("eventEditGroup(Friends)"),
                              s("eventModified()")}));
        QVERIFY(m_window->wasBusy());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(facts(*m_ann), annsFacts);
    }

    void aGroupNeedsNoName()
    {
        GuestDialog dialog(nullptr, m_plan, m_ann->group());
        GuestForm::type(dialog.groupName, "");
        dialog.accept();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_ann->group()->name(), QString());
    }

private:
    std::unique_ptr<LoggingWindow> m_window;
    KWDocument *m_plan = nullptr;
    KWGuest *m_ann = nullptr;
};

REGISTER_TEST(TestKWGuestDlgEdit)
#include "tst_kwguestdlg_edit.moc"
