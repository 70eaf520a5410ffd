#pragma once

#include "gui/framework/kwprompts.h"

#include <QStringList>

class Dice;
class GestureLog;

/// Answers every question by chance while it lives. Plans are opened from and saved to the paths
/// given, pictures go beside the first of those.
class RandomPrompts : public KWPrompts
{
public:
    RandomPrompts(Dice &dice, GestureLog &log, const QStringList &toOpen,
                  const QStringList &toSave);
    ~RandomPrompts() override;

    int showMessage(QWidget *parent, const KWMessage &message) override;
    KWFileAnswer askFile(QWidget *parent, const KWFileQuestion &question) override;
    std::optional<QFont> askFont(QWidget *parent, const QFont &start) override;
    std::optional<QColor> askColour(QWidget *parent, const QColor &start) override;
    bool askPrinter(QWidget *parent, QPrinter &printer) override;

    /// While it is set, each message gets its last answer, which does nothing.
    bool refuses = false;

private:
    QString pathFor(const KWFileQuestion &question);

    Dice &m_dice;
    GestureLog &m_log;
    QStringList m_toOpen;
    QStringList m_toSave;
};
