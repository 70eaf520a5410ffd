#pragma once

#include <QRegularExpression>

/// What a user looks for in the texts of a list: a regular expression, in any letter case. Of one
/// that would take forever nothing is found, since a match may take only so many steps.
class KWFindPattern
{
public:
    explicit KWFindPattern(const QString &pattern);

    bool isValid() const { return m_expression.isValid(); }
    /// Whether the text contains a match.
    bool isIn(const QString &text) const;

private:
    QRegularExpression m_expression;
};
