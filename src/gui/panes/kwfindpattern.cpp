#include "gui/panes/kwfindpattern.h"

using namespace Qt::StringLiterals;

// The engine takes its limit of steps from the start of the pattern; of two the lower one counts,
// so the user cannot raise it.
KWFindPattern::KWFindPattern(const QString &pattern)
    : m_expression(u"(*LIMIT_MATCH=10000)"_s + pattern,
                   QRegularExpression::CaseInsensitiveOption |
                       QRegularExpression::UseUnicodePropertiesOption)
{
}

bool KWFindPattern::isIn(const QString &text)
{
    constexpr int patience = 3;
    if (!isValid() || m_givenUp == patience)
        return false;
    const QRegularExpressionMatch match = m_expression.match(text);
    // Of a valid expression that is one that ran out of steps.
    if (!match.isValid())
        ++m_givenUp;
    return match.hasMatch();
}
