#include "clitool.h"
#include "support/registeredtest.h"

#include <QImageReader>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

// The pictures that "ambrelune-cli floorplan" draws.

namespace {

/// What an SVG file draws: circles and filled paths with their colours, lines with theirs, texts.
struct Drawing
{
    QStringList shapes;
    QStringList lines;
    QStringList texts;
    QString title;
    bool isWellFormed;
};

Drawing drawingIn(const QByteArray &svg)
{
    Drawing drawing;
    QXmlStreamReader xml(svg);
    QXmlStreamAttributes around;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes own = xml.attributes();
        const QString fill = around.value(u"fill"_s).toString();
        if (xml.name() == u"g")
            around = own;
        else if (xml.name() == u"circle")
            drawing.shapes.append(fill + u' ' + own.value(u"r"_s).toString());
        else if (xml.name() == u"path" && fill != u"none")
            drawing.shapes.append(fill);
        else if (xml.name() == u"polyline")
            drawing.lines.append(around.value(u"stroke"_s).toString());
        else if (xml.name() == u"text")
            drawing.texts.append(xml.readElementText());
        else if (xml.name() == u"title")
            drawing.title = xml.readElementText();
    }
    drawing.isWellFormed = !xml.hasError();
    return drawing;
}

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return finish(process).out;
}

const QByteArray table = R"(<table table="T" shape="2" assigned="-1,0,-1,1" X="600" Y="400"/>)";
} // namespace

