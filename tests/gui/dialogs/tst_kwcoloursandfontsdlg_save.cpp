#include "support/gui/coloursdialogtest.h"
#include "support/registeredtest.h"

class TestKWColoursAndFontsDlgSave : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(QDir(QFileInfo(ownThemes()).path()).removeRecursively()); }

    void theFloorPlansColoursAreSavedAsAWholeLine()
    {
        writeOwnThemes("Red^9,9,9\r\n" + lineOfManyColours("Old") + "\r\n");
        OpenColours open;
        open.dialog.pick("Old");
        open.dialog.click("m_loadThemeButton");
        giveName(open.user, s("  New "), s("Old"));
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(ownFile(), "Red^9,9,9\r\n" + lineOfManyColours("Old") + "\r\n" +
                                lineOfManyColours("New") + "\r\n");
        QCOMPARE(open.dialog.themes(), QStringList({s("New"), s("Old"), s("Red")}));
        QCOMPARE(open.dialog.current(), s("New"));
        QCOMPARE(open.prompts.messages.size(), 0);
    }

    void aThemeIsSavedBesideTheShippedOnes()
    {
        OpenColours open;
        const QStringList before = open.dialog.themes();
        giveName(open.user, s("My own"));
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(open.dialog.themes().size(), before.size() + 1);
        QVERIFY(ownFile().endsWith("\r\n"));
        QCOMPARE(OpenColours().dialog.themes(), open.dialog.themes());
    }

    void aSavedDefaultLeavesTheSelectedColourToTheApplication()
    {
        writeOwnThemes("");
        OpenColours open;
        open.dialog.click("m_defaultButton");
        giveName(open.user, s("Plain"));
        open.dialog.click("m_saveThemeButton");
        QVERIFY(ownFile().startsWith("Plain^255,255,255^0,0,0^255,255,255^0,0,0^255,255,255^"
                                     "160,160,164^0,0,0^0,0,0^"));
        QCOMPARE(ownFile().count('^'), 9);
    }

    void anotherCaseOfTheNameOverwritesAfterTheQuestion()
    {
        writeOwnThemes("blue^9,9,9\r\nRed^9,9,9\r\n");
        OpenColours open;
        open.prompts.answer(s("OK"));
        giveName(open.user, s("Blue"));
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(messages(open.prompts),
                 QStringList{s("Ambrelune: Overwrite theme 'Blue'? [OK|Cancel]?")});
        QCOMPARE(open.dialog.themes(), QStringList({s("Blue"), s("Red")}));
        QVERIFY(ownFile().startsWith("Red^9,9,9\r\nBlue^255,255,255^"));
    }

    void overwritingCanBeCancelled()
    {
        writeOwnThemes("blue^9,9,9\r\n");
        OpenColours open;
        open.prompts.answer(s("Cancel"));
        giveName(open.user, s("Blue"));
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(ownFile(), QByteArray("blue^9,9,9\r\n"));
        QCOMPARE(open.dialog.themes(), QStringList{s("blue")});
    }

    void aNameOfSeparatorsAndBlanksIsInvalid_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("separators") << s("^^");
        QTest::newRow("blanks") << s("  ");
        QTest::newRow("both") << s(" ^ ^ ");
    }

    void aNameOfSeparatorsAndBlanksIsInvalid()
    {
        QFETCH(QString, name);
        writeOwnThemes("Red^9,9,9\r\n");
        OpenColours open;
        open.prompts.answer(s("&OK"));
        giveName(open.user, name);
        QString kept;
        open.user.onDialog<KWGetStringDlgImpl>([&kept](KWGetStringDlgImpl &dialog) {
            kept = dialog.text();
            dialog.reject();
        });
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(messages(open.prompts), QStringList{s("Ambrelune: Invalid theme name [&OK]!")});
        QCOMPARE(kept, name);
        QCOMPARE(ownFile(), QByteArray("Red^9,9,9\r\n"));
    }

    void anInvalidNameCanBeMadeAValidOne()
    {
        writeOwnThemes("Red^9,9,9\r\n");
        OpenColours open;
        open.prompts.answer(s("&OK"));
        giveName(open.user, s("^"));
        giveName(open.user, s("Blue"), s("^"));
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(open.dialog.themes(), QStringList({s("Blue"), s("Red")}));
        QCOMPARE(open.dialog.current(), s("Blue"));
    }

    void noNameSavesNothing()
    {
        writeOwnThemes("Red^9,9,9\r\n");
        OpenColours open;
        open.user.onDialog<KWGetStringDlgImpl>([](KWGetStringDlgImpl &dialog) {
            QVERIFY(!child<QPushButton>(dialog, "m_okButton")->isEnabled());
            dialog.reject();
        });
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(ownFile(), QByteArray("Red^9,9,9\r\n"));
    }

    void aFailureToWriteAThemeIsToldAndLosesNone()
    {
        const QByteArray themes = manyThemes();
        writeOwnThemes(themes);
        OpenColours open;
        open.dialog.pick("Theme 7");
        open.prompts.answer(s("OK"));
        open.prompts.answer(s("&OK"));
        giveName(open.user, s("theme 7"), s("Theme 7"));
        {
            const FullDisk disk(4096);
            open.dialog.click("m_saveThemeButton");
        }
        QCOMPARE(
            messages(open.prompts),
            QStringList({s("Ambrelune: Overwrite theme 'theme 7'? [OK|Cancel]?"),
                         s("Ambrelune: Unable to write theme to '%1' [&OK]!").arg(ownThemes())}));
        QCOMPARE(ownFile(), themes);
        QCOMPARE(open.dialog.themes().size(), 100);
        QCOMPARE(open.dialog.current(), s("Theme 7"));
        QVERIFY(open.dialog.isVisible());
    }

    void aChartIsSavedAsAWholeTheme_data() { chartRows(); }

    void aChartIsSavedAsAWholeTheme()
    {
        QFETCH(KWColoursAndFontsDlgImpl::Mode, mode);
        writeOwnThemes("");
        OpenColours open(mode);
        open.plan.setFloorplanColourSelected(QColor(1, 2, 3));
        open.dialog.colour("m_chartBackgroundColourButton")->setColour(QColor(4, 5, 6));
        open.dialog.colour("m_chartTextColourButton")->setColour(QColor(7, 8, 9));
        open.prompts.answerFont(manyColours().font);
        open.dialog.click("m_fontButton");
        giveName(open.user, s("Chart"));
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(ownFile(),
                 QByteArray("Chart^255,255,255^0,0,0^255,255,255^0,0,0^4,5,6^160,160,164^0,0,0^"
                            "7,8,9^Serif,12,-1,5,50,0,0,0,0,0^1,2,3\r\n"));
    }

    void aThemeOfAChartGivesTheFloorPlanItsBackgroundAsInsideAndGrayOutside()
    {
        writeOwnThemes("");
        OpenColours chart(KWColoursAndFontsDlgImpl::TableChart);
        chart.dialog.colour("m_chartBackgroundColourButton")->setColour(QColor(4, 5, 6));
        chart.dialog.colour("m_chartTextColourButton")->setColour(QColor(7, 8, 9));
        giveName(chart.user, s("Chart"));
        chart.dialog.click("m_saveThemeButton");
        chart.dialog.reject();

        OpenColours plan;
        plan.dialog.pick("Chart");
        plan.dialog.click("m_loadThemeButton");
        QCOMPARE(plan.dialog.shownFloorPlan(),
                 s("255,255,255 0,0,0 255,255,255 0,0,0 4,5,6 160,160,164 0,0,0 7,8,9 ") +
                     rgb(KWColours::highlightColour()));
    }
};

REGISTER_TEST(TestKWColoursAndFontsDlgSave)
#include "tst_kwcoloursandfontsdlg_save.moc"
