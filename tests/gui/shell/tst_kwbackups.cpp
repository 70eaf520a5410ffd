#include "gui/framework/kwtimer.h"
#include "gui/shell/kwbackups.h"
#include "support/gui/guitest.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

struct Backups
{
    QDateTime now{QDate(2026, 6, 13), QTime(14, 30, 5)};
    KWBackups backups{nullptr, [this] { return now; }};
    KWDocument plan;
    PlanFolder folder;

    const KWTimer *timer() const { return backups.findChild<KWTimer *>(); }
};
} // namespace

class TestKWBackups : public QObject
{
    Q_OBJECT

private slots:
    void aBackupIsMadeOfAPlanWithAFileThatHasChanged_data()
    {
        QTest::addColumn<bool>("isEmpty");
        QTest::addColumn<bool>("hasFile");
        QTest::addColumn<bool>("hasChanged");
        QTest::newRow("all") << false << true << true;
        QTest::newRow("an empty plan") << true << true << true;
        QTest::newRow("a plan without a file") << false << false << true;
        QTest::newRow("no change") << false << true << false;
    }

    void aBackupIsMadeOfAPlanWithAFileThatHasChanged()
    {
        QFETCH(bool, isEmpty);
        QFETCH(bool, hasFile);
        QFETCH(bool, hasChanged);
        Backups of;
        const QString path = of.folder.writePlan(s("one.kw"), 2);
        if (!isEmpty)
            addGuest(of.plan, {"Ann"});
        if (hasFile)
            of.plan.setFileName(path);
        of.backups.setChangedSinceBackup(hasChanged);
        const bool expected = !isEmpty && hasFile && hasChanged;
        // A try without a path would say that it failed.
        QTest::failOnWarning(QRegularExpression(s("backup")));
        QCOMPARE(of.backups.autoSave(of.plan), expected);
        QCOMPARE(of.folder.files().size(), expected ? 2 : 1);
        QCOMPARE(of.backups.changedSinceBackup(), hasChanged && !expected);
        QVERIFY(!expected || !of.backups.autoSave(of.plan));
    }

    void theTimerAsksForOneAtEachInterval()
    {
        Backups of;
        QSignalSpy due(&of.backups, &KWBackups::due);
        of.backups.setupAutoSave(true, 7);
        auto *timer = of.backups.findChild<KWTimer *>(s("auto save timer"));
        QVERIFY(timer && timer->isActive());
        QCOMPARE(timer->interval(), 420000);
        for (int i = 1; i <= 3; ++i) {
            of.now = of.now.addSecs(420);
            timer->timeoutFired();
            QCOMPARE(due.size(), i);
            QVERIFY(timer->isActive());
        }
    }

    void theTimerFollowsItsSettings()
    {
        Backups of;
        of.backups.setupAutoSave(false, 7);
        QVERIFY(!of.timer()->isActive());
        QCOMPARE(of.timer()->interval(), 420000);
        of.backups.setupAutoSave(true, 7);
        QVERIFY(of.timer()->isActive());
        of.backups.setupAutoSave(true, 8);
        QVERIFY(of.timer()->isActive());
        QCOMPARE(of.timer()->interval(), 480000);
        of.backups.setupAutoSave(false, 8);
        QVERIFY(!of.timer()->isActive());
        QCOMPARE(of.backups.findChildren<KWTimer *>().size(), 1);
    }
};

REGISTER_TEST(TestKWBackups)
#include "tst_kwbackups.moc"
