#include "gui/dialogs/kwgroupwidgetimpl.h"
#include "gui/framework/kwwhatsthishelper.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

class TestKWGroupWidgetImpl : public QObject
{
    Q_OBJECT

private slots:
    void eachWidgetHasItsTexts_data()
    {
        addFormRows({
            {"m_groupNameLabel", "Na&me:", ""},
            {"m_groupNameEdit", "", "Group name"},
            {"m_groupNotesLabel", "&Notes:", ""},
            {"m_groupNotesEdit", "", "Notes for group"},
        });
    }

    void eachWidgetHasItsTexts()
    {
        KWGroupWidgetImpl form;
        new KWWhatsThisHelper(&form);
        compareFormRow(form);
    }

    void nameAndNotesGoInAndOut()
    {
        KWGroupWidgetImpl form;
        auto *name = child<QLineEdit>(form, "m_groupNameEdit");
        auto *notes = child<QTextEdit>(form, "m_groupNotesEdit");
        form.setName(s("smith"));
        form.setNotes(s("<b>two</b>\nlines"));
        QCOMPARE(name->text(), s("smith"));
        QCOMPARE(notes->toPlainText(), s("<b>two</b>\nlines"));
        QTest::keyClicks(name, s(" & co"));
        QTest::keyClicks(notes, s("See "));
        QCOMPARE(form.name(), s("smith & co"));
        QCOMPARE(form.notes(), s("See <b>two</b>\nlines"));
    }

    void notesThatAreNotTouchedComeBackAsTheyWere()
    {
        KWGroupWidgetImpl form;
        form.setNotes(s("ten\u00a0\u20ac\r\neach"));
        QCOMPARE(form.notes(), s("ten\u00a0\u20ac\r\neach"));
        QTest::keyClicks(child<QTextEdit>(form, "m_groupNotesEdit"), s("x"));
        QCOMPARE(form.notes(), s("xten \u20ac\neach"));
        form.setNotes(s("new"));
        QCOMPARE(form.notes(), s("new"));
    }

    void clearEmptiesBoth()
    {
        KWGroupWidgetImpl form;
        form.setName(s("Smith"));
        form.setNotes(s("notes"));
        QTest::keyClicks(child<QTextEdit>(form, "m_groupNotesEdit"), s("more"));
        form.clear();
        QCOMPARE(form.name(), QString());
        QCOMPARE(form.notes(), QString());
        QCOMPARE(child<QTextEdit>(form, "m_groupNotesEdit")->toPlainText(), QString());
    }

    void theTabKeyLeavesTheNotesAndTheyTakePlainText()
    {
        const KWGroupWidgetImpl form;
        const auto *notes = child<QTextEdit>(form, "m_groupNotesEdit");
        QVERIFY(notes->tabChangesFocus());
        QVERIFY(!notes->acceptRichText());
    }

    void theNameTakesTheFocus()
    {
        KWGroupWidgetImpl form;
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        child<QTextEdit>(form, "m_groupNotesEdit")->setFocus();
        form.focusName();
        QVERIFY(child<QLineEdit>(form, "m_groupNameEdit")->hasFocus());
    }

    void aNewLanguageTranslatesTheForm()
    {
        const KWGroupWidgetImpl form;
        const BracketTranslator translator;
        QTRY_COMPARE(child<QLabel>(form, "m_groupNameLabel")->text(), s("[Na&me:]"));
    }
};

REGISTER_TEST(TestKWGroupWidgetImpl)
#include "tst_kwgroupwidgetimpl.moc"
