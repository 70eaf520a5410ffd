#pragma once

#include "core/model/kwtable.h"
#include "gui/framework/kwhelpdialog.h"

#include <memory>

class KWDocument;
class QSpinBox;

namespace Ui {
class KWTableDlg;
}

/// The dialog that inserts one or several tables of one kind, or edits a table. It keeps the seats
/// of the sides and their total in step with the shape. The plan is written, after an undo point,
/// only if the dialog is accepted and its checks are passed.
class KWTableDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    /// Inserts tables; `shape` is the KWTable::Shape to start with.
    KWTableDlgImpl(QWidget *parent, KWDocument *document, int shape);
    KWTableDlgImpl(QWidget *parent, KWDocument *document, KWTable *table);
    ~KWTableDlgImpl() override;

    /// Stays open if apply() refuses.
    void accept() override;

public slots:
    /// Writes the plan. False, after telling the user, if what was entered may not be taken; the
    /// plan is untouched then.
    bool apply();
    /// Shows the fields of a KWTable::Shape and hands the seats over to them.
    void shapeSelected(int shape);
    /// Works the total out where the shape has sides; elsewhere it is as it was typed.
    void updateTotal();
    /// Inserts the tables and closes, as accept() does.
    void add();
    void setFocusAfterShapeCombo();
    void updateNumTablesLabel();
    void languageChange() override;

private:
    KWTableDlgImpl(QWidget *parent, KWDocument *document, KWTable *table, int shape);

    void connectFields();
    void drawShapes();
    void setUpInsert(int shape);
    void setUpEdit();
    void showTexts();
    void showFields(int shape);
    void nameSides(bool custom);
    void showTotalAsReadOut(bool readOut);
    void handSeatsOver(int shape);
    static void setCount(QSpinBox *box, int count);

    int shape() const;
    KWTable::Sides counts() const;
    QString name() const;
    bool hasName();
    bool mayRemoveSeats() const;
    void insertTables();
    void editTable();

    std::unique_ptr<Ui::KWTableDlg> m_ui;
    KWDocument *m_document;
    /// Null if tables are inserted.
    KWTable *m_table;
    /// -1 until the first shapeSelected().
    int m_previousShape = -1;
};
