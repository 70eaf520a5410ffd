#pragma once

#include "gui/framework/kwhelpdialog.h"

#include <memory>

class KWUserSettings;

namespace Ui {
class KWPreferencesDlg;
}

/// The dialog over what the user may set for all plans. The settings are the caller's; they change
/// only when the dialog is accepted. Whoever runs it sets up the timed backup anew afterwards.
class KWPreferencesDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    KWPreferencesDlgImpl(QWidget *parent, KWUserSettings *settings);
    ~KWPreferencesDlgImpl() override;

    void accept() override;

public slots:
    void languageChange() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void load();

    std::unique_ptr<Ui::KWPreferencesDlg> m_ui;
    KWUserSettings *m_settings;
};
