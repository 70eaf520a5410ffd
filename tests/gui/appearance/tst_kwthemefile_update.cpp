#include "support/gui/guitest.h"
#include "support/gui/themeshelf.h"
#include "support/registeredtest.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char update[] = "themes_update.txt";
constexpr char taken[] = "themes_update_taken.txt";

/// Makes a directory read-only while it lives, also for root, who is another user then.
class ReadOnly
{
public:
    explicit ReadOnly(const QString &directory)
        : m_directory(directory)
    {
        constexpr uid_t nobody = 65534;
        chmod(path().constData(), 0555);
        if (geteuid() == 0 && seteuid(nobody) != 0)
            qFatal("cannot become another user");
    }
    ~ReadOnly()
    {
        if (getuid() == 0 && seteuid(0) != 0)
            qFatal("cannot become root again");
        chmod(path().constData(), 0755);
    }
    Q_DISABLE_COPY_MOVE(ReadOnly)

private:
    QByteArray path() const { return m_directory.toLocal8Bit(); }

    QString m_directory;
};

void expectLog(const char *text, const QString &path)
{
    QTest::ignoreMessage(QtWarningMsg, qPrintable(s(text).arg(path)));
}
} // namespace

class TestKWThemeFileUpdate : public QObject
{
    Q_OBJECT

private slots:
    void newThemesAreListedAndAppendedAndTheUpdateIsDeleted()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "Blue^1,2,3\r\n");
        ThemeShelf::write(shelf.own(update), "Zebra^4,5,6\nApple^7,8,9\r\n");
        QCOMPARE(shelf.listed(), QStringList({s("Apple"), s("Blue"), s("Zebra")}));
        QCOMPARE(ThemeShelf::read(shelf.own()),
                 QByteArray("Blue^1,2,3\r\nZebra^4,5,6\r\nApple^7,8,9\r\n"));
        QVERIFY(!QFileInfo::exists(shelf.own(update)));
        QVERIFY(!QFileInfo::exists(shelf.own(taken)));
    }

    void aNameThatIsListedInAnotherCaseAddsNothingAndTheUpdateIsDeletedAllTheSame()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "Blue^1,2,3\r\n");
        ThemeShelf::write(shelf.own(update), "BLUE^4,5,6\r\n");
        QCOMPARE(shelf.listed(), QStringList{s("Blue")});
        QCOMPARE(ThemeShelf::read(shelf.own()), QByteArray("Blue^1,2,3\r\n"));
        QVERIFY(!QFileInfo::exists(shelf.own(update)));
    }

    void aNameThatTheUpdateHasTwiceIsAddedOnce()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "Blue^1,2,3\r\n");
        ThemeShelf::write(shelf.own(update), "Red^4,5,6\r\n\r\nRED^7,8,9\r\n");
        QCOMPARE(shelf.listed(), QStringList({s("Blue"), s("Red")}));
        QCOMPARE(ThemeShelf::read(shelf.own()), QByteArray("Blue^1,2,3\r\nRed^4,5,6\r\n"));
    }

    void anUpdateBringsTheShippedThemesIntoTheUsersFile()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.shipped(), "Blue^1,2,3\r\n");
        ThemeShelf::write(shelf.shipped(update), "Red^4,5,6\r\n");
        QCOMPARE(shelf.listed(), QStringList({s("Blue"), s("Red")}));
        QCOMPARE(ThemeShelf::read(shelf.own()), QByteArray("Blue^1,2,3\r\nRed^4,5,6\r\n"));
        QCOMPARE(ThemeShelf::read(shelf.shipped()), QByteArray("Blue^1,2,3\r\n"));
        QVERIFY(!QFileInfo::exists(shelf.shipped(update)));
    }

    void whereThereIsNoFileTheUpdateMakesOne()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.own(update), "Red^4,5,6\r\n");
        QCOMPARE(shelf.listed(), QStringList{s("Red")});
        QCOMPARE(ThemeShelf::read(shelf.own()), QByteArray("Red^4,5,6\r\n"));
    }

    void anUpdateThatCannotBeDeletedIsTakenInOnce()
    {
        const ThemeShelf shelf;
        shelf.openToEverybody();
        ThemeShelf::write(shelf.shipped(), "Blue^1,2,3\r\n");
        ThemeShelf::write(shelf.shipped(update), "Red^4,5,6\r\n");
        const QString directory = QFileInfo(shelf.shipped()).path();
        {
            const ReadOnly program(directory);
            QCOMPARE(shelf.listed(), QStringList({s("Blue"), s("Red")}));
            QVERIFY(QFileInfo::exists(shelf.shipped(update)));
            QCOMPARE(shelf.file().remove(s("Red")), KWThemeFile::Done);
            QCOMPARE(shelf.listed(), QStringList{s("Blue")});
        }
        // The next update is another one.
        ThemeShelf::write(shelf.shipped(update), "Red^4,5,6\r\nGreen^7,8,9\r\n");
        const ReadOnly program(directory);
        QCOMPARE(shelf.listed(), QStringList({s("Blue"), s("Green"), s("Red")}));
    }

    void anUpdateStaysUntilItsThemesCanBeWritten()
    {
        const ThemeShelf shelf;
        ThemeShelf::write(shelf.shipped(), "Blue^1,2,3\r\n");
        ThemeShelf::write(shelf.shipped(update), "Red^4,5,6\r\n");
        // A file in the place of the directory.
        const QString obstacle = QFileInfo(shelf.own()).path();
        ThemeShelf::write(obstacle, "");
        expectLog("Unable to write themes to '%1'", shelf.own());
        QCOMPARE(shelf.listed(), QStringList{s("Blue")});
        QVERIFY(QFileInfo::exists(shelf.shipped(update)));
        QVERIFY(QFile::remove(obstacle));
        QCOMPARE(shelf.listed(), QStringList({s("Blue"), s("Red")}));
        QVERIFY(!QFileInfo::exists(shelf.shipped(update)));
    }

    void onAFullDiskNeitherThemesNorTheUpdateAreLost()
    {
        const ThemeShelf shelf;
        const QByteArray themes = manyThemes();
        ThemeShelf::write(shelf.own(), themes);
        ThemeShelf::write(shelf.own(update), "Red^4,5,6\r\n");
        {
            const FullDisk disk(4096);
            expectLog("Unable to write themes to '%1'", shelf.own());
            QCOMPARE(shelf.listed().size(), 100);
        }
        QCOMPARE(ThemeShelf::read(shelf.own()), themes);
        QCOMPARE(ThemeShelf::read(shelf.own(update)), QByteArray("Red^4,5,6\r\n"));
    }

    void anUpdateDoesNotReplaceAFileThatCannotBeRead()
    {
        const ThemeShelf shelf;
        QVERIFY(QDir().mkpath(shelf.own()));
        ThemeShelf::write(shelf.own(update), "Red^4,5,6\r\n");
        expectLog("Unable to read themes from '%1'", shelf.own());
        expectLog("Unable to write themes to '%1'", shelf.own());
        QCOMPARE(shelf.listed(), QStringList());
        QVERIFY(QFileInfo(shelf.own()).isDir());
        QVERIFY(QFileInfo::exists(shelf.own(update)));
    }
};

REGISTER_TEST(TestKWThemeFileUpdate)
#include "tst_kwthemefile_update.moc"
