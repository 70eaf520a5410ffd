#include "gui/dialogs/kwscrollingpage.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// A page of forty line edits between others of a window.
struct Form : QWidget
{
    Form()
    {
        auto *contents = new QWidget;
        auto *rows = new QVBoxLayout(contents);
        for (int i = 0; i < 40; ++i)
            rows->addWidget(edits.emplaceBack(new QLineEdit));
        page->setWidget(contents);
        auto *outer = new QVBoxLayout(this);
        outer->setContentsMargins({});
        outer->addWidget(page);
    }

    bool showAt(int height)
    {
        resize(sizeHint().width(), height);
        show();
        return QTest::qWaitForWindowActive(this);
    }

    bool shows(const QWidget *edit) const
    {
        return page->viewport()->rect().contains(
            QRect(edit->mapTo(page->viewport(), QPoint()), edit->size()));
    }

    KWScrollingPage *page = new KWScrollingPage;
    QList<QLineEdit *> edits;
};
} // namespace

class TestKWScrollingPage : public QObject
{
    Q_OBJECT

private slots:
    void itWantsTheRoomOfItsContentsAndCanDoWithLess()
    {
        const Form form;
        QCOMPARE(form.page->sizeHint().height(), form.page->widget()->sizeHint().height());
        QVERIFY(form.page->sizeHint().height() > 700);
        QVERIFY(form.page->minimumSizeHint().height() < 200);
    }

    void withLittleRoomItScrollsUpAndDownOnly()
    {
        Form form;
        QVERIFY(form.showAt(300));
        QVERIFY(form.page->verticalScrollBar()->isVisible());
        form.resize(form.minimumSizeHint().width(), 300);
        QVERIFY(!form.page->horizontalScrollBar()->isVisible());
        QCOMPARE(form.page->widget()->width(), form.page->viewport()->width());
        QVERIFY(form.page->widget()->width() >= form.page->widget()->minimumSizeHint().width());
    }

    void whateverGetsTheFocusIsShown()
    {
        Form form;
        QVERIFY(form.showAt(300));
        QVERIFY(!form.shows(form.edits.at(30)));
        form.edits.at(30)->setFocus(Qt::ShortcutFocusReason);
        QVERIFY(form.shows(form.edits.at(30)));
        QVERIFY(!form.shows(form.edits.at(0)));
        form.edits.at(0)->setFocus(Qt::OtherFocusReason);
        QVERIFY(form.shows(form.edits.at(0)));
    }

    void aClickOnWhatIsHalfVisibleReachesIt()
    {
        Form form;
        auto *box = new QCheckBox(s("VIP"));
        form.page->widget()->layout()->addWidget(box);
        QVERIFY(form.showAt(300));
        QScrollBar *bar = form.page->verticalScrollBar();
        bar->setValue(bar->maximum() - box->height() / 2);
        const int before = bar->value();
        const QPoint place = box->mapTo(&form, QPoint(10, 4));
        // Through the window, as the display sends it.
        QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, place);
        QVERIFY(box->hasFocus());
        QVERIFY(box->isChecked());
        QCOMPARE(bar->value(), before);
    }

    void theTabKeyDoesNotStopAtThePageItself()
    {
        QCOMPARE(Form().page->focusPolicy(), Qt::NoFocus);
    }

    void itFollowsContentsThatGrow()
    {
        Form form;
        QVERIFY(form.showAt(300));
        const int width = form.minimumSizeHint().width();
        form.edits.at(3)->setMinimumWidth(width + 200);
        QTRY_VERIFY(form.minimumSizeHint().width() > width + 200);
    }

    void theGroundOfTheTabsShowsThrough()
    {
        Form form;
        QVERIFY(form.showAt(300));
        QVERIFY(!form.page->viewport()->autoFillBackground());
        QVERIFY(!form.page->widget()->autoFillBackground());
    }
};

REGISTER_TEST(TestKWScrollingPage)
#include "tst_kwscrollingpage.moc"
