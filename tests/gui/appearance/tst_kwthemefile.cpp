#include "support/gui/guitest.h"
#include "support/gui/themeshelf.h"
#include "support/registeredtest.h"

#include <sys/stat.h>

class TestKWThemeFile : public QObject
{
    Q_OBJECT

private slots:
    void aThemeIsOneLineOfElevenFieldsInTheirOrder()
    {
        QCOMPARE(KWThemeFile::toLine({s("Blue"), manyColours()}).toUtf8(),
                 lineOfManyColours("Blue"));
    }

    void theSelectedColourIsLeftOutWhereItIsTheApplicationsHighlight()
    {
        KWColours colours = manyColours();
        colours.selected = KWColours::highlightColour();
        QCOMPARE(KWThemeFile::toLine({s("Blue"), colours}).toUtf8(), lineOfManyColours("Blue", ""));
    }

    void aLineIsReadAsItWasWritten()
    {
        KWTheme theme;
        KWThemeFile::readLine(QString::fromUtf8(lineOfManyColours("Blue")), theme);
        QCOMPARE(theme.name, s("Blue"));
        QCOMPARE(described(theme.colours), described(manyColours()));
        QCOMPARE(theme.colours.font.weight(), int(QFont::Normal));
        QVERIFY(!theme.colours.font.italic());
    }

    void everyTraitOfAFontComesBack()
    {
        KWTheme theme{s("Blue"), manyColours()};
        theme.colours.font.setPointSizeF(10.5);
        theme.colours.font.setBold(true);
        theme.colours.font.setItalic(true);
        theme.colours.font.setUnderline(true);
        theme.colours.font.setStrikeOut(true);
        KWTheme read;
        KWThemeFile::readLine(KWThemeFile::toLine(theme), read);
        QCOMPARE(read.colours.font.family(), s("Serif"));
        QCOMPARE(read.colours.font.pointSizeF(), 10.5);
        QVERIFY(read.colours.font.bold());
        QVERIFY(read.colours.font.italic());
        QVERIFY(read.colours.font.underline());
        QVERIFY(read.colours.font.strikeOut());
    }

    void aFontOfTheToolkitsLongFormIsRead()
    {
        KWTheme theme;
        QFont font = manyColours().font;
        font.setBold(true);
        KWThemeFile::readLine(s("A^^^^^^^^^") + font.toString(), theme);
        QCOMPARE(theme.colours.font.family(), s("Serif"));
        QCOMPARE(theme.colours.font.pointSize(), 12);
        QVERIFY(theme.colours.font.bold());
    }

    void aLineWithoutTheEleventhFieldHasTheApplicationsHighlight()
    {
        KWTheme theme{{}, manyColours()};
        KWThemeFile::readLine(QString::fromUtf8(lineOfManyColours("Blue", "")), theme);
        QCOMPARE(theme.colours.selected, KWColours::highlightColour());
    }

    void missingFieldsLeaveWhatThereWas()
    {
        KWTheme theme{s("Old"), manyColours()};
        KWThemeFile::readLine(s("New^200,201,202^210,211,212"), theme);
        KWColours expected = manyColours();
        expected.tables = QColor(200, 201, 202);
        expected.tablesEdge = QColor(210, 211, 212);
        expected.selected = KWColours::highlightColour();
        QCOMPARE(theme.name, s("New"));
        QCOMPARE(described(theme.colours), described(expected));
    }

    void aFieldIsWrittenWithoutWhatWouldEndIt()
    {
        KWTheme theme{s("A^b\r\nc^"), manyColours()};
        theme.colours.font.setFamily(s("Se^rif"));
        QCOMPARE(KWThemeFile::toLine(theme).toUtf8(), lineOfManyColours("Ab  c"));
    }

