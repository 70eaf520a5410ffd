#include "core/model/kwguest.h"
#include "core/model/kwtable.h"
#include "gui/appearance/kwcontrast.h"
#include "gui/appearance/kwpixmaps.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

using Accessor = std::function<const QPixmap &(const KWPixmaps &)>;
Q_DECLARE_METATYPE(Accessor)

class tst_KWPixmaps : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void givesEachPictureInItsSize_data();
    void givesEachPictureInItsSize();
    void givesTheSameObjectAtTheSecondCall();
    void keepsOneSetForEachRatio();
    void takesTheRatioOfTheApplicationByDefault();
    void givesNoGuestOfAnUnknownGenderOrAge();
    void givesNoTableOfAnUnknownShape();

    void holdsEveryFileOfTheFolder();
    void rendersEveryFileWithoutAWarning_data();
    void rendersEveryFileWithoutAWarning();
    void noTwoPicturesLookAlikeAtSixteen();
    void showsEveryPictureOnLightAndOnDark_data();
    void showsEveryPictureOnLightAndOnDark();
    void splashHasItsSizeAndLeavesWhiteTextReadable();

private:
    QStringList m_names;
};

namespace {

const QColor light(Qt::white);
const QColor dark(0x20, 0x20, 0x20);

QImage rendered(const QString &file, const QSize &size, const QColor &background = Qt::transparent)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(background);
    QSvgRenderer renderer(file);
    QPainter painter(&image);
    renderer.render(&painter, image.rect());
    return image;
}

QImage icon(const QString &name, int pixels, const QColor &background = Qt::transparent)
{
    return rendered(u":/icons/%1.svg"_s.arg(name), {pixels, pixels}, background);
}

/// The mean difference of a colour channel over two pictures of the same size, 0 to 255.
double difference(const QImage &a, const QImage &b)
{
    int sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            sum += std::abs(p.red() - q.red()) + std::abs(p.green() - q.green()) +
                   std::abs(p.blue() - q.blue());
        }
    }
    return sum / (3.0 * a.width() * a.height());
}

/// All icons as they look at the sizes and ratios in use, on light and on dark.
QImage contactSheet(const QStringList &names)
{
    constexpr int columns = 3;
    constexpr int width = 220;
    constexpr int height = 92;
    const int rows = (static_cast<int>(names.size()) + columns - 1) / columns;
    QImage sheet(columns * 2 * width, rows * height, QImage::Format_RGB32);
    sheet.fill(light);
    QPainter painter(&sheet);
    for (int i = 0; i < names.size(); ++i) {
        const QPoint corner(i % columns * 2 * width, i / columns * height);
        for (int side = 0; side < 2; ++side) {
            QRect cell(corner + QPoint(side * width, 0), QSize(width, height));
            painter.fillRect(cell, side == 0 ? light : dark);
            int x = cell.x() + 6;
            for (const int pixels : {16, 24, 32, 48, 64}) {
                painter.drawImage(x, cell.y() + 4, icon(names[i], pixels));
                x += pixels + 6;
            }
            painter.setPen(side == 0 ? dark : light);
            painter.drawText(cell.adjusted(6, 0, 0, -4), Qt::AlignBottom, names[i]);
        }
    }
    return sheet;
}

} // namespace

void tst_KWPixmaps::initTestCase()
{
    initAppearanceResources();
    for (const QFileInfo &file : QDir(u":/icons"_s).entryInfoList())
        m_names += file.completeBaseName();
    QVERIFY(!m_names.isEmpty());
}

void tst_KWPixmaps::cleanupTestCase()
{
    const QString folder = qEnvironmentVariable("AMBRELUNE_ARTEFACTS");
    if (!folder.isEmpty()) {
        QVERIFY(contactSheet(m_names).save(folder + u"/contact-sheet.png"_s));
        QVERIFY(rendered(u":/splash.svg"_s, {423, 300}).save(folder + u"/splash.png"_s));
    }
}

