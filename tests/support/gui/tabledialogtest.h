#pragma once

#include "gui/dialogs/kwtabledlgimpl.h"
#include "support/gui/dialogtest.h"
#include "support/gui/guestform.h"
#include "support/gui/loggingwindow.h"

/// The dialog for tables with the parts that tests work with.
struct TableDialog : KWTableDlgImpl
{
    using KWTableDlgImpl::KWTableDlgImpl;

    QLineEdit *name = child<QLineEdit>(*this, "m_nameLineEdit");
    QTextEdit *notes = child<QTextEdit>(*this, "m_notesTextEdit");
    QSpinBox *tables = child<QSpinBox>(*this, "m_numTablesSpinBox");
    QLabel *line = child<QLabel>(*this, "m_numTablesLabel");
    KWPickComboBox *shape = child<KWPickComboBox>(*this, "m_shapeComboBox");
    QSpinBox *across = child<QSpinBox>(*this, "m_seatsAcrossSpinBox");
    QSpinBox *down = child<QSpinBox>(*this, "m_seatsDownSpinBox");
    QSpinBox *across2 = child<QSpinBox>(*this, "m_seatsAcrossSpinBox_2");
    QSpinBox *down2 = child<QSpinBox>(*this, "m_seatsDownSpinBox_2");
    QSpinBox *total = child<QSpinBox>(*this, "m_seatsTotalSpinBox");

    void click(const char *button)
    {
        QTest::mouseClick(child<QPushButton>(*this, button), Qt::LeftButton);
    }

    /// The visible part of the seats' row, as in "2 × (2 + 3) = 10", with the total in brackets
    /// if it cannot be typed.
    QString seats() const
    {
        QStringList shown;
        for (const char *part :
             {"m_twiceTextLabel", "m_seatsAcrossSpinBox", "m_timesTextLabel", "m_seatsDownSpinBox",
              "m_timesTextLabel_2", "m_seatsAcrossSpinBox_2", "m_timesTextLabel_3",
              "m_seatsDownSpinBox_2", "m_equalsTextLabel", "m_seatsTotalSpinBox"}) {
            const auto *widget = child<QWidget>(*this, part);
            if (widget->isVisibleTo(this))
                shown.append(widget->property("text").toString());
        }
        if (total->isReadOnly())
            shown.last() = u'[' + shown.last() + u']';
        return shown.join(u' ').replace(s("( "), s("(")).replace(s(" )"), s(")"));
    }

    /// Types over what the box holds.
    static void type(QSpinBox *box, int number)
    {
        box->selectAll();
        QTest::keyClicks(box, QString::number(number));
    }
};

/// Name, shape, seats of the sides and in all, and notes of a table: "Top|1|2 3 0 0|10|by the
/// door".
inline QString facts(const KWTable &table)
{
    QStringList sides;
    for (const int side : table.sides())
        sides.append(QString::number(side));
    return QStringList{table.name(), QString::number(table.shape()), sides.join(u' '),
                       QString::number(table.seatCount()), table.notes()}
        .join(u'|');
}
