#include "gui/dialogs/kwguestdlgimpl.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwpixmaps.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "ui_kwguestdlg.h"

#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

void saveUndoState(const QString &label)
{
    if (KWMainWindow *window = mainWin())
        window->saveUndoState(label);
}

QIcon icon(const QPixmap &small, const QPixmap &large)
{
    QIcon result(small);
    result.addPixmap(large);
    return result;
}
} // namespace

KWGuestDlgImpl::KWGuestDlgImpl(QWidget *parent, KWDocument *document)
    : KWGuestDlgImpl(parent, document, nullptr, nullptr)
{
}

KWGuestDlgImpl::KWGuestDlgImpl(QWidget *parent, KWDocument *document, KWGuest *guest)
    : KWGuestDlgImpl(parent, document, guest, nullptr)
{
}

KWGuestDlgImpl::KWGuestDlgImpl(QWidget *parent, KWDocument *document, KWGroup *group)
    : KWGuestDlgImpl(parent, document, nullptr, group)
{
}

KWGuestDlgImpl::KWGuestDlgImpl(QWidget *parent, KWDocument *document, KWGuest *guest,
                               KWGroup *group)
    : KWHelpDialog(parent)
    , m_ui(std::make_unique<Ui::KWGuestDlg>())
    , m_document(document)
    , m_guest(guest)
    , m_group(group)
    , m_groupNameEdited(guest || group)
{
    const KWBusy busy;
    m_ui->setupUi(this);
    if (m_group)
        setUpEditGroup();
    else if (m_guest)
        setUpEditGuest();
    else
        setUpInsert();
    showTexts();
    connect(m_ui->m_guestWidget, &KWGuestWidgetImpl::firstNameChanged, this,
            &KWGuestDlgImpl::autoUpdateGroupName);
    connect(m_ui->m_guestWidget, &KWGuestWidgetImpl::lastNameChanged, this,
            &KWGuestDlgImpl::autoUpdateGroupName);
    connect(m_ui->m_addPushButton, &QPushButton::clicked, this, &KWGuestDlgImpl::add);
    finish(m_group   ? u"Group_properties_window.htm"_s
           : m_guest ? u"Guest_properties_window.htm"_s
                     : u"Insert_guest_window.htm"_s,
           m_ui->m_helpPushButton);
    setDefaultFocus();
    fitToScreen();
}

KWGuestDlgImpl::~KWGuestDlgImpl() = default;

void KWGuestDlgImpl::setUpInsert()
{
    setObjectName(u"new guest dlg"_s);
    remove(m_ui->m_assignedTextLabelLabel);
    remove(m_ui->m_assignedTextLabel);
    remove(m_ui->m_okPushButton);
    m_ui->m_guestWidget->removeLocked();
    m_ui->m_addPushButton->setDefault(true);
    fillChoices();
}

void KWGuestDlgImpl::setUpEditGuest()
{
    setObjectName(u"edit guest dlg"_s);
    remove(m_ui->m_addPushButton);
    m_ui->m_okPushButton->setDefault(true);
    fillChoices();
    m_ui->m_guestWidget->setValues(m_guest->values());
    if (m_guest->group()) {
        fillGroup(*m_guest->group());
    } else {
        for (QWidget *page : {m_ui->m_groupPage, m_ui->m_contactPage})
            m_ui->m_tabWidget->setTabEnabled(m_ui->m_tabWidget->indexOf(page), false);
    }
}

void KWGuestDlgImpl::setUpEditGroup()
{
    setObjectName(u"edit group dlg"_s);
    m_ui->m_tabWidget->removeTab(m_ui->m_tabWidget->indexOf(m_ui->m_guestPage));
    remove(m_ui->m_guestPage);
    remove(m_ui->m_addPushButton);
    m_ui->m_okPushButton->setDefault(true);
    fillGroup(*m_group);
}

void KWGuestDlgImpl::remove(QWidget *part)
{
    part->setParent(&m_removed);
}

void KWGuestDlgImpl::fillChoices()
{
    m_ui->m_guestWidget->setTitleChoices(m_document->titles());
    m_ui->m_guestWidget->setMealChoices(m_document->meals());
}

void KWGuestDlgImpl::fillGroup(const KWGroup &group)
{
    m_ui->m_contactWidget->setContact(group.contact());
    m_ui->m_groupWidget->setName(group.name());
    m_ui->m_groupWidget->setNotes(group.notes());
}

void KWGuestDlgImpl::setDefaultFocus()
{
    if (m_group)
        m_ui->m_groupWidget->focusName();
    else
        m_ui->m_guestWidget->focusTitle();
}

/// What the form itself does not say.
void KWGuestDlgImpl::showTexts()
{
    const KWPixmaps &pixmaps = KWPixmaps::instance(devicePixelRatioF());
    if (m_group) {
        setWindowTitle(tr("Group properties"));
        setWindowIcon(icon(pixmaps.friends(), pixmaps.friendsLarge()));
    } else {
        setWindowTitle(m_guest ? tr("Guest properties") : tr("Insert guest"));
        setWindowIcon(icon(pixmaps.singleGuest(), pixmaps.singleGuestLarge()));
    }
    showSeat();
    alignFields();
}

