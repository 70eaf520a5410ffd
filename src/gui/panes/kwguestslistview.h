#pragma once

#include "gui/panes/kwlistview.h"

class KWFindPattern;
class KWGuest;
class KWGuestListViewItem;
class KWTable;
struct KWGuestValues;
struct KWViewSettings;

/// The list of all guests, and the base of lists that show them in another order. While it is
/// hidden it follows no change of the plan but lets go of what is deleted, and rebuilds itself when
/// it is shown again.
class KWGuestsListView : public KWListView
{
    Q_OBJECT

public:
    /// `document` is not owned and outlives the list.
    KWGuestsListView(QWidget *parent, KWDocument *document);

    /// The guest of the first selected row of a guest, or null.
    virtual KWGuest *firstSelectedGuest();
    /// Selects the first row in which a name begins with the text, or else has it anywhere. The
    /// text is a regular expression; with a bad one, and with nothing found, all stays as it is,
    /// and the answer is false.
    virtual bool find(const QString &text);
    /// Selects the next row below the current one, or above it, in which a name has the text
    /// anywhere, in a circle.
    bool findNext(const QString &text, bool above);
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
    virtual void languageChange();

protected:
    /// What tells one list of guests from another. The texts are English.
    struct Look
    {
        const char *objectName;
        /// In which the texts are translated.
        const char *context;
        const char *accessibleName;
        const char *toolTip;
        const char *whatsThis;
        /// Of the column of pictures.
        const char *firstHeader;
        int firstWidth;
    };
    KWGuestsListView(QWidget *parent, KWDocument *document, const Look &look);

    /// Adds the row of a guest at the top level, or under another row.
    KWGuestListViewItem *addRow(KWGuest *guest, QTreeWidgetItem *parent = nullptr);
    /// Adds all rows to the empty list.
    virtual void addAllRows();
    /// Whom a row stands for: its guest, if it is a guest's.
    virtual QList<KWGuest *> guestsOf(QTreeWidgetItem *row) const;
    /// Those of the selected rows, from the top, each once.
    QList<KWGuest *> selectedGuests() const;
    /// Whether there is a selected row, and none without a guest.
    bool onlyGuestsSelected() const;
    void selectRow(QTreeWidgetItem *row, int column);

    void mouseMoveEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeColumns();
    int widthOf(int column) const;
    void connectDocument();
    /// The column of a name with the pattern, or -1.
    static int columnWith(KWFindPattern &pattern, QTreeWidgetItem *row);
    bool selectFirst(KWFindPattern pattern);
    static void tellOfDisplayName(const KWGuestValues &values, int column);
    void scrollToRow(QTreeWidgetItem *row);
    void dragSelectedGuests();

    Look m_look;
};
