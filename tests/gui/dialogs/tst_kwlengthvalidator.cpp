#include "gui/dialogs/kwlengthvalidator.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QLineEdit>

namespace {

/// Makes a locale the user's while it lives.
class UserLocale
{
public:
    explicit UserLocale(const QString &name) { QLocale::setDefault(QLocale(name)); }
    ~UserLocale() { QLocale::setDefault(m_before); }

private:
    const QLocale m_before;
};

/// A field for the side of a room.
struct Field : QLineEdit
{
    Field() { setValidator(new KWLengthValidator(5, 999, this)); }
};
} // namespace

class TestKWLengthValidator : public QObject
{
    Q_OBJECT

private slots:
    void whatIsTypedIsReadAsItLooks_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QVariant>("length");
        const auto row = [](const char *locale, const char *typed, const char *shown,
                            const QVariant &length) {
            QTest::addRow("%s, %s", locale, typed) << s(locale) << s(typed) << s(shown) << length;
        };
        row("en_GB", "7.5", "7.5", 7.5F);
        row("en_GB", "7,5", "7.5", 7.5F);
        row("de_DE", "7,5", "7,5", 7.5F);
        row("de_DE", "7.5", "7,5", 7.5F);
        row("fr_FR", "7.5", "7,5", 7.5F);
        row("de_CH", "7,5", "7.5", 7.5F);
        row("C", "7,5", "7.5", 7.5F);
        // No separators of thousands: one sees what these become.
        row("en_GB", "1,234", "1.234", 1.234F);
        row("de_DE", "1.234", "1,234", 1.234F);
        row("de_DE", "1.234,5", "1,2345", 1.2345F);
        row("fr_FR", "1 234", "1234", 1234.F);
        // Out of range, or finer than a centimetre: that is looked at later.
        row("en_GB", "0", "0", 0.F);
        row("en_GB", "3277.719", "3277.719", 3277.719F);
        row("en_GB", "12.345678", "12.345678", 12.345678F);
        // Digits only.
        row("en_GB", "-7", "7", 7.F);
        row("en_GB", "1e3", "13", 13.F);
        row("en_GB", "10 m", "10", 10.F);
        row("en_GB", "", "", {});
        row("en_GB", ".", ".", {});
    }

    void whatIsTypedIsReadAsItLooks()
    {
        QFETCH(QString, locale);
        QFETCH(QString, typed);
        const UserLocale user(locale);
        Field field;
        QTest::keyClicks(&field, typed);
        QTEST(field.text(), "shown");
        const std::optional<float> length = KWLengthValidator::lengthIn(field.text());
        QTEST(length ? QVariant(*length) : QVariant(), "length");
    }

    void onlyALengthInRangeIsAcceptable_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("acceptable");
        for (const char *text : {"5", "5,25", "999", "20,0"})
            QTest::newRow(text) << s(text) << true;
        for (const char *text : {"", "4,99", "999,5", "1640,5", "12,345"})
            QTest::newRow(text) << s(text) << false;
    }

    void onlyALengthInRangeIsAcceptable()
    {
        QFETCH(QString, text);
        const UserLocale user(s("de_DE"));
        Field field;
        field.setText(text);
        QTEST(field.hasAcceptableInput(), "acceptable");
    }

    void anArabicUserTypesTheOneOrTheOtherDigits()
    {
        const UserLocale user(s("ar_EG"));
        for (const QString &text : {QStringLiteral("7.5"), QStringLiteral("٧٫٥")}) {
            Field field;
            field.insert(text);
            QCOMPARE(KWLengthValidator::lengthIn(field.text()), std::optional(7.5F));
        }
        QCOMPARE(KWLengthValidator::lengthIn(KWLengthValidator::textOf(7.5)), std::optional(7.5F));
    }

    void whatIsNoNumberIsNoLength_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"", " ", ".", ",", "seven", "7..5", "1.234.567", "7.5 m", "0x10"})
            QTest::newRow(text) << s(text);
    }

    void whatIsNoNumberIsNoLength()
    {
        QFETCH(QString, text);
        QVERIFY(!KWLengthValidator::lengthIn(text));
    }

    void lengthsAreWrittenInTheLocaleWithoutSeparatorsOfThousands_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<double>("length");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << s("en_GB") << 20. << s("20");
        QTest::newRow("single precision") << s("en_GB") << double{0.6F} << s("0.6");
        QTest::newRow("six digits") << s("en_GB") << 12.3456789 << s("12.3457");
        QTest::newRow("German") << s("de_DE") << 7.5 << s("7,5");
        QTest::newRow("German thousands") << s("de_DE") << 3277.719 << s("3277,72");
        QTest::newRow("English thousands") << s("en_US") << 3277.719 << s("3277.72");
        QTest::newRow("French thousands") << s("fr_FR") << 3277.719 << s("3277,72");
        QTest::newRow("beyond") << s("en_GB") << 1e9 << s("1E+09");
    }

    void lengthsAreWrittenInTheLocaleWithoutSeparatorsOfThousands()
    {
        QFETCH(QString, locale);
        QFETCH(double, length);
        const UserLocale user(locale);
        QTEST(KWLengthValidator::textOf(length), "text");
    }

    void whatIsFinerThanACentimetreIsNotCutOff()
    {
        Field field;
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        QTest::keyClicks(&field, s("24.6075"));
        QTest::keyClick(&field, Qt::Key_Return);
        field.clearFocus();
        QCOMPARE(field.text(), s("24.6075"));
    }

    void aSpaceThatIsTypedLeavesTheCursorWhereItIs()
    {
        Field field;
        field.setText(s("125"));
        field.setCursorPosition(2);
        QTest::keyClicks(&field, s(" 7"));
        QCOMPARE(field.text(), s("1275"));
    }

    void aTextThatIsNoneCanBeTypedOver()
    {
        Field field;
        field.setText(KWLengthValidator::textOf(1e9));
        field.selectAll();
        QTest::keyClicks(&field, s("12"));
        QCOMPARE(field.text(), s("12"));
    }
};

REGISTER_TEST(TestKWLengthValidator)
#include "tst_kwlengthvalidator.moc"