    void aTypedNameIsTidied_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name");
        QTest::newRow("as it is") << s("Blue hour") << s("Blue hour");
        QTest::newRow("blanks around it") << s(" \tBlue ") << s("Blue");
        QTest::newRow("separators") << s("^Bl^ue^") << s("Blue");
        QTest::newRow("blanks behind separators") << s("^ Blue ^") << s("Blue");
        QTest::newRow("separators and blanks only") << s("^ ^^ ") << QString();
        QTest::newRow("pasted lines") << s("Blue\nhour\r\n") << s("Blue hour");
        QTest::newRow("accents") << s("Éclair ☀") << s("Éclair ☀");
    }

    void aTypedNameIsTidied()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);
        QCOMPARE(KWThemeFile::tidyName(typed), name);
    }

    void withoutAFileOfTheUsersTheShippedOneIsRead()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.shipped(), "Shipped^1,2,3\r\n");
        QCOMPARE(shelf.file().names(), QStringList{s("Shipped")});
        QCOMPARE(shelf.file().path(), shelf.shipped());
        ThemeShelf::write(shelf.own(), "Own^1,2,3\r\n");
        QCOMPARE(shelf.file().names(), QStringList{s("Own")});
        QCOMPARE(shelf.file().path(), shelf.own());
        QCOMPARE(shelf.file().ownPath(), shelf.own());
    }

    void namesAreSortedAsALanguageDoes()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "cherry\r\nBanana\r\napple\r\nDate\r\n");
        QCOMPARE(shelf.file().names(),
                 QStringList({s("apple"), s("Banana"), s("cherry"), s("Date")}));
    }

    void theFirstThemeOfTheNameIsLoadedWhateverItsCase()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "Red^9,9,9\r\n  BLUE^1,2,3\r\nblue^4,5,6\r\n");
        KWTheme theme;
        QCOMPARE(shelf.file().load(s("Blue"), theme), KWThemeFile::Done);
        QCOMPARE(theme.name, s("BLUE"));
        QCOMPARE(theme.colours.tables, QColor(1, 2, 3));
    }

    void whatALoadedLineDoesNotSayIsWhiteOrTheDefaultFont()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "Blue\r\n");
        KWTheme theme{{}, manyColours()};
        QCOMPARE(shelf.file().load(s("Blue"), theme), KWThemeFile::Done);
        KWColours white;
        white.seatsEdge = white.tablesEdge = white.outside = white.seatsText = white.tableText =
            Qt::white;
        QCOMPARE(described(theme.colours), described(white));
        QCOMPARE(theme.colours.font, QFont());
    }

    void loadingTellsWhatIsMissing()
    {
        const ThemeShelf shelf;
        KWTheme theme;
        QCOMPARE(shelf.file().load(s("Blue"), theme), KWThemeFile::Unreadable);
        ThemeShelf::write(shelf.shipped(), "Red^1,2,3\r\n");
        QCOMPARE(shelf.file().load(s("Blue"), theme), KWThemeFile::NotFound);
    }

    void theFirstSavedThemeTakesTheShippedOnesAlong()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.shipped(), "One^1,2,3\nTwo^4,5,6");
        QCOMPARE(shelf.file().save({s("Blue"), manyColours()}), KWThemeFile::Done);
        QCOMPARE(ThemeShelf::read(shelf.own()),
                 "One^1,2,3\r\nTwo^4,5,6\r\n" + lineOfManyColours("Blue") + "\r\n");
        QCOMPARE(ThemeShelf::read(shelf.shipped()), QByteArray("One^1,2,3\nTwo^4,5,6"));
    }

    void aThemeCanBeSavedWhereThereIsNoFileAtAll()
    {
        const ThemeShelf shelf;
        QCOMPARE(shelf.file().save({s("Café"), manyColours()}), KWThemeFile::Done);
        QCOMPARE(ThemeShelf::read(shelf.own()), lineOfManyColours("Caf\xc3\xa9") + "\r\n");
        QCOMPARE(shelf.file().names(), QStringList{s("Café")});
    }

    void aReplacedThemeGoesToTheEnd()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "blue^1,2,3\r\nRed^4,5,6\r\nBLUE^7,8,9\r\n");
        QCOMPARE(shelf.file().save({s("Blue"), manyColours()}), KWThemeFile::Done);
        QCOMPARE(ThemeShelf::read(shelf.own()),
                 "Red^4,5,6\r\n" + lineOfManyColours("Blue") + "\r\n");
    }

    void blanksBehindANameAreNoPartOfIt()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "Blue ^1,2,3\r\n");
        QCOMPARE(shelf.file().names(), QStringList{s("Blue")});
        QCOMPARE(shelf.file().save({s("Blue"), manyColours()}), KWThemeFile::Done);
        QCOMPARE(shelf.file().names(), QStringList{s("Blue")});
    }

    void removingTakesAllLinesOfTheNameAndLeavesTheOthersByteByByte()
    {
        const ThemeShelf shelf;
        const QByteArray odd = "Caf\xe9^\xff^^  ";
        ThemeShelf::write(shelf.own(), "Blue^1\r\n" + odd + "\r\n\r\n  bLUE\r\nRed^4,5,6");
        QCOMPARE(shelf.file().remove(s("blue")), KWThemeFile::Done);
        QCOMPARE(ThemeShelf::read(shelf.own()), odd + "\r\n\r\nRed^4,5,6\r\n");
    }

    void aShippedThemeIsRemovedFromTheUsersOwnFile()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.shipped(), "One^1,2,3\r\nTwo^4,5,6\r\n");
        QCOMPARE(shelf.file().remove(s("One")), KWThemeFile::Done);
        QCOMPARE(shelf.file().names(), QStringList{s("Two")});
        QCOMPARE(ThemeShelf::read(shelf.shipped()), QByteArray("One^1,2,3\r\nTwo^4,5,6\r\n"));
    }

    void whenAllThemesAreRemovedTheShippedOnesDoNotComeBack()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.shipped(), "One^1,2,3\r\n");
        QCOMPARE(shelf.file().remove(s("One")), KWThemeFile::Done);
        QCOMPARE(shelf.file().names(), QStringList());
    }

    void aFileThatCannotBeReadIsNeitherReplacedByTheShippedOneNorWritten()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.shipped(), "One^1,2,3\r\n");
        QVERIFY(QDir().mkpath(shelf.own()));
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(s("Unable to read themes from '%1'").arg(shelf.own())));
        QCOMPARE(shelf.file().names(), QStringList());
        KWTheme theme;
        QCOMPARE(shelf.file().load(s("One"), theme), KWThemeFile::Unreadable);
        QCOMPARE(shelf.file().remove(s("One")), KWThemeFile::Unreadable);
        QCOMPARE(shelf.file().save({s("Blue"), manyColours()}), KWThemeFile::Unwritable);
        QVERIFY(QFileInfo(shelf.own()).isDir());
    }

    void aPipeIsNotWaitedFor()
    {
        const ThemeShelf shelf;
        QVERIFY(QDir().mkpath(QFileInfo(shelf.own()).path()));
        QCOMPARE(mkfifo(shelf.own().toLocal8Bit().constData(), 0600), 0);
        KWTheme theme;
        QCOMPARE(shelf.file().load(s("One"), theme), KWThemeFile::Unreadable);
        QCOMPARE(shelf.file().save({s("Blue"), manyColours()}), KWThemeFile::Unwritable);
    }

    void whereNothingCanBeWrittenTheShippedThemesStay()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.shipped(), "One^1,2,3\r\n");
        // A file in the place of the directory.
        ThemeShelf::write(QFileInfo(shelf.own()).path(), "");
        QCOMPARE(shelf.file().remove(s("One")), KWThemeFile::Unwritable);
        QCOMPARE(shelf.file().save({s("One"), manyColours()}), KWThemeFile::Unwritable);
        QCOMPARE(shelf.file().names(), QStringList{s("One")});
    }

    void onAFullDiskNoThemeIsLost()
    {
        const ThemeShelf shelf;
        const QByteArray themes = manyThemes();
        ThemeShelf::write(shelf.own(), themes);
        {
            const FullDisk disk(4096);
            QCOMPARE(shelf.file().remove(s("Theme 7")), KWThemeFile::Unwritable);
            QCOMPARE(shelf.file().save({s("Theme 7"), manyColours()}), KWThemeFile::Unwritable);
            QCOMPARE(shelf.file().save({s("New"), manyColours()}), KWThemeFile::Unwritable);
        }
        QCOMPARE(ThemeShelf::read(shelf.own()), themes);
        QCOMPARE(QDir(QFileInfo(shelf.own()).path()).entryList(QDir::Files),
                 QStringList{s("themes.txt")});
    }

    void aLinkToTheFileStaysALink()
    {
        const ThemeShelf shelf;
        const QString elsewhere = shelf.shipped("elsewhere.txt");
        ThemeShelf::write(elsewhere, "One^1,2,3\r\n");
        QVERIFY(QDir().mkpath(QFileInfo(shelf.own()).path()));
        QVERIFY(QFile::link(elsewhere, shelf.own()));
        QCOMPARE(shelf.file().remove(s("One")), KWThemeFile::Done);
        QVERIFY(QFileInfo(shelf.own()).isSymLink());
        QCOMPARE(ThemeShelf::read(elsewhere), QByteArray());
    }
};

REGISTER_TEST(TestKWThemeFile)
#include "tst_kwthemefile.moc"
