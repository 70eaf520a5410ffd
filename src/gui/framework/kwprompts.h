#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>

#include <optional>

class QPrinter;
class QWidget;

/// A message with text buttons, shown in the order given.
struct KWMessage
{
    enum Icon { Warning, Critical };

    Icon icon = Warning;
    QString caption;
    QString text;
    QStringList buttons;
    int defaultButton = 0;
};

/// The question for a file to open or to save to.
struct KWFileQuestion
{
    enum Mode { Open, Save };

    Mode mode = Open;
    QString caption;
    /// A directory, or a file that is suggested.
    QString startPath;
    /// "Plan (*.kw);;Backup (*.kwb)"
    QString filters;
    /// The object name of the dialog.
    QString name;
};

struct KWFileAnswer
{
    /// Empty if the user chose nothing.
    QString path;
    /// The filter that was chosen, as it stands in the question.
    QString filter;
};

/// The one place where the program asks through a message box or a file, font, colour or print
/// dialog. This class asks with real ones; a test puts a subclass in its place that answers from a
/// script and writes down what was asked.
class KWPrompts
{
public:
    virtual ~KWPrompts() = default;

    /// The index of the button pressed, or -1 if the box was taken down without one. Esc and the
    /// close box count only where there is a single button.
    virtual int showMessage(QWidget *parent, const KWMessage &message);
    /// An existing file is not asked about: that is the caller's affair.
    virtual KWFileAnswer askFile(QWidget *parent, const KWFileQuestion &question);
    /// Nothing if the user cancelled.
    virtual std::optional<QFont> askFont(QWidget *parent, const QFont &start);
    /// Nothing if the user cancelled.
    virtual std::optional<QColor> askColour(QWidget *parent, const QColor &start);
    /// True if the user wants to print; `printer` then holds the choices.
    virtual bool askPrinter(QWidget *parent, QPrinter &printer);
};

KWPrompts &prompts();
/// Puts `replacement` in the place of the real prompts until it is called with null.
void setPrompts(KWPrompts *replacement);
