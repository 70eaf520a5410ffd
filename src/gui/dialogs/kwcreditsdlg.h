#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class KWCreditsDlg;
}

/// Names those who made the program.
class KWCreditsDlg : public QDialog
{
    Q_OBJECT

public:
    explicit KWCreditsDlg(QWidget *parent);
    ~KWCreditsDlg() override;

public slots:
    void languageChange();

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::KWCreditsDlg> m_ui;
};
