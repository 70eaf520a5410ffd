#pragma once

#include "gui/framework/kwdialog.h"

#include <memory>

namespace Ui {
class KWCreditsDlg;
}

/// Names those who made the program.
class KWCreditsDlg : public KWDialog
{
    Q_OBJECT

public:
    explicit KWCreditsDlg(QWidget *parent);
    ~KWCreditsDlg() override;

public slots:
    void languageChange() override;

private:
    std::unique_ptr<Ui::KWCreditsDlg> m_ui;
};
