#include "gui/framework/kwdatadirectory.h"
#include "support/gui/coloursdialogtest.h"
#include "support/registeredtest.h"

class TestKWColoursAndFontsDlgThemes : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(QDir(QFileInfo(ownThemes()).path()).removeRecursively()); }

    void theShippedThemesAreListedAtFirst()
    {
        const OpenColours open;
        const QStringList shipped =
            KWThemeFile(ownThemes("none"), dataDirectory() + s("/themes")).names();
        QVERIFY(shipped.size() >= 10);
        QCOMPARE(open.dialog.themes(), shipped);
    }

    void theUsersThemesAreListedInOrder()
    {
        writeOwnThemes("cherry^1\r\nBanana^1\r\napple^1\r\n");
        const OpenColours open;
        QCOMPARE(open.dialog.themes(), QStringList({s("apple"), s("Banana"), s("cherry")}));
    }

    void anUnreadableFileIsOnlyLogged()
    {
        QVERIFY(QDir().mkpath(ownThemes()));
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(s("Unable to read themes from '%1'").arg(ownThemes())));
        const OpenColours open;
        QCOMPARE(open.dialog.themes(), QStringList());
        QVERIFY(open.dialog.isVisible());
    }

    void anUpdateIsTakenInWhenTheDialogOpens()
    {
        writeOwnThemes("Blue^1,2,3\r\n");
        ThemeShelf::write(ownThemes("themes_update.txt"), "BLUE^4,5,6\r\nApple^7,8,9\r\n");
        const OpenColours open;
        QCOMPARE(open.dialog.themes(), QStringList({s("Apple"), s("Blue")}));
        QCOMPARE(ownFile(), QByteArray("Blue^1,2,3\r\nApple^7,8,9\r\n"));
        QVERIFY(!QFileInfo::exists(ownThemes("themes_update.txt")));
    }

    void loadAndDeleteNeedACurrentTheme()
    {
        writeOwnThemes("Blue^1,2,3\r\n");
        OpenColours open;
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
        writeOwnThemes("Blue^1,2,3\r\nRed^1,2,3\r\n");
        OpenColours open;
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
        writeOwnThemes("Red^9,9,9\r\n" + lineOfManyColours("Blue") + "\r\n");
        for (const bool byButton : {true, false}) {
            OpenColours open;
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

    void aThemeThatIsGoneLeavesTheList()
    {
        writeOwnThemes("Red^9,9,9\r\n" + lineOfManyColours("Blue") + "\r\n");
        OpenColours open;
        open.dialog.pick("Blue");
        const QString before = open.dialog.shownFloorPlan();
        writeOwnThemes("Red^9,9,9\r\n");
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(open.dialog.themes(), QStringList{s("Red")});
        QCOMPARE(open.dialog.current(), s("none"));
        QVERIFY(!open.dialog.isEnabled("m_loadThemeButton"));
        QCOMPARE(open.dialog.shownFloorPlan(), before);
    }

    void eachThemeShowsItsRoomTableAndSeats()
    {
        writeOwnThemes(lineOfManyColours("Blue") + "\r\n");
        const OpenColours open;
        const KWColours colours = manyColours();
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
            const QIcon icon = open.dialog.list->item(0)->icon();
            const QImage picture = icon.pixmap({31, 14}, mode).toImage();
            QCOMPARE(picture.pixelColor(5, 7), colours.inside);
            QCOMPARE(picture.pixelColor(15, 7), colours.tables);
            QCOMPARE(picture.pixelColor(25, 7), colours.seats);
        }
    }

    void theThemeThatWasLoadedStaysCurrent()
    {
        writeOwnThemes("Red^9,9,9\r\nBlue^1,2,3\r\n");
        OpenColours open;
        open.dialog.pick("Red");
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(open.dialog.current(), s("Red"));
        QVERIFY(open.dialog.list->currentItem()->isSelected());
    }

    void aLoadedThemeIsPreviewed()
    {
        writeOwnThemes(lineOfManyColours("Blue") + "\r\n");
        OpenColours open;
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
        writeOwnThemes(lineOfManyColours("Blue", "") + "\r\n");
        OpenColours open;
        open.dialog.colour("m_selectedColourButton")->setColour(Qt::red);
        open.dialog.pick("Blue");
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(open.dialog.colour("m_selectedColourButton")->colour(),
                 KWColours::highlightColour());
    }

    void aMalformedLineIsAThemeOfWhiteColours()
    {
        writeOwnThemes("Blue^red^1,2^^x,y,z\r\n");
        OpenColours open;
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
        writeOwnThemes(lineOfManyColours("Blue") + "\r\n");
        OpenColours open(mode);
        open.dialog.pick("Blue");
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(open.dialog.shownChart(), s("13,14,15 22,23,24"));
        open.dialog.apply();
        const QFont font = mode == KWColoursAndFontsDlgImpl::TableChart
                               ? open.plan.tableChartFont()
                               : open.plan.guestChartFont();
        QCOMPARE(font.pointSize(), 12);
    }

    void aFailureToReadAThemeIsTold()
    {
        writeOwnThemes("Blue^1,2,3\r\n");
        OpenColours open;
        open.dialog.pick("Blue");
        makeOwnThemesUnreadable();
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
        writeOwnThemes("Blue^1,2,3\r\n");
        OpenColours open;
        open.dialog.pick("Blue");
        writeOwnThemes("Red^1,2,3\r\n");
        const QString before = open.dialog.shownFloorPlan();
        open.dialog.click("m_loadThemeButton");
        QCOMPARE(open.dialog.shownFloorPlan(), before);
        QCOMPARE(open.prompts.messages.size(), 0);
    }

    void aThemeIsDeletedAfterTheQuestion()
    {
        writeOwnThemes("Blue^1\r\nbLUE^2\r\nGreen^3\r\nRed^4\r\n");
        OpenColours open;
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
        writeOwnThemes("Blue^1\r\n");
        OpenColours open;
        open.dialog.pick("Blue");
        open.prompts.answer(s("Cancel"));
        open.dialog.click("m_deleteThemeButton");
        QCOMPARE(ownFile(), QByteArray("Blue^1\r\n"));
        QCOMPARE(open.dialog.themes(), QStringList{s("Blue")});
    }

    void aFailureToRemoveAThemeIsToldAndLosesNone()
    {
        const QByteArray themes = manyThemes();
        writeOwnThemes(themes);
        OpenColours open;
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
        writeOwnThemes("Blue^1\r\n");
        OpenColours open;
        open.dialog.pick("Blue");
        makeOwnThemesUnreadable();
        open.prompts.answer(s("OK"));
        open.dialog.click("m_deleteThemeButton");
        QCOMPARE(open.prompts.messages.size(), 1);
        QCOMPARE(open.dialog.themes(), QStringList{s("Blue")});
    }

    void aNameWithAPlaceHolderIsShownAsItIs()
    {
        writeOwnThemes("100%1^1\r\n");
        OpenColours open;
        open.dialog.pick("100%1");
        open.prompts.answer(s("Cancel"));
        open.dialog.click("m_deleteThemeButton");
        QCOMPARE(open.prompts.texts(), QStringList{s("Delete theme '100%1'?")});
    }
};

REGISTER_TEST(TestKWColoursAndFontsDlgThemes)
#include "tst_kwcoloursandfontsdlg_themes.moc"
