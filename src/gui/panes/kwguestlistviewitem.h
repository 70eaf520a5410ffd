#pragma once

#include "gui/panes/kwlistviewitem.h"

class KWDocument;
class KWGuest;

/// The row of a guest, as a copy of what the guest was at the last update(). It is gone before the
/// guest is.
class KWGuestListViewItem : public KWShadedListViewItem
{
public:
    enum Column {
        Picture,
        DisplayName,
        Title,
        FirstName,
        LastName,
        Assigned,
        Locked,
        Vip,
        Accepted,
        Meal,
        Notes,
        ColumnCount
    };

    KWGuestListViewItem(QTreeWidget *parent, KWDocument *document, KWGuest *guest);
    KWGuestListViewItem(QTreeWidgetItem *parent, KWDocument *document, KWGuest *guest);

    virtual KWGuest *guest() const { return m_guest; }
    /// Writes every cell anew from the guest.
    virtual void update();

    QString key(int column) const override;
    /// Says for the ears what the pictures show.
    QVariant data(int column, int role) const override;
    /// Who has no seat yet stands out in bold.
    void prepareToPaint(QStyleOptionViewItem &option) override;
    void contextMenu() override;

private:
    void fill();
    void setPixmap(int column, const QPixmap &pixmap);

    KWDocument *m_document;
    KWGuest *m_guest;
};
