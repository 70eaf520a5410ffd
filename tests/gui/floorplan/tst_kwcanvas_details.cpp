#include "support/gui/canvasplan.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

// Lines, texts and colours of the floor plan, pixel by pixel.

namespace {

/// A part of the canvas at a scale, on a device with so many pixels to each that a person knows.
QImage picture(KWCanvas &canvas, const QRectF &part, double scale, double pixelRatio = 1)
{
    QImage image((part.size() * scale * pixelRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    QPainter painter(&image);
    canvas.render(&painter, QRectF(QPointF(), part.size() * scale), part);
    return image;
}

/// How many pixels of a colour lie on a row from its start up to its middle.
int pixelsOf(const QImage &image, const QColor &colour)
{
    int count = 0;
    for (int x = 0; x < image.width() / 2; ++x)
        count += image.pixelColor(x, image.height() / 2) == colour ? 1 : 0;
    return count;
}

int letterHeight(const QImage &image, const QColor &colour)
{
    int rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour) {
                ++rows;
                break;
            }
        }
    }
    return rows;
}

/// Black on white, with a head table of two seats about (500, 400).
struct PlainPlan : CanvasPlan
{
    KWTable *t;
    explicit PlainPlan(int fontSize = 12, int shape = KWTable::HeadTop)
    {
        plan.setFloorplanColourInside(Qt::white);
        plan.setFloorplanColourSeats(Qt::white);
        plan.setFloorplanColourSeatsText(Qt::red);
        plan.setFloorplanColourTableText(Qt::blue);
        QFont font = plan.floorPlanFont();
        font.setStyleStrategy(QFont::NoAntialias);
        font.setPixelSize(fontSize);
        plan.setFloorPlanFont(font);
        t = table("T", shape, 2, {500, 400});
    }
    QRectF seatArea(int seatNumber) { return canvas.itemOfSeat(t, seatNumber)->area(); }
};
} // namespace