void tst_KWPixmaps::givesEachPictureInItsSize_data()
{
    QTest::addColumn<Accessor>("accessor");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    const auto add = [](const char *row, const Accessor &accessor, const QString &name, int size) {
        QTest::newRow(row) << accessor << name << size;
    };
    using P = KWPixmaps;

    add("undefined adult", &P::guestUndefinedAdult, u"guest-undefined-adult"_s, 16);
    add("undefined child", &P::guestUndefinedChild, u"guest-undefined-child"_s, 16);
    add("male adult", &P::guestMaleAdult, u"guest-male-adult"_s, 16);
    add("male child", &P::guestMaleChild, u"guest-male-child"_s, 16);
    add("female adult", &P::guestFemaleAdult, u"guest-female-adult"_s, 16);
    add("female child", &P::guestFemaleChild, u"guest-female-child"_s, 16);
    add("locked", &P::locked, u"locked"_s, 16);
    add("vip", &P::vip, u"vip"_s, 16);
    add("accepted", &P::accepted, u"accepted"_s, 16);
    add("single guest", &P::singleGuest, u"guest-single"_s, 16);
    add("couple", &P::couple, u"guest-couple"_s, 16);
    add("family", &P::family, u"guest-family"_s, 16);
    add("friends", &P::friends, u"guest-friends"_s, 16);
    add("empty seat", &P::emptySeat, u"seat-empty"_s, 16);
    add("next to", &P::nextTo, u"proximity-next-to"_s, 16);
    add("near to", &P::nearTo, u"proximity-near-to"_s, 16);
    add("neutral", &P::neutral, u"proximity-neutral"_s, 16);
    add("not next to", &P::notNextTo, u"proximity-not-next-to"_s, 16);
    add("not near to", &P::notNearTo, u"proximity-not-near-to"_s, 16);
    add("floor plan", &P::paneFloorPlan, u"pane-floor-plan"_s, 16);
    add("schematic", &P::paneSchematic, u"pane-schematic"_s, 16);
    add("table chart", &P::paneTableChart, u"pane-table-chart"_s, 16);
    add("guest chart", &P::paneGuestChart, u"pane-guest-chart"_s, 16);
    add("statistics", &P::paneStatistics, u"pane-statistics"_s, 16);
    add("guests", &P::paneGuests, u"pane-guests"_s, 16);
    add("groups", &P::paneGroups, u"pane-groups"_s, 16);
    add("proximity", &P::paneProximity, u"pane-proximity"_s, 16);
    add("close pane", &P::closePane, u"close-pane"_s, 16);
    add("large single guest", &P::singleGuestLarge, u"guest-single"_s, 32);
    add("large couple", &P::coupleLarge, u"guest-couple"_s, 32);
    add("large family", &P::familyLarge, u"guest-family"_s, 32);
    add("large friends", &P::friendsLarge, u"guest-friends"_s, 32);
    add("dragged guest", &P::dragGuest, u"guest-single"_s, 32);
    add("dragged table", &P::dragTable, u"table-circular"_s, 32);
    add("whats this", &P::whatsThis, u"whats-this"_s, 32);
    add("left pane", &P::leftPane, u"left-pane"_s, 32);
    add("top pane", &P::topPane, u"top-pane"_s, 32);
    add("bottom pane", &P::bottomPane, u"bottom-pane"_s, 32);
    add("application", &P::application, u"ambrelune"_s, 48);

    const QStringList shapes{u"circular"_s,    u"rectangular"_s, u"head-top"_s, u"head-right"_s,
                             u"head-bottom"_s, u"head-left"_s,   u"custom"_s};
    for (int shape = 0; shape < shapes.size(); ++shape) {
        const QString name = u"table-"_s + shapes[shape];
        const auto small = [shape](const P &p) -> const QPixmap & { return p.table(shape); };
        const auto large = [shape](const P &p) -> const QPixmap & { return p.tableLarge(shape); };
        add(qPrintable(name), small, name, 16);
        add(qPrintable(u"large "_s + name), large, name, 32);
    }
    const QStringList genders{u"undefined"_s, u"male"_s, u"female"_s};
    for (int gender = 0; gender < 3; ++gender) {
        for (int age = 0; age < 2; ++age) {
            const QString name = u"guest-%1-%2"_s.arg(genders[gender], age ? u"child" : u"adult");
            const auto guest = [gender, age](const P &p) -> const QPixmap & {
                return p.guest(gender, age);
            };
            add(qPrintable(name), guest, name, 16);
        }
    }
}

void tst_KWPixmaps::givesEachPictureInItsSize()
{
    QFETCH(Accessor, accessor);
    QFETCH(QString, name);
    QFETCH(int, size);
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        const QPixmap &pixmap = accessor(KWPixmaps::instance(ratio));
        QCOMPARE(pixmap.devicePixelRatio(), ratio);
        QCOMPARE(pixmap.deviceIndependentSize(), QSizeF(size, size));
        const int pixels = qRound(size * ratio);
        QCOMPARE(pixmap.size(), QSize(pixels, pixels));
        QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(1);
        QCOMPARE(image, icon(name, pixels));
    }
}

void tst_KWPixmaps::givesTheSameObjectAtTheSecondCall()
{
    const KWPixmaps &pixmaps = KWPixmaps::instance(1);
    QCOMPARE(&KWPixmaps::instance(1), &pixmaps);
    QCOMPARE(&KWPixmaps::instance(1).couple(), &pixmaps.couple());
    QCOMPARE(&pixmaps.guest(KWGuest::Male, KWGuest::Child), &pixmaps.guestMaleChild());
}

