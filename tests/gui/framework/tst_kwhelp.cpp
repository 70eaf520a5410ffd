#include "gui/framework/kwhelp.h"

#include "gui/framework/kwbusy.h"
#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwhelpwindow.h"
#include "support/gui/fakemainwindow.h"
#include "support/gui/guitest.h"
#include "support/gui/scriptedprompts.h"
#include "support/registeredtest.h"

#include <QApplication>
#include <QDialog>

using namespace Qt::StringLiterals;

// Where the help file is looked for, and what the user is told when something is missing.

namespace {

const QString fileName = u"ambrelune_1_2_14.chm"_s;

QList<KWHelpWindow *> helpWindows()
{
    QList<KWHelpWindow *> result;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<KWHelpWindow *>(widget))
            result.append(window);
    }
    return result;
}

/// Writes down which examples are to be opened while it lives.
class ExampleLog
{
public:
    ExampleLog()
    {
        setExampleOpener([this](const QString &path) { opened.append(path); });
    }
    ~ExampleLog() { setExampleOpener({}); }
    Q_DISABLE_COPY_MOVE(ExampleLog)

    QStringList opened;
};

/// Notes the cursor that is up when a help window is shown.
class CursorWatch : public QObject
{
public:
    CursorWatch() { qApp->installEventFilter(this); }
    std::optional<Qt::CursorShape> shape;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<KWHelpWindow *>(object) &&
            QApplication::overrideCursor())
            shape = QApplication::overrideCursor()->shape();
        return false;
    }
};
} // namespace

class TestHelp : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void anExampleThatAPageOffersIsOpened();
    void aPageLeadsToNoOtherFiles_data();
    void aPageLeadsToNoOtherFiles();
    void underADialogNoExampleIsOpened();
    void theFileInTheStartDirectoryComesFirst();
    void thenTheOneInThePresentDirectory();
    void thenTheOneBesideTheProgram();
    void aMissingFileIsToldAtEachAttempt();
    void aDirectoryOfThatNameIsNoFile();
    void theStartDirectoryIsRememberedOnce();
    void showsATopicUnderABusyCursor();
    void aMissingTopicIsTold_data();
    void aMissingTopicIsTold();
    void aFileThatCannotBeReadIsTold();
    void aDeadLinkInAPageIsTold();
    void thereIsOneWindowForAllTopics();
    void theWindowGoesWithTheMainWindow();

private:
    QString put(const QString &directory) const;

    QString m_start;
    QString m_present;
    QString m_shipped;
    QByteArray m_help;
};

void TestHelp::initTestCase()
{
    QFile file(dataDirectory() + u'/' + fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_help = file.readAll();
}

void TestHelp::init()
{
    m_start = testHome().path(u"start"_s);
    m_present = testHome().path(u"present"_s);
    m_shipped = testHome().path(u"shipped"_s);
    for (const QString &directory : {m_start, m_present, m_shipped}) {
        QVERIFY(QDir(directory).removeRecursively());
        QVERIFY(QDir().mkpath(directory));
    }
    rememberStartDirectory(m_start);
    setShippedHelpDirectory(m_shipped);
    QVERIFY(QDir::setCurrent(m_present));
}

void TestHelp::cleanup()
{
    qDeleteAll(helpWindows());
    QVERIFY(!QApplication::overrideCursor());
}

/// Puts the help file into the directory.
QString TestHelp::put(const QString &directory) const
{
    const QString path = directory + u'/' + fileName;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_help) != m_help.size())
        qFatal("cannot write the help file");
    return path;
}

void TestHelp::anExampleThatAPageOffersIsOpened()
{
    const ExampleLog log;
    put(m_start);
    QVERIFY(showHelpTopic(u"Tutorial.htm"_s));
    helpWindows().constFirst()->openLink(QUrl(u"example:wedding.kw"_s));
    QCOMPARE(log.opened, QStringList{exampleDirectory() + u"/wedding.kw"_s});
    QVERIFY(QFile::exists(log.opened.constFirst()));
    setExampleOpener({});
    helpWindows().constFirst()->openLink(QUrl(u"example:wedding.kw"_s));
    QCOMPARE(log.opened.size(), 1);
}

void TestHelp::aPageLeadsToNoOtherFiles_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::newRow("not there") << QUrl(u"example:none.kw"_s);
    QTest::newRow("absolute") << QUrl(u"example:/etc/passwd"_s);
    QTest::newRow("relative") << QUrl(u"example:../themes/themes.txt"_s);
    QTest::newRow("directory") << QUrl(u"example:.."_s);
    QTest::newRow("nothing") << QUrl(u"example:"_s);
}

void TestHelp::aPageLeadsToNoOtherFiles()
{
    QFETCH(QUrl, url);
    const ExampleLog log;
    put(m_start);
    QVERIFY(showHelpTopic(u"Tutorial.htm"_s));
    helpWindows().constFirst()->openLink(url);
    QCOMPARE(log.opened, QStringList());
}

void TestHelp::underADialogNoExampleIsOpened()
{
    const ExampleLog log;
    put(m_start);
    QVERIFY(showHelpTopic(u"Tutorial.htm"_s));
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QTRY_COMPARE(QApplication::activeModalWidget(), &dialog);
    ScriptedPrompts prompts;
    prompts.answer(u"&OK"_s);
    helpWindows().constFirst()->openLink(QUrl(u"example:wedding.kw"_s));
    QCOMPARE(prompts.texts(), QStringList{u"Close the other window before you open an example."_s});
    QCOMPARE(log.opened, QStringList());
}

