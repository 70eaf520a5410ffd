#include "support/gui/fakemainwindow.h"
#include "support/gui/guestform.h"
#include "support/registeredtest.h"

// What the form for a guest makes of titles and names while they are typed.

class TestKWGuestWidgetNames : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void theTitleTellsGenderAndAge_data();
    void theTitleTellsGenderAndAge();
    void theTitleDrLeavesGenderAndAgeAsTheyWere();
    void theTitleMissLeavesAnEarlierChildInPlace();
    void typingMrsPassesThroughMrAndEndsAtFemale();
    void aTitleFromTheListTellsTheSame();
    void aGenderChosenByHandIsKept();
    void anAgeChosenByHandIsKept();
    void aGenderThatTheProgramSetsIsNoChoice();
    void titlesOfAnotherLanguageTellTheSame();
    void theDisplayNameFollowsTheOtherNames();
    void aDisplayNameTypedByHandIsLeftAlone();
    void aDisplayNameThatIsSetFollowsIfTheNamesGiveIt_data();
    void aDisplayNameThatIsSetFollowsIfTheNamesGiveIt();
    void namesGetTheirCapitalsUnlessThatIsSwitchedOff_data();
    void namesGetTheirCapitalsUnlessThatIsSwitchedOff();
    void theDisplayNameAndTheMealAreNotTidied();
    void withTheSettingOffANameInLowerCaseStaysSoButLeadingBlanksGo();
    void aTitlePickedFromTheListStaysAsItIs();
    void namesThatAreSetStayAsTheyAreUntilSomebodyTypes();
};

void TestKWGuestWidgetNames::theTitleTellsGenderAndAge_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("fromUndefinedAdult");
    QTest::addColumn<QString>("fromFemaleChild");
    const auto row = [](const char *title, const char *fromUndefinedAdult,
                        const char *fromFemaleChild) {
        QTest::newRow(title) << s(title) << s(fromUndefinedAdult) << s(fromFemaleChild);
    };
    row("Mr", "Male Adult", "Male Adult");
    row("Mrs", "Female Adult", "Female Adult");
    row("Ms", "Female Adult", "Female Adult");
    row("Miss", "Female Adult", "Female Child");
    row("Master", "Male Child", "Male Child");
    row("Dr", "Undefined Adult", "Female Adult");
    row("Prof", "Undefined Adult", "Female Child");
    row("Mr and Mrs", "Undefined Adult", "Female Child");
    row("Mr ", "Undefined Adult", "Female Child");
    row("MR", "Undefined Adult", "Female Child");
    row("", "Undefined Adult", "Female Child");
}

void TestKWGuestWidgetNames::theTitleTellsGenderAndAge()
{
    QFETCH(QString, title);
    QFETCH(QString, fromUndefinedAdult);
    QFETCH(QString, fromFemaleChild);
    ShownGuestForm form;
    GuestForm::paste(form.ui.title->lineEdit(), title);
    QCOMPARE(form.genderAndAge(), fromUndefinedAdult);

    ShownGuestForm girl;
    girl.widget.setValues({.gender = KWGuest::Female, .age = KWGuest::Child});
    GuestForm::paste(girl.ui.title->lineEdit(), title);
    QCOMPARE(girl.genderAndAge(), fromFemaleChild);
}

void TestKWGuestWidgetNames::theTitleDrLeavesGenderAndAgeAsTheyWere()
{
    ShownGuestForm form;
    GuestForm::pick(form.ui.gender, "Female");
    GuestForm::pick(form.ui.age, "Child");
    GuestForm::type(form.ui.title, "dr");
    QCOMPARE(form.widget.values().title, s("Dr"));
    QCOMPARE(form.genderAndAge(), s("Female Child"));
}

void TestKWGuestWidgetNames::theTitleMissLeavesAnEarlierChildInPlace()
{
    ShownGuestForm form;
    GuestForm::type(form.ui.title, "Master");
    QCOMPARE(form.genderAndAge(), s("Male Child"));
    GuestForm::paste(form.ui.title->lineEdit(), s("Miss"));
    QCOMPARE(form.genderAndAge(), s("Female Child"));
}

void TestKWGuestWidgetNames::typingMrsPassesThroughMrAndEndsAtFemale()
{
    ShownGuestForm form;
    GuestForm::type(form.ui.title, "mr");
    QCOMPARE(form.ui.title->currentText(), s("Mr"));
    QCOMPARE(form.genderAndAge(), s("Male Adult"));
    QTest::keyClicks(form.ui.title->lineEdit(), s("s"));
    QCOMPARE(form.genderAndAge(), s("Female Adult"));
}