void tst_KWPixmaps::keepsOneSetForEachRatio()
{
    const KWPixmaps &one = KWPixmaps::instance(1);
    const KWPixmaps &two = KWPixmaps::instance(2);
    QVERIFY(&one != &two);
    QCOMPARE(&KWPixmaps::instance(1), &one);
    QCOMPARE(&KWPixmaps::instance(2), &two);
}

void tst_KWPixmaps::takesTheRatioOfTheApplicationByDefault()
{
    QCOMPARE(&KWPixmaps::instance(), &KWPixmaps::instance(qApp->devicePixelRatio()));
}

void tst_KWPixmaps::givesNoGuestOfAnUnknownGenderOrAge()
{
    const KWPixmaps &pixmaps = KWPixmaps::instance();
    QVERIFY(pixmaps.guest(-1, KWGuest::Adult).isNull());
    QVERIFY(pixmaps.guest(3, KWGuest::Adult).isNull());
    QVERIFY(pixmaps.guest(KWGuest::Male, -1).isNull());
    QVERIFY(pixmaps.guest(KWGuest::Male, 2).isNull());
}

void tst_KWPixmaps::givesNoTableOfAnUnknownShape()
{
    const KWPixmaps &pixmaps = KWPixmaps::instance();
    for (const int shape : {-1, int(KWTable::ShapeCount), 1000}) {
        QVERIFY(pixmaps.table(shape).isNull());
        QVERIFY(pixmaps.tableLarge(shape).isNull());
    }
}

void tst_KWPixmaps::holdsEveryFileOfTheFolder()
{
    QStringList names;
    const QDir folder(sourcePath("resources/icons"));
    for (const QFileInfo &file : folder.entryInfoList({u"*.svg"_s}))
        names += file.completeBaseName();
    QCOMPARE(m_names, names);
}

void tst_KWPixmaps::rendersEveryFileWithoutAWarning_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &name : std::as_const(m_names))
        QTest::newRow(qPrintable(name)) << u":/icons/%1.svg"_s.arg(name);
    QTest::newRow("splash") << u":/splash.svg"_s;
}

void tst_KWPixmaps::rendersEveryFileWithoutAWarning()
{
    QFETCH(QString, file);
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    QVERIFY(QSvgRenderer(file).isValid());
    const QImage image = rendered(file, {64, 64});
    QImage empty(image.size(), image.format());
    empty.fill(Qt::transparent);
    QVERIFY(image != empty);
}

void tst_KWPixmaps::noTwoPicturesLookAlikeAtSixteen()
{
    for (qsizetype i = 0; i < m_names.size(); ++i) {
        const QImage one = icon(m_names[i], 16, light);
        for (qsizetype j = i + 1; j < m_names.size(); ++j) {
            const double found = difference(one, icon(m_names[j], 16, light));
            QVERIFY2(found > 10.0, qPrintable(u"%1 and %2 differ by %3 only"_s.arg(
                                       m_names[i], m_names[j], QString::number(found))));
        }
    }
}

void tst_KWPixmaps::showsEveryPictureOnLightAndOnDark_data()
{
    QTest::addColumn<QColor>("background");
    QTest::newRow("light") << light;
    QTest::newRow("dark") << dark;
}

void tst_KWPixmaps::showsEveryPictureOnLightAndOnDark()
{
    QFETCH(QColor, background);
    for (const QString &name : std::as_const(m_names)) {
        const QImage image = icon(name, 16, background);
        int visible = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                visible += contrast(image.pixelColor(x, y), background) >= 3.0;
        }
        QVERIFY2(visible >= 20, qPrintable(u"only %1 pixels of %2 are seen"_s.arg(
                                    QString::number(visible), name)));
    }
}

void tst_KWPixmaps::splashHasItsSizeAndLeavesWhiteTextReadable()
{
    QCOMPARE(QSvgRenderer(u":/splash.svg"_s).defaultSize(), QSize(423, 300));
    const QImage splash = rendered(u":/splash.svg"_s, {423, 300});
    const QRect message(60, 230, 303, 70);
    for (int y = 0; y < splash.height(); ++y) {
        for (int x = 0; x < splash.width(); ++x) {
            const QColor colour = splash.pixelColor(x, y);
            QCOMPARE(colour.alpha(), 255);
            if (message.contains(x, y))
                QVERIFY(contrast(colour, Qt::white) >= 4.5);
        }
    }
}

REGISTER_TEST(tst_KWPixmaps)
#include "tst_kwpixmaps.moc"
