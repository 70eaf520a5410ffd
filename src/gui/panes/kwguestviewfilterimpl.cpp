#include "gui/panes/kwguestviewfilterimpl.h"

#include "gui/appearance/kwcontrast.h"
#include "gui/framework/kwonelinetext.h"
#include "gui/panes/kweditkeys.h"
#include "gui/panes/kwguestlistviewitem.h"
#include "gui/panes/kwguestslistview.h"
#include "ui_kwguestviewfilter.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>

using Row = KWGuestListViewItem;

namespace {

/// The keys that lead from what was typed into the list.
bool leadsIntoList(const QKeyEvent &key)
{
    return QList<int>{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}.contains(key.key());
}
} // namespace

KWGuestViewFilterImpl::KWGuestViewFilterImpl(QWidget *parent, KWGuestsListView *view)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::KWGuestViewFilter>())
{
    m_ui->setupUi(this);
    using Filter = KWGuestViewFilterImpl;
    connect(m_ui->m_showButton, &QToolButton::clicked, this, &Filter::showAll);
    connect(m_ui->m_hideButton, &QToolButton::clicked, this, &Filter::hideAll);
    connect(m_ui->m_findLineEdit, &QLineEdit::textChanged, this, &Filter::find);
    m_ui->m_findLineEdit->installEventFilter(this);
    keepToOneLine(m_ui->m_findLineEdit);
    connectBoxes();
    hideAll();
    if (view)
        setView(view);
}

KWGuestViewFilterImpl::~KWGuestViewFilterImpl() = default;

void KWGuestViewFilterImpl::connectBoxes()
{
    using Filter = KWGuestViewFilterImpl;
    const auto follow = [this](QCheckBox *box, void (Filter::*slot)(bool)) {
        connect(box, &QCheckBox::toggled, this, slot);
    };
    follow(m_ui->m_displayNameCheckBox, &Filter::showDisplayNameChanged);
    follow(m_ui->m_titleCheckBox, &Filter::showTitleChanged);
    follow(m_ui->m_firstNameCheckBox, &Filter::showFirstNameChanged);
    follow(m_ui->m_lastNameCheckBox, &Filter::showLastNameChanged);
    follow(m_ui->m_assignedCheckBox, &Filter::showAssignedChanged);
    follow(m_ui->m_lockedCheckBox, &Filter::showLockedChanged);
    follow(m_ui->m_vipCheckBox, &Filter::showVIPChanged);
    follow(m_ui->m_acceptedCheckBox, &Filter::showAcceptedChanged);
    follow(m_ui->m_mealCheckBox, &Filter::showMealChanged);
    follow(m_ui->m_notesCheckBox, &Filter::showNotesChanged);
}

void KWGuestViewFilterImpl::setView(KWGuestsListView *view)
{
    m_view = view;
    connect(view->header(), &QHeaderView::sectionResized, this,
            &KWGuestViewFilterImpl::columnWidthHasChanged);
    view->installEventFilter(this);
}

std::array<QCheckBox *, 10> KWGuestViewFilterImpl::boxes() const
{
    return {m_ui->m_displayNameCheckBox, m_ui->m_titleCheckBox,    m_ui->m_firstNameCheckBox,
            m_ui->m_lastNameCheckBox,    m_ui->m_assignedCheckBox, m_ui->m_lockedCheckBox,
            m_ui->m_vipCheckBox,         m_ui->m_acceptedCheckBox, m_ui->m_mealCheckBox,
            m_ui->m_notesCheckBox};
}

void KWGuestViewFilterImpl::readSettings(const KWViewSettings &settings)
{
    const QSignalBlocker listBlocker(m_view);
    int column = Row::DisplayName;
    for (QCheckBox *box : boxes()) {
        const QSignalBlocker blocker(box);
        box->setChecked(settings.*m_view->shownSetting(column));
        m_view->setColumnShown(column, box->isChecked());
        ++column;
    }
}

void KWGuestViewFilterImpl::writeSettings(KWViewSettings &settings) const
{
    int column = Row::DisplayName;
    for (const QCheckBox *box : boxes())
        settings.*m_view->shownSetting(column++) = box->isChecked();
}

void KWGuestViewFilterImpl::showAll()
{
    fold(false);
}

void KWGuestViewFilterImpl::hideAll()
{
    fold(true);
}

