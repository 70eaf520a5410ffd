#include "gui/dialogs/kwlengthvalidator.h"

#include <algorithm>

namespace {

QLocale ungrouped(QLocale locale)
{
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

bool isSpace(QChar character)
{
    return character.isSpace();
}

/// Without spaces, which some locales put between thousands.
QString withPoint(QString text, const QString &point)
{
    text.removeIf(isSpace);
    for (const QString &sign : {QStringLiteral("."), QStringLiteral(","), QLocale().decimalPoint()})
        text.replace(sign, point);
    return text;
}
} // namespace

KWLengthValidator::KWLengthValidator(double bottom, double top, QObject *parent)
    : QDoubleValidator(bottom, top, 2, parent)
{
    setNotation(StandardNotation);
    setLocale(ungrouped(QLocale()));
}

QValidator::State KWLengthValidator::validate(QString &input, int &pos) const
{
    pos -= static_cast<int>(std::count_if(input.cbegin(), input.cbegin() + pos, isSpace));
    input = withPoint(input, locale().decimalPoint());
    const State state = QDoubleValidator::validate(input, pos);
    // The base class keeps one from typing what is too large in metres but right in feet.
    if (state == Invalid && lengthIn(input).value_or(-1) >= 0)
        return Intermediate;
    return state;
}

QString KWLengthValidator::textOf(double length, int digits)
{
    return ungrouped(QLocale()).toString(length, 'g', digits);
}

std::optional<float> KWLengthValidator::lengthIn(const QString &text)
{
    bool known = false;
    float length = ungrouped(QLocale()).toFloat(withPoint(text, QLocale().decimalPoint()), &known);
    // Where the locale has digits of its own, one may type the others, too.
    if (!known)
        length = ungrouped(QLocale::c()).toFloat(withPoint(text, QStringLiteral(".")), &known);
    return known ? std::optional(length) : std::nullopt;
}
