#include "core/model/kwsafefile.h"
#include "filesizelimit.h"
#include "otheruser.h"
#include "planfile.h"
#include "support/registeredtest.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <sys/xattr.h>

namespace {
constexpr uid_t ann = 4001;
constexpr uid_t bob = 4002;
constexpr gid_t planners = 4003;

using Status = struct stat;

Status statusOf(const QString &path)
{
    Status status{};
    if (::stat(qPrintable(path), &status) != 0)
        status.st_mode = 0;
    return status;
}

mode_t modeOf(const QString &path)
{
    return statusOf(path).st_mode & 07777;
}

/// A folder that everybody may look into, with one old file.
struct Folder
{
    explicit Folder(mode_t mode = 0755) { setMode(mode); }
    // Or it could not be cleared away.
    ~Folder() { setMode(0755); }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    void setMode(mode_t mode) const { ::chmod(qPrintable(folder.path()), mode); }
    QString path(const char *name) const { return folder.filePath(s(name)); }
    QString file(const char *name, mode_t mode = 0644, const QByteArray &content = "old") const
    {
        if (!writeFile(path(name), content) || ::chmod(qPrintable(path(name)), mode) != 0)
            return {};
        return path(name);
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::System); }

    QTemporaryDir folder;
};

/// What only root can set up. Others see to the rest of the tests.
bool isRoot()
{
    return ::geteuid() == 0;
}

/// Fails where nobody may give files away.
bool give(const QString &path, uid_t user, gid_t group)
{
    return ::chown(qPrintable(path), user, group) == 0;
}

/// Makes something that is no regular file and on which opening may wait.
bool makePipe(const QString &path)
{
    return ::mkfifo(qPrintable(path), 0666) == 0;
}

bool makeSocket(const QString &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, qPrintable(path), sizeof address.sun_path);
    const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool made =
        ::bind(number, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(number);
    return made;
}
} // namespace

class TestSafeFile : public QObject
{
    Q_OBJECT

private slots:
    void theModeStays_data()
    {
        QTest::addColumn<uint>("mode");
        for (const uint mode : {0600U, 0640U, 0664U, 0666U, 0755U})
            QTest::addRow("%o", mode) << mode;
    }

    void theModeStays()
    {
        QFETCH(uint, mode);
        const Folder folder;
        const QString path = folder.file("a", mode);
        QVERIFY(replaceFile(path, "new"));
        QCOMPARE(readFile(path), QByteArray("new"));
        QCOMPARE(modeOf(path), mode);
        QCOMPARE(folder.files(), QStringList{s("a")});
    }

    void aNewFileHasTheModeOfAnyNewFile()
    {
        const Folder folder;
        QVERIFY(replaceFile(folder.path("new"), "text"));
        QCOMPARE(readFile(folder.path("new")), QByteArray("text"));
        QCOMPARE(modeOf(folder.path("new")), modeOf(folder.file("other")));
    }

    void theOldFileIsReplacedAsAWhole()
    {
        const Folder folder;
        const QString path = folder.file("a");
        QFile reader(path);
        QVERIFY(reader.open(QIODevice::ReadOnly));
        QVERIFY(replaceFile(path, "new"));
        // Who has it open still reads the old one.
        QCOMPARE(reader.readAll(), QByteArray("old"));
    }

    void rootLeavesAFileToItsOwner()
    {
        const Folder folder;
        const QString path = folder.file("a", 0640);
        if (!isRoot() || !give(path, ann, planners))
            return;
        const ino_t before = statusOf(path).st_ino;
        QVERIFY(replaceFile(path, "new"));
        QCOMPARE(statusOf(path).st_uid, ann);
        QCOMPARE(statusOf(path).st_gid, planners);
        QCOMPARE(modeOf(path), mode_t(0640));
        QVERIFY(statusOf(path).st_ino != before);
    }

    void aColleaguesFileStaysTheirs()
    {
        const Folder folder(0777);
        const QString path = folder.file("a", 0660);
        if (!isRoot() || !give(path, ann, planners))
            return;
        {
            const OtherUser user(bob, planners);
            QVERIFY(replaceFile(path, "new text"));
        }
        QCOMPARE(statusOf(path).st_uid, ann);
        QCOMPARE(statusOf(path).st_gid, planners);
        QCOMPARE(modeOf(path), mode_t(0660));
        QCOMPARE(folder.files(), QStringList{s("a")});
        const OtherUser owner(ann, ann);
        QCOMPARE(readFile(path), QByteArray("new text"));
    }

