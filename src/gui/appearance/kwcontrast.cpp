#include "gui/appearance/kwcontrast.h"

#include <algorithm>
#include <cmath>

double luminance(const QColor &colour)
{
    const auto linear = [](float channel) {
        const auto part = static_cast<double>(channel);
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

bool isDark(const QColor &ground)
{
    return contrast(ground, Qt::white) > contrast(ground, Qt::black);
}

QColor legible(const QColor &text, const QColor &ground)
{
    constexpr double enough = 4.5;
    if (contrast(text, ground) >= enough)
        return text;
    return isDark(ground) ? Qt::white : Qt::black;
}

QColor mixed(const QColor &ground, const QColor &other, float share)
{
    const auto mix = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(ground.redF(), other.redF()), mix(ground.greenF(), other.greenF()),
                            mix(ground.blueF(), other.blueF()));
}