class TestCliFloorplan : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QImageReader::setAllocationLimit(0); }

    void init()
    {
        QVERIFY(m_folder.isValid());
        write(m_plan, planWith(table));
    }

    void everyFormatIsDrawn_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("png") << u"png"_s << QByteArray("\x89PNG");
        QTest::newRow("capitals") << u"PnG"_s << QByteArray("\x89PNG");
        QTest::newRow("jpg") << u"jpg"_s << QByteArray("\xff\xd8\xff");
        QTest::newRow("jpeg") << u"JPEG"_s << QByteArray("\xff\xd8\xff");
        QTest::newRow("bmp") << u"bmp"_s << QByteArray("BM");
        QTest::newRow("svg") << u"svg"_s << QByteArray("<?xml");
        QTest::newRow("pdf") << u"pdf"_s << QByteArray("%PDF-");
    }
    void everyFormatIsDrawn()
    {
        QFETCH(QString, extension);
        QFETCH(QByteArray, start);
        const QString path = m_folder.filePath(u"out."_s + extension);
        const Outcome outcome = run({u"floorplan"_s, example(u"wedding.kw"_s), u"-o"_s, path});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out + outcome.err, QByteArray());
        QVERIFY(contentOf(path).startsWith(start));
    }

    void allTablesAreThereWithTheMarginOnTheColourOfTheRoom()
    {
        const QImage picture = draw({});
        QCOMPARE(picture.size(), QSize(448, 244));
        QCOMPARE(picture.pixelColor(2, 2), QColor(250, 251, 252));
        QCOMPARE(picture.pixelColor(447, 243), QColor(250, 251, 252));
        QCOMPARE(picture.pixelColor(74, 70), QColor(1, 2, 3));
    }

    void theWidthIsAsAskedForAndTheHeightFollows_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("least") << 1 << 1;
        QTest::newRow("half") << 224 << 122;
        QTest::newRow("large") << 4480 << 2440;
        QTest::newRow("most") << 10000 << 5446;
    }
    void theWidthIsAsAskedForAndTheHeightFollows()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        const QStringList options{u"--width"_s, QString::number(width)};
        QCOMPARE(draw(options).size(), QSize(width, height));
        const QByteArray viewBox =
            "viewBox=\"0 0 " + QByteArray::number(width) + ' ' + QByteArray::number(height) + '"';
        QVERIFY(contentOf(drawTo(u"svg"_s, options)).contains(viewBox));
        // In points, of which 72 make what 96 pixels do.
        const QByteArray info = outputOf(u"pdfinfo"_s, {drawTo(u"pdf"_s, options)});
        const QByteArray page = "Page size:       " + QByteArray::number(qRound(width * 0.75)) +
                                " x " + QByteArray::number(qRound(height * 0.75)) + " pts";
        QVERIFY2(info.contains(page), info);
    }

    void aLargePlanIsDrawnSmallerUnlessAWidthIsGiven()
    {
        write(m_plan, planWith(R"(<room_x_size value="120"/>
                                  <table shape="0" seats_across="8" X="0" Y="0"/>
                                  <table shape="0" seats_across="8" X="18000" Y="0"/>)"));
        QCOMPARE(draw({}).width(), 4000);
        QCOMPARE(draw({u"--width"_s, u"5000"_s}).width(), 5000);
        // The longer side counts, though the shorter is a whole number of pixels, too.
        write(m_plan, planWith(R"(<room_y_size value="120"/>
                                  <table shape="0" seats_across="8" X="0" Y="0"/>
                                  <table shape="0" seats_across="8" X="0" Y="18000"/>)"));
        QCOMPARE(draw({}).height(), 4000);
    }

    void vectorPicturesHoldTextAndNoPicture()
    {
        const QStringList options{u"--show"_s, u"gender,age,vip,groups,locked"_s, u"--conflicts"_s};
        const QByteArray svg = contentOf(drawTo(u"svg"_s, options));
        QVERIFY(!svg.contains("<image"));
        QCOMPARE(drawingIn(svg).texts, QStringList({u"Annie"_s, u"Bob"_s, u"T"_s}));
        const QString pdf = drawTo(u"pdf"_s, options);
        QCOMPARE(outputOf(u"pdftotext"_s, {pdf, u"-"_s}).simplified(), QByteArray("Annie Bob T"));
        // Two lines of heading, and none for a picture.
        QCOMPARE(outputOf(u"pdfimages"_s, {u"-list"_s, pdf}).count('\n'), 2);
    }

    void vectorPicturesBearTheNameOfTheEvent()
    {
        write(m_plan, planWith(R"(<event value="Ann &amp;%3C Bob%0A"/>)"));
        QCOMPARE(drawingIn(contentOf(drawTo(u"svg"_s, {}))).title, u"Ann &< Bob"_s);
        QVERIFY(outputOf(u"pdfinfo"_s, {drawTo(u"pdf"_s, {})}).contains(" Ann &< Bob\n"));
        write(m_plan, planWith({}));
        QCOMPARE(drawingIn(contentOf(drawTo(u"svg"_s, {}))).title, u"plan"_s);
    }

    void namesThatXmlCannotHoldDoNotSpoilAnSvg()
    {
        write(m_plan, planWith(R"(<table table="A%07%1B%EF%BF%BF%ED%A0%80b%3C&amp;c" shape="0"
                                         seats_across="4" X="9" Y="9"/>)"));
        const Drawing drawing = drawingIn(contentOf(drawTo(u"svg"_s, {})));
        QVERIFY(drawing.isWellFormed);
        const QString name = drawing.texts.join(QString());
        QVERIFY2(name.startsWith(u'A') && name.endsWith(u"b<&c"), qPrintable(name));
    }

    void seatsBearNamesInTheOrderAskedFor_data()
    {
        QTest::addColumn<QString>("order");
        QTest::addColumn<QString>("texts");
        QTest::newRow("display") << u"display-name"_s << u"Annie Bob T"_s;
        QTest::newRow("last first") << u"last-first"_s << u"Rye, Ann Oat, Bob T"_s;
        QTest::newRow("last initial") << u"last-initial"_s << u"Rye, A. Oat, B. T"_s;
        QTest::newRow("first last") << u"first-last"_s << u"Ann Rye Bob Oat T"_s;
        QTest::newRow("initial last") << u"initial-last"_s << u"A. Rye B. Oat T"_s;
        QTest::newRow("title") << u"title-first-last"_s << u"Dr Ann Rye Bob Oat T"_s;
        QTest::newRow("title, initial") << u"title-initial-last"_s << u"Dr A. Rye B. Oat T"_s;
        QTest::newRow("number") << u"number"_s << u"1 2 3 4 T"_s;
    }
    void seatsBearNamesInTheOrderAskedFor()
    {
        QFETCH(QString, order);
        const Drawing drawing = drawingIn(contentOf(drawTo(u"svg"_s, {u"--names"_s, order})));
        QTEST(drawing.texts.join(u' '), "texts");
    }

    void seatsAreDrawnAsAskedFor_data()
    {
        QTest::addColumn<QString>("seats");
        QTest::addColumn<QString>("circle");
        QTest::addColumn<QString>("texts");
        QTest::newRow("both") << u"circle+name"_s << u"#010203 50"_s << u"Annie Bob T"_s;
        QTest::newRow("circle") << u"circle"_s << u"#010203 50"_s << u"T"_s;
        QTest::newRow("name") << u"name"_s << u"#fafbfc 50"_s << u"Annie Bob T"_s;
        QTest::newRow("none") << u"none"_s << u"#fafbfc 50"_s << u"T"_s;
    }
    void seatsAreDrawnAsAskedFor()
    {
        QFETCH(QString, seats);
        QFETCH(QString, circle);
        const Drawing drawing = drawingIn(contentOf(drawTo(u"svg"_s, {u"--seats"_s, seats})));
        QCOMPARE(drawing.shapes, QStringList(4, circle));
        QTEST(drawing.texts.join(u' '), "texts");
    }

    void seatsAreMarkedAsAskedFor_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("annie");
        QTest::addColumn<QString>("bob");
        const auto row = [](const char *list, const char *annie, const char *bob) {
            QTest::newRow(list) << QString::fromLatin1(list) << QString::fromLatin1(annie)
                                << QString::fromLatin1(bob);
        };
        row("none", "#010203 50", "#010203 50");
        row("gender", "#ffa0ff 50", "#60c0ff 50");
        row("age", "#010203 33.5", "#010203 50");
        row("groups", "#00ff00 50, #ff0000 25", "#ff0000 50, #ff0000 25");
        row("gender,groups", "#ffa0ff 50, #ff0000 25", "#60c0ff 50, #ff0000 25");
        row("locked", "#010203 50, #ffffff, #a3b0c2, #4a586e", "#010203 50");
        row("vip", "#010203 50, #ffffff, #f3bf5b, #d24343 2.5", "#010203 50");
        row("vip,age,locked,gender",
            "#ffa0ff 33.5, #ffffff, #a3b0c2, #4a586e, #ffffff, #f3bf5b, #d24343 2.5", "#60c0ff 50");
    }
    void seatsAreMarkedAsAskedFor()
    {
        QFETCH(QString, list);
        QFETCH(QString, annie);
        QFETCH(QString, bob);
        const Drawing drawing = drawingIn(contentOf(drawTo(u"svg"_s, {u"--show"_s, list})));
        const QString empty = u"#010203 50"_s;
        QCOMPARE(drawing.shapes.join(u", "_s),
                 QStringList({empty, annie, empty, bob}).join(u", "_s));
        QCOMPARE(drawing.lines, QStringList());
    }

    void conflictsAreLinesInTheColourOfTheWish()
    {
        const QByteArray svg = contentOf(drawTo(u"svg"_s, {u"--conflicts"_s}));
        QCOMPARE(drawingIn(svg).lines, QStringList{u"#ff0000"_s});
    }

    void whatIsNotAskedForIsAsThePlanHasIt()
    {
        write(m_plan,
              planWith(R"(<floor_plan_name_order value="7"/><floor_plan_show_seats value="0"/>
                                  <floor_plan_show_gender value="1"/>
                                  <floor_plan_show_age value="1"/>)" +
                       table));
        const Drawing stored = drawingIn(contentOf(drawTo(u"svg"_s, {})));
        QCOMPARE(stored.texts.join(u' '), u"1 2 3 4 T"_s);
        QCOMPARE(stored.shapes.join(u", "_s),
                 u"#010203 50, #ffa0ff 33.5, #010203 50, #60c0ff 50"_s);
        const Drawing asked =
            drawingIn(contentOf(drawTo(u"svg"_s, {u"--names"_s, u"display-name"_s, u"--seats"_s,
                                                  u"name"_s, u"--show"_s, u"none"_s})));
        QCOMPARE(asked.texts.join(u' '), u"Annie Bob T"_s);
        QCOMPARE(asked.shapes, QStringList(4, u"#fafbfc 50"_s));
    }

    void numbersOfThePlanThatAreNoChoiceCountAsTheFirst()
    {
        write(m_plan, planWith(R"(<floor_plan_name_order value="8"/>
                                  <floor_plan_show_seats value="-1"/>)" +
                               table));
        const Drawing drawing = drawingIn(contentOf(drawTo(u"svg"_s, {})));
        QCOMPARE(drawing.texts.join(u' '), u"Annie Bob T"_s);
        QCOMPARE(drawing.shapes, QStringList(4, u"#010203 50"_s));
    }

    void aPlanWithoutTablesIsTheFloorOfTheRoom()
    {
        write(m_plan, planWith(R"(<room_x_size value="4"/><room_y_size value="2"/>
                                  <chair_size value="0.5"/>)"));
        const QString path = m_folder.filePath(u"out.png"_s);
        const Outcome outcome = run({u"floorplan"_s, m_plan, u"-o"_s, path});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err,
                 QByteArray("ambrelune-cli: There are no tables: the picture shows the "
                            "empty floor.\n"));
        const QImage picture(path);
        QCOMPARE(picture.size(), QSize(800, 400));
        QCOMPARE(picture.pixelColor(400, 200), QColor(250, 251, 252));
    }

    void absurdPlansGiveAPictureAllTheSame_data()
    {
        QTest::addColumn<QByteArray>("content");
        const auto room = [](const QByteArray &side, const QByteArray &chair) {
            return "<room_x_size value=\"" + side + "\"/><room_y_size value=\"" + side +
                   "\"/><chair_size value=\"" + chair + "\"/>" + table;
        };
        QTest::newRow("nothing") << room("0", "0");
        QTest::newRow("no numbers") << room("nan", "nan");
        QTest::newRow("negative") << room("-5", "-1");
        QTest::newRow("endless") << room("inf", "0.5");
        QTest::newRow("huge room") << room("1e9", "0.6");
        QTest::newRow("huge chair") << room("20", "1e9");
        QTest::newRow("tiny chair") << room("20", "1e-9");
        const auto tables = [](int side, int pitch) {
            QByteArray all;
            for (int i = 0; i < side * side; ++i)
                all += "<table shape=\"0\" seats_across=\"8\" X=\"" +
                       QByteArray::number(i % side * pitch) + "\" Y=\"" +
                       QByteArray::number(i / side * pitch) + "\"/>";
            return all;
        };
        QTest::newRow("1024 tables") << tables(32, 500);
        QTest::newRow("a heap of tables") << tables(32, 0);
        QTest::newRow("ends of the world") << tables(2, 2147483647);
    }
    void absurdPlansGiveAPictureAllTheSame()
    {
        QFETCH(QByteArray, content);
        write(m_plan, planWith(content));
        QVERIFY(!draw({}).isNull());
        QVERIFY(drawingIn(contentOf(drawTo(u"svg"_s, {}))).isWellFormed);
        QVERIFY(QFileInfo(drawTo(u"pdf"_s, {})).size() > 1000);
    }

    void wrongUsageIsRefused_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("words");
        const auto row = [](const char *name, const QStringList &options, const char *words) {
            QTest::newRow(name) << u"out.png"_s << options << QByteArray(words);
        };
        row("no width", {u"--width"_s, u"0"_s}, "from 1 to 10000, not '0'");
        row("too wide", {u"--width"_s, u"10001"_s}, "not '10001'");
        row("width in words", {u"--width"_s, u"wide"_s}, "not 'wide'");
        row("unknown order", {u"--names"_s, u"Number"_s},
            "takes display-name, last-first, last-initial, first-last, initial-last, "
            "title-first-last, title-initial-last or number, not 'Number'");
        row("unknown seats", {u"--seats"_s, u"square"_s},
            "takes circle+name, circle, name or none, not 'square'");
        row("unknown mark", {u"--show"_s, u"gender,hair"_s},
            "of gender, age, vip, groups or locked; or none, not 'gender,hair'");
        row("no mark", {u"--show"_s, QString()}, "or none, not ''");
        row("none and some", {u"--show"_s, u"none,age"_s}, "not 'none,age'");
        row("names that nobody sees", {u"--names"_s, u"number"_s, u"--seats"_s, u"circle"_s},
            "--names has no effect with --seats circle");
        row("names without seats", {u"--seats"_s, u"none"_s, u"--names"_s, u"number"_s},
            "--names has no effect with --seats none");
        row("two formats", {u"--format"_s, u"svg"_s}, "--format svg does not fit the name '");
        row("a format that is none", {u"--format"_s, u"gif"_s},
            "--format takes png, jpg, bmp, svg or pdf, not 'gif'");
        const QByteArray formats = "end in png, jpg, bmp, svg or pdf: '";
        QTest::newRow("unknown format") << u"out.gif"_s << QStringList() << formats;
        QTest::newRow("no format") << u"out"_s << QStringList() << formats;
    }
    void wrongUsageIsRefused()
    {
        QFETCH(QString, output);
        QFETCH(QStringList, options);
        QFETCH(QByteArray, words);
        const QString path = m_folder.filePath(output);
        const Outcome outcome = run(QStringList{u"floorplan"_s, m_plan, u"-o"_s, path} + options);
        QCOMPARE(outcome.status, 64);
        QVERIFY2(isComplaint(outcome.err), outcome.err);
        QVERIFY2(outcome.err.contains(words), outcome.err);
        QVERIFY(!QFile::exists(path));
    }

    void standardOutputNeedsAFormatSinceItHasNoExtension()
    {
        const Outcome outcome = run({u"floorplan"_s, m_plan, u"-o"_s, u"-"_s});
        QCOMPARE(outcome.status, 64);
        QVERIFY2(isComplaint(outcome.err), outcome.err);
        QVERIFY2(outcome.err.contains("Say png, jpg, bmp, svg or pdf with --format."), outcome.err);
        QCOMPARE(outcome.out, QByteArray());
        const auto toOutput = [&](const QString &format) {
            return run({u"floorplan"_s, m_plan, u"-o"_s, u"-"_s, u"--format"_s, format});
        };
        QCOMPARE(toOutput(u"png"_s).out, contentOf(drawTo(u"png"_s, {})));
        QVERIFY(toOutput(u"svg"_s).out.startsWith("<?xml"));
        QVERIFY(toOutput(u"jpg"_s).out.startsWith("\xff\xd8\xff"));
    }

    void aFormatMakesUpForANameWithoutOne()
    {
        const QString path = m_folder.filePath(u"picture"_s);
        for (const QString &format : {u"pdf"_s, u"png"_s}) {
            QCOMPARE(run({u"floorplan"_s, m_plan, u"-o"_s, path, u"--format"_s, format}).status, 0);
            QCOMPARE(contentOf(path).left(4), QByteArray(format == u"pdf"_s ? "%PDF" : "\x89PNG"));
        }
        QVERIFY(QFile::remove(path));
        // The same as the name says does no harm.
        QVERIFY(contentOf(drawTo(u"png"_s, {u"--format"_s, u"png"_s})).startsWith("\x89PNG"));
    }

    void aPlanFromStandardInputIsDrawn()
    {
        const QByteArray plan = contentOf(m_plan);
        const QStringList arguments{u"floorplan"_s, u"-"_s,        u"-o"_s,
                                    u"-"_s,         u"--format"_s, u"svg"_s};
        QCOMPARE(drawingIn(runWithInput(arguments, plan).out).texts,
                 QStringList({u"Annie"_s, u"Bob"_s, u"T"_s}));
        QCOMPARE(drawingIn(runWithInput(arguments, planWith({})).out).title, u"plan"_s);
    }

    void aPictureThatWouldBeTooHighIsRefused()
    {
        write(m_plan, planWith(R"(<room_y_size value="120"/>
                                  <table shape="0" seats_across="8" X="0" Y="0"/>
                                  <table shape="0" seats_across="8" X="0" Y="18000"/>)"));
        const QString path = m_folder.filePath(u"out.svg"_s);
        const Outcome outcome =
            run({u"floorplan"_s, m_plan, u"-o"_s, path, u"--width"_s, u"5000"_s});
        QCOMPARE(outcome.status, 64);
        QVERIFY2(outcome.err.contains("pixels high; the most is 10000."), outcome.err);
        QVERIFY(!QFile::exists(path));
    }

    void whatCannotBeReadOrWrittenHasItsStatus()
    {
        const QString letter = m_folder.filePath(u"letter.kw"_s);
        write(letter, "Dear guests,\n");
        QVERIFY(QDir(m_folder.path()).mkpath(u"folder.png"_s));
        QVERIFY(QFile::link(u"/dev/full"_s, m_folder.filePath(u"full.svg"_s)));
        const QList<std::tuple<QString, QString, int>> rows{
            {letter, m_folder.filePath(u"out.png"_s), 1},
            {u"/nowhere/plan.kw"_s, m_folder.filePath(u"out.png"_s), 2},
            {m_plan, u"/nowhere/out.png"_s, 4},
            {m_plan, m_folder.filePath(u"folder.png"_s), 4},
            {m_plan, m_folder.filePath(u"full.svg"_s), 4}};
        for (const auto &[plan, path, status] : rows) {
            const Outcome outcome = run({u"floorplan"_s, plan, u"-o"_s, path});
            QCOMPARE(outcome.status, status);
            QVERIFY2(isComplaint(outcome.err), outcome.err);
        }
        QVERIFY(!QFile::exists(m_folder.filePath(u"out.png"_s)));
    }

    void anOldPictureSurvivesAFailedWrite()
    {
        const QString path = m_folder.filePath(u"old.pdf"_s);
        write(path, "the old picture");
        QProcess process;
        process.setChildProcessModifier([] {
            const rlimit limit{1000, 1000};
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, SIG_IGN);
        });
        process.start(commandLineTool(), {u"floorplan"_s, m_plan, u"-o"_s, path});
        QCOMPARE(finish(process).status, 4);
        QCOMPARE(contentOf(path), QByteArray("the old picture"));
        QCOMPARE(QDir(m_folder.path()).entryList({u"old*"_s}), QStringList{u"old.pdf"_s});
    }

    void noDisplayIsNeeded()
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"DISPLAY"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        process.setProcessEnvironment(environment);
        const QString path = m_folder.filePath(u"out.png"_s);
        process.start(commandLineTool(), {u"floorplan"_s, m_plan, u"-o"_s, path});
        QCOMPARE(finish(process).status, 0);
        QVERIFY(!QImage(path).isNull());
    }

    void cleanup()
    {
        for (const QFileInfo &picture : QDir(m_folder.path()).entryInfoList({u"out.*"_s}))
            QFile::remove(picture.filePath());
    }