    void ownFilesKeepTheGroupTheyWereGiven()
    {
        const Folder folder(0777);
        const QString path = folder.file("a", 0660);
        if (!isRoot() || !give(path, bob, planners))
            return;
        const ino_t before = statusOf(path).st_ino;
        {
            const OtherUser user(bob, planners);
            QVERIFY(replaceFile(path, "new"));
        }
        QCOMPARE(statusOf(path).st_uid, bob);
        QCOMPARE(statusOf(path).st_gid, planners);
        QVERIFY(statusOf(path).st_ino != before);
    }

    void furtherUsersOfAFileKeepTheirRights()
    {
        // Version 2; the owner, user 4001, the group, the mask and the others.
        const QByteArray list = QByteArray::fromHex("02000000"
                                                    "01000600ffffffff"
                                                    "02000600a10f0000"
                                                    "04000400ffffffff"
                                                    "10000600ffffffff"
                                                    "20000000ffffffff");
        constexpr const char *name = "system.posix_acl_access";
        const Folder folder;
        const QString path = folder.file("a");
        if (::setxattr(qPrintable(path), name, list.constData(), std::size_t(list.size()), 0) != 0)
            return; // A file system without such lists.
        const mode_t mode = modeOf(path);
        QVERIFY(replaceFile(path, "new"));
        QByteArray now(100, '\0');
        now.truncate(::getxattr(qPrintable(path), name, now.data(), std::size_t(now.size())));
        QCOMPARE(now.toHex(), list.toHex());
        QCOMPARE(modeOf(path), mode);
        QCOMPARE(readFile(path), QByteArray("new"));
        // Nor does a copy keep out who may read the original.
        QVERIFY(copyFile(path, folder.path("copy")));
        now.resize(100);
        now.truncate(::getxattr(qPrintable(folder.path("copy")), name, now.data(), 100));
        QCOMPARE(now.toHex(), list.toHex());
    }

    void aSharedFolderWhereOnlyOwnersMayRemoveIsWrittenTo()
    {
        const Folder folder(01777);
        const QString path = folder.file("a", 0666);
        if (!isRoot() || !give(path, ann, ann))
            return;
        {
            const OtherUser user(bob, bob);
            QVERIFY(replaceFile(path, "new"));
        }
        QCOMPARE(readFile(path), QByteArray("new"));
        QCOMPARE(statusOf(path).st_uid, ann);
        QCOMPARE(folder.files(), QStringList{s("a")});
    }

    void aFolderThatTakesNoNewFilesHasItsFileWrittenOver_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("longer") << QByteArray(100'000, 'x');
        QTest::newRow("shorter") << QByteArray("x");
        QTest::newRow("nothing") << QByteArray();
    }

    void aFolderThatTakesNoNewFilesHasItsFileWrittenOver()
    {
        QFETCH(QByteArray, text);
        const Folder folder;
        const QString path = folder.file("a", 0666, "an old text");
        folder.setMode(0555);
        const ino_t before = statusOf(path).st_ino;
        {
            const OtherUser user(bob, bob);
            QVERIFY(replaceFile(path, text));
            QVERIFY(!replaceFile(folder.path("new"), text));
        }
        QCOMPARE(readFile(path), text);
        QCOMPARE(statusOf(path).st_ino, before);
        QCOMPARE(modeOf(path), mode_t(0666));
    }

    // Writing over would break off in the middle here.
    void aFullDiskIsNoReasonToWriteOver()
    {
        const Folder folder;
        const QByteArray old(3000, 'o');
        const QString path = folder.file("a", 0666, old);
        {
            const FileSizeLimit limit(1000);
            QVERIFY(!replaceFile(path, QByteArray(2000, 'n')));
        }
        QCOMPARE(readFile(path), old);
    }

