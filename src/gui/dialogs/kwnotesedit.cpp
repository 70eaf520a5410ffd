#include "gui/dialogs/kwnotesedit.h"

KWNotesEdit::KWNotesEdit(QWidget *parent)
    : QTextEdit(parent)
{
    setTabChangesFocus(true);
    setAcceptRichText(false);
}

QString KWNotesEdit::notes() const
{
    return document()->isModified() ? toPlainText() : m_notes;
}

void KWNotesEdit::setNotes(const QString &notes)
{
    m_notes = notes;
    setPlainText(notes);
}
