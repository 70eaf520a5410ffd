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

bool KWFindPattern::isIn(const QString &text) const
{
    return m_expression.match(text).hasMatch();
}
