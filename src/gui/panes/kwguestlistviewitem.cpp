#include "gui/panes/kwguestlistviewitem.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwpixmaps.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/panes/kwrowhost.h"

#include <QMenu>

namespace {

/// The notes in one line of at most 30 characters.
QString shortened(const QString &notes)
{
    constexpr int longest = 30;
    QString text = notes;
    if (text.size() > longest)
        text = text.left(longest - 3) + QStringLiteral("...");
    return text.replace(u'\n', u' ');
}

QString markKey(bool marked)
{
    return marked ? QStringLiteral("0") : QStringLiteral("1");
}
} // namespace

KWGuestListViewItem::KWGuestListViewItem(QTreeWidget *parent, KWDocument *document, KWGuest *guest)
    : m_document(document)
    , m_guest(guest)
{
    // A row outside the list is filled without a repaint and a sort for each cell.
    fill();
    parent->addTopLevelItem(this);
}

KWGuestListViewItem::KWGuestListViewItem(QTreeWidgetItem *parent, KWDocument *document,
                                         KWGuest *guest)
    : m_document(document)
    , m_guest(guest)
{
    fill();
    parent->addChild(this);
}

void KWGuestListViewItem::update()
{
    fill();
}

void KWGuestListViewItem::fill()
{
    static const QPixmap none;
    const KWPixmaps &pixmaps = KWPixmaps::instance();
    const QPixmap &picture = pixmaps.guest(m_guest->gender(), m_guest->age());
    if (!picture.isNull())
        setPixmap(Picture, picture);
    setText(DisplayName, m_guest->displayName());
    setText(Title, m_guest->title());
    setText(FirstName, m_guest->firstName());
    setText(LastName, m_guest->lastName());
    KWTable *table = nullptr;
    setText(Assigned, m_document->findGuest(m_guest, &table) ? table->name() : QString());
    setPixmap(Locked, m_guest->isLocked() ? pixmaps.locked() : none);
    setPixmap(Vip, m_guest->isVip() ? pixmaps.vip() : none);
    setPixmap(Accepted, m_guest->isAccepted() ? pixmaps.accepted() : none);
    setText(Meal, m_guest->meal());
    setText(Notes, shortened(m_guest->notes()));
}

void KWGuestListViewItem::setPixmap(int column, const QPixmap &pixmap)
{
    // The row cannot tell that two pixmaps are one, and would call for a repaint.
    if (data(column, Qt::DecorationRole).value<QPixmap>().cacheKey() != pixmap.cacheKey())
        setData(column, Qt::DecorationRole, pixmap);
}

QVariant KWGuestListViewItem::data(int column, int role) const
{
    if (role != Qt::AccessibleTextRole)
        return KWShadedListViewItem::data(column, role);
    const auto mark = [this, column](bool set) {
        return set ? treeWidget()->headerItem()->text(column) : QString();
    };
    switch (column) {
    case Picture:
        return sentence();
    case Locked:
        return mark(m_guest->isLocked());
    case Vip:
        return mark(m_guest->isVip());
    case Accepted:
        return mark(m_guest->isAccepted());
    default:
        return text(column);
    }
}

QString KWGuestListViewItem::sentence() const
{
    QStringList parts{m_guest->displayName(), genderAndAge()};
    KWTable *table = nullptr;
    int seat = -1;
    if (m_document->findGuest(m_guest, &table, &seat))
        parts << tr("%1, seat %2").arg(table->name(), QString::number(seat + 1));
    else
        parts << tr("no seat");
    if (m_guest->isLocked())
        parts << tr("locked");
    if (m_guest->isVip())
        parts << tr("VIP");
    if (m_guest->isAccepted())
        parts << tr("accepted");
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString KWGuestListViewItem::genderAndAge() const
{
    switch (m_guest->age() * 3 + m_guest->gender()) {
    case 0:
        return tr("adult");
    case 1:
        return tr("male adult");
    case 2:
        return tr("female adult");
    case 3:
        return tr("child");
    case 4:
        return tr("male child");
    case 5:
        return tr("female child");
    default:
        return {};
    }
}

QString KWGuestListViewItem::wholeText(int column) const
{
    return column == Notes ? m_guest->notes() : KWShadedListViewItem::wholeText(column);
}

QString KWGuestListViewItem::key(int column) const
{
    switch (column) {
    case Picture:
        return QString::number(m_guest->age() * 3 + m_guest->gender());
    case Locked:
        return markKey(m_guest->isLocked());
    case Vip:
        return markKey(m_guest->isVip());
    case Accepted:
        return markKey(m_guest->isAccepted());
    default:
        return KWShadedListViewItem::key(column);
    }
}

void KWGuestListViewItem::prepareToPaint(QStyleOptionViewItem &option)
{
    KWShadedListViewItem::prepareToPaint(option);
    if (text(Assigned).isEmpty()) {
        option.font.setBold(true);
        option.fontMetrics = QFontMetrics(option.font);
    }
}

void KWGuestListViewItem::contextMenu()
{
    KWMainWindow *window = mainWin();
    if (!window)
        return;
    using Window = KWMainWindow;
    QMenu menu;
    menu.addAction(window->editAction(Window::EditProperties));
    menu.addSeparator();
    menu.addAction(window->editAction(Window::ShowGuestInPlan));
    menu.addSeparator();
    for (const Window::EditAction action :
         {Window::SetAffinity, Window::Lock, Window::Accepted, Window::Unassign})
        menu.addAction(window->editAction(action));
    menu.addSeparator();
    menu.addAction(window->editAction(Window::Delete));
    const auto *host = dynamic_cast<const KWRowHost *>(treeWidget());
    menu.exec(host ? host->menuPosition() : QCursor::pos());
}
