#include "gui/framework/kwhelpfile.h"

#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwmainwindow.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <random>

using namespace Qt::StringLiterals;

// Help files: the one that is built, and the same one cut short, bent and lied about.

namespace {

QString goodPath()
{
    return u"%1/ambrelune_%2.chm"_s.arg(dataDirectory(),
                                        KWMainWindow::versionText().replace(u'.', u'_'));
}

QByteArray goodBytes()
{
    QFile file(goodPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray sourceOf(const QString &page)
{
    QFile file(sourcePath("help/") + page);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString written(const QByteArray &bytes)
{
    const QString path = testHome().path(u"damaged.chm"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the damaged file");
    return path;
}

/// Reads all there is in a file, as far as it goes; the number of objects that were read.
int readEverything(const QByteArray &bytes)
{
    const KWHelpFile file(written(bytes));
    int read = 0;
    const QStringList names = QDir(sourcePath("help")).entryList(QDir::Files);
    for (const QString &name : names)
        read += file.object(name).has_value() ? 1 : 0;
    file.contents();
    return read;
}
} // namespace

class TestHelpFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPageComesOutAsItWentIn();
    void capitalsInNamesDoNotMatter();
    void aMissingObjectGivesNothing_data();
    void aMissingObjectGivesNothing();
    void theContentsNameEveryPageOnce();
    void theFileMayVanishWhileItIsOpen();
    void aFileThatIsNoHelpFileIsNotOpen_data();
    void aFileThatIsNoHelpFileIsNotOpen();
    void aFileCutShortAnywhereDoesNoHarm();
    void flippedBytesDoNoHarm_data();
    void flippedBytesDoNoHarm();
    void everyHeaderByteMayBeWrong();
    void anObjectThatIsTooLargeIsRefused();
    void anObjectThatClaimsToBeHugeIsRefused();
};

void TestHelpFile::initTestCase()
{
    QVERIFY2(!goodBytes().isEmpty(), qPrintable(goodPath()));
}

void TestHelpFile::everyPageComesOutAsItWentIn()
{
    const KWHelpFile file(goodPath());
    QVERIFY(file.isOpen());
    QCOMPARE(file.path(), goodPath());
    const QStringList pages =
        QDir(sourcePath("help")).entryList({u"*.htm"_s, u"*.css"_s}, QDir::Files);
    QVERIFY(pages.size() > 5);
    for (const QString &page : pages) {
        QVERIFY2(file.contains(page), qPrintable(page));
        QVERIFY2(file.object(page).has_value(), qPrintable(page));
        QCOMPARE(*file.object(page), sourceOf(page));
    }
}

void TestHelpFile::capitalsInNamesDoNotMatter()
{
    const KWHelpFile file(goodPath());
    QVERIFY(file.contains(u"MAIN_window.HTM"_s));
    QCOMPARE(file.object(u"main_WINDOW.htm"_s), file.object(u"Main_window.htm"_s));
}

void TestHelpFile::aMissingObjectGivesNothing_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no such page") << u"No_such_page.htm"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("the root") << u"/"_s;
    QTest::newRow("the directory above") << u"../help/Main_window.htm"_s;
    QTest::newRow("a path on the disk") << u"/etc/passwd"_s;
    QTest::newRow("an inner part") << u"::DataSpace/NameList"_s;
}

void TestHelpFile::aMissingObjectGivesNothing()
{
    QFETCH(QString, name);

    const KWHelpFile file(goodPath());
    QVERIFY(!file.contains(name));
    QVERIFY(!file.object(name).has_value());
}

void TestHelpFile::theContentsNameEveryPageOnce()
{
    const KWHelpFile file(goodPath());
    QStringList pages;
    for (const KWHelpEntry &entry : file.contents()) {
        if (!entry.page.isEmpty())
            pages.append(entry.page);
    }
    pages.sort();
    QStringList sources = QDir(sourcePath("help")).entryList({u"*.htm"_s}, QDir::Files);
    sources.sort();
    QCOMPARE(pages, sources);
}

void TestHelpFile::theFileMayVanishWhileItIsOpen()
{
    const QString path = written(goodBytes());
    const KWHelpFile file(path);
    QVERIFY(QFile::remove(path));
    QCOMPARE(file.object(u"Main_window.htm"_s), sourceOf(u"Main_window.htm"_s));
}

void TestHelpFile::aFileThatIsNoHelpFileIsNotOpen_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("I");
    QTest::newRow("the mark alone") << QByteArray("ITSF");
    QTest::newRow("text") << QByteArray("This is not a help file.\n").repeated(1000);
    QTest::newRow("null bytes") << QByteArray(100000, '\0');
    QTest::newRow("a page") << sourceOf(u"Main_window.htm"_s);
    QTest::newRow("another mark") << "ITSX" + goodBytes().sliced(4);
    QTest::newRow("the head alone") << goodBytes().first(0x60);
    QTest::newRow("null bytes behind the head")
        << goodBytes().first(0x60) + QByteArray(20000, '\0');
}

void TestHelpFile::aFileThatIsNoHelpFileIsNotOpen()
{
    QFETCH(QByteArray, bytes);

    const KWHelpFile file(written(bytes));
    QVERIFY(!file.isOpen());
    QVERIFY(!file.contains(u"Main_window.htm"_s));
    QVERIFY(!file.object(u"Main_window.htm"_s).has_value());
    QVERIFY(file.contents().isEmpty());

    QVERIFY(!KWHelpFile(testHome().path(u"missing.chm"_s)).isOpen());
    QVERIFY(!KWHelpFile(testHome().path({})).isOpen());
    QVERIFY(!KWHelpFile({}).isOpen());
}

void TestHelpFile::aFileCutShortAnywhereDoesNoHarm()
{
    const QByteArray good = goodBytes();
    const int whole = readEverything(good);
    for (qsizetype length = 0; length < good.size(); length += length < 600 ? 7 : 97)
        QVERIFY(readEverything(good.first(length)) <= whole);
    QVERIFY(readEverything(good.first(good.size() / 2)) < whole);
}

void TestHelpFile::flippedBytesDoNoHarm_data()
{
    QTest::addColumn<int>("bytes");

    QTest::newRow("one") << 1;
    QTest::newRow("a few") << 8;
    QTest::newRow("many") << 200;
}

void TestHelpFile::flippedBytesDoNoHarm()
{
    QFETCH(int, bytes);

    const QByteArray good = goodBytes();
    const int whole = readEverything(good);
    for (unsigned seed = 0; seed < 150; ++seed) {
        std::mt19937 random(seed);
        QByteArray bent = good;
        for (int i = 0; i < bytes; ++i)
            bent[static_cast<qsizetype>(random() % good.size())] = static_cast<char>(random());
        QVERIFY(readEverything(bent) <= whole);
    }
}

void TestHelpFile::everyHeaderByteMayBeWrong()
{
    const QByteArray good = goodBytes();
    const int whole = readEverything(good);
    for (qsizetype at = 0; at < 0x100; ++at) {
        for (const char value : {'\x00', '\x7f', '\xff'}) {
            QByteArray bent = good;
            bent[at] = value;
            QVERIFY(readEverything(bent) <= whole);
        }
    }
}

void TestHelpFile::anObjectThatIsTooLargeIsRefused()
{
    const QDir directory(testHome().path(u"large"_s));
    QVERIFY(QDir().mkpath(directory.path()));
    const QMap<QString, QByteArray> files{
        {u"project.hhp"_s, "[OPTIONS]\nCompiled file=large.chm\nTitle=Large\n\n"
                           "[FILES]\nsmall.htm\nlarge.htm\n"},
        {u"small.htm"_s, "small"},
        {u"large.htm"_s, QByteArray(KWHelpFile::maxObjectSize + 1, 'b')}};
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        QFile out(directory.filePath(file.key()));
        QVERIFY(out.open(QIODevice::WriteOnly));
        QCOMPARE(out.write(*file), file->size());
    }
    QProcess compiler;
    compiler.setWorkingDirectory(directory.path());
    compiler.start(u"chmcmd"_s, {u"--no-html-scan"_s, u"project.hhp"_s});
    QVERIFY(compiler.waitForFinished());
    QCOMPARE(compiler.exitCode(), 0);

    const KWHelpFile file(directory.filePath(u"large.chm"_s));
    QVERIFY(file.contains(u"large.htm"_s));
    QVERIFY(!file.object(u"large.htm"_s).has_value());
    QCOMPARE(file.object(u"small.htm"_s), files[u"small.htm"_s]);
}

void TestHelpFile::anObjectThatClaimsToBeHugeIsRefused()
{
    // A directory entry is the length of the name, the name, the section, and start and length as
    // numbers of seven bits a byte.
    QByteArray bent = goodBytes();
    const qsizetype name = bent.indexOf("/Welcome.htm");
    QVERIFY(name > 0);
    qsizetype length = name + static_cast<qsizetype>(qstrlen("/Welcome.htm")) + 1;
    while (bent[length] & '\x80')
        ++length;
    ++length;
    bent.replace(length, 6, "\xff\xff\xff\xff\xff\x7f");
    const KWHelpFile file(written(bent));
    QVERIFY(file.contains(u"Welcome.htm"_s));
    QVERIFY(!file.object(u"Welcome.htm"_s).has_value());
}

REGISTER_TEST(TestHelpFile)
#include "tst_kwhelpfile.moc"
