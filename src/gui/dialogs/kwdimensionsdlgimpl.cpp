#include "gui/dialogs/kwdimensionsdlgimpl.h"

#include "core/model/kwdocument.h"
#include "gui/dialogs/kwlengthvalidator.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "ui_kwdimensionsdlg.h"

#include <algorithm>

namespace {

constexpr double leastRoom = 5;
constexpr double mostRoom = 999;
constexpr double leastSeat = 0.2;
constexpr double mostSeat = 5;

/// How many of the unit are a metre.
double inAMetre(int units)
{
    constexpr double feet = 3.281;
    return units == KWPlanFields::Feet ? feet : 1;
}
} // namespace

KWDimensionsDlgImpl::KWDimensionsDlgImpl(QWidget *parent, KWDocument *document)
    : KWHelpDialog(parent)
    , m_ui(std::make_unique<Ui::KWDimensionsDlg>())
    , m_document(document)
    , m_units(document->units() == KWPlanFields::Feet ? KWPlanFields::Feet : KWPlanFields::Metres)
    , m_sizes{}
{
    m_ui->setupUi(this);
    m_ui->m_unitsCombo->setCurrentIndex(m_units);
    fillSizes();
    connect(m_ui->m_unitsCombo, &QComboBox::currentIndexChanged, this,
            &KWDimensionsDlgImpl::unitsChange);
    finish(QStringLiteral("Dimensions_window.htm"), m_ui->m_helpPushButton);
    m_ui->m_xEdit->setFocus();
}

KWDimensionsDlgImpl::~KWDimensionsDlgImpl() = default;

void KWDimensionsDlgImpl::fillSizes()
{
    using Plan = KWDocument;
    const auto &ui = *m_ui;
    m_sizes = {
        {{ui.m_xEdit, &Plan::roomXSize, &Plan::setRoomXSize, leastRoom, mostRoom, {}},
         {ui.m_yEdit, &Plan::roomYSize, &Plan::setRoomYSize, leastRoom, mostRoom, {}},
         {ui.m_seatWidthEdit, &Plan::chairSize, &Plan::setChairSize, leastSeat, mostSeat, {}}}};
    translateSizes();
    for (Size &size : m_sizes) {
        size.edit->setValidator(new KWLengthValidator(size.least, size.most, size.edit));
        size.metres = (m_document->*size.get)(KWPlanFields::Metres);
        show(size);
    }
}

void KWDimensionsDlgImpl::translateSizes()
{
    m_sizes[0].message = tr("Room length must be a valid number in the range %1 to %2");
    m_sizes[1].message = tr("Room breadth must be a valid number in the range %1 to %2");
    m_sizes[2].message = tr("Seat width must be a valid number in the range %1 to %2");
}

void KWDimensionsDlgImpl::show(const Size &size)
{
    size.edit->setText(KWLengthValidator::textOf(size.metres * inAMetre(m_units)));
}

bool KWDimensionsDlgImpl::read(Size &size)
{
    const QString text = size.edit->text();
    // As long as it has not been typed over, it is known better than it is shown.
    if (text == KWLengthValidator::textOf(size.metres * inAMetre(m_units)))
        return true;
    const std::optional<float> length = KWLengthValidator::lengthIn(text);
    if (length)
        size.metres = double{*length} / inAMetre(m_units);
    return length.has_value();
}

void KWDimensionsDlgImpl::unitsChange()
{
    const int units = m_ui->m_unitsCombo->currentIndex();
    std::array<bool, 3> known{};
    std::transform(m_sizes.begin(), m_sizes.end(), known.begin(),
                   [this](Size &size) { return read(size); });
    m_units = units;
    for (std::size_t i = 0; i < m_sizes.size(); ++i) {
        // What is no number stays for the user to see.
        if (known[i])
            show(m_sizes[i]);
    }
}

bool KWDimensionsDlgImpl::check(Size &size)
{
    const double least = size.least * inAMetre(m_units);
    const double most = size.most * inAMetre(m_units);
    if (read(size)) {
        // In the precision of what is typed, or the limits themselves might be refused.
        const auto length = static_cast<float>(size.metres * inAMetre(m_units));
        if (length >= static_cast<float>(least) && length <= static_cast<float>(most))
            return true;
    }
    constexpr int digits = 7;
    size.edit->setFocus();
    size.edit->selectAll();
    errorBox(size.message.arg(KWLengthValidator::textOf(least, digits),
                              KWLengthValidator::textOf(most, digits)),
             tr("&OK"));
    return false;
}

bool KWDimensionsDlgImpl::apply()
{
    for (Size &size : m_sizes) {
        if (!check(size))
            return false;
    }
    if (KWMainWindow *window = mainWin())
        window->saveUndoState(tr("Change dimensions"));
    bool changed = m_units != m_document->units();
    m_document->setUnits(m_units);
    for (const Size &size : m_sizes) {
        changed |= size.metres != (m_document->*size.get)(KWPlanFields::Metres);
        (m_document->*size.set)(size.metres, KWPlanFields::Metres);
    }
    if (changed) {
        m_document->setModified(true);
        m_document->announceModified();
    }
    return true;
}

void KWDimensionsDlgImpl::accept()
{
    if (apply())
        QDialog::accept();
}

void KWDimensionsDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
    translateSizes();
}
