#include "gui/dialogs/kwnamevalidator.h"

#include "gui/framework/kwonelinetext.h"

namespace {

void removeLeadingBlanks(QString &text)
{
    const auto first =
        std::find_if_not(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
    text.remove(0, first - text.cbegin());
}

QString capitalised(const QString &text)
{
    std::u32string letters = text.toStdU32String();
    bool behindLetter = false;
    for (char32_t &letter : letters) {
        if (!behindLetter && QChar::isLower(letter))
            letter = QChar::toUpper(letter);
        // An accent that stands on its own belongs to the letter before it.
        if (!QChar::isMark(letter))
            behindLetter = QChar::isLetter(letter);
    }
    return QString::fromStdU32String(letters);
}
} // namespace

KWNameValidator::KWNameValidator(bool capitalise, QObject *parent)
    : QValidator(parent)
    , m_capitalise(capitalise)
{
    setObjectName(QStringLiteral("KWNameValidator"));
}

QValidator::State KWNameValidator::validate(QString &text, int &pos) const
{
    fixup(text);
    if (text.size() < pos)
        pos = qMax(0, static_cast<int>(text.size()) - 1);
    return Acceptable;
}

void KWNameValidator::fixup(QString &text) const
{
    text = oneLine(text);
    removeLeadingBlanks(text);
    if (m_capitalise)
        text = capitalised(text);
}
