#pragma once

#include "gui/panes/kwlistview.h"

#include <QDeadlineTimer>

class KWFindPattern;
class KWGuest;
class KWGuestListViewItem;
class KWTable;
struct KWViewSettings;

/// The list of all guests. While it is hidden it follows no change of the plan but lets go of what
/// is deleted, and rebuilds itself when it is shown again.
class KWGuestsListView : public KWListView
{
    Q_OBJECT

public:
    /// `document` is not owned and outlives the list.
    KWGuestsListView(QWidget *parent, KWDocument *document);

    /// The guest of the first selected row of a guest, or null.
    virtual KWGuest *firstSelectedGuest();
    /// Selects the first row in which a name begins with the text, or else has it anywhere. The
    /// text is a regular expression; with a bad one, and with nothing found, all stays as it is.
    virtual void find(const QString &text);
    /// The guest's row, or null.
    virtual KWGuestListViewItem *itemOfGuest(const KWGuest *guest);
    /// Gives a column the width that it has at first, or none.
    void setColumnShown(int column, bool shown);
    /// Where a plan keeps whether the column, which is not the one of pictures, is shown.
    virtual bool KWViewSettings::*shownSetting(int column) const;

    void edit(QTreeWidgetItem *item) override;
    using KWListView::edit;

    void deleteSelection() override;
    void unassign() override;
    void print() override {}
    void copy() override {}
    void rotate() override {}
    void setAffinity(int value) override;
    bool canDelete() override;
    bool canEditProperties() override;
    bool canUnassign() override;
    void setLocked(bool locked) override;
    bool canSetLocked() override;
    bool isLocked() override;
    void setAccepted(bool accepted) override;
    bool canSetAccepted() override;
    bool hasAccepted() override;
    bool canPrint() override { return false; }
    bool canCopy() override { return false; }
    bool canSetAffinity() override;
    bool canRotate() override { return false; }
    void showGuest(KWGuest *guest) override;
    AffinityCounts affinityCounts() override;

public slots:
    virtual void updateOnNewGuest(KWGuest *guest);
    virtual void updateOnDeleteGuest(KWGuest *guest);
    virtual void updateOnEditGuest(KWGuest *guest);
    virtual void updateOnEditTable(KWTable *table);
    virtual void updateOnRefresh();
    virtual void updateOnClear();
    virtual void renameInPlace(QTreeWidgetItem *item, int column, const QString &text);
    virtual void clickedOnItem(QTreeWidgetItem *item, int column);
    void languageChange();

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeColumns();
    void connectDocument();
    QList<KWGuest *> selectedGuests() const;
    /// Whether all selected rows are of guests, and there is one.
    bool onlyGuestsSelected() const;
    KWGuestListViewItem *rowWith(const KWFindPattern &pattern, const QDeadlineTimer &deadline);
    void selectRow(QTreeWidgetItem *row);
    void scrollToRow(QTreeWidgetItem *row);
    void dragSelectedGuests();
};
