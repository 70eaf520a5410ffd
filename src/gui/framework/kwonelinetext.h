#pragma once

#include <QString>

class QLineEdit;

/// The text with a blank for each line break, tab and other control character, as of a copied cell
/// or paragraph.
QString oneLine(const QString &text);

/// Keeps the field to that whatever a person types, pastes or drops. What the program puts there
/// stays as it is until a person changes it. Takes the place of the field's validator; one of its
/// own uses oneLine() itself.
void keepToOneLine(QLineEdit *field);
