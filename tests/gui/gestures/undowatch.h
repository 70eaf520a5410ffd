#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

class KWDocument;
class KWMainWinImpl;
class QAction;

/// The text of a plan's file, without what the panes add and without a word on the status bar.
QByteArray planText(const KWDocument &plan);

/// Knows what undo and redo have to bring back, since it hears of each undo point: the text of the
/// undo action is changed for it. That text is one of its own in between.
class UndoWatch : public QObject
{
    Q_OBJECT

public:
    explicit UndoWatch(KWMainWinImpl &window);

    bool canUndo() const;
    bool canRedo() const;
    /// Trigger the action, which is enabled.
    void undo();
    void redo();
    /// Does something that may be an undo or a redo, such as to press a key.
    template <typename Act>
    void expect(bool undo, const Act &act)
    {
        m_expected = undo ? Undo : Redo;
        m_textBefore = currentText();
        act();
        m_expected = Nothing;
    }

    /// What was in the plan at each undo point since the last call.
    QList<QByteArray> takePoints() { return std::exchange(m_points, {}); }
    /// Where undo or redo gave something else than it had to.
    QStringList takeFaults() { return std::exchange(m_faults, {}); }

private:
    enum Expected { Nothing, Undo, Redo };

    QByteArray currentText() const;
    void follow();

    KWMainWinImpl &m_window;
    QAction *m_undo;
    QAction *m_redo;
    Expected m_expected = Nothing;
    QByteArray m_textBefore;
    QByteArray m_undoText;
    QByteArray m_textOfPointBefore;
    QByteArray m_redoText;
    QList<QByteArray> m_points;
    QStringList m_faults;
};

/// The first lines in which two texts differ.
QString firstDifference(const QByteArray &wanted, const QByteArray &found);
