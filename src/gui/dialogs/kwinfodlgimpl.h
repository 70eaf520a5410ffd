#pragma once

#include "gui/framework/kwhelpdialog.h"

#include <QDate>

#include <functional>
#include <memory>

class KWDocument;

namespace Ui {
class KWInfoDlg;
}

/// The facts of the event, with the days until it and its costs worked out as they are edited.
/// The guests are counted once: the plan does not change while the dialog is up. The plan is
/// written, after an undo point, only if the dialog is accepted and a field was touched.
class KWInfoDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    /// `today` gives the date from which the days are counted.
    KWInfoDlgImpl(QWidget *parent, KWDocument *document,
                  std::function<QDate()> today = QDate::currentDate);
    ~KWInfoDlgImpl() override;

    void accept() override;
    /// Asks first if a field was touched.
    void reject() override;

public slots:
    void updateTotalCost();
    void eventChanged();
    void updateDaysRemaining();
    void dateChanged();
    void venueChanged();
    void fixedCostChanged();
    void perAdultCostChanged();
    void perChildCostChanged();
    void notesChanged();
    void languageChange() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    enum Field {
        Event = 1,
        Date = 2,
        Venue = 4,
        FixedCost = 8,
        AdultCost = 16,
        ChildCost = 32,
        Notes = 64
    };

    void load();
    void save();
    void connectEditors();
    void showFullYear();
    void showReadOuts();

    std::unique_ptr<Ui::KWInfoDlg> m_ui;
    KWDocument *m_document;
    std::function<QDate()> m_today;
    int m_adults = 0;
    int m_children = 0;
    int m_acceptedAdults = 0;
    int m_acceptedChildren = 0;
    /// The fields that were touched.
    int m_touched = 0;
};