void TestKWGuestWidgetNames::aTitleFromTheListTellsTheSame()
{
    ShownGuestForm form;
    GuestForm::pick(form.ui.title, "Master");
    QCOMPARE(form.genderAndAge(), s("Male Child"));
    GuestForm::pick(form.ui.title, "Dr");
    QCOMPARE(form.genderAndAge(), s("Male Adult"));
}

void TestKWGuestWidgetNames::aGenderChosenByHandIsKept()
{
    ShownGuestForm form;
    GuestForm::pick(form.ui.gender, "Female");
    GuestForm::type(form.ui.title, "Mr");
    QCOMPARE(form.genderAndAge(), s("Female Adult"));
    GuestForm::type(form.ui.title, "Master");
    QCOMPARE(form.genderAndAge(), s("Female Child"));

    ShownGuestForm byArrow;
    QTest::keyClick(byArrow.ui.gender, Qt::Key_Down);
    GuestForm::type(byArrow.ui.title, "Mrs");
    QCOMPARE(byArrow.genderAndAge(), s("Male Adult"));
}

void TestKWGuestWidgetNames::anAgeChosenByHandIsKept()
{
    ShownGuestForm form;
    GuestForm::pick(form.ui.age, "Child");
    GuestForm::type(form.ui.title, "Mrs");
    QCOMPARE(form.genderAndAge(), s("Female Child"));
    GuestForm::type(form.ui.title, "Master");
    GuestForm::type(form.ui.title, "Mr");
    QCOMPARE(form.genderAndAge(), s("Male Child"));
}

void TestKWGuestWidgetNames::aGenderThatTheProgramSetsIsNoChoice()
{
    ShownGuestForm form;
    form.widget.setValues({.gender = KWGuest::Female, .age = KWGuest::Child});
    GuestForm::type(form.ui.title, "Mr");
    QCOMPARE(form.genderAndAge(), s("Male Adult"));
}

void TestKWGuestWidgetNames::titlesOfAnotherLanguageTellTheSame()
{
    const BracketTranslator translator;
    ShownGuestForm form;
    QVERIFY(GuestForm::entries(form.ui.title).contains(s("[Mrs]")));
    GuestForm::pick(form.ui.title, "[Mrs]");
    QCOMPARE(form.widget.values().gender, int(KWGuest::Female));
    GuestForm::type(form.ui.title, "Mr");
    QCOMPARE(form.widget.values().gender, int(KWGuest::Female));
    GuestForm::pick(form.ui.title, "[Master]");
    QCOMPARE(form.widget.values().gender, int(KWGuest::Male));
    QCOMPARE(form.widget.values().age, int(KWGuest::Child));
}

void TestKWGuestWidgetNames::theDisplayNameFollowsTheOtherNames()
{
    ShownGuestForm form;
    GuestForm::type(form.ui.first, "ann");
    QCOMPARE(form.widget.values().display_name, s("Ann"));
    GuestForm::type(form.ui.last, "smith ");
    QCOMPARE(form.widget.values().display_name, s("Ann Smith"));
    GuestForm::pick(form.ui.title, "Dr");
    QCOMPARE(form.widget.values().display_name, s("Dr Ann Smith"));
    GuestForm::type(form.ui.first, "");
    QCOMPARE(form.widget.values().display_name, s("Dr  Smith"));
    GuestForm::type(form.ui.title, "");
    QCOMPARE(form.widget.values().display_name, s("Smith"));
}

void TestKWGuestWidgetNames::aDisplayNameTypedByHandIsLeftAlone()
{
    ShownGuestForm form;
    form.typeNames("Dr", "Ann", "Smith");
    QTest::keyClicks(form.ui.display, s(" FRS"));
    form.typeNames("Mrs", "Bea", "Jones");
    QCOMPARE(form.widget.values().display_name, s("Dr Ann Smith FRS"));

    ShownGuestForm emptied;
    GuestForm::type(emptied.ui.first, "Ann");
    GuestForm::type(emptied.ui.display, "");
    GuestForm::type(emptied.ui.last, "Smith");
    QCOMPARE(emptied.widget.values().display_name, QString());
}

