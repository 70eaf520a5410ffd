#include "support/gui/shownplan.h"
#include "support/registeredtest.h"

#include <QPrinter>

// The floor plan as a picture and on paper.

namespace {

/// A canvas that gets no memory for pictures wider than some pixels.
class PoorCanvas : public KWCanvas
{
public:
    using KWCanvas::KWCanvas;

    int widest = 0;
    QList<int> tries;

protected:
    QImage newImage(const QSize &size) override
    {
        tries.append(size.width());
        return size.width() > widest ? QImage() : KWCanvas::newImage(size);
    }
};

/// A page with the floor plan on it; its header and footer are full blocks, so that they can be
/// seen.
struct Page
{
    KWDocument plan;
    KWCanvas canvas{&plan};
    QImage image{400, 300, QImage::Format_RGB32};
    QString header = s("\u2588\u2588");
    QString footer = s("\u2588");
    double margin = 0;
    int headerPosition = 0;
    int footerPosition = 0;

    Page() { plan.setFloorplanColourInside(QColor(250, 240, 230)); }

    void print()
    {
        QFont font;
        font.setPixelSize(20);
        image.fill(Qt::white);
        QPainter painter(&image);
        canvas.print(&painter, image.width(), image.height(), margin, header, font, Qt::red,
                     headerPosition, footer, font, Qt::blue, footerPosition);
    }

    /// The rectangle round all that has the colour.
    QRect extent(const QColor &colour) const
    {
        QRect all;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == colour)
                    all |= QRect(x, y, 1, 1);
            }
        }
        return all;
    }
};
} // namespace

