#include "gui/appearance/kwcolourpreview.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

KWColours colourful()
{
    KWColours colours{{250, 200, 200}, {120, 0, 0}, {200, 250, 200}, {0, 120, 0}, {200, 200, 250},
                      {90, 90, 120},   {60, 0, 60}, {0, 60, 60},     QFont(),     {255, 140, 0}};
    colours.font.setPixelSize(20);
    return colours;
}

QImage picture(const KWColours &colours, const QSize &size = {150, 150})
{
    KWColourPreview preview;
    preview.resize(size);
    preview.setColours(colours);
    return preview.grab().toImage();
}

QList<QPoint> changes(const QImage &one, const QImage &other)
{
    QList<QPoint> points;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                points.append({x, y});
        }
    }
    return points;
}

struct Circle
{
    QPointF centre;
    double radius;

    double distance(const QPoint &pixel) const
    {
        return QLineF(centre, QPointF(pixel) + QPointF(0.5, 0.5)).length();
    }
    bool contains(const QPoint &pixel) const { return distance(pixel) < radius - 1; }
    bool isEdge(const QPoint &pixel) const { return std::abs(distance(pixel) - radius) < 1.5; }
};

// What the drawing consists of at 150 by 150: a seat's radius is 34, the table's 55, and the
// table's centre is at 13.
const Circle table{{13, 13}, 55};
const Circle right{{13 + 89, 13}, 34};
const Circle middle{{13 + 63, 13 + 63}, 34};
const Circle below{{13, 13 + 89}, 34};

QRect boundsOf(const QList<QPoint> &points)
{
    QRect bounds;
    for (const QPoint &point : points)
        bounds |= QRect(point, QSize(1, 1));
    return bounds;
}
} // namespace

