#pragma once

#include <QDialog>

/// What the dialogs of the program have in common: what's-this texts from the tool tips, how boxes
/// and labels answer the keys, and fields that stay one line. A subclass calls finish() when all
/// its widgets are there, and overrides languageChange().
class KWDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// Puts the texts in, in the language that has just been chosen.
    virtual void languageChange() {}

protected:
    void finish();
    void changeEvent(QEvent *event) override;

private:
    void passBuddiesOn();
    void watchBoxes();
    void keepFieldsToOneLine();
};