void KWGuestDlgImpl::showSeat()
{
    KWTable *table = nullptr;
    int seat = -1;
    if (!m_guest || !m_document->findGuest(m_guest, &table, &seat))
        return;
    // A long name would make the dialog as wide as itself; the seat is behind it.
    QLabel *label = m_ui->m_assignedTextLabel;
    const QFontMetrics metrics = label->fontMetrics();
    label->setText(
        metrics.elidedText(tr("%1, seat %2").arg(table->name(), QString::number(seat + 1)),
                           Qt::ElideMiddle, 50 * metrics.averageCharWidth()));
}

// So that they do not jump when the page changes.
void KWGuestDlgImpl::alignFields()
{
    const QList<QLabel *> labels = findChildren<QLabel *>();
    int widest = 0;
    for (const QLabel *label : labels) {
        if (label != m_ui->m_assignedTextLabel)
            widest = qMax(widest, label->sizeHint().width());
    }
    for (QLabel *label : labels) {
        if (label != m_ui->m_assignedTextLabel)
            label->setMinimumWidth(widest);
    }
}

void KWGuestDlgImpl::fitToScreen()
{
    const QScreen *room = (parentWidget() ? parentWidget() : this)->screen();
    setMaximumHeight(room->availableGeometry().height() - 100);
    ensurePolished();
    // Not by adjustSize(), which stops at two thirds of the screen.
    resize(sizeHint().boundedTo(maximumSize()));
}

void KWGuestDlgImpl::autoUpdateGroupName()
{
    if (m_groupNameEdited)
        return;
    const KWGuestValues values = m_ui->m_guestWidget->values();
    m_ui->m_groupWidget->setName(values.last_name.isEmpty() ? values.first_name : values.last_name);
}

void KWGuestDlgImpl::add()
{
    accept();
}

void KWGuestDlgImpl::accept()
{
    if (apply())
        QDialog::accept();
}

bool KWGuestDlgImpl::apply()
{
    if (m_group) {
        const KWBusy busy;
        saveUndoState(tr("Edit group"));
        editGroup(m_group);
        return true;
    }
    const KWGuestValues values = enteredValues();
    if (!hasName(values) || !mayHaveThisName(values))
        return false;
    if (m_guest)
        editGuest(values);
    else
        insertGuest(values);
    return true;
}

KWGuestValues KWGuestDlgImpl::enteredValues() const
{
    KWGuestValues values = m_ui->m_guestWidget->values();
    values.first_name = values.first_name.trimmed();
    values.last_name = values.last_name.trimmed();
    return values;
}

bool KWGuestDlgImpl::hasName(const KWGuestValues &values)
{
    if (!values.first_name.isEmpty() || !values.last_name.isEmpty())
        return true;
    m_ui->m_tabWidget->setCurrentWidget(m_ui->m_guestPage);
    m_ui->m_guestWidget->focusFirstName();
    errorBox(tr("No first name or last name supplied."), tr("&OK"));
    return false;
}

/// Asks if another guest has the same names, unless the user has switched that off.
bool KWGuestDlgImpl::mayHaveThisName(const KWGuestValues &values) const
{
    KWMainWindow *window = mainWin();
    if (!window ||
        !m_document->guestExists(values.title, values.first_name, values.last_name, m_guest))
        return true;
    const QString name =
        u"%1 %2 %3"_s.arg(values.title, values.first_name, values.last_name).trimmed();
    return configurableWarning(window->userSettings(), u"warning/duplicate_guest"_s,
                               tr("Allow guest with duplicate name '%1'?").arg(name)) == 0;
}

void KWGuestDlgImpl::insertGuest(const KWGuestValues &values)
{
    beginBusy();
    saveUndoState(tr("Insert guest"));
    KWGroup *group =
        m_document->addGroup(m_ui->m_contactWidget->contact(), m_ui->m_groupWidget->name(),
                             m_ui->m_groupWidget->notes());
    m_document->addGuest(values, group);
    endBusy();
    // Whoever listens may have put the guest elsewhere, and the group away.
    if (m_document->groups().contains(group) && group->guestCount() == 0)
        m_document->deleteGroup(group, false);
}

void KWGuestDlgImpl::editGuest(const KWGuestValues &values)
{
    const KWBusy busy;
    saveUndoState(tr("Edit guest"));
    m_document->editGuest(m_guest, values);
    if (m_guest->group())
        editGroup(m_guest->group());
}

void KWGuestDlgImpl::editGroup(KWGroup *group)
{
    m_document->editGroup(group, m_ui->m_contactWidget->contact(), m_ui->m_groupWidget->name(),
                          m_ui->m_groupWidget->notes());
}

// The widgets of the form would be told later, but their labels are measured here.
void KWGuestDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
    m_ui->m_guestWidget->languageChange();
    m_ui->m_groupWidget->languageChange();
    m_ui->m_contactWidget->languageChange();
    if (!m_group)
        fillChoices();
    showTexts();
}
