#include "planfile.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QDir>
#include <QLoggingCategory>
#include <QtTest>

namespace {
/// What becomes of a file: the result of loading it and, if that is 0, what the plan holds. All
/// of these texts are empty for a plan without such things.
struct Expected
{
    const char *file;
    int result = 0;
    /// Their display names, joined with blanks, "?" for an empty one.
    const char *guests = "";
    /// The names, joined with blanks.
    const char *groups = "all";
    /// The seats as seating() writes them, or their number if that is large; tables are parted
    /// by "|".
    const char *seats = "";
    /// "first-second value" by position, joined with commas.
    const char *wishes = "";
    const char *event = "";
};

const QList<Expected> &expectations()
{
    static const QList<Expected> files{
        // What is no plan.
        {.file = "bare-ampersand", .result = 1},
        {.file = "bare-angle-bracket", .result = 1},
        {.file = "billion-laughs", .result = 1},
        {.file = "billion-laughs-in-text", .result = 1},
        {.file = "binary", .result = 1},
        {.file = "blank-lines-only", .result = 1},
        {.file = "control-character", .result = 1},
        {.file = "doctype-after-root", .result = 1},
        {.file = "doctype-in-capitals", .result = 1},
        {.file = "doctype-inside-root", .result = 1},
        {.file = "doctype-only", .result = 1},
        {.file = "doctype-twice", .result = 1},
        {.file = "doctype-with-more-behind", .result = 1},
        {.file = "doctype-with-prefix", .result = 1},
        {.file = "duplicate-attribute", .result = 1},
        {.file = "empty", .result = 1},
        {.file = "declared-attribute", .result = 1},
        {.file = "entity-naming-itself", .result = 1},
        {.file = "external-entity-in-attribute", .result = 1},
        {.file = "external-entity-in-text", .result = 1},
        {.file = "internal-entity", .result = 1},
        {.file = "invalid-utf8", .result = 1},
        {.file = "mismatched-tags", .result = 1},
        {.file = "no-doctype", .result = 1},
        {.file = "not-xml", .result = 1},
        {.file = "null-bytes", .result = 1},
        {.file = "null-character-reference", .result = 1},
        {.file = "parameter-entity-naming-itself", .result = 1},
        {.file = "surrogate-character-reference", .result = 1},
        {.file = "text-behind-root", .result = 1},
        {.file = "truncated-in-list", .result = 1},
        {.file = "truncated-in-tag", .result = 1},
        {.file = "two-roots", .result = 1},
        {.file = "undefined-entity", .result = 1},
        {.file = "unknown-encoding", .result = 1},
        {.file = "unquoted-attribute", .result = 1},
        {.file = "wrong-doctype", .result = 1},
        // Odd texts that are XML.
        {.file = "another-root-name", .event = "Ann"},
        {.file = "byte-order-mark", .event = "Café"},
        {.file = "capital-names", .guests = "?"},
        {.file = "comments-and-sections", .guests = "Ann"},
        {.file = "declared-elements", .event = "Ann"},
        {.file = "external-doctype", .event = "Ann"},
        {.file = "latin1-declared", .event = "Café"},
        {.file = "prefixed-names", .guests = "Bob"},
        {.file = "unknown-xml-version", .event = "Ann"},
        {.file = "utf16", .event = "Café"},
        {.file = "utf16-big-endian", .event = "Café"},
        // Elements where none belong, and none where some do.
        {.file = "elements-outside-lists",
         .guests = "Ann Bob",
         .groups = "family",
         .seats = "Bob Ann",
         .wishes = "0-1 4"},
        {.file = "missing-attributes", .guests = "?", .groups = "", .seats = "", .wishes = "0-0 0"},
        {.file = "nested-elements",
         .guests = "Ann Bob Cid",
         .seats = "Ann Bob",
         .wishes = "0-1 0",
         .event = "in a table"},
        {.file = "repeated-setting-first-without-value"},
        {.file = "repeated-settings", .event = "first"},
        {.file = "unknown-elements-and-attributes", .guests = "Ann", .event = "Party"},
        {.file = "version-of-the-future", .event = "Party"},
        // Values out of range.
        {.file = "absurd-seat-counts", .result = 1},
        {.file = "broken-colours"},
        {.file = "broken-dates"},
        {.file = "broken-fonts"},
        {.file = "date-far-away"},
        {.file = "groups-out-of-range",
         .guests = "Ann Dan Eve Fay Gus",
         .groups = "family",
         .seats = "Ann Dan Eve Fay Gus - -"},
        {.file = "guest-assigned-twice", .guests = "Ann Bob", .seats = "- - - Ann|Bob -"},
        {.file = "huge-font-sizes"},
        {.file = "indexes-out-of-range", .guests = "Ann Bob", .seats = "Bob - - - Ann"},
        {.file = "more-assigned-than-seats", .guests = "Ann Bob Cid", .seats = "Ann -|"},
        {.file = "negative-seat-counts", .seats = "- - - -|- -"},
        {.file = "neutral-pair", .guests = "Ann Bob"},
        {.file = "numbers-beyond-their-type"},
        {.file = "odd-lists-of-seats", .guests = "Ann Bob", .seats = "- - Ann Bob|"},
        {.file = "positions-at-the-limits", .seats = "-|-"},
        {.file = "repeated-pair", .guests = "Ann Bob", .wishes = "1-0 4"},
        {.file = "self-pair", .guests = "Ann", .seats = "Ann", .wishes = "0-0 0"},
        {.file = "sizes-not-above-zero"},
        {.file = "sizes-not-finite"},
        {.file = "text-for-numbers", .guests = "Ann", .seats = "Ann -", .wishes = "0-0 0"},
        {.file = "unknown-shapes", .guests = "Ann", .seats = "- Ann"},
        {.file = "unknown-words", .guests = "Ann Bob"},
        // Odd characters and escapes.
        {.file = "escaped-byte-order-marks",
         .event = "\xEF\xBB\xBF\xEF\xBB\xBF"
                  "Ann"},
        {.file = "escaped-null-bytes", .event = "Ann"},
        {.file = "escaped-surrogates", .event = "\uFFFD\uFFFD\uFFFD \uFFFD\uFFFD\uFFFD"},
        {.file = "invalid-utf8-escapes", .event = "\uFFFD( \uFFFD \uFFFD\uFFFD"},
        {.file = "noncharacters", .event = "\uFFFE\uFFFF\U0010FFFF"},
        {.file = "raw-line-breaks-in-values", .event = "Ann Bob Cid Dan\nEve"},
        {.file = "wrong-percent-escapes", .event = "100% %4 %zz %A %4G%"},
    };
    return files;
}

/// A setting as it is saved after a file was loaded.
struct ExpectedSetting
{
    const char *file;
    const char *key;
    const char *saved;
};

const QList<ExpectedSetting> &expectedSettings()
{
    static const QList<ExpectedSetting> settings{
        {"broken-colours", "floorplan_colour_seats", "255,0,0"},
        {"broken-colours", "floorplan_colour_seats_edge", "255,255,255"},
        {"broken-colours", "floorplan_colour_tables", "255,255,255"},
        {"broken-colours", "floorplan_colour_tables_edge", "0,0,0"},
        {"broken-colours", "floorplan_colour_outside", "255,255,255"},
        {"broken-colours", "floorplan_colour_selected", "0,0,0"},
        {"huge-font-sizes", "print_header_font", "Helvetica,1000,-1,5,50,0,0,0,0,0"},
        {"huge-font-sizes", "print_footer_font", "Helvetica,1000,-1,5,50,0,0,0,0,0"},
        {"huge-font-sizes", "floor_plan_font", "Helvetica,-1,1000,5,50,0,0,0,0,0"},
        {"numbers-beyond-their-type", "fixed_cost", "0"},
        {"numbers-beyond-their-type", "adult_cost", "-2147483648"},
        {"numbers-beyond-their-type", "child_cost", "0"},
        {"numbers-beyond-their-type", "room_x_size", "20"},
        {"repeated-setting-first-without-value", "event", ""},
        {"sizes-not-above-zero", "room_x_size", "20"},
        {"sizes-not-above-zero", "room_y_size", "20"},
        {"sizes-not-above-zero", "chair_size", "0.6"},
        {"sizes-not-finite", "room_x_size", "20"},
        {"sizes-not-finite", "room_y_size", "20"},
        {"sizes-not-finite", "chair_size", "0.6"},
        {"text-for-numbers", "fixed_cost", "0"},
        {"text-for-numbers", "adult_cost", "0"},
        {"text-for-numbers", "child_cost", "0"},
        {"text-for-numbers", "print_margin", "0"},
        {"text-for-numbers", "show_grid", "0"},
        {"text-for-numbers", "room_x_size", "20"},
        {"version-of-the-future", "version", "2"},
    };
    return settings;
}

QString pathOf(const char *file)
{
    return s("%1/broken/%2.kw").arg(sourcePath("tests/data"), s(file));
}

QString guestsOf(const KWDocument &plan)
{
    QStringList names;
    for (const KWGuest *guest : plan.guests())
        names.append(guest->displayName().isEmpty() ? s("?") : guest->displayName());
    return names.join(u' ');
}

QString groupsOf(const KWDocument &plan)
{
    QStringList names;
    for (const KWGroup *group : plan.groups())
        names.append(group->name());
    return names.join(u' ');
}

QString seatsOf(const KWDocument &plan)
{
    QStringList tables;
    for (const KWTable *table : plan.tables())
        tables.append(table->seatCount() < 20 ? seating(*table)
                                              : s("%1 seats").arg(table->seatCount()));
    return tables.join(u'|');
}

QString wishesOf(const KWDocument &plan)
{
    QStringList texts;
    for (const KWDocument::Affinity &wish : plan.affinities())
        texts.append(s("%1-%2 %3")
                         .arg(plan.indexOfGuest(wish.first))
                         .arg(plan.indexOfGuest(wish.second))
                         .arg(wish.value));
    return texts.join(u',');
}
} // namespace

