#include "core/model/kwcontact.h"
#include "gui/dialogs/kwcontactwidgetimpl.h"
#include "gui/framework/kwwhatsthishelper.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

const KWContact full(s("1"), s("2"), s("town"), s("state"), s("zip"), s("land"), s("work"),
                     s("home"), s("mobile"), s("a@b.c"));
} // namespace

class TestKWContactWidgetImpl : public QObject
{
    Q_OBJECT

private slots:
    void eachWidgetHasItsTexts_data()
    {
        addFormRows({
            {"m_address1Label", "Address &1:", ""},
            {"m_address1Edit", "", "First line of address, e.g. house number and street"},
            {"m_address2Label", "Address &2:", ""},
            {"m_address2Edit", "", "Second line of address"},
            {"m_cityLabel", "&Town/City:", ""},
            {"m_cityEdit", "", "Town or city"},
            {"m_stateLabel", "&State/County:", ""},
            {"m_stateEdit", "", "State or county"},
            {"m_zipLabel", "&ZIP/Postcode:", ""},
            {"m_zipEdit", "", "ZIP code or postcode"},
            {"m_countryLabel", "Countr&y:", ""},
            {"m_countryEdit", "", "Country"},
            {"m_workPhoneLabel", "&Work phone:", ""},
            {"m_workPhoneEdit", "", "Work phone number"},
            {"m_homePhoneLabel", "Home &phone:", ""},
            {"m_homePhoneEdit", "", "Home phone number"},
            {"m_mobileLabel", "&Mobile:", ""},
            {"m_mobileEdit", "", "Mobile phone number"},
            {"m_emailLabel", "&Email:", ""},
            {"m_emailEdit", "", "Comma separated list of email address"},
        });
    }

    void eachWidgetHasItsTexts()
    {
        KWContactWidgetImpl form;
        new KWWhatsThisHelper(&form);
        compareFormRow(form);
    }

    void eachEditHoldsItsFieldOfTheContact_data()
    {
        QTest::addColumn<QString>("edit");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *edit, const char *text) {
            QTest::newRow(edit) << s(edit) << s(text);
        };
        row("m_address1Edit", "1");
        row("m_address2Edit", "2");
        row("m_cityEdit", "town");
        row("m_stateEdit", "state");
        row("m_zipEdit", "zip");
        row("m_countryEdit", "land");
        row("m_workPhoneEdit", "work");
        row("m_homePhoneEdit", "home");
        row("m_mobileEdit", "mobile");
        row("m_emailEdit", "a@b.c");
    }

    void eachEditHoldsItsFieldOfTheContact()
    {
        QFETCH(QString, edit);
        QFETCH(QString, text);
        KWContactWidgetImpl form;
        form.setContact(full);
        auto *field = child<QLineEdit>(form, edit);
        QCOMPARE(field->text(), text);
        QVERIFY(form.contact() == full);
        QTest::keyClicks(field, s("x"));
        QVERIFY(!(form.contact() == full));
        field->setText(text);
        QVERIFY(form.contact() == full);
    }

    void clearEmptiesAllOfThem()
    {
        KWContactWidgetImpl form;
        form.setContact(full);
        form.clear();
        QVERIFY(form.contact() == KWContact());
    }

    void whatALineCannotShowComesBackUntouched()
    {
        KWContact contact;
        contact.address1 = s("two\nlines");
        contact.email = QString(40000, u'x');
        KWContactWidgetImpl form;
        form.setContact(contact);
        QVERIFY(form.contact() == contact);
    }

    void aNewLanguageTranslatesTheForm()
    {
        const KWContactWidgetImpl form;
        const BracketTranslator translator;
        QTRY_COMPARE(child<QLabel>(form, "m_cityLabel")->text(), s("[&Town/City:]"));
    }
};

REGISTER_TEST(TestKWContactWidgetImpl)
#include "tst_kwcontactwidgetimpl.moc"
