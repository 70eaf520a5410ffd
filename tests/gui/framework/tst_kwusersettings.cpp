#include "gui/framework/kwusersettings.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// What a getter gives and what its setter stores, for each key.
struct Key
{
    const char *name;
    QVariant missing;
    QVariant other;
    std::function<QVariant(const KWUserSettings &)> get;
    std::function<void(KWUserSettings &, const QVariant &)> set;
};

template <typename Value>
Key key(const char *name, Value missing, Value other, Value (KWUserSettings::*get)() const,
        void (KWUserSettings::*set)(Value))
{
    return {name, missing, other,
            [get](const KWUserSettings &settings) { return QVariant((settings.*get)()); },
            [set](KWUserSettings &settings, const QVariant &value) {
                (settings.*set)(value.value<Value>());
            }};
}

const QList<Key> &keys()
{
    using S = KWUserSettings;
    static const QList<Key> all{
        key("backup/on_save", true, false, &S::backupOnSave, &S::setBackupOnSave),
        key("backup/auto_on", true, false, &S::backupAutoOn, &S::setBackupAutoOn),
        key("backup/auto_interval", 10, 25, &S::backupAutoInterval, &S::setBackupAutoInterval),
        key("warning/delete_guest", true, false, &S::warningDeleteGuest, &S::setWarningDeleteGuest),
        key("warning/delete_table", true, false, &S::warningDeleteTable, &S::setWarningDeleteTable),
        key("warning/autolayout_unassign", true, false, &S::warningAutolayoutUnassign,
            &S::setWarningAutolayoutUnassign),
        key("warning/duplicate_guest", true, false, &S::warningDuplicateGuest,
            &S::setWarningDuplicateGuest),
        key("help/show_getting_started", true, false, &S::helpShowGettingStarted,
            &S::setHelpShowGettingStarted),
        key("misc/show_tool_tips", true, false, &S::miscShowToolTips, &S::setMiscShowToolTips),
        key("appearance/maximised", true, false, &S::appearanceMaximised,
            &S::setAppearanceMaximised),
        key("misc/capitalise_names", true, false, &S::miscCapitaliseNames,
            &S::setMiscCapitaliseNames),
        key("solver/maxSeconds", 60, 90, &S::solverMaxSeconds, &S::setSolverMaxSeconds),
        key("solver/maxGenerationsUnimproved", 20, 7, &S::solverMaxGenerationsUnimproved,
            &S::setSolverMaxGenerationsUnimproved),
        key("solver/stopCriteria", 2, 3, &S::solverStopCriteria, &S::setSolverStopCriteria),
        key("most_recent/show_at_start", false, true, &S::mostRecentShowAtStart,
            &S::setMostRecentShowAtStart),
    };
    return all;
}
} // namespace

class TestKWUserSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void eachKeyHasItsDefaultAndKeepsItsValue_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < keys().size(); ++i)
            QTest::newRow(keys().at(i).name) << i;
    }

    void eachKeyHasItsDefaultAndKeepsItsValue()
    {
        QFETCH(int, index);
        const Key &key = keys().at(index);
        {
            KWUserSettings settings;
            QCOMPARE(key.get(settings), key.missing);
            key.set(settings, key.other);
        }
        KWUserSettings settings;
        QCOMPARE(settings.value(s(key.name)).toString(), key.other.toString());
        QCOMPARE(key.get(settings), key.other);
    }

    void theRecentFilesKeepTheirOrderAlsoWhenThereIsOne()
    {
        QCOMPARE(KWUserSettings().mostRecentFiles(), QStringList());
        for (const QStringList &paths :
             {QStringList{s("/b.kw"), s("/a, b.kw")}, QStringList{s("/c.kw")}, QStringList()}) {
            KWUserSettings().setMostRecentFiles(paths);
            QCOMPARE(KWUserSettings().mostRecentFiles(), paths);
        }
    }

    void aWarningIsTheSameByItsKeyAndByItsName()
    {
        KWUserSettings settings;
        QVERIFY(settings.warning(s("warning/delete_guest")));
        settings.setWarning(s("warning/delete_guest"), false);
        QVERIFY(!settings.warningDeleteGuest());
        QVERIFY(settings.warningDeleteTable());
    }

    void aNumberOutOfItsRangeIsBroughtIntoIt()
    {
        KWUserSettings settings;
        settings.setBackupAutoInterval(0);
        QCOMPARE(settings.backupAutoInterval(), 1);
        settings.setBackupAutoInterval(61);
        QCOMPARE(settings.backupAutoInterval(), 60);
        settings.setSolverMaxSeconds(9);
        QCOMPARE(settings.solverMaxSeconds(), 10);
        settings.setSolverMaxGenerationsUnimproved(100000);
        QCOMPARE(settings.solverMaxGenerationsUnimproved(), 99999);
    }

    void whatIsNoNumberGivesTheDefault()
    {
        KWUserSettings settings;
        settings.setValue("backup/auto_interval", s("often"));
        QCOMPARE(settings.backupAutoInterval(), 10);
        settings.setValue("solver/stopCriteria", s("never"));
        QCOMPARE(settings.solverStopCriteria(), 2);
    }

    void whatIsNeitherTrueNorFalseGivesTheDefault_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::newRow("word") << QVariant(s("banana"));
        QTest::newRow("nothing") << QVariant(QString());
        QTest::newRow("list") << QVariant(QStringList{s("true"), s("false")});
    }

    void whatIsNeitherTrueNorFalseGivesTheDefault()
    {
        QFETCH(QVariant, stored);
        KWUserSettings settings;
        settings.setValue("most_recent/show_at_start", stored);
        settings.setValue("warning/delete_guest", stored);
        QVERIFY(!settings.mostRecentShowAtStart());
        QVERIFY(settings.warningDeleteGuest());
    }

    void theRecentDialogAtStartMayBeStoredAsANumber()
    {
        KWUserSettings settings;
        settings.setValue("most_recent/show_at_start", s("1"));
        QVERIFY(settings.mostRecentShowAtStart());
        settings.setValue("most_recent/show_at_start", 0);
        QVERIFY(!settings.mostRecentShowAtStart());
    }

    void theStoreIsTheUsersUnderTheMakerAndTheProduct()
    {
        const KWUserSettings settings;
        QCOMPARE(settings.organizationName(), s("Veltrace"));
        QCOMPARE(settings.applicationName(), s("Ambrelune"));
        QCOMPARE(settings.scope(), QSettings::UserScope);
        QVERIFY2(settings.fileName().startsWith(testHome().path(QString())),
                 qPrintable(settings.fileName()));
    }
};

REGISTER_TEST(TestKWUserSettings)
#include "tst_kwusersettings.moc"
