#include "core/model/kwplantext.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

using namespace KWPlanText;

class TestPlanTextFonts : public QObject
{
    Q_OBJECT

private slots:
    void fontsAreWrittenInTenFields_data()
    {
        QTest::addColumn<QFont>("font");
        QTest::addColumn<QString>("text");

        QTest::newRow("plain") << helvetica() << s("Helvetica,12,-1,5,50,0,0,0,0,0");
        QFont font = helvetica();
        font.setBold(true);
        QTest::newRow("bold") << font << s("Helvetica,12,-1,5,75,0,0,0,0,0");
        font = helvetica();
        font.setItalic(true);
        font.setUnderline(true);
        QTest::newRow("italic, underlined") << font << s("Helvetica,12,-1,5,50,1,1,0,0,0");
        font = helvetica();
        font.setStrikeOut(true);
        font.setFixedPitch(true);
        QTest::newRow("struck out, fixed") << font << s("Helvetica,12,-1,5,50,0,0,1,1,0");
        font = helvetica();
        font.setPointSizeF(10.5);
        QTest::newRow("half a point") << font << s("Helvetica,10.5,-1,5,50,0,0,0,0,0");
        font = helvetica();
        font.setPixelSize(20);
        QTest::newRow("pixels") << font << s("Helvetica,-1,20,5,50,0,0,0,0,0");
        font = helvetica();
        font.setStyleHint(QFont::Serif);
        QTest::newRow("style hint") << font << s("Helvetica,12,-1,1,50,0,0,0,0,0");
        QTest::newRow("blanks in the family")
            << QFont(s("Sans Serif"), 9) << s("Sans Serif,9,-1,5,50,0,0,0,0,0");
    }

    void fontsAreWrittenInTenFields()
    {
        QFETCH(QFont, font);
        QFETCH(QString, text);
        QCOMPARE(fromFont(font), text);
        QCOMPARE(fromFont(toFont(text)), text);
    }

    void aCommaEndsTheFamily()
    {
        QFont font = helvetica();
        font.setFamilies({s("Grotesk, Bold")});
        QCOMPARE(fromFont(font), s("Grotesk,12,-1,5,50,0,0,0,0,0"));
    }

    void weightsAreOnTheOldScale_data()
    {
        QTest::addColumn<int>("weight");
        QTest::addColumn<int>("written");

        QTest::newRow("thin") << 100 << 0;
        QTest::newRow("extra light") << 200 << 12;
        QTest::newRow("light") << 300 << 25;
        QTest::newRow("normal") << 400 << 50;
        QTest::newRow("medium") << 500 << 57;
        QTest::newRow("demi bold") << 600 << 63;
        QTest::newRow("bold") << 700 << 75;
        QTest::newRow("extra bold") << 800 << 81;
        QTest::newRow("black") << 900 << 87;
    }

    void weightsAreOnTheOldScale()
    {
        QFETCH(int, weight);
        QFETCH(int, written);
        const QString text = s("Helvetica,12,-1,5,%1,0,0,0,0,0").arg(written);
        QFont font = helvetica();
        font.setWeight(QFont::Weight(weight));
        QCOMPARE(fromFont(font), text);
        QCOMPARE(int(toFont(text).weight()), weight);
    }

    void weightsInBetweenAreWrittenAsTheNearest()
    {
        QFont font = helvetica();
        font.setWeight(QFont::Weight(680));
        QCOMPARE(fromFont(font), s("Helvetica,12,-1,5,75,0,0,0,0,0"));
        font.setWeight(QFont::Weight(1000));
        QCOMPARE(fromFont(font), s("Helvetica,12,-1,5,87,0,0,0,0,0"));
        font.setWeight(QFont::Weight(1));
        QCOMPARE(fromFont(font), s("Helvetica,12,-1,5,0,0,0,0,0,0"));
    }

    void everyOldWeightIsWrittenBackTheSameOnceRead()
    {
        for (int weight = 0; weight <= 99; ++weight) {
            const QString text = s("Helvetica,12,-1,5,%1,0,0,0,0,0").arg(weight);
            const QString once = fromFont(toFont(text));
            QCOMPARE(fromFont(toFont(once)), once);
        }
    }

    void theToolkitsPresentFormIsRead()
    {
        QFont font(s("Courier"), 14, QFont::Bold, true);
        font.setUnderline(true);
        const QString present = font.toString();
        QVERIFY(present.count(u',') >= 15);
        QCOMPARE(toFont(present), font);
        QCOMPARE(fromFont(toFont(present)), s("Courier,14,-1,5,75,1,1,0,0,0"));

        font.setStyleName(s("Bold Italic"));
        QCOMPARE(font.toString().count(u','), 16);
        QCOMPARE(fromFont(toFont(font.toString())), s("Courier,14,-1,5,75,1,1,0,0,0"));
    }

