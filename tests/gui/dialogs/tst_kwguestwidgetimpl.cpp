#include "gui/framework/kwwhatsthishelper.h"
#include "support/gui/guestform.h"
#include "support/registeredtest.h"

class TestKWGuestWidgetImpl : public QObject
{
    Q_OBJECT

private slots:
    void eachWidgetHasItsTexts_data();
    void eachWidgetHasItsTexts();
    void theListsOfGenderAndAgeAreTheirValues();
    void editableListsTakeInNothingAndCompleteNothing();
    void theTabKeyLeavesTheNotesAndTheyTakePlainText();

    void aListDoesNotChangeTheTextThatIsShown();
    void arrowKeysGoOnFromTheTextThatIsShown();
    void aPickMovesTheFocusOn_data();
    void aPickMovesTheFocusOn();
    void aPickByReturnMovesTheFocusOn();
    void theWheelPassesOverFieldsWithoutTheFocus();
    void anArrowKeyKeepsTheFocus();
    void leavingTitleAndMealTellsTheirTexts();
    void changedNamesAreTold();

    void valuesGoInAndOut();
    void longTextsAndNotesThatAreNotTouchedComeBackAsTheyWere();
    void clearLeavesGenderAgeMealAndLock();
    void aRemovedLockIsGoneFromTheForm();
    void aNewLanguageTranslatesTheFormAndWhatWasRemoved();
};

void TestKWGuestWidgetImpl::eachWidgetHasItsTexts_data()
{
    const char *title = "Type or select title, e.g. Mr or Dr,<br>auto-capitalisation can be turned "
                        "off in the Preferences window";
    const char *first = "First (given) name,<br>auto-capitalisation can be turned off in the "
                        "Preferences window";
    const char *last = "Last (family) name,<br>auto-capitalisation can be turned off in the "
                       "Preferences window";
    const char *locked = "Check this box if you want to stop this guest being reassigned by "
                         "auto-layout";
    addFormRows({
        {"m_titleLabel", "&Title:", ""},
        {"m_titleCombo", "", title},
        {"m_firstNameLabel", "&First name:", ""},
        {"m_firstNameLineEdit", "", first},
        {"m_lastNameLabel", "&Last name:", ""},
        {"m_lastNameLineEdit", "", last},
        {"m_displayNameLabel", "Displa&y name:", ""},
        {"m_displayNameLineEdit", "", "Display name<br>You can add qualifications and titles here"},
        {"m_genderLabel", "Gen&der:", ""},
        {"m_genderComboBox", "", "Gender of guest"},
        {"m_ageLabel", "Ag&e:", ""},
        {"m_ageComboBox", "", "Age of guest"},
        {"m_mealLabel", "&Meal:", ""},
        {"m_mealCombo", "", "Type or select the meal choice for the guest"},
        {"m_notesLabel", "&Notes:", ""},
        {"m_notesTextEdit", "", "Notes for guest"},
        {"m_vipCheckBox", "&VIP", "Check this box for the most important guests", "Alt+V"},
        {"m_acceptedCheckBox", "accepted &invite",
         "Check this box for guests who have accepted their invitation", "Alt+I"},
        {"m_lockedCheckBox", "loc&ked", locked, "Alt+K"},
    });
}

void TestKWGuestWidgetImpl::eachWidgetHasItsTexts()
{
    KWGuestWidgetImpl widget;
    new KWWhatsThisHelper(&widget);
    compareFormRow(widget);
}

void TestKWGuestWidgetImpl::theListsOfGenderAndAgeAreTheirValues()
{
    const ShownGuestForm form;
    QCOMPARE(GuestForm::entries(form.ui.gender),
             (QStringList{s("Undefined"), s("Male"), s("Female")}));
    QCOMPARE(GuestForm::entries(form.ui.age), (QStringList{s("Adult"), s("Child")}));
    QCOMPARE(form.genderAndAge(), s("Undefined Adult"));
}

void TestKWGuestWidgetImpl::editableListsTakeInNothingAndCompleteNothing()
{
    ShownGuestForm form;
    for (KWPickComboBox *combo : {form.ui.title, form.ui.meal}) {
        const QStringList before = GuestForm::entries(combo);
        GuestForm::type(combo, "Ve");
        QCOMPARE(combo->currentText(), s("Ve"));
        QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
        QCOMPARE(GuestForm::entries(combo), before);
        QCOMPARE(combo->currentText(), s("Ve"));
    }
}

void TestKWGuestWidgetImpl::theTabKeyLeavesTheNotesAndTheyTakePlainText()
{
    ShownGuestForm form;
    form.ui.notes->setFocus();
    QTest::keyClick(form.ui.notes, Qt::Key_Tab);
    QVERIFY(form.ui.vip->hasFocus());
    QVERIFY(!form.ui.notes->acceptRichText());
}