void TestKWGuestWidgetNames::aDisplayNameThatIsSetFollowsIfTheNamesGiveIt_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("afterwards");
    const auto row = [](const char *name, const char *first, const char *display,
                        const char *afterwards) {
        QTest::newRow(name) << s(first) << s(display) << s(afterwards);
    };
    row("as the names give it", "Ann", "Dr Ann Smith", "Dr Bea Smith");
    row("by hand", "Ann", "Auntie Ann", "Auntie Ann");
    row("letter case differs", "Ann", "dr ann smith", "dr ann smith");
    row("empty", "Ann", "", "");
    row("names in lower case", "ann", "Dr ann Smith", "Dr Bea Smith");
    row("without a first name", "", "Dr  Smith", "Dr Bea Smith");
}

void TestKWGuestWidgetNames::aDisplayNameThatIsSetFollowsIfTheNamesGiveIt()
{
    QFETCH(QString, first);
    QFETCH(QString, display);
    QFETCH(QString, afterwards);
    ShownGuestForm form;
    form.widget.setValues(
        {.display_name = display, .title = s("Dr"), .first_name = first, .last_name = s("Smith")});
    QCOMPARE(form.widget.values().display_name, display);
    GuestForm::type(form.ui.first, "Bea");
    QCOMPARE(form.widget.values().display_name, afterwards);
}

void TestKWGuestWidgetNames::namesGetTheirCapitalsUnlessThatIsSwitchedOff_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("names");
    QTest::newRow("on") << true << s("Lady Mary-Ann O'Neil");
    QTest::newRow("off") << false << s("lady mary-ann o'neil");
}

void TestKWGuestWidgetNames::namesGetTheirCapitalsUnlessThatIsSwitchedOff()
{
    QFETCH(bool, on);
    QFETCH(QString, names);
    FakeMainWindow window;
    window.userSettings()->setMiscCapitaliseNames(on);
    ShownGuestForm form;
    window.userSettings()->setMiscCapitaliseNames(!on);
    form.typeNames("  lady", "  mary-ann", "  o'neil");
    QCOMPARE(form.widget.values().display_name, names);
    const KWGuestValues values = form.widget.values();
    QCOMPARE(QStringList({values.title, values.first_name, values.last_name}).join(u' '), names);
}

void TestKWGuestWidgetNames::theDisplayNameAndTheMealAreNotTidied()
{
    ShownGuestForm form;
    GuestForm::type(form.ui.display, " ann");
    GuestForm::type(form.ui.meal, " fish");
    QCOMPARE(form.widget.values().display_name, s(" ann"));
    QCOMPARE(form.widget.values().meal, s(" fish"));
}

void TestKWGuestWidgetNames::withTheSettingOffANameInLowerCaseStaysSoButLeadingBlanksGo()
{
    FakeMainWindow window;
    window.userSettings()->setMiscCapitaliseNames(false);
    ShownGuestForm form;
    GuestForm::type(form.ui.first, "  mary");
    QCOMPARE(form.widget.values().first_name, s("mary"));
}

void TestKWGuestWidgetNames::aTitlePickedFromTheListStaysAsItIs()
{
    ShownGuestForm form;
    form.widget.setTitleChoices({s("Dr"), s("gräfin")});
    GuestForm::pick(form.ui.title, "gräfin");
    QCOMPARE(form.widget.values().title, s("gräfin"));
    QCOMPARE(form.widget.values().display_name, s("gräfin"));
    form.widget.setValues({.title = s("Dr")});
    QTest::keyClick(form.ui.title->lineEdit(), Qt::Key_Down);
    QCOMPARE(form.widget.values().title, s("gräfin"));
}

void TestKWGuestWidgetNames::namesThatAreSetStayAsTheyAreUntilSomebodyTypes()
{
    ShownGuestForm form;
    form.widget.setValues(
        {.title = s("graf"), .first_name = s(" ludwig"), .last_name = s("van beethoven")});
    form.widget.setTitleChoices({s("graf"), s("prof")});
    QCOMPARE(form.widget.values().title, s("graf"));
    QCOMPARE(form.widget.values().first_name, s(" ludwig"));
    QCOMPARE(form.widget.values().last_name, s("van beethoven"));
    QTest::keyClicks(form.ui.last, s("s"));
    QCOMPARE(form.widget.values().last_name, s("Van Beethovens"));
}

REGISTER_TEST(TestKWGuestWidgetNames)
#include "tst_kwguestwidget_names.moc"
