#include "gui/dialogs/kwautolayoutprogressdlgimpl.h"

#include "core/autolayout/kwautolayout.h"
#include "core/autolayout/kwgaevent.h"
#include "core/model/kwdocument.h"
#include "gui/framework/kwaccel.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwusersettings.h"
#include "ui_kwautolayoutprogressdlg.h"

#include <QCloseEvent>

KWAutoLayoutProgressDlgImpl::KWAutoLayoutProgressDlgImpl(QWidget *parent, KWDocument *document)
    : KWDialog(parent)
    , m_ui(std::make_unique<Ui::KWAutoLayoutProgressDlg>())
    , m_document(document)
{
    m_ui->setupUi(this);
    const QString score = QString::number(document->totalScore());
    m_ui->m_startScoreLabel->setText(score);
    m_ui->m_currentScoreLabel->setText(score);
    addAccel(this, Qt::Key_Escape, this, &QWidget::close);
    finish();
}

KWAutoLayoutProgressDlgImpl::~KWAutoLayoutProgressDlgImpl() = default;

void KWAutoLayoutProgressDlgImpl::runAutoLayout()
{
    // A stop that came too late for the run before is not meant for this one.
    m_document->setAbortRequested(false);
    show();
    KWMainWindow *window = mainWin();
    autoLayout(*m_document, this, window ? optionsOf(*window->userSettings()) : KWLayoutOptions());
}

KWLayoutOptions KWAutoLayoutProgressDlgImpl::optionsOf(const KWUserSettings &settings)
{
    return {.stopCriteria = settings.solverStopCriteria(),
            .maxSeconds = settings.solverMaxSeconds(),
            .maxGenerationsUnimproved = settings.solverMaxGenerationsUnimproved()};
}

void KWAutoLayoutProgressDlgImpl::updateProgress(int progress)
{
    m_ui->m_progressBar->setValue(progress);
}

void KWAutoLayoutProgressDlgImpl::updateCurrentScore(int score)
{
    m_ui->m_currentScoreLabel->setText(QString::number(score));
}

void KWAutoLayoutProgressDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
}

void KWAutoLayoutProgressDlgImpl::closeEvent(QCloseEvent *event)
{
    m_document->abortProcessing();
    QDialog::closeEvent(event);
}

void KWAutoLayoutProgressDlgImpl::customEvent(QEvent *event)
{
    if (event->type() != KWGAEvent::EventType) {
        qWarning("Unknown custom event type: %d", event->type());
        return;
    }
    const auto *step = static_cast<const KWGAEvent *>(event);
    updateCurrentScore(step->score());
    updateProgress(step->progress());
}
