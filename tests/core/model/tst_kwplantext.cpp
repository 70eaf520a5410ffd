#include "core/model/kwplantext.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QLocale>
#include <QtTest>

#include <limits>

using namespace KWPlanText;

class TestPlanText : public QObject
{
    Q_OBJECT

private slots:
    void everyAsciiCharacterButThePlainOnesIsEscaped()
    {
        const QString plain = s("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
                                "!()*-./_");
        for (ushort code = 1; code < 128; ++code) {
            const QString text(QChar{code});
            const QString escape = u'%' + s("%1").arg(code, 2, 16, QChar(u'0')).toUpper();
            QCOMPARE(escaped(text), plain.contains(text) ? text : escape);
        }
    }

    void textIsEscapedAsTheBytesOfItsUtf8_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("written");

        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("blank, not plus") << s("a b+c") << s("a%20b%2Bc");
        QTest::newRow("colour") << s("255,255,255") << s("255%2C255%2C255");
        QTest::newRow("markup") << s("<a href=\"&'\">") << s("%3Ca%20href%3D%22%26%27%22%3E");
        QTest::newRow("percent sign") << s("100%") << s("100%25");
        QTest::newRow("escape as text") << s("%41") << s("%2541");
        QTest::newRow("tilde") << s("~") << s("%7E");
        QTest::newRow("line breaks and tab") << s("a\r\n\tb") << s("a%0D%0A%09b");
        QTest::newRow("two bytes") << s("Éloïse") << s("%C3%89lo%C3%AFse");
        QTest::newRow("three bytes") << s("€") << s("%E2%82%AC");
        QTest::newRow("four bytes") << s("🎂") << s("%F0%9F%8E%82");
        QTest::newRow("zero width") << s("a\uFEFF") << s("a%EF%BB%BF");
        QTest::newRow("leading zero width") << QChar(0xFEFF) + s("a") << s("%EF%BB%BFa");
        QTest::newRow("noncharacter") << QString(QChar(0xFFFF)) << s("%EF%BF%BF");
        QTest::newRow("right to left") << s("אב") << s("%D7%90%D7%91");
    }

    void textIsEscapedAsTheBytesOfItsUtf8()
    {
        QFETCH(QString, text);
        QFETCH(QString, written);
        QCOMPARE(escaped(text), written);
        QCOMPARE(unescaped(written.toUtf8()), text);
    }

    void everyUnicodeCharacterComesBack()
    {
        for (char32_t code = 1; code < 0x110000; ++code) {
            if (QChar::isSurrogate(code))
                continue;
            // Not by way of a conversion, which would take U+FEFF for a byte order mark.
            const QString text = QStringView(QChar::fromUcs4(code)).toString();
            if (unescaped(escaped(text).toUtf8()) != text)
                QFAIL(qPrintable(s("U+%1 is lost").arg(uint(code), 4, 16)));
        }
    }

    void unpairedSurrogatesBecomeSomethingThatStays()
    {
        const QString once = unescaped(escaped(QChar(0xD800) + s("a")).toUtf8());
        QCOMPARE(once.size(), 2);
        QCOMPARE(once.back(), QChar(u'a'));
        QCOMPARE(unescaped(escaped(once).toUtf8()), once);
    }

    void whatIsNoEscapeStandsForItself_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("text");

        QTest::newRow("percent sign alone") << s("%") << s("%");
        QTest::newRow("percent sign last") << s("100%") << s("100%");
        QTest::newRow("one digit last") << s("%4") << s("%4");
        QTest::newRow("one digit only") << s("%4g") << s("%4g");
        QTest::newRow("no digits") << s("%zz") << s("%zz");
        QTest::newRow("two percent signs") << s("%%41") << s("%A");
        QTest::newRow("escaped percent sign") << s("%2541") << s("%41");
        QTest::newRow("lower case digits") << s("%c3%a9") << s("é");
        QTest::newRow("mixed case digits") << s("%cA%Bf") << s("ʿ");
        QTest::newRow("plus") << s("a+b") << s("a+b");
        QTest::newRow("bare letters beyond ASCII") << s("é%20€") << s("é €");
        QTest::newRow("null character") << s("%00a%00b%00") << s("ab");
        QTest::newRow("null character in a letter") << s("%C3%00%A9") << s("é");
        QTest::newRow("fullwidth digits") << s("%４１") << s("%４１");
        QTest::newRow("minus sign") << s("%-1") << s("%-1");
        QTest::newRow("blank") << s("% 1") << s("% 1");
    }

    void whatIsNoEscapeStandsForItself()
    {
        QFETCH(QString, written);
        QFETCH(QString, text);
        QCOMPARE(unescaped(written.toUtf8()), text);
    }

    void bytesThatAreNoUtf8BecomeReplacements_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("text");

        QTest::newRow("broken pair") << s("%C3%28") << s("\uFFFD(");
        QTest::newRow("no such byte") << s("a%FFb") << s("a\uFFFDb");
        QTest::newRow("cut short") << s("a%C3") << s("a\uFFFD");
    }

    void bytesThatAreNoUtf8BecomeReplacements()
    {
        QFETCH(QString, written);
        QFETCH(QString, text);
        QCOMPARE(unescaped(written.toUtf8()), text);
        QCOMPARE(unescaped(escaped(text).toUtf8()), text);
    }

    void integersAreDecimal_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");

        QTest::newRow("zero") << s("0") << 0;
        QTest::newRow("negative") << s("-17") << -17;
        QTest::newRow("largest") << s("2147483647") << std::numeric_limits<int>::max();
        QTest::newRow("smallest") << s("-2147483648") << std::numeric_limits<int>::min();
    }

    void integersAreDecimal()
    {
        QFETCH(QString, text);
        QFETCH(int, value);
        QCOMPARE(fromInt(value), text);
        QCOMPARE(toInt(text), value);
    }

    void whatIsNoNumberGivesZero_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"", "much", "12a", "1.5", "1e3", "0x10", "1,000", "2147483648",
                                 "-2147483649", "99999999999999999999", "--1", "nan"})
            QTest::newRow(text) << s(text);
    }

    void whatIsNoNumberGivesZero()
    {
        QFETCH(QString, text);
        QCOMPARE(toInt(text), 0);
        QCOMPARE(toBool(text), false);
    }

    void numbersAboveZeroAreTrue()
    {
        QCOMPARE(fromBool(false), s("0"));
        QCOMPARE(fromBool(true), s("1"));
        for (const char *text : {"1", "2", "99", "+1"})
            QVERIFY2(toBool(s(text)), text);
        for (const char *text : {"0", "-1", "-2147483648", "true", "yes"})
            QVERIFY2(!toBool(s(text)), text);
    }

    void realsHaveSixSignificantDigits_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");

        QTest::newRow("whole") << 20.0 << s("20");
        QTest::newRow("chair") << double(0.6F) << s("0.6");
        QTest::newRow("cut") << 12.3456789 << s("12.3457");
        QTest::newRow("large") << 123456789.0 << s("1.23457e+08");
        QTest::newRow("small") << 0.00001234567 << s("1.23457e-05");
    }

    void realsHaveSixSignificantDigits()
    {
        QFETCH(double, value);
        QFETCH(QString, text);
        QCOMPARE(fromReal(value), text);
        // A size that was read once stays as it is.
        const double size = toSize(text, 1.0);
        QCOMPARE(size, double(float(text.toDouble())));
        QCOMPARE(toSize(fromReal(size), 1.0), size);
    }

    void sizesThatAreNoSizeGiveTheFallback_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"", "wide", "0", "-0", "-3", "nan", "inf", "-inf", "1e999", "1e39",
                                 "1e-60", "12,5", "0x10"})
            QTest::newRow(text) << s(text);
    }

    void sizesThatAreNoSizeGiveTheFallback()
    {
        QFETCH(QString, text);
        QCOMPARE(toSize(text, 7.5), 7.5);
    }

    void datesAreEnglishWhateverTheLocale()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        const QDate date(2027, 3, 13);
        const QString text = fromDate(date);
        const QDate back = toDate(s("Sat Mar 13 2027"));
        QLocale::setDefault(before);
        QCOMPARE(text, s("Sat Mar 13 2027"));
        QCOMPARE(back, date);
    }

    void everyDayOfTwoCenturiesComesBack()
    {
        for (QDate day(1900, 1, 1); day.year() <= 2100; day = day.addDays(1)) {
            if (toDate(fromDate(day)) != day)
                QFAIL(qPrintable(day.toString(Qt::ISODate)));
        }
    }

    void whatIsNoDateIsToday_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"", "soon", "Mon Feb 30 2026", "2027-03-13", "Sa. 13. März 2027"})
            QTest::newRow(text) << s(text);
    }

    void whatIsNoDateIsToday()
    {
        QFETCH(QString, text);
        const QDate before = QDate::currentDate();
        const QDate date = toDate(text);
        QVERIFY(date >= before);
        QVERIFY(date <= QDate::currentDate());
    }

    void coloursAreThreeNumbers()
    {
        QCOMPARE(fromColour(QColor(1, 20, 255)), s("1,20,255"));
        QCOMPARE(fromColour(QColor(Qt::gray)), s("160,160,164"));
        QCOMPARE(fromColour(QColor()), s("0,0,0"));
        QCOMPARE(fromColour(QColor(1, 2, 3, 40)), s("1,2,3"));
        QCOMPARE(toColour(s("1,20,255")), QColor(1, 20, 255));
    }

    void oddColoursAreReadAsFarAsTheyGo_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("colour");

        QTest::newRow("nothing") << QString() << QColor(Qt::white);
        QTest::newRow("word") << s("red") << QColor(Qt::white);
        QTest::newRow("two parts") << s("1,2") << QColor(Qt::white);
        QTest::newRow("four parts") << s("1,2,3,4") << QColor(Qt::white);
        QTest::newRow("part that is no number") << s("1,two,3") << QColor(1, 0, 3);
        QTest::newRow("empty parts") << s(",,") << QColor(0, 0, 0);
        QTest::newRow("too large") << s("256,300,2147483647") << QColor(255, 255, 255);
        QTest::newRow("below zero") << s("-1,-2147483648,9") << QColor(0, 0, 9);
    }

    void oddColoursAreReadAsFarAsTheyGo()
    {
        QFETCH(QString, text);
        QFETCH(QColor, colour);
        QCOMPARE(toColour(text), colour);
    }
};

REGISTER_TEST(TestPlanText)
#include "tst_kwplantext.moc"
