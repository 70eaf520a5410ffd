#pragma once

#include "gui/framework/kwhelpdialog.h"

#include <QStringList>

#include <memory>

class KWUserSettings;

namespace Ui {
class KWRecentlyOpenedDlg;
}

/// Lets the user pick one of the recent plans. Those that are gone from the disk and the open one
/// are left out of sight; the caller's list and the settings keep them. However the dialog is
/// closed, its check box is written to the settings.
class KWRecentlyOpenedDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    /// `paths` with the newest first; `openPlan` is empty for a plan without a file.
    KWRecentlyOpenedDlgImpl(QWidget *parent, const QStringList &paths, const QString &openPlan,
                            KWUserSettings *settings);
    ~KWRecentlyOpenedDlgImpl() override;

    /// The absolute path on the selected row; null if there is none.
    QString selectedFile() const;

    void done(int result) override;

public slots:
    void updateButtonStatus();
    void languageChange() override;

private:
    void addRows(const QStringList &paths, const QString &openPlan);
    void fitToRows();

    std::unique_ptr<Ui::KWRecentlyOpenedDlg> m_ui;
    KWUserSettings *m_settings;
};
