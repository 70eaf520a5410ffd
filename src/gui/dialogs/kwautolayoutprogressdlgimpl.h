#pragma once

#include "core/autolayout/kwlayoutrun.h"
#include "gui/framework/kwdialog.h"

#include <memory>

class KWDocument;
class KWUserSettings;

namespace Ui {
class KWAutoLayoutProgressDlg;
}

/// Runs the layout of a plan, shows how it gets on and lets the user stop it. Every way to close it
/// stops the layout, which then keeps the best seating so far.
class KWAutoLayoutProgressDlgImpl : public KWDialog
{
    Q_OBJECT

public:
    /// `document` is not owned and outlives the dialog.
    KWAutoLayoutProgressDlgImpl(QWidget *parent, KWDocument *document);
    ~KWAutoLayoutProgressDlgImpl() override;

    /// Shows the dialog and returns when the layout has ended, with the user's settings for the
    /// end.
    void runAutoLayout();
    /// When a layout ends, by the user's settings.
    static KWLayoutOptions optionsOf(const KWUserSettings &settings);

public slots:
    /// Any change is a sign of life; there is no end to be seen.
    void updateProgress(int progress);
    void updateCurrentScore(int score);
    void languageChange() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::KWAutoLayoutProgressDlg> m_ui;
    KWDocument *m_document;
};
