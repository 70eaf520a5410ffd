#include "support/gui/guitest.h"
#include "support/gui/themeshelf.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

namespace {

QString dataDirectory()
{
    return sourcePath("tests/data/themes");
}

constexpr char white[] = "255,255,255";
constexpr char highlight[] = "highlight";

QString good()
{
    return described(manyColours());
}

/// The colours in the order of a line, as far as they are given; the rest is white. Then the font,
/// the default one if it is empty, and the selected colour.
QString colours(QStringList given, const char *font = "", const char *selected = highlight)
{
    while (given.size() < 8)
        given.append(s(white));
    const QFont fallback;
    given.append(*font ? s(font)
                       : fallback.family() + u' ' + QString::number(fallback.pointSizeF()));
    const QColor own = KWColours::highlightColour();
    given.append(s(selected) == s(highlight)
                     ? s("%1,%2,%3").arg(own.red()).arg(own.green()).arg(own.blue())
                     : s(selected));
    return given.join(u' ');
}
} // namespace

// Every broken theme file in tests/data/themes is in one of the rows.
class TestKWThemeFileBroken : public QObject
{
    Q_OBJECT

private slots:
    void namesAreRead_data()
    {
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char *file, const QStringList &names) {
            QTest::newRow(file) << names;
        };
        row("blank-lines", {s("Good")});
        row("blanks-around-lines", {s("Good")});
        row("broken-font", {s("Font")});
        row("byte-order-mark", {s("Good")});
        row("colours-not-numbers", {s("Words")});
        row("colours-of-other-sizes", {s("Sizes")});
        row("empty", {});
        row("empty-fields", {s("Empty")});
        row("huge-font", {s("Font")});
        row("invalid-utf8", {s("Café"), s("Good")});
        row("long-line", {s("Good"), s("Long")});
        row("more-fields", {s("Good")});
        row("name-only", {s("Alone")});
        row("nameless", {s("Good")});
        row("no-last-line-end", {s("Good")});
        row("null-bytes", {s("Bad") + QChar(u'\0') + s("Name"), s("Good")});
        row("only-separators", {s("Good")});
        row("same-name-twice", {s("Good"), s("GOOD")});
        row("truncated", {s("Cut"), s("Good")});
        row("unix-line-ends", {s("Good"), s("Other")});
    }

    void namesAreRead()
    {
        QFETCH(QStringList, names);
        QCOMPARE(shelf(QTest::currentDataTag())->file().names(), names);
    }

    void aThemeIsRead_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("colours");
        const auto row = [](const char *file, const QString &name, const QString &texts) {
            QTest::newRow(qPrintable(s(file) + u' ' + name)) << s(file) << name << texts;
        };
        for (const char *file :
             {"blank-lines", "blanks-around-lines", "byte-order-mark", "invalid-utf8", "long-line",
              "more-fields", "nameless", "no-last-line-end", "null-bytes", "only-separators",
              "same-name-twice", "truncated", "unix-line-ends"})
            row(file, s("Good"), good());
        row("name-only", s("Alone"), colours({}));
        row("unix-line-ends", s("Other"), colours({s("9,9,9")}));
        row("truncated", s("Cut"), colours({s("200,100,50")}));
        row("invalid-utf8", s("Café"), colours({}));
        row("colours-not-numbers", s("Words"),
            colours({s(white), s(white), s(white), s(white), s(white), s(white), s("1,2,3")}));
        row("colours-of-other-sizes", s("Sizes"),
            colours({s(white), s(white), s(white), s(white), s("0,255,12"), s(white), s(white),
                     s("7,8,9")}));
        row("broken-font", s("Font"), colours(QStringList(8, s("1,2,3")), "", "4,5,6"));
        row("huge-font", s("Font"), colours(QStringList(8, s("1,2,3")), "Serif -1", "4,5,6"));
        row("empty-fields", s("Empty"), colours({}, "", white));
    }

    void aThemeIsRead()
    {
        QFETCH(QString, file);
        QFETCH(QString, name);
        QFETCH(QString, colours);
        KWTheme theme;
        QCOMPARE(shelf(file.toLatin1())->file().load(name, theme), KWThemeFile::Done);
        QCOMPARE(described(theme.colours), colours);
    }

    void aFontOfAnAbsurdSizeIsBroughtToOneThatCanBeDrawn()
    {
        KWTheme theme;
        QCOMPARE(shelf("huge-font")->file().load(s("Font"), theme), KWThemeFile::Done);
        QCOMPARE(theme.colours.font.pixelSize(), 1000);
    }

    void namesInLatin1ThatDifferAreTwoThemes()
    {
        ThemeShelf shelf;
        ThemeShelf::write(shelf.own(), "B\xe9r^1,1,1\r\nB\xe8r^2,2,2\r\nCaf\xc3\xa9^3,3,3\r\n");
        QCOMPARE(shelf.file().names(), QStringList({s("Bèr"), s("Bér"), s("Café")}));
        QCOMPARE(shelf.file().remove(s("Bér")), KWThemeFile::Done);
        QCOMPARE(ThemeShelf::read(shelf.own()),
                 QByteArray("B\xe8r^2,2,2\r\nCaf\xc3\xa9^3,3,3\r\n"));
    }

    void everyFileCanBeListedLoadedAndChanged_data()
    {
        QTest::addColumn<QString>("file");
        const QDir directory(dataDirectory());
        for (const QString &name : directory.entryList(QDir::Files))
            QTest::newRow(qPrintable(name)) << QFileInfo(name).baseName();
        QVERIFY(directory.count() > 20);
    }

    void everyFileCanBeListedLoadedAndChanged()
    {
        QFETCH(QString, file);
        const auto shelf = TestKWThemeFileBroken::shelf(file.toLatin1());
        const QStringList names = shelf->file().names();
        KWTheme theme;
        for (const QString &name : names) {
            QCOMPARE(shelf->file().load(name, theme), KWThemeFile::Done);
            QVERIFY(KWThemeFile::isSameName(theme.name, name));
        }
        QCOMPARE(shelf->file().save({s("Brand new"), manyColours()}), KWThemeFile::Done);
        QCOMPARE(shelf->file().names().size(), names.size() + 1);
        QCOMPARE(shelf->file().load(s("Brand new"), theme), KWThemeFile::Done);
        QCOMPARE(described(theme.colours), good());
        for (const QString &name : shelf->file().names())
            QCOMPARE(shelf->file().remove(name), KWThemeFile::Done);
        QCOMPARE(shelf->file().names(), QStringList());
    }

private:
    static std::unique_ptr<ThemeShelf> shelf(const QByteArray &file)
    {
        auto result = std::make_unique<ThemeShelf>();
        ThemeShelf::write(result->own(),
                          ThemeShelf::read(dataDirectory() + u'/' + s(file) + s(".txt")));
        return result;
    }
};

REGISTER_TEST(TestKWThemeFileBroken)
#include "tst_kwthemefile_broken.moc"
