#include "coloursdialogtest.h"
#include "kwdatadirectory.h"
#include "kwgetstringdlgimpl.h"
#include "modaluser.h"

namespace {

constexpr auto TableChart = KWColoursAndFontsDlgImpl::TableChart;
constexpr auto GuestChart = KWColoursAndFontsDlgImpl::GuestChart;

/// The caption, text and buttons of each message, as "Overwrite theme 'Blue'? [OK|Cancel]".
QStringList messages(const ScriptedPrompts &prompts)
{
    QStringList lines;
    for (const KWMessage &message : prompts.messages)
        lines.append(s("%1: %2 [%3]%4")
                         .arg(message.caption, message.text, message.buttons.join(u'|'),
                              message.icon == KWMessage::Warning ? s("?") : s("!")));
    return lines;
}

/// Types a name into the window that asks for one.
void giveName(ModalUser &user, const QString &name, const QString &proposed = {})
{
    user.onDialog<KWGetStringDlgImpl>([=](KWGetStringDlgImpl &dialog) {
        QCOMPARE(dialog.windowTitle(), s("Theme name"));
        QCOMPARE(child<QLabel>(dialog, "m_stringLabel")->text(), s("Theme name:"));
        QCOMPARE(dialog.text(), proposed);
        QVERIFY(!child<QWidget>(dialog, "m_helpButton")->isVisible());
        auto *edit = child<QLineEdit>(dialog, "m_stringEdit");
        edit->setText(name);
        QTest::keyClick(edit, Qt::Key_Return);
    });
}

QByteArray ownFile()
{
    return ThemeShelf::read(ownThemes());
}

/// A window, as a place for the parts of a test.
struct Opened
{
    explicit Opened(KWColoursAndFontsDlgImpl::Mode mode = KWColoursAndFontsDlgImpl::FloorPlan)
        : dialog(plan, mode)
    {
        active = showActive(dialog);
    }

    KWDocument plan;
    ScriptedPrompts prompts;
    ModalUser user;
    ColoursDialog dialog;
    bool active = false;
};
} // namespace

