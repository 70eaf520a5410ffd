#include "gui/appearance/kwcontrast.h"
#include "support/gui/shownlist.h"
#include "support/registeredtest.h"

// What rows are painted on is taken once for all lists, so this test has a program's run of its
// own.

class TestDarkList : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QPalette dark = QApplication::palette();
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, QColor(230, 230, 230));
        dark.setColor(QPalette::Highlight, QColor(80, 130, 230));
        QApplication::setPalette(dark);
    }

    void onADarkGroundTheStripeIsDarkToo()
    {
        ShownList shown({s("A"), s("B"), s("C")});
        QStyleOptionViewItem option;
        QList<QColor> grounds;
        for (int row = 0; row < 3; ++row) {
            option.palette = shown.list.palette();
            static_cast<KWListViewItem *>(shown.list.topLevelItem(row))->prepareToPaint(option);
            grounds.append(option.palette.color(QPalette::Base));
            QCOMPARE(option.palette.color(QPalette::Text), QColor(230, 230, 230));
        }
        QCOMPARE(grounds[0], QColor(30, 30, 30));
        // 12 % of the way to the colour of the selection.
        QCOMPARE(grounds[1].rgb(), qRgb(36, 42, 54));
        QCOMPARE(grounds[2], QColor(30, 30, 30));
        QVERIFY(contrast(grounds[0], grounds[1]) > 1.1);
    }
};

REGISTER_TEST(TestDarkList)
#include "tst_darklist.moc"