    void aFullDiskLosesNothing_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::newRow("in a folder of one's own") << 0777U;
        // The worst case: there is nowhere to put the new text first.
        QTest::newRow("in a folder that takes no new files") << 0555U;
    }

    void aFullDiskLosesNothing()
    {
        QFETCH(uint, mode);
        const Folder folder;
        const QByteArray old(700, 'o');
        const QString path = folder.file("a", 0666, old);
        folder.setMode(mode);
        const OtherUser user(bob, bob);
        QString error;
        {
            const FileSizeLimit limit(1000);
            QVERIFY(!replaceFile(path, QByteArray(5000, 'n'), &error));
            QVERIFY(!replaceFile(folder.path("new"), QByteArray(5000, 'n')));
        }
        QCOMPARE(error, s("File too large"));
        QCOMPARE(readFile(path), old);
        QCOMPARE(folder.files(), QStringList{s("a")});
    }

    void aFileThatMayNotBeWrittenIsNotReplaced()
    {
        const Folder folder(0777);
        const QString path = folder.file("a", 0444);
        const OtherUser user(bob, bob);
        QString error;
        QVERIFY(!replaceFile(path, "new", &error));
        QCOMPARE(error, s("Permission denied"));
        QCOMPARE(readFile(path), QByteArray("old"));
        QCOMPARE(folder.files(), QStringList{s("a")});
    }

    void linksAreFollowedWhereverTheyLead()
    {
        const Folder folder;
        QVERIFY(QDir(folder.folder.path()).mkpath(s("far/away")));
        const QString path = folder.file("far/a");
        // The dots count from where the folder is, not from its link.
        QVERIFY(QFile::link(folder.path("far/away"), folder.path("near")));
        QCOMPARE(::symlink("../a", qPrintable(folder.path("far/away/back"))), 0);
        QCOMPARE(::symlink("near/back", qPrintable(folder.path("link"))), 0);
        QVERIFY(replaceFile(folder.path("link"), "new"));
        QCOMPARE(readFile(path), QByteArray("new"));
        QVERIFY(QFileInfo(folder.path("link")).isSymLink());
        QVERIFY(QFileInfo(folder.path("far/away/back")).isSymLink());
        // Also to a file that is not there yet.
        QVERIFY(QFile::remove(path));
        QVERIFY(replaceFile(folder.path("link"), "made"));
        QCOMPARE(readFile(path), QByteArray("made"));
        QVERIFY(QFileInfo(folder.path("link")).isSymLink());
    }

    void linksInACircleAreRefused()
    {
        const Folder folder;
        QCOMPARE(::symlink("two", qPrintable(folder.path("one"))), 0);
        QCOMPARE(::symlink("one", qPrintable(folder.path("two"))), 0);
        QVERIFY(!replaceFile(folder.path("one"), "new"));
        QVERIFY(QFileInfo(folder.path("one")).isSymLink());
    }

    // Each would wait for somebody at the other end.
    void whatIsNoRegularFileIsRefusedAtOnce()
    {
        const Folder folder;
        QVERIFY(makePipe(folder.path("pipe")));
        QVERIFY(makeSocket(folder.path("socket")));
        QVERIFY(QFile::link(folder.path("pipe"), folder.path("link")));
        for (const char *name : {"pipe", "socket", "link"}) {
            QString error;
            QVERIFY(!replaceFile(folder.path(name), "new", &error));
            QCOMPARE(error, s("Not a regular file"));
            QVERIFY(!copyFile(folder.path(name), folder.path("copy"), &error));
            QCOMPARE(error, s("Not a regular file"));
        }
        QVERIFY(S_ISFIFO(statusOf(folder.path("pipe")).st_mode));
        QVERIFY(S_ISSOCK(statusOf(folder.path("socket")).st_mode));
        QVERIFY(!replaceFile(folder.folder.path(), "new"));
        QVERIFY(!copyFile(folder.folder.path(), folder.path("copy")));
        QVERIFY(!copyFile(s("/dev/null"), folder.path("copy")));
        QVERIFY(!QFile::exists(folder.path("copy")));
    }

    void devicesAreWrittenToAndStayAsTheyAre()
    {
        const Folder folder;
        const QString from = folder.file("from", 0600);
        QVERIFY(QFile::link(s("/dev/full"), folder.path("link")));
        const auto devices = [] {
            return QList<mode_t>{statusOf(s("/dev/null")).st_mode,
                                 statusOf(s("/dev/full")).st_mode};
        };
        const QList<mode_t> before = devices();
        QVERIFY(replaceFile(s("/dev/null"), "new"));
        QVERIFY(copyFile(from, s("/dev/null")));
        for (const QString &full : {s("/dev/full"), folder.path("link")}) {
            QString error;
            QVERIFY(!replaceFile(full, "new", &error));
            QCOMPARE(error, s("No space left on device"));
            QVERIFY(!copyFile(from, full, &error));
            QCOMPARE(error, s("No space left on device"));
        }
        QCOMPARE(devices(), before);
        QVERIFY(S_ISCHR(before.first()));
    }

    void aPlaceThatCannotBeHasAReason_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("no name") << QString();
        QTest::newRow("no such folder") << s("/nowhere/at/all/a");
        QTest::newRow("below a file") << s("/etc/passwd/a");
        QTest::newRow("a folder") << QDir::tempPath();
    }

    void aPlaceThatCannotBeHasAReason()
    {
        QFETCH(QString, path);
        QString error;
        QVERIFY(!replaceFile(path, "new", &error));
        QVERIFY(!error.isEmpty());
    }

    void copiesHaveTheBytesAndTheModeOfTheirOriginal_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<int>("size");
        QTest::newRow("empty") << 0644U << 0;
        QTest::newRow("small") << 0664U << 1;
        QTest::newRow("private") << 0600U << 511;
        QTest::newRow("read only") << 0444U << 512;
        QTest::newRow("for colleagues") << 0640U << 100'000;
    }

    void copiesHaveTheBytesAndTheModeOfTheirOriginal()
    {
        QFETCH(uint, mode);
        QFETCH(int, size);
        const Folder folder;
        QByteArray bytes(size, '\0');
        for (int i = 0; i < size; ++i)
            bytes[i] = char(i * 7);
        const QString from = folder.file("from", mode, bytes);
        QVERIFY(copyFile(from, folder.path("a/b/new")));
        QCOMPARE(readFile(folder.path("a/b/new")), bytes);
        QCOMPARE(modeOf(folder.path("a/b/new")), mode);
        // One of a second before.
        const QString before = folder.file("before", 0666, QByteArray(200'000, 'x'));
        QVERIFY(copyFile(from, before));
        QCOMPARE(readFile(before), bytes);
        QCOMPARE(modeOf(before), mode);
        QCOMPARE(readFile(from), bytes);
    }

    void aCopyThatIsWrittenOverHasTheModeOfItsOriginal()
    {
        const Folder folder;
        const QString from = folder.file("from", 0644);
        const QString before = folder.file("before", 0600, "before");
        if (isRoot() && !give(before, bob, bob))
            return;
        folder.setMode(0555);
        {
            const OtherUser user(bob, bob);
            QVERIFY(copyFile(from, before));
        }
        QCOMPARE(readFile(before), QByteArray("old"));
        QCOMPARE(modeOf(before), mode_t(0644));
    }

    void aCopyIsReadableForTheColleaguesOfTheOriginal()
    {
        const Folder folder(0777);
        const QString from = folder.file("from", 0660);
        if (!isRoot() || !give(from, ann, planners))
            return;
        {
            const OtherUser user(bob, planners);
            QVERIFY(copyFile(from, folder.path("to")));
        }
        QCOMPARE(statusOf(folder.path("to")).st_uid, bob);
        QCOMPARE(statusOf(folder.path("to")).st_gid, planners);
        QCOMPARE(modeOf(folder.path("to")), mode_t(0660));
    }

    void aFullDiskLeavesNoCutCopy()
    {
        const Folder folder;
        const QString from = folder.file("from", 0644, QByteArray(5000, 'n'));
        const QString older = folder.file("older");
        {
            const FileSizeLimit limit(1000);
            QVERIFY(!copyFile(from, folder.path("to")));
            QVERIFY(!copyFile(from, older));
        }
        QCOMPARE(folder.files(), QStringList({s("from"), s("older")}));
        QCOMPARE(readFile(older), QByteArray("old"));
    }

    void aFileIsNotCopiedOntoItself()
    {
        const Folder folder;
        const QString from = folder.file("from");
        QVERIFY(QFile::link(from, folder.path("link")));
        QCOMPARE(::link(qPrintable(from), qPrintable(folder.path("second name"))), 0);
        for (const char *name : {"from", "link", "second name", "./from"})
            QVERIFY(!copyFile(from, folder.path(name)));
        QCOMPARE(readFile(from), QByteArray("old"));
    }

    void whatCannotBeCopiedHasAReason()
    {
        const Folder folder;
        const QString from = folder.file("from");
        QString error;
        QVERIFY(!copyFile(folder.path("missing"), folder.path("to"), &error));
        QCOMPARE(error, s("No such file or directory"));
        QVERIFY(!copyFile(from, from + s("/below a file"), &error));
        QCOMPARE(error, s("Not a directory"));
        QCOMPARE(folder.files(), QStringList{s("from")});
    }

    void aFileThatMayNotBeReadIsNotCopied()
    {
        const Folder folder(0777);
        const QString from = folder.file("from", 0200);
        const OtherUser user(bob, bob);
        QString error;
        QVERIFY(!copyFile(from, folder.path("to"), &error));
        QCOMPARE(error, s("Permission denied"));
        QVERIFY(!QFile::exists(folder.path("to")));
    }
};

REGISTER_TEST(TestSafeFile)
#include "tst_kwsafefile.moc"
