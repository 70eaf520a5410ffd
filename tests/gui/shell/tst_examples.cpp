#include "core/model/kwdocument.h"
#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwhelp.h"
#include "gui/framework/kwhelpwindow.h"
#include "gui/shell/kwfilecommands.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

// How a new user comes to the example plans.

namespace {

QString startOfOpen(OpenWindow &open)
{
    open.prompts.answerFile({});
    open.run("m_fileOpenAction");
    return open.prompts.files.constLast().startPath;
}

/// Follows a link to the example of the help.
void followLink(OpenWindow &open, const QString &example)
{
    if (!showHelpTopic(s("Tutorial.htm")))
        qFatal("no tutorial");
    open.window.findChild<KWHelpWindow *>()->openLink(QUrl(s("example:") + example));
}
} // namespace

class TestExamples : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        OpenWindow::quietSettings();
        QVERIFY(QDir::setCurrent(testHome().path({})));
    }

    void openBeginsWithThemForWhoHasNoPlan()
    {
        OpenWindow open;
        QCOMPARE(startOfOpen(open), exampleDirectory());
        QVERIFY(QFile::exists(exampleDirectory() + s("/wedding.kw")));
    }

    void openBeginsWithThePlansOfWhoHasSome_data()
    {
        QTest::addColumn<QString>("where");
        QTest::newRow("recent") << s("recent");
        QTest::newRow("in the directory of the start") << s("here");
        QTest::newRow("open") << s("open");
        QTest::newRow("a directory for them") << s("plans");
    }

    void openBeginsWithThePlansOfWhoHasSome()
    {
        QFETCH(QString, where);
        const PlanFolder folder;
        QVERIFY(QDir::setCurrent(folder.path(s("."))));
        const auto back = qScopeGuard([] { QDir::setCurrent(testHome().path({})); });
        if (where == s("recent"))
            KWUserSettings().setMostRecentFiles({s("/somewhere/party.kw")});
        if (where == s("here"))
            folder.writePlan(s("party.kw"));
        if (where == s("plans"))
            QVERIFY(QDir(folder.path(s("."))).mkdir(s("plans")));
        OpenWindow open;
        if (where == s("open")) {
            const PlanFolder other;
            open.prompts.answerFile(other.writePlan(s("party.kw")));
            open.run("m_fileOpenAction");
        }
        QCOMPARE(startOfOpen(open), open.window.fileCommands()->planDirPath());
    }

    void aLinkInTheHelpOpensOne()
    {
        OpenWindow open;
        followLink(open, s("small.kw"));
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - small.kw"));
        QVERIFY(open.plan().guestCount() > 5);
        QVERIFY(!open.plan().isModified());
    }

    void whatIsNotSavedIsAskedAboutFirst()
    {
        OpenWindow open;
        open.plan().addGroup({}, s("Smith"), {});
        open.plan().setModified(true);
        open.prompts.answer(s("&Cancel"));
        followLink(open, s("small.kw"));
        QCOMPARE(open.prompts.texts(), QStringList{s("Save changes to this plan?")});
        QCOMPARE(open.plan().groupCount(), 1);
        open.prompts.answer(s("&Save"));
        open.prompts.answerFile({});
        followLink(open, s("small.kw"));
        QCOMPARE(open.plan().groupCount(), 1);
        open.prompts.answer(s("&Don't save"));
        followLink(open, s("small.kw"));
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - small.kw"));
    }
};

REGISTER_TEST(TestExamples)
#include "tst_examples.moc"
