#include "gui/appearance/kwcolourpreview.h"
#include "gui/appearance/kwcontrast.h"
#include "support/gui/guitest.h"
#include "support/gui/themeshelf.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QPainter>

// The themes that ship with the program: whether they can be read, in both meanings of the word.

namespace {

const QString &shippedDirectory()
{
    static const QString directory = sourcePath("resources");
    return directory;
}

using Light = std::array<double, 3>;

/// Amounts of red, green and blue light.
Light lightOf(const QColor &colour)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return {linear(double(colour.redF())), linear(double(colour.greenF())),
            linear(double(colour.blueF()))};
}

using Matrix = std::array<std::array<double, 3>, 3>;

/// What is seen by people who lack the receptors for red, green or blue.
constexpr std::array<Matrix, 3> colourBlind{{{{{0.152286, 1.052583, -0.204868},
                                               {0.114503, 0.786281, 0.099216},
                                               {-0.003882, -0.048116, 1.051998}}},
                                             {{{0.367322, 0.860646, -0.227968},
                                               {0.280085, 0.672501, 0.047413},
                                               {-0.011820, 0.042940, 0.968881}}},
                                             {{{1.255528, -0.076749, -0.178779},
                                               {-0.078411, 0.930809, 0.147602},
                                               {0.004733, 0.691367, 0.303900}}}}};

QColor seenBy(const Matrix &eyes, const QColor &colour)
{
    const Light light = lightOf(colour);
    std::array<float, 3> seen{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double value = eyes[i][0] * light[0] + eyes[i][1] * light[1] + eyes[i][2] * light[2];
        const double amount = std::clamp(value, 0.0, 1.0);
        seen[i] =
            float(amount <= 0.0031308 ? amount * 12.92 : 1.055 * std::pow(amount, 1 / 2.4) - 0.055);
    }
    return QColor::fromRgbF(seen[0], seen[1], seen[2]);
}

/// How far apart two colours are, in steps of 0 to 255 of a channel.
double distance(const QColor &one, const QColor &other)
{
    return std::hypot(one.red() - other.red(), one.green() - other.green(),
                      one.blue() - other.blue());
}
} // namespace

