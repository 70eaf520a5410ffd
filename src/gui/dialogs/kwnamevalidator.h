#pragma once

#include <QValidator>

/// Tidies a name while it is typed: takes leading blanks away, puts a blank in
/// the place of each line break and, if it is to, makes the first
/// letter of each word upper case. Every text is acceptable. Texts that the program sets in a field
/// are tidied, too, so what a plan holds must be put there without the validator. A field forgets
/// what could be undone in it whenever a text is tidied.
class KWNameValidator : public QValidator
{
    Q_OBJECT

public:
    explicit KWNameValidator(bool capitalise, QObject *parent = nullptr);

    State validate(QString &text, int &pos) const override;
    void fixup(QString &text) const override;

private:
    bool m_capitalise;
};
