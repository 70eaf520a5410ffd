#include "gui/framework/kwusersettings.h"
#include "gui/shell/kwrecentplans.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// Another program's change to the stored list.
void storeElsewhere(const KWUserSettings &settings, const QByteArray &list)
{
    QFile file(settings.fileName());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("[most_recent]\nfiles=" + list + "\n");
}

QByteArray stored(const KWUserSettings &settings)
{
    QFile file(settings.fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class TestKWRecentPlans : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void theLastOneIsTheFirst()
    {
        KWUserSettings settings;
        KWRecentPlans plans(&settings);
        QCOMPARE(plans.paths(), QStringList());
        for (const char *path : {"/1.kw", "/2.kw", "/3.kw", "/4.kw", "/5.kw", "/6.kw", "/4.kw"})
            plans.add(s(path));
        QCOMPARE(plans.paths(),
                 QStringList({s("/4.kw"), s("/6.kw"), s("/5.kw"), s("/3.kw"), s("/2.kw")}));
    }

    void aBackupStaysOutUnlessItsNameHasMoreDots()
    {
        KWUserSettings settings;
        KWRecentPlans plans(&settings);
        for (const char *path : {"/a.kwb", "/a.KWB", "/a.b.kwb"})
            plans.add(s(path));
        QCOMPARE(plans.paths(), QStringList{s("/a.b.kwb")});
    }

    void aStoredListThatIsTooLongIsCut()
    {
        KWUserSettings settings;
        settings.setMostRecentFiles({s("/1"), s("/2"), s("/3"), s("/4"), s("/5"), s("/6")});
        const KWRecentPlans plans(&settings);
        QCOMPARE(plans.paths(), QStringList({s("/1"), s("/2"), s("/3"), s("/4"), s("/5")}));
    }

    void onePathWrittenInTwoWaysIsOnePlan()
    {
        KWUserSettings settings;
        KWRecentPlans plans(&settings);
        plans.add(s("/home/../a.kw/"));
        settings.setMostRecentFiles({s("a.kw"), s("/b.kw")});
        plans.add(QDir::current().absoluteFilePath(s("a.kw")));
        QCOMPARE(plans.paths(),
                 QStringList({QDir::current().absoluteFilePath(s("a.kw")), s("/b.kw")}));
        QVERIFY(plans.hasOtherThan(s("a.kw")));
        settings.setMostRecentFiles({s("a.kw")});
        QVERIFY(!plans.hasOtherThan(QDir::current().absoluteFilePath(s("a.kw"))));
        QVERIFY(plans.hasOtherThan(QString()));
        settings.setMostRecentFiles({});
        QVERIFY(!plans.hasOtherThan(QString()));
    }

    void twoProgramsDoNotLoseEachOthersPlans()
    {
        KWUserSettings settings;
        KWRecentPlans plans(&settings);
        plans.add(s("/ours.kw"));
        QVERIFY(stored(settings).contains("/ours.kw"));
        storeElsewhere(settings, "/theirs.kw, /ours.kw");
        QCOMPARE(plans.paths(), QStringList({s("/theirs.kw"), s("/ours.kw")}));
        plans.add(s("/new.kw"));
        QCOMPARE(plans.paths(), QStringList({s("/new.kw"), s("/theirs.kw"), s("/ours.kw")}));
        QVERIFY(stored(settings).contains("/new.kw, /theirs.kw, /ours.kw"));
        // What another program has taken out does not come back either.
        storeElsewhere(settings, "/theirs.kw");
        plans.add(s("/newer.kw"));
        QCOMPARE(plans.paths(), QStringList({s("/newer.kw"), s("/theirs.kw")}));
    }
};

REGISTER_TEST(TestKWRecentPlans)
#include "tst_kwrecentplans.moc"
