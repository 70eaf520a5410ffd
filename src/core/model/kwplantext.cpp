#include "core/model/kwplantext.h"

#include <QStringDecoder>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace {
/// More than any chart or floor plan can use; a larger one would only exhaust the painter.
constexpr int maxFontSize = 1000;

struct Weight
{
    int old;
    int now;
};
constexpr std::array<Weight, 9> weights{{{0, 100},
                                         {12, 200},
                                         {25, 300},
                                         {50, 400},
                                         {57, 500},
                                         {63, 600},
                                         {75, 700},
                                         {81, 800},
                                         {87, 900}}};

int oldWeight(int weight)
{
    const auto nearest = std::ranges::min_element(
        weights, {}, [=](const Weight &w) { return std::abs(w.now - weight); });
    return nearest->old;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}
} // namespace

namespace KWPlanText {

QString escaped(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text, "!()*/", "~"));
}

QString unescaped(QByteArrayView utf8)
{
    QByteArray result;
    result.reserve(utf8.size());
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        char byte = utf8.at(i);
        if (byte == '%' && i + 2 < utf8.size()) {
            const int high = hexDigit(utf8.at(i + 1));
            const int low = hexDigit(utf8.at(i + 2));
            if (high >= 0 && low >= 0) {
                byte = static_cast<char>(high * 16 + low);
                i += 2;
            }
        }
        if (byte != '\0')
            result.append(byte);
    }
    // QString::fromUtf8 would take U+FEFF at the beginning for a mark of the encoding.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom |
                                                     QStringDecoder::Flag::Stateless);
    return decoder(result);
}

QString fromInt(int value)
{
    return QString::number(value);
}

QString fromBool(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

QString fromReal(double value)
{
    return QString::number(value, 'g', 6);
}

QString fromDate(const QDate &date)
{
    return date.toString(Qt::TextDate);
}

QString fromFont(const QFont &font)
{
    // A comma would be read as the end of the family.
    const QString family = font.family().section(u',', 0, 0);
    const QStringList fields{family,
                             QString::number(font.pointSizeF()),
                             fromInt(font.pixelSize()),
                             fromInt(font.styleHint()),
                             fromInt(oldWeight(font.weight())),
                             fromBool(font.italic()),
                             fromBool(font.underline()),
                             fromBool(font.strikeOut()),
                             fromBool(font.fixedPitch()),
                             QStringLiteral("0")};
    return fields.join(u',');
}

QString fromColour(const QColor &colour)
{
    return QStringLiteral("%1,%2,%3").arg(colour.red()).arg(colour.green()).arg(colour.blue());
}

int toInt(const QString &text)
{
    return text.toInt();
}

bool toBool(const QString &text)
{
    return text.toInt() > 0;
}

double toSize(const QString &text, double fallback)
{
    const float size = text.toFloat();
    return std::isfinite(size) && size > 0 ? static_cast<double>(size) : fallback;
}

QDate toDate(const QString &text)
{
    const QDate date = QDate::fromString(text, Qt::TextDate);
    return date.isValid() ? date : QDate::currentDate();
}

QFont toFont(const QString &text)
{
    QFont font;
    const QString trimmed = text.trimmed();
    const qsizetype fields = trimmed.count(u',') + 1;
    // What the toolkit would refuse, it would complain about on the terminal first.
    const bool readable = !trimmed.isEmpty() && !trimmed.startsWith(u',') &&
                          (fields <= 2 || (fields >= 10 && fields <= 17));
    if (readable)
        font.fromString(text);
    if (font.pointSizeF() > maxFontSize)
        font.setPointSizeF(maxFontSize);
    if (font.pixelSize() > maxFontSize)
        font.setPixelSize(maxFontSize);
    return font;
}

QColor toColour(const QString &text)
{
    const QStringList parts = text.split(u',');
    if (parts.size() != 3)
        return Qt::white;
    const auto part = [&](int i) { return std::clamp(parts.at(i).toInt(), 0, 255); };
    return {part(0), part(1), part(2)};
}

} // namespace KWPlanText
