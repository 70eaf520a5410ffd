#include "gui/panes/kwguestviewfilterimpl.h"

#include "gui/panes/kwguestlistviewitem.h"
#include "gui/panes/kwguestslistview.h"
#include "ui_kwguestviewfilter.h"

#include <QHeaderView>
#include <QKeyEvent>

using Row = KWGuestListViewItem;

namespace {

/// Keys of the Edit menu that line edits of this platform take for ways to move and to delete.
bool isCommand(const QKeyEvent &key)
{
    return key.modifiers() == Qt::ControlModifier &&
           QList<int>{Qt::Key_E, Qt::Key_K, Qt::Key_U}.contains(key.key());
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
    m_view->find(text.trimmed());
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

// Whoever has found a guest goes on with a command, or in the list.
bool KWGuestViewFilterImpl::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isCommand(*static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress &&
        QList<int>{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}.contains(
            static_cast<QKeyEvent *>(event)->key())) {
        m_view->setFocus();
        return true;
    }
    return QWidget::eventFilter(object, event);
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
