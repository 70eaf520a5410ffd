#include "gui/dialogs/kwtabledlgimpl.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwpixmaps.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "ui_kwtabledlg.h"

using namespace Qt::StringLiterals;

namespace {

struct Split
{
    int across;
    int down;
};

/// Spreads seats over two sides that each stand twice; an odd number becomes the next even one.
Split splitOverSides(int total)
{
    Split sides{total / 4, 0};
    sides.down = (total - 2 * sides.across) / 2;
    while (2 * sides.down + 2 * sides.across < total)
        ++(sides.down < sides.across ? sides.down : sides.across);
    return sides;
}
} // namespace

KWTableDlgImpl::KWTableDlgImpl(QWidget *parent, KWDocument *document, int shape)
    : KWTableDlgImpl(parent, document, nullptr, shape)
{
}

KWTableDlgImpl::KWTableDlgImpl(QWidget *parent, KWDocument *document, KWTable *table)
    : KWTableDlgImpl(parent, document, table, table->shape())
{
}

KWTableDlgImpl::KWTableDlgImpl(QWidget *parent, KWDocument *document, KWTable *table, int shape)
    : KWHelpDialog(parent)
    , m_ui(std::make_unique<Ui::KWTableDlg>())
    , m_document(document)
    , m_table(table)
{
    const KWBusy busy;
    m_ui->setupUi(this);
    setObjectName(u"table dlg"_s);
    connectFields();
    drawShapes();
    if (m_table)
        setUpEdit();
    else
        setUpInsert(shape);
    showTexts();
    finish(m_table ? u"Table_properties_window.htm"_s : u"Insert_table_window.htm"_s,
           m_ui->m_helpPushButton);
    m_ui->m_nameLineEdit->setFocus();
}

KWTableDlgImpl::~KWTableDlgImpl() = default;

void KWTableDlgImpl::connectFields()
{
    using Dlg = KWTableDlgImpl;
    const auto &ui = *m_ui;
    connect(ui.m_shapeComboBox, &QComboBox::activated, this, &Dlg::shapeSelected);
    // A pick is told first, but what there is to be focused depends on the new shape.
    connect(ui.m_shapeComboBox, &KWPickComboBox::picked, this, &Dlg::setFocusAfterShapeCombo,
            Qt::QueuedConnection);
    for (const QSpinBox *side : {ui.m_seatsAcrossSpinBox, ui.m_seatsDownSpinBox,
                                 ui.m_seatsAcrossSpinBox_2, ui.m_seatsDownSpinBox_2})
        connect(side, &QSpinBox::valueChanged, this, &Dlg::updateTotal);
    for (const QSpinBox *number : {ui.m_numTablesSpinBox, ui.m_seatsTotalSpinBox})
        connect(number, &QSpinBox::valueChanged, this, &Dlg::updateNumTablesLabel);
}

void KWTableDlgImpl::drawShapes()
{
    const KWPixmaps &pixmaps = KWPixmaps::instance(devicePixelRatioF());
    QComboBox *shapes = m_ui->m_shapeComboBox;
    for (int shape = 0; shape < shapes->count(); ++shape)
        shapes->setItemIcon(shape, pixmaps.table(shape));
}

void KWTableDlgImpl::setUpInsert(int shape)
{
    m_ui->m_nameLineEdit->setText(m_document->nextTableName());
    shapeSelected(shape);
    m_ui->m_okPushButton->hide();
    m_ui->m_addPushButton->setDefault(true);
}

void KWTableDlgImpl::setUpEdit()
{
    const auto &ui = *m_ui;
    ui.m_nameLineEdit->setText(m_table->name());
    shapeSelected(m_table->shape());
    if (m_table->shape() == KWTable::Rectangular || m_table->shape() == KWTable::Custom) {
        setCount(ui.m_seatsAcrossSpinBox, m_table->seatsAcross());
        setCount(ui.m_seatsDownSpinBox, m_table->seatsDown());
    } else {
        setCount(ui.m_seatsTotalSpinBox, m_table->seatCount());
    }
    if (m_table->shape() == KWTable::Custom) {
        setCount(ui.m_seatsAcrossSpinBox_2, m_table->seatsAcross2());
        setCount(ui.m_seatsDownSpinBox_2, m_table->seatsDown2());
    }
    ui.m_notesTextEdit->setNotes(m_table->notes());
    for (QWidget *part :
         std::initializer_list<QWidget *>{ui.m_addPushButton, ui.m_numTablesFrontLabel,
                                          ui.m_numTablesSpinBox, ui.m_numTablesLabel})
        part->hide();
    ui.m_okPushButton->setDefault(true);
}

// A plan may have a table with more seats than one would make here; they must not get lost.
void KWTableDlgImpl::setCount(QSpinBox *box, int count)
{
    box->setMaximum(qMax(box->maximum(), count));
    box->setValue(count);
}