/// The small files in tests/data/broken; larger trouble is made in tst_kwplanfile_large.
class TestPlanFileBroken : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The reader mentions each unknown word of age.
        QLoggingCategory::setFilterRules(s("default.warning=false"));
    }

    void everyFileOfTheFolderIsExpected()
    {
        QStringList expected;
        for (const Expected &file : expectations())
            expected.append(s(file.file) + s(".kw"));
        expected.sort();
        QCOMPARE(QDir(sourcePath("tests/data/broken")).entryList(QDir::Files, QDir::Name),
                 expected);
    }

    void fileIsRefusedOrReadAsFarAsItGoes_data()
    {
        addFiles([](const Expected &) { return true; });
    }

    void fileIsRefusedOrReadAsFarAsItGoes()
    {
        const Expected expected = fetched();
        const Plan plan(pathOf(expected.file));
        QCOMPARE(plan.result, expected.result);
        const bool refused = expected.result != 0;
        QCOMPARE(guestsOf(plan.document), s(expected.guests));
        QCOMPARE(groupsOf(plan.document), refused ? QString() : s(expected.groups));
        QCOMPARE(seatsOf(plan.document), s(expected.seats));
        QCOMPARE(wishesOf(plan.document), s(expected.wishes));
        QCOMPARE(plan.document.event().toUtf8(), QByteArray(expected.event));
    }

    void whatWasReadCanBeSavedAndLoadedAgain_data()
    {
        addFiles([](const Expected &file) { return file.result == 0; });
    }

    void whatWasReadCanBeSavedAndLoadedAgain()
    {
        Plan plan(pathOf(fetched().file));
        QCOMPARE(plan.result, 0);
        plan.document.recalculateScores();
        const QTemporaryDir folder;
        const QString first = folder.filePath(s("first.kw"));
        const QString second = folder.filePath(s("second.kw"));
        QCOMPARE(plan.document.save(first, plan.views), 0);
        Plan again(first);
        QCOMPARE(again.result, 0);
        QVERIFY(!again.versionDiffers);
        again.document.recalculateScores();
        QCOMPARE(again.document.totalScore(), plan.document.totalScore());
        QCOMPARE(again.document.save(second, again.views), 0);
        QCOMPARE(readFile(second), readFile(first));
    }

    void oddSettingsAreReadAsFarAsTheyGo_data()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const ExpectedSetting &setting : expectedSettings())
            QTest::addRow("%s: %s", setting.file, setting.key) << index++;
    }

    void oddSettingsAreReadAsFarAsTheyGo()
    {
        QFETCH(int, index);
        const ExpectedSetting &expected = expectedSettings().at(index);
        const Plan plan(pathOf(expected.file));
        QCOMPARE(QUrl::fromPercentEncoding(settingIn(plan.text(), s(expected.key)).toUtf8()),
                 s(expected.saved));
    }

    void brokenFontsAreDefaultFonts()
    {
        const Plan plan(pathOf("broken-fonts"));
        QCOMPARE(plan.document.printHeaderFont(), QFont());
        QCOMPARE(plan.document.printFooterFont(), QFont());
        QCOMPARE(plan.document.tableChartFont(), QFont());
        QCOMPARE(plan.document.guestChartFont(), QFont());
        QCOMPARE(plan.document.floorPlanFont().family(), s("Helvetica"));
    }

    void positionsReachToTheLimits()
    {
        constexpr int most = std::numeric_limits<int>::max();
        constexpr int least = std::numeric_limits<int>::min();
        const Plan plan(pathOf("positions-at-the-limits"));
        QCOMPARE(plan.document.tableAt(0)->position(), QPoint(most, least));
        QCOMPARE(plan.document.tableAt(1)->position(), QPoint(0, 0));
    }

    void unknownWordsAreReadAsIfTheyWereNotThere()
    {
        const Plan plan(pathOf("unknown-words"));
        QCOMPARE(plan.document.guestAt(0)->gender(), int(KWGuest::Female));
        QCOMPARE(plan.document.guestAt(0)->age(), int(KWGuest::Child));
        QCOMPARE(plan.document.guestAt(1)->gender(), int(KWGuest::Undefined));
        QCOMPARE(plan.document.guestAt(1)->age(), int(KWGuest::Adult));
    }

    void dateThatDoesNotExistIsToday()
    {
        const QDate before = QDate::currentDate();
        const Plan plan(pathOf("broken-dates"));
        QVERIFY(plan.document.date() >= before);
        QVERIFY(plan.document.date() <= QDate::currentDate());
    }

private:
    static void addFiles(bool (*wanted)(const Expected &))
    {
        QTest::addColumn<int>("index");
        const QList<Expected> &files = expectations();
        for (int i = 0; i < files.size(); ++i) {
            if (wanted(files.at(i)))
                QTest::newRow(files.at(i).file) << i;
        }
    }

    static Expected fetched()
    {
        QFETCH(int, index);
        return expectations().at(index);
    }
};

REGISTER_TEST(TestPlanFileBroken)
#include "tst_kwplanfile_broken.moc"
