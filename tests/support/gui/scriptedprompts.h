#pragma once

#include "gui/framework/kwprompts.h"

#include <QList>
#include <QVariant>

/// Takes the place of the real message boxes and file, font, colour and print dialogs while it
/// lives. A test gives the answers in the order in which they will be needed and then looks at
/// what was asked. A question without an answer, or with one that does not fit, and an answer
/// without a question fail the test.
class ScriptedPrompts : public KWPrompts
{
public:
    ScriptedPrompts();
    ~ScriptedPrompts() override;

    /// The text of the button that answers the next message.
    void answer(const QString &button);
    /// The next file dialog's; an empty path cancels it. Without a filter the first one is taken.
    void answerFile(const QString &path, const QString &filter = {});
    void answerFont(const std::optional<QFont> &font);
    void answerColour(const std::optional<QColor> &colour);
    void answerPrinter(bool print);

    QList<KWMessage> messages;
    QList<KWFileQuestion> files;
    /// The texts of the messages.
    QStringList texts() const;
    /// Answers that nothing has asked for yet.
    int waiting() const { return static_cast<int>(m_answers.size()); }

    int showMessage(QWidget *parent, const KWMessage &message) override;
    KWFileAnswer askFile(QWidget *parent, const KWFileQuestion &question) override;
    std::optional<QFont> askFont(QWidget *parent, const QFont &start) override;
    std::optional<QColor> askColour(QWidget *parent, const QColor &start) override;
    bool askPrinter(QWidget *parent, QPrinter &printer) override;

private:
    QVariant nextAnswer(const char *kind, const QString &question);

    struct Answer
    {
        QByteArray kind;
        QVariant value;
    };
    QList<Answer> m_answers;
};
