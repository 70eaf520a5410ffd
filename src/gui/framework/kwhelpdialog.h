#pragma once

#include "gui/framework/kwdialog.h"

class QPushButton;

/// A dialog with a page in the help, which F1 shows.
class KWHelpDialog : public KWDialog
{
    Q_OBJECT

public:
    using KWDialog::KWDialog;

public slots:
    /// Shows the page that was named to finish().
    void help();

protected:
    /// `topic` is the page, such as "Dimensions_window.htm"; without one F1 does nothing.
    void finish(const QString &topic, const QPushButton *helpButton = nullptr);

private:
    QString m_topic;
};
