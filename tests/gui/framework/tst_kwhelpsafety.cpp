#include "gui/framework/kwhelpsafety.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"
#include "support/testplan.h"

#include <QBuffer>
#include <QTextBrowser>

namespace {

QByteArray redPicture(const char *format)
{
    QImage red(4, 4, QImage::Format_RGB32);
    red.fill(Qt::red);
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly) || !red.save(&buffer, format))
        qFatal("cannot write a picture");
    return buffer.data();
}
} // namespace

class TestKWHelpSafety : public QObject
{
    Q_OBJECT

private slots:
    void pagesOfTheHelpAreShowable()
    {
        const QDir help(sourcePath("help"));
        const QStringList pages = help.entryList({s("*.htm")});
        QVERIFY(pages.size() > 5);
        for (const QString &page : pages) {
            QFile file(help.filePath(page));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY2(isShowablePage(file.readAll()), qPrintable(page));
        }
    }

    void aPageThatWouldTakeForeverIsNotShowable_data()
    {
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<bool>("showable");
        const QByteArray table("<table><tr><td>");
        QTest::newRow("nested tables") << table.repeated(15) << false;
        QTest::newRow("as many as allowed") << table.repeated(14) << true;
        QTest::newRow("in capitals") << table.repeated(15).toUpper() << false;
        QTest::newRow("with ends that match nothing")
            << QByteArray("<table></b><tr></i><td>").repeated(15) << false;
        QTest::newRow("with ends in comments")
            << QByteArray("<table><!-- </table> --><tr><td>").repeated(15) << false;
        QTest::newRow("many tags") << QByteArray("<b>").repeated(3001) << false;
        QTest::newRow("as many tags as allowed") << QByteArray("<div>").repeated(3000) << true;
        QTest::newRow("too long") << QByteArray(256 * 1024 + 1, 'x') << false;
        QTest::newRow("long") << QByteArray(256 * 1024, 'x') << true;
        QTest::newRow("empty") << QByteArray() << true;
    }

    void aPageThatWouldTakeForeverIsNotShowable()
    {
        QFETCH(QByteArray, page);
        QFETCH(bool, showable);
        QCOMPARE(isShowablePage(page), showable);
    }

    void theWorstPageThatIsShowableIsShown()
    {
        QTextBrowser browser;
        browser.resize(600, 600);
        const QString page = s("<table><tr><td>").repeated(14) + s("<ul><li>").repeated(1400);
        QVERIFY(isShowablePage(page.toLatin1()));
        browser.setHtml(page + s("the end"));
        QVERIFY(!browser.grab().isNull());
        QVERIFY(browser.toPlainText().contains(s("the end")));
    }

    void plainPicturesAreRead()
    {
        QCOMPARE(plainPicture(redPicture("png")).pixelColor(1, 1), QColor(Qt::red));
        QCOMPARE(plainPicture(redPicture("jpg")).size(), QSize(4, 4));
    }

    void aPictureThatNamesAFileOfTheDiskIsNotRead()
    {
        const QString path = testHome().path(s("red.png"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(redPicture("png"));
        file.close();
        const QString svg = s("<svg xmlns='http://www.w3.org/2000/svg' "
                              "xmlns:xlink='http://www.w3.org/1999/xlink' width='9' height='9'>"
                              "<image width='9' height='9' xlink:href='%1'/></svg>");
        QVERIFY(!QImage::fromData(svg.arg(path).toUtf8()).isNull());
        QVERIFY(plainPicture(svg.arg(path).toUtf8()).isNull());
    }

    void whatIsNoPictureGivesNone()
    {
        QVERIFY(plainPicture(QByteArray()).isNull());
        QVERIFY(plainPicture("no picture").isNull());
        QVERIFY(plainPicture(redPicture("bmp")).isNull());
        QVERIFY(plainPicture(redPicture("png").first(40)).isNull());
    }
};

REGISTER_TEST(TestKWHelpSafety)
#include "tst_kwhelpsafety.moc"
