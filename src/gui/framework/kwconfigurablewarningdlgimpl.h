#pragma once

#include "gui/framework/kwdialog.h"

#include <QStringList>

#include <memory>

namespace Ui {
class KWConfigurableWarningDlg;
}

/// A warning that the user can switch off. exec() gives the index of the button pressed, from 0;
/// Esc and the close box count as the last button, never as the first one, which goes on.
class KWConfigurableWarningDlgImpl : public KWDialog
{
    Q_OBJECT

public:
    /// `buttons` are the texts of up to three buttons; the first two keep their "&Yes" and "&No"
    /// where it has none for them.
    KWConfigurableWarningDlgImpl(QWidget *parent, const QString &message,
                                 const QStringList &buttons = {}, bool showWarning = true);
    ~KWConfigurableWarningDlgImpl() override;

    /// Whether the user wants to see the warning again.
    bool showWarning() const;

public slots:
    void button1Pressed();
    void button2Pressed();
    void button3Pressed();
    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void fitMessage();
    void setButtons(const QStringList &texts);

    std::unique_ptr<Ui::KWConfigurableWarningDlg> m_ui;
    /// Owns the third button unless it has a text.
    QWidget m_removed;
};
