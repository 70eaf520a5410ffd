#pragma once

#include "gui/panes/kwlistviewitem.h"

#include <QCoreApplication>

class KWDocument;
class KWGuest;

/// The row of a guest, as a copy of what the guest was at the last update(). It is gone before the
/// guest is.
class KWGuestListViewItem : public KWShadedListViewItem
{
    Q_DECLARE_TR_FUNCTIONS(KWGuestListViewItem)

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
    /// Says for the ears what the pictures show, and in the first cell, which is read out by
    /// itself, all that matters of the guest.
    QVariant data(int column, int role) const override;
    /// Of notes that were shortened, all.
    QString wholeText(int column) const override;
    /// Who has no seat yet stands out in bold.
    void prepareToPaint(QStyleOptionViewItem &option) override;
    void contextMenu() override;

private:
    void fill();
    void setPixmap(int column, const QPixmap &pixmap);
    QString sentence() const;
    /// "male adult"; empty for unknown values.
    QString genderAndAge() const;

    KWDocument *m_document;
    KWGuest *m_guest;
};
