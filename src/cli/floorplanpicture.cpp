#include "cli/floorplanpicture.h"

#include "gui/floorplan/kwcanvas.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <limits>
#include <new>

namespace {
constexpr int pixelsPerInch = 96;

QByteArray drawImage(KWCanvas &canvas, const QRectF &bounds, const QSize &size,
                     const QString &format)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter;
    if (!painter.begin(&image))
        throw std::bad_alloc();
    canvas.paint(&painter, QRectF(image.rect()), bounds);
    painter.end();
    QByteArray content;
    QBuffer buffer(&content);
    if (!image.save(&buffer, format.toLatin1().constData()))
        throw std::bad_alloc();
    return content;
}

/// XML has no way to write some characters, which the names of a plan may hold.
QByteArray withoutForbidden(const QByteArray &xml)
{
    QString text = QString::fromUtf8(xml);
    text.removeIf([](QChar c) {
        return (c < u' ' && c != u'\n' && c != u'\t' && c != u'\r') || c > QChar(0xfffd);
    });
    return text.toUtf8();
}

QByteArray drawSvg(KWCanvas &canvas, const QRectF &bounds, const QSize &size, const QString &title)
{
    QByteArray content;
    QBuffer buffer(&content);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(), size));
    generator.setResolution(pixelsPerInch);
    // The generator puts it down as it is.
    generator.setTitle(title.toHtmlEscaped());
    generator.setDescription(QStringLiteral("Floor plan"));
    QPainter painter(&generator);
    canvas.paint(&painter, QRectF(QPointF(), QSizeF(size)), bounds);
    painter.end();
    return withoutForbidden(content);
}

QByteArray drawPdf(KWCanvas &canvas, const QRectF &bounds, const QSize &size, const QString &title)
{
    constexpr double pointsPerPixel = 72.0 / pixelsPerInch;
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(
        QPageSize(QSizeF(size) * pointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Ambrelune"));
    QPainter painter(&writer);
    canvas.paint(&painter, QRectF(0, 0, writer.width(), writer.height()), bounds);
    painter.end();
    return content;
}

int rounded(double side)
{
    return static_cast<int>(std::clamp<double>(side + 0.5, 1, std::numeric_limits<int>::max()));
}
} // namespace

QStringList FloorPlanPicture::extensions()
{
    return {QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("bmp"),
            QStringLiteral("svg"), QStringLiteral("pdf")};
}

QRectF FloorPlanPicture::bounds(const KWCanvas &canvas)
{
    constexpr double margin = 0.05;
    const QRectF tables = canvas.itemBounds(margin);
    return tables.isEmpty() ? canvas.sceneRect() : tables;
}

QSize FloorPlanPicture::defaultSize(const QRectF &bounds)
{
    constexpr double most = 4000;
    const double scale = std::min(1.0, most / std::max(bounds.width(), bounds.height()));
    return {rounded(bounds.width() * scale), rounded(bounds.height() * scale)};
}

QSize FloorPlanPicture::sizeForWidth(const QRectF &bounds, int width)
{
    return {width, rounded(width * bounds.height() / bounds.width())};
}

QByteArray FloorPlanPicture::draw(KWCanvas &canvas, const QRectF &bounds, const QSize &size,
                                  const QString &extension, const QString &title)
{
    if (extension == QLatin1StringView("svg"))
        return drawSvg(canvas, bounds, size, title);
    if (extension == QLatin1StringView("pdf"))
        return drawPdf(canvas, bounds, size, title);
    return drawImage(canvas, bounds, size, extension);
}
