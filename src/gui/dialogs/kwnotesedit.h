#pragma once

#include <QTextEdit>

/// A field for notes, in plain text, which the Tab key leaves.
class KWNotesEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit KWNotesEdit(QWidget *parent = nullptr);

    /// As they were set, until they are edited: the editor cannot hold every character.
    QString notes() const;
    void setNotes(const QString &notes);

private:
    QString m_notes;
};