private:
    /// Two guests with a wish that each other's seat does not meet, and more.
    static QByteArray planWith(const QByteArray &more)
    {
        return R"(<!DOCTYPE ambrelune>
<root>
 <floorplan_colour_seats value="1,2,3"/><floorplan_colour_inside value="250,251,252"/>
 <group/><group/>
 <guest display_name="Annie" title="Dr" first_name="Ann" last_name="Rye" gender="Female"
   age="child" locked="1" vip="1" group="1"/>
 <guest display_name="Bob" first_name="Bob" last_name="Oat" gender="Male" age="adult" group="0"/>
 <affinity guest1="0" guest2="1" value="0"/>
)" + more + "</root>\n";
    }

    QString drawTo(const QString &extension, const QStringList &options) const
    {
        const QString path = m_folder.filePath(u"out."_s + extension);
        QFile::remove(path);
        run(QStringList{u"floorplan"_s, m_plan, u"-o"_s, path} + options);
        return path;
    }

    QImage draw(const QStringList &options) const { return QImage(drawTo(u"png"_s, options)); }

    QTemporaryDir m_folder;
    QString m_plan = m_folder.filePath(u"plan.kw"_s);
};

REGISTER_TEST(TestCliFloorplan)
#include "tst_cli_floorplan.moc"