class TestKWColourPreview : public QObject
{
    Q_OBJECT

private slots:
    void thePreviewHasItsSizes()
    {
        const KWColourPreview preview;
        QCOMPARE(preview.minimumSize(), QSize(100, 100));
        QCOMPARE(preview.sizeHint(), QSize(150, 150));
        QCOMPARE(preview.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(preview.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }

    void eachAreaHasItsColour_data()
    {
        QTest::addColumn<QPoint>("pixel");
        QTest::addColumn<QColor>("colour");
        const KWColours colours = colourful();
        QTest::newRow("table") << QPoint(43, 43) << colours.tables;
        QTest::newRow("right seat") << QPoint(102, 35) << colours.seats;
        QTest::newRow("middle seat") << QPoint(76, 98) << colours.seats;
        QTest::newRow("seat below") << QPoint(20, 124) << colours.seats;
        QTest::newRow("room") << QPoint(130, 100) << colours.inside;
        QTest::newRow("last of the room") << QPoint(140, 140) << colours.inside;
        QTest::newRow("right of the room") << QPoint(141, 140) << colours.outside;
        QTest::newRow("below the room") << QPoint(140, 141) << colours.outside;
        QTest::newRow("upper right corner") << QPoint(149, 0) << colours.outside;
        QTest::newRow("lower left corner") << QPoint(0, 149) << colours.outside;
    }

    void eachAreaHasItsColour()
    {
        QFETCH(QPoint, pixel);
        QFETCH(QColor, colour);
        QCOMPARE(picture(colourful()).pixelColor(pixel), colour);
    }

    void edgesAndTextsAreWhereTheyBelong_data()
    {
        using Field = QColor KWColours::*;
        using Where = std::function<bool(const QPoint &)>;
        QTest::addColumn<Field>("field");
        QTest::addColumn<Where>("where");
        const auto row = [](const char *name, Field field, const Where &where) {
            QTest::newRow(name) << field << where;
        };
        row("table edge", &KWColours::tablesEdge,
            [](const QPoint &pixel) { return table.isEdge(pixel); });
        row("edges of the seats that are not selected", &KWColours::seatsEdge,
            [](const QPoint &pixel) { return right.isEdge(pixel) || below.isEdge(pixel); });
        row("table text", &KWColours::tableText,
            [](const QPoint &pixel) { return table.contains(pixel); });
        row("texts of the seats that are not selected", &KWColours::seatsText,
            [](const QPoint &pixel) { return right.contains(pixel) || below.contains(pixel); });
        row("edge and text of the selected seat", &KWColours::selected,
            [](const QPoint &pixel) { return middle.isEdge(pixel) || middle.contains(pixel); });
    }

    void edgesAndTextsAreWhereTheyBelong()
    {
        QFETCH(QColor KWColours::*, field);
        QFETCH(std::function<bool(const QPoint &)>, where);
        KWColours colours = colourful();
        const QImage before = picture(colours);
        colours.*field = QColor(Qt::magenta);
        const QList<QPoint> changed = changes(before, picture(colours));
        QVERIFY(changed.size() > 20);
        for (const QPoint &pixel : changed)
            QVERIFY2(where(pixel), qPrintable(s("%1, %2").arg(pixel.x()).arg(pixel.y())));
    }

    void anEdgeGoesAllAroundItsSeat()
    {
        KWColours colours = colourful();
        const QImage before = picture(colours);
        colours.selected = Qt::magenta;
        const QRect bounds = boundsOf(changes(before, picture(colours)));
        // A line of one pixel's width that lies half outside.
        QCOMPARE(bounds, QRect(76 - 35, 76 - 35, 70, 70));
    }

    void textsAreCentredAndAsLargeBesideASeatAsOnTheFloorPlan_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("scale");
        QTest::newRow("as it comes") << QSize(150, 150) << 0.68;
        QTest::newRow("large") << QSize(400, 300) << 1.36;
        QTest::newRow("small") << QSize(100, 140) << 0.46;
    }

    void textsAreCentredAndAsLargeBesideASeatAsOnTheFloorPlan()
    {
        QFETCH(QSize, size);
        QFETCH(double, scale);
        const int seat = qRound(qMin(size.width(), size.height()) * 0.225);
        const int tableRadius = qRound(seat / std::sin(6.284 / 16) - seat);
        const int centre = tableRadius / 4 + qRound((seat + tableRadius) * std::sqrt(0.5));
        const Circle selected{QPointF(centre, centre), double(seat)};

        KWColours colours = colourful();
        QFont scaled = colours.font;
        for (const bool byPoints : {true, false}) {
            if (byPoints) {
                colours.font.setPointSizeF(16);
                scaled.setPointSizeF(16 * scale);
            } else {
                colours.font.setPixelSize(20);
                scaled.setPixelSize(qRound(20 * scale));
            }
            colours.selected = colours.seats;
            const QImage blank = picture(colours, size);
            colours.selected = Qt::black;
            QList<QPoint> text = changes(blank, picture(colours, size));
            text.removeIf([&](const QPoint &pixel) { return selected.distance(pixel) > seat - 2; });
            const QRect bounds = boundsOf(text);
            const QRect expected = QFontMetrics(scaled).tightBoundingRect(s("Guest"));
            QVERIFY(std::abs(bounds.width() - expected.width()) <= 2);
            QVERIFY(std::abs(bounds.height() - expected.height()) <= 2);
            QVERIFY(std::abs(bounds.center().x() - centre) <= 2);
            QVERIFY(std::abs(bounds.center().y() - centre) <= 0.3 * expected.height() + 2);
        }
    }

    void theDrawingFollowsTheSmallerSide_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("room");
        QTest::newRow("smallest") << QSize(100, 100) << 85 + 36 / 4;
        QTest::newRow("wide") << QSize(300, 200) << 170 + 73 / 4;
        QTest::newRow("high") << QSize(200, 300) << 170 + 73 / 4;
    }

    void theDrawingFollowsTheSmallerSide()
    {
        QFETCH(QSize, size);
        QFETCH(int, room);
        const KWColours colours = colourful();
        const QImage image = picture(colours, size);
        QCOMPARE(image.pixelColor(room - 1, room - 1), colours.inside);
        QCOMPARE(image.pixelColor(room, room - 1), colours.outside);
        QCOMPARE(image.pixelColor(room - 1, room), colours.outside);
        QCOMPARE(image.pixelColor(size.width() - 1, size.height() - 1), colours.outside);
    }

    void newColoursAreShownAtOnce()
    {
        struct Counting : KWColourPreview
        {
            int painted = 0;
            void paintEvent(QPaintEvent *event) override
            {
                ++painted;
                KWColourPreview::paintEvent(event);
            }
        } preview;
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        QTRY_VERIFY(preview.painted > 0);
        preview.painted = 0;
        preview.setColours(colourful());
        QTRY_COMPARE(preview.painted, 1);
    }
};

REGISTER_TEST(TestKWColourPreview)
#include "tst_kwcolourpreview.moc"