void KWGuestViewFilterImpl::fold(bool folded)
{
    QToolButton *pressed = folded ? m_ui->m_hideButton : m_ui->m_showButton;
    QToolButton *other = folded ? m_ui->m_showButton : m_ui->m_hideButton;
    const bool focused = pressed->hasFocus();
    for (QCheckBox *box : boxes())
        box->setVisible(!folded);
    other->show();
    if (focused)
        other->setFocus();
    pressed->hide();
}

void KWGuestViewFilterImpl::changeColumn(int column, bool shown)
{
    m_view->setColumnShown(column, shown);
    m_view->markModified();
}

void KWGuestViewFilterImpl::columnWidthHasChanged(int column, int, int width)
{
    if (column >= Row::DisplayName)
        boxes().at(static_cast<std::size_t>(column - Row::DisplayName))->setChecked(width > 0);
}

void KWGuestViewFilterImpl::find(const QString &text)
{
    const QString wanted = text.trimmed();
    showFound(m_view->find(wanted) || wanted.isEmpty());
}

void KWGuestViewFilterImpl::findNext(bool above)
{
    const QString wanted = m_ui->m_findLineEdit->text().trimmed();
    showFound(m_view->findNext(wanted, above) || wanted.isEmpty());
}

// What cannot be found, or not yet, stands on red.
void KWGuestViewFilterImpl::showFound(bool found)
{
    QPalette palette;
    if (!found) {
        const QPalette usual = QApplication::palette(m_ui->m_findLineEdit);
        const QColor ground = mixed(usual.color(QPalette::Base), Qt::red, 0.25F);
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, legible(usual.color(QPalette::Text), ground));
    }
    m_ui->m_findLineEdit->setPalette(palette);
    m_ui->m_findLineEdit->setAccessibleDescription(found ? QString() : tr("Nobody found"));
}

void KWGuestViewFilterImpl::showDisplayNameChanged(bool on)
{
    changeColumn(Row::DisplayName, on);
}

void KWGuestViewFilterImpl::showTitleChanged(bool on)
{
    changeColumn(Row::Title, on);
}

void KWGuestViewFilterImpl::showFirstNameChanged(bool on)
{
    changeColumn(Row::FirstName, on);
}

void KWGuestViewFilterImpl::showLastNameChanged(bool on)
{
    changeColumn(Row::LastName, on);
}

void KWGuestViewFilterImpl::showAssignedChanged(bool on)
{
    changeColumn(Row::Assigned, on);
}

void KWGuestViewFilterImpl::showLockedChanged(bool on)
{
    changeColumn(Row::Locked, on);
}

void KWGuestViewFilterImpl::showVIPChanged(bool on)
{
    changeColumn(Row::Vip, on);
}

void KWGuestViewFilterImpl::showAcceptedChanged(bool on)
{
    changeColumn(Row::Accepted, on);
}

void KWGuestViewFilterImpl::showMealChanged(bool on)
{
    changeColumn(Row::Meal, on);
}

void KWGuestViewFilterImpl::showNotesChanged(bool on)
{
    changeColumn(Row::Notes, on);
}

bool KWGuestViewFilterImpl::eventFilter(QObject *object, QEvent *event)
{
    const bool isKey =
        event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!isKey)
        return QWidget::eventFilter(object, event);
    auto &key = *static_cast<QKeyEvent *>(event);
    if (object == m_ui->m_findLineEdit && handleFindKey(key))
        return true;
    if (event->type() != QEvent::KeyPress || key.key() != Qt::Key_F3)
        return QWidget::eventFilter(object, event);
    findNext(key.modifiers() & Qt::ShiftModifier);
    return true;
}

// Whoever has found a guest goes on with a command, or in the list.
bool KWGuestViewFilterImpl::handleFindKey(QKeyEvent &key)
{
    // The label's letter is a menu's, too, which may have it elsewhere: with the letters that are
    // typed next it would run commands.
    const bool toField =
        QKeySequence(key.keyCombination()) == QKeySequence::mnemonic(m_ui->textLabel1->text());
    if (key.type() == QEvent::ShortcutOverride) {
        key.setAccepted(toField);
        return toField || isEditCommand(key);
    }
    if (toField)
        m_ui->m_findLineEdit->selectAll();
    else if (leadsIntoList(key))
        m_view->setFocus();
    else
        return false;
    return true;
}

void KWGuestViewFilterImpl::languageChange()
{
    m_ui->retranslateUi(this);
}

void KWGuestViewFilterImpl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
