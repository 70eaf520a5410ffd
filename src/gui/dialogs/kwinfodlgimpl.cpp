#include "gui/dialogs/kwinfodlgimpl.h"

#include "core/model/kwdocument.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "ui_kwinfodlg.h"

using namespace Qt::StringLiterals;

namespace {

/// Wraps when it leaves the range of an int.
int totalCost(int fixed, int perAdult, int adults, int perChild, int children)
{
    const auto number = [](int value) { return static_cast<unsigned>(value); };
    return static_cast<int>(number(fixed) + number(perAdult) * number(adults) +
                            number(perChild) * number(children));
}
} // namespace

KWInfoDlgImpl::KWInfoDlgImpl(QWidget *parent, KWDocument *document, std::function<QDate()> today)
    : KWHelpDialog(parent)
    , m_ui(std::make_unique<Ui::KWInfoDlg>())
    , m_document(document)
    , m_today(std::move(today))
{
    m_ui->setupUi(this);
    showFullYear();
    showReadOuts();
    for (QSpinBox *cost :
         {m_ui->m_fixedCostSpinBox, m_ui->m_costPerAdultSpinBox, m_ui->m_costPerChildSpinBox})
        connect(cost, &QSpinBox::valueChanged, this, &KWInfoDlgImpl::updateTotalCost);

    m_document->countGuests(&m_adults, &m_children, &m_acceptedAdults, &m_acceptedChildren);
    load();
    updateTotalCost();
    updateDaysRemaining();
    connectEditors();
    finish(QStringLiteral("Information_window.htm"), m_ui->m_helpPushButton);
}

KWInfoDlgImpl::~KWInfoDlgImpl() = default;

void KWInfoDlgImpl::load()
{
    m_ui->m_eventLineEdit->setText(m_document->event());
    m_ui->m_venueLineEdit->setText(m_document->venue());
    const QDate date = m_document->date();
    m_ui->m_dateEdit->setDate(date.isValid() ? date : m_today());
    m_ui->m_fixedCostSpinBox->setValue(m_document->fixedCost());
    m_ui->m_costPerAdultSpinBox->setValue(m_document->adultCost());
    m_ui->m_costPerChildSpinBox->setValue(m_document->childCost());
    m_ui->m_notesTextEdit->setPlainText(m_document->notes());
}

// The editors cannot hold every value that a plan may have, such as no date at all, so what was not
// touched goes back as it came.
void KWInfoDlgImpl::save()
{
    const auto value = [this](Field field, const auto &edited, const auto &own) {
        return (m_touched & field) != 0 ? edited : own;
    };
    KWDocument &plan = *m_document;
    plan.setEvent(value(Event, m_ui->m_eventLineEdit->text(), plan.event()));
    plan.setVenue(value(Venue, m_ui->m_venueLineEdit->text(), plan.venue()));
    plan.setDate(value(Date, m_ui->m_dateEdit->date(), plan.date()));
    plan.setFixedCost(value(FixedCost, m_ui->m_fixedCostSpinBox->value(), plan.fixedCost()));
    plan.setAdultCost(value(AdultCost, m_ui->m_costPerAdultSpinBox->value(), plan.adultCost()));
    plan.setChildCost(value(ChildCost, m_ui->m_costPerChildSpinBox->value(), plan.childCost()));
    plan.setNotes(value(Notes, m_ui->m_notesTextEdit->toPlainText(), plan.notes()));
}

// After loading only, so that it does not count as a change.
void KWInfoDlgImpl::connectEditors()
{
    using Dlg = KWInfoDlgImpl;
    connect(m_ui->m_eventLineEdit, &QLineEdit::textChanged, this, &Dlg::eventChanged);
    connect(m_ui->m_dateEdit, &QDateEdit::dateChanged, this, &Dlg::dateChanged);
    connect(m_ui->m_venueLineEdit, &QLineEdit::textChanged, this, &Dlg::venueChanged);
    connect(m_ui->m_fixedCostSpinBox, &QSpinBox::valueChanged, this, &Dlg::fixedCostChanged);
    connect(m_ui->m_costPerAdultSpinBox, &QSpinBox::valueChanged, this, &Dlg::perAdultCostChanged);
    connect(m_ui->m_costPerChildSpinBox, &QSpinBox::valueChanged, this, &Dlg::perChildCostChanged);
    connect(m_ui->m_notesTextEdit, &QTextEdit::textChanged, this, &Dlg::notesChanged);
}

// Fields that only tell something stand on the dialog's own ground.
void KWInfoDlgImpl::showReadOuts()
{
    for (QLineEdit *readOut : {m_ui->m_daysRemainingLineEdit, m_ui->m_totalCostLineEdit,
                               m_ui->m_totalCostAcceptedLineEdit}) {
        QPalette palette = readOut->palette();
        palette.setBrush(QPalette::Base, palette.window());
        readOut->setPalette(palette);
    }
}

// The short format of many countries has two digits, which leave the century open.
void KWInfoDlgImpl::showFullYear()
{
    QString format = m_ui->m_dateEdit->locale().dateFormat(QLocale::ShortFormat);
    if (!format.contains("yyyy"_L1))
        format.replace("yy"_L1, "yyyy"_L1);
    m_ui->m_dateEdit->setDisplayFormat(format);
}

void KWInfoDlgImpl::accept()
{
    if (m_touched) {
        if (KWMainWindow *window = mainWin())
            window->saveUndoState(tr("Edit Information"));
        save();
    }
    QDialog::accept();
}

void KWInfoDlgImpl::reject()
{
    if (m_touched && warningBox(tr("Discard changes?"), tr("&Yes"), tr("&No")) != 0)
        return;
    QDialog::reject();
}

void KWInfoDlgImpl::updateTotalCost()
{
    const int fixed = m_ui->m_fixedCostSpinBox->value();
    const int perAdult = m_ui->m_costPerAdultSpinBox->value();
    const int perChild = m_ui->m_costPerChildSpinBox->value();
    m_ui->m_totalCostAcceptedLineEdit->setText(QString::number(
        totalCost(fixed, perAdult, m_acceptedAdults, perChild, m_acceptedChildren)));
    m_ui->m_totalCostLineEdit->setText(
        QString::number(totalCost(fixed, perAdult, m_adults, perChild, m_children)));
}

void KWInfoDlgImpl::updateDaysRemaining()
{
    m_ui->m_daysRemainingLineEdit->setText(
        QString::number(m_today().daysTo(m_ui->m_dateEdit->date())));
}

void KWInfoDlgImpl::eventChanged()
{
    m_touched |= Event;
}

void KWInfoDlgImpl::dateChanged()
{
    m_touched |= Date;
    updateDaysRemaining();
}

void KWInfoDlgImpl::venueChanged()
{
    m_touched |= Venue;
}

void KWInfoDlgImpl::fixedCostChanged()
{
    m_touched |= FixedCost;
}

void KWInfoDlgImpl::perAdultCostChanged()
{
    m_touched |= AdultCost;
}

void KWInfoDlgImpl::perChildCostChanged()
{
    m_touched |= ChildCost;
}

void KWInfoDlgImpl::notesChanged()
{
    m_touched |= Notes;
}

void KWInfoDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
}

void KWInfoDlgImpl::changeEvent(QEvent *event)
{
    KWHelpDialog::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        showFullYear();
}
