#include "gui/floorplan/kwfloorplanviewfilterimpl.h"

#include "core/charts/kwwishes.h"
#include "core/model/kwdocument.h"
#include "gui/dialogs/kwcoloursandfontsdlgimpl.h"
#include "gui/dialogs/kwdimensionsdlgimpl.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwstatushint.h"
#include "ui_kwfloorplanviewfilter.h"

#include <QApplication>
#include <QEvent>

#include <utility>

using Filter = KWFloorPlanViewFilterImpl;

namespace {

bool hasCircle(KWCanvas::SeatDisplay display)
{
    return KWFloorPlanLook::Seats{.display = display}.showsCircle();
}
} // namespace

KWFloorPlanViewFilterImpl::KWFloorPlanViewFilterImpl(QWidget *parent, KWCanvasView *view)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::KWFloorPlanViewFilter>())
{
    m_ui->setupUi(this);
    fillNameOrders();
    connectButtons();
    connectChoices();
    if (view)
        setView(view);
    collapse();
}

KWFloorPlanViewFilterImpl::~KWFloorPlanViewFilterImpl() = default;

void KWFloorPlanViewFilterImpl::setView(KWCanvasView *view)
{
    m_view = view;
    m_canvas = view->canvas();
    connect(view, &KWCanvasView::zoomChanged, this, &Filter::updateZoomButtons);
    connect(m_canvas, &KWCanvas::selectedChanged, this, &Filter::updateRotateButton);
    updateZoomButtons();
    updateRotateButton();
}

void KWFloorPlanViewFilterImpl::connectButtons()
{
    const auto hold = [this](KWHoldButton *button, void (Filter::*slot)()) {
        connect(button, &KWHoldButton::pressed, this, slot);
        connect(button, &KWHoldButton::released, this, &Filter::hideAffinity);
    };
    hold(m_ui->m_nextToButton, &Filter::showLovesAffinity);
    hold(m_ui->m_nearToButton, &Filter::showLikesAffinity);
    hold(m_ui->m_notNextToButton, &Filter::showDislikesAffinity);
    hold(m_ui->m_notNearToButton, &Filter::showHatesAffinity);
    hold(m_ui->m_allButton, &Filter::showAllAffinity);
    hold(m_ui->m_conflictsButton, &Filter::showConflicts);
    const auto click = [this](const QToolButton *button, void (Filter::*slot)()) {
        connect(button, &QToolButton::clicked, this, slot);
    };
    click(m_ui->m_zoomInButton, &Filter::zoomIn);
    click(m_ui->m_zoomOutButton, &Filter::zoomOut);
    click(m_ui->m_zoomCentreButton, &Filter::zoomCentre);
    click(m_ui->m_rotateButton, &Filter::editRotateTable);
    click(m_ui->m_dimensionsButton, &Filter::changeDimensions);
    click(m_ui->m_coloursButton, &Filter::changeColours);
    click(m_ui->m_expandButton, &Filter::expand);
    click(m_ui->m_collapseButton, &Filter::collapse);
}

void KWFloorPlanViewFilterImpl::connectChoices()
{
    connect(m_ui->m_nameOrderComboBox, &QComboBox::currentIndexChanged, this,
            &Filter::nameOrderChanged);
    connect(m_ui->m_seatsComboBox, &QComboBox::currentIndexChanged, this,
            &Filter::changeSeatDisplay);
    const auto follow = [this](const QCheckBox *box, void (Filter::*slot)(bool)) {
        connect(box, &QCheckBox::toggled, this, slot);
    };
    follow(m_ui->m_genderCheckBox, &Filter::showGender);
    follow(m_ui->m_ageCheckBox, &Filter::showAge);
    follow(m_ui->m_groupsCheckBox, &Filter::showGroups);
    follow(m_ui->m_vipCheckBox, &Filter::showVIP);
    follow(m_ui->m_lockedCheckBox, &Filter::showLocked);
}

void KWFloorPlanViewFilterImpl::fillNameOrders()
{
    m_ui->m_nameOrderComboBox->addItems(nameOrders());
}

QStringList KWFloorPlanViewFilterImpl::nameOrders()
{
    return KWGuest::nameOrders() + QStringList(tr("Seat reference"));
}