class TestKWCanvasDetails : public QObject
{
    Q_OBJECT

private slots:
    void thinLinesAreAsWideOnAFineScreen_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<double>("pixelRatio");
        QTest::addColumn<int>("width");
        QTest::newRow("small") << 0.5 << 1. << 1;
        QTest::newRow("small on a fine screen") << 0.5 << 2. << 2;
        QTest::newRow("as it is") << 1. << 1. << 1;
        QTest::newRow("as it is on a fine screen") << 1. << 2. << 2;
        QTest::newRow("large") << 3. << 1. << 3;
    }

    void thinLinesAreAsWideOnAFineScreen()
    {
        QFETCH(double, scale);
        QFETCH(double, pixelRatio);
        PlainPlan shown;
        shown.plan.setFloorplanColourTablesEdge(QColor(1, 2, 3));
        // The left edge of the table, beside its seats.
        const QImage image = picture(shown.canvas, QRectF(380, 380, 60, 40), scale, pixelRatio);
        QTEST(pixelsOf(image, QColor(1, 2, 3)), "width");
    }

    void aSelectedTableHasALineTwiceAsWide()
    {
        PlainPlan shown;
        shown.plan.setFloorplanColourSelected(QColor(1, 2, 3));
        shown.canvas.setSelected(shown.canvas.itemOfTable(shown.t));
        const QRectF part(380, 380, 60, 40);
        QCOMPARE(pixelsOf(picture(shown.canvas, part, 0.5), QColor(1, 2, 3)), 2);
        QCOMPARE(pixelsOf(picture(shown.canvas, part, 0.5, 2), QColor(1, 2, 3)), 4);
    }

    void aRoundTableIsRound()
    {
        PlainPlan shown(12, KWTable::Circular);
        shown.plan.setFloorplanColourTables(Qt::yellow);
        QCOMPARE(shown.painted({440, 400}), QColor(Qt::yellow));
        QCOMPARE(shown.painted({435, 335}), QColor(Qt::white));
    }

    void linesLieOverTables()
    {
        PlainPlan shown;
        KWTable *other = shown.table("U", KWTable::HeadBottom, 2, {500, 100});
        KWTable *between = shown.table("V", KWTable::HeadTop, 2, {500, 275});
        shown.plan.setAffinity(shown.seat({"A"}, shown.t, 0), shown.seat({"B"}, other, 1),
                               KWScore::Hates, false);
        const QPointF middle = (shown.canvas.itemOfSeat(shown.t, 0)->pos() +
                                shown.canvas.itemOfSeat(other, 1)->pos()) /
                               2;
        QVERIFY(shown.canvas.itemOfTable(between)->area().contains(middle));
        QVERIFY(shown.painted(middle) != QColor(Qt::black));
        shown.canvas.showHatesAffinity();
        QCOMPARE(shown.painted(middle), QColor(Qt::black));
        QVERIFY(qgraphicsitem_cast<QGraphicsLineItem *>(shown.canvas.itemAtPoint(middle)));
    }

    void aNameThatFitsKeepsThePlansFont()
    {
        PlainPlan shown(24);
        shown.seat({"HH"}, shown.t, 0);
        shown.seat({"HHHHHHHH"}, shown.t, 1);
        const int kept = letterHeight(picture(shown.canvas, shown.seatArea(0), 1), Qt::red);
        const int smaller = letterHeight(picture(shown.canvas, shown.seatArea(1), 1), Qt::red);
        QVERIFY(kept > 10);
        QVERIFY(smaller < kept);
        QVERIFY(smaller * 3 >= kept * 2 - 3);
    }

    void aNameFitsWhereItWouldBeCutInThePlansFont()
    {
        PlainPlan shown(24);
        shown.seat({"HHHHHH"}, shown.t, 0);
        QFont font = shown.plan.floorPlanFont();
        QVERIFY(QFontMetricsF(font).horizontalAdvance(s("HHHHHH")) > 100);
        const QImage image = picture(shown.canvas, shown.seatArea(0), 1);
        for (int y = 0; y < image.height(); ++y) {
            QVERIFY(image.pixelColor(0, y) != QColor(Qt::red));
            QVERIFY(image.pixelColor(99, y) != QColor(Qt::red));
        }
    }

    void theSizeFollowsTheNameTheFontAndTheCircle()
    {
        PlainPlan shown(24);
        KWGuest *child = shown.seat({"HHHHHH", 0, false, false, KWGuest::Child}, shown.t, 0);
        const auto height = [&] {
            return letterHeight(picture(shown.canvas, shown.seatArea(0), 1), Qt::red);
        };
        const int fitted = height();
        shown.plan.editGuest(child, {.display_name = s("HH"), .age = KWGuest::Child});
        const int kept = height();
        QVERIFY(kept > fitted);
        QFont font = shown.plan.floorPlanFont();
        font.setPixelSize(12);
        shown.plan.setFloorPlanFont(font);
        QVERIFY(height() < kept);
        font.setPixelSize(70);
        shown.plan.setFloorPlanFont(font);
        const int large = height();
        shown.canvas.showAge(true);
        QVERIFY(height() < large);
    }

    void namesAreWrappedWhereTheyArePainted()
    {
        PlainPlan shown(20);
        shown.seat({"HHH HHHHHH"}, shown.t, 0);
        const auto height = [&] {
            return letterHeight(picture(shown.canvas, shown.seatArea(0), 1), Qt::red);
        };
        const int two = height();
        shown.plan.editGuest(shown.plan.guestAt(0), {.display_name = s("HHHHHH")});
        QVERIFY(two > height() * 3 / 2);
        const QRectF body(400, 350, 200, 100);
        const int one = letterHeight(picture(shown.canvas, body, 1), Qt::blue);
        shown.plan.setTableName(shown.t, s("TTT TTTTTT"));
        QVERIFY(letterHeight(picture(shown.canvas, body, 1), Qt::blue) > one * 3 / 2);
    }

    void whoseGenderIsNotKnownKeepsTheColourOfTheSeats()
    {
        PlainPlan shown;
        shown.plan.setFloorplanColourSeats(Qt::yellow);
        KWGroup *group = shown.plan.addGroup({}, s("G"), {});
        shown.seat({""}, shown.t, 0, group);
        shown.seat({"", KWGuest::Male}, shown.t, 1, group);
        const auto edge = [&](int seat) {
            return shown.painted(shown.canvas.itemOfSeat(shown.t, seat)->pos() - QPointF(0, 40));
        };
        shown.canvas.showGender(true);
        shown.canvas.showGroups(true);
        QCOMPARE(edge(0), QColor(Qt::yellow));
        QCOMPARE(edge(1), QColor(96, 192, 255));
        // Also without the circle, which only the panel rules out.
        shown.canvas.displaySeats(KWCanvas::NameOnly);
        QCOMPARE(edge(0), QColor(Qt::white));
        QCOMPARE(edge(1), QColor(96, 192, 255));
    }

    void marksStandInTheirPlace()
    {
        PlainPlan shown;
        shown.seat({"", KWGuest::Undefined, true, true}, shown.t, 0);
        shown.plan.setFloorplanColourSeats(QColor(9, 9, 9));
        const QRectF seat = shown.seatArea(0);
        const auto bounds = [&](void (KWCanvas::*show)(bool)) {
            const QImage before = picture(shown.canvas, seat, 1);
            (shown.canvas.*show)(true);
            const QImage after = picture(shown.canvas, seat, 1);
            (shown.canvas.*show)(false);
            QRect changed;
            for (int y = 0; y < 100; ++y) {
                for (int x = 0; x < 100; ++x) {
                    if (before.pixel(x, y) != after.pixel(x, y))
                        changed |= QRect(x, y, 1, 1);
                }
            }
            return changed;
        };
        const auto about = [](const QRect &a, const QRect &b) {
            return std::abs(a.left() - b.left()) <= 2 && std::abs(a.right() - b.right()) <= 2 &&
                   std::abs(a.top() - b.top()) <= 2 && std::abs(a.bottom() - b.bottom()) <= 2;
        };
        const QRect crown = bounds(&KWCanvas::showVIP);
        QVERIFY2(about(crown, QRect(QPoint(28, 0), QPoint(71, 28))),
                 qPrintable(QVariant(crown).toString()));
        const QRect lock = bounds(&KWCanvas::showLocked);
        QVERIFY2(about(lock, QRect(QPoint(37, 72), QPoint(62, 96))),
                 qPrintable(QVariant(lock).toString()));
    }

    void twoCanvasesShowTheirSeatsTheSameWay()
    {
        PlainPlan shown;
        KWCanvas other(&shown.plan);
        shown.canvas.setLook({.nameOrder = 3, .seats = {.display = KWCanvas::Circular}});
        QCOMPARE(int(other.look().seats.display), int(KWCanvas::Circular));
        QCOMPARE(other.look().nameOrder, 0);
    }
};

REGISTER_TEST(TestKWCanvasDetails)
#include "tst_kwcanvas_details.moc"
