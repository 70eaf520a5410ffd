#include "gui/framework/kwgetstringdlgimpl.h"

#include "ui_kwgetstringdlg.h"

KWGetStringDlgImpl::KWGetStringDlgImpl(QWidget *parent, const QString &caption,
                                       const QString &label, const QString &initialText,
                                       bool allowEmpty, const QString &helpTopic,
                                       const QPixmap &icon, const QString &name, bool modal,
                                       Qt::WindowFlags flags)
    : KWHelpDialog(parent, flags)
    , m_ui(std::make_unique<Ui::KWGetStringDlg>())
    , m_allowEmpty(allowEmpty)
{
    m_ui->setupUi(this);
    if (!name.isEmpty())
        setObjectName(name);
    setModal(modal);
    if (!icon.isNull())
        setWindowIcon(icon);
    else if (parent)
        setWindowIcon(parent->windowIcon());
    setWindowTitle(caption);
    m_ui->m_stringLabel->setText(label);
    m_ui->m_stringEdit->setText(initialText);
    m_ui->m_stringEdit->selectAll();
    // The dialog cannot be made wider, so there has to be room for a name or a short sentence.
    m_ui->m_stringEdit->setMinimumWidth(40 * fontMetrics().averageCharWidth());

    connect(m_ui->m_stringEdit, &QLineEdit::textChanged, this, &KWGetStringDlgImpl::updateButtons);
    connect(m_ui->m_okButton, &QPushButton::clicked, this, &KWGetStringDlgImpl::accept);
    connect(m_ui->m_cancelButton, &QPushButton::clicked, this, &KWGetStringDlgImpl::reject);
    updateButtons();
    m_ui->m_helpButton->setHidden(helpTopic.isEmpty());
    finish(helpTopic, m_ui->m_helpButton);
    setFixedSize(minimumSizeHint());
}

KWGetStringDlgImpl::~KWGetStringDlgImpl() = default;

QString KWGetStringDlgImpl::text() const
{
    return m_ui->m_stringEdit->text();
}

void KWGetStringDlgImpl::updateButtons()
{
    m_ui->m_okButton->setEnabled(m_allowEmpty || !text().isEmpty());
}
