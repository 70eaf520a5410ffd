#include "gui/dialogs/kwcreditsdlg.h"

#include "ui_kwcreditsdlg.h"

KWCreditsDlg::KWCreditsDlg(QWidget *parent)
    : KWDialog(parent)
    , m_ui(std::make_unique<Ui::KWCreditsDlg>())
{
    m_ui->setupUi(this);
    finish();
}

KWCreditsDlg::~KWCreditsDlg() = default;

void KWCreditsDlg::languageChange()
{
    m_ui->retranslateUi(this);
}
