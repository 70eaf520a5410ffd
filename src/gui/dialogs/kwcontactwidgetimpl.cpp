#include "gui/dialogs/kwcontactwidgetimpl.h"

#include "core/model/kwcontact.h"
#include "ui_kwcontactwidget.h"

namespace {

/// An edit and the text that it stands for.
struct Field
{
    QLineEdit *edit;
    QString KWContact::*text;
};

std::array<Field, 10> fields(const Ui::KWContactWidget &ui)
{
    return {{
        {ui.m_address1Edit, &KWContact::address1},
        {ui.m_address2Edit, &KWContact::address2},
        {ui.m_cityEdit, &KWContact::city},
        {ui.m_stateEdit, &KWContact::state},
        {ui.m_zipEdit, &KWContact::zip},
        {ui.m_countryEdit, &KWContact::country},
        {ui.m_workPhoneEdit, &KWContact::work_phone},
        {ui.m_homePhoneEdit, &KWContact::home_phone},
        {ui.m_mobileEdit, &KWContact::mobile_phone},
        {ui.m_emailEdit, &KWContact::email},
    }};
}
} // namespace

KWContactWidgetImpl::KWContactWidgetImpl(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::KWContactWidget>())
{
    m_ui->setupUi(this);
}

KWContactWidgetImpl::~KWContactWidgetImpl() = default;

KWContact KWContactWidgetImpl::contact() const
{
    KWContact contact;
    for (const Field &field : fields(*m_ui))
        contact.*field.text = field.edit->text();
    return contact;
}

void KWContactWidgetImpl::setContact(const KWContact &contact)
{
    for (const Field &field : fields(*m_ui))
        field.edit->setText(contact.*field.text);
}

void KWContactWidgetImpl::clear()
{
    setContact({});
}

void KWContactWidgetImpl::languageChange()
{
    m_ui->retranslateUi(this);
}

void KWContactWidgetImpl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