/// What the form itself does not say.
void KWTableDlgImpl::showTexts()
{
    if (m_table)
        setWindowTitle(tr("Table properties"));
    else if (shape() == KWTable::Circular)
        setWindowTitle(tr("Insert circular table"));
    else if (shape() == KWTable::Rectangular)
        setWindowTitle(tr("Insert rectangular table"));
    else if (shape() == KWTable::Custom)
        setWindowTitle(tr("Insert custom table"));
    else
        setWindowTitle(tr("Insert head table"));
    updateNumTablesLabel();
}

void KWTableDlgImpl::shapeSelected(int shape)
{
    m_ui->m_shapeComboBox->setCurrentIndex(shape);
    showFields(shape);
    const KWPixmaps &pixmaps = KWPixmaps::instance(devicePixelRatioF());
    QIcon icon(pixmaps.table(shape));
    icon.addPixmap(pixmaps.tableLarge(shape));
    setWindowIcon(icon);
    handSeatsOver(shape);
    updateTotal();
    m_previousShape = shape;
    showTexts();
}

void KWTableDlgImpl::showFields(int shape)
{
    using Widgets = std::initializer_list<QWidget *>;
    const auto &ui = *m_ui;
    const bool custom = shape == KWTable::Custom;
    const bool sided = custom || shape == KWTable::Rectangular;
    for (QWidget *part : Widgets{ui.m_seatsAcrossSpinBox, ui.m_timesTextLabel,
                                 ui.m_seatsDownSpinBox, ui.m_equalsTextLabel})
        part->setVisible(sided);
    ui.m_twiceTextLabel->setVisible(shape == KWTable::Rectangular);
    for (QWidget *part : Widgets{ui.m_timesTextLabel_2, ui.m_seatsAcrossSpinBox_2,
                                 ui.m_timesTextLabel_3, ui.m_seatsDownSpinBox_2})
        part->setVisible(custom);
    ui.m_equalsTextLabel->setText(custom ? u"="_s : u") ="_s);
    nameSides(custom);
    ui.m_seatsTextLabel->setBuddy(sided ? ui.m_seatsAcrossSpinBox : ui.m_seatsTotalSpinBox);
    showTotalAsReadOut(sided);
}

/// For those who do not see the seats in their row.
void KWTableDlgImpl::nameSides(bool custom)
{
    const auto &ui = *m_ui;
    ui.m_seatsAcrossSpinBox->setAccessibleName(
        custom ? tr("Seats at the top") : tr("Seats at the top, and as many at the bottom"));
    ui.m_seatsDownSpinBox->setAccessibleName(
        custom ? tr("Seats at the right") : tr("Seats at the right, and as many at the left"));
    ui.m_seatsAcrossSpinBox_2->setAccessibleName(tr("Seats at the bottom"));
    ui.m_seatsDownSpinBox_2->setAccessibleName(tr("Seats at the left"));
}

// A field that only tells something stands on the dialog's own ground, and the keys pass it by.
void KWTableDlgImpl::showTotalAsReadOut(bool readOut)
{
    QSpinBox *total = m_ui->m_seatsTotalSpinBox;
    total->setReadOnly(readOut);
    total->setFocusPolicy(readOut ? Qt::NoFocus : Qt::StrongFocus);
    total->setButtonSymbols(readOut ? QSpinBox::NoButtons : QSpinBox::UpDownArrows);
    // Or the box would keep the width that it had with its other buttons.
    total->setMaximum(total->maximum());
    total->updateGeometry();
    QPalette palette;
    if (readOut)
        palette.setBrush(QPalette::Base, palette.window());
    total->setPalette(palette);
}

/// Gives the sides of a shape that has them the seats that there were before.
void KWTableDlgImpl::handSeatsOver(int shape)
{
    const auto &ui = *m_ui;
    const bool fromTotal =
        m_previousShape == KWTable::Circular ||
        (m_previousShape >= KWTable::HeadTop && m_previousShape <= KWTable::HeadLeft);
    // Read once: the total follows the sides while they change.
    const int total = ui.m_seatsTotalSpinBox->value();
    const Split sides = splitOverSides(total);
    if (fromTotal && (shape == KWTable::Rectangular || shape == KWTable::Custom)) {
        setCount(ui.m_seatsAcrossSpinBox, sides.across);
        setCount(ui.m_seatsDownSpinBox, sides.down);
    }
    if (fromTotal && shape == KWTable::Custom) {
        setCount(ui.m_seatsAcrossSpinBox_2, sides.across);
        // The fourth side is the user's, unless there are no seats at all.
        if (total == 0)
            ui.m_seatsDownSpinBox_2->setValue(0);
    } else if (m_previousShape == KWTable::Rectangular && shape == KWTable::Custom) {
        setCount(ui.m_seatsAcrossSpinBox_2, ui.m_seatsAcrossSpinBox->value());
        setCount(ui.m_seatsDownSpinBox_2, ui.m_seatsDownSpinBox->value());
    }
}

