#pragma once

#include "gui/framework/kwhelpdialog.h"

#include <memory>

class KWUserSettings;

namespace Ui {
class KWGettingStartedDlg;
}

/// Greets a new user and points to the quick start guide and the tutorial. However the dialog is
/// closed, its check box is written to the settings.
class KWGettingStartedDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    KWGettingStartedDlgImpl(QWidget *parent, KWUserSettings *settings);
    ~KWGettingStartedDlgImpl() override;

    void done(int result) override;

public slots:
    void quickStart();
    void tutorial();
    void languageChange() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void fitText();

    std::unique_ptr<Ui::KWGettingStartedDlg> m_ui;
    KWUserSettings *m_settings;
};
