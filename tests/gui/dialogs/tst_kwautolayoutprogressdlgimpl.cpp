#include "core/autolayout/kwgaevent.h"
#include "gui/dialogs/kwautolayoutprogressdlgimpl.h"
#include "support/gui/dialogtest.h"
#include "support/gui/fakemainwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

// The dialog of a layout that runs.

namespace {

/// A window whose plan has two guests who wish to sit together, and seats for them.
struct PlanWindow : FakeMainWindow
{
    PlanWindow()
    {
        KWDocument &plan = *document();
        KWGuest *ann = addGuest(plan, {"Ann"});
        KWGuest *bob = addGuest(plan, {"Bob"});
        KWTable *table = addTable(plan, "T", KWTable::Circular, 6);
        plan.assignGuest(ann, table, 0, false);
        plan.assignGuest(bob, table, 3, false);
        plan.setAffinity(ann, bob, KWScore::Loves, true);
    }
};

struct ProgressDialog : KWAutoLayoutProgressDlgImpl
{
    using KWAutoLayoutProgressDlgImpl::KWAutoLayoutProgressDlgImpl;

    QLabel *start = child<QLabel>(*this, "m_startScoreLabel");
    QLabel *current = child<QLabel>(*this, "m_currentScoreLabel");
    QProgressBar *bar = child<QProgressBar>(*this, "m_progressBar");
    QPushButton *stop = child<QPushButton>(*this, "m_stopButton");
};
} // namespace

class TestKWAutoLayoutProgressDlg : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void theTextsAreThoseOfTheForm()
    {
        PlanWindow window;
        const ProgressDialog dialog(nullptr, window.document());
        QCOMPARE(dialog.windowTitle(), s("Auto layout"));
        QCOMPARE(child<QLabel>(dialog, "m_startScoreTextLabel")->text(), s("Start score:"));
        QCOMPARE(child<QLabel>(dialog, "m_currentScoreTextLabel")->text(), s("Current score:"));
        QCOMPARE(dialog.start->toolTip(), s("Score before auto-layout"));
        QCOMPARE(dialog.current->toolTip(), s("Current best score"));
        QCOMPARE(child<QGroupBox>(dialog, "m_progressGroupBox")->title(), s("Progress"));
        QCOMPARE(dialog.stop->text(), s("&Stop (Esc)"));
        QCOMPARE(dialog.stop->shortcut(), QKeySequence(s("Alt+S")));
        QCOMPARE(dialog.stop->toolTip(), s("Stop the layout and keep the best layout so far"));
        QVERIFY(dialog.isModal());
    }

    void theTextsFollowTheLanguage()
    {
        PlanWindow window;
        const ProgressDialog dialog(nullptr, window.document());
        const BracketTranslator brackets;
        QTRY_COMPARE(dialog.windowTitle(), s("[Auto layout]"));
        QCOMPARE(dialog.start->text(), QString::number(window.document()->totalScore()));
    }

    void bothScoresStartWithThePlansAndTheBarHasNoEnd()
    {
        PlanWindow window;
        const ProgressDialog dialog(nullptr, window.document());
        const QString score = QString::number(window.document()->totalScore());
        QCOMPARE(dialog.start->text(), score);
        QCOMPARE(dialog.current->text(), score);
        QCOMPARE(dialog.bar->maximum(), 0);
        QVERIFY(!dialog.bar->isTextVisible());
    }

    void aStepShowsItsScoreAndMovesTheBar()
    {
        PlanWindow window;
        ProgressDialog dialog(nullptr, window.document());
        KWGAEvent step(60, 1234);
        QCoreApplication::sendEvent(&dialog, &step);
        QCOMPARE(dialog.current->text(), s("1234"));
        QCOMPARE(dialog.bar->value(), 60);
        QVERIFY(dialog.start->text() != s("1234"));
    }

    void anyOtherEventOfTheKindIsReported()
    {
        PlanWindow window;
        ProgressDialog dialog(nullptr, window.document());
        QEvent other(static_cast<QEvent::Type>(1002));
        QTest::ignoreMessage(QtWarningMsg, "Unknown custom event type: 1002");
        QCoreApplication::sendEvent(&dialog, &other);
    }

    void everyWayToCloseItStopsTheLayout_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("button") << 0;
        QTest::newRow("letter") << 1;
        QTest::newRow("escape") << 2;
        QTest::newRow("window") << 3;
    }

    void everyWayToCloseItStopsTheLayout()
    {
        QFETCH(int, way);
        PlanWindow window;
        ProgressDialog dialog(nullptr, window.document());
        QVERIFY(showActive(dialog));
        QVERIFY(!window.document()->abortRequested());
        if (way == 0)
            dialog.stop->click();
        else if (way == 1)
            QTest::keyClick(&dialog, Qt::Key_S, Qt::AltModifier);
        else if (way == 2)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            dialog.close();
        // A letter presses the button for a moment.
        QTRY_VERIFY(window.document()->abortRequested());
        QVERIFY(!dialog.isVisible());
    }

    void returnDoesNotStopTheLayout()
    {
        PlanWindow window;
        ProgressDialog dialog(nullptr, window.document());
        QVERIFY(showActive(dialog));
        dialog.stop->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(dialog.stop, key);
        QVERIFY(!window.document()->abortRequested());
        QVERIFY(dialog.isVisible());
    }

    void theUsersSettingsSayWhenItEnds()
    {
        PlanWindow window;
        KWUserSettings &settings = *window.userSettings();
        settings.setSolverStopCriteria(3);
        settings.setSolverMaxSeconds(17);
        settings.setSolverMaxGenerationsUnimproved(5);
        const KWLayoutOptions options = KWAutoLayoutProgressDlgImpl::optionsOf(settings);
        QCOMPARE(options.stopCriteria, 3);
        QCOMPARE(options.maxSeconds, 17);
        QCOMPARE(options.maxGenerationsUnimproved, 5);
    }

    void theLayoutRunsWhileTheDialogIsShownAndEndsAsTheUserWants()
    {
        PlanWindow window;
        KWUserSettings &settings = *window.userSettings();
        settings.setSolverStopCriteria(2);
        settings.setSolverMaxGenerationsUnimproved(1);
        ProgressDialog dialog(nullptr, window.document());
        bool wasShown = false;
        connect(window.document(), &KWDocument::eventPrepareAutoLayout, &dialog,
                [&] { wasShown = dialog.isVisible(); });
        dialog.runAutoLayout();
        QVERIFY(wasShown);
        // Two who wish to sit side by side.
        QCOMPARE(window.document()->totalScore(), 40);
        // What it last heard may still be on its way.
        QCoreApplication::sendPostedEvents(&dialog);
        QCOMPARE(dialog.current->text(), QString::number(window.document()->totalScore()));
    }
};

REGISTER_TEST(TestKWAutoLayoutProgressDlg)
#include "tst_kwautolayoutprogressdlgimpl.moc"
