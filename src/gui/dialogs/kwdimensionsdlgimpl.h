#pragma once

#include "gui/framework/kwhelpdialog.h"

#include <array>
#include <memory>

class KWDocument;
class QLineEdit;

namespace Ui {
class KWDimensionsDlg;
}

/// The dialog for the size of the room and of a seat, in metres or feet. The plan is written, after
/// an undo point, only if the dialog is accepted and its checks are passed.
class KWDimensionsDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    KWDimensionsDlgImpl(QWidget *parent, KWDocument *document);
    ~KWDimensionsDlgImpl() override;

    /// Stays open if apply() refuses.
    void accept() override;

public slots:
    /// Writes the plan. False, after telling the user, if a size is none or out of range; the plan
    /// is untouched then.
    bool apply();
    /// Converts the sizes to the unit that is chosen now.
    void unitsChange();
    void languageChange() override;

private:
    /// A length of the plan, where it is typed, and its limits in metres.
    struct Size
    {
        QLineEdit *edit;
        double (KWDocument::*get)(int) const;
        void (KWDocument::*set)(double, int);
        double least;
        double most;
        QString message;
        /// What the field says, in metres, and with the digits that it does not show.
        double metres = 0;
    };

    void fillSizes();
    void translateSizes();
    void show(const Size &size);
    /// Takes over what the field says. False if that is no number.
    bool read(Size &size);
    bool check(Size &size);

    std::unique_ptr<Ui::KWDimensionsDlg> m_ui;
    KWDocument *m_document;
    /// The KWPlanFields::Units of what the fields hold.
    int m_units;
    /// In the order in which they are checked.
    std::array<Size, 3> m_sizes;
};
