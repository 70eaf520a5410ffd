#include "undowatch.h"

#include "core/model/kwmodelhooks.h"
#include "gui/shell/kwmainwinimpl.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace {
QString ownText()
{
    return u"watched"_s;
}
} // namespace

QByteArray planText(const KWDocument &plan)
{
    // Progress is shown in a round of the event loop, in which anything may happen.
    const KWModelHooks hooks = std::exchange(modelHooks(), {});
    const QByteArray text = plan.toPlanText({});
    modelHooks() = hooks;
    return text;
}

QString firstDifference(const QByteArray &wanted, const QByteArray &found)
{
    const QList<QByteArray> wantedLines = wanted.split('\n');
    const QList<QByteArray> foundLines = found.split('\n');
    for (qsizetype i = 0; i < std::max(wantedLines.size(), foundLines.size()); ++i) {
        if (wantedLines.value(i) != foundLines.value(i))
            return u"line %1 is \"%2\" and not \"%3\""_s.arg(
                QString::number(i + 1), QString::fromUtf8(foundLines.value(i)),
                QString::fromUtf8(wantedLines.value(i)));
    }
    return {};
}

UndoWatch::UndoWatch(KWMainWinImpl &window)
    : m_window(window)
    , m_undo(window.findChild<QAction *>(u"m_editUndoAction"_s))
    , m_redo(window.findChild<QAction *>(u"m_editRedoAction"_s))
{
    m_undo->setText(ownText());
    connect(m_undo, &QAction::changed, this, &UndoWatch::follow);
}

bool UndoWatch::canUndo() const
{
    return m_undo->isEnabled();
}

bool UndoWatch::canRedo() const
{
    return m_redo->isEnabled();
}

void UndoWatch::undo()
{
    expect(true, [this] { m_undo->trigger(); });
}

void UndoWatch::redo()
{
    expect(false, [this] { m_redo->trigger(); });
}

QByteArray UndoWatch::currentText() const
{
    return planText(*m_window.document());
}

void UndoWatch::follow()
{
    if (m_undo->text() == ownText())
        return;
    // Under a dialog the action is off, also where there is something to undo.
    const bool isPoint = m_undo->text() != u"&Undo"_s;
    m_undo->setText(ownText());
    const QByteArray now = currentText();
    switch (std::exchange(m_expected, Nothing)) {
    case Undo:
        if (now != m_undoText)
            m_faults.append(u"undo: "_s + firstDifference(m_undoText, now));
        m_redoText = m_textBefore;
        break;
    case Redo:
        if (now != m_redoText)
            m_faults.append(u"redo: "_s + firstDifference(m_redoText, now));
        m_undoText = m_textBefore;
        break;
    case Nothing:
        // A command that has changed nothing brings the point before it back.
        if (now == m_undoText && !m_points.isEmpty()) {
            m_undoText = m_textOfPointBefore;
            m_points.removeLast();
        } else if (isPoint) {
            m_textOfPointBefore = std::exchange(m_undoText, now);
            m_points.append(now);
        }
    }
}