class TestKWCanvasPrint : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void withoutMemoryThePictureIsHalvedUntilThereIsEnough()
    {
        KWDocument plan;
        plan.addTable(KWTable::HeadTop, s("T"), 10, 0, 0, 0, {600, 400}, {});
        PoorCanvas canvas(&plan);
        canvas.widest = 300;
        const QImage picture = canvas.renderToPixmap(0.05).toImage();
        QCOMPARE(canvas.tries, QList<int>({1108, 554, 277}));
        QCOMPARE(picture.size(), QSize(277, 76));
        // All of it is in there.
        QCOMPARE(picture.pixelColor(4, 4), plan.floorplanColourInside());
        QVERIFY(picture.pixelColor(138, 50) != picture.pixelColor(4, 4) ||
                picture.pixelColor(138, 64) != picture.pixelColor(4, 4));
    }

    void withoutMemoryForAHundredthThereIsNoPicture()
    {
        KWDocument plan;
        plan.addTable(KWTable::HeadTop, s("T"), 10, 0, 0, 0, {600, 400}, {});
        PoorCanvas canvas(&plan);
        QVERIFY(canvas.renderToPixmap(0.05).isNull());
        // The last try is the first one below a hundredth.
        QCOMPARE(canvas.tries, QList<int>({1108, 554, 277, 139, 69, 35, 17, 9}));
    }

    void aPlanThatWouldTakeAllMemoryGivesASmallerPicture()
    {
        KWDocument plan;
        plan.setRoomXSize(999);
        plan.setRoomYSize(999);
        plan.setChairSize(0.2);
        plan.addTable(KWTable::HeadTop, s("T"), 10, 0, 0, 0, {600, 400}, {});
        plan.addTable(KWTable::HeadTop, s("U"), 10, 0, 0, 0, {90000, 90000}, {});
        KWCanvas canvas(&plan);
        const QPixmap picture = canvas.renderToPixmap(0);
        QCOMPARE(picture.width(), qRound(canvas.itemBounds(0).width() / 8));
    }

    void thePlanFillsThePageInItsMiddle()
    {
        Page page;
        page.header.clear();
        page.footer.clear();
        // 204 wide and 204 high with its seats.
        page.plan.addTable(KWTable::HeadTop, s(""), 2, 0, 0, 0, {600, 400}, {});
        page.print();
        const QRectF bounds = page.canvas.itemBounds(0);
        const double scale = 300 / bounds.height();
        const QRect floor = page.extent(QColor(250, 240, 230));
        QCOMPARE(floor.height(), 300);
        QVERIFY(std::abs(floor.width() - bounds.width() * scale) <= 2);
        QVERIFY(std::abs(floor.center().x() - 200) <= 1);
        QCOMPARE(page.canvas.backgroundColour(), QColor(250, 240, 230));
    }

    void theMarginIsRoundThePlan()
    {
        Page page;
        page.plan.setFloorplanColourTables(Qt::green);
        page.plan.addTable(KWTable::HeadTop, s(""), 2, 0, 0, 0, {600, 400}, {});
        page.print();
        const QRect tight = page.extent(Qt::green);
        page.margin = 0.5;
        page.print();
        QVERIFY(std::abs(page.extent(Qt::green).width() - tight.width() / 2) <= 2);
    }

    void headerAndFooterStandInTheMiddleAtTheEdges()
    {
        Page page;
        page.plan.addTable(KWTable::HeadTop, s(""), 2, 0, 0, 0, {600, 400}, {});
        page.print();
        const QRect header = page.extent(Qt::red);
        const QRect footer = page.extent(Qt::blue);
        QVERIFY(std::abs(header.center().x() - 200) <= 2);
        QVERIFY(std::abs(footer.center().x() - 200) <= 2);
        QVERIFY(header.top() <= 4);
        QVERIFY(footer.bottom() >= 295);
        QVERIFY(header.width() > footer.width());
    }

    void positionsMoveHeaderAndFooterUp()
    {
        Page page;
        page.plan.addTable(KWTable::HeadTop, s(""), 2, 0, 0, 0, {600, 400}, {});
        page.headerPosition = -40;
        page.footerPosition = 30;
        page.print();
        const QRect header = page.extent(Qt::red);
        const QRect footer = page.extent(Qt::blue);
        page.headerPosition = 0;
        page.footerPosition = 0;
        page.print();
        QCOMPARE(header.top(), page.extent(Qt::red).top() + 40);
        QCOMPARE(footer.top(), page.extent(Qt::blue).top() - 30);
    }

    void anEmptyPlanPrintsNothing()
    {
        Page page;
        page.print();
        QCOMPARE(page.extent(Qt::white), page.image.rect());
    }

    void aPictureShowsNoSelectionAndLeavesIt()
    {
        Page page;
        page.plan.setFloorplanColourSelected(QColor(1, 2, 3));
        KWTable *table = page.plan.addTable(KWTable::HeadTop, s(""), 2, 0, 0, 0, {600, 400}, {});
        page.canvas.setSelected(page.canvas.itemOfTable(table));
        page.print();
        QVERIFY(page.extent(QColor(1, 2, 3)).isEmpty());
        QCOMPARE(page.canvas.selected(), page.canvas.itemOfTable(table));
    }

    void withoutAPrinterThatIsToldAndNothingPrinted()
    {
        ShownPlan shown;
        shown.table("T", KWTable::Circular, 4, {600, 500});
        shown.window.printer()->setPrinterName(QString());
        shown.prompts.answer(s("&OK"));
        shown.view.print();
        QCOMPARE(shown.prompts.texts(),
                 QStringList{s("No printer detected. Please install a printer first.")});
        QCOMPARE(shown.prompts.messages[0].icon, KWMessage::Critical);
        QCOMPARE(shown.window.statusMessages, QStringList());
    }

    void thePageGoesToThePrinterIfTheUserWantsIt_data()
    {
        QTest::addColumn<bool>("isWanted");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }

    void thePageGoesToThePrinterIfTheUserWantsIt()
    {
        QFETCH(bool, isWanted);
        ShownPlan shown;
        shown.table("T", KWTable::Circular, 4, {600, 500});
        const QTemporaryDir directory;
        const QString path = directory.filePath(s("plan.pdf"));
        QPrinter &printer = usePdfPrinter(shown, path);
        shown.prompts.answerPrinter(isWanted);
        shown.view.printOn(printer, shown.window);
        QCOMPARE(QFileInfo(path).size() > 0, isWanted);
        QCOMPARE(shown.window.statusMessages,
                 isWanted ? QStringList({s("Printing..."), s("Printing complete")})
                          : QStringList());
        QCOMPARE(printer.pageLayout().orientation(), QPageLayout::Landscape);
    }

    void aPrinterThatTakesNothingIsTold()
    {
        ShownPlan shown;
        shown.table("T", KWTable::Circular, 4, {600, 500});
        QPrinter &printer = usePdfPrinter(shown, s("/nowhere/plan.pdf"));
        shown.prompts.answerPrinter(true);
        shown.prompts.answer(s("&OK"));
        shown.view.printOn(printer, shown.window);
        QCOMPARE(shown.prompts.texts(), QStringList{s("No print file/device.")});
        QCOMPARE(shown.window.statusMessages,
                 QStringList({s("Printing..."), s("Printing aborted")}));
    }

private:
    static QPrinter &usePdfPrinter(ShownPlan &shown, const QString &path)
    {
        QPrinter &printer = *shown.window.printer();
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        return printer;
    }
};

REGISTER_TEST(TestKWCanvasPrint)
#include "tst_kwcanvas_print.moc"