KWFloorPlanLook KWFloorPlanViewFilterImpl::look() const
{
    return {
        .nameOrder = m_ui->m_nameOrderComboBox->currentIndex(),
        .seats = {.display = KWFloorPlanLook::seatDisplayOf(m_ui->m_seatsComboBox->currentIndex()),
                  .gender = m_ui->m_genderCheckBox->isChecked(),
                  .age = m_ui->m_ageCheckBox->isChecked(),
                  .vip = m_ui->m_vipCheckBox->isChecked(),
                  .groups = m_ui->m_groupsCheckBox->isChecked(),
                  .locked = m_ui->m_lockedCheckBox->isChecked()}};
}

void KWFloorPlanViewFilterImpl::setLook(const KWFloorPlanLook &look)
{
    const QSignalBlocker viewBlocker(m_view);
    const auto set = [](auto *control, auto setter, auto value) {
        const QSignalBlocker blocker(control);
        (control->*setter)(value);
    };
    const Ui::KWFloorPlanViewFilter &ui = *m_ui;
    set(ui.m_nameOrderComboBox, &QComboBox::setCurrentIndex, look.nameOrder);
    set(ui.m_seatsComboBox, &QComboBox::setCurrentIndex, int{look.seats.display});
    set(ui.m_genderCheckBox, &QCheckBox::setChecked, look.seats.gender);
    set(ui.m_ageCheckBox, &QCheckBox::setChecked, look.seats.age);
    set(ui.m_vipCheckBox, &QCheckBox::setChecked, look.seats.vip);
    set(ui.m_groupsCheckBox, &QCheckBox::setChecked, look.seats.groups);
    set(ui.m_lockedCheckBox, &QCheckBox::setChecked, look.seats.locked);
    m_canvas->setLook(look);
    enableFlags(look.seats.display);
}

void KWFloorPlanViewFilterImpl::readSettings(const KWViewSettings &settings)
{
    setLook(KWFloorPlanLook::of(settings));
}

void KWFloorPlanViewFilterImpl::writeSettings(KWViewSettings &settings) const
{
    look().writeTo(settings);
}

void KWFloorPlanViewFilterImpl::nameOrderChanged(int order)
{
    m_view->setNameOrder(order);
    m_view->markModified();
}

void KWFloorPlanViewFilterImpl::fontChanged()
{
    qWarning("KWFloorPlanViewFilter::fontChanged(): Not implemented yet");
}

void KWFloorPlanViewFilterImpl::showSeats(bool)
{
    qWarning("KWFloorPlanViewFilter::showSeats(bool): Not implemented yet");
}

void KWFloorPlanViewFilterImpl::expand()
{
    fold(false);
}

void KWFloorPlanViewFilterImpl::collapse()
{
    fold(true);
}

void KWFloorPlanViewFilterImpl::fold(bool folded)
{
    const Ui::KWFloorPlanViewFilter &ui = *m_ui;
    QToolButton *pressed = folded ? ui.m_collapseButton : ui.m_expandButton;
    QToolButton *other = folded ? ui.m_expandButton : ui.m_collapseButton;
    const QList<QWidget *> parts{ui.m_nameOrderLabel,   ui.m_nameOrderComboBox, ui.m_seatsLabel,
                                 ui.m_seatsComboBox,    ui.m_genderCheckBox,    ui.m_ageCheckBox,
                                 ui.m_groupsCheckBox,   ui.m_vipCheckBox,       ui.m_lockedCheckBox,
                                 ui.m_dimensionsButton, ui.m_coloursButton};
    other->show();
    // The keys would go to what comes behind the parts that go.
    if (pressed->hasFocus() || parts.contains(QApplication::focusWidget()))
        other->setFocus();
    for (QWidget *part : parts)
        part->setVisible(!folded);
    pressed->hide();
}

void KWFloorPlanViewFilterImpl::showLovesAffinity()
{
    m_canvas->showLovesAffinity();
}

void KWFloorPlanViewFilterImpl::showLikesAffinity()
{
    m_canvas->showLikesAffinity();
}

void KWFloorPlanViewFilterImpl::showDislikesAffinity()
{
    m_canvas->showDislikesAffinity();
}

void KWFloorPlanViewFilterImpl::showHatesAffinity()
{
    m_canvas->showHatesAffinity();
}

void KWFloorPlanViewFilterImpl::showAllAffinity()
{
    m_canvas->showAllAffinity();
}

void KWFloorPlanViewFilterImpl::showConflicts()
{
    m_canvas->showConflicts();
    const KWDocument &plan = *m_view->document();
    showHint(KWWish::unmetText(KWWish::all(plan)) + QStringLiteral(", ") +
             KWWish::unseatedText(plan));
}

void KWFloorPlanViewFilterImpl::hideAffinity()
{
    m_canvas->hideAffinity();
    showHint({});
}

