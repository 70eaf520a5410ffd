#include "gui/dialogs/kwcreditsdlg.h"

#include "gui/appearance/kwstylehelper.h"
#include "gui/framework/kwwhatsthishelper.h"
#include "ui_kwcreditsdlg.h"

KWCreditsDlg::KWCreditsDlg(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KWCreditsDlg>())
{
    m_ui->setupUi(this);
    new KWWhatsThisHelper(this);
    new KWStyleHelper(this);
}

KWCreditsDlg::~KWCreditsDlg() = default;

void KWCreditsDlg::languageChange()
{
    m_ui->retranslateUi(this);
}

void KWCreditsDlg::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
