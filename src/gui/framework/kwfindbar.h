#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTextEdit;

/// A line to find words in a text, made below it and hidden until start(). The search begins at
/// what is selected and goes on at the other end of the text when it comes to one.
class KWFindBar : public QWidget
{
    Q_OBJECT

public:
    /// `text` is not owned and lives at least as long.
    KWFindBar(QTextEdit *text, QWidget *parent);

    /// Shows the bar, ready to type into.
    void start();
    /// Without anything to look for yet, the same as start().
    void findNext();
    void findPrevious();
    /// Hides the bar and gives the focus back to the text.
    void finish();

private:
    void findAsTyped();
    void find(QTextDocument::FindFlags flags);

    QTextEdit *m_text;
    QLineEdit *m_wordsEdit;
    QLabel *m_resultLabel;
};