    void shortFormsAreRead()
    {
        QCOMPARE(toFont(s("Courier")).family(), s("Courier"));
        QCOMPARE(toFont(s("Courier")).pointSizeF(), QFont().pointSizeF());
        QCOMPARE(toFont(s("Courier,7.5")).family(), s("Courier"));
        QCOMPARE(toFont(s("Courier,7.5")).pointSizeF(), 7.5);
    }

    void whatIsNoFontIsADefaultFontWithoutComplaint_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("nothing") << QString();
        QTest::newRow("no family") << s(",12,-1,5,50,0,0,0,0,0");
        QTest::newRow("blank family") << s("  ,12,-1,5,50,0,0,0,0,0");
        QTest::newRow("blanks") << s("  ");
        for (int fields = 3; fields <= 9; ++fields)
            QTest::addRow("%d fields", fields) << s("Courier,33") + s(",1").repeated(fields - 2);
        QTest::newRow("18 fields") << s("Courier,33") + s(",1").repeated(16);
        QTest::newRow("commas only") << s(",").repeated(9);
    }

    void whatIsNoFontIsADefaultFontWithoutComplaint()
    {
        QFETCH(QString, text);
        QTest::failOnWarning(QRegularExpression(s(".*")));
        QCOMPARE(toFont(text), QFont());
    }

    void sizesStayWithinReason_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("points");
        QTest::addColumn<int>("pixels");

        const double usual = QFont().pointSizeF();
        QTest::newRow("largest") << s("Courier,1000,-1,5,50,0,0,0,0,0") << 1000.0 << -1;
        QTest::newRow("too large") << s("Courier,1000.5,-1,5,50,0,0,0,0,0") << 1000.0 << -1;
        QTest::newRow("short form") << s("Courier,9999") << 1000.0 << -1;
        QTest::newRow("infinite") << s("Courier,1e999,-1,5,50,0,0,0,0,0") << 1000.0 << -1;
        QTest::newRow("no number") << s("Courier,nan,-1,5,50,0,0,0,0,0") << usual << -1;
        QTest::newRow("zero") << s("Courier,0,0,5,50,0,0,0,0,0") << usual << -1;
        QTest::newRow("negative") << s("Courier,-3,-3,5,50,0,0,0,0,0") << usual << -1;
        QTest::newRow("largest in pixels") << s("Courier,-1,1000,5,50,0,0,0,0,0") << -1.0 << 1000;
        QTest::newRow("too large in pixels")
            << s("Courier,-1,2147483647,5,50,0,0,0,0,0") << -1.0 << 1000;
    }

    void sizesStayWithinReason()
    {
        QFETCH(QString, text);
        QFETCH(double, points);
        QFETCH(int, pixels);
        QTest::failOnWarning(QRegularExpression(s(".*")));
        const QFont font = toFont(text);
        QCOMPARE(font.family(), s("Courier"));
        QCOMPARE(font.pointSizeF(), points);
        QCOMPARE(font.pixelSize(), pixels);
    }

    void oddFieldsStayAsTheyAreOnceRead_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("old weights out of range") << s("Courier,12,-1,5,-7,0,0,0,0,0");
        QTest::newRow("old weight far out of range") << s("Courier,12,-1,5,99999,0,0,0,0,0");
        QTest::newRow("style hint") << s("Courier,12,-1,999999,50,0,0,0,0,0");
        QTest::newRow("flags") << s("Courier,12,-1,5,50,9,-8,7,-6,5");
        QTest::newRow("words") << s("Courier,a,b,c,d,e,f,g,h,i");
        QTest::newRow("present weight") << s("Courier,12,-1,5,5000,0,0,0,0,0,0,0,0,0,0,1");
        QTest::newRow("present stretch") << s("Courier,12,-1,5,400,0,0,0,0,0,0,0,0,0,99999,1");
        QTest::newRow("present enumerations")
            << s("Courier,12,-1,5,400,9,0,0,0,0,99,99,1e999,nan,0,-1");
        QTest::newRow("tiny") << s("Courier,1e-300,-1,5,50,0,0,0,0,0");
        QTest::newRow("line break") << s("Cou\nrier,12,-1,5,50,0,0,0,0,0");
    }

    void oddFieldsStayAsTheyAreOnceRead()
    {
        QFETCH(QString, text);
        const QString once = fromFont(toFont(text));
        QCOMPARE(once.count(u','), 9);
        QCOMPARE(fromFont(toFont(once)), once);
    }

private:
    static QFont helvetica() { return {s("Helvetica"), 12}; }
};

REGISTER_TEST(TestPlanTextFonts)
#include "tst_kwplantext_fonts.moc"
