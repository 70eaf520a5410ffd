#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwwebpage.h"
#include "support/gui/guitest.h"
#include "support/gui/scriptedprompts.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QMouseEvent>

namespace {

/// Takes the addresses of a scheme in the desktop's place for as long as it lives.
class Browser : public QObject
{
    Q_OBJECT

public:
    explicit Browser(const QString &scheme)
        : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(m_scheme, this, "open");
    }
    ~Browser() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    QStringList opened;
    bool wasBusy = false;

public slots:
    void open(const QUrl &url)
    {
        opened.append(url.toString());
        const QCursor *cursor = QApplication::overrideCursor();
        wasBusy = cursor && cursor->shape() == Qt::WaitCursor;
    }

private:
    QString m_scheme;
};

/// Makes a new empty directory the only one that programs are found in.
class OnlyPath
{
public:
    OnlyPath() { qputenv("PATH", m_directory.path().toLocal8Bit()); }
    ~OnlyPath() { qputenv("PATH", m_before); }
    Q_DISABLE_COPY_MOVE(OnlyPath)

    QString path(const char *name) const { return m_directory.filePath(s(name)); }

    void addProgram(const char *name, const QByteArray &script) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    QByteArray m_before = qgetenv("PATH");
    QTemporaryDir m_directory;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Expects that neither a handler nor the desktop takes the address.
void expectNoHandler()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(s("open(Url|Document)")));
}

class CountingLabel : public QLabel
{
public:
    int presses = 0;
    int releases = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
    void mouseReleaseEvent(QMouseEvent *) override { ++releases; }
};
} // namespace