class TestKWColoursAndFontsDlgThemes : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(QDir(QFileInfo(ownThemes()).path()).removeRecursively()); }

    void theShippedThemesAreListedAtFirst()
    {
        const Opened open;
        const QStringList shipped =
            KWThemeFile(ownThemes("none"), dataDirectory() + s("/themes")).names();
        QVERIFY(shipped.size() >= 10);
        QCOMPARE(open.dialog.themes(), shipped);
    }

    void theUsersThemesAreListedInOrder()
    {
        write("cherry^1\r\nBanana^1\r\napple^1\r\n");
        const Opened open;
        QCOMPARE(open.dialog.themes(), QStringList({s("apple"), s("Banana"), s("cherry")}));
    }

    void anUnreadableFileIsOnlyLogged()
    {
        QVERIFY(QDir().mkpath(ownThemes()));
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(s("Unable to read themes from '%1'").arg(ownThemes())));
        const Opened open;
        QCOMPARE(open.dialog.themes(), QStringList());
        QVERIFY(open.dialog.isVisible());
    }

    void anUpdateIsTakenInWhenTheDialogOpens()
    {
        write("Blue^1,2,3\r\n");
        ThemeShelf::write(ownThemes("themes_update.txt"), "BLUE^4,5,6\r\nApple^7,8,9\r\n");
        const Opened open;
        QCOMPARE(open.dialog.themes(), QStringList({s("Apple"), s("Blue")}));
        QCOMPARE(ownFile(), QByteArray("Blue^1,2,3\r\nApple^7,8,9\r\n"));
        QVERIFY(!QFileInfo::exists(ownThemes("themes_update.txt")));
    }

    void loadAndDeleteNeedACurrentTheme()
    {
        write("Blue^1,2,3\r\n");
        Opened open;
        QVERIFY(open.active);
        const auto enabled = [&] {
            return QList<bool>{open.dialog.isEnabled("m_loadThemeButton"),
                               open.dialog.isEnabled("m_saveThemeButton"),
                               open.dialog.isEnabled("m_deleteThemeButton")};
        };
        QCOMPARE(open.dialog.current(), s("none"));
        QCOMPARE(enabled(), QList<bool>({false, true, false}));
        open.dialog.pick("Blue");
        QCOMPARE(enabled(), QList<bool>({true, true, true}));
        open.dialog.list->setCurrentItem(nullptr);
        QCOMPARE(enabled(), QList<bool>({false, true, false}));
        open.dialog.loadTheme();
        open.dialog.deleteTheme();
        QCOMPARE(open.prompts.messages.size(), 0);
    }

    void aThemeThatTheKeyboardComesToIsSeenToBeCurrent()
    {
        write("Blue^1,2,3\r\nRed^1,2,3\r\n");
        Opened open;
        QVERIFY(open.active);
        open.dialog.list->setFocus();
        QCOMPARE(open.dialog.current(), s("Blue"));
        QVERIFY(open.dialog.list->currentItem()->isSelected());
        QVERIFY(open.dialog.isEnabled("m_loadThemeButton"));
        QTest::keyClick(open.dialog.list, Qt::Key_Down);
        QCOMPARE(open.dialog.list->selectedItems().size(), 1);
        QCOMPARE(open.dialog.current(), s("Red"));
    }

    void aThemeIsLoadedByTheButtonOrADoubleClick()
    {
        write("Red^9,9,9\r\n" + lineOfManyColours("Blue") + "\r\n");
        for (const bool byButton : {true, false}) {
            Opened open;
            QVERIFY(open.active);
            open.dialog.pick("Blue");
            if (byButton)
                open.dialog.click("m_loadThemeButton");
            else
                QTest::mouseDClick(open.dialog.list->viewport(), Qt::LeftButton, {},
                                   open.dialog.rectOf("Blue").center());
            QCOMPARE(open.dialog.shownFloorPlan(),
                     s("1,2,3 4,5,6 7,8,9 10,11,12 13,14,15 16,17,18 19,20,21 22,23,24 25,26,27"));
            QVERIFY(open.dialog.isVisible());
            // The plan is written only at the end.
            QCOMPARE(open.plan.floorplanColourTables(), QColor(Qt::white));
            open.dialog.apply();
            QCOMPARE(open.plan.floorplanColourTables(), QColor(1, 2, 3));
            QCOMPARE(open.plan.floorPlanFont().pointSize(), 12);
        }
    }

    void aLoadedThemeIsPreviewed()
    {
        write(lineOfManyColours("Blue") + "\r\n");
        Opened open;
        open.dialog.pick("Blue");
        const auto picture = [&] {
            return child<QFrame>(open.dialog, "m_frame")->grab().toImage();
        };
        const QImage before = picture();
        open.dialog.click("m_loadThemeButton");
        QVERIFY(picture() != before);
    }

    void aThemeLineWithoutTheEleventhFieldLoadsWithTheHighlightAsSelectedColour()
    {
        write(lineOfManyColours("Blue", "") + "\r\n");
        Opened open;
        open.dialog.colour("m_selectedColourButton")->setColour(Qt::red);
        open.dialog.pick("Blue");
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(open.dialog.colour("m_selectedColourButton")->colour(),
                 KWColours::highlightColour());
    }

    void aMalformedLineIsAThemeOfWhiteColours()
    {
        write("Blue^red^1,2^^x,y,z\r\n");
        Opened open;
        open.dialog.pick("Blue");
        open.dialog.click("m_loadThemeButton");
        QStringList white(8, s("255,255,255"));
        white.append(rgb(KWColours::highlightColour()));
        QCOMPARE(open.dialog.shownFloorPlan(), white.join(u' '));
        open.dialog.apply();
        QCOMPARE(open.plan.floorPlanFont(), QFont());
    }

    void aChartTakesTheInsideTheTableTextAndTheFontOfATheme_data() { chartRows(); }

    void aChartTakesTheInsideTheTableTextAndTheFontOfATheme()
    {
        QFETCH(KWColoursAndFontsDlgImpl::Mode, mode);
        write(lineOfManyColours("Blue") + "\r\n");
        Opened open(mode);
        open.dialog.pick("Blue");
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(open.dialog.shownChart(), s("13,14,15 22,23,24"));
        open.dialog.apply();
        const QFont font =
            mode == TableChart ? open.plan.tableChartFont() : open.plan.guestChartFont();
        QCOMPARE(font.pointSize(), 12);
    }

    void aFailureToReadAThemeIsTold()
    {
        write("Blue^1,2,3\r\n");
        Opened open;
        open.dialog.pick("Blue");
        makeUnreadable();
        open.prompts.answer(s("&OK"));
        const QString before = open.dialog.shownFloorPlan();
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(
            messages(open.prompts),
            QStringList{s("Ambrelune: Unable to read theme from '%1' [&OK]!").arg(ownThemes())});
        QCOMPARE(open.dialog.shownFloorPlan(), before);
        QCOMPARE(open.dialog.themes(), QStringList{s("Blue")});
        QVERIFY(open.dialog.isVisible());
    }

    void aThemeThatIsGoneMeanwhileLoadsNothing()
    {
        write("Blue^1,2,3\r\n");
        Opened open;
        open.dialog.pick("Blue");
        write("Red^1,2,3\r\n");
        const QString before = open.dialog.shownFloorPlan();
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(open.dialog.shownFloorPlan(), before);
        QCOMPARE(open.prompts.messages.size(), 0);
    }

    void theFloorPlansColoursAreSavedAsAWholeLine()
    {
        write("Red^9,9,9\r\n" + lineOfManyColours("Old") + "\r\n");
        Opened open;
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
        Opened open;
        const QStringList before = open.dialog.themes();
        giveName(open.user, s("My own"));
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(open.dialog.themes().size(), before.size() + 1);
        QVERIFY(ownFile().endsWith("\r\n"));
        QCOMPARE(Opened().dialog.themes(), open.dialog.themes());
    }

    void aSavedDefaultLeavesTheSelectedColourToTheApplication()
    {
        write("");
        Opened open;
        open.dialog.click("m_defaultButton");
        giveName(open.user, s("Plain"));
        open.dialog.click("m_saveThemeButton");
        QVERIFY(ownFile().startsWith("Plain^255,255,255^0,0,0^255,255,255^0,0,0^255,255,255^"
                                     "160,160,164^0,0,0^0,0,0^"));
        QCOMPARE(ownFile().count('^'), 9);
    }

    void anotherCaseOfTheNameOverwritesAfterTheQuestion()
    {
        write("blue^9,9,9\r\nRed^9,9,9\r\n");
        Opened open;
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
        write("blue^9,9,9\r\n");
        Opened open;
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
        write("Red^9,9,9\r\n");
        Opened open;
        open.prompts.answer(s("&OK"));
        giveName(open.user, name);
        open.dialog.click("m_saveThemeButton");
        QCOMPARE(messages(open.prompts), QStringList{s("Ambrelune: Invalid theme name [&OK]!")});
        QCOMPARE(ownFile(), QByteArray("Red^9,9,9\r\n"));
    }

    void noNameSavesNothing()
    {
        write("Red^9,9,9\r\n");
        Opened open;
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
        write(themes);
        Opened open;
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
        write("");
        Opened open(mode);
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
        write("");
        Opened chart(TableChart);
        chart.dialog.colour("m_chartBackgroundColourButton")->setColour(QColor(4, 5, 6));
        chart.dialog.colour("m_chartTextColourButton")->setColour(QColor(7, 8, 9));
        giveName(chart.user, s("Chart"));
        chart.dialog.click("m_saveThemeButton");
        chart.dialog.reject();

        Opened plan;
        plan.dialog.pick("Chart");
        plan.dialog.click("m_loadThemeButton");
        QCOMPARE(plan.dialog.shownFloorPlan(),
                 s("255,255,255 0,0,0 255,255,255 0,0,0 4,5,6 160,160,164 0,0,0 7,8,9 ") +
                     rgb(KWColours::highlightColour()));
    }

    void aThemeIsDeletedAfterTheQuestion()
    {
        write("Blue^1\r\nbLUE^2\r\nGreen^3\r\nRed^4\r\n");
        Opened open;
        QVERIFY(open.active);
        open.dialog.pick("Green");
        open.prompts.answer(s("OK"));
        open.dialog.click("m_deleteThemeButton");
        QCOMPARE(messages(open.prompts),
                 QStringList{s("Ambrelune: Delete theme 'Green'? [OK|Cancel]?")});
        QCOMPARE(ownFile(), QByteArray("Blue^1\r\nbLUE^2\r\nRed^4\r\n"));
        QCOMPARE(open.dialog.current(), s("Red"));
        open.dialog.pick("Blue");
        open.prompts.answer(s("OK"));
        QTest::keyClick(&open.dialog, Qt::Key_Delete);
        QTRY_COMPARE(ownFile(), QByteArray("Red^4\r\n"));
        open.prompts.answer(s("OK"));
        QTest::keyClick(&open.dialog, Qt::Key_Delete);
        QTRY_COMPARE(ownFile(), QByteArray());
        QCOMPARE(open.dialog.themes(), QStringList());
        QVERIFY(!open.dialog.isEnabled("m_loadThemeButton"));
        QVERIFY(!open.dialog.isEnabled("m_deleteThemeButton"));
        QVERIFY(open.dialog.isVisible());
    }

    void deletingCanBeCancelled()
    {
        write("Blue^1\r\n");
        Opened open;
        open.dialog.pick("Blue");
        open.prompts.answer(s("Cancel"));
        open.dialog.click("m_deleteThemeButton");
        QCOMPARE(ownFile(), QByteArray("Blue^1\r\n"));
        QCOMPARE(open.dialog.themes(), QStringList{s("Blue")});
    }

    void aFailureToRemoveAThemeIsToldAndLosesNone()
    {
        const QByteArray themes = manyThemes();
        write(themes);
        Opened open;
        open.dialog.pick("Theme 7");
        open.prompts.answer(s("OK"));
        open.prompts.answer(s("&OK"));
        {
            const FullDisk disk(4096);
            open.dialog.click("m_deleteThemeButton");
        }
        QCOMPARE(
            messages(open.prompts),
            QStringList({s("Ambrelune: Delete theme 'Theme 7'? [OK|Cancel]?"),
                         s("Ambrelune: Unable to write themes to '%1' [&OK]!").arg(ownThemes())}));
        QCOMPARE(ownFile(), themes);
        QCOMPARE(open.dialog.themes().size(), 100);
    }

    void aFileThatCannotBeReadWhenAThemeIsDeletedLeavesEverythingAsItWas()
    {
        write("Blue^1\r\n");
        Opened open;
        open.dialog.pick("Blue");
        makeUnreadable();
        open.prompts.answer(s("OK"));
        open.dialog.click("m_deleteThemeButton");
        QCOMPARE(open.prompts.messages.size(), 1);
        QCOMPARE(open.dialog.themes(), QStringList{s("Blue")});
    }

    void aNameWithAPlaceHolderIsShownAsItIs()
    {
        write("100%1^1\r\n");
        Opened open;
        open.dialog.pick("100%1");
        open.prompts.answer(s("Cancel"));
        open.dialog.click("m_deleteThemeButton");
        QCOMPARE(open.prompts.texts(), QStringList{s("Delete theme '100%1'?")});
    }

private:
    static void write(const QByteArray &themes) { ThemeShelf::write(ownThemes(), themes); }

    /// A directory in its place, which not even root can read as a file.
    static void makeUnreadable()
    {
        QVERIFY(QFile::remove(ownThemes()));
        QVERIFY(QDir().mkpath(ownThemes()));
    }

    static QByteArray manyThemes()
    {
        QByteArray themes;
        for (int i = 0; i < 100; ++i)
            themes += lineOfManyColours("Theme " + QByteArray::number(i)) + "\r\n";
        return themes;
    }

    static void chartRows()
    {
        QTest::addColumn<KWColoursAndFontsDlgImpl::Mode>("mode");
        QTest::newRow("table chart") << TableChart;
        QTest::newRow("guest chart") << GuestChart;
    }
};

GUI_TEST_MAIN(TestKWColoursAndFontsDlgThemes)
#include "tst_kwcoloursandfontsdlg_themes.moc"
