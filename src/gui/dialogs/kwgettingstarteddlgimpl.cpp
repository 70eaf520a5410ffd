#include "gui/dialogs/kwgettingstarteddlgimpl.h"

#include "gui/appearance/kwstylehelper.h"
#include "gui/framework/kwaccel.h"
#include "gui/framework/kwhelp.h"
#include "gui/framework/kwusersettings.h"
#include "gui/framework/kwwhatsthishelper.h"
#include "ui_kwgettingstarteddlg.h"

KWGettingStartedDlgImpl::KWGettingStartedDlgImpl(QWidget *parent, KWUserSettings *settings)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KWGettingStartedDlg>())
    , m_settings(settings)
{
    using Dlg = KWGettingStartedDlgImpl;
    m_ui->setupUi(this);
    fitText();
    m_ui->m_showNextTimeCheckBox->setChecked(m_settings->helpShowGettingStarted());
    connect(m_ui->m_quickStartButton, &QPushButton::clicked, this, &Dlg::quickStart);
    connect(m_ui->m_tutorialButton, &QPushButton::clicked, this, &Dlg::tutorial);
    addAccel(this, Qt::Key_F1, this, &Dlg::help);
    new KWWhatsThisHelper(this);
    new KWStyleHelper(this);
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

// The window has no page of its own; the guide is what it talks about.
void KWGettingStartedDlgImpl::help()
{
    showHelpTopic(QStringLiteral("Quick_start_guide.htm"));
}

void KWGettingStartedDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
    fitText();
}

void KWGettingStartedDlgImpl::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
    else if (event->type() == QEvent::FontChange)
        fitText();
}