void TestKWGuestWidgetImpl::aListDoesNotChangeTheTextThatIsShown()
{
    ShownGuestForm form;
    QCOMPARE(form.widget.values().meal, QString());
    GuestForm::type(form.ui.meal, "Goose");
    QSignalSpy changed(form.ui.meal, &QComboBox::editTextChanged);
    form.widget.setMealChoices({s("Duck"), s("Goose"), s("Hare")});
    QCOMPARE(form.widget.values().meal, s("Goose"));
    form.widget.setMealChoices({s("Duck")});
    QCOMPARE(form.widget.values().meal, s("Goose"));
    QCOMPARE(GuestForm::entries(form.ui.meal), QStringList{s("Duck")});
    QCOMPARE(changed.count(), 0);
}

void TestKWGuestWidgetImpl::arrowKeysGoOnFromTheTextThatIsShown()
{
    ShownGuestForm form;
    QTest::keyClick(form.ui.meal->lineEdit(), Qt::Key_Down);
    QCOMPARE(form.widget.values().meal, s("Beef"));
    form.widget.setValues({.meal = s("Fish")});
    QTest::keyClick(form.ui.meal->lineEdit(), Qt::Key_Down);
    QCOMPARE(form.widget.values().meal, s("Vegan"));
}

void TestKWGuestWidgetImpl::aPickMovesTheFocusOn_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("to");
    QTest::newRow("title") << s("m_titleCombo") << s("Mrs") << s("m_firstNameLineEdit");
    QTest::newRow("gender") << s("m_genderComboBox") << s("Female") << s("m_ageComboBox");
    QTest::newRow("age") << s("m_ageComboBox") << s("Child") << s("m_mealCombo");
    QTest::newRow("meal") << s("m_mealCombo") << s("Fish") << s("m_mealCombo");
}

void TestKWGuestWidgetImpl::aPickMovesTheFocusOn()
{
    QFETCH(QString, from);
    QFETCH(QString, entry);
    QFETCH(QString, to);
    ShownGuestForm form;
    auto *combo = child<QComboBox>(form.widget, from);
    combo->setFocus();
    GuestForm::pick(combo, qPrintable(entry));
    QCOMPARE(combo->currentText(), entry);
    QTRY_COMPARE(QApplication::focusWidget(), child<QWidget>(form.widget, to));
}

void TestKWGuestWidgetImpl::aPickByReturnMovesTheFocusOn()
{
    ShownGuestForm form;
    form.ui.gender->setFocus();
    form.ui.gender->showPopup();
    QTest::keyClick(form.ui.gender->view(), Qt::Key_Down);
    QTest::keyClick(form.ui.gender->view(), Qt::Key_Return);
    QCOMPARE(form.widget.values().gender, int(KWGuest::Male));
    QTRY_COMPARE(QApplication::focusWidget(), form.ui.age);
}

