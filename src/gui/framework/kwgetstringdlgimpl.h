#pragma once

#include "gui/framework/kwhelpdialog.h"

#include <memory>

namespace Ui {
class KWGetStringDlg;
}

/// Asks for one line of text. With `allowEmpty` false the user can only accept some text, be it a
/// blank. Without a help topic there is no help button. Without a picture for its icon the dialog
/// takes its parent's.
class KWGetStringDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    KWGetStringDlgImpl(QWidget *parent, const QString &caption, const QString &label,
                       const QString &initialText, bool allowEmpty, const QString &helpTopic = {},
                       const QPixmap &icon = {}, const QString &name = {}, bool modal = false,
                       Qt::WindowFlags flags = {});
    ~KWGetStringDlgImpl() override;

    /// What stands in the line edit, also when exec() is over.
    QString text() const;

public slots:
    void updateButtons();

private:
    std::unique_ptr<Ui::KWGetStringDlg> m_ui;
    bool m_allowEmpty;
};
