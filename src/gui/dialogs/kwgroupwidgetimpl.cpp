#include "gui/dialogs/kwgroupwidgetimpl.h"

#include "ui_kwgroupwidget.h"

KWGroupWidgetImpl::KWGroupWidgetImpl(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::KWGroupWidget>())
{
    m_ui->setupUi(this);
}

KWGroupWidgetImpl::~KWGroupWidgetImpl() = default;

QString KWGroupWidgetImpl::name() const
{
    return m_ui->m_groupNameEdit->text();
}

void KWGroupWidgetImpl::setName(const QString &name)
{
    m_ui->m_groupNameEdit->setText(name);
}

QString KWGroupWidgetImpl::notes() const
{
    return m_ui->m_groupNotesEdit->notes();
}

void KWGroupWidgetImpl::setNotes(const QString &notes)
{
    m_ui->m_groupNotesEdit->setNotes(notes);
}

void KWGroupWidgetImpl::clear()
{
    setName({});
    setNotes({});
}

void KWGroupWidgetImpl::focusName()
{
    m_ui->m_groupNameEdit->setFocus();
}

void KWGroupWidgetImpl::languageChange()
{
    m_ui->retranslateUi(this);
}

void KWGroupWidgetImpl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
