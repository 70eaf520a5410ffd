#pragma once

#include <QDialog>

class QPushButton;

/// What the dialogs of the program have in common: the page of the help, also on F1, what's-this
/// texts from the tool tips, how boxes and labels answer the keys, and fields that stay one line. A
/// subclass calls finish() when all its widgets are there, and overrides languageChange().
class KWDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// Shows the page that was named to finish().
    void help();
    /// Puts the texts in, in the language that has just been chosen.
    virtual void languageChange() {}

protected:
    /// `helpTopic` is the page about this dialog, such as "Main_window.htm"; without one F1 does
    /// nothing.
    void finish(const QString &helpTopic = {}, const QPushButton *helpButton = nullptr);
    void changeEvent(QEvent *event) override;

private:
    void passBuddiesOn();
    void watchBoxes();
    void keepFieldsToOneLine();

    QString m_helpTopic;
};
