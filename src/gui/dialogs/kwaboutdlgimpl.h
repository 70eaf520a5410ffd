#pragma once

#include "gui/framework/kwdialog.h"

#include <memory>

namespace Ui {
class KWAboutDlg;
}

/// Tells the version and who made the program; its three pictures open the web pages of the
/// product, the maker and the toolkit.
class KWAboutDlgImpl : public KWDialog
{
    Q_OBJECT

public:
    explicit KWAboutDlgImpl(QWidget *parent);
    ~KWAboutDlgImpl() override;

public slots:
    void languageChange() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void drawPictures();

    std::unique_ptr<Ui::KWAboutDlg> m_ui;
};
