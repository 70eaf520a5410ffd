#include "gui/dialogs/kwgettingstarteddlgimpl.h"

#include "gui/framework/kwhelp.h"
#include "gui/framework/kwusersettings.h"
#include "ui_kwgettingstarteddlg.h"

KWGettingStartedDlgImpl::KWGettingStartedDlgImpl(QWidget *parent, KWUserSettings *settings)
    : KWHelpDialog(parent)
    , m_ui(std::make_unique<Ui::KWGettingStartedDlg>())
    , m_settings(settings)
{
    using Dlg = KWGettingStartedDlgImpl;
    m_ui->setupUi(this);
    fitText();
    m_ui->m_showNextTimeCheckBox->setChecked(m_settings->helpShowGettingStarted());
    connect(m_ui->m_quickStartButton, &QPushButton::clicked, this, &Dlg::quickStart);
    connect(m_ui->m_tutorialButton, &QPushButton::clicked, this, &Dlg::tutorial);
    // The window has no page of its own; the guide is what it talks about.
    finish(QStringLiteral("Quick_start_guide.htm"));
}

KWGettingStartedDlgImpl::~KWGettingStartedDlgImpl() = default;

// Of a label that wraps, the layout would let a small screen cut the last lines.
void KWGettingStartedDlgImpl::fitText()
{
    const int width = 60 * fontMetrics().averageCharWidth();
    m_ui->m_textLabel->setMinimumSize(width, m_ui->m_textLabel->heightForWidth(width));
}

void KWGettingStartedDlgImpl::done(int result)
{
    m_settings->setHelpShowGettingStarted(m_ui->m_showNextTimeCheckBox->isChecked());
    QDialog::done(result);
}

void KWGettingStartedDlgImpl::quickStart()
{
    accept();
    help();
}

void KWGettingStartedDlgImpl::tutorial()
{
    accept();
    showHelpTopic(QStringLiteral("Tutorial.htm"));
}

void KWGettingStartedDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
    fitText();
}

void KWGettingStartedDlgImpl::changeEvent(QEvent *event)
{
    KWHelpDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitText();
}
