#pragma once

#include <QRegularExpression>

/// What a user looks for in the texts of a list: a regular expression, in any letter case. Of one
/// that would take forever nothing is found: a match may take only so many steps, and after a few
/// that would have taken more none is tried any more.
class KWFindPattern
{
public:
    explicit KWFindPattern(const QString &pattern);

    bool isValid() const { return m_expression.isValid(); }
    /// Whether the text contains a match; in vain for an expression that is not valid.
    bool isIn(const QString &text);

private:
    QRegularExpression m_expression;
    int m_givenUp = 0;
};