void TestHelp::theFileInTheStartDirectoryComesFirst()
{
    const QString path = put(m_start);
    put(m_present);
    put(m_shipped);
    QCOMPARE(helpFilePath(), path);
}

void TestHelp::thenTheOneInThePresentDirectory()
{
    const QString path = put(m_present);
    put(m_shipped);
    QCOMPARE(helpFilePath(), path);
}

void TestHelp::thenTheOneBesideTheProgram()
{
    const QString path = put(m_shipped);
    QCOMPARE(helpFilePath(), path);
    setShippedHelpDirectory();
    QCOMPARE(helpFilePath(), dataDirectory() + u'/' + fileName);
}

void TestHelp::aMissingFileIsToldAtEachAttempt()
{
    ScriptedPrompts prompts;
    prompts.answer(u"&OK"_s);
    prompts.answer(u"&OK"_s);
    QCOMPARE(helpFilePath(), QString());
    QVERIFY(!showHelpTopic(u"Main_window.htm"_s));
    QCOMPARE(prompts.texts(), QStringList(2, u"Can't find help file ambrelune_1_2_14.chm ."_s));
    QCOMPARE(prompts.messages[0].caption, u"Ambrelune"_s);
    QCOMPARE(prompts.messages[0].buttons, QStringList{u"&OK"_s});
    QCOMPARE(prompts.messages[0].icon, KWMessage::Critical);
    QCOMPARE(helpWindows().size(), 0);
}

void TestHelp::aDirectoryOfThatNameIsNoFile()
{
    QVERIFY(QDir(m_start).mkdir(fileName));
    const QString path = put(m_present);
    QCOMPARE(helpFilePath(), path);
}

void TestHelp::theStartDirectoryIsRememberedOnce()
{
    rememberStartDirectory();
    QCOMPARE(startDirectory(), m_present);
    QVERIFY(QDir::setCurrent(m_shipped));
    QCOMPARE(startDirectory(), m_present);
    const QString path = put(m_present);
    QCOMPARE(helpFilePath(), path);
}

void TestHelp::showsATopicUnderABusyCursor()
{
    put(m_shipped);
    const ScriptedPrompts prompts;
    const CursorWatch watch;
    QVERIFY(showHelpTopic(u"Preferences_window.htm"_s));
    QCOMPARE(prompts.messages.size(), 0);
    QCOMPARE(helpWindows().size(), 1);
    QVERIFY(helpWindows()[0]->isVisible());
    QCOMPARE(helpWindows()[0]->windowTitle(), u"Ambrelune help - Preferences window"_s);
    QCOMPARE(watch.shape, Qt::WaitCursor);
    QVERIFY(!QApplication::overrideCursor());
}

void TestHelp::aMissingTopicIsTold_data()
{
    QTest::addColumn<QString>("topic");

    QTest::newRow("missing") << u"No_such_window.htm"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("with a place holder") << u"%2.htm"_s;
}

void TestHelp::aMissingTopicIsTold()
{
    QFETCH(QString, topic);

    const QString path = put(m_present);
    ScriptedPrompts prompts;
    prompts.answer(u"&OK"_s);
    QVERIFY(!showHelpTopic(topic));
    QCOMPARE(prompts.texts(), QStringList{u"Unable to display topic '"_s + topic +
                                          u"' in Help file '"_s + path + u"'."_s});
    QCOMPARE(prompts.messages[0].buttons, QStringList{u"&OK"_s});
    QCOMPARE(helpWindows().size(), 1);
    QVERIFY(!helpWindows()[0]->isVisible());
}

void TestHelp::aFileThatCannotBeReadIsTold()
{
    const QString path = put(m_present);
    QVERIFY(QFile::resize(path, 1000));
    ScriptedPrompts prompts;
    prompts.answer(u"&OK"_s);
    QVERIFY(!showHelpTopic(u"Main_window.htm"_s));
    QCOMPARE(
        prompts.texts(),
        QStringList{u"Unable to display topic 'Main_window.htm' in Help file '%1'."_s.arg(path)});
}

void TestHelp::aDeadLinkInAPageIsTold()
{
    const QString path = put(m_present);
    QVERIFY(showHelpTopic(u"Main_window.htm"_s));
    ScriptedPrompts prompts;
    prompts.answer(u"&OK"_s);
    helpWindows()[0]->openLink(QUrl(u"Gone.htm"_s));
    QCOMPARE(prompts.texts(),
             QStringList{u"Unable to display topic 'Gone.htm' in Help file '%1'."_s.arg(path)});
}

void TestHelp::thereIsOneWindowForAllTopics()
{
    put(m_present);
    QVERIFY(showHelpTopic(u"Main_window.htm"_s));
    QPointer<KWHelpWindow> window = helpWindows().value(0);
    window->close();
    QVERIFY(showHelpTopic(u"Tutorial.htm"_s));
    QCOMPARE(helpWindows(), QList<KWHelpWindow *>{window});
    QVERIFY(window->isVisible());
    QCOMPARE(window->windowTitle(), u"Ambrelune help - Tutorial"_s);
}

void TestHelp::theWindowGoesWithTheMainWindow()
{
    put(m_present);
    auto owner = std::make_unique<FakeMainWindow>();
    QVERIFY(showHelpTopic(u"Main_window.htm"_s));
    const QPointer<KWHelpWindow> window = helpWindows().value(0);
    QCOMPARE(window->parentWidget(), owner->widget());
    QVERIFY(window->isWindow());
    owner.reset();
    QVERIFY(!window);
    QVERIFY(showHelpTopic(u"Main_window.htm"_s));
    QCOMPARE(helpWindows().size(), 1);
}

REGISTER_TEST(TestHelp)
#include "tst_kwhelp.moc"
