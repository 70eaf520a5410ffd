#pragma once

#include <QDoubleValidator>

#include <optional>

/// For lengths as the user's locale writes them. A point and a comma are both taken for the decimal
/// point and become the locale's while one types; neither separates thousands, or the one might be
/// mistaken for the other. A length out of range can be typed but is not acceptable.
class KWLengthValidator : public QDoubleValidator
{
    Q_OBJECT

public:
    KWLengthValidator(double bottom, double top, QObject *parent);

    State validate(QString &input, int &pos) const override;
    /// Leaves it as it is; the base class would cut digits off.
    void fixup(QString &) const override {}

    static QString textOf(double length, int digits = 6);
    /// Nothing if the text is no number.
    static std::optional<float> lengthIn(const QString &text);
};