void KWFloorPlanViewFilterImpl::showHint(const QString &text)
{
    // An empty one would wipe out what others say.
    if (std::exchange(m_hint, text) != text)
        showStatusHint(this, text);
}

void KWFloorPlanViewFilterImpl::zoomIn()
{
    m_view->zoomIn();
}

void KWFloorPlanViewFilterImpl::zoomOut()
{
    m_view->zoomOut();
}

void KWFloorPlanViewFilterImpl::zoomCentre()
{
    m_view->zoomCentre();
}

void KWFloorPlanViewFilterImpl::updateZoomButtons()
{
    const auto update = [this](QToolButton *button, bool on) {
        // Or the toolkit would give the keys to the next button, which does the opposite.
        if (!on && button->hasFocus()) {
            button->clearFocus();
            m_view->setFocus();
        }
        button->setEnabled(on);
    };
    update(m_ui->m_zoomInButton, m_view->canZoomIn());
    update(m_ui->m_zoomOutButton, m_view->canZoomOut());
}

void KWFloorPlanViewFilterImpl::updateRotateButton()
{
    m_ui->m_rotateButton->setEnabled(m_view->canRotate());
}

void KWFloorPlanViewFilterImpl::editRotateTable()
{
    if (KWMainWindow *window = mainWin())
        window->saveUndoState(tr("Rotate"));
    m_view->rotate();
}

void KWFloorPlanViewFilterImpl::showGender(bool on)
{
    // A seat has one colour.
    if (on)
        m_ui->m_groupsCheckBox->setChecked(false);
    m_canvas->showGender(on);
    m_view->markModified();
}

void KWFloorPlanViewFilterImpl::showGroups(bool on)
{
    if (on)
        m_ui->m_genderCheckBox->setChecked(false);
    m_canvas->showGroups(on);
    m_view->markModified();
}

void KWFloorPlanViewFilterImpl::showAge(bool on)
{
    m_canvas->showAge(on);
    m_view->markModified();
}

void KWFloorPlanViewFilterImpl::showVIP(bool on)
{
    m_canvas->showVIP(on);
    m_view->markModified();
}

void KWFloorPlanViewFilterImpl::showLocked(bool on)
{
    m_canvas->showLocked(on);
    m_view->markModified();
}

void KWFloorPlanViewFilterImpl::changeSeatDisplay(int index)
{
    const KWCanvas::SeatDisplay display = KWFloorPlanLook::seatDisplayOf(index);
    if (!hasCircle(display)) {
        for (QCheckBox *box : circleFlags())
            box->setChecked(false);
    }
    if (display == KWCanvas::None) {
        for (QCheckBox *box : otherFlags())
            box->setChecked(false);
    }
    enableFlags(display);
    m_canvas->displaySeats(display);
    m_view->markModified();
}

void KWFloorPlanViewFilterImpl::enableFlags(KWCanvas::SeatDisplay display)
{
    for (QCheckBox *box : circleFlags())
        box->setEnabled(hasCircle(display));
    for (QCheckBox *box : otherFlags())
        box->setEnabled(display != KWCanvas::None);
}

std::array<QCheckBox *, 3> KWFloorPlanViewFilterImpl::circleFlags() const
{
    return {m_ui->m_groupsCheckBox, m_ui->m_genderCheckBox, m_ui->m_ageCheckBox};
}

std::array<QCheckBox *, 2> KWFloorPlanViewFilterImpl::otherFlags() const
{
    return {m_ui->m_vipCheckBox, m_ui->m_lockedCheckBox};
}

void KWFloorPlanViewFilterImpl::changeDimensions()
{
    KWDimensionsDlgImpl dialog(window(), m_view->document());
    if (dialog.exec() == QDialog::Accepted)
        m_canvas->resizeToRoom();
}

void KWFloorPlanViewFilterImpl::changeColours()
{
    KWDocument *plan = m_view->document();
    KWColoursAndFontsDlgImpl dialog(window(), plan, KWColoursAndFontsDlgImpl::FloorPlan);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_canvas->setBackgroundBrush(plan->floorplanColourOutside());
    m_canvas->update();
}

void KWFloorPlanViewFilterImpl::languageChange()
{
    m_ui->retranslateUi(this);
    const QStringList orders = nameOrders();
    for (int i = 0; i < orders.size(); ++i)
        m_ui->m_nameOrderComboBox->setItemText(i, orders.at(i));
}

void KWFloorPlanViewFilterImpl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