class TestKWWebPage : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(!QApplication::overrideCursor()); }

    void anAddressGoesToTheUsersBrowser()
    {
        Browser browser(s("https"));
        QVERIFY(showWebPage(s("https://example.org/a?b=c#d")));
        QCOMPARE(browser.opened, QStringList{s("https://example.org/a?b=c#d")});
        QVERIFY(browser.wasBusy);
    }

    void anExistingFileIsOpenedAsAFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << s("page.html");
        QTest::newRow("blanks and signs") << s("my page #1, 100%.html");
        QTest::newRow("like an address") << s("mailto:x");
    }

    void anExistingFileIsOpenedAsAFile()
    {
        QFETCH(QString, name);
        const QString path = testHome().path(name);
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        Browser browser(s("file"));
        QVERIFY(showWebPage(path));
        QVERIFY(showWebPage(name));
        QCOMPARE(browser.opened.size(), 2);
        for (const QString &opened : browser.opened)
            QCOMPARE(QFileInfo(QUrl(opened).toLocalFile()).canonicalFilePath(),
                     QFileInfo(path).canonicalFilePath());
    }

    void anAddressWithoutASchemeThatIsNoFileIsOfNoKnownType_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("no file") << s("/no/such/page.html");
        QTest::newRow("no scheme") << s("www.example.org");
        QTest::newRow("empty") << QString();
    }

    void anAddressWithoutASchemeThatIsNoFileIsOfNoKnownType()
    {
        QFETCH(QString, address);
        ScriptedPrompts user;
        user.answer(s("&OK"));
        QVERIFY(!showWebPage(address));
        QCOMPARE(user.texts(), QStringList{s("Unknown file/URL type.")});
        QCOMPARE(user.messages.first().icon, KWMessage::Critical);
        QCOMPARE(user.messages.first().buttons, QStringList{s("&OK")});
    }

    void whatNothingHandlesGoesToXdgOpen()
    {
        const OnlyPath path;
        path.addProgram("xdg-open",
                        "#!/bin/sh\necho \"$#:$1\" > '" + path.path("seen").toUtf8() + "'\n");
        expectNoHandler();
        QVERIFY(showWebPage(s("https://example.org/a b")));
        QTRY_COMPARE(contentOf(path.path("seen")), QByteArray("1:https://example.org/a b\n"));
    }

    void aFileThatNothingHandlesGoesToXdgOpenByItsPath()
    {
        const OnlyPath path;
        path.addProgram("xdg-open",
                        "#!/bin/sh\necho \"$1\" > '" + path.path("seen").toUtf8() + "'\n");
        QVERIFY(QFile(s("-page.html")).open(QIODevice::WriteOnly));
        expectNoHandler();
        QVERIFY(showWebPage(s("-page.html")));
        QTRY_COMPARE(contentOf(path.path("seen")),
                     QFileInfo(s("-page.html")).absoluteFilePath().toUtf8() + '\n');
    }

    void anXdgOpenThatDoesNotStartIsReported()
    {
        const OnlyPath path;
        path.addProgram("xdg-open", "#!/no/such/shell\n");
        ScriptedPrompts user;
        user.answer(s("&OK"));
        expectNoHandler();
        QVERIFY(!showWebPage(s("https://example.org/%1%2")));
        QCOMPARE(user.texts(),
                 QStringList{s("Unable to display 'https://example.org/%1%2' in browser.")});
    }

    void withoutXdgOpenTheMessageNamesAddressAndResult()
    {
        const OnlyPath path;
        ScriptedPrompts user;
        user.answer(s("&OK"));
        expectNoHandler();
        QVERIFY(!showWebPage(s("https://example.org/%2")));
        QCOMPARE(user.texts(), QStringList{s("Unable to display a web browser for "
                                             "https://example.org/%2 ( error code 31 ).")});
    }

    void anXdgOpenThatIsNoProgramDoesNotCount()
    {
        const OnlyPath path;
        path.addProgram("xdg-open", "#!/bin/sh\n");
        QFile(path.path("xdg-open")).setPermissions(QFile::ReadOwner);
        ScriptedPrompts user;
        user.answer(s("&OK"));
        expectNoHandler();
        QVERIFY(!showWebPage(s("https://example.org")));
        QVERIFY(user.texts().first().endsWith(s("( error code 31 ).")));
    }

    void aPressOnALabelOpensItsPageAndIsSwallowed()
    {
        Browser browser(s("https"));
        CountingLabel label;
        new KWShowWebPage(&label, s("https://example.org"));
        label.show();
        QTest::mousePress(&label, Qt::LeftButton);
        QCOMPARE(browser.opened, QStringList{s("https://example.org")});
        QCOMPARE(label.presses, 0);
        QTest::mouseRelease(&label, Qt::LeftButton);
        QCOMPARE(label.releases, 1);
        QCOMPARE(browser.opened.size(), 1);
    }

    void aPressOnSomethingElseGoesThrough()
    {
        Browser browser(s("https"));
        CountingLabel label;
        CountingLabel other;
        other.installEventFilter(new KWShowWebPage(&label, s("https://example.org")));
        other.show();
        QTest::mousePress(&other, Qt::LeftButton);
        QCOMPARE(other.presses, 1);
        QCOMPARE(browser.opened, QStringList());
    }

    void theDataDirectoryIsBesideThePrograms()
    {
        const QDir bin(QCoreApplication::applicationDirPath());
        QCOMPARE(dataDirectory(), QFileInfo(bin.path()).path() + s("/share/ambrelune"));
    }

    void thePagesAreShippedAndNeedNoNetwork_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("home") << s("Ambrelune");
        QTest::newRow("fonts") << s("More fonts");
        QTest::newRow("veltrace") << s("Veltrace");
        QTest::newRow("toolkit") << s("Built with Qt");
    }

    void thePagesAreShippedAndNeedNoNetwork()
    {
        QFETCH(QString, title);
        const QString path = webPage(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(QDir::isAbsolutePath(path));
        const QString text = QString::fromUtf8(contentOf(path));
        QVERIFY2(text.contains(s("<title>%1</title>").arg(title)), qPrintable(path));
        static const QRegularExpression loaded(
            s("<script|<link(?! rel=\"stylesheet\" "
              "href=\"style.css\">)|<img|\\bsrc=|url\\(|@import"));
        QVERIFY(!text.contains(loaded));
        static const QRegularExpression link(s("href=\"([^\"]*)\""));
        for (const QRegularExpressionMatch &match : link.globalMatch(text)) {
            const QString target = match.captured(1);
            const bool reachable = target.startsWith(s("https://")) ||
                                   QFileInfo::exists(QFileInfo(path).dir().filePath(target));
            QVERIFY2(reachable, qPrintable(target));
        }
    }

    void aShippedPageOpensAsAFile()
    {
        Browser browser(s("file"));
        QVERIFY(showWebPage(webPage(s("home"))));
        QCOMPARE(browser.opened, QStringList{QUrl::fromLocalFile(webPage(s("home"))).toString()});
    }
};

REGISTER_TEST(TestKWWebPage)
#include "tst_kwwebpage.moc"