class TestThemes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_names = m_file.names();
        QVERIFY(m_names.size() >= 10);
    }

    void theFileIsAsTheProgramWouldWriteIt()
    {
        const QByteArray bytes = ThemeShelf::read(m_file.path());
        QVERIFY(bytes.endsWith("\r\n"));
        QCOMPARE(bytes.count('\n'), m_names.size());
        for (const QByteArray &line : bytes.chopped(2).split('\n')) {
            const QString text = QString::fromUtf8(line.trimmed());
            QCOMPARE(text.count(u'^'), 10);
            KWTheme theme;
            KWThemeFile::readLine(text, theme);
            QCOMPARE(KWThemeFile::toLine(theme), text);
            QCOMPARE(KWThemeFile::tidyName(theme.name), theme.name);
        }
        QStringList lower;
        for (const QString &name : m_names)
            lower.append(name.toLower());
        QCOMPARE(lower.removeDuplicates(), 0);
    }

    void thereIsOneForEachNeed()
    {
        QVERIFY(m_names.contains(s("Classic white")));
        // For dark rooms.
        for (const char *name : {"Candlelight", "Midnight"})
            QVERIFY(luminance(theme(s(name)).inside) < 0.02);
        QVERIFY(m_names.contains(s("Colour-blind friendly")));
        const KWColours high = theme(s("High contrast"));
        QVERIFY(contrast(high.seatsText, high.seats) > 20);
        QVERIFY(contrast(high.tableText, high.tables) > 20);
        QVERIFY(contrast(high.selected, high.seats) > 15);
    }

    void textsAreReadable_data() { themeRows(); }

    void textsAreReadable()
    {
        const KWColours colours = theme(QString::fromUtf8(QTest::currentDataTag()));
        QVERIFY(contrast(colours.tableText, colours.tables) >= 4.5);
        QVERIFY(contrast(colours.seatsText, colours.seats) >= 4.5);
        // A selected table or seat has its text in that colour.
        QVERIFY(contrast(colours.selected, colours.tables) >= 4.5);
        QVERIFY(contrast(colours.selected, colours.seats) >= 4.5);
        // Seats that are shown without a circle, and charts.
        QVERIFY(contrast(colours.seatsText, colours.inside) >= 4.5);
        QVERIFY(contrast(colours.selected, colours.inside) >= 4.5);
        QVERIFY(contrast(colours.tableText, colours.inside) >= 4.5);
    }

    void shapesAreSeen_data() { themeRows(); }

    void shapesAreSeen()
    {
        const KWColours colours = theme(QString::fromUtf8(QTest::currentDataTag()));
        QVERIFY(contrast(colours.tablesEdge, colours.inside) >= 3);
        QVERIFY(contrast(colours.seatsEdge, colours.inside) >= 3);
        QVERIFY(contrast(colours.inside, colours.outside) >= 1.1);
    }

    void colourBlindPeopleSeeWhatIsSelected_data()
    {
        QTest::addColumn<int>("eyes");
        QTest::newRow("without red") << 0;
        QTest::newRow("without green") << 1;
        QTest::newRow("without blue") << 2;
    }

    void colourBlindPeopleSeeWhatIsSelected()
    {
        QFETCH(int, eyes);
        const Matrix &matrix = colourBlind.at(std::size_t(eyes));
        const KWColours colours = theme(s("Colour-blind friendly"));
        const auto seen = [&](const QColor &colour) { return seenBy(matrix, colour); };
        for (const QColor &other : {colours.seatsText, colours.seatsEdge, colours.tableText,
                                    colours.tablesEdge, colours.outside})
            QVERIFY(distance(seen(colours.selected), seen(other)) >= 60);
        QVERIFY(distance(seen(colours.seats), seen(colours.tables)) >= 25);
        QVERIFY(contrast(seen(colours.selected), seen(colours.seats)) >= 4.5);
        QVERIFY(contrast(seen(colours.seatsEdge), seen(colours.inside)) >= 3);
        QVERIFY(contrast(seen(colours.tablesEdge), seen(colours.inside)) >= 3);
    }

    /// To look at, where AMBRELUNE_ARTEFACTS names a directory for it.
    void noTwoThemesLookTheSame()
    {
        constexpr int columns = 4;
        constexpr QSize cell(230, 250);
        const int rows = int(m_names.size() + columns - 1) / columns;
        QImage sheet(cell.width() * columns, cell.height() * rows, QImage::Format_RGB32);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        QList<QImage> pictures;
        for (int i = 0; i < int(m_names.size()); ++i) {
            const QPoint corner(i % columns * cell.width() + 10, i / columns * cell.height() + 10);
            KWColourPreview preview;
            preview.resize(210, 210);
            preview.setColours(theme(m_names.at(i)));
            const QPixmap picture = preview.grab();
            pictures.append(picture.toImage());
            painter.drawPixmap(corner, picture);
            painter.drawText(corner + QPoint(0, 226), m_names.at(i));
        }
        for (const QImage &picture : std::as_const(pictures))
            QCOMPARE(pictures.count(picture), 1);
        const QString directory = qEnvironmentVariable("AMBRELUNE_ARTEFACTS");
        QVERIFY(directory.isEmpty() || sheet.save(directory + s("/themes.png")));
    }

private:
    KWColours theme(const QString &name) const
    {
        KWTheme theme;
        if (m_file.load(name, theme) != KWThemeFile::Done)
            qFatal("no theme %s", qPrintable(name));
        return theme.colours;
    }

    void themeRows() const
    {
        QTest::addColumn<int>("unused");
        for (const QString &name : m_names)
            QTest::newRow(qPrintable(name)) << 0;
    }

    const KWThemeFile m_file{testHome().path(s("none")), shippedDirectory()};
    QStringList m_names;
};

REGISTER_TEST(TestThemes)
#include "tst_themes.moc"
