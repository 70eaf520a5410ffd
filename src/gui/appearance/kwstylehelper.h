#pragma once

#include <QObject>

class QDialog;
class QLayout;

/// Can turn round the order of a dialog's buttons. A child of the dialog; idle until called.
class KWStyleHelper : public QObject
{
    Q_OBJECT

public:
    explicit KWStyleHelper(QDialog *dialog);

    /// Reverses the push buttons of the layout, or of the nested one, that holds the default
    /// button; they end up behind whatever else is in it. False if none does.
    bool arrangeButtons(QLayout *layout);
};