void KWTableDlgImpl::updateTotal()
{
    const auto &ui = *m_ui;
    const int across = ui.m_seatsAcrossSpinBox->value();
    const int down = ui.m_seatsDownSpinBox->value();
    if (shape() == KWTable::Rectangular)
        setCount(ui.m_seatsTotalSpinBox, 2 * (across + down));
    else if (shape() == KWTable::Custom)
        setCount(ui.m_seatsTotalSpinBox, across + down + ui.m_seatsAcrossSpinBox_2->value() +
                                             ui.m_seatsDownSpinBox_2->value());
}

void KWTableDlgImpl::updateNumTablesLabel()
{
    const int created = m_ui->m_numTablesSpinBox->value() * m_ui->m_seatsTotalSpinBox->value();
    m_ui->m_numTablesLabel->setText(tr("giving a total of %1 seats for %2 guests")
                                        .arg(created + m_document->seatCount())
                                        .arg(m_document->guestCount()));
}

void KWTableDlgImpl::setFocusAfterShapeCombo()
{
    const auto &ui = *m_ui;
    QSpinBox *next = ui.m_seatsTotalSpinBox;
    if (ui.m_seatsAcrossSpinBox->isVisibleTo(this))
        next = ui.m_seatsAcrossSpinBox;
    else if (ui.m_seatsDownSpinBox->isVisibleTo(this))
        next = ui.m_seatsDownSpinBox;
    next->setFocus();
    next->selectAll();
}

int KWTableDlgImpl::shape() const
{
    return m_ui->m_shapeComboBox->currentIndex();
}

/// The four counts as KWDocument wants them for the shape.
KWTable::Sides KWTableDlgImpl::counts() const
{
    const auto &ui = *m_ui;
    const int across = ui.m_seatsAcrossSpinBox->value();
    const int down = ui.m_seatsDownSpinBox->value();
    if (shape() == KWTable::Rectangular)
        return {across, down, 0, 0};
    if (shape() == KWTable::Custom)
        return {across, down, ui.m_seatsAcrossSpinBox_2->value(), ui.m_seatsDownSpinBox_2->value()};
    return {ui.m_seatsTotalSpinBox->value(), 0, 0, 0};
}

QString KWTableDlgImpl::name() const
{
    return m_ui->m_nameLineEdit->text().trimmed();
}

void KWTableDlgImpl::add()
{
    accept();
}

void KWTableDlgImpl::accept()
{
    if (apply())
        QDialog::accept();
}

bool KWTableDlgImpl::apply()
{
    if (!hasName())
        return false;
    if (!m_table) {
        insertTables();
        return true;
    }
    if (!mayRemoveSeats())
        return false;
    editTable();
    return true;
}

bool KWTableDlgImpl::hasName()
{
    if (!name().isEmpty())
        return true;
    m_ui->m_nameLineEdit->setFocus();
    errorBox(tr("Table name is empty."), tr("&OK"));
    return false;
}

/// Seats that are taken away may move everybody at the table.
bool KWTableDlgImpl::mayRemoveSeats() const
{
    if (m_ui->m_seatsTotalSpinBox->value() >= m_table->seatCount() ||
        !m_document->tableHasLockedGuest(m_table))
        return true;
    errorBox(tr("You must unlock all the locked guests on table '%1' before you can remove any "
                "seats")
                 .arg(m_table->name()),
             tr("&OK"));
    return false;
}

void KWTableDlgImpl::insertTables()
{
    const KWBusy busy;
    KWMainWindow *window = mainWin();
    if (window)
        window->saveUndoState(tr("New table(s)"));
    const auto [count1, count2, count3, count4] = counts();
    const int tables = m_ui->m_numTablesSpinBox->value();
    QStringList nextNames;
    KWTable *table = nullptr;
    for (int i = 0; i < tables; ++i) {
        const QPoint centre = window ? window->floorPlanCentre() : QPoint();
        table = m_document->addTable(shape(), name(), count1, count2, count3, count4, centre,
                                     m_ui->m_notesTextEdit->notes());
        // All at once, since the names of a large plan are many to look through.
        if (nextNames.isEmpty())
            nextNames = m_document->nextTableNames(tables);
        m_ui->m_nameLineEdit->setText(nextNames.at(i));
        if (window)
            window->placeNewTable(table);
    }
    if (window)
        window->showNewTable(table);
}

void KWTableDlgImpl::editTable()
{
    const KWBusy busy;
    if (KWMainWindow *window = mainWin())
        window->saveUndoState(tr("Edit table"));
    const auto [count1, count2, count3, count4] = counts();
    // A name that was not touched keeps what the field cannot show.
    m_document->editTable(m_table,
                          m_ui->m_nameLineEdit->isModified() ? name() : m_table->name().trimmed(),
                          shape(), count1, count2, count3, count4, m_ui->m_notesTextEdit->notes());
}

void KWTableDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
    showFields(shape());
    showTexts();
}