void TestKWGuestWidgetImpl::theWheelPassesOverFieldsWithoutTheFocus()
{
    ShownGuestForm form;
    form.widget.focusFirstName();
    for (QComboBox *combo : {form.ui.title, form.ui.gender, form.ui.age, form.ui.meal}) {
        const QString before = combo->currentText();
        const QPointF place(combo->rect().center());
        QWheelEvent wheel(place, combo->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(combo, &wheel);
        QVERIFY(!wheel.isAccepted());
        QCOMPARE(combo->currentText(), before);
    }
    GuestForm::type(form.ui.title, "Mr");
    QCOMPARE(form.genderAndAge(), s("Male Adult"));
}

void TestKWGuestWidgetImpl::anArrowKeyKeepsTheFocus()
{
    ShownGuestForm form;
    for (KWPickComboBox *combo : {form.ui.title, form.ui.gender, form.ui.age}) {
        combo->setFocus();
        QWidget *keys = QApplication::focusWidget();
        QTest::keyClick(keys, Qt::Key_Down);
        QCOMPARE(combo->currentIndex(), 1);
        QCOMPARE(QApplication::focusWidget(), keys);
    }
}

void TestKWGuestWidgetImpl::leavingTitleAndMealTellsTheirTexts()
{
    ShownGuestForm form;
    QSignalSpy titles(&form.widget, &KWGuestWidgetImpl::titleTextChanged);
    QSignalSpy meals(&form.widget, &KWGuestWidgetImpl::mealTextChanged);
    form.widget.focusTitle();
    QTest::keyClicks(form.ui.title->lineEdit(), s("prof"));
    QCOMPARE(titles.count(), 0);
    form.widget.focusFirstName();
    QCOMPARE(titles, (QList<QVariantList>{{s("Prof")}}));
    form.ui.meal->setFocus();
    QTest::keyClicks(form.ui.meal->lineEdit(), s("goose"));
    form.widget.focusTitle();
    QCOMPARE(meals, (QList<QVariantList>{{s("goose")}}));
    // The Return key leaves nothing.
    QTest::keyClick(form.ui.title->lineEdit(), Qt::Key_Return);
    QCOMPARE(titles.count(), 1);
    form.widget.focusFirstName();
    QCOMPARE(titles.count(), 2);
}

void TestKWGuestWidgetImpl::changedNamesAreTold()
{
    ShownGuestForm form;
    QSignalSpy firsts(&form.widget, &KWGuestWidgetImpl::firstNameChanged);
    QSignalSpy lasts(&form.widget, &KWGuestWidgetImpl::lastNameChanged);
    QTest::keyClicks(form.ui.first, s("al"));
    form.widget.setValues({.first_name = s("Al"), .last_name = s("smith")});
    QCOMPARE(firsts, (QList<QVariantList>{{s("A")}, {s("Al")}}));
    QCOMPARE(lasts, (QList<QVariantList>{{s("smith")}}));
}

void TestKWGuestWidgetImpl::valuesGoInAndOut()
{
    ShownGuestForm form;
    KWGuestWidgetImpl &widget = form.widget;
    const KWGuestValues lord{.display_name = s("A"),
                             .title = s("Lord"),
                             .first_name = s("Ann"),
                             .last_name = s("Smith"),
                             .meal = s("Goose"),
                             .gender = KWGuest::Female,
                             .age = KWGuest::Child,
                             .locked = true,
                             .notes = s("<b>nuts</b>\nno"),
                             .vip = true,
                             .accepted = true};
    widget.setValues(lord);
    QVERIFY(widget.values() == lord);
    QCOMPARE(form.ui.title->currentText(), s("Lord"));
    QCOMPARE(form.ui.first->text(), s("Ann"));
    QCOMPARE(form.ui.last->text(), s("Smith"));
    QCOMPARE(form.ui.display->text(), s("A"));
    QCOMPARE(form.genderAndAge(), s("Female Child"));
    QCOMPARE(form.ui.meal->currentText(), s("Goose"));
    QCOMPARE(form.ui.notes->toPlainText(), s("<b>nuts</b>\nno"));
    for (QCheckBox *box : {form.ui.vip, form.ui.accepted, form.ui.locked}) {
        QVERIFY(box->isChecked());
        QTest::keyClick(box, Qt::Key_Space);
    }
    const KWGuestValues unticked = widget.values();
    QVERIFY(!unticked.vip && !unticked.accepted && !unticked.locked);
    QTest::keyClicks(form.ui.notes, s("No "));
    QCOMPARE(widget.values().notes, s("No <b>nuts</b>\nno"));
    QTest::keyClick(form.ui.gender, Qt::Key_Up);
    QTest::keyClick(form.ui.age, Qt::Key_Up);
    QCOMPARE(widget.values().gender, int(KWGuest::Male));
    QCOMPARE(widget.values().age, int(KWGuest::Adult));
}

void TestKWGuestWidgetImpl::longTextsAndNotesThatAreNotTouchedComeBackAsTheyWere()
{
    const QString text(40000, u'x');
    KWGuestWidgetImpl widget;
    const KWGuestValues values{.display_name = text,
                               .title = text,
                               .first_name = text,
                               .last_name = text,
                               .meal = text,
                               .notes = s("ten\u00a0\u20ac\r\neach")};
    widget.setValues(values);
    QVERIFY(widget.values() == values);
}

void TestKWGuestWidgetImpl::clearLeavesGenderAgeMealAndLock()
{
    ShownGuestForm form;
    form.typeNames("Mrs", "Ann", "Smith");
    GuestForm::type(form.ui.display, "Auntie");
    GuestForm::type(form.ui.meal, "Fish");
    QTest::keyClicks(form.ui.notes, s("nuts"));
    GuestForm::pick(form.ui.age, "Child");
    for (QCheckBox *box : {form.ui.vip, form.ui.accepted, form.ui.locked})
        box->setChecked(true);
    form.widget.clear();
    QVERIFY(
        form.widget.values() ==
        (KWGuestValues{
            .meal = s("Fish"), .gender = KWGuest::Female, .age = KWGuest::Child, .locked = true}));
    QCOMPARE(form.ui.notes->toPlainText(), QString());
    GuestForm::type(form.ui.first, "Bea");
    QCOMPARE(form.widget.values().display_name, s("Bea"));
}

void TestKWGuestWidgetImpl::aRemovedLockIsGoneFromTheForm()
{
    ShownGuestForm form;
    form.widget.setValues({.locked = true});
    form.widget.removeLocked();
    QVERIFY(!form.widget.findChild<QWidget *>(s("m_lockedCheckBox")));
    QVERIFY(!form.widget.values().locked);
    form.ui.accepted->setFocus();
    QTest::keyClick(form.ui.accepted, Qt::Key_Tab);
    QVERIFY(form.ui.title->hasFocus());
}

void TestKWGuestWidgetImpl::aNewLanguageTranslatesTheFormAndWhatWasRemoved()
{
    ShownGuestForm form;
    form.widget.setValues({.title = s("Dr"), .gender = KWGuest::Female});
    form.widget.removeLocked();
    const BracketTranslator translator;
    QTRY_COMPARE(child<QLabel>(form.widget, "m_titleLabel")->text(), s("[&Title:]"));
    QCOMPARE(form.genderAndAge(), s("[Female] [Adult]"));
    QCOMPARE(form.widget.values().title, s("Dr"));
    QVERIFY(!form.widget.findChild<QWidget *>(s("m_lockedCheckBox")));
}

REGISTER_TEST(TestKWGuestWidgetImpl)
#include "tst_kwguestwidgetimpl.moc"
